// How well the guard over measurements tells slips from true values, in the full sample shop: how many of 200
// planted slips it marks, and how many of the true values of those lines. Each line is looked at as it was
// taken, with what had been ordered before. A slip is two digits of the whole inches swapped, or one of them
// mistyped.
#include "FullShop.h"
#include "core/store/Rows.h"
#include "jobcards/MeasurementGuard.h"

#include <QCoreApplication>
#include <cstdio>
#include <random>

using namespace Qt::StringLiterals;

namespace {

std::mt19937 engine(1);

int below(qsizetype count) { return static_cast<int>(engine() % static_cast<unsigned>(count)); }

/// The value with a slip in its whole inches; empty where none can be made.
QString slip(const QString& value, bool swap)
{
    const qsizetype digits = value.split(u'.').front().size();
    QString wrong = value;
    if (swap) {
        if (digits < 2 || value[0] == value[1])
            return {};
        qSwap(wrong[0], wrong[1]);
        return wrong;
    }
    const int place = below(digits);
    wrong[place] = QChar(u'0' + (value[place].digitValue() + 1 + below(9)) % 10);
    return wrong;
}

struct Line
{
    qint32 id, item, client;
    Measurements measurements;
};

std::vector<Line> someLines(int count)
{
    std::vector<Line> lines;
    for (int i = 0; i < count; ++i)
        firstRow(u"Select ID,ItemID,ClintID,ItemDetails,ItemDetailsValue from Jobs_Detail "
                 "where ID=(Select min(ID) from Jobs_Detail where ID>=%1)"_s.arg(1 + below(FullShop::lines)),
                 [&lines](ado::Recordset& row) {
                     lines.push_back({row[0].integer(), row[1].integer(), row[2].integer(),
                                      Measurements::split(row[3].text(), row[4].text())});
                 });
    return lines;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const FullShop shop;
    constexpr int wanted = 200;
    int planted = 0, marked = 0, trueValues = 0, markedTrue = 0;
    for (Line& line : someLines(2 * wanted)) {
        const auto guard = MeasurementGuard::of(line.item, line.client, line.id);
        const QStringList doubts = guard.doubts(line.measurements);
        for (qsizetype i = 0; i < doubts.size(); ++i)
            if (MeasurementGuard::measure(line.measurements.values[i])) {
                ++trueValues;
                markedTrue += doubts[i].isEmpty() ? 0 : 1;
            }
        const qsizetype row = below(line.measurements.values.size());
        QString& value = line.measurements.values[row];
        const QString wrong = MeasurementGuard::measure(value) ? slip(value, planted % 2 == 0) : QString();
        if (wrong.isEmpty() || planted == wanted)
            continue;
        value = wrong;
        ++planted;
        marked += guard.doubts(line.measurements)[row].isEmpty() ? 0 : 1;
    }
    std::printf("slips marked: %d of %d (%.1f %%)\ntrue values marked: %d of %d (%.2f %%)\n", marked, planted,
                100.0 * marked / planted, markedTrue, trueValues, 100.0 * markedTrue / trueValues);
}
