#include "ui/frmMsg.h"

#include "core/store/HindiMessages.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "platform/ado/Recordset.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/Metrics.h"
#include "ui_frmMsg.h"

#include <QAccessible>
#include <QScreen>

using namespace Qt::StringLiterals;

using forms::twips;

namespace {

constexpr qint32 withOK = 1;
constexpr qint32 withYesNo = 2;
constexpr qint16 byPhone = 2;

const QString hindi = u"Hindi"_s;
const QString english = u"English"_s;
const QString hindiFont = u"Kruti Dev 010"_s;

void setCaption(QWidget& control, const QString& family, double size, const QString& caption)
{
    QFont font = control.font();
    font.setFamily(family);
    font.setPointSizeF(forms::points(size));
    control.setFont(font);
    if (auto* label = qobject_cast<QLabel*>(&control))
        label->setText(caption);
    else if (auto* button = qobject_cast<QAbstractButton*>(&control))
        button->setText(caption);
}

} // namespace

void SetHindiFont(QWidget& control, const QString& caption) { setCaption(control, hindiFont, 12, caption); }

void SetEngFont(QWidget& control, const QString& caption)
{
    setCaption(control, u"MS Sans Serif"_s, 8, caption);
}

frmMsg::frmMsg(QWidget* parent)
    : Screen(parent)
    , ui(std::make_unique<Ui::frmMsg>())
{
    ui->setupUi(this);
    setNotice(true);
    // Hindi stands there in letters of its font, which no screen reader can say.
    ui->cmdOK->setAccessibleName(u"Ok"_s);
    ui->cmdYes->setAccessibleName(u"Yes"_s);
    ui->cmdNo->setAccessibleName(u"No"_s);
    on(ui->cmdOK, &QPushButton::clicked, [this] { answer(1); });
    on(ui->cmdYes, &QPushButton::clicked, [this] { answer(1); });
    on(ui->cmdNo, &QPushButton::clicked, [this] { answer(0); });
    on(ui->cmdByPhone, &QPushButton::clicked, [this] { answer(byPhone); });
}

frmMsg::~frmMsg() = default;

void frmMsg::Form_Load()
{
    if (GetSetting(settings::Language) != hindi)
        return;
    // A sheet of its own, for the screens' sheet gives headings another size and weight.
    ui->lblTitle->setStyleSheet(u"font: bold %1pt '%2'"_s.arg(forms::points(14)).arg(hindiFont));
    ui->lblTitle->setText(u"lqpuk"_s);
}

void frmMsg::ShowMessage(const QString& text, qint32 kind, qint16& result)
{
    MsgResult = 0;
    setAccessibleName(text);
    load();
    if (session.Language == hindi) {
        LoadHindiText(text, kind);
    } else if (session.Language == english) {
        SetEngFont(*ui->lblMsg, text);
        SetEngFont(*ui->cmdOK, u"Ok"_s);
    }
    layOut();
    if (kind == withOK || kind == withYesNo) {
        ui->cmdOK->setVisible(kind == withOK);
        ui->cmdYes->setVisible(kind == withYesNo);
        ui->cmdNo->setVisible(kind == withYesNo);
        ui->cmdByPhone->setVisible(kind == withYesNo && m_phoneOffered);
        (kind == withOK ? ui->cmdOK : ui->cmdYes)->setFocus();
    }
    showModal();
    result = MsgResult;
}

/// A screen reader says a message as soon as it stands there.
void frmMsg::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

/// A message without Hindi stands in English; so does each when the texts can't be read, which the operator
/// reads once.
void frmMsg::LoadHindiText(const QString& text, qint32)
{
    QString hindiText;
    try {
        hindiText = hindiMessage(text);
    } catch (const OperatorError& error) {
        static QString toldLast;
        if (std::exchange(toldLast, session.languageDatabasePath()) != session.languageDatabasePath())
            forms::criticalMessage(nullptr, error.text());
    }
    if (hindiText.isEmpty()) {
        SetEngFont(*ui->lblMsg, text);
        SetEngFont(*ui->cmdOK, u"Ok"_s);
    } else {
        SetHindiFont(*ui->lblMsg, hindiText);
        SetHindiFont(*ui->cmdOK, u"Bhd gS"_s);
        SetHindiFont(*ui->cmdYes, u"gk"_s);
        SetHindiFont(*ui->cmdNo, u"ugh"_s);
    }
}

void frmMsg::layOut()
{
    // The label is as large as its text, but for lines that would leave the screen.
    QLabel& label = *ui->lblMsg;
    label.ensurePolished();
    const int widest = screen()->availableSize().width() * 7 / 10;
    const QRect natural = label.fontMetrics().boundingRect(
        QRect(0, 0, widest, QWIDGETSIZE_MAX), Qt::TextWordWrap | Qt::TextExpandTabs, label.text());
    label.resize(natural.width() + 2, natural.height() + 2);

    // The heading has its place at the common text size; a larger one moves what stands below.
    QLabel& title = *ui->lblTitle;
    title.ensurePolished();
    const int lower = forms::textScale > 1 ? qMax(0, title.sizeHint().height() - title.height()) : 0;
    title.resize(title.sizeHint().expandedTo(title.size()).width(), title.height() + lower);
    label.move(label.x(), label.y() + lower);

    QSize button(twips(1350), 0);
    const auto buttons = {ui->cmdOK, ui->cmdYes, ui->cmdNo, ui->cmdByPhone};
    for (QPushButton* each : buttons)
        button = button.expandedTo(each->sizeHint());
    for (QPushButton* each : buttons)
        each->resize(button);

    constexpr int titleBar = twips(420); // the form's height counts it
    const int formHeight = button.height() + label.height() + lower + twips(1500) - titleBar;
    constexpr int gap = twips(50);
    const int threeButtons = m_phoneOffered ? 3 * button.width() + 2 * gap + 2 * twips(200) : 0;
    const int formWidth = std::max({label.width() + twips(500), twips(4650), threeButtons});
    const int top = label.height() + lower + twips(900);
    const int last = formWidth - (button.width() + twips(200));
    setFixedSize(formWidth, formHeight);
    const int margin = ui->Shape1->x();
    ui->Shape1->resize(formWidth - 2 * margin, top - 2 * margin);
    ui->cmdOK->move(last, top);
    ui->cmdNo->move(last, top);
    ui->cmdYes->move(last - button.width() - gap, top);
    ui->cmdByPhone->move(last - 2 * (button.width() + gap), top);
}

/// Y and N answer a question, and P where the phone is offered.
void frmMsg::Form_KeyPress(int& key)
{
    const char32_t letter = QChar::toLower(char32_t(key));
    if (ui->cmdYes->isVisible() && (letter == U'y' || letter == U'n')) {
        key = 0;
        answer(letter == U'y' ? 1 : 0);
    } else if (ui->cmdByPhone->isVisible() && letter == U'p') {
        key = 0;
        answer(byPhone);
    } else {
        Screen::Form_KeyPress(key);
    }
}

void frmMsg::answer(qint16 result)
{
    MsgResult = result;
    unload();
}
