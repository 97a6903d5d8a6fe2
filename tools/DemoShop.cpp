#include "DemoShop.h"

#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/Startup.h"
#include "jobcards/JobCard.h"

namespace demo {

namespace {

struct Item
{
    const char* name;
    double fees;
    double wage;
    const char* details;
    const char* values;
};

constexpr Item items[] = {
    {"Shirt", 450, 140, "Length\r\nChest\r\nWaist\r\nShoulder\r\nSleeve\r\nCollar\r\nCuff\r\nDouble Pocket",
     "29.5\r\n42\r\n40\r\n18.5\r\n24.5\r\n16\r\n9.5\r\nYes"},
    {"Trouser", 550, 170, "Length\r\nWaist\r\nHip\r\nThigh\r\nKnee\r\nBottom\r\nPleats=2",
     "41\r\n36\r\n41\r\n25\r\n18\r\n15.5\r\n2"},
    {"Suit (2 piece)", 4800, 1500,
     "Coat Length\r\nChest\r\nWaist\r\nShoulder\r\nSleeve\r\nCross Back\r\nTrouser Length\r\nHip",
     "29\r\n42\r\n39\r\n18.5\r\n25\r\n17\r\n41\r\n42"},
    {"Sherwani", 6500, 2200, "Length\r\nChest\r\nWaist\r\nHip\r\nShoulder\r\nSleeve\r\nCollar",
     "43\r\n42\r\n40\r\n43\r\n18.5\r\n25\r\n16.5"},
    {"Kurta", 600, 180, "Length\r\nChest\r\nShoulder\r\nSleeve\r\nCollar\r\nSide Slit=Yes",
     "40\r\n43\r\n18.5\r\n24\r\n16\r\nYes"},
    {"Waistcoat", 1200, 380, "Length\r\nChest\r\nWaist\r\nShoulder", "25\r\n42\r\n40\r\n15"},
    {"Blouse", 400, 150, "Length\r\nBust\r\nWaist\r\nSleeve\r\nNeck Depth", "15\r\n36\r\n31\r\n9\r\n7"},
    {"Lehenga", 3200, 1100, "Length\r\nWaist\r\nHip\r\nFlare", "42\r\n31\r\n39\r\n144"},
};

void addAccounts(int type, std::initializer_list<const char*> titles, const char* city)
{
    ado::Recordset& accounts = DE.rsaccounts;
    accounts.Open(QStringLiteral("Select * from Accounts"));
    int number = 0;
    for (const char* title : titles) {
        accounts.AddNew();
        accounts["Title"] = QString::fromUtf8(title);
        accounts["Type"] = type;
        accounts["Address"] = QStringLiteral("%1, Station Road").arg(12 + 7 * number);
        accounts["City"] = QString::fromLatin1(city);
        accounts["State"] = QStringLiteral("Rajasthan");
        accounts["Mobile"] = QString::number(9829014523 + 3187 * number++);
        accounts["dob"] = QDate(1985, 3, 14).addDays(97 * number);
    }
    accounts.UpdateBatch();
    accounts.Close();
}

void addItems()
{
    ado::Recordset& rows = DE.rsITEMS;
    rows.Open(QStringLiteral("Select * from Items"));
    for (const Item& item : items) {
        rows.AddNew();
        rows["Name"] = QString::fromLatin1(item.name);
        rows["Fees"] = item.fees;
        rows["WorkerFees"] = item.wage;
        rows["ItemDetails"] = QString::fromLatin1(item.details);
        rows["ProdcutionCap"] = QStringLiteral("6");
        rows["OpPendingOrders"] = QStringLiteral("0");
    }
    rows.UpdateBatch();
    rows.Close();
}

struct Line
{
    int item;
    int quantity;
    const char* remark;
    qint32 color;
};

void addCard(const char* client, const QDate& day, double paid, std::initializer_list<Line> lines)
{
    JobCard card;
    JobCardHead head;
    head.Number = JobCard::GetNewNum();
    head.Date = day;
    head.Client = QString::fromLatin1(client);
    head.DeliveryDate = day.addDays(7);
    head.TrialDate = day.addDays(4);
    head.Paid = Currency::fromDouble(paid);
    head.ReceiptAccount = QStringLiteral("Cash");
    double total = 0;
    for (const Line& line : lines) {
        const Item& item = items[line.item];
        const double amount = line.quantity * item.fees;
        total += amount;
        const QString names =
            QString::fromLatin1(item.details).remove(QStringLiteral("=Yes")).remove(QStringLiteral("=2"));
        card.JobRows.AddNewRow(0, QString::fromLatin1(item.name), line.item + 1, line.quantity, item.fees,
                               amount, QString::fromLatin1(line.remark), names,
                               QString::fromLatin1(item.values), 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {},
                               QString::number(line.color), 0, {},
                               QStringLiteral("Likes a loose fit at the shoulders"));
    }
    head.Total = Currency::fromDouble(total);
    card.SaveNew(head);
}

void saveProfile()
{
    ado::Recordset& shop = DE.rsSHOP;
    shop.Open(QStringLiteral("Select * from Shop"));
    shop.AddNew();
    shop["Name"] = QStringLiteral("Rangoli Tailors");
    shop["Address1"] = QStringLiteral("14, Johari Bazaar");
    shop["Address2"] = QStringLiteral("Near Sanganeri Gate");
    shop["Address3"] = QStringLiteral("Jaipur 302003");
    shop["Contacts"] = QStringLiteral("0141-2570000, 98290 14523");
    shop.UpdateBatch();
    shop.Close();
    SetSetting(13, QStringLiteral("7"));
    SetSetting(23, QStringLiteral("1001"));
}

} // namespace

void layShop(const QString& folder)
{
    session = Session();
    session.appFolder = folder;
    CreateDatabase();
    DE.open(session.databasePath());
    MakeImagesFolder();
    DE.ensureIndexes();
    saveProfile();
    addAccounts(0, {"Aarti Sharma",    "Ajay Verma",     "Anil Mathur",    "Deepak Joshi", "Farhan Khan",
                    "Gauri Iyer",      "Harpreet Singh", "Imran Qureshi",  "Kavita Nair",  "Lakshmi Rao",
                    "Manoj Agarwal",   "Neha Gupta",     "Pooja Bansal",   "Rahul Mehta",  "Rekha Pillai",
                    "Sanjay Kulkarni", "Sunita Devi",    "Vikram Rathore", "Vinod Saxena", "Zoya Ansari"},
                "Jaipur");
    addAccounts(1, {"Abdul Rashid", "Girdhari Lal", "Mohan Das", "Ramesh Tailor", "Salim Bhai"}, "Jaipur");
    addItems();
    session.WorkingDate = QDate(2024, 2, 10);
    session.ShopName = QStringLiteral("Rangoli Tailors");
    addCard("Rahul Mehta", QDate(2023, 11, 2), 1000,
            {{0, 2, "Cutaway collar", 0xD8B48C}, {1, 1, "", 0x4A3A2C}});
    addCard("Kavita Nair", QDate(2024, 1, 18), 400,
            {{6, 3, "Lining in cotton", 0x6A3FB0}, {7, 1, "Gota border", 0x2C3CB8}});
    addCard("Vikram Rathore", QDate(2024, 2, 3), 3000, {{3, 1, "Antique gold buttons", 0x9FD4E8}});
    addCard("Rahul Mehta", session.WorkingDate, 2500,
            {{2, 1, "Notch lapel, two buttons", 0x5A3A20},
             {0, 3, "French cuffs on one", 0xF0E6DC},
             {1, 2, "No pleats", 0x3C3C3C},
             {5, 1, "", 0x5A3A20},
             {4, 2, "Mandarin collar", 0xBCE4F4}});
}

} // namespace demo
