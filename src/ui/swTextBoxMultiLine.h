#pragma once

#include "platform/forms/FocusWatch.h"

#include <QPlainTextEdit>
#include <QPointer>

/// The field for notes of several lines. Enter is a line break, the Tab key leaves the field, and a second
/// Enter straight after the first too, where it is told to which. Its text has a carriage return and a line
/// feed between lines, as the shop's tables keep it.
class swTextBoxMultiLine : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString Text READ Text WRITE setText)
    Q_PROPERTY(int BoxType READ BoxType WRITE setBoxType)
public:
    explicit swTextBoxMultiLine(QWidget* parent = nullptr);

    QString Text() const;
    /// Takes any kind of line break. A money field (BoxType 1) formats the text; empty text stays empty.
    void setText(const QString& text);
    int BoxType() const { return m_boxType; }
    void setBoxType(int boxType);
    /// Whether the blank line that the first of two Enters began is part of the text.
    enum class BlankLine { Goes, Stays };
    /// A second Enter straight after the first goes on to `next` instead of adding another blank line.
    void setNextOnSecondEnter(QWidget* next, BlankLine blankLine = BlankLine::Goes);

Q_SIGNALS:
    void Change();
    void GotFocus();
    void LostFocus();
    /// A character key; the receiver can change it, or set 0 to swallow it.
    void KeyPress(int& key);
    /// A key-down by number, with 1 for Shift, 2 for Ctrl and 4 for Alt; the receiver can set 0 to swallow
    /// it.
    void KeyDown(int& key, int shift);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isSecondEnter(const QKeyEvent& event);
    void leave();

    QPointer<QWidget> m_next;
    BlankLine m_blankLine = BlankLine::Goes;
    bool m_afterEnter = false; ///< the last key was an Enter
    forms::FocusWatch m_focus;
    int m_boxType = 0;
};
