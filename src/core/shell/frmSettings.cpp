#include "core/shell/frmSettings.h"

#include "core/shell/CopyList.h"
#include "core/store/DE.h"
#include "core/store/PaymentLink.h"
#include "core/store/SerialNumber.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "messaging/modSMS.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Numbers.h"
#include "ui/Appearance.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmSelectFile.h"
#include "ui/modLang.h"
#include "ui_frmSettings.h"

#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestSMSTitle = 10;
constexpr double longestDelivery = 36'500; ///< a hundred years of days

QString checkedText(const QCheckBox& box) { return QString::number(int(box.isChecked())); }

QString sizeText(int size) { return u"%1 %"_s.arg(size); }

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
    ui->cmbByPhone->AddItems({settings::ByPhone.standard, byPhoneAsChat});
    for (QLineEdit* box : {ui->txtDelMargin, ui->txtStartNum}) {
        onKeyPress(box, [box](int& key) { key = NumbersOnly(*box, key); });
        onGotFocus(box, [box] { box->selectAll(); });
    }
    onKeyPress(ui->txtSMSTitle, [this](int& key) { limitSmsTitle(key); });

    on(ui->Command3, &QPushButton::clicked, [this] { selectPicture(*ui->txtWall); });
    on(ui->Command2, &QPushButton::clicked, [this] { selectPicture(*ui->txtLogo); });
    ui->cmbLanguage->AddItems({u"English"_s, u"Hindi"_s});
    for (const int size : textSizes)
        ui->cmbTextSize->AddItems({sizeText(size)});
    ui->cmbLook->AddItems({settings::ScreenLook.standard, darkLook});
    on(ui->cmbLanguage, &forms::ComboBox::currentTextChanged, &frmSettings::showWhetherHindi);
    on(ui->Command8, &QPushButton::clicked, &frmSettings::loadDefaultDrafts);
    on(ui->Command1, &QPushButton::clicked, &frmSettings::save);
    on(ui->Command6, &QPushButton::clicked, &frmSettings::selectBackupFolder);
    on(ui->Command7, &QPushButton::clicked, &frmSettings::openBackupFolder);
    on(ui->Command4, &QPushButton::clicked, &frmSettings::backUp);
    on(ui->Command5, &QPushButton::clicked, &frmSettings::restore);
    m_copies = new CopyList(ui->lvCopies);
    onOpened(ui->lvCopies, &frmSettings::look);
    on(ui->cmdLook, &QPushButton::clicked, &frmSettings::look);
    on(ui->cmdRestoreCopy, &QPushButton::clicked, &frmSettings::restoreCopy);
    on(ui->cmdCheck, &QPushButton::clicked, &frmSettings::checkShop);
    on(ui->cmdNewBooks, &QPushButton::clicked, &frmSettings::makeNewBooks);
}

frmSettings::~frmSettings() = default;

void frmSettings::Form_Load()
{
    SetFormLanguage(*this);
    const auto check = [](QCheckBox& box, const Setting& setting) { box.setChecked(IsOn(setting)); };
    ui->cmbSendAutoSMS->setText(GetSetting(settings::SmsWhenFinished));
    ui->cmbSMSJobID->setText(GetSetting(settings::SmsAfterRegistration));
    ui->cmbSMSPort->setText(GetSetting(settings::ModemPort));
    ui->cmbByPhone->setText(GetSetting(settings::ByPhone));
    ui->txtLogo->setText(GetSetting(settings::Logo));
    ui->txtTagLine->setText(GetSetting(settings::TagLine));
    ui->txtSMSTitle->setText(GetSetting(settings::SmsTitle));
    ui->txtWall->setText(GetSetting(settings::Wallpaper));
    ui->txtDelMargin->setText(GetSetting(settings::DeliveryMargin));
    check(*ui->chPrintAfterSave, settings::PrintAfterSave);
    check(*ui->chPreview, settings::PrintPreview);
    ui->txtPaymentAddress->setText(GetSetting(settings::PaymentAddress));
    check(*ui->chTwoReceipts, settings::TwoReceipts);
    ui->cmbLanguage->setText(GetSetting(settings::Language));
    ui->chHindiSlip->setChecked(IsOn(settings::HindiSlip));
    showWhetherHindi();
    ui->cmbTextSize->setText(sizeText(GetTextSize()));
    ui->cmbLook->setText(IsDarkLook() ? darkLook : settings::ScreenLook.standard);
    ui->txtBackuppath->setText(GetSetting(settings::BackupFolder));
    check(*ui->opChangeDateAuto, settings::SystemDateAtStart);
    ui->txtStartNum->setText(GetSetting(settings::FirstJobNumber));
    showDraft(*ui->txtSMS1, GetSetting(settings::SmsJobRegistered, DefaultJobRegisteredDraft()));
    showDraft(*ui->txtSMS2, GetSetting(settings::SmsJobFinished, DefaultJobFinishedDraft()));
    showDraft(*ui->txtSMS3, GetSetting(settings::SmsDueBalance, DefaultDueBalanceDraft()));
    showLastBackup();
    m_copies->fill();
    // A backup is of the living shop.
    ui->SSTab1->setTabEnabled(ui->SSTab1->indexOf(ui->pageBackup), session.LookedAt.isEmpty());
}

void frmSettings::ShowBackup()
{
    load();
    goTo(ui->txtBackuppath->text().isEmpty() ? *ui->Command6 : *ui->Command4);
    showModal();
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
void frmSettings::limitSmsTitle(int& key)
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

void frmSettings::loadDefaultDrafts()
{
    if (!forms::askPlain(this, u"Are you sure to load default SMS drafts?"_s))
        return;
    showDraft(*ui->txtSMS1, DefaultJobRegisteredDraft());
    showDraft(*ui->txtSMS2, DefaultJobFinishedDraft());
    showDraft(*ui->txtSMS3, DefaultDueBalanceDraft());
}

void frmSettings::save()
{
    if (values::Val(ui->txtStartNum->text()) < 1)
        ui->txtStartNum->setText(u"1"_s);
    for (forms::ComboBox* combo : {ui->cmbSendAutoSMS, ui->cmbSMSJobID})
        if (combo->text().isEmpty())
            combo->setText(u"No"_s);
    if (!numbersFit() || !paymentArrives() || !draftsArrive())
        return;
    DE.connection().writeBatch([this] { writeSettings(); });
    ApplyAppearance();
    ShowMsg(u"Settings Updated."_s);
}

/// A number with which no card could be opened is refused before anything is written.
bool frmSettings::numbersFit()
{
    const std::tuple<QLineEdit*, QString, double, double> fields[] = {
        {ui->txtStartNum, ui->lblStartNum->text(), 1, HighestSerialNumber},
        {ui->txtDelMargin, ui->lblDelMargin->text(), 0, longestDelivery}};
    for (const auto& [box, name, lowest, highest] : fields) {
        const double number = values::Val(box->text());
        if (number >= lowest && number <= highest)
            continue;
        forms::plainMessage(this, u"\"%1\" must be from %2 to %3.\n\nNothing has been saved."_s.arg(
                                      name, values::CStr(lowest), values::CStr(highest)));
        goTo(*box);
        return false;
    }
    return true;
}

/// An address with which no phone could pay is refused before anything is written.
bool frmSettings::paymentArrives()
{
    const QString address = ui->txtPaymentAddress->text().trimmed();
    if (address.isEmpty() || isPaymentAddress(address))
        return true;
    forms::plainMessage(this,
                        u"The payment address must be a link, such as upi://pay?pa=name@bank or "
                        "https://pay.example/shop, of up to 1000 letters.\n\nNothing has been saved."_s);
    goTo(*ui->txtPaymentAddress);
    return false;
}

/// Shows what would arrive of a draft with letters that the modem can't carry; the shop may keep it so.
bool frmSettings::draftsArrive()
{
    const std::pair<QWidget*, QString> texts[] = {{ui->txtSMSTitle, ui->txtSMSTitle->text()},
                                                  {ui->txtSMS1, draft(*ui->txtSMS1)},
                                                  {ui->txtSMS2, draft(*ui->txtSMS2)},
                                                  {ui->txtSMS3, draft(*ui->txtSMS3)}};
    for (const auto& [box, text] : texts) {
        const QString sent = TextAsSent(text);
        if (sent == text)
            continue;
        if (!forms::askPlain(this,
                             u"The modem can't send all letters of an SMS. Clients would read:\n\n%1\n\n"
                             "Save it all the same?"_s.arg(QString(sent).replace(u'\r', u'\n')))) {
            goTo(*box);
            return false;
        }
    }
    return true;
}

void frmSettings::goTo(QWidget& field)
{
    QWidget* page = &field;
    while (page && ui->SSTab1->indexOf(page) < 0)
        page = page->parentWidget();
    ui->SSTab1->setCurrentWidget(page);
    field.setFocus();
}

/// The slip is in Hindi only where the messages are.
void frmSettings::showWhetherHindi() { ui->chHindiSlip->setEnabled(ui->cmbLanguage->text() == "Hindi"_L1); }

void frmSettings::writeSettings()
{
    SetSetting(settings::ModemPort, ui->cmbSMSPort->text());
    if (ui->cmbByPhone->text() != GetSetting(settings::ByPhone))
        SetSetting(settings::ByPhone, ui->cmbByPhone->text());
    if (const QString address = ui->txtPaymentAddress->text().trimmed();
        address != GetSetting(settings::PaymentAddress))
        SetSetting(settings::PaymentAddress, address);
    if (ui->chTwoReceipts->isChecked() != IsOn(settings::TwoReceipts))
        SetSetting(settings::TwoReceipts, checkedText(*ui->chTwoReceipts));
    if (const int size = int(values::Val(ui->cmbTextSize->text())); size != GetTextSize())
        SetSetting(settings::TextSize, QString::number(size));
    if ((ui->cmbLook->text() == darkLook) != IsDarkLook())
        SetSetting(settings::ScreenLook, ui->cmbLook->text());
    SetSetting(settings::SmsWhenFinished, ui->cmbSendAutoSMS->text());
    SetSetting(settings::SmsAfterRegistration, ui->cmbSMSJobID->text());
    SetSetting(settings::Logo, ui->txtLogo->text());
    SetSetting(settings::TagLine, ui->txtTagLine->text());
    SetSetting(settings::SmsTitle, ui->txtSMSTitle->text());
    SetSetting(settings::Wallpaper, ui->txtWall->text());
    SetSetting(settings::DeliveryMargin, numberText(*ui->txtDelMargin));
    SetSetting(settings::PrintAfterSave, checkedText(*ui->chPrintAfterSave));
    SetSetting(settings::PrintPreview, checkedText(*ui->chPreview));
    SetSetting(settings::SystemDateAtStart, checkedText(*ui->opChangeDateAuto));
    if (const QString language = ui->cmbLanguage->text(); !language.isEmpty())
        SetSetting(settings::Language, language);
    SetSetting(settings::HindiSlip, ui->chHindiSlip->isChecked() ? u"Yes"_s : u"No"_s);
    SetSetting(settings::FirstJobNumber, numberText(*ui->txtStartNum));
    SetSetting(settings::SmsJobRegistered, draft(*ui->txtSMS1));
    SetSetting(settings::SmsJobFinished, draft(*ui->txtSMS2));
    SetSetting(settings::SmsDueBalance, draft(*ui->txtSMS3));
}
