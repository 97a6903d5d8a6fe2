#include "jobcards/ColorBox.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "masters/frmEditClients.h"
#include "support/ShopTest.h"
#include "ui/HelpLine.h"

static forms::ListView& lines(frmEditJOB& job) { return listView(job, "lvItems"); }

static int count(const char* rowsOf) { return Shop::count(u"Select * from "_s + rowsOf); }

static void onNewCard(const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    frmEditJOB().ShowAddNew();
}

/// Opens card 1.
static bool onStoredCard(const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    return frmEditJOB().ShowEdit(1);
}

/// Presses "Add" and orders an item on the screen that comes.
static void addLine(frmEditJOB& job, const char* item, const char* qty, const char* fees)
{
    onNextModal<frmAddItem>([&](frmAddItem& line) {
        combo(line, "cmbItems").setText(item);
        field(line, "txtQnt").setText(qty);
        field(line, "txtFees").setText(fees);
        click(line, "Command1");
    });
    click(job, "Command4");
}

/// The job card as the operator meets it.
class tst_frmEditJOB : public ShopTest
{
    Q_OBJECT

    /// Card 1: 301 and 99, of which 100 are paid.
    void lay() override
    {
        session.ShopName = "Needle & Co";
        asha = shop->addClient("Asha Rao");
        shop->addItem("Shirt", 300, 120);
        shop->addItem("Trouser", 450, 150);
        onNewCard([this](frmEditJOB& job) {
            combo(job, "cmbClient").setText("Asha Rao");
            addLine(job, "Shirt", "2", "150.50");
            addLine(job, "Trouser", "1", "99");
            combo(job, "cmbAccount").setText("Cash");
            field(job, "txtAmountPaid").setText("100");
            prompts->expect("New Job Created.");
            click(job, "Command1");
        });
    }

    qint32 asha = 0;

private Q_SLOTS:
    void wholeOrderByKeyboard()
    {
        SetSetting(13, "7");
        onNewCard([&](frmEditJOB& job) {
            QCOMPARE(label(job, "lblLastvisit"), "Welcome to Needle & Co");
            QCOMPARE(date(job, "DateDel").text(), "17-Feb-2024");
            QTRY_VERIFY(combo(job, "cmbClient").isDroppedDown());
            press(Qt::Key_Escape); // the open list of clients first
            QVERIFY(job.isVisible() && !combo(job, "cmbClient").isDroppedDown());
            press(Qt::Key_Tab);
            QCOMPARE(focused(job), "lvItems");
            press(Qt::Key_Return); // an empty list lets the operator pass
            QVERIFY(focused(job) != "lvItems");

            combo(job, "cmbClient").setFocus();
            onNextModal<frmEditClients>([&](frmEditClients& client) {
                field(client, "txtName").setText("Chitra");
                prompts->expect("New Client Created.");
                save();
            });
            press(Qt::Key_A, Qt::ControlModifier);
            QTRY_COMPARE(combo(job, "cmbClient").text(), "Chitra");
            fillIn(job, "cmbClient", "ash");
            typeFields({{}, {}, {}, {}});
            press(Qt::Key_PageUp);
            QCOMPARE(focused(job), "DateTrial");
            press(Qt::Key_PageDown);
            typeFields({"wedding"});
            onNextModal<frmAddItem>([&](frmAddItem& line) {
                typeFields({"shi"});
                field(line, "txtQnt").setText("2");
                click(line, "Command1");
            });
            press(Qt::Key_Return); // on "Add"
            QTRY_COMPARE(lines(job).cell(0, 4), "600.00");
            QCOMPARE(count("Jobs_Detail where JobID=2"), 0); // until the card is saved
            onNextModal<frmAddItem>([](frmAddItem&) { press(Qt::Key_Escape); });
            press(Qt::Key_A, Qt::AltModifier);
            QTRY_COMPARE(focused(job), "cmbAccount");
            typeFields({"c", "100"});
            QCOMPARE(field(job, "txtAmount").text(), "500.00");
            prompts->expect("New Job Created.");
            press(Qt::Key_Return); // on "Save"
            QCOMPARE(label(job, "lblTitle"), "Edit JOB Card");
            QCOMPARE(focused(job), "Command2"); // Enter once more does not save once more
            press(Qt::Key_Escape);
            QVERIFY(!job.isVisible());
        });
        shop->reopen();
        QCOMPARE(count("Jobs where ID=2 and Remark='Wedding' and CashAccID=4"), 1);
        QCOMPARE(count("Jobs_Detail where JobID=2 and WorkerWagesDue=120"), 1);
        QCOMPARE(GetBalance(qint16(asha), session.WorkingDate), -800.0);
    }

    void aNameThatNobodyHas()
    {
        onNewCard([&](frmEditJOB& job) {
            const auto notice = [&] { return control<HelpLine>(job, "lblHelp").notice(); };
            typeText("as");
            QCOMPARE(notice(), "");
            typeText("im k");
            QCOMPARE(combo(job, "cmbClient").text(), "Asha Rao"); // the nearest stays in the box
            QCOMPARE(notice(), "Nobody begins with 'Asim k'  ·  Ctrl+A adds");
            onNextModal<frmEditClients>([&](frmEditClients& client) {
                QCOMPARE(field(client, "txtName").text(), "Asim K");
                prompts->expect("New Client Created.");
                save();
            });
            press(Qt::Key_A, Qt::ControlModifier);
            QTRY_COMPARE(combo(job, "cmbClient").text(), "Asim K");
            QCOMPARE(notice(), "");
            fillIn(job, "cmbClient", "asx");
            press(Qt::Key_Backspace);
            QCOMPARE(notice(), "");
            combo(job, "cmbClient").setText("Asha Rao");
            addLine(job, "Shirt", "1", "100");
            combo(job, "cmbClient").setText("Asim K");
            combo(job, "cmbClient").setFocus();
            press(Qt::Key_Tab);
            QCOMPARE(notice(), "The garments keep the measurements of Asha Rao");
        });
    }

    void refusals()
    {
        onNewCard([&](frmEditJOB& job) {
            const auto refused = [&](const QString& message, const char* focus) {
                prompts->expect(message);
                click(job, "Command1");
                QCOMPARE(focused(job), focus);
            };
            prompts->expect("Please Select Client!");
            click(job, "Command4");
            refused("Please Select Client!", "cmbClient");
            combo(job, "cmbClient").setText("Asha Rao");
            refused("Please Add Item!", "Command4");
            addLine(job, "Shirt", "1", "100");
            for (const auto& [name, text, message] :
                 {std::tuple("txtJOBID", "1",
                             "Nothing has been saved.\r\nJob ID 1 is already taken by another job card."),
                  std::tuple("txtAmountDue", "999999999999999",
                             "Overflow: Total Amount 999999999999999 is too large. The highest possible is "
                             "922337203685477.5807."),
                  std::tuple("txtAmountPaid", "-5",
                             "The amount received can't be below 0. Nothing has been saved.")}) {
                const QString before = field(job, name).text();
                field(job, name).setText(text);
                field(job, "txtRemark").setFocus();
                refused(message, "txtRemark");
                field(job, name).setText(before);
            }
            for (const char* number : {"", "0", "-5", "12a", "2147483647", "99999999999"}) {
                field(job, "txtJOBID").setText(number);
                refused("The JOB ID must be a number from 1 to 2147483646, in digits alone. Nothing has been "
                        "saved.",
                        "txtJOBID");
            }
            field(job, "txtJOBID").setText("2");
            field(job, "txtAmountPaid").setText("40");
            combo(job, "cmbAccount").setText("Nowhere");
            refused("Please Select Receipt Account!", "cmbAccount");
            combo(job, "cmbClient").setText("Nobody"); // removed since the line was added
            lines(job).setFocus();
            prompts->expect("Please Select Client!");
            press(Qt::Key_Return);
            click(job, "Command7"); // nothing to delete yet
        });
        QCOMPARE(count("Jobs"), 1);
        QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, frmEditJOB().ShowEdit(5));
    }

    void greetings()
    {
        Shop::run("Update Jobs set Date=#09-Jan-2024#");
        const QString back = "Welcome back Asha Rao, Your previous visit was: 09-Jan-2024 ( 1 month, 1 day";
        for (const auto& [received, greeting] :
             {std::pair("400", "  ago )  , Job # 1"),
              std::pair("150", "  ago ) , Job # 1 , Due Balance : 250.00 Dr"),
              std::pair("650", "  ago ) , Job # 1 , Due Balance : -250.00 Cr")}) {
            Shop::run(QString("Update Postings set Amount=%1 where Sr=4").arg(received));
            onNewCard([&, greeting = QString(back + greeting)](frmEditJOB& job) {
                typeFields({"a"});
                QCOMPARE(label(job, "lblLastvisit"), greeting);
            });
        }
    }

    void amountsUnderTheTypingHand()
    {
        onStoredCard([&](frmEditJOB& job) {
            const auto typed = [&](const char* name, const char* keys) { // "<" Backspace, ">" Delete
                fillIn(job, name, {});
                for (const QChar key : QString(keys))
                    key == u'<'   ? press(Qt::Key_Backspace)
                    : key == u'>' ? press(Qt::Key_Delete)
                                  : typeText(key);
                return field(job, name).text();
            };
            QCOMPARE(typed("txtAmountPaid", "401"), "400.00"); // nobody pays more than the total
            QCOMPARE(field(job, "txtAmount").text(), "0.00");
            for (const auto& [keys, total] :
                 {std::pair("12.57", "12.57"), std::pair("a-1.2.3", "1.23"), std::pair("125<<7", "17.00"),
                  std::pair("12.<<3", "13.00"), std::pair("12>5", "12.50"), std::pair("<8", "8.00")})
                QCOMPARE(typed("txtAmountDue", keys), total);
            typed("txtAmountPaid", ".5");
            press(Qt::Key_Tab);
            QCOMPARE(field(job, "txtAmountPaid").text(), "0.50");
            press(Qt::Key_Escape);
        });
        Shop::run("Update Jobs set AmountDue=60"); // since lines were taken away; 100 have been received
        onStoredCard([&](frmEditJOB& job) {
            combo(job, "cmbAccount").setText("Cash");
            field(job, "txtAmountPaid").setFocus();
            press(Qt::Key_Tab);
            prompts->expect("Job Edited.");
            click(job, "Command1");
        });
        QCOMPARE(Shop::rows("Select AmountDue, AmountPaid from Jobs"), QStringList{"60 100"});
        QCOMPARE(count("Postings where Sr=4 and Amount=100"), 1);
    }

    void linesOfTheListAndNextCard()
    {
        onStoredCard([&](frmEditJOB& job) {
            const auto total = [&] { return field(job, "txtAmountDue").text(); };
            lines(job).selectRow(0);
            click(job, "Command10");
            QCOMPARE(lines(job).cell(2, 4), "301.00");
            QCOMPARE(total(), "400.00"); // until the next change
            lines(job).selectRow(1);
            onNextModal<frmAddItem>([&](frmAddItem& line) {
                QCOMPARE(combo(line, "cmbItems").text(), "Trouser");
                field(line, "txtFees").setText("100");
                click(line, "Command1");
            });
            lines(job).setFocus();
            press(Qt::Key_Return);
            QTRY_COMPARE(total(), "702.00");
            click(job, "Command5");
            QCOMPARE(total(), "602.00");
            click(job, "Command6");
            for (const char* idle : {"Command5", "Command6", "Command10"})
                click(job, idle);
            QCOMPARE(total(), "602.00");
            onNextModal<frmEditJOB>([&](frmEditJOB& next) {
                QCOMPARE(field(next, "txtJOBID").text() + combo(next, "cmbClient").text(), "2");
                QCOMPARE(lines(next).rowCount(), 0);
            });
            click(job, "Command8");
            QVERIFY(control<QFrame>(job, "picCancel").isVisible());
            click(job, "Command3");
        });
        QCOMPARE(count("Jobs_Detail"), 2);
    }

    /// What is promised lies ahead of the card's date; a whole date stands, and is noticed.
    void datesThatArePromised()
    {
        onNewCard([](frmEditJOB& job) {
            const std::tuple<const char*, const char*, QDate, const char*> entries[] = {
                {"DateDel", "5", {2024, 3, 5}, ""},
                {"DateDel", "9-2-24", {2024, 2, 9}, "Delivery is before the card's date"},
                {"DateTrial", "9-2-24", {2024, 2, 9}, "Delivery and trial are before the card's date"},
                {"DateDel",
                 "15/1",
                 {2025, 1, 15},
                 "Trial is before the card's date  ·  Delivery is 340 days after the card's date"},
                {"DateDel", "15/2", {2024, 2, 15}, "Trial is before the card's date"},
                {"JobDate", "15/12", {2023, 12, 15}, ""},
                {"DateTrial", "20", {2023, 12, 20}, ""},
            };
            for (const auto& [name, typed, read, notice] : entries) {
                date(job, name).setFocus();
                typeText(typed);
                press(Qt::Key_PageDown);
                QCOMPARE(date(job, name).value(), read);
                QCOMPARE(control<HelpLine>(job, "lblHelp").notice(), notice);
            }
        });
    }

    void aCardLeftUnsavedComesBackWhole()
    {
        unsavedCards = {};
        shop->addItem("Kurta", 300, 120);
        const auto offer = [](frmEditJOB& job) {
            const auto& label = control<QLabel>(job, "lblUnsaved");
            return label.isVisible() ? label.text().section("card ", 1) : QString();
        };
        const auto undo = [] { press(Qt::Key_Z, Qt::ControlModifier); };
        onNewCard([&](frmEditJOB&) { press(Qt::Key_Escape); }); // nothing on it
        onNewCard([&](frmEditJOB& job) {
            QCOMPARE(offer(job), "");
            typeFields({"ash"});
            date(job, "DateDel").setValue({2024, 3, 8});
            field(job, "txtRemark").setText("wedding");
            onNextModal<frmAddItem>([](frmAddItem& line) {
                typeFields({"kur", "30", "41", "2"});
                control<QLabel>(line, "picPath1").setText("front.bmp");
                control<ColorBox>(line, "picColor").setNumber(255);
                click(line, "Command1");
            });
            click(job, "Command4");
            combo(job, "cmbAccount").setText("Cash");
            fillIn(job, "txtAmountPaid", "50");
            field(job, "txtCancel").setText("too late");
            click(job, "chStatus");
            press(Qt::Key_Escape);
        });
        onNewCard([&](frmEditJOB& job) {
            QCOMPARE(offer(job), "of Asha Rao, 1 line");
            fillIn(job, "txtRemark", "x");
            undo(); // the typing first
            QCOMPARE(field(job, "txtRemark").text() + offer(job), "of Asha Rao, 1 line");
            combo(job, "cmbClient").setText("Bela");
            for (const char* other : {"of Bela", "of Asha Rao, 1 line", "of Bela"}) {
                undo(); // the card that stood there is kept in its turn
                QCOMPARE(offer(job), other);
            }
            QCOMPARE(field(job, "txtJOBID").text(), "2");
            QCOMPARE(field(job, "txtAmount").text(), "550.00");
            prompts->expect("New Job Created.");
            click(job, "Command1");
            undo();
            QCOMPARE(combo(job, "cmbClient").text() + offer(job), "Asha Rao"); // it is stored now
        });
        QCOMPARE(Shop::rows("Select DeliveryDate, Remark, AmountDue, AmountPaid, CashAccID, Status, "
                            "CancelReason from Jobs where ID=2"),
                 QStringList{"2024-03-08 wedding 600 50 4 1 too late"});
        QCOMPARE(Shop::rows("Select QNT, ItemDetailsValue, img1, Color from Jobs_Detail where JobID=2"),
                 QStringList{"2 30\r\n41 front.bmp 255"});
        onNewCard([&](frmEditJOB& job) { QCOMPARE(offer(job), "of Bela"); });
    }

    void aStoredCardIsShownChangedAndDeleted()
    {
        Shop::run("Update Jobs set JobFinished=1, ClientDeliveryDate=#12-Feb-2024#, "
                  "appearedDate=#11-Feb-2024#, appeared=1, DeliveryDate=#15-Feb-2024#, Remark='rush', "
                  "CancelReason='none'");
        SetSetting(3, "Yes");
        session.RefreshLists = false;
        const bool changed = onStoredCard([this](frmEditJOB& job) {
            QStringList shown;
            for (const char* name :
                 {"txtJOBID", "txtAmountDue", "txtAmountPaid", "txtAmount", "txtRemark", "txtCancel"})
                shown += field(job, name).text();
            QCOMPARE(shown.join(u' '), "1 400.00 100.00 300.00 rush none");
            QVERIFY(field(job, "txtJOBID").isReadOnly()); // a card keeps its number
            QCOMPARE(combo(job, "cmbClient").text() + combo(job, "cmbAccount").text(), "Asha RaoCash");
            QCOMPARE(date(job, "DateDel").value(), QDate(2024, 2, 15));
            QCOMPARE(label(job, "lblDelDate") + label(job, "lblTrialInfo"),
                     "Delivered to Client : 12-Feb-2024Appeared for Trial 11-Feb-2024");
            QCOMPARE(lines(job).cell(0, 3), "150.50");
            prompts->expect("Job Edited.");
            prompts->expect("This Job has been registered.\r\nWould you like to Inform Client via SMS?",
                            Answer::Yes);
            prompts->expect("Mobile Number Not Found!\r\nSMS Sending has been Failed.");
            save();
        });
        QVERIFY(changed && session.RefreshLists);

        shop->addVoucher(1, asha, 4, 5); // an entry voucher of the same number stays
        onStoredCard([this](frmEditJOB& job) {
            prompts->expect("Are you sure to Delete!", Answer::Esc);
            click(job, "Command7");
            QCOMPARE(count("Jobs"), 1);
            prompts->expect("Are you sure to Delete!", Answer::Yes);
            prompts->expect("Deleted.");
            click(job, "Command7");
        });
        QCOMPARE(count("Jobs") + count("Jobs_Detail") + count("Postings where vType=1"), 0);
        QCOMPARE(count("Postings"), 2);
    }
};

QTEST_MAIN(tst_frmEditJOB)
#include "tst_frmEditJOB.moc"
