#pragma once

#include "platform/forms/Screen.h"

#include <memory>

namespace Ui {
class frmMsg;
}

/// The message dialog: the shop's notices and its yes/no questions. It sizes itself to the text, and shows it
/// in Hindi when the session's language is "Hindi" and Lang.mdb has the sentence. For the screen below it
/// counts as a message box: that screen isn't activated when it closes.
class frmMsg : public forms::Screen
{
    Q_OBJECT
public:
    explicit frmMsg(QWidget* parent = nullptr);
    ~frmMsg() override;

    /// Shows the text modally; `result` becomes 1 for OK or Yes, 0 for No or Esc. `kind` 1: OK; 2: Yes and
    /// No. Throws DatabaseError when the language is "Hindi" and Lang.mdb cannot be read.
    void ShowMessage(const QString& text, qint32 kind, qint16& result);

    /// A question gets a third button, "By Phone", whose result is 2. To be called before ShowMessage.
    void offerPhone() { m_phoneOffered = true; }

protected:
    void Form_Load() override;
    void Form_KeyPress(int& key) override;
    void showEvent(QShowEvent* event) override;

private:
    /// Puts the Hindi of a text on the dialog; a sentence that Lang.mdb lacks shows in English.
    void LoadHindiText(const QString& text, qint32 kind);
    /// Sizes the dialog to the text, and puts the buttons under it.
    void layOut();
    void answer(qint16 result);

    std::unique_ptr<Ui::frmMsg> ui;
    qint16 MsgResult = 0;
    bool m_phoneOffered = false;
};

/// Captions in the font "Kruti Dev 010", whose letters read as Hindi, and in the plain font.
void SetHindiFont(QWidget& control, const QString& caption);
void SetEngFont(QWidget& control, const QString& caption);
