#include "registers/ClientHistory.h"

#include "core/store/Codes.h"
#include "core/store/DE.h"
#include "core/store/Rows.h"
#include "core/store/ShopPictures.h"
#include "core/store/Texts.h"
#include "registers/JobLines.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace history {

namespace {

/// How far the lines of one card are.
struct Progress
{
    int lines = 0;
    int ready = 0;
    int delivered = 0;
};

QString stateText(const Progress& progress)
{
    if (progress.lines == 0)
        return u"No garments"_s;
    if (progress.delivered == progress.lines)
        return statusName(qint32(LineState::Delivered));
    if (progress.delivered > 0)
        return u"%1 of %2 delivered"_s.arg(progress.delivered).arg(progress.lines);
    return u"%1 of %2 ready"_s.arg(progress.ready).arg(progress.lines);
}

QHash<qint32, Progress> progressOf(const QString& client)
{
    QHash<qint32, Progress> cards;
    each(u"Select JobID, DoneByWorker, count(*) as Lines from JOBS_DETAIL where ClintID="_s + client +
             u" group by JobID, DoneByWorker"_s,
         [&](ado::Recordset& lines) {
             Progress& card = cards[lines["JobID"].integer()];
             const int count = lines["Lines"].integer();
             const auto state = lines["DoneByWorker"].code<LineState>();
             card.lines += count;
             if (state == LineState::Completed)
                 card.ready += count;
             else if (state == LineState::Delivered)
                 card.delivered += count;
         });
    return cards;
}

QStringList rowsOf(const QString& text)
{
    QStringList rows = text.split(u'\n');
    for (QString& row : rows)
        row = row.trimmed();
    return rows;
}

/// Adds an order; measurements that the garment has not had so far come behind the others.
void add(Garment& garment, Order order, const QStringList& names, const QStringList& values)
{
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty())
            continue;
        qsizetype at = 0;
        while (at < garment.measurements.size() &&
               garment.measurements[at].compare(names[i], Qt::CaseInsensitive) != 0)
            ++at;
        if (at == garment.measurements.size())
            garment.measurements << names[i];
        order.values.resize(garment.measurements.size());
        order.values[at] = values.value(i);
    }
    garment.orders.push_back(std::move(order));
}

} // namespace

size_t Garment::before(size_t order, qsizetype measurement) const
{
    do
        ++order;
    while (order < orders.size() && orders[order].values.value(measurement).isEmpty());
    return order;
}

bool Garment::isChanged(size_t order, qsizetype measurement) const
{
    const QString value = orders[order].values.value(measurement);
    const size_t older = before(order, measurement);
    return !value.isEmpty() && older < orders.size() && orders[older].values[measurement] != value;
}

QDate Garment::since(qsizetype measurement) const
{
    size_t order = 0;
    if (orders.front().values.value(measurement).isEmpty())
        order = before(order, measurement);
    if (order == orders.size())
        return {};
    while (!isChanged(order, measurement) && before(order, measurement) < orders.size())
        order = before(order, measurement);
    return orders[order].booked;
}

std::vector<Card> cardsOf(qint32 client)
{
    const QString id = QString::number(client);
    const QHash<qint32, Progress> progress = progressOf(id);
    std::vector<Card> found;
    ado::Reader cards =
        readRows(u"Select * from JOBS where ClintID="_s + id + u" order by Date desc, Id desc"_s);
    const auto card = cards["Id"], status = cards["Status"], booked = cards["Date"],
               delivery = cards["DeliveryDate"], due = cards["AmountDue"], paid = cards["AmountPaid"];
    while (cards.next()) {
        const qint32 number = card.integer();
        const bool canceled = status.integer() != 0;
        found.push_back(
            {.number = number,
             .booked = booked.date(),
             .delivery = delivery.date(),
             .state = canceled ? statusName(qint32(LineState::Canceled)) : stateText(progress.value(number)),
             .amount = due.number(),
             .paid = paid.number()});
    }
    return found;
}

std::vector<Garment> garmentsOf(qint32 client)
{
    std::vector<Garment> garments;
    QHash<QString, size_t> places;
    ado::Reader lines = readRows(u"Select * from JOBS_DETAIL where ClintID="_s + QString::number(client) +
                                 u" order by Date desc, JobID desc, ItemSr"_s);
    const auto card = lines["JobID"], place = lines["ItemSr"], garment = lines["ItemName"],
               booked = lines["Date"], remark = lines["Remarks"], note = lines["ClientRemarks"],
               picture1 = lines["Img1"], picture2 = lines["Img2"], names = lines["ItemDetails"],
               values = lines["ItemDetailsValue"];
    while (lines.next()) {
        const QString item = garment.text();
        const QString key = item.toCaseFolded();
        if (!places.contains(key)) {
            places.insert(key, garments.size());
            garments.push_back({item, {}, {}});
        }
        Order order{.code = lineCodeText(card.text(), place.text()),
                    .booked = booked.date(),
                    .values = {},
                    .remark = remark.text(),
                    .note = note.text(),
                    .pictures = {}};
        for (const QString& link : {picture1.text(), picture2.text()})
            if (!link.isEmpty())
                order.pictures << shownPicture(link);
        add(garments[places.value(key)], std::move(order), rowsOf(names.text()), rowsOf(values.text()));
    }
    return garments;
}

} // namespace history
