#include "ui/Period.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/MessageBox.h"
#include "platform/values/Dates.h"

using namespace Qt::StringLiterals;

Period::Period(forms::DatePicker* from, forms::DatePicker* to, Of days)
    : m_from(from)
    , m_to(to)
{
    isOf(days);
    m_to->look(values::Looks::Onward, m_from);
}

void Period::isOf(Of days)
{
    m_from->look(days == Of::PastDays ? values::Looks::Back : values::Looks::Around, session.WorkingDate);
}

QDate Period::from() const { return m_from->value(); }

QDate Period::to() const { return m_to->value(); }

void Period::set(const QDate& from, const QDate& to)
{
    m_from->setValue(from);
    m_to->setValue(to);
}

bool Period::accepted(QWidget* screen) const
{
    if (from() <= to())
        return true;
    forms::criticalMessage(screen, u"Invalid date selection!"_s);
    return false;
}

void Period::order()
{
    if (from() > to())
        m_to->setValue(from());
}

QString Period::text() const { return dateText(from()) + u" To "_s + dateText(to()); }

QString Period::words() const { return from() == to() ? dateText(from()) : text(); }

QString Period::between() const { return sqlDates(from(), to()); }

QString Period::betweenShort() const
{
    return u'#' + values::CStr(from()) + u"# and #"_s + values::CStr(to()) + u'#';
}
