#pragma once

#include "platform/forms/FocusWatch.h"

#include <QDate>
#include <QLineEdit>
#include <QPointer>

namespace forms {

class Calendar;

/// A date box with a drop-down calendar (F4, Alt+Down or its arrow); English month names whatever the locale,
/// "dd-MMM-yyyy" by default. Its line is free text: a date is typed in any usual form (values::readTypedDate)
/// and judged when the field is left, or at Enter and the function keys; what is no date leaves what stood,
/// with a beep. A click chooses a part of the date, Left and Right the part beside it, Up and Down step it.
class DatePicker : public QLineEdit
{
    Q_OBJECT
public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// A pattern such as "dd-MMM-yyyy".
    void setCustomFormat(const QString& pattern);
    /// The date; one that stands typed counts already.
    QDate value() const;
    void setValue(const QDate& value);
    /// For dates of birth: see values::readTypedDate.
    void setLatest(const QDate& latest) { m_latest = latest; }

    /// Takes what is typed for the date, or puts back what stood.
    void settle();
    /// Puts back what stood.
    void revert();
    void openCalendar();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// The date changed, by whatever means.
    void changed();
    void calendarClosed();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Part
    {
        QChar letter; // of the pattern: d, M or y
        int start = 0;
        int length = 0;
    };

    QRect arrow() const;
    QString shown() const;
    bool isTyping() const { return text() != shown(); }
    QList<Part> parts() const;
    int partAtCaret() const;
    void selectPart(int part);
    void step(int steps);
    void typeOverPart(const QKeyEvent& event);
    void calendarHidden();

    QString m_pattern;
    QDate m_value;
    QDate m_latest;
    FocusWatch m_focus;
    int m_typedPart = -1; // the part that is being typed over
    bool m_choosePart = false;
    QPointer<Calendar> m_calendar;
};

} // namespace forms
