#include "core/store/Settings.h"
#include "jobcards/frmEditJOB.h"
#include "registers/frmSearchClient.h"
#include "support/ShopTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

forms::ListView& results(QWidget& screen) { return listView(screen, "lvResults"); }

} // namespace

class tst_frmSearchClient : public ShopTest
{
    Q_OBJECT

    void lay() override
    {
        for (const auto& name : {u"Ravi Roy"_s, u"D'Souza"_s, u"100% Cotton"_s, u"मीरा देवी"_s, u"Roy Das"_s})
            shop->addClient(name, u"98290%1"_s.arg(name.size()));
        shop->addWorker(u"Royston"_s);
    }

private Q_SLOTS:
    void findsByAnyPartOfAField_data()
    {
        QTest::addColumn<QString>("field");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("found");
        QTest::addColumn<int>("selected");
        const char* name = "txtName";
        QTest::newRow("no worker; the first name that begins so")
            << name << u"roy"_s << QStringList{u"Ravi Roy"_s, u"Roy Das"_s} << 1;
        QTest::newRow("apostrophe") << name << u"'"_s << QStringList{u"D'Souza"_s} << -1;
        QTest::newRow("the other apostrophe") << name << u"d\u2019s"_s << QStringList{u"D'Souza"_s} << 0;
        QTest::newRow("wildcards") << name << u"1_0%c"_s << QStringList{u"100% Cotton"_s} << -1;
        QTest::newRow("Hindi") << name << u"मीरा"_s << QStringList{u"मीरा देवी"_s} << 0;
        QTest::newRow("another field")
            << "txtMobile" << u"907"_s << QStringList{u"D'Souza"_s, u"Roy Das"_s} << -1;
        QTest::newRow("nobody") << "txtCity" << u"x"_s << QStringList() << -1;
    }
    void findsByAnyPartOfAField()
    {
        QFETCH(QString, field);
        QFETCH(QString, text);
        inModal<frmSearchClient>([&](frmSearchClient& search) {
            fillIn(search, "txtAddress", u"left over"_s); // boxes are not combined
            fillIn(search, field.toLatin1(), text);
            QStringList names;
            for (int row = 0; row < results(search).rowCount(); ++row)
                names << results(search).cell(row, 0);
            QTEST(names, "found");
            QTEST(results(search).selectedRow(), "selected");
            QCOMPARE(focused(search), field);
        });
    }

    void walksTheListFromTheBox()
    {
        QString client = u"old"_s;
        qint16 showAll = 7;
        onNextModal<frmSearchClient>([](frmSearchClient& search) {
            press(Qt::Key_Return); // nothing to take: it stays open
            QVERIFY(search.isVisible());
            fillIn(search, "txtMobile", u"98290"_s);
            press(Qt::Key_Down);
            press(Qt::Key_Up);
            QCOMPARE(results(search).selectedRow(), 0);
            for (int i = 0; i < 6; ++i)
                press(Qt::Key_Down);
            press(Qt::Key_Up);
            QCOMPARE(focused(search), u"txtMobile"_s);
            click(search, "opShowAllUndel");
            press(Qt::Key_Return);
            QVERIFY(!search.isVisible());
        });
        SearchClient2(showAll, client);
        QCOMPARE(client, u"मीरा देवी"_s);
        QCOMPARE(showAll, 1);
        QCOMPARE(GetSetting(28, {}), u"1"_s);

        onNextModal<frmSearchClient>([](frmSearchClient& search) {
            QVERIFY(checked(search, "opShowAllUndel"));
            fillIn(search, "txtName", u"r"_s);
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
                fillIn(search, "txtMobile", u"908"_s); // found alone: there is no doubt
                press(Qt::Key_Return);
            });
            press(Qt::Key_Q, Qt::AltModifier);
            QCOMPARE(combo(job, "cmbClient").text(), u"Ravi Roy"_s);
            QTRY_COMPARE(focused(job), u"cmbClient"_s);
        });
        frmEditJOB().ShowAddNew();
    }
};

QTEST_MAIN(tst_frmSearchClient)
#include "tst_frmSearchClient.moc"
