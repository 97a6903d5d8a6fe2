#include "core/store/MobileNumber.h"
#include "masters/frmBringIn.h"
#include "masters/frmClients.h"
#include "masters/frmItems.h"
#include "platform/forms/ListSheet.h"
#include "platform/values/VCards.h"
#include "support/Refusal.h"
#include "support/ShopTest.h"

#include <QFileDialog>

using bringin::Fate;
using bringin::Kind;

static QString allClients()
{
    return "Select Title, Mobile, City, DOB from Accounts where Type=0 order by Id";
}

class tst_bringin : public ShopTest
{
    Q_OBJECT

    QString file(const QByteArray& bytes, const QString& name = "list.csv")
    {
        return writeFile(shop->folder() + '/' + name, bytes);
    }
    bringin::Source source(Kind kind, const QByteArray& bytes)
    {
        return bringin::readSource(kind, file(bytes));
    }
    bringin::Plan plan(Kind kind, const QByteArray& bytes)
    {
        const bringin::Source read = source(kind, bytes);
        const bool titles = bringin::hasTitles(kind, read);
        return bringin::plan(kind, read, titles, bringin::guessColumns(kind, read, titles));
    }
    /// Row number, what becomes of it, and why, of each row.
    static QStringList fates(const bringin::Plan& plan)
    {
        QStringList all;
        for (const bringin::Line& line : plan.lines)
            all << QString::number(line.row) + " +=!"[size_t(line.fate) + 1] + line.title +
                       (line.why.isEmpty() ? QString() : QString(": " + line.why));
        return all;
    }
    static QStringList texts(const bringin::Line& line) { return {line.texts.begin(), line.texts.end()}; }

    void anotherShop()
    {
        shop.reset(); // there is one at a time
        shop = std::make_unique<Shop>();
    }

    /// Chooses the file where the list asks for it.
    static void chooseFile(const QString& path)
    {
        onNextModal<QFileDialog>([path](QFileDialog& dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
    }

private Q_SLOTS:
    void numbersAreKnownByTheirDigits()
    {
        for (const char* spelling : {"+91 98290 12345", "9829012345", "098290-12345", "0091 9829012345",
                                     "(98290) 12345", "९८२९०१२३४५", "91-98290-12345"}) {
            QCOMPARE(mobileDigits(spelling), "9829012345");
            QCOMPARE(storedMobile(spelling), "9829012345");
        }
        QCOMPARE(mobileDigits("9112345678"), "9112345678"); // 91 belongs to it
        QCOMPARE(mobileDigits("12 34"), QString());
        QCOMPARE(storedMobile("9829012345 / 0141-2223344"), "9829012345 / 0141-2223344");
        QCOMPARE(storedMobile("none"), "none");
    }

    void tablesOfAllShapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("first");
        const QStringList anita{"Anita Rao", "9829012345", "12, Mill Road", "Pune", "MH", "17-May-1990"};
        QTest::newRow("comma, mark, CRLF")
            << QByteArray(
                   "\xEF\xBB\xBF"
                   "Client Name,Mobile Number,Address,City/Town/Village,State/Provision,"
                   "Date of Birth\r\nAnita Rao,+91 98290 12345,\"12, Mill Road\",Pune,MH,1990-05-17\r\n")
            << anita;
        QTest::newRow("semicolon, other order, line break, no end")
            << QByteArray("DOB;E-mail Address;Phone 1 - Type;Phone 1 - Value;Name;Address;State;City\n"
                          "17/05/1990;a@b.c;Mobile;098290 12345;Anita Rao;\"12\nMill Road\";MH;Pune")
            << QStringList{"Anita Rao", "9829012345", "12, Mill Road", "Pune", "MH", "17-May-1990"};
        QTest::newRow("tab, no titles")
            << QByteArray("Anita Rao\t9829012345\t12, Mill Road\tPune\tMH\t17-5-1990\n"
                          "Bela\t9829012346\tOld Lane 2\tPune\tMH\t\n")
            << anita;
        QTest::newRow("quotation marks, kept from being computed")
            << QByteArray("Name,Mobile\r\"\"\"Anu\"\" O'Rao\",\"=\"\"9829012345\"\"\"\r")
            << QStringList{"\"Anu\" O’Rao", "9829012345", "", "", "", ""};
        QTest::newRow("names in parts")
            << QByteArray("First Name,Phonetic First Name,Last Name,Phone 1 - Value\nAnita,,Rao,9829012345\n")
            << QStringList{"Anita Rao", "9829012345", "", "", "", ""};
        QTest::newRow("names alone") << QByteArray("Anita, Rao\n")
                                     << QStringList{"Anita", "", "Rao", "", "", ""};
    }
    void tablesOfAllShapes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QStringList, first);
        const bringin::Plan sorted = plan(Kind::Clients, bytes);
        QCOMPARE(texts(sorted.lines.at(0)), first);
        QCOMPARE(sorted.lines[0].fate, Fate::New);
    }

    void contactsOfTelephones()
    {
        const QByteArray cards =
            "BEGIN:VCARD\r\nVERSION:3.0\r\nN:Rao;Anita;;Mrs.;\r\nFN:Anita Rao \r\n & Sons\\, Pune\r\n"
            "TEL;TYPE=HOME:0141 222334\r\nitem1.TEL;TYPE=\"cell,voice\":+91 98290\r\n  "
            "12345\r\nBDAY:19900517\r\n"
            "ADR;TYPE=HOME:;;12 Mill "
            "Road\\nBack;Pune;MH;411001;India\r\nEMAIL:a@b.c\r\nNOTE:tall\r\nEND:VCARD\r\n"
            "BEGIN:VCARD\nVERSION:4.0\nFN:Bela\nTEL;VALUE=uri;TYPE=cell:tel:+91-98290-12346\nBDAY:--0517\n"
            "END:VCARD\nBEGIN:VCARD\nVERSION:2.1\nN;CHARSET=UTF-8;ENCODING=QUOTED-PRINTABLE:=E0=A4=B0=E0=A4="
            "\n"
            "=BE=E0=A4=AE;;;;\nTEL;CELL:9829012347\nEND:VCARD\n";
        const bringin::Plan sorted = plan(Kind::Clients, cards);
        QCOMPARE(fates(sorted), QStringList({"1+Anita Rao & Sons, Pune", "2+Bela", "3+राम"}));
        QCOMPARE(texts(sorted.lines[0]),
                 QStringList({"Anita Rao & Sons, Pune", "9829012345", "12 Mill Road, Back, 411001", "Pune",
                              "MH", "17-May-1990"}));
        QCOMPARE(sorted.lines[1].texts[1] + sorted.lines[1].texts[5], "9829012346");
        QVERIFY(refusal([&] { plan(Kind::Clients, cards.chopped(20)); }).contains("the file was cut"));
        QVERIFY(refusal([&] { plan(Kind::Items, cards); }).contains("no items"));
    }

    void filesThatCannotBeRead()
    {
        const auto refused = [this](const QByteArray& bytes) {
            return refusal([&] { source(Kind::Clients, bytes); }).section("list.csv ", 1);
        };
        QCOMPARE(refused(""), "is empty.");
        QCOMPARE(refused("\xEF\xBB\xBF\r\n"), "is empty.");
        QVERIFY(refused(QByteArray("\xFF\xFE"
                                   "A\0n\0",
                                   6))
                    .startsWith("is written in UTF-16, not in UTF-8."));
        QVERIFY(refused(QByteArray("A\0n\0i\0", 6)).startsWith("is written in UTF-16"));
        QVERIFY(refused("Name\nAnita\nRen\xE9\n").startsWith("is not written in UTF-8: its line 3 has"));
        QCOMPARE(refused(QByteArray("\x7F"
                                    "ELF and more\0of it",
                                    18)),
                 "holds no text.");
        QVERIFY(refusal([&] {
                    source(Kind::Clients, "Anita\nBela,\"x\nChand\n");
                }).contains("row 2 and is never"));
        const auto read = [this](const QString& name) {
            return refusal([&] { bringin::readSource(Kind::Clients, shop->folder() + '/' + name); });
        };
        QVERIFY(read("gone.csv").endsWith("gone.csv cannot be read: No such file or directory."));
        QVERIFY(read(".").endsWith(" is a folder, not a file."));
    }

    /// What is new, what is there, what cannot be taken, each with its reason.
    void rowsAreSorted()
    {
        shop->addClient("Anita O’Rao", "+91 98290 12345");
        shop->addWorker("Yusuf");
        const QString longName = QString("Name ").repeated(30).trimmed();
        QCOMPARE(
            fates(plan(Kind::Clients, ("Name,Mobile,DOB\nANITA O'RAO,1,\nBela,98290-12345,\nyusuf,,\ncash,,\n"
                                       ",9829011111,\n\n=1+1,,\nChand,9.82901E+09,\nDina,,31/2/1990\n"
                                       "Esha,9829022222,\n  esha ,,\nFarid,+919829022222,\n'=Gopal,,\n" +
                                       longName + ",,\n")
                                          .toUtf8())),
            QStringList(
                {"2=ANITA O’RAO: the shop has this name", "3=Bela: Anita O’Rao has this mobile number",
                 "4!yusuf: a worker has this name", "5!cash: an account of the ledger has this name",
                 "6!: it has no name", "8!: “=1+1” is a formula, not what it gives",
                 "9!Chand: the spreadsheet has rounded the mobile number to 9.82901E+09",
                 "10!Dina: the date of birth “31/2/1990” is no date", "11+Esha",
                 "12!esha: row 11 has this name too", "13!Farid: row 11, Esha, has this mobile number too",
                 "14+=Gopal", "15+" + longName}));
        shop->addItem("Shirt");
        const bringin::Plan items =
            plan(Kind::Items, "Name,Worker's Fee,Fee,Measurements\nshirt,,,\nCoat,\"Rs. 1,200.50\",300/-,"
                              "\"Length\n\nChest=40\"\nVest,,-5,\nKurta,,,\"Chest=40, Length\"\n");
        QCOMPARE(fates(items), QStringList({"2=shirt: the shop has this name", "3+Coat",
                                            "4!Vest: the fee “-5” is no amount", "5+Kurta"}));
        QCOMPARE(texts(items.lines[1]),
                 QStringList({"Coat", "300.00", "1200.50", "Length, Chest=40", "0", "0"}));
        QCOMPARE(bringin::take(items, {}), 2);
        QCOMPARE(
            Shop::rows("Select Fees, WorkerFees, ProdcutionCap, ItemDetails from Items where Name='Coat'"),
            QStringList("300 1200.5 0 Length\r\nChest=40"));
    }

    /// By keys: the file is chosen, the columns looked at and changed, all new ones come in.
    void clientsComeInByKeys()
    {
        shop->addClient("Bela");
        chooseFile(file("Name,Second,Mobile\nAnita,Pune,9829012345\nBela,,\nCash,,\n"));
        prompts->expect("1 client was brought in. 1 of the file were already there, 1 could not be taken.");
        inModal<frmClients>([](frmClients& list) {
            onNextModal<frmBringIn>([](frmBringIn& screen) {
                QCOMPARE(label(screen, "lblFile"), "list.csv, separated by commas: 3 rows, of which 1 new, 1 "
                                                   "already there, 1 cannot be taken");
                QCOMPARE(rowText(screen, 0), "2|new|Anita|9829012345||||");
                QCOMPARE(combo(screen, "cmbColumn1").text(), "Mobile (9829012345)");
                combo(screen, "cmbColumn3").setFocus(); // the city: none so far
                press(Qt::Key_Home);
                press(Qt::Key_Down);
                press(Qt::Key_Down);
                QCOMPARE(rowText(screen, 0), "2|new|Anita|9829012345||Pune||");
                combo(screen, "cmbShow").setFocus();
                press(Qt::Key_End);
                QCOMPARE(rowText(screen, 0),
                         "4|cannot be taken: an account of the ledger has this name|Cash|||||");
                QCOMPARE(listView(screen, "lvSummary").rowCount(), 1);
                press(Qt::Key_I, Qt::AltModifier);
                QVERIFY(!screen.isVisible());
            });
            press(Qt::Key_I, Qt::AltModifier);
            QCOMPARE(listBox(list, "lstSummary").List(0) + listBox(list, "lstSummary").List(1), "AnitaBela");
        });
        QCOMPARE(Shop::rows(allClients()), QStringList({"Bela   ", "Anita 9829012345 Pune "}));
        onNextModal<QFileDialog>([](QFileDialog&) {}); // left without a choice
        inModal<frmItems>([](frmItems&) { press(Qt::Key_I, Qt::AltModifier); });
    }

    /// A list as F12 saves it: all of it is there already; and it makes an empty shop's list the same.
    void savedListsComeBack()
    {
        const QStringList names{"=Gopal & Sons", "-Minus",          "Anita, Rao", "Bela \"B\" Rao",
                                "Chand; Sons",   "9829012345",      "O’Rao",      "@home",
                                "राम",           "Village Boutique"};
        const auto shown = [](SummaryList& list) {
            QStringList titles;
            for (int i = 0; i < listBox(list, "lstSummary").ListCount(); ++i)
                titles << listBox(list, "lstSummary").List(i);
            return titles;
        };
        for (const Kind kind : {Kind::Clients, Kind::Items}) {
            anotherShop();
            for (const QString& name : names)
                kind == Kind::Clients ? shop->addClient(name) : shop->addItem(name);
            QByteArray saved;
            QStringList before;
            const auto look = [&](SummaryList& list) {
                saved = forms::commaSeparated(forms::sheetOf(listBox(list, "lstSummary")));
                before = shown(list);
            };
            const auto compare = [&](SummaryList& list) { QCOMPARE(shown(list), before); };
            kind == Kind::Clients ? inModal<frmClients>(look) : inModal<frmItems>(look);
            QCOMPARE(before.size(), names.size());
            QCOMPARE(plan(kind, saved).count(Fate::There), int(names.size()));
            anotherShop();
            const bringin::Plan all = plan(kind, saved);
            QCOMPARE(bringin::take(all, {}), int(names.size()));
            kind == Kind::Clients ? inModal<frmClients>(compare) : inModal<frmItems>(compare);
        }
    }

    /// All or nothing: cancelled in the middle, or past the numbers that the shop has, nothing has come in.
    void allOrNothing()
    {
        QByteArray many("Name,Mobile\n");
        for (int i = 0; i < 10000; ++i)
            many += "Client " + QByteArray::number(i) + ",98" + QByteArray::number(10000000 + i) + '\n';
        const bringin::Plan sorted = plan(Kind::Clients, many);
        QCOMPARE(sorted.count(Fate::New), 10000);
        const int before = Shop::count("Select * from Accounts");
        std::stop_source stop;
        int steps = 0;
        const Progress progress{stop.get_token(),
                                [&](const QString&) { ++steps == 20 && stop.request_stop(); }};
        QVERIFY(refusal([&] { bringin::take(sorted, progress); }).contains("given up"));
        QCOMPARE(steps, 20);
        QCOMPARE(Shop::count("Select * from Accounts"), before);
        Shop::run("Insert into Accounts (Id, Title, Type) values (32000, 'Far', 0)");
        QVERIFY(refusal([&] {
                    bringin::take(sorted, {});
                }).endsWith("The numbers of the shop reach for 767 more, and the file brings 10000."));
        QCOMPARE(Shop::count("Select * from Accounts"), before + 1);
        Shop::run("Delete from Accounts where Id=32000");
        Shop::run("Delete from sqlite_sequence where name='Accounts'");
        QCOMPARE(bringin::take(sorted, {}), 10000);
        QCOMPARE(Shop::count("Select * from Accounts where Type=0"), 10000);
    }
};

QTEST_MAIN(tst_bringin)
#include "tst_bringin.moc"
