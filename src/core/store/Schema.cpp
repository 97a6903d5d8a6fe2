#include "core/store/Schema.h"

#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/devices/Files.h"

#include <QFile>
#include <QFileInfo>
#include <QLockFile>

using namespace Qt::StringLiterals;

namespace {

enum class Rule { Required, Nullable, Autonumber };

struct Column
{
    const char* name;
    const char* type;
    Rule rule = Rule::Required;
    const char* defaultValue = nullptr;
};

struct Table
{
    const char* name;
    std::vector<Column> columns;
};

constexpr const char* LongText = "LONGTEXT";
constexpr const char* Integer = "INTEGER";
constexpr const char* Money = "MONEY";
constexpr const char* Double = "DOUBLE";
constexpr const char* Date = "DATE";

constexpr int longestMaking = 20000; // milliseconds

constexpr Column Id{"Id", Integer, Rule::Autonumber};

const std::vector<Table>& tables()
{
    static const std::vector<Table> all = {
        {"SHOP",
         {Id,
          {"NAME", LongText},
          {"ADDRESS1", LongText, Rule::Nullable},
          {"ADDRESS2", LongText, Rule::Nullable},
          {"ADDRESS3", LongText, Rule::Nullable},
          {"CONTACTS", LongText, Rule::Nullable}}},
        {"ITEMS",
         {Id,
          {"NAME", LongText},
          {"NAMEHindi", LongText, Rule::Nullable},
          {"ItemDetails", LongText},
          {"ItemDetailsHindi", LongText, Rule::Nullable},
          {"FEES", Money},
          {"WorkerFees", Money, Rule::Required, "0"},
          {"OpPendingOrders", LongText, Rule::Nullable},
          {"ProdcutionCap", LongText, Rule::Nullable},
          {"PendingOrders", LongText, Rule::Nullable}}},
        {"Accounts",
         {Id,
          {"Title", LongText},
          {"Type", Integer},
          {"Nature", Integer, Rule::Required, "0"},
          {"ADDRESS", LongText, Rule::Nullable},
          {"CITY", LongText, Rule::Nullable},
          {"STATE", LongText, Rule::Nullable},
          {"MOBILE", LongText, Rule::Nullable},
          {"DOB", Date, Rule::Nullable},
          {"readonly", Integer, Rule::Required, "0"}}},
        // The number of a card is the program's choice: no autonumber here.
        {"JOBS",
         {{"Id", Integer, Rule::Required, "1"},
          {"DATE", Date},
          {"ClintID", Integer},
          {"ClintName", LongText},
          {"DeliveryDate", Date},
          {"ClientDeliveryDate", Date, Rule::Nullable},
          {"TrialDate", Date},
          {"appeared", Integer, Rule::Required, "0"},
          {"appearedDate", Date, Rule::Nullable},
          {"AmountDue", Money},
          {"AmountPaid", Money},
          {"JobFinished", Integer},
          {"Remark", LongText},
          {"CashAccID", Integer, Rule::Required, "0"},
          {"Status", Integer},
          {"CancelReason", LongText}}},
        {"JOBS_DETAIL",
         {Id,
          {"DATE", Date},
          {"JobID", Integer},
          {"ItemSr", Integer, Rule::Required, "0"},
          {"ClintID", Integer},
          {"ClintName", LongText},
          {"ItemID", Integer},
          {"ItemName", LongText},
          {"QNT", Integer},
          {"FEES", Money},
          {"Amount", Money},
          {"Remarks", LongText},
          {"ItemDetails", LongText},
          {"ItemDetailsValue", LongText},
          {"WorkerID", Integer, Rule::Required, "0"},
          {"WorkerName", LongText, Rule::Nullable},
          {"JobDelDate", Date},
          {"CompletedDate", Date, Rule::Nullable},
          {"AltDate", Date, Rule::Nullable},
          {"DelToCustDate", Date, Rule::Nullable},
          {"DoneByWorker", Integer, Rule::Required, "0"},
          {"WorkerWagesDue", Money, Rule::Required, "0"},
          {"MarkAsPaid", Integer, Rule::Required, "0"},
          {"PayrollID", Integer, Rule::Required, "0"},
          {"Loc", LongText, Rule::Nullable},
          {"Img1", LongText, Rule::Nullable},
          {"Img2", LongText, Rule::Nullable},
          {"color", Double, Rule::Nullable},
          {"Score", Integer, Rule::Required, "0"},
          {"ClientFeedback", LongText, Rule::Required, "''"},
          {"ClientRemarks", LongText, Rule::Required, "''"},
          {"CuttingDate", Date},
          {"CuttingStatus", Integer, Rule::Nullable}}},
        {"Settings", {Id, {"SETTING", LongText}, {"VALUE", LongText}}},
        {"tmpHead",
         {Id,
          {"Date", LongText},
          {"JOBID", Integer},
          {"NAME", LongText},
          {"DELDATE", LongText},
          {"TrialDate", LongText},
          {"AMOUNTDUE", LongText},
          {"AMOUNTPAID", LongText},
          {"AMOUNT", LongText}}},
        {"tmpBody",
         {Id,
          {"JOBID", Integer},
          {"QNT", Integer},
          {"ItemNAME", LongText},
          {"Remarks", LongText},
          {"FESS", LongText},
          {"AMOUNT", LongText}}},
        {"postings",
         {Id,
          {"VID", Integer, Rule::Required, "0"},
          {"Vtype", Integer},
          {"sr", Integer, Rule::Required, "0"},
          {"Date", Date},
          {"AccID", Integer},
          {"RefID", Integer, Rule::Required, "0"},
          {"particulars", LongText},
          {"Remark", LongText},
          {"Amount", Money},
          {"Status", Integer, Rule::Required, "0"},
          {"isPayroll", Integer, Rule::Required, "0"}}},
        {"rank", {Id, {"NAME", LongText}, {"Score", Double}, {"Rating", Double}}},
        {"wagesregister",
         {Id,
          {"date", Date},
          {"Jobid", LongText},
          {"client", LongText},
          {"item", LongText},
          {"wages", Double},
          {"balance", Double},
          {"completed", LongText},
          {"status", LongText}}},
        {"accountbook",
         {Id,
          {"vid", LongText},
          {"date", Date},
          {"vaucher", LongText},
          {"particulars", LongText},
          {"debit", Double},
          {"credit", Double},
          {"remark", LongText}}},
    };
    return all;
}

QString declaration(const Column& column)
{
    QString text = QLatin1String(column.name) + u' ' + QLatin1String(column.type);
    if (column.rule == Rule::Autonumber)
        return text + " PRIMARY KEY AUTOINCREMENT"_L1;
    if (column.rule == Rule::Required)
        text += " NOT NULL"_L1;
    if (column.defaultValue)
        text += " DEFAULT "_L1 + QLatin1String(column.defaultValue);
    if (column.type == LongText)
        text += " COLLATE NOCASE"_L1;
    return text;
}

void createTable(ado::Connection& connection, const Table& table, const QString& kind = u"TABLE"_s)
{
    QStringList declarations;
    for (const Column& column : table.columns)
        declarations << declaration(column);
    connection.Execute(
        u"CREATE %1 %2 (%3)"_s.arg(kind, QLatin1String(table.name), declarations.join(", "_L1)));
}

void addBuiltInAccounts()
{
    struct Account
    {
        const char* title;
        int nature;
    };
    ado::Recordset& accounts = DE.rsaccounts;
    accounts.Open(u"Select * from accounts order by id"_s);
    for (const Account& account :
         {Account{"Wages", 1}, Account{"Sales", 0}, Account{"Purchase", 1}, Account{"Cash", 0}}) {
        accounts.AddNew();
        accounts["Title"] = QString::fromLatin1(account.title);
        accounts["Type"] = 2;
        accounts["Nature"] = account.nature;
        accounts["readonly"] = 1;
    }
    accounts.UpdateBatch();
    accounts.Close();
}

} // namespace

QString databasePassword() { return u"measuretwicecut"_s; }

QStringList tableNames()
{
    QStringList names;
    for (const Table& table : tables())
        names << QString::fromLatin1(table.name);
    return names;
}

void makeTemporaryTables(ado::Connection& connection)
{
    static const QStringList staging{u"tmpHead"_s, u"tmpBody"_s, u"rank"_s, u"wagesregister"_s,
                                     u"accountbook"_s};
    for (const Table& table : tables())
        if (staging.contains(QLatin1String(table.name)))
            createTable(connection, table, u"TEMP TABLE"_s);
}

void CreateDatabase()
{
    const QString path = session.databasePath();
    // Two first starts at once make one shop.
    QLockFile making(path + u".making"_s);
    if (!making.tryLock(longestMaking))
        throw ado::DatabaseError(path + u": another program is making this file."_s);
    if (QFileInfo(path).isFile())
        return;
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink())
        throw ado::DatabaseError(path + u": there is something else of this name."_s);
    // Built under another name: a power cut on the way leaves no half-made shop under the real one.
    const QString building = path + u".new"_s;
    const auto clearAway = [&] {
        DE.close();
        QFile::remove(building);
        QFile::remove(ado::journalOf(building));
    };
    clearAway();
    try {
        DE.connection().create(building, databasePassword());
        DE.connection().writeBatch([] {
            for (const Table& table : tables())
                createTable(DE.connection(), table);
            SetSetting(settings::DatabaseVersion, QString::number(DatabaseVersion));
            addBuiltInAccounts();
        });
        DE.close();
        // The journal of a database that is gone would be played back into this one.
        QFile::rename(ado::journalOf(path), ado::journalOf(path + u".lost"_s));
        files::keepPrivate(building);
        if (!files::renameUnlessTaken(building, path))
            throw ado::DatabaseError(path + u": the file cannot be given its name."_s);
        files::sync(session.appFolder);
    } catch (...) {
        clearAway();
        throw;
    }
    clearAway();
}
