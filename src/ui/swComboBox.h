#pragma once

#include "platform/forms/ComboBox.h"
#include "platform/forms/FocusWatch.h"

/// The combo of the shop's screens; with BoxType 1 its box takes money only.
class swComboBox : public forms::ComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText DESIGNABLE false)
    Q_PROPERTY(int BoxType READ BoxType WRITE setBoxType)
public:
    explicit swComboBox(QWidget* parent = nullptr);

    QString Text() const { return text(); }
    /// A money box formats the text; empty text stays empty.
    void setText(const QString& text);
    int BoxType() const { return m_boxType; }
    void setBoxType(int boxType);

Q_SIGNALS:
    void Change();
    void GotFocus();
    void LostFocus();
    /// A key-down by number, with 1 for Shift, 2 for Ctrl and 4 for Alt; the receiver can set 0 to swallow
    /// it.
    void KeyDown(int& key, int shift);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    forms::FocusWatch m_focus;
    int m_boxType = 0;
};
