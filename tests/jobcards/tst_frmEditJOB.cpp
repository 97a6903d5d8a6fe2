#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "masters/frmEditClients.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListView.h"
#include "support/ShopTest.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

/// The job card as the operator meets it.
class tst_frmEditJOB : public ShopTest
{
    Q_OBJECT

private Q_SLOTS:
    void wholeOrderByKeyboard();
    void refusals();
    void greetings();
    void amountsUnderTheTypingHand();
    void linesOfTheListAndNextCard();
    void storedCardIsShownWhole();
    void savesAndDelete();

private:
    void lay() override;

    qint32 m_asha = 0;
};

namespace {

forms::ListView& list(QWidget& screen) { return control<forms::ListView>(screen, "lvItems"); }
int count(const char* rowsOf) { return Shop::count(u"Select * from "_s + QLatin1String(rowsOf)); }

void onNewCard(const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    frmEditJOB().ShowAddNew();
}

/// Opens card 1.
bool onStoredCard(const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    return frmEditJOB().ShowEdit(1);
}

/// Presses "Add" and orders an item on the screen that comes.
void addLine(frmEditJOB& job, const QString& item, const QString& qty, const QString& fees)
{
    onNextModal<frmAddItem>([&](frmAddItem& line) {
        combo(line, "cmbItems").setText(item);
        field(line, "txtQnt").setText(qty);
        field(line, "txtFees").setText(fees);
        click(line, "Command1");
    });
    click(job, "Command4");
}

} // namespace

void tst_frmEditJOB::lay()
{
    session.ShopName = u"Needle & Co"_s;
    m_asha = shop->addClient(u"Asha Rao"_s);
    shop->addClient(u"O'Neil"_s);
    shop->addItem(u"Shirt"_s, 300, 120);
    shop->addItem(u"Trouser"_s, 450, 150);
    // Card 1: 301 and 99, of which 100 are paid.
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").setText(u"Asha Rao"_s);
        addLine(job, u"Shirt"_s, u"2"_s, u"150.50"_s);
        addLine(job, u"Trouser"_s, u"1"_s, u"99"_s);
        combo(job, "cmbAccount").setText(u"Cash"_s);
        field(job, "txtAmountPaid").setText(u"100"_s);
        prompts->expect(u"New Job Created."_s);
        click(job, "Command1");
    });
}

void tst_frmEditJOB::wholeOrderByKeyboard()
{
    SetSetting(13, u"7"_s);
    onNewCard([&](frmEditJOB& job) {
        QCOMPARE(label(job, "lblLastvisit"), u"Welcome to Needle & Co"_s);
        QCOMPARE(control<forms::DatePicker>(job, "DateDel").text(), u"17-Feb-2024"_s);
        QTRY_VERIFY(combo(job, "cmbClient").isDroppedDown());
        press(Qt::Key_Escape); // the open list of clients first
        QVERIFY(job.isVisible() && !combo(job, "cmbClient").isDroppedDown());
        press(Qt::Key_Tab);
        QCOMPARE(focused(job), u"lvItems"_s);
        press(Qt::Key_Return); // an empty list lets the operator pass
        QVERIFY(focused(job) != u"lvItems"_s);

        combo(job, "cmbClient").setFocus();
        onNextModal<frmEditClients>([&](frmEditClients& client) {
            field(client, "txtName").setText(u"Chitra"_s);
            prompts->expect(u"New Client Created."_s);
            click(client, "Command1");
        });
        press(Qt::Key_A, Qt::ControlModifier);
        QTRY_COMPARE(combo(job, "cmbClient").text(), u"Chitra"_s);
        combo(job, "cmbClient").select(0, 6);
        typeText(u"ash"_s);
        for (const char* next : {"JobDate", "DateDel", "DateTrial", "txtRemark"}) {
            press(Qt::Key_Return);
            QCOMPARE(focused(job), QLatin1String(next));
        }
        typeText(u"wedding"_s);
        press(Qt::Key_Return);
        onNextModal<frmAddItem>([&](frmAddItem& line) {
            typeText(u"shi"_s);
            press(Qt::Key_Return);
            field(line, "txtQnt").setText(u"2"_s);
            click(line, "Command1");
        });
        press(Qt::Key_Return); // on "Add"
        QTRY_COMPARE(list(job).cell(0, 4), u"600.00"_s);
        onNextModal<frmAddItem>([](frmAddItem&) { press(Qt::Key_Escape); });
        press(Qt::Key_A, Qt::AltModifier);
        QTRY_COMPARE(focused(job), u"cmbAccount"_s);
        typeText(u"c"_s);
        press(Qt::Key_Return);
        typeText(u"100"_s);
        QCOMPARE(field(job, "txtAmount").text(), u"500.00"_s);
        press(Qt::Key_Return);
        prompts->expect(u"New Job Created."_s);
        press(Qt::Key_Return); // on "Save"
        QCOMPARE(label(job, "lblTitle"), u"Edit JOB Card"_s);
        press(Qt::Key_Escape);
        QVERIFY(!job.isVisible());
    });
    shop->reopen();
    QCOMPARE(count("Jobs where ID=2 and Remark='Wedding' and CashAccID=4"), 1);
    QCOMPARE(count("Jobs_Detail where JobID=2 and WorkerWagesDue=120"), 1);
    QCOMPARE(GetBalance(qint16(m_asha), session.WorkingDate), -800.0);
}

void tst_frmEditJOB::refusals()
{
    onNewCard([&](frmEditJOB& job) {
        const auto refused = [&](const char* button, const QString& message, const char* focus) {
            field(job, "txtRemark").setFocus();
            prompts->expect(message);
            click(job, button);
            QCOMPARE(focused(job), QLatin1String(focus));
        };
        for (const char* button : {"Command4", "Command1"})
            refused(button, u"Please Select Client!"_s, "cmbClient");
        combo(job, "cmbClient").setText(u"Asha Rao"_s);
        refused("Command1", u"Please Add Item!"_s, "Command4");
        addLine(job, u"Shirt"_s, u"1"_s, u"100"_s);
        for (const auto& [name, text, message] :
             {std::tuple("txtJOBID", "1",
                         "Job ID 1 is already taken by another job card. Nothing has been saved."),
              std::tuple("txtAmountDue", "999999999999999", "Overflow"),
              std::tuple("txtAmountPaid", "-5",
                         "The amount received can't be below 0. Nothing has been saved.")}) {
            const QString before = field(job, name).text();
            field(job, name).setText(QLatin1String(text));
            refused("Command1", QLatin1String(message), "txtRemark");
            field(job, name).setText(before);
        }
        field(job, "txtAmountPaid").setText(u"40"_s);
        combo(job, "cmbAccount").setText(u"Nowhere"_s);
        refused("Command1", u"Please Select Receipt Account!"_s, "cmbAccount");
        combo(job, "cmbClient").setText(u"Nobody"_s); // removed since the line was added
        list(job).setFocus();
        prompts->expect(u"Please Select Client!"_s);
        press(Qt::Key_Return);
    });
    QCOMPARE(count("Jobs"), 1);
    frmEditJOB unread;
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, unread.ShowEdit(5));
    QVERIFY(!unread.isLoaded());
}

void tst_frmEditJOB::greetings()
{
    DE.connection().Execute(u"Update Jobs set Date=#09-Jan-2024#"_s);
    const auto back = u"Welcome back Asha Rao, Your previous visit was: 09-Jan-2024 ( 1 month, 1 day"_s;
    for (const auto& [received, greeting] :
         {std::pair(400, back + u"  ago )  , Job # 1"_s),
          std::pair(150, back + u"  ago ) , Job # 1 , Due Balance : 250.00 Dr"_s),
          std::pair(650, back + u"  ago ) , Job # 1 , Due Balance : -250.00 Cr"_s)}) {
        DE.connection().Execute(u"Update Postings set Amount=%1 where Sr=4"_s.arg(received));
        onNewCard([&, expected = greeting](frmEditJOB& job) {
            typeText(u"a"_s);
            press(Qt::Key_Return);
            QCOMPARE(label(job, "lblLastvisit"), expected);
        });
    }
    onNewCard([&](frmEditJOB& job) {
        // A look-up that fails tells so once and lets the operator go on.
        typeText(u"o"_s);
        prompts->expect(u"Syntax error in the statement: ' is not closed: "
                        "Select * from Accounts where Title='O'Neil'"_s);
        press(Qt::Key_Return);
        QVERIFY(prompts->allMet());
        QCOMPARE(focused(job), u"JobDate"_s);

        // The text walks to the left and comes in again at the right edge.
        auto& text = control<QLabel>(job, "lblLastvisit");
        const int left = text.x();
        QTRY_VERIFY(text.x() < left);
        text.move(-text.width() - 1, text.y());
        QTRY_VERIFY(text.x() > job.width() / 2);
    });
}

void tst_frmEditJOB::amountsUnderTheTypingHand()
{
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").setText(u"Asha Rao"_s);
        addLine(job, u"Shirt"_s, u"2"_s, u"150.50"_s);
        const auto typed = [&](const char* name, const char* keys) { // "<" Backspace, ">" Delete
            field(job, name).setFocus(Qt::TabFocusReason);
            field(job, name).selectAll();
            for (const QChar key : QString::fromLatin1(keys))
                key == u'<' ? press(Qt::Key_Backspace) : key == u'>' ? press(Qt::Key_Delete) : typeText(key);
            return field(job, name).text();
        };
        QCOMPARE(typed("txtAmountPaid", "1x0.5.0"), u"10.50"_s);
        QCOMPARE(field(job, "txtAmount").text(), u"290.50"_s);
        QCOMPARE(typed("txtAmountPaid", "302"), u"301.00"_s); // nobody pays more than the total
        QCOMPARE(field(job, "txtAmount").text(), u"0.00"_s);
        for (const auto& [keys, total] :
             {std::pair("1250", "1250.00"), std::pair("12.57", "12.57"), std::pair("1.2.3", "1.23"),
              std::pair("a-1b2", "12.00"), std::pair("125<<7", "17.00"), std::pair("12.<<3", "13.00"),
              std::pair("12>5", "12.50"), std::pair("<8", "8.00")})
            QCOMPARE(typed("txtAmountDue", keys), QLatin1String(total));
    });
}

void tst_frmEditJOB::linesOfTheListAndNextCard()
{
    onStoredCard([&](frmEditJOB& job) {
        const auto total = [&] { return field(job, "txtAmountDue").text(); };
        list(job).selectRow(0);
        click(job, "Command10");
        QCOMPARE(list(job).cell(2, 4), u"301.00"_s);
        QCOMPARE(total(), u"400.00"_s); // until the next change
        list(job).selectRow(1);
        onNextModal<frmAddItem>([&](frmAddItem& line) {
            field(line, "txtFees").setText(u"100"_s);
            click(line, "Command1");
        });
        list(job).setFocus();
        press(Qt::Key_Return);
        QTRY_COMPARE(total(), u"702.00"_s);
        click(job, "Command5");
        QCOMPARE(total(), u"602.00"_s);
        click(job, "Command6");
        for (const char* idle : {"Command5", "Command6", "Command10"})
            click(job, idle);
        QCOMPARE(total(), u"602.00"_s);

        onNextModal<frmEditJOB>([&](frmEditJOB& next) {
            QCOMPARE(field(next, "txtJOBID").text(), u"2"_s);
            QCOMPARE(list(next).rowCount(), 0);
            QVERIFY(combo(next, "cmbClient").text().isEmpty());
            QVERIFY(!control<QFrame>(next, "picCancel").isVisible());
        });
        click(job, "Command8");
        QVERIFY(control<QFrame>(job, "picCancel").isVisible());
        click(job, "Command3");
    });
    QCOMPARE(count("Jobs_Detail"), 2);
}

void tst_frmEditJOB::storedCardIsShownWhole()
{
    DE.connection().Execute(
        u"Update Jobs set JobFinished=1, ClientDeliveryDate=#12-Feb-2024#, appearedDate=#11-Feb-2024#, "
        "DeliveryDate=#15-Feb-2024#, Remark='rush', CancelReason='none'"_s);
    QStringList trials;
    for (int appeared = 0; appeared < 3; ++appeared) {
        DE.connection().Execute(u"Update Jobs set appeared=%1"_s.arg(appeared));
        onStoredCard([&](frmEditJOB& job) { trials += label(job, "lblTrialInfo"); });
    }
    QCOMPARE(trials.join(u';'), u"Not Appeared for Trial;Appeared for Trial 11-Feb-2024;Trial Canceled"_s);
    onStoredCard([](frmEditJOB& job) {
        QStringList shown;
        for (const char* name :
             {"txtJOBID", "txtAmountDue", "txtAmountPaid", "txtAmount", "txtRemark", "txtCancel"})
            shown += field(job, name).text();
        QCOMPARE(shown.join(u' '), u"1 400.00 100.00 300.00 rush none"_s);
        QVERIFY(field(job, "txtJOBID").isReadOnly()); // a card keeps its number
        QCOMPARE(combo(job, "cmbClient").text() + combo(job, "cmbAccount").text(), u"Asha RaoCash"_s);
        QCOMPARE(control<forms::DatePicker>(job, "DateDel").value(), QDate(2024, 2, 15));
        QVERIFY(control<QCheckBox>(job, "chJobStatus").isChecked());
        QCOMPARE(label(job, "lblDelDate"), u"Delivered to Client : 12-Feb-2024"_s);
        QCOMPARE(list(job).cell(0, 3), u"150.50"_s);
    });
}

void tst_frmEditJOB::savesAndDelete()
{
    SetSetting(3, u"Yes"_s);
    session.RefreshLists = false;
    const bool changed = onStoredCard([&](frmEditJOB& job) {
        prompts->expect(u"Job Edited."_s);
        prompts->expect(u"This Job has been registered.\r\nWould you like to Inform Client via SMS?"_s,
                        Answer::Yes);
        prompts->expect(u"Mobile Number Not Found!\r\nSMS Sending has been Failed."_s);
        click(job, "Command1");
    });
    QVERIFY(changed && session.RefreshLists);

    shop->addVoucher(1, m_asha, 4, 5);                          // an entry voucher of the same number stays
    onNewCard([](frmEditJOB& job) { click(job, "Command7"); }); // nothing to delete yet
    onStoredCard([&](frmEditJOB& job) {
        prompts->expect(u"Are you sure to Delete!"_s, Answer::Esc);
        click(job, "Command7");
        QCOMPARE(count("Jobs"), 1);
        prompts->expect(u"Are you sure to Delete!"_s, Answer::Yes);
        prompts->expect(u"Deleted."_s);
        click(job, "Command7");
    });
    QCOMPARE(count("Jobs") + count("Jobs_Detail") + count("Postings where vType=1"), 0);
    QCOMPARE(count("Postings"), 2);
}

QTEST_MAIN(tst_frmEditJOB)
#include "tst_frmEditJOB.moc"
