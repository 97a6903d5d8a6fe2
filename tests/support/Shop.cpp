#include "support/Shop.h"

#include "core/store/Schema.h"
#include "core/store/Startup.h"
#include "core/store/Voucher.h"

#include <QFile>

namespace {

/// The database as a first run makes it, made once a test program.
const QString& emptyShop()
{
    static QTemporaryDir folder;
    static const QString path = [] {
        session.appFolder = folder.path();
        CreateDatabase();
        return session.databasePath();
    }();
    return path;
}

} // namespace

Shop::Shop()
{
    const QString empty = emptyShop();
    session = Session();
    session.appFolder = m_folder.path();
    if (!QFile::copy(empty, session.databasePath()))
        qFatal("cannot lay a shop in %s", qPrintable(m_folder.path()));
    MakeImagesFolder();
    reopen();
}

Shop::~Shop() { DE.close(); }

void Shop::reopen()
{
    DE.close();
    DE.open(session.databasePath());
    DE.ensureIndexes();
    LoadSessionDefaults();
    session.WorkingDate = QDate(2024, 2, 10);
}

qint32 Shop::add(const QString& table, const std::vector<std::pair<const char*, QVariant>>& fields)
{
    ado::Recordset rows(DE.connection());
    rows.Open("Select * from " + table);
    rows.AddNew();
    for (const auto& [field, value] : fields)
        rows[field] = value;
    rows.Update();
    return rows["ID"].integer();
}

qint32 Shop::addClient(const QString& title, const QString& mobile)
{
    return add("Accounts", {{"Title", title}, {"Type", 0}, {"Mobile", mobile}});
}

qint32 Shop::addWorker(const QString& title)
{
    return add("Accounts", {{"Title", title}, {"Type", 1}, {"Mobile", QString()}});
}

qint32 Shop::addItem(const QString& name, double fees, double workerFees, const QString& details)
{
    return add("Items",
               {{"Name", name}, {"Fees", fees}, {"WorkerFees", workerFees}, {"ItemDetails", details}});
}

qint32 Shop::addJobLine(qint32 client, qint32 item, qint32 worker, const QString& set)
{
    run(u"Insert into Jobs_Detail (Date, JobDelDate, CuttingDate, JobID, QNT, FEES, Amount, ClintName, "
        u"ItemName, "
        "Remarks, ItemDetails, ItemDetailsValue, ClintID, ItemID, WorkerID) values ('%1', '%1', '%1', 1, 1, "
        "1, 1, "
        "'', '', '', '', '', %2, %3, %4)"_s.arg(session.WorkingDate.toString(Qt::ISODate))
            .arg(client)
            .arg(item)
            .arg(worker));
    const qint32 line = value("Select max(ID) from Jobs_Detail").toInt();
    if (!set.isEmpty())
        run(u"Update Jobs_Detail set %1 where ID=%2"_s.arg(set).arg(line));
    return line;
}

void Shop::addJob(qint32 number, qint32 client)
{
    run(u"Insert into Jobs select %1, '2024-02-01', %2, 'Asha', '2024-02-20', null, '2024-02-15', 0, null, "
        u"0, "
        "0, 0, '', 0, 0, ''"_s.arg(number)
            .arg(client));
}

void Shop::addVoucher(qint32 vid, qint32 main, qint32 ref, double amount)
{
    DE.connection().writeBatch([&] {
        Voucher(VoucherType::Entry, vid)
            .AddPair({"Receipt", session.WorkingDate, main, ref, Currency::fromDouble(amount), {}});
    });
}

void Shop::order(clsJobCardData& lines, const QString& item, double amount, int quantity)
{
    lines.AddNewRow(0, item, GetItemID(item), quantity, amount / quantity, amount, "slim", "Length\r\nChest",
                    "30\r\n40", 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {}, "255", 0, {}, "note");
}

JobCardHead Shop::head(qint32 number, const QString& client, double total, double paid)
{
    JobCardHead head;
    head.Number = number;
    head.Date = session.WorkingDate;
    head.DeliveryDate = head.Date.addDays(7);
    head.TrialDate = head.Date.addDays(3);
    head.Client = client;
    head.Total = Currency::fromDouble(total);
    head.Paid = Currency::fromDouble(paid);
    head.ReceiptAccount = "Cash";
    return head;
}

QVariant Shop::value(const QString& sql)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return rows[0].value();
}

int Shop::count(const QString& sql)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return rows.RecordCount();
}

QStringList Shop::rows(const QString& sql)
{
    QStringList lines;
    ado::Recordset rows(DE.connection());
    for (rows.Open(sql); !rows.AtEOF(); rows.MoveNext()) {
        QStringList values;
        for (int column = 0; column < rows.FieldCount(); ++column)
            values << rows[column].text();
        lines << values.join(u' ');
    }
    return lines;
}

void Shop::run(const QString& sql) { DE.connection().Execute(sql); }
