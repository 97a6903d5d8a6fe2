#include "platform/report/Media.h"

#include "platform/report/Spooler.h"

#include <QPageSize>
#include <QPointer>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr double mmPerInch = 25.4;
constexpr double mmPerPoint = mmPerInch / 72;
constexpr double largestGrowth = 1.5; ///< one size up, A5 to A4; a receipt (A6) does not fill A4
constexpr double slack = 1.5;         ///< millimetres by which names of one sheet differ
/// In a list of options: any size can be asked for.
constexpr auto anySize = "Custom.WIDTHxHEIGHT"_L1;

bool hasRoom(QSizeF sheet, QSizeF paper)
{
    return paper.width() <= sheet.width() + slack && paper.height() <= sheet.height() + slack;
}

bool isShapedAs(QSizeF sheet, QSizeF paper)
{
    constexpr double closeEnough = 0.02;
    const double sheetRatio = sheet.width() / sheet.height();
    return std::abs(sheetRatio - paper.width() / paper.height()) < closeEnough * sheetRatio;
}

QString whole(double length) { return QString::number(qRound(length)); }

/// Names such as "A5" and "Letter".
QSizeF sizeOfStandard(const QString& name)
{
    for (int id = 0; id <= QPageSize::LastPageSize; ++id)
        if (QPageSize::key(QPageSize::PageSizeId(id)).compare(name, Qt::CaseInsensitive) == 0)
            return QPageSize::size(QPageSize::PageSizeId(id), QPageSize::Millimeter);
    return {};
}

} // namespace

QSizeF mediumSize(const QString& name)
{
    static const QRegularExpression points(u"^w(\\d+(?:\\.\\d+)?)h(\\d+(?:\\.\\d+)?)"_s);
    static const QRegularExpression sides(
        u"(?:^|[_.])(\\d+(?:\\.\\d+)?)x(\\d+(?:\\.\\d+)?)(mm|cm|in)?(?:[._].*)?$"_s);
    if (name.contains("Transverse"_L1, Qt::CaseInsensitive))
        return {}; // fed across: its name says nothing of how it lies
    QRegularExpressionMatch match = points.match(name);
    double unit = mmPerPoint;
    if (!match.hasMatch()) {
        match = sides.match(name);
        const QString written = match.captured(3);
        unit = written == "mm"_L1 ? 1 : written == "cm"_L1 ? 10 : mmPerInch;
    }
    const QSizeF size = QSizeF(match.captured(1).toDouble(), match.captured(2).toDouble()) * unit;
    return size.isEmpty() ? sizeOfStandard(name.section(u'.', 0, 0)) : size;
}

std::vector<Medium> readMedia(const QString& options)
{
    for (const auto key : {"PageSize/"_L1, "media/"_L1})
        for (const QString& line : options.split(u'\n')) {
            if (!line.startsWith(key))
                continue;
            std::vector<Medium> media;
            for (QString name : line.section(u':', 1).split(u' ', Qt::SkipEmptyParts)) {
                const bool standard = name.startsWith(u'*');
                if (standard)
                    name.remove(0, 1);
                media.push_back({name, name == anySize ? QSizeF() : mediumSize(name), standard});
            }
            return media;
        }
    return {};
}

int chooseMedium(const std::vector<Medium>& media, const QString& remembered)
{
    const auto index = [&media](auto&& fits) {
        const auto found = std::find_if(media.begin(), media.end(), fits);
        return found == media.end() ? -1 : int(found - media.begin());
    };
    const int known = index([&](const Medium& each) { return each.name == remembered; });
    return known >= 0 ? known : index([](const Medium& each) { return each.standard; });
}

QString mediumTitle(const Medium& medium)
{
    if (medium.name == anySize)
        return u"The paper's own size"_s;
    if (medium.size.isEmpty())
        return medium.name;
    return u"%1 (%2 x %3 mm)"_s.arg(medium.name, whole(medium.size.width()), whole(medium.size.height()));
}

QStringList placing(const QString& medium, QSizeF paper)
{
    const QString asItIs = u"print-scaling=none"_s;
    const QString upright = u"nopdfAutoRotate"_s;
    if (medium.isEmpty())
        return {};
    if (medium == anySize)
        return {u"media=Custom.%1x%2mm"_s.arg(whole(paper.width()), whole(paper.height())), asItIs, upright};
    const QSizeF sheet = mediumSize(medium);
    QStringList options{u"media="_s + medium};
    if (sheet.isEmpty() || paper.isEmpty())
        return options;
    const bool sameSize = hasRoom(sheet, paper) && hasRoom(paper, sheet);
    const bool isNearlyAsLarge = sheet.width() < paper.width() * largestGrowth;
    if (isShapedAs(sheet, paper) && !sameSize && isNearlyAsLarge)
        return options << u"print-scaling=fit"_s;
    if (hasRoom(sheet, paper))
        return options << asItIs << upright;
    return options << (hasRoom(sheet, paper.transposed()) ? asItIs : u"print-scaling=fit"_s);
}

void askMedia(QObject* context, const QString& printer,
              std::function<void(const std::vector<Medium>&)> answer)
{
    QStringList arguments;
    if (!printer.isEmpty())
        arguments << u"-p"_s << printer;
    const QPointer<QObject> asking = context;
    new SpoolerRun(u"lpoptions"_s, arguments << u"-l"_s, {},
                   [asking, answer](SpoolerRun::End end, const QByteArray& output, const QString&) {
                       if (asking)
                           answer(end == SpoolerRun::End::Done ? readMedia(QString::fromLocal8Bit(output))
                                                               : std::vector<Medium>());
                   });
}

} // namespace report
