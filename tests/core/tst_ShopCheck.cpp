#include "accounts/frmTransiction.h"
#include "core/shell/frmCheckShop.h"
#include "core/shell/frmSettings.h"
#include "core/store/ShopCheck.h"
#include "core/store/Voucher.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "support/ShopTest.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

using Remedy = std::function<void(Prompts&)>;
Q_DECLARE_METATYPE(Remedy)

namespace {

QStringList findings()
{
    QStringList named;
    for (const shopcheck::Finding& finding : shopcheck::run({}).findings)
        named << finding.what;
    return named;
}

/// In the check's own screen, agrees to each mend that is offered.
void mend(Prompts& prompts)
{
    onNextModal<frmCheckShop>([&](frmCheckShop& screen) {
        while (control<QAbstractButton>(screen, "Command1").isEnabled()) {
            prompts.expect(label(screen, "lblWhat") + u"\r\n\r\n"_s + label(screen, "lblRemedy") +
                               u"\r\n\r\nDo this now?"_s,
                           Answer::Yes);
            press(Qt::Key_Return);
        }
    });
    frmCheckShop(shopcheck::run({})).showModal();
}

/// Opens a card, does that on it, and saves.
Remedy onCard(qint32 card, std::function<void(frmEditJOB&)> act = {})
{
    return [=](Prompts& prompts) {
        onNextModal<frmEditJOB>([&](frmEditJOB& screen) {
            if (act)
                act(screen);
            prompts.expect(u"Job Edited."_s);
            save();
        });
        frmEditJOB().ShowEdit(card);
    };
}

void deleteCard(qint32 card, Prompts& prompts)
{
    onNextModal<frmEditJOB>([&](frmEditJOB&) {
        prompts.expect(u"Are you sure to Delete!"_s, Answer::Yes);
        prompts.expect(u"Deleted."_s);
        remove();
    });
    frmEditJOB().ShowEdit(card);
}

/// The first garment of a card, whose editor is left by OK.
void throughTheGarment(frmEditJOB& screen, bool clearPicture = false)
{
    onNextModal<frmAddItem>([=](frmAddItem& garment) {
        if (clearPicture)
            click(garment, "Command6");
        click(garment, "Command1");
    });
    control<QWidget>(screen, "lvItems").setFocus();
    press(Qt::Key_Return);
}

/// Opens a line as the JOB Register does, presses that, and saves.
Remedy onLine(qint32 line, const char* mark = nullptr)
{
    return [=](Prompts& prompts) {
        onNextModal<frmEditWorkerAssign>([&](frmEditWorkerAssign& screen) {
            if (mark)
                click(screen, mark);
            prompts.expect(u"Job Assign."_s);
            press(Qt::Key_S, Qt::ControlModifier);
        });
        frmEditWorkerAssign().ShowEdit(line);
    };
}

/// Opens a voucher, types the amount when there is one, and saves.
Remedy onVoucher(qint32 number, const QString& amount = {})
{
    return [=](Prompts& prompts) {
        onNextModal<frmTransiction>([&](frmTransiction& screen) {
            if (!amount.isEmpty())
                fillIn(screen, "txtAmount", amount);
            prompts.expect(u"Entry Updated."_s);
            save();
        });
        qint16 saved = 0;
        frmTransiction().ShowEdit(number, saved);
    };
}

} // namespace

/// What is planted behind the program's back is found, nothing else is, and what the finding says puts it
/// right.
class tst_ShopCheck : public ShopTest
{
    Q_OBJECT

    /// Two cards as the program writes them, one of them cancelled; a receipt; a payroll over one garment.
    void lay() override
    {
        const qint32 asha = shop->addClient(u"Asha %1"_s);
        shop->addClient(u"Bela"_s);
        const qint32 ravi = shop->addWorker(u"Ravi"_s);
        shop->addItem(u"Shirt"_s);
        for (const qint32 number : {7, 8}) {
            JobCard card;
            Shop::order(card.JobRows, u"Shirt"_s, 300);
            Shop::order(card.JobRows, u"Shirt"_s, 200);
            JobCardHead head = Shop::head(number, u"Asha %1"_s, 500, 200);
            head.Cancelled = number == 8;
            card.SaveNew(head);
        }
        shop->addVoucher(1, asha, GetAccountID(u"Cash"_s), 100);
        DE.connection().writeBatch([&] {
            Voucher(VoucherType::Entry, 5)
                .AddPair({u"Wages"_s,
                          session.WorkingDate,
                          ravi,
                          GetAccountID(u"Wages"_s),
                          Currency::fromDouble(40),
                          {}},
                         {.payroll = true});
        });
        Shop::run(u"Update Jobs_Detail set WorkerID=7, WorkerName='Ravi', DoneByWorker=1, "
                  "CompletedDate='2024-02-10', MarkAsPaid=1, PayrollID=5 where Id=1"_s);
    }

private Q_SLOTS:
    void nothingIsWrong() { QCOMPARE(findings(), QStringList()); }

    void findsAndPutsRight_data()
    {
        QTest::addColumn<QStringList>("faults");
        QTest::addColumn<QStringList>("named");
        QTest::addColumn<Remedy>("remedy");
        const auto planted = [](const QStringList& faults, const QStringList& named, const Remedy& remedy) {
            QTest::newRow(qPrintable(faults.join(u"; "_s))) << faults << named << remedy;
        };

        // Accounts, items, dates
        planted({u"Update Accounts set Title='Sale', readonly=0 where Id=2"_s},
                {u"The shop's own account \"Sales\" is not as it must be (\"Sale\")."_s}, mend);
        planted({u"Delete from Accounts where Id=1"_s, u"Update Accounts set Title='Wages' where Id=6"_s},
                {u"The shop's own account \"Wages\" is not as it must be (\"gone\")."_s,
                 u"An account of voucher 5 (Wages) is not there."_s},
                mend);
        planted({u"Update Accounts set Type=9 where Id=7"_s},
                {u"Account 7 (Ravi) is neither a client, a worker nor an account of the books."_s}, mend);
        planted({u"Update Accounts set Title='asha %1' where Id=6"_s},
                {u"\"asha %1\" is the name of two accounts, 5 and 6: only the first can be opened."_s}, mend);
        planted({u"Insert into Items (NAME, ItemDetails, FEES) values ('SHIRT', '', 1)"_s},
                {u"\"SHIRT\" is the name of two items, 1 and 2: only the first can be opened."_s}, mend);
        planted({u"Update Jobs set ClintID=99 where Id=7"_s},
                {u"The client of job card 7 (Asha %1) is not there."_s}, mend);
        planted({u"Delete from Accounts where Id=5"_s},
                {u"The client of job card 7 (Asha %1) is not there."_s,
                 u"The client of job card 8 (Asha %1) is not there."_s,
                 u"An account of voucher 1 (Sales) is not there."_s},
                mend);
        planted({u"Update Jobs_Detail set ItemID=99 where Id=2"_s},
                {u"The item of 7/2 (Shirt) is not in the catalogue."_s}, mend);
        planted({u"Delete from Items"_s, u"Delete from Jobs_Detail where JobID=8"_s,
                 u"Delete from Jobs where Id=8"_s, u"Delete from Postings where VID=8"_s},
                {u"The item of 7/1 (Shirt) is not in the catalogue."_s,
                 u"The item of 7/2 (Shirt) is not in the catalogue."_s},
                mend);
        planted({u"Update Jobs_Detail set WorkerID=98 where Id=1"_s},
                {u"The worker of 7/1 (Ravi) is not there."_s}, mend);
        planted(
            {u"Delete from Accounts where Id=7"_s},
            {u"The worker of 7/1 (Ravi) is not there."_s, u"An account of voucher 5 (Wages) is not there."_s},
            mend);
        planted({u"Update Jobs set CashAccID=50, AmountPaid=0 where Id=7"_s,
                 u"Delete from Postings where VID=7 and sr>2"_s},
                {u"The account that took the money of job card 7 is not there."_s}, mend);
        planted({u"Update Postings set AccID=77 where Id=9"_s},
                {u"An account of voucher 1 (Receipt) is not there."_s,
                 u"The halves of voucher 1 (Receipt) have different days or accounts."_s},
                mend);
        planted({u"Update Postings set AccID=0 where Id=9"_s, u"Update Postings set RefID=0 where Id=10"_s},
                {u"An account of voucher 1 (Receipt) is not there."_s}, mend);
        planted({u"Update Postings set RefID=77 where Id=9"_s},
                {u"An account of voucher 1 (Receipt) is not there."_s,
                 u"The halves of voucher 1 (Receipt) have different days or accounts."_s},
                mend);
        planted({u"Update Jobs set DATE='2024-02-31' where Id=7"_s},
                {u"A date of job card 7 is none: \"2024-02-31\"."_s,
                 u"Job card 7 (Asha %1) is in the books under another client, account or day."_s},
                mend);
        planted({u"Update Jobs_Detail set JobDelDate='soon', AltDate='' where Id=1"_s},
                {u"A date of 7/1 is none: \"soon\"."_s, u"A date of 7/1 is none: \"\"."_s}, mend);
        planted({u"Update Postings set Date='20240210' where Id=9"_s},
                {u"A date of voucher 1 (Receipt) is none: \"20240210\"."_s,
                 u"The halves of voucher 1 (Receipt) have different days or accounts."_s},
                mend);

        // Cards
        planted({u"Insert into Jobs Select * from Jobs where Id=7"_s},
                {u"Job card 7 stands there 2 times, the same in everything."_s}, mend);
        planted({u"Insert into Jobs Select * from Jobs where Id=7"_s,
                 u"Update Jobs set Remark='two', ClintName='Asha' where rowid=3"_s},
                {u"The number 7 is that of two job cards: only the first opens."_s}, [](Prompts& p) {
                    mend(p);
                    deleteCard(9, p);
                });
        planted({u"Update Jobs_Detail set JobID=9 where JobID=7"_s},
                {u"Shirt of Asha %1 stands on job card 9, which is not there."_s,
                 u"Shirt of Asha %1 stands on job card 9, which is not there."_s},
                mend);
        planted({u"Delete from Jobs where Id=7"_s},
                {u"Shirt of Asha %1 stands on job card 7, which is not there."_s,
                 u"Shirt of Asha %1 stands on job card 7, which is not there."_s},
                mend);
        planted({u"Delete from Jobs where Id=7"_s, u"Delete from Postings where VID=7"_s},
                {u"Shirt of Asha %1 stands on job card 7, which is not there."_s,
                 u"Shirt of Asha %1 stands on job card 7, which is not there."_s},
                [](Prompts& p) {
                    mend(p);
                    onCard(7)(p);
                });
        planted({u"Update Jobs set AmountDue=450 where Id=7"_s},
                {u"Job card 7 comes to 450; its garments and the books say 500."_s}, mend);
        planted({u"Update Jobs set AmountDue=550 where Id=7"_s,
                 u"Update Postings set Amount=-550 where Id=1"_s,
                 u"Update Postings set Amount=550 where Id=2"_s},
                {u"Job card 7 comes to 550, its garments to 500."_s}, onCard(7, [](frmEditJOB& screen) {
                    QCOMPARE(label(screen, "lblGarments"), u"Garments: 500.00"_s);
                    fillIn(screen, "txtAmountDue", u"500"_s);
                    QCOMPARE(label(screen, "lblGarments"), QString());
                }));
        planted({u"Update Jobs_Detail set ClintID=6, ClintName='Bela' where Id=1"_s},
                {u"7/1 (Shirt) is of Bela, its card of Asha %1."_s}, onCard(7));
        planted({u"Update Jobs_Detail set ItemSr=1 where Id=2"_s}, {u"2 garments have the one code 7/1."_s},
                onCard(7));
        planted({u"Update Jobs_Detail set Amount=999 where Id=1"_s},
                {u"Job card 7 comes to 500, its garments to 1199."_s,
                 u"7/1 (Shirt) comes to 999, 2 times 150 is something else."_s},
                onCard(7, [](frmEditJOB& screen) { throughTheGarment(screen); }));
        planted({u"Update Jobs_Detail set DoneByWorker=9 where Id=2"_s},
                {u"7/2 (Shirt) is in a state that does not exist (9)."_s}, onLine(2, "opUcom"));
        planted({u"Update Jobs_Detail set DoneByWorker=2 where Id=2"_s},
                {u"7/2 (Shirt) is delivered, but no day is known."_s}, onLine(2));
        planted({u"Delete from Jobs_Detail where JobID=8"_s}, {u"Job card 8 (Asha %1) has no garments."_s},
                [](Prompts& p) { deleteCard(8, p); });
        planted({u"Update Jobs set JobFinished=1 where Id=7"_s},
                {u"Job card 7 (Asha %1) is marked as delivered, 2 of its garments never were."_s},
                onCard(7, [](frmEditJOB& screen) { click(screen, "chJobStatus"); }));
        planted({u"Update Jobs set JobFinished=7 where Id=7"_s},
                {u"Job card 7 (Asha %1) is in a state that does not exist."_s}, onCard(7));
        planted({u"Update Jobs set appeared=7 where Id=7"_s},
                {u"The trial of job card 7 (Asha %1) is in a state that does not exist."_s}, mend);
        planted({u"Update Jobs_Detail set Img1='C:\\old\\gone.jpg' where Id=1"_s},
                {u"A picture of 7/1 is gone: C:\\old\\gone.jpg"_s},
                onCard(7, [](frmEditJOB& screen) { throughTheGarment(screen, true); }));

        // Books
        const QString sum = u"All postings together come to %1, not to zero."_s;
        planted({u"Update Postings set Amount=101 where Id=9"_s},
                {u"The postings of voucher 1 do not make up pairs."_s, sum.arg(1)}, onVoucher(1));
        for (const int half : {9, 10})
            planted({u"Delete from Postings where Id=%1"_s.arg(half)},
                    {u"Half of voucher 1 (Receipt) is not there."_s, sum.arg(half == 9 ? -100 : 100)}, mend);
        planted({u"Delete from Postings where Id=3"_s},
                {u"The postings of job card 7 do not make up pairs."_s,
                 u"With job card 7 came 200, the books say 0."_s, sum.arg(200)},
                onCard(7));
        planted({u"Update Postings set VID=5 where VID=1"_s},
                {u"Two vouchers have the one number 5: only the first opens."_s}, mend);
        planted({u"Delete from Postings where VID=7"_s},
                {u"Job card 7 (Asha %1, 500) is not in the books."_s}, onCard(7));
        planted({u"Update Postings set Amount=case Id when 1 then -499 else 499 end where Id<3"_s},
                {u"Job card 7 comes to 500, the books say 499."_s}, onCard(7));
        planted({u"Delete from Postings where VID=7 and sr>2"_s},
                {u"With job card 7 came 200, the books say 0."_s}, onCard(7));
        planted({u"Update Postings set AccID=6 where Id=1"_s},
                {u"Job card 7 (Asha %1) is in the books under another client, account or day."_s}, onCard(7));
        planted({u"Update Postings set Status=1 where Id=1"_s},
                {u"Job card 7 (Asha %1) stands, but not all of its postings count."_s}, onCard(7));
        planted({u"Update Postings set Status=0 where VID=8"_s},
                {u"Job card 8 (Asha %1) is cancelled, but is charged in the books."_s}, onCard(8));
        planted({u"Delete from Jobs where Id=8"_s, u"Delete from Jobs_Detail where JobID=8"_s},
                {u"Job card 8 (Asha %1, 500) is in the books, but not there."_s}, mend);
        planted({u"Update Postings set Status=1 where Id=9"_s},
                {u"Voucher 1 (Receipt) does not count with all its postings."_s}, mend);
        planted({u"Update Postings set Date='2024-01-01' where Id=9"_s},
                {u"The halves of voucher 1 (Receipt) have different days or accounts."_s}, onVoucher(1));

        // Wages
        planted({u"Update Jobs_Detail set MarkAsPaid=1, WorkerName='NA' where Id=2"_s},
                {u"7/2 (NA) is marked as paid without a payroll."_s}, onLine(2, "chMarkasPaid"));
        planted({u"Update Jobs_Detail set MarkAsPaid=1, PayrollID=9 where Id=2"_s},
                {u"7/2 was paid by payroll 9, which is not in the books."_s}, mend);
        planted({u"Update Jobs_Detail set WorkerWagesDue=60 where Id=1"_s},
                {u"Payroll 5 of Ravi came to 40, the wages of its garments to 60."_s}, onVoucher(5, u"60"_s));
    }
    void findsAndPutsRight()
    {
        QFETCH(const QStringList, faults);
        QFETCH(const QStringList, named);
        QFETCH(const Remedy, remedy);
        for (const QString& fault : faults)
            Shop::run(fault);
        const QByteArray before = contents(session.databasePath());
        QCOMPARE(findings(), named);
        QCOMPARE(contents(session.databasePath()), before);
        remedy(*prompts);
        QCOMPARE(findings(), QStringList());
    }

    /// What was right before a mend is right after it; what is answered with No is not done.
    void mendsWhatWasWrongAlone()
    {
        Shop::run(u"Update Jobs set AmountDue=450 where Id=7"_s);
        const QStringList books = Shop::rows(u"Select * from Postings"_s);
        const QByteArray before = contents(session.databasePath());
        const shopcheck::Finding finding = shopcheck::run({}).findings.front();
        onNextModal<frmCheckShop>([&](frmCheckShop&) {
            prompts->expect(finding.what +
                                u"\r\n\r\nMend: the card's total becomes 500.\r\n\r\nDo this now?"_s,
                            Answer::No);
            press(Qt::Key_M, Qt::AltModifier);
        });
        frmCheckShop(shopcheck::run({})).showModal();
        QCOMPARE(contents(session.databasePath()), before);
        shopcheck::mend(finding);
        QCOMPARE(Shop::rows(u"Select * from Postings"_s), books);
        QCOMPARE(Shop::value(u"Select AmountDue from Jobs where Id=7"_s).toDouble(), 500.0);
        QVERIFY_THROWS_EXCEPTION(OperatorError, shopcheck::mend(finding));
    }

    /// Half a piece is stored as a whole one and charged as it was typed; a garment that came back for
    /// alteration leaves its card delivered.
    void leavesAloneWhatTheShopMayDo()
    {
        Shop::run(u"Update Jobs_Detail set Amount=225, QNT=2, FEES=150 where Id=1"_s);
        Shop::run(u"Update Jobs_Detail set Amount=275, QNT=2, FEES=137.5, DoneByWorker=3, "
                  "DelToCustDate='2024-02-09', AltDate='2024-02-10' where Id=2"_s);
        Shop::run(u"Update Jobs_Detail set DoneByWorker=2, DelToCustDate='2024-02-09' where Id=1"_s);
        Shop::run(u"Update Jobs set JobFinished=1 where Id=7"_s);
        QCOMPARE(findings(), QStringList());
    }

    void aDamagedPageIsAFinding()
    {
        Shop::run(u"Update Jobs set AmountDue=450 where Id=7"_s);
        const QByteArray sound = contents(session.databasePath());
        constexpr qsizetype page = 4096;
        int readAllTheSame = 0;
        for (qsizetype at = 0; at < sound.size(); at += 3 * page) {
            QByteArray damaged = sound;
            damaged.replace(at + 700, 32, QByteArray(32, 'x'));
            writeFile(session.databasePath(), damaged);
            const shopcheck::Report report = shopcheck::run({});
            QVERIFY(!report.findings.empty());
            QVERIFY(report.findings.front().what.startsWith(u"The file is damaged: "_s));
            for (const shopcheck::Finding& finding : report.findings) {
                QVERIFY(finding.remedy.startsWith(u"Restore the last backup."_s));
                QVERIFY(!finding.canBeMended());
                readAllTheSame += int(finding.what.startsWith(u"Job card 7 comes to 450"_s));
            }
        }
        writeFile(session.databasePath(), sound);
        QVERIFY(readAllTheSame > 0);
    }

    void tellsOnTheScreen()
    {
        for (int line = 0; line < 30; ++line)
            shop->addJobLine(
                5, 1, 0,
                u"JobID=7, ItemSr=%1, Amount=0, FEES=0, MarkAsPaid=1, WorkerName='NA'"_s.arg(line + 3));
        inModal<frmSettings>([](frmSettings& screen) {
            onNextModal<frmCheckShop>([](frmCheckShop& found) {
                QCOMPARE(label(found, "lblChecked"),
                         u"Looked over: 2 job cards, 34 garments, 12 postings, 0 pictures. Nothing has been "
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
