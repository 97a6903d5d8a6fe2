#include "jobcards/frmEditWorkerAssign.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/ShopPictures.h"
#include "core/store/Texts.h"
#include "jobcards/ItemColor.h"
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

ado::Recordset& openRow(ado::Recordset& rows, const char* select, qint32 id)
{
    rows.Open(QLatin1String(select) + QString::number(id));
    return rows;
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
        showLastJob();
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
    showWages(GetSetting(settings::WorkerDetailsShown) != "0"_L1);
    swSMS1 = std::make_unique<swSMS>(this);
    swSMS1->setObjectName(u"swSMS1"_s);
}

void frmEditWorkerAssign::Form_Unload() { swSMS1.reset(); }

void frmEditWorkerAssign::showLine()
{
    auto& line = openRow(DE.rsJOBS_DETAIL, "Select * from jobs_detail where ID=", LineID);
    const qint32 workerID = line["WorkerID"].integer();
    const QString worker = workerID == 0 ? noWorker : GetAccountTitle(workerID);
    LineDate = line["Date"].date();
    LineClientID = line["ClintID"].integer();
    LineItemID = line["ItemID"].integer();
    ui->txtClient->setText(GetAccountTitle(LineClientID));
    ui->txtJOBID->setText(line["JobID"].text());
    ui->txtItemName->setText(GetItemName(LineItemID));
    ui->txtQuantity->setText(line["QNT"].text());
    ui->txtLoc->setText(line["Loc"].text());
    ui->txtRemark->setText(line["Remarks"].text());
    ui->txtCap->setText(line["ItemDetails"].text());
    ui->txtSize->setText(line["ItemDetailsValue"].text());

    for (const State& state : states()) {
        if (state.state == line["DoneByWorker"].code<LineState>())
            state.option->setChecked(true);
        if (state.date)
            state.date->setText(dateText(line[dayColumn(state.state)].date()));
    }
    ui->chCutting->setChecked(line["CuttingStatus"].code<CuttingMark>() == CuttingMark::Done);
    ui->DtCutting->setValue(line["CuttingDate"].date());
    const Currency wage = line["WorkerWagesDue"].money();
    ui->txtWagesDue->setText(wage.toString());
    ui->lblDelDate->setText(dateText(line["JobDelDate"].date()));
    ui->lblBookDate->setText(dateText(LineDate));
    ui->txtClientRemark->setText(line["ClientRemarks"].text());
    ui->chMarkasPaid->setChecked(line["MarkAsPaid"].integer() == 1);
    showPicture(*ui->pic1, *ui->Command5, Img1Path, line["img1"].text());
    showPicture(*ui->pic2, *ui->Command6, Img2Path, line["img2"].text());
    ui->picColor->setNumber(itemcolor::readNumber(line["Color"].text()));
    const qint32 payrollID = line["PayrollID"].integer();
    line.Close();

    for (QLineEdit* box : {ui->txtClient, ui->txtItemName})
        box->setCursorPosition(0); // a long text shows from its beginning
    showWagesPaid(wage, payrollID);
    ui->cmbWorker->setText(worker);
}

/// What a payroll has paid for the line, and when.
void frmEditWorkerAssign::showWagesPaid(Currency wage, qint32 payrollID)
{
    if (!ui->chMarkasPaid->isChecked() || payrollID == 0)
        return;
    auto& payroll = openRow(DE.rspostings, "Select * from Postings where vType=2 and VID=", payrollID);
    if (!payroll.AtEOF()) {
        ui->lblWagesPaid->setText(moneyText(wage.toDouble()));
        ui->lblWagesPaidDate->setText(dateText(payroll["Date"].date()));
    }
    payroll.Close();
}

void frmEditWorkerAssign::showPicture(PictureBox& pic, QPushButton& print, QString& imgPath,
                                      const QString& link)
{
    const QString file = shownPicture(link);
    if (file.isEmpty())
        return;
    pic.load(file);
    imgPath = file;
    print.setEnabled(true);
}

/// The client's order of the same item before this one.
void frmEditWorkerAssign::showLastJob()
{
    auto& lines = DE.rsJOBS_DETAIL;
    lines.Open(
        u"Select * from JOBS_DETAIL where DATE<#%1# and ItemID=%2 and ClintID=%3"_s.arg(dateText(LineDate))
            .arg(LineItemID)
            .arg(LineClientID));
    if (lines.AtEOF()) {
        ui->lblLastJob->setText(u"No last record found"_s);
        lines.Close();
        return;
    }
    lines.MoveLast();
    const qint32 workerID = lines["WorkerID"].integer();
    ui->lblLastJob->setText(
        u"Last Job ID # "_s + lines["JobID"].text() + u"\r\nDate : "_s + dateText(lines["Date"].date()) +
        u"\r\n"_s +
        (workerID > 0 ? u"Job done by : "_s + GetAccountTitle(workerID) : u"No worker information found!"_s));
    lines.Close();
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

/// A line without a worker keeps the name of the one it had. A day once stamped stays when the state changes.
void frmEditWorkerAssign::writeLine(const QString& worker)
{
    auto& line = openRow(DE.rsJOBS_DETAIL, "Select * from jobs_detail where id=", LineID);
    if (worker == noWorker) {
        line["WorkerID"] = 0;
    } else {
        line["WorkerID"] = GetAccountID(worker);
        line["WorkerName"] = worker;
    }
    const std::vector<State> all = states();
    const auto chosen =
        std::find_if(all.begin(), all.end(), [](const State& state) { return state.option->isChecked(); });
    if (chosen != all.end())
        enterState(line, chosen->state, session.WorkingDate);
    line["CuttingStatus"] = ui->chCutting->isChecked() ? CuttingMark::Done : CuttingMark::NotDone;
    line["CuttingDate"] = ui->DtCutting->value();
    line["WorkerWagesDue"] = Currency::fromDouble(values::Val(ui->txtWagesDue->text()), u"Wages Due"_s);
    line["MarkAsPaid"] = int(ui->chMarkasPaid->isChecked());
    line["Loc"] = ui->txtLoc->text();
    line.Update();
    line.Close();
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
    if (!AllItemsCompleted(jobID()) || !ShowMsg(u"Send SMS Now?"_s, 2))
        return;
    SendSmsToClient(*swSMS1, ui->txtClient->text(), 0, MakeJobFinishedSms(jobID(), 0));
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
