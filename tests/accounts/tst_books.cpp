#include "accounts/BookLines.h"
#include "accounts/VoucherTag.h"
#include "core/store/Session.h"
#include "platform/values/Errors.h"
#include "support/ShopTest.h"

#include <QTest>

namespace {

QString texts(const std::vector<BookLine>& lines)
{
    QStringList rows;
    for (const BookLine& line : lines)
        rows << line.cells.join(u'|') + (line.isPosting() ? u" = " + line.tag : QString());
    return rows.join(u'\n');
}

/// What both ends and the totals say.
QList<double> figures(const AccountBook& book)
{
    return {book.OpeningBalance, book.PeriodNegative, book.PeriodPositive, book.ClosingBalance};
}

} // namespace

/// The books of the ledger, on screen and on paper.
class tst_books : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        asha = shop->addClient("Asha", "09812345678");
        cash = Shop::value("Select id from Accounts where Title='Cash'").toInt();
        shop->addVoucher(3, asha, cash, 200);
        shop->addVoucher(2, cash, asha, 500.5);
        Shop::run("Update Postings set Date='2024-02-09' where VID=2");
    }
    qint32 asha = 0;
    qint32 cash = 0;
    const QDate day{2024, 2, 10};

private Q_SLOTS:
    void aBookShowsBothEndsAndWhatLiesBetween()
    {
        QCOMPARE(texts(AccountBook(asha, day, day).lines), " | ||Balance B/F |500.50| | \n"
                                                           "10-Feb-2024|3|Receipt|Cash| |200.00| = 3|2\n"
                                                           " | | |Current Total |0.00|200.00| \n"
                                                           " | ||Balance C/F |300.50| | ");
        // The first day counts in the days, not in what was brought forward; within a day by number.
        Shop::run("Update Postings set Date='2024-02-09'");
        const AccountBook both(cash, day.addDays(-1), day);
        QCOMPARE(texts(both.lines), "09-Feb-2024|2|Receipt|Asha| |500.50| = 2|2\n"
                                    "09-Feb-2024|3|Receipt|Asha|200.00| | = 3|2\n"
                                    " | | |Current Total |200.00|500.50| \n"
                                    " | ||Balance C/F | |300.50| ");
        QCOMPARE(figures(both), (QList<double>{0, -200, 500.5, 300.5}));
        // A cancelled voucher counts nowhere, an account that is gone has no title, a settled one no balance.
        Shop::run("Update Postings set Status=1 where VID=3");
        Shop::run("Delete from Accounts where Title='Asha'");
        Shop::run("Update Postings set Amount=0 where VID=2");
        QCOMPARE(texts(AccountBook(cash, day.addDays(-1), day).lines),
                 "09-Feb-2024|2|Receipt|| |0.00| = 2|2\n | | |Current Total |0.00|0.00| ");
        QVERIFY_THROWS_EXCEPTION(OverflowError, AccountBook(40000, day, day));
    }

    void theDayBookHasEachVoucherOnce()
    {
        Shop::run("Update Postings set vType=1 where VID=2");
        Shop::run("Update Postings set Amount=-Amount where VID=3");
        QCOMPARE(texts(daybook::read(day.addDays(-1), day)), "09-Feb-2024|2|Receipt|Cash|500.50| = 2|1\n"
                                                             "10-Feb-2024|3|Receipt|Asha|200.00| = 3|2\n"
                                                             " | | |Total Vouchers : 2| | ");
        QCOMPARE(texts(daybook::read(day.addDays(1), day.addDays(2))), " | | |Total Vouchers : 0| | ");
    }
};

QTEST_MAIN(tst_books)
#include "tst_books.moc"
