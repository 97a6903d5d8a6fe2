#include "core/shell/frmCheckShop.h"
#include "core/shell/frmSettings.h"
#include "core/store/ShopCheck.h"
#include "support/ShopTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

/// What is planted behind the program's back is found, and nothing else is.
class tst_ShopCheck : public ShopTest
{
    Q_OBJECT

    /// Two cards as the program writes them, one of them cancelled, and a receipt.
    void lay() override
    {
        const qint32 asha = shop->addClient(u"Asha %1"_s);
        shop->addItem(u"Shirt"_s);
        for (const qint32 number : {7, 8}) {
            JobCard card;
            Shop::order(card.JobRows, u"Shirt"_s, 500);
            JobCardHead head = Shop::head(number, u"Asha %1"_s, 500, 200);
            head.Cancelled = number == 8;
            card.SaveNew(head);
        }
        shop->addVoucher(1, asha, GetAccountID(u"Cash"_s), 100);
    }
    static QStringList findings()
    {
        QStringList told;
        for (const shopcheck::Finding& finding : shopcheck::run({}).findings)
            told << finding.what;
        return told;
    }

private Q_SLOTS:
    void nothingIsWrong() { QCOMPARE(findings(), QStringList()); }

    void findsWhatDoesNotFit_data()
    {
        QTest::addColumn<QStringList>("faults");
        QTest::addColumn<QStringList>("told");
        const auto planted = [](const QStringList& faults, const QStringList& told) {
            QTest::newRow(qPrintable(faults.front())) << faults << told;
        };
        planted({u"Insert into Jobs Select * from Jobs where Id=7"_s},
                {u"The number 7 is that of 2 job cards."_s});
        planted({u"Update Jobs_Detail set JobID=9 where JobID=7"_s},
                {u"Job card 7 (Asha %1) has no garments."_s,
                 u"Shirt of Asha %1 stands on job card 9, which is not there."_s});
        planted({u"Update Jobs set AmountDue=499 where Id=7"_s},
                {u"Job card 7 comes to 499, its garments to 500."_s,
                 u"Job card 7 comes to 499, the books say 500."_s});
        planted({u"Update Jobs set ClintID=99 where Id=7"_s},
                {u"The client of job card 7 (Asha %1) is not there."_s});
        planted({u"Update Jobs_Detail set ItemID=99, WorkerID=98, WorkerName='Ravi' where JobID=7"_s},
                {u"The item of 7/1 (Shirt) is not in the catalogue."_s,
                 u"The worker of 7/1 (Ravi) is not there."_s});
        planted({u"Update Postings set Amount=Amount+1 where VID=1 and Vtype=2 and sr=1"_s},
                {u"All postings together come to 1, not to zero."_s,
                 u"The postings of voucher 1 do not make up pairs."_s});
        planted({u"Delete from Postings where VID=7 and Vtype=1"_s},
                {u"Job card 7 (Asha %1, 500) is not in the books."_s});
        planted({u"Delete from Jobs where Id=7"_s, u"Delete from Jobs_Detail where JobID=7"_s},
                {u"Job card 7 is in the books, but not there."_s});
        planted({u"Update Postings set AccID=77 where VID=1 and Vtype=2 and sr=1"_s},
                {u"An account of voucher 1 (Receipt) is not there."_s});
        planted({u"Update Jobs_Detail set MarkAsPaid=1, WorkerName='NA' where JobID=7"_s},
                {u"7/1 (NA) is marked as paid without a payroll."_s});
        planted({u"Update Jobs_Detail set MarkAsPaid=1, PayrollID=5 where JobID=7"_s},
                {u"7/1 was paid by payroll 5, which is not in the books."_s});
        planted({u"Update Jobs_Detail set Img2='C:\\old\\gone.jpg' where JobID=7"_s},
                {u"A picture of 7/1 is gone: C:\\old\\gone.jpg"_s});
    }
    void findsWhatDoesNotFit()
    {
        QFETCH(const QStringList, faults);
        QFETCH(const QStringList, told);
        for (const QString& fault : faults)
            Shop::run(fault);
        const QByteArray before = contents(session.databasePath());
        QCOMPARE(findings(), told);
        QCOMPARE(contents(session.databasePath()), before);
    }

    void tellsOnTheScreen()
    {
        shop->addItem(u"Kurta"_s);
        for (int line = 0; line < 30; ++line)
            shop->addJobLine(5, 2, 0, u"JobID=7, ItemSr=2, Amount=0, MarkAsPaid=1, WorkerName='NA'"_s);
        inModal<frmSettings>([](frmSettings& screen) {
            onNextModal<frmCheckShop>([](frmCheckShop& found) {
                QCOMPARE(label(found, "lblChecked"),
                         u"Looked over: 2 job cards, 32 garments, 10 postings, 0 pictures. Nothing has been "
                         "changed."_s);
                QCOMPARE(listView(found, "lvSummary").rowCount(), 21);
                press(Qt::Key_End);
                QCOMPARE(label(found, "lblWhat"), u"... and 10 more of this kind."_s);
                press(Qt::Key_Escape);
            });
            click(screen, "cmdCheck");
        });
    }
};

QTEST_MAIN(tst_ShopCheck)
#include "tst_ShopCheck.moc"
