#include "jobcards/frmEditJOB.h"
#include "registers/frmSearchClient.h"
#include "support/ShopTest.h"

static forms::ListView& results(QWidget& screen) { return listView(screen, "lvResults"); }

class tst_frmSearchClient : public ShopTest
{
    Q_OBJECT

    void lay() override
    {
        for (const QString name : {"Ravi Roy", "D'Souza", "100% Cotton", "मीरा देवी", "Roy Das"})
            shop->addClient(name, u"98290%1"_s.arg(name.size()));
        const qint32 kiran = shop->addClient("Kiran", "+91 98111-22333");
        shop->addWorker("Royston");
        shop->addJob(290, kiran);
    }

private Q_SLOTS:
    void findsByAnyPartOfAField()
    {
        const std::tuple<const char*, const char*, const char*, int> searches[] = {
            {"txtName", "roy", "Ravi Roy|Roy Das", 1}, // no worker; the first name that begins so
            {"txtName", "'", "D'Souza", -1},
            {"txtName", "d\u2019s", "D'Souza", 0},
            {"txtName", "1_0%c", "100% Cotton", -1},
            {"txtName", "मीरा", "मीरा देवी", 0},
            {"txtMobile", "907", "D'Souza|Roy Das", -1},
            {"txtMobile", "98-29 08", "Ravi Roy", -1},
            {"txtMobile", "+91-982908", "Ravi Roy", -1},
            {"txtMobile", "9811122", "Kiran", -1}, // as the number is stored, with blanks in it
            {"txtName", "2 908", "Ravi Roy", -1},
            {"txtName", "0 9829-011", "100% Cotton", -1},
            {"txtName", "07", "", -1}, // two digits are in every other number
            {"txtName", "290/2", "Kiran", -1},
            {"txtName", "290", "Kiran|Ravi Roy|D'Souza|100% Cotton|मीरा देवी|Roy Das", -1}, // card first
            {"txtCity", "290", "", -1},
            {"txtCity", "x", "", -1}};
        inModal<frmSearchClient>([&](frmSearchClient& search) {
            for (const auto& [field, text, found, selected] : searches) {
                fillIn(search, "txtAddress", "left over"); // boxes are not combined
                fillIn(search, field, text);
                QStringList names;
                for (int row = 0; row < results(search).rowCount(); ++row)
                    names << results(search).cell(row, 0);
                QCOMPARE(names.join(u'|'), found);
                QCOMPARE(results(search).selectedRow(), selected);
                QCOMPARE(focused(search), field);
            }
        });
    }

    void walksTheListFromTheBox()
    {
        QString client = "old";
        qint16 showAll = 7;
        onNextModal<frmSearchClient>([](frmSearchClient& search) {
            press(Qt::Key_Return); // nothing to take: it stays open
            QVERIFY(search.isVisible());
            fillIn(search, "txtMobile", "98290");
            for (int i = 0; i < 6; ++i)
                press(Qt::Key_Down);
            press(Qt::Key_Up);
            QCOMPARE(focused(search), "txtMobile");
            click(search, "opShowAllUndel");
            press(Qt::Key_Return);
        });
        SearchClient2(showAll, client);
        QCOMPARE(client, "मीरा देवी");
        QCOMPARE(showAll, 1);
        QCOMPARE(GetSetting(28, {}), "1");

        onNextModal<frmSearchClient>([](frmSearchClient& search) {
            QVERIFY(checked(search, "opShowAllUndel"));
            fillIn(search, "txtName", "r");
            press(Qt::Key_Escape);
        });
        SearchClient2(showAll, client);
        QCOMPARE(client, QString());
    }

    void servesTheJobCard()
    {
        onNextModal<frmEditJOB>([](frmEditJOB& job) {
            onNextModal<frmSearchClient>([](frmSearchClient& search) {
                QVERIFY(!control<QWidget>(search, "fmQuery").isVisible());
                fillIn(search, "txtMobile", "908"); // found alone: there is no doubt
                press(Qt::Key_Return);
            });
            press(Qt::Key_Q, Qt::AltModifier);
            QCOMPARE(combo(job, "cmbClient").text(), "Ravi Roy");
            QTRY_COMPARE(focused(job), "cmbClient");
        });
        frmEditJOB().ShowAddNew();
    }
};

QTEST_MAIN(tst_frmSearchClient)
#include "tst_frmSearchClient.moc"
