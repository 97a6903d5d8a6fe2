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
    void init()
    {
        m_shop.reset();
        m_shop = std::make_unique<Shop>();
    }

    void draftsAreFilledIn()
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
        SetSetting(26, QStringLiteral("pay %amount%%amount%"));
        QCOMPARE(MakeJobRegisteredSms(12, 0.5), QStringLiteral("12/12: 0.5\rO'Neil Tailors"));
        QCOMPARE(MakeDueBalanceSms(QStringLiteral("1")), QStringLiteral("pay 11"));
    }

    void clientsMobileAndContact()
    {
        const auto oneil = qint16(m_shop->addClient(QStringLiteral("Sean O'Neil"), QStringLiteral("98")));
        const auto asha = qint16(m_shop->addClient(QStringLiteral("Asha"), QStringLiteral("97")));
        const auto ravi = qint16(m_shop->addWorker(QStringLiteral("Ravi")));
        DE.connection().Execute(QStringLiteral("Update Accounts set Mobile=Null where Title='Ravi'"));
        DE.connection().Execute(
            QStringLiteral("Update Accounts set Address='Lane 3', City='Agra' where Title='Asha'"));

        QCOMPARE(GetClientMobile(QStringLiteral("sean o'neil"), 0), QStringLiteral("98"));
        QCOMPARE(GetClientMobile(QStringLiteral("Sean O'Neil"), asha), QStringLiteral("97")); // the id wins
        QCOMPARE(GetClientMobile(QString(), oneil), QStringLiteral("98"));
        QCOMPARE(GetClientMobile(QStringLiteral("Asha"), 999), QStringLiteral("97"));
        QVERIFY(GetClientMobile(QStringLiteral("Ravi"), ravi).isEmpty()); // no worker is a client

        QCOMPARE(GetClientContact(asha), QStringLiteral("97   Lane 3   Agra    "));
        QCOMPARE(GetClientContact(ravi), QStringLiteral("No Information Found"));
        QVERIFY(GetClientContact(999).isEmpty());
    }

    void allItemsInOneState()
    {
        QVERIFY(AllItemsCompleted(1) && AllItemsDelivered(1)); // a card without lines counts as both
        m_shop->addJobLine(1, 1);
        m_shop->addJobLine(1, 1);
        QVERIFY(!AllItemsCompleted(1) && !AllItemsDelivered(1));
        DE.connection().Execute(QStringLiteral("Update Jobs_Detail set DoneByWorker=1"));
        QVERIFY(AllItemsCompleted(1) && !AllItemsDelivered(1));
        DE.connection().Execute(QStringLiteral("Update Jobs_Detail set DoneByWorker=2"));
        QVERIFY(!AllItemsCompleted(1) && AllItemsDelivered(1));
        DE.connection().Execute(QStringLiteral("Update Jobs_Detail set DoneByWorker=1 where id=2"));
        QVERIFY(!AllItemsCompleted(1) && !AllItemsDelivered(1));
    }

private:
    std::unique_ptr<Shop> m_shop;
};

QTEST_GUILESS_MAIN(tst_modSMS)
#include "tst_modSMS.moc"
