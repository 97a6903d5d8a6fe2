#include "support/Shop.h"

#include "core/DE.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Startup.h"

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

qint32 addAccount(const QString& title, int type, const QString& mobile)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Accounts"));
    rows.AddNew();
    rows["Title"] = title;
    rows["Type"] = type;
    rows["Mobile"] = mobile;
    rows.Update();
    return rows["ID"].integer();
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

qint32 Shop::addClient(const QString& title, const QString& mobile) { return addAccount(title, 0, mobile); }

qint32 Shop::addWorker(const QString& title) { return addAccount(title, 1, {}); }

qint32 Shop::addItem(const QString& name, double fees, double workerFees, const QString& details)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Items"));
    rows.AddNew();
    rows["Name"] = name;
    rows["Fees"] = fees;
    rows["WorkerFees"] = workerFees;
    rows["ItemDetails"] = details;
    rows.Update();
    return rows["ID"].integer();
}

qint32 Shop::addJobLine(qint32 client, qint32 item, qint32 worker)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from JOBS_DETAIL"));
    rows.AddNew();
    for (const char* field : {"DATE", "JobDelDate", "CuttingDate"})
        rows[field] = session.WorkingDate;
    for (const char* field : {"JobID", "QNT", "FEES", "Amount"})
        rows[field] = 1;
    for (const char* field : {"ClintName", "ItemName", "Remarks", "ItemDetails", "ItemDetailsValue"})
        rows[field] = QString();
    rows["ClintID"] = client;
    rows["ItemID"] = item;
    rows["WorkerID"] = worker;
    rows.Update();
    return rows["ID"].integer();
}

void Shop::addVoucher(qint32 vid, qint32 main, qint32 ref, double amount)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Postings"));
    for (const int line : {1, 2}) {
        rows.AddNew();
        rows["VID"] = vid;
        rows["vType"] = 2;
        rows["Sr"] = line;
        rows["Date"] = session.WorkingDate;
        rows["particulars"] = QStringLiteral("Receipt");
        rows["Remark"] = QString();
        rows["accID"] = line == 1 ? main : ref;
        rows["refID"] = line == 1 ? ref : main;
        rows["Amount"] = line == 1 ? amount : -amount;
        rows.Update();
    }
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
