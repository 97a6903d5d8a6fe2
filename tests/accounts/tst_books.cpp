#include "accounts/BookLines.h"
#include "accounts/frmAccountBook.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmTransiction.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "accounts/rptAccountsBooks.h"
#include "accounts/rptReceipt.h"
#include "core/shell/frmMenu.h"
#include "core/store/AmountInWords.h"
#include "core/store/PaymentLink.h"
#include "jobcards/frmEditJOB.h"
#include "messaging/swSMS.h"
#include "platform/report/Preview.h"
#include "platform/values/Errors.h"
#include "registers/frmDueRegister.h"
#include "support/Modem.h"
#include "support/Pdf.h"
#include "support/Refusal.h"
#include "support/ShopTest.h"
#include "ui/HelpLine.h"

static QString texts(const std::vector<BookLine>& lines, QStringList (*cells)(const BookLine&))
{
    QStringList rows;
    RowTitles titles = titlesOf(lines);
    for (const BookLine& line : lines)
        rows << cells(withTitle(line, titles.of(size_t(&line - lines.data())))).join(u'|') +
                    (line.isPosting() ? u" = " + line.tag() : QString());
    return rows.join(u'\n');
}

static forms::ListView& rows(QWidget& screen) { return listView(screen, "lvSummary"); }

/// The column of a list, from top to bottom.
static QString column(QWidget& screen, int number)
{
    QStringList cells;
    for (int row = 0; row < rows(screen).rowCount(); ++row)
        cells << rows(screen).cell(row, number).trimmed();
    return cells.join(u'|');
}

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
        QCOMPARE(texts(AccountBook(asha, day, day).lines, AccountBook::cells),
                 " | ||Balance B/F |500.50| | \n"
                 "10-Feb-2024|3|Receipt|Cash| |200.00| = 3|2\n"
                 " | | |Current Total |0.00|200.00| \n"
                 " | ||Balance C/F |300.50| | ");
        // The first day counts in the days, not in what was brought forward; within a day by number.
        Shop::run("Update Postings set Date='2024-02-09'");
        QCOMPARE(texts(AccountBook(cash, day.addDays(-1), day).lines, AccountBook::cells),
                 "09-Feb-2024|2|Receipt|Asha| |500.50| = 2|2\n"
                 "09-Feb-2024|3|Receipt|Asha|200.00| | = 3|2\n"
                 " | | |Current Total |200.00|500.50| \n"
                 " | ||Balance C/F | |300.50| ");
        // A cancelled voucher counts nowhere, an account that is gone has no title, a settled one no balance.
        Shop::run("Update Postings set Status=1 where VID=3");
        Shop::run("Delete from Accounts where Title='Asha'");
        Shop::run("Update Postings set Amount=0 where VID=2");
        QCOMPARE(texts(AccountBook(cash, day.addDays(-1), day).lines, AccountBook::cells),
                 "09-Feb-2024|2|Receipt|| |0.00| = 2|2\n | | |Current Total |0.00|0.00| ");
        QVERIFY_THROWS_EXCEPTION(OverflowError, AccountBook(40000, day, day));
    }

    void theDayBookHasEachVoucherOnce()
    {
        Shop::run("Update Postings set vType=1 where VID=2");
        Shop::run("Update Postings set Amount=-Amount where VID=3");
        Shop::run("Update Postings set VID=4 where VID=2"); // by day, then by number
        QCOMPARE(texts(daybook::read(day.addDays(-1), day), daybook::cells),
                 "09-Feb-2024|4|Receipt|Cash|500.50| = 4|1\n"
                 "10-Feb-2024|3|Receipt|Asha|200.00| = 3|2\n"
                 " | | |Total Vouchers : 2| | ");
        QCOMPARE(texts(daybook::read(day.addDays(1), day.addDays(2)), daybook::cells),
                 " | | |Total Vouchers : 0| | ");
    }

    /// From who owes, over the client's book, to the money, the paper and the message, without the mouse.
    void theRestOfABillIsTaken()
    {
        QTemporaryDir devices;
        Modem modem(devices.filePath("ttyUSB0"));
        SetSetting(settings::ModemPort, "1");
        SetSetting(settings::SmsTitle, "Needle & Co");
        session.ShopName = "Needle & Co";
        shop->addVoucher(1, shop->addClient("Almost"), cash, -0.004);
        shop->addVoucher(1, shop->addClient("In Credit"), cash, 5);
        shop->addVoucher(9, shop->addClient("Owes Tomorrow"), cash, -30);
        Shop::run("Update Postings set Date='2024-02-11', VID=1 where VID=9");
        inModal<frmMenu>([&](frmMenu&) {
            onNextModal<frmDueRegister>([&](frmDueRegister& dues) {
                QCOMPARE(column(dues, 0) + column(dues, 1), "Almost|Asha0.00|300.50");
                QCOMPARE(control<HelpLine>(dues, "lblHelp").notice(), "Total 300.50: to 30 days 300.50");
                press(Qt::Key_Down);
                onNextModal<frmAccountBook>([&](frmAccountBook& book) {
                    QCOMPARE(combo(book, "cmbType").text() + combo(book, "cmbAccount").text(), "ClientsAsha");
                    QCOMPARE(focused(book), "lvSummary");
                    prompts->expect("New Entry saved.");
                    onNextModal<frmTransiction>([](frmTransiction& entry) {
                        combo(entry, "cmbParticulars").setFocus();
                        typeFields({"rec", "300.5", "cash"});
                        save();
                    });
                    press(Qt::Key_A, Qt::AltModifier);
                    QCOMPARE(column(book, 3) + column(book, 5),
                             "Balance B/F|Cash|Cash|Current Total|200.00|300.50|500.50");
                    QCOMPARE(focused(book), "lvSummary");
                    QCOMPARE(rows(book).selectedRow(), 2); // what was entered

                    onNextModal<frmTransiction>([&](frmTransiction& entry) {
                        QCOMPARE(box(entry, "txtAmount").Text(), "300.50");
                        prompts->expectAll({"Entry Updated."});
                        fillIn(entry, "txtAmount", "300.25");
                        save();
                    });
                    press(Qt::Key_Return);
                    QCOMPARE(rows(book).selectedRow(), 2);
                    press(Qt::Key_Down); // a total is nothing to open
                    press(Qt::Key_Return);

                    prompts->expect("Print Account Statement with Remark?", Answer::No);
                    onNextModal<report::Preview>([](report::Preview&) {});
                    combo(book, "cmbAccount").setText("ash"); // chosen since, and not viewed
                    press(Qt::Key_P, Qt::AltModifier);
                    QCOMPARE(Shop::rows("Select vid, vaucher, particulars, debit, credit from accountbook"),
                             (QStringList{"3 Receipt Cash 0 200", "4 Receipt Cash 0 300.25"}));

                    book.findChild<swSMS*>()->setDeviceFolder(devices.path());
                    click(book, "Command2");
                    QTRY_COMPARE(modem.heard(),
                                 "AT+CMGF=1\rAT+CMGS=\"9812345678\"\rDear Customer\r Your Due Balance is : "
                                 "Rs. -0.25\r\r\r (10-Feb-2024)\r\rNeedle & Co\x1a");
                });
                rows(dues).selectRow(1);
                press(Qt::Key_Return);
                QCOMPARE(column(dues, 1), "0.00|0.25"); // made anew on the way back
                QCOMPARE(rows(dues).selectedRow(), 1);
            });
            press(Qt::Key_U, Qt::AltModifier);
        });
    }

    void aBookIsChosenByKeys()
    {
        shop->addWorker("Ravi");
        onNextModal<frmDayBook>([](frmDayBook&) {});
        inModal<frmAccountBook>([&](frmAccountBook& book) {
            QCOMPARE(focused(book), "cmbType");
            press(Qt::Key_End);
            QCOMPARE(combo(book, "cmbType").text(), "Accounts");
            press(Qt::Key_Home);
            press(Qt::Key_Down);
            press(Qt::Key_Return);
            typeText("ra");
            QCOMPARE(combo(book, "cmbAccount").text(), "Ravi");
            combo(book, "cmbType").setFocus();
            press(Qt::Key_Down);
            typeFields({{}, "ca", {}, {}});
            QCOMPARE(focused(book), "Command4");
            press(Qt::Key_Return);
            QCOMPARE(column(book, 4), "|200.00|200.00|");
            QCOMPARE(label(book, "lblShown"), "Cash\n10-Feb-2024 To 10-Feb-2024");
            date(book, "DateFrom").setValue(day.addDays(-1));
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(column(book, 1), "2|3||");
            Shop::run("Delete from Postings where VID=2");
            press(Qt::Key_D, Qt::AltModifier);
            QCOMPARE(column(book, 1), "3||"); // as the day book may have left it
        });
    }

    void whatCannotBeShownIsRefused()
    {
        shop->addClient("Far");
        inModal<frmAccountBook>([&](frmAccountBook& book) {
            click(book, "Command2"); // nobody to write to
            for (const char* button : {"Command3", "Command4"}) {
                prompts->expect("Please select Account!");
                combo(book, "cmbAccount").setText("Nobody");
                click(book, button);
                QCOMPARE(focused(book), "cmbAccount");
            }
            prompts->expect("Please select Account!");
            click(book, "Command2");
            combo(book, "cmbAccount").setText("as");
            date(book, "DateFrom").setValue(day.addDays(1));
            prompts->expect("Invalid date selection!");
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(rows(book).rowCount(), 0);
            date(book, "DateFrom").setValue(day);
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(combo(book, "cmbAccount").text(), "Asha");
            prompts->expect("Modem Com Port Error!\r\nSMS Sending has been Failed.");
            click(book, "Command2");
            Shop::run("Update Accounts set ID=40000 where Title='Far'");
            combo(book, "cmbAccount").setText("Far");
            prompts->expect(refusal([&] { AccountBook(40000, day, day); }));
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(label(book, "lblShown"), ""); // never Asha's book under that name
            QCOMPARE(rows(book).rowCount(), 0);
            combo(book, "cmbAccount").setText("Asha");
            onNextModal<frmWorkerWagesRegister>([](frmWorkerWagesRegister&) {});
            click(book, "Command1"); // a payroll may have been made there
            QVERIFY(rows(book).rowCount() > 0);

            // What stood behind a row, then the account itself, is gone meanwhile.
            prompts->expect("Voucher # 3 is no longer there.");
            Shop::run("Delete from Postings where VID=3");
            rows(book).selectRow(1);
            press(Qt::Key_Return);
            QCOMPARE(column(book, 4), "500.50|0.00|500.50");
            prompts->expect("The account \"Asha\" is no longer there.");
            Shop::run("Update Accounts set Title='Usha' where Title='Asha'");
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(rows(book).rowCount(), 0);
            press(Qt::Key_Tab);
            combo(book, "cmbAccount").setText("ush");
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(rows(book).rowCount(), 3);
        });
    }

    void theDayBookOpensCardsAndVouchers()
    {
        Shop::run("Update Postings set vType=1 where VID=2");
        inModal<frmDayBook>([&](frmDayBook& book) {
            QCOMPARE(column(book, 3), "Asha|Total Vouchers : 1");
            date(book, "DateTo").setValue(day.addDays(-1));
            prompts->expect("Invalid date selection!");
            press(Qt::Key_V, Qt::AltModifier);
            date(book, "DateFrom").setValue(day.addDays(-1));
            press(Qt::Key_V, Qt::AltModifier);
            QCOMPARE(column(book, 3), "Cash|Total Vouchers : 1");
            prompts->expect("Job card # 2 is no longer there.");
            for (const int row : {1, 0}) { // the total is nothing to open
                rows(book).selectRow(row);
                press(Qt::Key_Return);
            }
            shop->addJob(2, asha);
            onNextModal<frmEditJOB>([](frmEditJOB&) {});
            press(Qt::Key_Return);

            date(book, "DateTo").setValue(day);
            press(Qt::Key_V, Qt::AltModifier);
            prompts->expect("Are you sure to delete entry?", Answer::Yes);
            onNextModal<frmTransiction>([](frmTransiction&) { remove(); });
            rows(book).selectRow(1);
            press(Qt::Key_Return);
            QCOMPARE(column(book, 3), "Cash|Total Vouchers : 1");
        });
    }

    /// As its file is read: heads and number on each page, the totals with a row above them, every posting
    /// once.
    /// What came in, for which cards, and what is still due at the end of that day, to be paid by phone.
    void theReceiptOnPaper()
    {
        session.ShopName = "Rangoli Tailors";
        session.ShopContacts = "98290 12345";
        shop->addJob(7, asha);
        shop->addJob(8, cash);                                          // another's
        Shop::run("Update Postings set Date='2024-02-11' where VID=2"); // after the receipt's day
        shop->addVoucher(4, cash, asha, 1450.5);
        Shop::run("Update Postings set Remark='cash for cards 7, 8 and 9' where VID=3");
        const qint32 row = Shop::value("Select ID from Postings where VID=3 and Sr=1").toInt();
        SetSetting(42, "https://pay.example/a b?to=\"us\"");
        const QString link = "https://pay.example/a%20b?to=%22us%22&amount=1250.50";
        const QString page = shop->folder() + "/page.png";
        for (const qint32 posting : {row, row + 1}) { // as the client's book has it, and as cash has it
            const auto paper = ReceiptPaper(posting);
            QCOMPARE(
                readBack(*paper),
                QStringList("Rangoli Tailors 98290 12345 Receipt # 3 10-Feb-2024 Received from : Asha For "
                            "Job Card # : 7 Amount Rs. 200.00 Rupees Two Hundred Only Still Due : Rs. "
                            "1,250.50 For Rangoli Tailors Auth Sig Scan to pay what is due"));
            QCOMPARE(scanned(*paper, page), link);
        }
        SetSetting(43, "1"); // twice, to be cut
        const auto both = ReceiptPaper(row);
        QCOMPARE(both->PageSize, QSizeF(210, 148));
        QCOMPARE(readBack(*both).join(u'|').count("Rupees Two Hundred Only"), 2);
        QCOMPARE(scanned(*both, page), link + u'\n' + link);
        Shop::run("Update Postings set Amount=-Amount*10 where VID=4");
        SetSetting(43, "0");
        const QString ahead = readBack(*ReceiptPaper(row)).join(u' ');
        QVERIFY2(ahead.contains("Paid in Advance : Rs. 14,705.00 For"), qPrintable(ahead));
        QCOMPARE(scanned(*ReceiptPaper(row), page), "");
    }

    void theReceiptFromTheScreens()
    {
        SetSetting(15, "1");
        const auto printsReceipt = [](const QString& subject) {
            onNextModal<report::Preview>(
                [subject](report::Preview& shown) { QCOMPARE(shown.report().Subject, subject); });
            press(Qt::Key_R, Qt::AltModifier);
        };
        onNextModal<frmAccountBook>([&](frmAccountBook& book) {
            rows(book).selectRow(0);
            printsReceipt("Receipt 3 Asha");
            rows(book).selectRow(1); // the total
            prompts->expect("Select the row of a receipt in the list first.");
            press(Qt::Key_R, Qt::AltModifier);
            onNextModal<frmTransiction>([&](frmTransiction& voucher) {
                printsReceipt("Receipt 3 Asha");
                box(voucher, "txtAmount").setText("260");
                prompts->expect("Save the voucher first, then print its receipt.");
                press(Qt::Key_R, Qt::AltModifier);
                prompts->expect("Entry Updated.");
                save();
                printsReceipt("Receipt 3 Asha");
                combo(voucher, "cmbParticulars").setText("Payment");
                prompts->expect("Entry Updated.");
                save();
                prompts->expect("Only a voucher of the type Receipt has a receipt to print.");
                press(Qt::Key_R, Qt::AltModifier);
            });
            rows(book).selectRow(0);
            press(Qt::Key_Return);
            Shop::run("Delete from Postings");
            prompts->expect("This receipt is no longer there.");
            rows(book).selectRow(0);
            press(Qt::Key_R, Qt::AltModifier);
        });
        Shop::run("Delete from Postings where VID=2");
        frmAccountBook().ShowAccount("Asha");
        prompts->expect("Save the voucher first, then print its receipt.");
        onNextModal<frmTransiction>([](frmTransiction&) { press(Qt::Key_R, Qt::AltModifier); });
        qint16 saved = 0;
        frmTransiction().ShowAddNew("Asha", saved);
    }

    /// The money that was taken with a card has a receipt too; money given back has none.
    void theReceiptOfACard()
    {
        shop->addItem("Shirt");
        JobCard card;
        Shop::order(card.JobRows, "Shirt", 900);
        JobCardHead head = Shop::head(7, "Asha", 900, 300);
        head.ReceiptAccount = "Cash";
        card.SaveNew(head);
        const QString paper =
            readBack(*ReceiptPaper(Shop::value("Select ID from Postings where vType=1 and Sr=3").toInt()))
                .join(u' ');
        QVERIFY2(paper.contains("Receipt # Job Card 7 10-Feb-2024 Received from : Asha For Job Card # : 7 "
                                "Amount Rs. 300.00"),
                 qPrintable(paper));
        shop->addVoucher(9, asha, cash, -50);
        for (const qint32 posting : {Shop::value("Select ID from Postings where VID=9 and Sr=1").toInt(),
                                     Shop::value("Select ID from Postings where VID=9 and Sr=2").toInt()})
            QVERIFY_THROWS_EXCEPTION(OperatorError, receiptOf(posting));
    }

    void wordsOfAReceipt()
    {
        for (const auto& [amount, words] :
             {std::pair(0.0, "Rupees Zero Only"), std::pair(0.5, "Fifty Paise Only"),
              std::pair(-1.0, "Minus Rupees One Only"), std::pair(19.999, "Rupees Twenty Only"),
              std::pair(110.07, "Rupees One Hundred Ten and Seven Paise Only"),
              std::pair(1'20'00'045.0, "Rupees One Crore Twenty Lakh Forty-Five Only"),
              std::pair(12'34'567.89, "Rupees Twelve Lakh Thirty-Four Thousand Five Hundred Sixty-Seven and "
                                      "Eighty-Nine Paise Only"),
              std::pair(1e12, "Rupees One Lakh Crore Only")})
            QCOMPARE(amountInWords(amount), words);
        const std::pair<const char*, std::vector<qint32>> remarks[] = {
            {"Job Card # :12", {12}},
            {"against job no. 12/2, 14 & #15 by cheque 445566", {12, 14, 15}},
            {"cards 7 and 8, 500 in cash", {7, 8, 500}}, // only those that are this client's are printed
            {"credit card 4711, by card 12", {}},
            {"#3; jobs 4;5 and job 4", {3, 4, 5}},
            {"450 for the jobs, card 99999999999", {}},
        };
        for (const auto& [remark, cards] : remarks)
            QCOMPARE(cardsNamed(remark), cards);
        const std::tuple<const char*, const char*> links[] = {
            {"upi://pay?pa=a@b", "upi://pay?pa=a@b&am=12.50&cu=INR"},
            {" \"upi://pay?cu=EUR&pa=a@b&am=9\" ", "upi://pay?pa=a@b&am=12.50&cu=INR"},
            {"https://pay.example/{amount}/INR?x=1", "https://pay.example/12.50/INR?x=1"},
            {"https://pay.example/shop", "https://pay.example/shop?amount=12.50"},
            {"upi://pay?pn=Rangoli", ""}, // to whom?
            {"rangoli@bank", ""},
            {"https://", ""},
        };
        for (const auto& [address, link] : links)
            QCOMPARE(paymentLink(address, 12.5), link);
        QCOMPARE(paymentLink("upi://pay?pa=a@b", 0.001) + paymentLink("upi://pay?pa=a@b", -5), "");
        QVERIFY(!isPaymentAddress("https://pay.example/" + QString(1000, 'x')));
    }

    void theStatementOnPaper()
    {
        session.ShopName = "Needle & Co";
        session.ShopAddress1 = "12 Cloth Lane";
        AccountBook book(asha, day, day);
        const BookLine posting = book.lines[1];
        book.lines.clear();
        for (int vid = 1; vid <= 45; ++vid) {
            book.lines.push_back(posting);
            book.lines.back().voucher.number = vid;
            if (vid < 30)
                continue;
            const QStringList pages = readBack(*StatementPaper(book, "Asha", "A To B", vid % 2));
            for (int page = 0; page < pages.size(); ++page)
                for (const QString& text :
                     {u"Needle & Co 12 Cloth Lane Account Statement"_s, u"Opening Balance : 500.5 Dr."_s,
                      u"Closing Balance : 300.5 Dr."_s, u"Debit Credit"_s,
                      u"Page %1 of %2"_s.arg(page + 1).arg(pages.size())})
                    QVERIFY2(pages[page].contains(text), qPrintable(text + " in " + pages[page]));
            QCOMPARE(pages.join(u' ').count(" 10-Feb-24 "), vid);
            const QString last =
                u"10-Feb-24 %1 Receipt Cash 0.00 200.00 Current Total 0.00 200.00"_s.arg(vid);
            QVERIFY2(pages.last().contains(last), qPrintable(pages.last()));
        }
        for (int row : {3, 44})
            book.lines[row].remark = QString("remarkable ").repeated(900).trimmed();
        for (const bool withRemark : {true, false})
            QCOMPARE(
                readBack(*StatementPaper(book, "Asha", "A To B", withRemark)).join(u' ').count("remarkable"),
                withRemark ? 1800 : 0);
        const QStringList none = readBack(*StatementPaper({}, {}, "A To B", true)); // of no account
        QCOMPARE(none.size(), 1);
        QCOMPARE(none.first().count("None"), 2);
        QCOMPARE(Shop::count("Select * from accountbook"), 0);
    }
};

QTEST_MAIN(tst_books)
#include "tst_books.moc"
