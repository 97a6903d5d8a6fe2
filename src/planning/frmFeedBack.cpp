#include "planning/frmFeedBack.h"

#include "core/store/Session.h"
#include "planning/Feedback.h"
#include "planning/Stars.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmFeedBack.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int heightOfStars = 28;

} // namespace

frmFeedBack::frmFeedBack(qint32 lineId, qint16 readOnly)
    : ui(std::make_unique<Ui::frmFeedBack>())
    , m_lineId(lineId)
{
    ui->setupUi(this);
    const QList<QLabel*> pictures = starPictures();
    for (int score = 0; score < pictures.size(); ++score) {
        ui->cmbScore->AddItem(QString::number(score));
        pictures[score]->setPixmap(stars(score, heightOfStars));
        pictures[score]->hide();
    }
    ui->txtFeedback->setNextOnSecondEnter(ui->Command1);
    ui->Command1->setEnabled(readOnly != 1);

    on(ui->cmbScore, &forms::ComboBox::changed, &frmFeedBack::ChangeStars);
    onGotFocus(ui->cmbScore, [this] { ChangeStars(); });
    onKeyPress(ui->cmbScore, [](int& key) { key = EnterAsTab(key); });
    on(ui->Command1, &QPushButton::clicked, &frmFeedBack::save);
}

frmFeedBack::~frmFeedBack() = default;

QList<QLabel*> frmFeedBack::starPictures() const
{
    return {ui->img0, ui->img1, ui->img2, ui->img3, ui->img4, ui->img5};
}

void frmFeedBack::Form_Load()
{
    SetFormLanguage(*this);
    const Feedback feedback = Feedback::of(m_lineId);
    if (feedback.score)
        ui->cmbScore->setText(*feedback.score);
    ComboSyncIndex(*ui->cmbScore); // from there the arrow keys walk on
    if (feedback.text)
        ui->txtFeedback->setText(*feedback.text);
}

void frmFeedBack::ChangeStars()
{
    const double score = values::Val(ui->cmbScore->text());
    const QList<QLabel*> pictures = starPictures();
    for (int i = 0; i < pictures.size(); ++i)
        if (score == i)
            ui->imgStars->setPixmap(pictures[i]->pixmap());
}

void frmFeedBack::save()
{
    const qint16 score = values::CInt(values::Val(ui->cmbScore->text()), u"Score"_s);
    writeFeedback(m_lineId, score, ui->txtFeedback->Text());
    m_saved = score;
    session.RefreshLists = true;
    ShowMsg(u"Feedback saved!"_s);
}

void GiveFeedback(qint32 lineId, qint16 readOnly, QVariant& result)
{
    frmFeedBack screen(lineId, readOnly);
    screen.showModal();
    if (screen.saved().isValid())
        result = screen.saved();
}
