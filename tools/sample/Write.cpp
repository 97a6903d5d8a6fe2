#include "sample/Write.h"

#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Voucher.h"
#include "jobcards/JobCard.h"
#include "platform/values/Dates.h"
#include "sample/Pictures.h"

using namespace Qt::StringLiterals;

namespace sample {

namespace {

QVariant dateOrNull(const QDate& date) { return date.isValid() ? QVariant(date) : ado::Null; }

/// Colours are kept with blue in front.
QString colourNumber(quint32 colour)
{
    const quint32 red = colour >> 16;
    const quint32 green = colour >> 8 & 0xFF;
    const quint32 blue = colour & 0xFF;
    return QString::number(red + 256 * green + 65536 * blue);
}

/// The name that the shop gives to a picture: client, day, a time, the picture's number.
QString picturePath(const Card& card, int line, int picture)
{
    return u"%1/%2_%3_%4_%5_%6_%7.bmp"_s
        .arg(session.imagesFolder(), card.client->title, values::Format(card.date, u"DD_MM_YYYY"_s))
        .arg(card.date.dayOfWeek() % 7 + 1)
        .arg(card.number % 10)
        .arg(10 + line)
        .arg(picture);
}

void addRow(JobCard& form, const Card& card, int number)
{
    const Line& line = card.lines[static_cast<size_t>(number)];
    const Garment& item = line.item();
    QString swatch;
    QString sketch;
    if (line.pictured) {
        swatch = picturePath(card, number, 1);
        sketch = picturePath(card, number, 2);
        drawSwatch(line, swatch);
        drawSketch(line, sketch);
    }
    form.JobRows.AddNewRow(0, QString::fromLatin1(item.name), line.garment + 1, line.quantity, item.fees,
                           line.amount(), line.remark, item.names(), line.values, 0, {}, {}, {}, {}, {}, 0, 0,
                           0, {}, swatch, sketch, colourNumber(line.cloth), 0, {}, line.clientRemark);
}

void writeProgress(qint32 id, const Line& line)
{
    ado::Recordset& row = DE.rsJOBS_DETAIL;
    row.Open(u"Select * from jobs_detail where id="_s + QString::number(id));
    if (line.worker) {
        row["WorkerID"] = line.worker->account;
        row["WorkerName"] = line.worker->title;
    }
    row["DoneByWorker"] = line.state;
    row["CompletedDate"] = dateOrNull(line.completed);
    row["AltDate"] = dateOrNull(line.altered);
    row["DelToCustDate"] = dateOrNull(line.delivered);
    row["CuttingStatus"] = line.cut ? CuttingMark::Done : CuttingMark::NotDone;
    row["CuttingDate"] = line.cuttingDate;
    row["MarkAsPaid"] = int(line.payroll > 0);
    row["PayrollID"] = line.payroll;
    if (!line.location.isEmpty())
        row["Loc"] = line.location;
    row["Score"] = line.score;
    row["ClientFeedback"] = line.feedback;
    row.Update();
    row.Close();
}

void writeTrialAndEnd(const Card& card)
{
    ado::Recordset& row = DE.rsJOBS;
    row.Open(u"Select * from jobs where id="_s + QString::number(card.number));
    row["appeared"] = card.appeared;
    row["appearedDate"] = dateOrNull(card.appearedOn);
    if (card.closed) {
        row["JOBFINISHED"] = 1;
        row[card.handedOver ? "ClientDeliveryDate" : "DeliveryDate"] = card.deliveredOn();
    }
    row.Update();
    row.Close();
}

void writeCard(const Card& card)
{
    JobCard form;
    for (int i = 0; i < static_cast<int>(card.lines.size()); ++i)
        addRow(form, card, i);
    JobCardHead head;
    head.Number = card.number;
    head.Date = card.date;
    head.Client = card.client->title;
    head.DeliveryDate = card.delivery;
    head.TrialDate = card.trial;
    head.Total = Currency::fromDouble(card.total());
    head.Paid = Currency::fromDouble(card.paid);
    head.Remark = card.remark;
    head.ReceiptAccount = card.receiptAccount == account::cash ? u"Cash"_s : u"Bank"_s;
    head.Cancelled = card.cancelled;
    head.CancelReason = card.cancelReason;
    form.SaveNew(head);
    if (card.cancelled)
        return;
    for (size_t i = 0; i < card.lines.size(); ++i)
        writeProgress(form.JobRows.Sr(static_cast<qint64>(i) + 1), card.lines[i]);
    writeTrialAndEnd(card);
}

void writeVoucher(const Voucher& voucher, int number)
{
    ::Voucher(VoucherType::Entry, number)
        .AddPair({.particulars = QString::fromLatin1(voucher.particulars),
                  .date = voucher.date,
                  .account = voucher.main,
                  .opposite = voucher.reference,
                  .amount = Currency::fromDouble(voucher.amount),
                  .remark = voucher.remark},
                 {.payroll = !voucher.wages.empty()});
}

} // namespace

void writeVouchers(const Voucher* begin, const Voucher* end, int first)
{
    DE.connection().writeBatch([&] {
        for (const Voucher* voucher = begin; voucher != end; ++voucher)
            writeVoucher(*voucher, first++);
    });
}

void writeCards(const Card* begin, const Card* end)
{
    DE.connection().writeBatch([&] {
        for (const Card* card = begin; card != end; ++card)
            writeCard(*card);
    });
}

} // namespace sample
