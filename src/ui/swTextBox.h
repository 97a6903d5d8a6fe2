#pragma once

#include "platform/forms/FocusWatch.h"

#include <QLineEdit>

/// The one-line field of the shop's screens. A plain field (BoxType 0) begins each word with a capital as it
/// is typed; a money field (BoxType 1) takes digits and one point only and shows "0.00". The whole text is
/// selected when the field gets the focus, so that typing replaces it; the style sheet gives the focused
/// field its inverted colours.
class swTextBox : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText DESIGNABLE false)
    Q_PROPERTY(int BoxType READ BoxType WRITE setBoxType)
    Q_PROPERTY(bool AutoTab READ AutoTab WRITE setAutoTab)
public:
    explicit swTextBox(QWidget* parent = nullptr);

    QString Text() const { return text(); }
    /// A money field formats the text; empty text stays empty.
    void setText(const QString& text);
    int BoxType() const { return m_boxType; }
    void setBoxType(int boxType);
    /// Whether Enter moves to the next field; else it is an ordinary key press.
    bool AutoTab() const { return m_autoTab; }
    void setAutoTab(bool autoTab) { m_autoTab = autoTab; }

Q_SIGNALS:
    void Change();
    void GotFocus();
    void LostFocus();
    /// A character key, before the field's own rules; the receiver can change it, or set 0 to swallow it.
    void KeyPress(int& key);
    /// A key-down by number, with 1 for Shift, 2 for Ctrl and 4 for Alt; the receiver can set 0 to swallow
    /// it.
    void KeyDown(int& key, int shift);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int filterKey(int key);

    forms::FocusWatch m_focus;
    int m_boxType = 0;
    bool m_autoTab = true;
    int m_lastKey = 0;
    bool m_selectOnRelease = false;
};
