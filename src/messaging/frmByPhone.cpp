#include "messaging/frmByPhone.h"

#include "core/store/LivingShop.h"
#include "messaging/PhoneMessage.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Errors.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmByPhone.h"

#include <QScreen>

using namespace Qt::StringLiterals;

frmByPhone::frmByPhone(const QString& number, const QString& text, QWidget* parent)
    : Screen(parent)
    , ui(std::make_unique<Ui::frmByPhone>())
    , m_code(phoneMessage(number, text))
{
    ui->setupUi(this);
    ui->lblNumber->setText(number);
    ui->txtMessage->setPlainText(QString(text).replace("\r\n"_L1, "\n"_L1).replace(u'\r', u'\n').trimmed());
    on(ui->cmdClose, &QPushButton::clicked, &frmByPhone::unload);
}

frmByPhone::~frmByPhone() = default;

/// The modules are whole pixels of the display, as large as find room.
void frmByPhone::Form_Load()
{
    SetFormLanguage(*this);
    constexpr int largest = 460;
    constexpr int around = 220; // heading, help line and the window's own title
    const double pixels = devicePixelRatio();
    const double room = std::min(largest, screen()->availableSize().height() - around) * pixels;
    const int modules = m_code.size() + 2 * report::QrCode::quiet;
    QPixmap code = QPixmap::fromImage(m_code.image(std::max(1, int(room) / modules)));
    code.setDevicePixelRatio(pixels);
    ui->lblCode->setPixmap(code);
    ui->lblCode->setFixedSize(code.deviceIndependentSize().toSize());
    ui->cmdClose->setFocus();
}

void ShowByPhone(QWidget* screen, const QString& number, const QString& text)
{
    requireLivingShop();
    if (number.isEmpty()) {
        ShowMsg(u"Mobile Number Not Found!\r\nSMS Sending has been Failed."_s);
        return;
    }
    try {
        frmByPhone(number, text, screen).showModal();
    } catch (const OperatorError& error) {
        forms::plainMessage(screen, error.text());
    }
}
