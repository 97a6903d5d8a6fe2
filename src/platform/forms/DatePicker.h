#pragma once

#include "platform/forms/FocusWatch.h"
#include "platform/values/TypedDate.h"

#include <QDate>
#include <QLineEdit>
#include <QPointer>
#include <functional>

namespace forms {

class Calendar;

/// A date box with a drop-down calendar (F4, Alt+Down or its arrow); English month names whatever the locale,
/// "dd-MMM-yyyy" by default. Its line is free text: a date is typed in any usual form (values::readTypedDate)
/// and read when the field is left, or at Enter and the function keys; what is no date leaves what stood,
/// with a beep. A click chooses a part of the date, Left and Right the part beside it, also while one is
/// being typed; Up and Down step the part at the caret.
class DatePicker : public QLineEdit
{
    Q_OBJECT
public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// A pattern such as "dd-MMM-yyyy".
    void setCustomFormat(const QString& pattern);
    /// The date; one that stands typed counts already. Invalid only when the box is empty.
    QDate value() const;
    void setValue(const QDate& value);
    /// Which way the box looks for what is left out of a typed date, and from which day: the one that stands,
    /// another, or that of another box. A date before the day from which a box looks ahead stands, with the
    /// property `early` for the style sheet.
    void look(values::Looks looks) { lookFrom(looks, {}); }
    void look(values::Looks looks, const QDate& from);
    void look(values::Looks looks, const DatePicker* from);
    /// Whether it looks ahead and its date lies before the day from which it looks.
    bool isEarly() const;
    /// Whether the box can be empty: Del empties it.
    void setMayBeEmpty(bool mayBe) { m_mayBeEmpty = mayBe; }

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
        QString run; // of the pattern's letters: "dd", "MMM", "yyyy"
        qsizetype start = 0;
        qsizetype length = 0;

        values::DatePart meaning() const;
        QString text(const QDate& date) const;
    };

    QRect arrow() const;
    QString shown() const;
    bool isTyping() const { return text() != shown(); }
    bool isEmptied() const { return m_mayBeEmpty && text().trimmed().isEmpty(); }
    void lookFrom(values::Looks looks, std::function<QDate()> from);
    QDate reference() const;
    QDate read() const;
    void showWhetherEarly();
    QList<Part> parts() const;
    bool isInParts() const { return m_inParts || !isTyping(); }
    int partAtCaret() const;
    void selectPart(int part);
    void leaveTypedPart();
    void movePart(int step);
    values::DatePart partToStep() const;
    void step(int steps);
    void typeOverPart(const QKeyEvent& event);
    void calendarHidden();

    QString m_pattern;
    QDate m_value;
    values::Looks m_looks = values::Looks::Around;
    std::function<QDate()> m_from;
    bool m_mayBeEmpty = false;
    FocusWatch m_focus;
    bool m_inParts = false;     // the date is being typed part by part, within its pattern
    int m_typedPart = -1;       // the part that is being typed over
    QString m_before, m_behind; // that part, in the text
    bool m_choosePart = false;
    QPointer<Calendar> m_calendar;
};

} // namespace forms
