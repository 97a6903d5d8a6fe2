#pragma once

#include "platform/forms/Screen.h"
#include "platform/report/QrCode.h"

#include <memory>

namespace Ui {
class frmByPhone;
}

/// Shows a message to a client as a QR code: the shop's phone reads it and opens the message, ready to be
/// sent. Nothing is written.
class frmByPhone : public forms::Screen
{
    Q_OBJECT
public:
    /// Throws OperatorError for a text that is too long for a code.
    frmByPhone(const QString& number, const QString& text, QWidget* parent = nullptr);
    ~frmByPhone() override;

protected:
    void Form_Load() override;

private:
    const std::unique_ptr<Ui::frmByPhone> ui;
    const report::QrCode m_code;
};

/// Shows it, or says that the client has no number, or too long a text. Throws OperatorError in a shop that
/// is only looked at.
void ShowByPhone(QWidget* screen, const QString& number, const QString& text);
