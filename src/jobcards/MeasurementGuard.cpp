#include "jobcards/MeasurementGuard.h"

#include "core/store/Rows.h"

#include <QRegularExpression>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int LatestOrders = 200;  // the shop's, of the garment
constexpr size_t EnoughOrders = 8; // to say what is usual
constexpr size_t EnoughOthers = 3; // measurements, to tell the client's build
constexpr double SameInches = 1.0; // a difference that needs no word
constexpr double ChangeOfClient = 0.025;
constexpr double Spreads = 3;          // as far as values usually lie from their middle
constexpr double DeviationOf = 1.4826; // standard deviation of normally spread values, in median deviations
constexpr double KnownShare = 0.03;    // of the orders: a value so common is a fashion, not a slip

double median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

double spreadAround(double middle, const std::vector<double>& values)
{
    std::vector<double> distances;
    for (const double value : values)
        distances.push_back(std::abs(value - middle));
    return DeviationOf * median(std::move(distances));
}

/// Whether a good part of the values lies beside this one, as short sleeves do beside long ones.
bool isCommon(double value, double reach, const std::vector<double>& sorted)
{
    const auto from = std::ranges::lower_bound(sorted, value - reach);
    const auto to = std::ranges::upper_bound(sorted, value + reach);
    return static_cast<double>(to - from) > KnownShare * static_cast<double>(sorted.size());
}

/// To the half of an inch.
QString rounded(double value) { return QString::number(std::round(value * 2) / 2); }

} // namespace

std::optional<double> MeasurementGuard::measure(const QString& text)
{
    static const QRegularExpression form(u"^(?:(?<whole>\\d+)(?:[.,](?<decimals>\\d+))?"
                                         "|(?:(?<inches>\\d+)[ -]+)?(?<part>\\d+)/(?<of>[1-9]\\d*)"
                                         "|(?<before>\\d+)?\\s*(?<sign>[¼½¾]))"
                                         "\\s*(?:\"|''|″|”|in|inch|inches|cm)?$"_s,
                                         QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(text.trimmed());
    if (!match.hasMatch())
        return {};
    const auto number = [&match](QStringView part) { return match.captured(part).toDouble(); };
    if (match.hasCaptured(u"whole"))
        return u"%1.%2"_s.arg(match.captured(u"whole"), match.captured(u"decimals")).toDouble();
    if (match.hasCaptured(u"of"))
        return number(u"inches") + number(u"part") / number(u"of");
    const auto quarters = 1 + u"¼½¾"_s.indexOf(match.captured(u"sign"));
    return number(u"before") + static_cast<double>(quarters) / 4;
}

MeasurementGuard MeasurementGuard::of(qint32 item, qint32 client, qint32 line)
{
    MeasurementGuard guard;
    const QString before = line > 0 ? u" and ID<%1"_s.arg(line) : QString();
    const auto measurements = [](ado::Recordset& row) {
        return Measurements::split(row[0].text(), row[1].text());
    };
    lastRow(
        u"Select ItemDetails,ItemDetailsValue from JOBS_DETAIL where ItemID=%1 and ClintID=%2%3 order by ID"_s
            .arg(item)
            .arg(client)
            .arg(before),
        [&](ado::Recordset& row) {
            for (const Measured& last : read(measurements(row)))
                if (last.value)
                    guard.m_last.insert(last.caption, last);
        });
    std::vector<std::vector<Measured>> orders;
    each(u"Select ItemDetails,ItemDetailsValue from JOBS_DETAIL where ID in "
         "(Select ID from JOBS_DETAIL where ItemID=%1%2 order by Date desc limit %3)"_s.arg(item)
             .arg(before)
             .arg(LatestOrders),
         [&](ado::Recordset& row) { orders.push_back(read(measurements(row))); });
    guard.learn(orders);
    return guard;
}

/// A caption that comes again in a garment is another measurement, and keeps its place among its equals.
std::vector<MeasurementGuard::Measured> MeasurementGuard::read(const Measurements& measurements)
{
    std::vector<Measured> rows;
    QHash<QString, int> times;
    for (qsizetype i = 0; i < measurements.names.size(); ++i) {
        const QString name = measurements.names[i].simplified().toCaseFolded();
        const QString text = measurements.values.value(i).trimmed();
        rows.push_back({name + u' ' + QString::number(++times[name]), text, measure(text)});
    }
    return rows;
}

void MeasurementGuard::learn(const std::vector<std::vector<Measured>>& orders)
{
    for (const std::vector<Measured>& rows : orders)
        for (const Measured& row : rows)
            if (row.value && *row.value > 0)
                m_usual[row.caption].values.push_back(*row.value);
    m_usual.removeIf([](const auto& usual) { return usual->values.size() < EnoughOrders; });
    for (Usual& usual : m_usual)
        usual.middle = median(usual.values);
    for (const std::vector<Measured>& rows : orders)
        for (size_t i = 0; i < rows.size(); ++i)
            if (const std::optional<double> expected = expectedOf(rows, i); expected && rows[i].value)
                m_usual[rows[i].caption].inBuild.push_back(*rows[i].value / *expected);
    for (Usual& usual : m_usual) {
        std::ranges::sort(usual.values);
        std::ranges::sort(usual.inBuild);
        usual.spread = spreadAround(usual.middle, usual.values);
        if (usual.inBuild.size() >= EnoughOrders)
            usual.spreadInBuild = spreadAround(1, usual.inBuild);
    }
}

/// What the other measurements of an order let expect here: the usual value, larger or smaller by as much as
/// they are. Nothing where they are too few.
std::optional<double> MeasurementGuard::expectedOf(const std::vector<Measured>& rows, size_t here) const
{
    const auto usual = m_usual.constFind(rows[here].caption);
    if (usual == m_usual.cend())
        return {};
    std::vector<double> parts;
    for (size_t i = 0; i < rows.size(); ++i)
        if (const auto other = m_usual.constFind(rows[i].caption);
            i != here && other != m_usual.cend() && rows[i].value)
            parts.push_back(*rows[i].value / other->middle);
    if (parts.size() < EnoughOthers)
        return {};
    return usual->middle * median(std::move(parts));
}

QStringList MeasurementGuard::doubts(const Measurements& typed) const
{
    const std::vector<Measured> rows = read(typed);
    QStringList all;
    for (size_t i = 0; i < rows.size(); ++i)
        all << doubt(rows, i);
    return all;
}

QString MeasurementGuard::doubt(const std::vector<Measured>& rows, size_t here) const
{
    if (!rows[here].value)
        return {};
    const double value = *rows[here].value;
    if (const auto last = m_last.constFind(rows[here].caption); last != m_last.cend()) {
        const double reach = std::max(SameInches, ChangeOfClient * *last->value);
        return std::abs(value - *last->value) > reach ? QString(u"last time "_s + last->text) : QString();
    }
    const auto usual = m_usual.constFind(rows[here].caption);
    if (usual == m_usual.cend())
        return {};
    const std::optional<double> expected = expectedOf(rows, here);
    const bool byBuild = expected && usual->inBuild.size() >= EnoughOrders;
    const double middle = byBuild ? *expected : usual->middle;
    const double spread = byBuild ? usual->spreadInBuild * middle : usual->spread;
    const double reach = std::max(SameInches, Spreads * spread);
    const bool common = byBuild ? isCommon(value / middle, SameInches / middle, usual->inBuild)
                                : isCommon(value, SameInches, usual->values);
    if (std::abs(value - middle) <= reach || common)
        return {};
    return u"here mostly %1 to %2"_s.arg(rounded(std::max(0.0, middle - reach)), rounded(middle + reach));
}
