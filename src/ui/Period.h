#pragma once

#include <QDate>
#include <QString>

class QWidget;
namespace forms {
class DatePicker;
}

/// The days that a list is about, both ends included: two pickers on its screen.
class Period
{
public:
    /// What the days are those of: a typed beginning is looked for back from the working date, in a list of
    /// what has been promised around that day. A typed end is looked for from the beginning on.
    enum class Of { PastDays, PromisedDays };

    Period() = default; ///< of no pickers yet
    Period(forms::DatePicker* from, forms::DatePicker* to, Of days = Of::PastDays);
    void isOf(Of days);

    QDate from() const;
    QDate to() const;
    void set(const QDate& from, const QDate& to);

    /// Refuses days the wrong way round in a box over `screen`; true for days that can be shown.
    bool accepted(QWidget* screen) const;
    /// Moves an end that lies before the beginning up to it.
    void order();

    /// "01-Feb-2024 To 10-Feb-2024".
    QString text() const;
    /// The same, of one day just that: "10-Feb-2024".
    QString words() const;
    /// The days between the marks of a statement: "#01-Feb-2024# and #10-Feb-2024#".
    QString between() const;
    /// The same in the short form of dates: "#2024-02-01# and #2024-02-10#".
    QString betweenShort() const;

private:
    forms::DatePicker* m_from = nullptr;
    forms::DatePicker* m_to = nullptr;
};
