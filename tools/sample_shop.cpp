// Writes a believable shop into a folder: `sample_shop [options] <folder>`.
#include "core/DE.h"
#include "platform/ado/DatabaseError.h"
#include "sample/SampleShop.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <cstdio>

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
        return QStringLiteral("A shop needs more than 30 days.");
    if (plan.lastDayLines < 1 || plan.lastDayLines > plan.lastMonthLines || plan.lastMonthLines > plan.lines)
        return QStringLiteral(
            "The last day's lines must be within the last month's, those within all lines.");
    if (plan.clients < 1 || plan.clients > plan.cards || plan.cards > plan.lines)
        return QStringLiteral("A card needs a line, and a client a card.");
    if (plan.workersAtOnce < 1 || plan.workersAtOnce > plan.workers)
        return QStringLiteral("The workers of the same time must be within all workers.");
    if (plan.firstNumber < 1 || plan.firstNumber + plan.cards - 1 > sixteenBits)
        return QStringLiteral("The numbers of the cards must be 1 to %1.").arg(sixteenBits);
    return {};
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Writes a believable shop into a folder."));
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where the shop goes."));
    const QCommandLineOption size(QStringLiteral("size"),
                                  QStringLiteral("demo (three months) or full (six years)."),
                                  QStringLiteral("size"), QStringLiteral("demo"));
    const QCommandLineOption lastDay(
        QStringLiteral("last-day"),
        QStringLiteral("The shop's working date, yyyy-MM-dd; today where none is given."),
        QStringLiteral("day"), QDate::currentDate().toString(Qt::ISODate));
    const QCommandLineOption seed(QStringLiteral("seed"),
                                  QStringLiteral("The same seed gives the same shop."),
                                  QStringLiteral("number"), QStringLiteral("1"));
    parser.addOptions({size, lastDay, seed});
    for (const NumberOption& number : numbers)
        parser.addOption({QLatin1String(number.name),
                          QStringLiteral("Number of ") + QLatin1String(number.what) + u'.',
                          QStringLiteral("number")});
    parser.process(application);

    const QDate day = QDate::fromString(parser.value(lastDay), Qt::ISODate);
    if (parser.positionalArguments().size() != 1 || !day.isValid())
        parser.showHelp(1);
    const bool isFull = parser.value(size) == QLatin1String("full");
    if (!isFull && parser.value(size) != QLatin1String("demo"))
        return fail(QStringLiteral("The size is demo or full."));
    sample::Plan plan = isFull ? sample::full(day) : sample::demo(day);
    plan.seed = parser.value(seed).toUInt();
    for (const NumberOption& number : numbers) {
        const QLatin1String name(number.name);
        if (!parser.isSet(name))
            continue;
        bool isNumber = false;
        plan.*number.value = parser.value(name).toInt(&isNumber);
        if (!isNumber || plan.*number.value < 0 || plan.*number.value > number.largest)
            return fail(QStringLiteral("--%1 takes a number from 0 to %2.").arg(name).arg(number.largest));
    }
    if (const QString wrong = wrongWith(plan); !wrong.isEmpty())
        return fail(wrong);

    const QString folder = parser.positionalArguments().constFirst();
    if (QFileInfo::exists(folder + QStringLiteral("/data.mdb")))
        return fail(QStringLiteral("%1 has a shop already; nothing is written.").arg(folder));
    try {
        sample::layShop(plan, folder);
        DE.close();
    } catch (const ado::DatabaseError& error) {
        return fail(error.text());
    }
    return 0;
}
