// Writes a believable shop into a folder: `sample_shop [options] <folder>`.
#include "core/store/DE.h"
#include "platform/ado/DatabaseError.h"
#include "sample/SampleShop.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int fail(const QString& text)
{
    std::fprintf(stderr, "%s\n", qPrintable(text));
    return 1;
}

/// A number of the command line that overrules one of the plan's.
struct NumberOption
{
    const char* name;
    const char* what;
    int sample::Plan::*value;
    int largest;
};

constexpr int sixteenBits = 32767;
constexpr NumberOption numbers[] = {
    {"days", "days that the shop has worked", &sample::Plan::days, 36500},
    {"clients", "clients", &sample::Plan::clients, 24000},
    {"workers", "workers", &sample::Plan::workers, 500},
    {"workers-at-once", "workers of the same time", &sample::Plan::workersAtOnce, 500},
    {"cards", "job cards", &sample::Plan::cards, sixteenBits},
    {"lines", "lines of job cards", &sample::Plan::lines, sixteenBits},
    {"last-month-lines", "lines of the last 30 days", &sample::Plan::lastMonthLines, sixteenBits},
    {"last-day-lines", "lines of the last day", &sample::Plan::lastDayLines, sixteenBits},
    {"postings", "postings; 0: as many as the business makes", &sample::Plan::postings, 100000},
    {"pictures", "lines with pictures", &sample::Plan::pictures, sixteenBits},
    {"first-number", "number of the first job card", &sample::Plan::firstNumber, sixteenBits},
};

/// What the plan cannot be, or empty.
QString wrongWith(const sample::Plan& plan)
{
    if (plan.days <= 30)
        return u"A shop needs more than 30 days."_s;
    if (plan.lastDayLines < 1 || plan.lastDayLines > plan.lastMonthLines || plan.lastMonthLines > plan.lines)
        return u"The last day's lines must be within the last month's, those within all lines."_s;
    if (plan.clients < 1 || plan.clients > plan.cards || plan.cards > plan.lines)
        return u"A card needs a line, and a client a card."_s;
    if (plan.workersAtOnce < 1 || plan.workersAtOnce > plan.workers)
        return u"The workers of the same time must be within all workers."_s;
    if (plan.firstNumber < 1 || plan.firstNumber + plan.cards - 1 > sixteenBits)
        return u"The numbers of the cards must be 1 to %1."_s.arg(sixteenBits);
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Writes a believable shop into a folder."_s);
    parser.addHelpOption();
    parser.addPositionalArgument(u"folder"_s, u"Where the shop goes."_s);
    const QCommandLineOption size(u"size"_s, u"demo (three months) or full (six years)."_s, u"size"_s,
                                  u"demo"_s);
    const QCommandLineOption lastDay(u"last-day"_s,
                                     u"The shop's working date, yyyy-MM-dd; today where none is given."_s,
                                     u"day"_s, QDate::currentDate().toString(Qt::ISODate));
    const QCommandLineOption seed(u"seed"_s, u"The same seed gives the same shop."_s, u"number"_s, u"1"_s);
    parser.addOptions({size, lastDay, seed});
    for (const NumberOption& number : numbers)
        parser.addOption(
            {QLatin1String(number.name), u"Number of "_s + QLatin1String(number.what) + u'.', u"number"_s});
    parser.process(application);

    const QDate day = QDate::fromString(parser.value(lastDay), Qt::ISODate);
    if (parser.positionalArguments().size() != 1 || !day.isValid())
        parser.showHelp(1);
    const bool isFull = parser.value(size) == "full"_L1;
    if (!isFull && parser.value(size) != "demo"_L1)
        return fail(u"The size is demo or full."_s);
    sample::Plan plan = isFull ? sample::full(day) : sample::demo(day);
    plan.seed = parser.value(seed).toUInt();
    for (const NumberOption& number : numbers) {
        const QLatin1String name(number.name);
        if (!parser.isSet(name))
            continue;
        bool isNumber = false;
        plan.*number.value = parser.value(name).toInt(&isNumber);
        if (!isNumber || plan.*number.value < 0 || plan.*number.value > number.largest)
            return fail(u"--%1 takes a number from 0 to %2."_s.arg(name).arg(number.largest));
    }
    if (const QString wrong = wrongWith(plan); !wrong.isEmpty())
        return fail(wrong);

    const QString folder = parser.positionalArguments().constFirst();
    if (QFileInfo::exists(folder + u"/data.mdb"_s))
        return fail(u"%1 has a shop already; nothing is written."_s.arg(folder));
    try {
        sample::layShop(plan, folder);
        DE.close();
    } catch (const ado::DatabaseError& error) {
        return fail(error.text());
    }
    return 0;
}
