#include "core/Settings.h"
#include "messaging/modSMS.h"
#include "support/Shop.h"

#include <QTest>

/// The wording of messages and what they look up.
class tst_modSMS : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void draftsAreFilledIn()
    {
        const Shop shop;
        QCOMPARE(MakeJobRegisteredSms(1000, 301), "Dear Customer\r Your Job ID # 1000\r of Rs. 301 has been "
                                                  "booked. To track job status call us with "
                                                  "this ID.\r\r\r");
        QCOMPARE(MakeJobFinishedSms(7, 0),
                 "Dear Customer Your Job ID # 7 has been completed. Please visit our shop "
                 "to collect clothes.\r\r\r");
        QCOMPARE(MakeDueBalanceSms("250.00 Dr"), "Dear Customer\r Your Due Balance is : Rs. 250.00 Dr\r\r\r");

        SetSetting(10, "O'Neil Tailors");
        SetSetting(24, "%eid%/%eid%: %amount%");
        SetSetting(26, "pay %amount%%amount%");
        QCOMPARE(MakeJobRegisteredSms(12, 0.5), "12/12: 0.5\rO'Neil Tailors");
        QCOMPARE(MakeDueBalanceSms("1"), "pay 11");
    }

    void clientsMobileAndContact()
    {
        Shop shop;
        const auto oneil = qint16(shop.addClient("Sean O'Neil", "98"));
        const auto asha = qint16(shop.addClient("Asha", "97"));
        const auto ravi = qint16(shop.addWorker("Ravi"));
        Shop::run("Update Accounts set Mobile=Null where Title='Ravi'");
        Shop::run("Update Accounts set Address='Lane 3', City='Agra' where Title='Asha'");
        QCOMPARE(GetClientMobile("sean o'neil", 0), "98");
        QCOMPARE(GetClientMobile("Sean O'Neil", asha), "97"); // the id wins
        QCOMPARE(GetClientMobile({}, oneil), "98");
        QCOMPARE(GetClientMobile("Asha", 999), "97");
        QVERIFY(GetClientMobile("Ravi", ravi).isEmpty()); // no worker is a client
        QCOMPARE(GetClientContact(asha), "97   Lane 3   Agra    ");
        QCOMPARE(GetClientContact(ravi), "No Information Found");
        QVERIFY(GetClientContact(999).isEmpty());
    }

    void allItemsInOneState()
    {
        Shop shop;
        QVERIFY(AllItemsCompleted(1) && AllItemsDelivered(1)); // a card without lines counts as both
        for (const auto& [first, second] :
             {std::pair(0, 0), std::pair(1, 1), std::pair(2, 2), std::pair(2, 1)}) {
            Shop::run("Delete from Jobs_Detail");
            for (const int state : {first, second})
                Shop::run(QString("Update Jobs_Detail set DoneByWorker=%1 where id=%2")
                              .arg(state)
                              .arg(shop.addJobLine(1, 1)));
            QCOMPARE(AllItemsCompleted(1), first == 1 && second == 1);
            QCOMPARE(AllItemsDelivered(1), first == 2 && second == 2);
        }
    }
};

QTEST_GUILESS_MAIN(tst_modSMS)
#include "tst_modSMS.moc"
