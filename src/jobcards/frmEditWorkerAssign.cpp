#include "jobcards/frmEditWorkerAssign.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/ShopPictures.h"
#include "core/store/Texts.h"
#include "jobcards/ItemColor.h"
#include "jobcards/JobLine.h"
#include "jobcards/JobProgress.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "media/frmPreview.h"
#include "messaging/modSMS.h"
#include "messaging/swSMS.h"
#include "planning/Ratings.h"
#include "planning/Stars.h"
#include "planning/frmFeedBack.h"
#include "platform/report/Printing.h"
#include "platform/values/Currency.h"
#include "platform/values/Dates.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmEditWorkerAssign.h"

#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace {

constexpr int HeightOfStars = 20;

/// Names and values of the measurements stand side by side: they scroll as one.
void scrollTogether(QPlainTextEdit& one, QPlainTextEdit& other)
{
    const auto follow = [](QScrollBar* leader, QScrollBar* follower) {
        QObject::connect(leader, &QScrollBar::valueChanged, follower, &QScrollBar::setValue);
    };
    follow(one.verticalScrollBar(), other.verticalScrollBar());
    follow(other.verticalScrollBar(), one.verticalScrollBar());
}

} // namespace

frmEditWorkerAssign::frmEditWorkerAssign()
    : ui(std::make_unique<Ui::frmEditWorkerAssign>())
{
    ui->setupUi(this);
    scrollTogether(*ui->txtCap, *ui->txtSize);
    ui->DtCutting->setCustomFormat(u"dd-MMM-yyyy"_s);

    onGotFocus(ui->cmbWorker, [this] { ui->cmbWorker->select(0, int(ui->cmbWorker->text().size())); });
    onKeyPress(ui->cmbWorker, [this](int& key) { key = AutoSearchCombo(*ui->cmbWorker, key); });
    on(ui->cmbWorker, &forms::ComboBox::changed, &frmEditWorkerAssign::RateWorker);
    onKeyPress(ui->txtWagesDue, [this](int& key) { key = NumbersOnly(*ui->txtWagesDue, key); });
    const auto preview = [](const QString& imgPath) {
        if (!imgPath.isEmpty())
            frmPreview().ShowImage(imgPath);
    };
    on(ui->pic1, &PictureBox::dblClicked, [this, preview] { preview(Img1Path); });
    on(ui->pic2, &PictureBox::dblClicked, [this, preview] { preview(Img2Path); });

    on(ui->Command1, &QPushButton::clicked, &frmEditWorkerAssign::save);
    on(ui->Command2, &QPushButton::clicked, &frmEditWorkerAssign::giveFeedback);
    on(ui->Command3, &QPushButton::clicked, [this] { PrintWorkerSlip(LineID); });
    on(ui->Command4, &QPushButton::clicked, &frmEditWorkerAssign::offerSms);
    on(ui->Command7, &QPushButton::clicked, [this] { PrintLabel(LineID); });
    const auto print = [](const QString& imgPath) { report::printPicture(imgPath, 100, 100); };
    on(ui->Command5, &QPushButton::clicked, [this, print] { print(Img1Path); });
    on(ui->Command6, &QPushButton::clicked, [this, print] { print(Img2Path); });
    on(ui->lblHideShow, &QPushButton::clicked, &frmEditWorkerAssign::toggleWages);
}

frmEditWorkerAssign::~frmEditWorkerAssign() = default;

std::vector<frmEditWorkerAssign::State> frmEditWorkerAssign::states() const
{
    return {{ui->opUcom, LineState::Uncompleted, nullptr},
            {ui->opCom, LineState::Completed, ui->lblDateCompleted},
            {ui->opDel, LineState::Delivered, ui->lblDateDeltoCust},
            {ui->opAlt, LineState::Alteration, ui->lbldateAlt}};
}

// Opening

void frmEditWorkerAssign::ShowEdit(qint32 lineID)
{
    LineID = lineID;
    load();
    try {
        showLine();
    } catch (...) {
        unload();
        throw;
    }
    showModal();
}

void frmEditWorkerAssign::Form_Load()
{
    SetFormLanguage(*this);
    FillList(u"Title"_s, u"Accounts"_s, whereType(AccountType::Worker), *ui->cmbWorker, DE.rsaccounts);
    ui->cmbWorker->insertItem(0, noWorker);
    showWages(IsOn(settings::WorkerDetailsShown));
    swSMS1 = std::make_unique<swSMS>(this);
    swSMS1->setObjectName(u"swSMS1"_s);
}

void frmEditWorkerAssign::Form_Unload() { swSMS1.reset(); }

void frmEditWorkerAssign::showLine()
{
    const JobLine line = JobLine::read(LineID);
    const QString worker = line.worker == 0 ? noWorker : GetAccountTitle(line.worker);
    ui->txtClient->setText(GetAccountTitle(line.client));
    ui->txtJOBID->setText(line.job);
    ui->txtItemName->setText(GetItemName(line.item));
    ui->txtQuantity->setText(line.quantity);
    ui->txtLoc->setText(line.location);
    ui->txtRemark->setText(line.remark);
    ui->txtCap->setText(line.measurementNames);
    ui->txtSize->setText(line.measurementValues);
    for (const State& state : states()) {
        if (state.state == line.state)
            state.option->setChecked(true);
        if (state.date)
            state.date->setText(dateText(line.dayOf(state.state)));
    }
    ui->chCutting->setChecked(line.cut);
    ui->DtCutting->setValue(line.cutting);
    ui->txtWagesDue->setText(line.wage.toString());
    ui->lblDelDate->setText(dateText(line.promised));
    ui->lblBookDate->setText(dateText(line.booked));
    ui->txtClientRemark->setText(line.clientRemark);
    ui->chMarkasPaid->setChecked(line.paid);
    showPicture(*ui->pic1, *ui->Command5, Img1Path, line.picture1);
    showPicture(*ui->pic2, *ui->Command6, Img2Path, line.picture2);
    ui->picColor->setNumber(itemcolor::readNumber(line.colour));
    for (QLineEdit* box : {ui->txtClient, ui->txtItemName})
        box->setCursorPosition(0); // a long text shows from its beginning
    if (const QDate paidOn = line.paidOn(); paidOn.isValid()) {
        ui->lblWagesPaid->setText(moneyText(line.wage.toDouble()));
        ui->lblWagesPaidDate->setText(dateText(paidOn));
    }
    ui->cmbWorker->setText(worker);
    LineDate = line.booked;
    LineItemID = line.item;
    LineClientID = line.client;
    showLastJob();
}

void frmEditWorkerAssign::showPicture(PictureBox& pic, QPushButton& print, QString& imgPath,
                                      const QString& link)
{
    const QString file = shownPicture(link);
    if (file.isEmpty()) {
        pic.showMissing(!link.isEmpty());
        return;
    }
    pic.load(file);
    imgPath = file;
    print.setEnabled(true);
}

void frmEditWorkerAssign::showLastJob()
{
    const std::optional<EarlierOrder> before = EarlierOrder::find(LineDate, LineItemID, LineClientID);
    if (!before) {
        ui->lblLastJob->setText(u"No last record found"_s);
        return;
    }
    ui->lblLastJob->setText(u"Last Job ID # "_s + before->job + u"\r\nDate : "_s + dateText(before->booked) +
                            u"\r\n"_s +
                            (before->worker > 0 ? u"Job done by : "_s + GetAccountTitle(before->worker)
                                                : u"No worker information found!"_s));
}

qint32 frmEditWorkerAssign::jobID() const
{
    return values::CLng(values::Val(ui->txtJOBID->text()), u"JOB ID"_s);
}

// Worker and rating

/// The entry of the list that stands in the box, whole; empty when another text does.
QString frmEditWorkerAssign::chosenWorker() const
{
    return ui->cmbWorker->List(ui->cmbWorker->findText(ui->cmbWorker->text(), Qt::MatchFixedString));
}

/// Looks a worker up once, however many keys leave him in the box; a failure is then also shown once.
void frmEditWorkerAssign::RateWorker()
{
    const QString worker = chosenWorker();
    if (worker == m_ratedWorker)
        return;
    m_ratedWorker = worker;
    showRating(0); // also for a worker that cannot be looked up
    if (!worker.isEmpty() && worker != noWorker)
        showRating(GetWorkerRating(GetAccountID(worker)));
}

void frmEditWorkerAssign::showRating(qint16 rating)
{
    ui->lblAvgScorer->setText(u"Overall Ratting : "_s + QString::number(rating));
    if (const QPixmap picture = stars(rating, HeightOfStars); !picture.isNull())
        ui->imgStars->setPixmap(picture);
}

// Keys

void frmEditWorkerAssign::Form_KeyPress(int& key)
{
    if (key == forms::key::CtrlS) {
        key = 0;
        save();
    } else if (key == forms::key::CtrlP) {
        key = 0;
        ui->Command3->click();
    } else {
        Screen::Form_KeyPress(key);
        key = EnterAsTab(key);
    }
}

// Save

void frmEditWorkerAssign::save()
{
    const QString worker = chosenWorker();
    if (worker.isEmpty()) {
        ShowMsg(u"Please Select Worker Name!"_s);
        ui->cmbWorker->setFocus();
        return;
    }
    writeLine(worker);
    session.RefreshLists = true;
    ShowMsg(u"Job Assign."_s);
    offerSms();
    if (AllItemsDelivered(jobID()))
        closeCard(jobID(), session.WorkingDate);
}

void frmEditWorkerAssign::writeLine(const QString& worker)
{
    const std::vector<State> all = states();
    const auto chosen =
        std::find_if(all.begin(), all.end(), [](const State& state) { return state.option->isChecked(); });
    Assignment assignment{.worker = worker == noWorker ? QString() : worker,
                          .state = {},
                          .cut = ui->chCutting->isChecked(),
                          .cutting = ui->DtCutting->value(),
                          .wage = Currency::fromDouble(values::Val(ui->txtWagesDue->text()), u"Wages Due"_s),
                          .paid = ui->chMarkasPaid->isChecked(),
                          .location = ui->txtLoc->text()};
    if (chosen != all.end())
        assignment.state = chosen->state;
    assignment.write(LineID, session.WorkingDate);
    if (chosen != all.end() && chosen->date)
        chosen->date->setText(dateText(session.WorkingDate));
}

// Commands

void frmEditWorkerAssign::giveFeedback()
{
    QVariant score;
    GiveFeedback(LineID, 0, score);
    m_ratedWorker.clear();
    RateWorker();
}

/// Does nothing as long as a line of the card is not completed.
void frmEditWorkerAssign::offerSms()
{
    if (!AllItemsCompleted(jobID()))
        return;
    if (const SmsWay way = AskSms(u"Send SMS Now?"_s); way != SmsWay::None)
        TellClient(*swSMS1, way, ui->txtClient->text(), MakeJobFinishedSms(jobID(), 0));
}

void frmEditWorkerAssign::showWages(bool shown)
{
    ui->fWorkerDetails->setVisible(shown);
    ui->lblHideShow->setText(shown ? u"Hide Worker Details"_s : u"Show Worker Details"_s);
}

void frmEditWorkerAssign::toggleWages()
{
    const bool shown = !ui->fWorkerDetails->isVisible();
    showWages(shown);
    RememberSetting(settings::WorkerDetailsShown, QString::number(int(shown)));
}
