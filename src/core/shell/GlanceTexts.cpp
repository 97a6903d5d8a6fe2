#include "core/shell/GlanceTexts.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/values/Literals.h"
#include "platform/values/Numbers.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace glance {

QString count(qint64 number) { return values::Format(double(number), u"#,##0"_s); }

QString money(Currency amount) { return values::Format(amount.toDouble(), u"#,##0.00"_s); }

QString shortDay(const QDate& day) { return QLocale::c().toString(day, u"d MMM"_s); }

QString longDay(const QDate& day) { return QLocale::c().toString(day, u"dddd"_s) + u", "_s + dateText(day); }

QString when(const QDate& day) { return day == session.WorkingDate ? u"today"_s : u"that day"_s; }

QString inWords(const figures::InShop& lines)
{
    QStringList parts;
    for (const auto& [number, name] : {std::pair(lines.uncompleted, u"uncompleted"_s),
                                       {lines.alteration, u"in alteration"_s},
                                       {lines.ready, u"ready"_s}})
        if (number > 0)
            parts << count(number) + u' ' + name;
    return parts.isEmpty() ? u"nothing"_s : parts.join(u", "_s);
}

QString ageText(int age)
{
    static const QString texts[figures::Dues::ages] = {u"up to 30 days old"_s, u"31 to 60 days old"_s,
                                                       u"61 to 90 days old"_s, u"older than 90 days"_s};
    return texts[age];
}

QString roomText(const QString& what, const figures::Room& room)
{
    return u"%1 %2 of %3 (%4)"_s.arg(what, count(room.used), count(room.limit),
                                     room.percent() < 1 ? u"under 1%"_s : u"%1%"_s.arg(room.percent()));
}

} // namespace glance
