#include "core/shell/frmSettings.h"

#include "core/store/DE.h"
#include "core/store/Settings.h"
#include "messaging/modSMS.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmSelectFile.h"
#include "ui/modLang.h"
#include "ui_frmSettings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestSMSTitle = 10;

QString checkedText(const QCheckBox& box) { return QString::number(int(box.isChecked())); }

QString numberText(const QLineEdit& box) { return values::CStr(values::Val(box.text())); }

} // namespace

frmSettings::frmSettings()
    : ui(std::make_unique<Ui::frmSettings>())
{
    ui->setupUi(this);
    for (forms::ComboBox* combo : {ui->cmbSMSJobID, ui->cmbSendAutoSMS}) {
        combo->AddItems({u"Yes"_s, u"No"_s});
        onKeyPress(combo, [combo](int& key) { key = AutoSearchCombo(*combo, key); });
    }
    for (QLineEdit* box : {ui->txtDelMargin, ui->txtStartNum})
        onKeyPress(box, [box](int& key) { key = NumbersOnly(box->text(), key); });
    onGotFocus(ui->txtDelMargin, [this] { ui->txtDelMargin->selectAll(); });
    onKeyPress(ui->txtSMSTitle, [this](int& key) { txtSMSTitle_KeyPress(key); });

    on(ui->Command3, &QPushButton::clicked, [this] { selectPicture(*ui->txtWall); });
    on(ui->Command2, &QPushButton::clicked, [this] { selectPicture(*ui->txtLogo); });
    on(ui->Command8, &QPushButton::clicked, &frmSettings::Command8_Click);
    on(ui->Command1, &QPushButton::clicked, &frmSettings::Command1_Click);
}

frmSettings::~frmSettings() = default;

void frmSettings::Form_Load()
{
    SetFormLanguage(*this);
    const auto check = [](QCheckBox& box, qint32 setting, const char* standard) {
        box.setChecked(values::Val(GetSetting(setting, QLatin1String(standard))) == 1);
    };
    ui->cmbSendAutoSMS->setText(GetSetting(2, u"No"_s));
    ui->cmbSMSJobID->setText(GetSetting(3, u"No"_s));
    ui->cmbSMSPort->setText(GetSetting(4, QString()));
    ui->txtLogo->setText(GetSetting(5, QString()));
    ui->txtTagLine->setText(GetSetting(6, QString()));
    ui->txtSMSTitle->setText(GetSetting(10, QString()));
    ui->txtWall->setText(GetSetting(11, QString()));
    ui->txtDelMargin->setText(GetSetting(13, u"0"_s));
    check(*ui->chPrintAfterSave, 14, "0");
    check(*ui->chPreview, 15, "1");
    ui->txtBackuppath->setText(GetSetting(19, QString()));
    check(*ui->opChangeDateAuto, 22, "0");
    ui->txtStartNum->setText(GetSetting(23, u"1"_s));
    showDraft(*ui->txtSMS1, GetSetting(24, DefaultJobRegisteredDraft()));
    showDraft(*ui->txtSMS2, GetSetting(25, DefaultJobFinishedDraft()));
    showDraft(*ui->txtSMS3, GetSetting(26, DefaultDueBalanceDraft()));
}

void frmSettings::showDraft(swTextBoxMultiLine& box, const QString& text)
{
    box.setText(text);
    m_shownDrafts[&box] = text;
}

/// As it was shown, to the byte, unless it has been edited; the lines of an edited one end with a carriage
/// return alone.
QString frmSettings::draft(const swTextBoxMultiLine& box) const
{
    return box.document()->isModified() ? box.toPlainText().replace(u'\n', u'\r') : m_shownDrafts[&box];
}

// Keys

/// Enter moves on; in a draft it breaks the line.
void frmSettings::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (!qobject_cast<swTextBoxMultiLine*>(focusWidget()))
        key = EnterAsTab(key);
}

/// Ctrl+Tab turns to the next tab from wherever the focus is, Ctrl+Shift+Tab back.
void frmSettings::Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers)
{
    if (key != forms::key::Tab || !modifiers.testFlag(Qt::ControlModifier))
        return;
    key = 0;
    QTabWidget& tabs = *ui->SSTab1;
    const int step = modifiers.testFlag(Qt::ShiftModifier) ? tabs.count() - 1 : 1;
    tabs.setCurrentIndex((tabs.currentIndex() + step) % tabs.count());
}

/// A longer title that is already stored stays as it is.
void frmSettings::txtSMSTitle_KeyPress(int& key)
{
    if (key != forms::key::Backspace && ui->txtSMSTitle->text().size() == LongestSMSTitle)
        key = 0;
}

// Commands

void frmSettings::selectPicture(QLineEdit& box)
{
    const QString path = frmSelectFile().SelFile();
    if (path != "Cancel"_L1)
        box.setText(path);
}

void frmSettings::Command8_Click()
{
    if (!forms::askPlain(this, u"Are you sure to load default SMS drafts?"_s))
        return;
    showDraft(*ui->txtSMS1, DefaultJobRegisteredDraft());
    showDraft(*ui->txtSMS2, DefaultJobFinishedDraft());
    showDraft(*ui->txtSMS3, DefaultDueBalanceDraft());
}

void frmSettings::Command1_Click()
{
    if (values::Val(ui->txtStartNum->text()) < 1)
        ui->txtStartNum->setText(u"1"_s);
    for (forms::ComboBox* combo : {ui->cmbSendAutoSMS, ui->cmbSMSJobID})
        if (combo->text().isEmpty())
            combo->setText(u"No"_s);
    DE.connection().writeBatch([this] { writeSettings(); });
    ShowMsg(u"Settings Updated."_s);
}

void frmSettings::writeSettings()
{
    SetSetting(4, ui->cmbSMSPort->text());
    SetSetting(2, ui->cmbSendAutoSMS->text());
    SetSetting(3, ui->cmbSMSJobID->text());
    SetSetting(5, ui->txtLogo->text());
    SetSetting(6, ui->txtTagLine->text());
    SetSetting(10, ui->txtSMSTitle->text());
    SetSetting(11, ui->txtWall->text());
    SetSetting(13, numberText(*ui->txtDelMargin));
    SetSetting(14, checkedText(*ui->chPrintAfterSave));
    SetSetting(15, checkedText(*ui->chPreview));
    SetSetting(22, checkedText(*ui->opChangeDateAuto));
    SetSetting(23, numberText(*ui->txtStartNum));
    SetSetting(24, draft(*ui->txtSMS1));
    SetSetting(25, draft(*ui->txtSMS2));
    SetSetting(26, draft(*ui->txtSMS3));
}
