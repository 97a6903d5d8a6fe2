#include "BigShop.h"

#include "core/DE.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Startup.h"

#include <random>

namespace {

constexpr int firstItem = 1;
constexpr int items = 20;
constexpr int workers = 20;
constexpr int firstAccount = 5; // behind the four built-in ones
constexpr int sales = 2;
constexpr int cash = 4;

void addAccounts()
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Accounts"));
    const auto add = [&rows](const QString& title, int type) {
        rows.AddNew();
        rows["Title"] = title;
        rows["Type"] = type;
        rows["Mobile"] = QStringLiteral("9829012345");
        rows.Update();
    };
    for (int i = 0; i < BigShop::clients; ++i)
        add(BigShop::clientName(i), 0);
    for (int i = 0; i < workers; ++i)
        add(QStringLiteral("Worker %1").arg(i), 1);
}

void addItems()
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Items"));
    for (int i = 0; i < items; ++i) {
        rows.AddNew();
        rows["Name"] = QStringLiteral("Garment %1").arg(i);
        rows["ItemDetails"] = QStringLiteral("Length\r\nChest\r\nWaist\r\nSleeve\r\nCollar");
        rows["Fees"] = 350.0;
        rows["WorkerFees"] = 120.0;
        rows.Update();
    }
}

struct Cards
{
    ado::Recordset jobs{DE.connection()};
    ado::Recordset lines{DE.connection()};
    ado::Recordset postings{DE.connection()};

    void add(int number, int client, const QDate& day)
    {
        const QString name = BigShop::clientName(client);
        const int account = firstAccount + client;
        jobs.AddNew();
        jobs["Id"] = number;
        for (const char* date : {"DATE", "DeliveryDate", "TrialDate"})
            jobs[date] = day;
        jobs["ClintID"] = account;
        jobs["ClintName"] = name;
        jobs["AmountDue"] = 700.0;
        jobs["AmountPaid"] = 200.0;
        jobs["JobFinished"] = 0;
        jobs["Remark"] = QString();
        jobs["CashAccID"] = cash;
        jobs["Status"] = 0;
        jobs["CancelReason"] = QString();
        jobs.Update();
        for (int i = 1; i <= BigShop::linesPerCard; ++i)
            addLine(number, i, account, name, day);
        addPosting(number, 1, account, sales, -700, day);
        addPosting(number, 2, sales, account, 700, day);
        addPosting(number, 3, cash, account, -200, day);
        addPosting(number, 4, account, cash, 200, day);
    }

    void addLine(int job, int serial, int account, const QString& name, const QDate& day)
    {
        const int item = firstItem + (job + serial) % items;
        lines.AddNew();
        for (const char* date : {"DATE", "JobDelDate", "CuttingDate"})
            lines[date] = day;
        lines["JobID"] = job;
        lines["ItemSr"] = serial;
        lines["ClintID"] = account;
        lines["ClintName"] = name;
        lines["ItemID"] = item;
        lines["ItemName"] = QStringLiteral("Garment %1").arg(item - firstItem);
        lines["QNT"] = 1;
        lines["FEES"] = 350.0;
        lines["Amount"] = 350.0;
        lines["Remarks"] = QString();
        lines["ItemDetails"] = QStringLiteral("Length\r\nChest\r\nWaist\r\nSleeve\r\nCollar");
        lines["ItemDetailsValue"] = QStringLiteral("28\r\n40\r\n36\r\n24\r\n15.5");
        lines.Update();
    }

    void addPosting(int voucher, int serial, int account, int reference, double amount, const QDate& day)
    {
        postings.AddNew();
        postings["VID"] = voucher;
        postings["Vtype"] = 1;
        postings["sr"] = serial;
        postings["Date"] = day;
        postings["AccID"] = account;
        postings["RefID"] = reference;
        postings["particulars"] = serial <= 2 ? QStringLiteral("Sales") : QStringLiteral("Receipt");
        postings["Remark"] = QStringLiteral("Job Card # :%1").arg(voucher);
        postings["Amount"] = amount;
        postings.Update();
    }
};

void addCards()
{
    std::mt19937 random(1985);
    Cards cards;
    cards.jobs.Open(QStringLiteral("Select * from JOBS"));
    cards.lines.Open(QStringLiteral("Select * from JOBS_DETAIL"));
    cards.postings.Open(QStringLiteral("Select * from Postings"));
    const QDate first(2019, 1, 1);
    for (int i = 0; i < BigShop::cards; ++i)
        cards.add(i + 1, static_cast<int>(random() % BigShop::clients), first.addDays(i / 9));
}

} // namespace

QString BigShop::clientName(int number)
{
    // Scattered over the alphabet, as names are.
    const int scattered = static_cast<int>((static_cast<qint64>(number) * 7919) % 26);
    return QStringLiteral("%1sha Client %2").arg(QChar(u'A' + scattered)).arg(number);
}

BigShop::BigShop()
{
    session = Session();
    session.appFolder = m_folder.path();
    CreateDatabase();
    DE.open(session.databasePath());
    DE.connection().writeBatch([] {
        addAccounts();
        addItems();
        addCards();
    });
    DE.ensureIndexes();
    LoadSessionDefaults();
    session.WorkingDate = QDate(2024, 2, 10);
}

BigShop::~BigShop() { DE.close(); }
