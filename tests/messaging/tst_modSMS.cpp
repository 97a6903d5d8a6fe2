#include "core/DE.h"
#include "core/Settings.h"
#include "messaging/modSMS.h"
#include "support/Shop.h"

#include <QTest>
#include <memory>

/// The wording of messages and what they look up.
class tst_modSMS : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void draftsAreFilledIn();
    void clientsMobileAndContact();
    void allItemsInOneState();

private:
    void addLine(qint32 job, int state);

    std::unique_ptr<Shop> m_shop;
};

void tst_modSMS::init()
{
    m_shop.reset();
    m_shop = std::make_unique<Shop>();
}

void tst_modSMS::draftsAreFilledIn()
{
    QCOMPARE(MakeJobRegisteredSms(1000, 301),
             QStringLiteral("Dear Customer\r Your Job ID # 1000\r of Rs. 301 has been booked. "
                            "To track job status call us with this ID.\r\r\r"));
    QCOMPARE(MakeJobFinishedSms(7, 0), QStringLiteral("Dear Customer Your Job ID # 7 has been completed. "
                                                      "Please visit our shop to collect clothes.\r\r\r"));
    QCOMPARE(MakeDueBalanceSms(QStringLiteral("250.00 Dr")),
             QStringLiteral("Dear Customer\r Your Due Balance is : Rs. 250.00 Dr\r\r\r"));

    SetSetting(10, QStringLiteral("O'Neil Tailors"));
    SetSetting(24, QStringLiteral("%eid%/%eid%: %amount%"));
    SetSetting(25, QStringLiteral("done"));
    SetSetting(26, QStringLiteral("pay %amount%%amount%"));
    QCOMPARE(MakeJobRegisteredSms(12, 0.5), QStringLiteral("12/12: 0.5\rO'Neil Tailors"));
    QCOMPARE(MakeJobFinishedSms(12, 5), QStringLiteral("done\rO'Neil Tailors"));
    QCOMPARE(MakeDueBalanceSms(QStringLiteral("1")), QStringLiteral("pay 11"));
}

void tst_modSMS::clientsMobileAndContact()
{
    const auto oneil = qint16(m_shop->addClient(QStringLiteral("Sean O'Neil"), QStringLiteral("98")));
    const auto asha = qint16(m_shop->addClient(QStringLiteral("Asha"), QStringLiteral("97")));
    const auto ravi = qint16(m_shop->addWorker(QStringLiteral("Ravi")));
    DE.connection().Execute(QStringLiteral("Update Accounts set Mobile='96' where Title='Ravi'"));

    QCOMPARE(GetClientMobile(QStringLiteral("sean o'neil"), 0), QStringLiteral("98"));
    QCOMPARE(GetClientMobile(QStringLiteral("Sean O'Neil"), asha), QStringLiteral("97")); // the id wins
    QCOMPARE(GetClientMobile(QString(), oneil), QStringLiteral("98"));
    QCOMPARE(GetClientMobile(QStringLiteral("Asha"), 999), QStringLiteral("97"));
    QVERIFY(GetClientMobile(QStringLiteral("Ravi"), ravi).isEmpty()); // no worker is a client
    QVERIFY(GetClientMobile(QString(), 0).isEmpty());

    DE.connection().Execute(
        QStringLiteral("Update Accounts set Address='Lane 3', City='Agra' where Title='Asha'"));
    QCOMPARE(GetClientContact(asha), QStringLiteral("97   Lane 3   Agra    "));
    DE.connection().Execute(QStringLiteral("Update Accounts set Mobile=Null where Title='Ravi'"));
    QCOMPARE(GetClientContact(ravi), QStringLiteral("No Information Found"));
    QVERIFY(GetClientContact(0).isNull());
    QVERIFY(GetClientContact(999).isEmpty());
}

void tst_modSMS::addLine(qint32 job, int state)
{
    ado::Recordset line(DE.connection());
    line.Open(QStringLiteral("Select * from Jobs_Detail"));
    line.AddNew();
    for (const char* date : {"Date", "JobDelDate", "CuttingDate"})
        line[date] = QDate(2024, 2, 10);
    for (const char* number : {"ClintID", "ItemID", "QNT", "Fees", "Amount"})
        line[number] = 1;
    for (const char* text : {"ClintName", "ItemName", "Remarks", "ItemDetails", "ItemDetailsValue"})
        line[text] = QString();
    line["JobID"] = job;
    line["DoneByWorker"] = state;
    line.Update();
}

void tst_modSMS::allItemsInOneState()
{
    QVERIFY(AllItemsCompleted(1) && AllItemsDelivered(1)); // a card without lines counts as both
    addLine(1, 1);
    addLine(1, 1);
    addLine(2, 2);
    QVERIFY(AllItemsCompleted(1) && !AllItemsDelivered(1));
    QVERIFY(!AllItemsCompleted(2) && AllItemsDelivered(2));
    addLine(1, 2);
    QVERIFY(!AllItemsCompleted(1) && !AllItemsDelivered(1));
}

QTEST_GUILESS_MAIN(tst_modSMS)
#include "tst_modSMS.moc"
