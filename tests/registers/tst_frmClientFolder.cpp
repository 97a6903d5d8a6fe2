#include "core/shell/Look.h"
#include "jobcards/frmEditJOB.h"
#include "masters/ClientFolder.h"
#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "media/frmPreview.h"
#include "platform/report/Preview.h"
#include "registers/ClientHistory.h"
#include "registers/frmClientFolder.h"
#include "registers/frmSearchClient.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/ShopTest.h"

#include <QDir>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// A client's cards and measurements through time.
class tst_frmClientFolder : public ShopTest
{
    Q_OBJECT
    using Folder = frmClientFolder;

    qint32 client = 0;

    void lay() override
    {
        setClientFolder([](const QString& title) { frmClientFolder().ShowClient(title); });
        client = shop->addClient(u"D’Souza"_s, u"0981"_s);
        shop->addItem(u"Shirt"_s);
    }
    void addLine(int job, const QString& date, const QString& names, const QString& values,
                 const QString& set = u"Score=0"_s)
    {
        shop->addJobLine(
            client, 1, 0,
            u"JobID=%1, ItemSr=1, Date='%2', ItemName='Shirt', CuttingStatus=0, ItemDetails='%3', "
            "ItemDetailsValue='%4', %5"_s.arg(job)
                .arg(date, names, values, set));
    }
    static void inFolder(const QString& title, const std::function<void(Folder&)>& act)
    {
        onNextModal<Folder>(act);
        Folder().ShowClient(title);
    }
    static QStringList measures(QWidget& folder)
    {
        QStringList rows;
        for (int row = 0; row < listView(folder, "lvMeasures").rowCount(); ++row)
            rows << rowText(folder, row, "lvMeasures");
        return rows;
    }

private Q_SLOTS:
    void measurementsThroughTime()
    {
        addLine(1, u"2014-02-10"_s, u"Length\r\nChest\r\nWaist"_s, u"40\r\n38\r\n32"_s);
        addLine(2, u"2023-12-20"_s, u"CHEST \r\nLength"_s, u"38\r\n41"_s, u"Remarks='Loose'"_s);
        addLine(3, u"2024-02-09"_s, u"Length\r\nChest\r\nLapel\r\n"_s, u"41\r\n\r\n3"_s,
                u"ClientRemarks='no cuff'"_s);
        inFolder(u"D’Souza"_s, [&](Folder& folder) {
            QCOMPARE(focused(folder), u"lvGarments"_s);
            QCOMPARE(rowText(folder, 0, "lvGarments"), u"Shirt|3|09-Feb-2024"_s);
            QCOMPARE(measures(folder), QStringList({u"Length|52 days|41|41|40"_s, u"Chest|10 years||38|38"_s,
                                                    u"Lapel|1 day|3||"_s, u"Waist|10 years|||32"_s,
                                                    u"Remark|||Loose|"_s, u"Client note||no cuff||"_s}));
            const auto isMarked = [&](int row, int column) {
                return listView(folder, "lvMeasures").look(row, column).bold;
            };
            QVERIFY(isMarked(0, 3)); // longer than ten years before
            QVERIFY(!isMarked(0, 2) && !isMarked(0, 4) && !isMarked(1, 3) && !isMarked(2, 2));
            onNextModal<report::Preview>([](report::Preview&) {});
            press(Qt::Key_P, Qt::ControlModifier);
            press(Qt::Key_Return);
            QCOMPARE(focused(folder), u"lvMeasures"_s);
        });
    }

    void cardsAndPictures()
    {
        for (const int card : {5, 6, 7, 8})
            shop->addJob(card, client);
        Shop::run(u"Update Jobs set AmountDue=500, AmountPaid=200"_s);
        Shop::run(u"Update Jobs set Status=1 where Id=8"_s);
        const QString picture = session.imagesFolder() + u"/one.png"_s;
        QImage red(9, 9, QImage::Format_RGB32);
        red.fill(Qt::red);
        QVERIFY(QDir().mkpath(session.imagesFolder()) && red.save(picture));
        addLine(5, u"2024-02-01"_s, u"Length"_s, u"40"_s, u"DoneByWorker=2, Img1='C:\\old\\one.png'"_s);
        addLine(6, u"2024-02-01"_s, u"Length"_s, u"40"_s, u"DoneByWorker=1, Img2='gone.png'"_s);
        addLine(6, u"2024-02-01"_s, u"Length"_s, u"40"_s);
        inFolder(u"D’Souza"_s, [&](Folder& folder) {
            QStringList cards;
            for (int row = 0; row < 4; ++row)
                cards << rowText(folder, row, "lvCards");
            QCOMPARE(cards, QStringList({u"8|01-Feb-2024|Canceled|500.00|200.00"_s,
                                         u"7|01-Feb-2024|No garments|500.00|200.00"_s,
                                         u"6|01-Feb-2024|1 of 2 ready|500.00|200.00"_s,
                                         u"5|01-Feb-2024|Delivered|500.00|200.00"_s}));
            QPushButton* shown = nullptr;
            QStringList gone;
            for (QPushButton* button : folder.findChildren<QPushButton*>())
                if (button->accessibleName().startsWith(u"Picture of")) {
                    if (button->isEnabled())
                        QVERIFY(!std::exchange(shown, button));
                    else
                        gone << button->text();
                }
            QCOMPARE(gone, QStringList({u"gone"_s})); // not as if none had been taken
            const auto middle = [&] { return shown->icon().pixmap(64).toImage().pixelColor(32, 32); };
            QTRY_COMPARE(middle(), QColor(Qt::red)); // it comes when it has been read
            onNextModal<frmPreview>([](frmPreview&) {});
            shown->click();
            onNextModal<frmEditJOB>(
                [](frmEditJOB& card) { QCOMPARE(field(card, "txtJOBID").text(), u"8"_s); });
            listView(folder, "lvCards").setFocus();
            press(Qt::Key_Return);
        });
    }

    void opensFromWhereverTheClientStands()
    {
        addLine(1, u"2024-02-10"_s, u"Length"_s, u"40"_s);
        shop->addJob(1, client);
        const auto folderOpens = [] {
            onNextModal<Folder>([](Folder& folder) { QCOMPARE(label(folder, "lblClient"), u"D’Souza"_s); });
            press(Qt::Key_F3);
        };
        inModal<frmWorkerJobRegister>([&](frmWorkerJobRegister& list) {
            press(Qt::Key_F3); // on no row
            listView(list, "lvSummary").selectRow(0);
            folderOpens();
            QCOMPARE(listView(list, "lvSummary").selectedRow(), 0);
        });
        onNextModal<frmEditJOB>([&](frmEditJOB&) { folderOpens(); });
        frmEditJOB().ShowEdit(1);
        onNextModal<frmEditJOB>([&](frmEditJOB& card) {
            press(Qt::Key_F3); // no client yet
            combo(card, "cmbClient").setText(u"D’S"_s);
            press(Qt::Key_F3); // nor half of one
        });
        frmEditJOB().ShowAddNew();
        inModal<frmSearchClient>([&](frmSearchClient& search) {
            fillIn(search, "txtName", u"souza"_s);
            listView(search, "lvResults").selectRow(0);
            folderOpens();
        });
        inModal<frmClients>([&](frmClients&) {
            press(Qt::Key_Down);
            folderOpens();
        });
        onNextModal<frmEditClients>([&](frmEditClients&) { folderOpens(); });
        frmEditClients().Edit(qint16(client));
    }

    /// What was ordered before the new books is a key away, in the old ones.
    void olderOrdersAreInTheOldBooks()
    {
        setOldBooks(lookIntoBooks);
        addLine(1, u"2020-01-05"_s, u"Length"_s, u"30"_s);
        shop->addJob(1, client);
        QVERIFY(QFile::copy(session.databasePath(), shop->folder() + u"/data.books-to-2024-01-31.mdb"_s));
        Shop::run(u"Delete from Jobs_Detail"_s);
        shop->addClient(u"Bela"_s);
        prompts->expect(u"Bela is not in these old books."_s);
        inFolder(u"D’Souza"_s, [](Folder& folder) {
            QCOMPARE(measures(folder), QStringList());
            QCOMPARE(control<QPushButton>(folder, "cmdOldBooks").text(),
                     u"&Older Orders: books to 31-Jan-2024"_s);
            onNextModal<Folder>([](Folder& old) {
                QVERIFY(!measures(old).isEmpty() && !session.LookedAt.isEmpty());
                QVERIFY(!control<QPushButton>(old, "cmdOldBooks").isVisible());
                press(Qt::Key_Escape);
            });
            press(Qt::Key_O, Qt::AltModifier);
            QCOMPARE(session.LookedAt, QString());
        });
        inFolder(u"Bela"_s, [](Folder& folder) { click(folder, "cmdOldBooks"); });
    }

    /// One client with 2,000 cards: as many columns as a screen can use, and all of them counted.
    void aClientOfManyYears()
    {
        DE.connection().writeBatch([this] {
            for (int job = 1; job <= 2000; ++job)
                addLine(job, QDate(2010, 1, 1).addDays(job).toString(Qt::ISODate), u"Length"_s,
                        QString::number(30 + job / 1000));
        });
        const std::vector<history::Garment> garments = history::garmentsOf(client);
        QCOMPARE(garments.front().orders.size(), size_t(2000));
        QCOMPARE(garments.front().since(0), QDate(2010, 1, 1).addDays(2000));
        inFolder(u"D’Souza"_s,
                 [](Folder& folder) { QCOMPARE(listView(folder, "lvMeasures").model()->columnCount(), 62); });
        shop->addClient(u"New"_s);
        inFolder(u"New"_s, [](Folder& folder) { QCOMPARE(measures(folder), QStringList()); });
    }
};

QTEST_MAIN(tst_frmClientFolder)
#include "tst_frmClientFolder.moc"
