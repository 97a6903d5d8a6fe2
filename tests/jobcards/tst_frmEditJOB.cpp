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
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

/// The job card as the operator meets it.
class tst_frmEditJOB : public ShopTest
{
    Q_OBJECT

private Q_SLOTS:
    void wholeOrderByKeyboard();
    void savesOfOneCard();
    void refusals();
    void numberTakenAndImpossibleAmounts();
    void banner_data();
    void banner();
    void failingLookupTellsOnce();
    void totalUnderTheTypingHand_data();
    void totalUnderTheTypingHand();
    void amountReceived();
    void linesOfTheList();
    void keysOfTheScreen();
    void clientAddedFromTheCard();
    void storedCardIsShownWhole();
    void deleteAndCancelReason();
    void nextCardIsAFreshOne();
    void cardThatCannotBeReadIsNotShown();
    void smsIsOfferedAfterEverySave();

private:
    /// Opens a new card, or the stored one of that number, and acts on it.
    void onNewCard(const std::function<void(frmEditJOB&)>& act);
    bool onStoredCard(qint32 number, const std::function<void(frmEditJOB&)>& act);
    /// Presses "Add" and orders an item on the screen that comes.
    void addLine(frmEditJOB& job, const QString& item, const QString& qty, const QString& fees);
    void storeCard(const QString& client = QStringLiteral("Asha Rao"));

    void lay() override;

    qint32 m_asha = 0;
};

namespace {

QLineEdit& field(QWidget& screen, const char* name) { return control<QLineEdit>(screen, name); }
QString shown(QWidget& screen, const char* name) { return field(screen, name).text(); }
QString label(QWidget& screen, const char* name) { return control<QLabel>(screen, name).text(); }
void click(QWidget& screen, const char* name) { control<QPushButton>(screen, name).click(); }
forms::ComboBox& combo(QWidget& screen, const char* name) { return control<forms::ComboBox>(screen, name); }
forms::ListView& list(QWidget& screen) { return control<forms::ListView>(screen, "lvItems"); }

} // namespace

void tst_frmEditJOB::lay()
{
    session.ShopName = QStringLiteral("Needle & Co");
    m_asha = shop->addClient(QStringLiteral("Asha Rao"));
    shop->addClient(QStringLiteral("Balu"), QStringLiteral("0981"));
    shop->addItem(QStringLiteral("Shirt"), 300, 120);
    shop->addItem(QStringLiteral("Trouser"), 450, 150);
}

void tst_frmEditJOB::onNewCard(const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    frmEditJOB().ShowAddNew();
}

bool tst_frmEditJOB::onStoredCard(qint32 number, const std::function<void(frmEditJOB&)>& act)
{
    onNextModal<frmEditJOB>(act);
    return frmEditJOB().ShowEdit(number);
}

void tst_frmEditJOB::addLine(frmEditJOB& job, const QString& item, const QString& qty, const QString& fees)
{
    onNextModal<frmAddItem>([&](frmAddItem& line) {
        combo(line, "cmbItems").setText(item);
        field(line, "txtQnt").setText(qty);
        field(line, "txtFees").setText(fees);
        click(line, "Command1");
    });
    click(job, "Command4");
}

void tst_frmEditJOB::storeCard(const QString& client)
{
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").setText(client);
        addLine(job, QStringLiteral("Shirt"), QStringLiteral("2"), QStringLiteral("150.50"));
        addLine(job, QStringLiteral("Trouser"), QStringLiteral("1"), QStringLiteral("99"));
        combo(job, "cmbAccount").setText(QStringLiteral("Cash"));
        field(job, "txtAmountPaid").setText(QStringLiteral("100"));
        prompts->expect(QStringLiteral("New Job Created."));
        click(job, "Command1");
    });
}

void tst_frmEditJOB::wholeOrderByKeyboard()
{
    SetSetting(13, QStringLiteral("7"));
    SetSetting(23, QStringLiteral("1000"));
    onNewCard([&](frmEditJOB& job) {
        QCOMPARE(label(job, "lblLastvisit"), QStringLiteral("Welcome to Needle & Co"));
        QCOMPARE(label(job, "lblTitle"), QStringLiteral("Create New Job Card"));
        QCOMPARE(shown(job, "txtJOBID"), QStringLiteral("1000"));
        QCOMPARE(control<forms::DatePicker>(job, "DateDel").value(), session.WorkingDate.addDays(7));
        QCOMPARE(control<forms::DatePicker>(job, "JobDate").text(), QStringLiteral("10-Feb-2024"));
        QCOMPARE(focused(job), QStringLiteral("cmbClient"));
        QTRY_VERIFY(combo(job, "cmbClient").isDroppedDown());
        typeText(QStringLiteral("ash"));
        QCOMPARE(combo(job, "cmbClient").text(), QStringLiteral("Asha Rao"));
        for (const char* next : {"JobDate", "DateDel", "DateTrial", "txtRemark"}) {
            press(Qt::Key_Return);
            QCOMPARE(focused(job), QLatin1String(next));
        }
        QVERIFY(!combo(job, "cmbClient").isDroppedDown());
        QCOMPARE(label(job, "lblLastvisit"), QStringLiteral("Welcome Asha Rao"));
        typeText(QStringLiteral("wedding"));
        press(Qt::Key_Return);
        QCOMPARE(focused(job), QStringLiteral("Command4"));

        onNextModal<frmAddItem>([&](frmAddItem& line) {
            typeText(QStringLiteral("shi"));
            press(Qt::Key_Return);
            field(line, "txtQnt").setText(QStringLiteral("2"));
            click(line, "Command1");
        });
        press(Qt::Key_Return);
        QTRY_COMPARE(list(job).rowCount(), 1);
        QCOMPARE(list(job).cell(0, 0), QStringLiteral("Shirt"));
        QCOMPARE(list(job).cell(0, 4), QStringLiteral("600.00"));
        onNextModal<frmAddItem>([](frmAddItem&) { press(Qt::Key_Escape); });
        press(Qt::Key_Return);
        QTRY_COMPARE(focused(job), QStringLiteral("cmbAccount"));

        typeText(QStringLiteral("c"));
        press(Qt::Key_Return);
        QCOMPARE(focused(job), QStringLiteral("txtAmountPaid"));
        typeText(QStringLiteral("100"));
        QCOMPARE(shown(job, "txtAmount"), QStringLiteral("500.00"));
        press(Qt::Key_Return);
        QCOMPARE(focused(job), QStringLiteral("Command1"));
        prompts->expect(QStringLiteral("New Job Created."));
        press(Qt::Key_Return);
        QCOMPARE(label(job, "lblTitle"), QStringLiteral("Edit JOB Card"));
        press(Qt::Key_Escape);
        QVERIFY(!job.isVisible());
    });
    shop->reopen();
    QCOMPARE(Shop::value(QStringLiteral("Select Remark from Jobs where ID=1000")).toString(),
             QStringLiteral("Wedding"));
    QCOMPARE(Shop::value(QStringLiteral("Select WorkerWagesDue from Jobs_Detail where JobID=1000")).toInt(),
             120);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Postings where VID=1000")), 4);
    QCOMPARE(GetBalance(qint16(m_asha), session.WorkingDate), -500.0);
}

void tst_frmEditJOB::savesOfOneCard()
{
    storeCard();
    session.RefreshLists = false;
    const bool changed = onStoredCard(1, [&](frmEditJOB& job) {
        prompts->expect(QStringLiteral("Job Edited."));
        click(job, "Command1");
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 2);

        // Two removed lines: the engine refuses, and what was written before stays.
        click(job, "Command5");
        click(job, "Command5");
        addLine(job, QStringLiteral("Shirt"), QStringLiteral("1"), QStringLiteral("70"));
        prompts->expect(QStringLiteral("near \",\": syntax error"));
        click(job, "Command1");
        QCOMPARE(Shop::value(QStringLiteral("Select AmountDue from Jobs")).toInt(), 70);
        QCOMPARE(Shop::value(QStringLiteral("Select Amount from Postings where Sr=2")).toInt(), 400);
    });
    QVERIFY(changed);
    QVERIFY(session.RefreshLists);
    QVERIFY(!onStoredCard(1, [](frmEditJOB&) {}));
}

void tst_frmEditJOB::refusals()
{
    onNewCard([&](frmEditJOB& job) {
        prompts->expect(QStringLiteral("Please Select Client!"));
        click(job, "Command4");
        QCOMPARE(focused(job), QStringLiteral("cmbClient"));
        combo(job, "cmbClient").closeUp();
        field(job, "txtRemark").setFocus();
        prompts->expect(QStringLiteral("Please Select Client!"));
        click(job, "Command1");
        QCOMPARE(focused(job), QStringLiteral("cmbClient"));

        combo(job, "cmbClient").setText(QStringLiteral("Asha Rao"));
        prompts->expect(QStringLiteral("Please Add Item!"));
        click(job, "Command1");
        QCOMPARE(focused(job), QStringLiteral("Command4"));

        addLine(job, QStringLiteral("Shirt"), QStringLiteral("1"), QStringLiteral("100"));
        field(job, "txtAmountPaid").setText(QStringLiteral("40"));
        for (const char* account : {"", "Nowhere"}) {
            combo(job, "cmbAccount").setText(QLatin1String(account));
            prompts->expect(QStringLiteral("Please Select Receipt Account!"));
            click(job, "Command1");
            QCOMPARE(focused(job), QStringLiteral("cmbAccount"));
            combo(job, "cmbAccount").closeUp();
            field(job, "txtRemark").setFocus();
        }
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 0);

        // The client was removed from the list of names since the line was added.
        combo(job, "cmbClient").setText(QStringLiteral("Nobody"));
        list(job).setFocus();
        prompts->expect(QStringLiteral("Please Select Client!"));
        press(Qt::Key_Return);
    });
}

void tst_frmEditJOB::numberTakenAndImpossibleAmounts()
{
    storeCard();
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").setText(QStringLiteral("Asha Rao"));
        addLine(job, QStringLiteral("Shirt"), QStringLiteral("1"), QStringLiteral("100"));
        const auto refused = [&](const char* name, const QString& text, const QString& message) {
            const QString before = shown(job, name);
            field(job, name).setText(text);
            prompts->expect(message);
            click(job, "Command1");
            field(job, name).setText(before);
        };
        refused("txtJOBID", QStringLiteral("1"),
                QStringLiteral("Job ID 1 is already taken by another job card. Nothing has been saved."));
        refused("txtJOBID", QStringLiteral("99999999999"), QStringLiteral("Overflow"));
        refused("txtAmountDue", QStringLiteral("999999999999999"), QStringLiteral("Overflow"));
        refused("txtAmountPaid", QStringLiteral("-5"),
                QStringLiteral("The amount received can't be below 0. Nothing has been saved."));
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);
        QCOMPARE(label(job, "lblTitle"), QStringLiteral("Create New Job Card"));

        field(job, "txtJOBID").setText(QStringLiteral("12.4 kg"));
        field(job, "txtAmountPaid").clear();
        prompts->expect(QStringLiteral("New Job Created."));
        click(job, "Command1");
        QCOMPARE(shown(job, "txtJOBID"), QStringLiteral("12"));
    });
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs where ID=12 and AmountPaid=0")), 1);
}

void tst_frmEditJOB::banner_data()
{
    QTest::addColumn<QString>("amount");
    QTest::addColumn<QString>("greeting");
    const auto begin =
        QStringLiteral("Welcome back Asha Rao, Your previous visit was: 09-Jan-2024 ( 1 month, 1 day");
    QTest::newRow("nothing owed") << "400" << QString(begin + QStringLiteral("  ago )  , Job # 1"));
    QTest::newRow("owes") << "150"
                          << QString(begin + QStringLiteral("  ago ) , Job # 1 , Due Balance : 250.00 Dr"));
    QTest::newRow("credit") << "650"
                            << QString(begin +
                                       QStringLiteral("  ago ) , Job # 1 , Due Balance : -250.00 Cr"));
}

void tst_frmEditJOB::banner()
{
    QFETCH(QString, amount);
    QFETCH(QString, greeting);
    storeCard(); // 400, of which 100 are paid
    DE.connection().Execute(QStringLiteral("Update Jobs set Date=#09-Jan-2024#"));
    DE.connection().Execute(QStringLiteral("Update Postings set Amount=%1 where Sr=4").arg(amount));
    onNewCard([&](frmEditJOB& job) {
        typeText(QStringLiteral("a"));
        press(Qt::Key_Return);
        QCOMPARE(label(job, "lblLastvisit"), greeting);
        combo(job, "cmbClient").setFocus();
        typeText(QStringLiteral("b"));
        press(Qt::Key_Return);
        QCOMPARE(label(job, "lblLastvisit"), QStringLiteral("Welcome Balu"));

        // The text walks to the left and comes in again at the right edge.
        auto& text = control<QLabel>(job, "lblLastvisit");
        const int left = text.x();
        QTRY_VERIFY(text.x() < left);
        text.move(-text.width() - 1, text.y());
        QTRY_VERIFY(text.x() > job.width() / 2);
    });
}

void tst_frmEditJOB::failingLookupTellsOnce()
{
    shop->addClient(QStringLiteral("O'Neil"));
    onNewCard([&](frmEditJOB& job) {
        typeText(QStringLiteral("o"));
        QCOMPARE(combo(job, "cmbClient").text(), QStringLiteral("O'Neil"));
        const auto refusal = QStringLiteral("Syntax error in the statement: ' is not closed: "
                                            "Select * from Accounts where Title='O'Neil'");
        prompts->expect(refusal);
        press(Qt::Key_Return);
        QVERIFY(prompts->allMet());
        QCOMPARE(focused(job), QStringLiteral("JobDate"));
        press(Qt::Key_Return);
        QCOMPARE(focused(job), QStringLiteral("DateDel"));
        QCOMPARE(label(job, "lblLastvisit"), QStringLiteral("Welcome to Needle & Co"));
        prompts->expect(refusal);
        click(job, "Command4");
        QCOMPARE(list(job).rowCount(), 0);
    });
}

void tst_frmEditJOB::totalUnderTheTypingHand_data()
{
    QTest::addColumn<QString>("keys"); // "<" Backspace, ">" Delete, "[" Left
    QTest::addColumn<QString>("total");
    QTest::newRow("digits") << "1250"
                            << "1250.00";
    QTest::newRow("point") << "12.5"
                           << "12.50";
    QTest::newRow("cents") << "12.57"
                           << "12.57";
    QTest::newRow("two points") << "1.2.3"
                                << "1.23";
    QTest::newRow("letters and signs") << "a-1b2"
                                       << "12.00";
    QTest::newRow("erasing") << "125<<7"
                             << "17.00";
    QTest::newRow("erasing over the point") << "12.<<3"
                                            << "13.00";
    QTest::newRow("deleting at the point") << "12>5"
                                           << "12.50";
    QTest::newRow("all erased") << "<8"
                                << "8.00";
    QTest::newRow("in the middle") << "15[2"
                                   << "125.00";
}

void tst_frmEditJOB::totalUnderTheTypingHand()
{
    QFETCH(QString, keys);
    QFETCH(QString, total);
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").closeUp();
        field(job, "txtAmountDue").setFocus(Qt::TabFocusReason);
        field(job, "txtAmountDue").selectAll();
        for (const QChar key : keys) {
            switch (key.unicode()) {
            case '<':
                press(Qt::Key_Backspace);
                break;
            case '>':
                press(Qt::Key_Delete);
                break;
            case '[':
                press(Qt::Key_Left);
                break;
            default:
                typeText(key);
            }
        }
        QCOMPARE(shown(job, "txtAmountDue"), total);
    });
}

void tst_frmEditJOB::amountReceived()
{
    onNewCard([&](frmEditJOB& job) {
        combo(job, "cmbClient").setText(QStringLiteral("Asha Rao"));
        addLine(job, QStringLiteral("Shirt"), QStringLiteral("2"), QStringLiteral("150.50"));
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("301.00"));
        field(job, "txtAmountPaid").setFocus();
        typeText(QStringLiteral("1x0.5.0"));
        QCOMPARE(shown(job, "txtAmountPaid"), QStringLiteral("10.50"));
        QCOMPARE(shown(job, "txtAmount"), QStringLiteral("290.50"));
        field(job, "txtAmountPaid").selectAll();
        typeText(QStringLiteral("302"));
        QCOMPARE(shown(job, "txtAmountPaid"), QStringLiteral("301.00"));
        QCOMPARE(shown(job, "txtAmount"), QStringLiteral("0.00"));
    });
}

void tst_frmEditJOB::linesOfTheList()
{
    storeCard();
    onStoredCard(1, [&](frmEditJOB& job) {
        forms::ListView& lines = list(job);
        QCOMPARE(lines.rowCount(), 2);
        lines.selectRow(0);
        click(job, "Command10");
        QCOMPARE(lines.rowCount(), 3);
        QCOMPARE(lines.cell(2, 4), QStringLiteral("301.00"));
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("400.00")); // until the next change

        lines.selectRow(1);
        onNextModal<frmAddItem>([&](frmAddItem& line) {
            QCOMPARE(combo(line, "cmbItems").text(), QStringLiteral("Trouser"));
            field(line, "txtFees").setText(QStringLiteral("100"));
            field(line, "txtRemark").setText(QStringLiteral("wide"));
            click(line, "Command1");
        });
        lines.setFocus();
        press(Qt::Key_Return);
        QTRY_COMPARE(lines.cell(1, 1), QStringLiteral("wide"));
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("702.00"));

        lines.selectRow(1);
        click(job, "Command5");
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("602.00"));
        click(job, "Command6");
        QCOMPARE(lines.rowCount(), 0);
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("602.00"));
        for (const char* idle : {"Command5", "Command6", "Command10"})
            click(job, idle);
        prompts->expect(QStringLiteral("Please Add Item!"));
        click(job, "Command1");
    });
    QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail")), 2);
}

void tst_frmEditJOB::keysOfTheScreen()
{
    onNewCard([&](frmEditJOB& job) {
        QTRY_VERIFY(combo(job, "cmbClient").isDroppedDown());
        press(Qt::Key_Escape); // the open list of clients first
        QVERIFY(job.isVisible() && !combo(job, "cmbClient").isDroppedDown());
        press(Qt::Key_PageDown);
        QCOMPARE(focused(job), QStringLiteral("JobDate"));
        press(Qt::Key_PageUp);
        QCOMPARE(focused(job), QStringLiteral("cmbClient"));
        press(Qt::Key_Tab);
        QCOMPARE(focused(job), QStringLiteral("lvItems"));
        press(Qt::Key_Return); // an empty list lets the operator pass
        QVERIFY(focused(job) != QStringLiteral("lvItems"));
        field(job, "txtRemark").setFocus();
        press(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(focused(job), QStringLiteral("DateTrial"));
        prompts->expect(QStringLiteral("Please Select Client!"));
        press(Qt::Key_A, Qt::AltModifier);
        QCOMPARE(focused(job), QStringLiteral("cmbClient"));
        for (const char* later : {"Command2", "Command9", "Command11"})
            QVERIFY(!control<QPushButton>(job, later).isEnabled());
        press(Qt::Key_Escape);
        press(Qt::Key_Escape);
        QVERIFY(!job.isVisible());
    });
}

void tst_frmEditJOB::clientAddedFromTheCard()
{
    onNewCard([&](frmEditJOB& job) {
        onNextModal<frmEditClients>([&](frmEditClients& client) {
            field(client, "txtName").setText(QStringLiteral("Chitra"));
            prompts->expect(QStringLiteral("New Client Created."));
            click(client, "Command1");
        });
        press(Qt::Key_A, Qt::ControlModifier);
        QTRY_COMPARE(combo(job, "cmbClient").text(), QStringLiteral("Chitra"));
        QCOMPARE(combo(job, "cmbClient").ListCount(), 3);

        onNextModal<frmEditClients>([&](frmEditClients&) { press(Qt::Key_Escape); });
        press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(combo(job, "cmbClient").text(), QStringLiteral("Chitra"));
    });
}

void tst_frmEditJOB::storedCardIsShownWhole()
{
    storeCard();
    DE.connection().Execute(QStringLiteral(
        "Update Jobs set JobFinished=1, ClientDeliveryDate=#12-Feb-2024#, appeared=1, "
        "appearedDate=#11-Feb-2024#, DeliveryDate=#15-Feb-2024#, Remark='rush', CancelReason='none'"));
    onStoredCard(1, [&](frmEditJOB& job) {
        QCOMPARE(label(job, "lblTitle"), QStringLiteral("Edit JOB Card"));
        QCOMPARE(shown(job, "txtJOBID"), QStringLiteral("1"));
        QVERIFY(field(job, "txtJOBID").isReadOnly()); // a card keeps its number
        QCOMPARE(combo(job, "cmbClient").text(), QStringLiteral("Asha Rao"));
        QCOMPARE(combo(job, "cmbAccount").text(), QStringLiteral("Cash"));
        QCOMPARE(control<forms::DatePicker>(job, "DateDel").value(), QDate(2024, 2, 15));
        QCOMPARE(shown(job, "txtAmountDue"), QStringLiteral("400.00"));
        QCOMPARE(shown(job, "txtAmountPaid"), QStringLiteral("100.00"));
        QCOMPARE(shown(job, "txtAmount"), QStringLiteral("300.00"));
        QCOMPARE(shown(job, "txtRemark"), QStringLiteral("rush"));
        QCOMPARE(shown(job, "txtCancel"), QStringLiteral("none"));
        QVERIFY(control<QCheckBox>(job, "chJobStatus").isChecked());
        QCOMPARE(label(job, "lblDelDate"), QStringLiteral("Delivered to Client : 12-Feb-2024"));
        QCOMPARE(label(job, "lblTrialInfo"), QStringLiteral("Appeared for Trial 11-Feb-2024"));
        QCOMPARE(list(job).cell(0, 3), QStringLiteral("150.50"));
    });
    for (const auto& [appeared, text] :
         {std::pair(0, "Not Appeared for Trial"), std::pair(2, "Trial Canceled")}) {
        DE.connection().Execute(QStringLiteral("Update Jobs set appeared=%1").arg(appeared));
        onStoredCard(1, [&, expected = text](frmEditJOB& job) {
            QCOMPARE(label(job, "lblTrialInfo"), QLatin1String(expected));
        });
    }
}

void tst_frmEditJOB::deleteAndCancelReason()
{
    storeCard();
    onNewCard([](frmEditJOB& job) { click(job, "Command7"); }); // nothing to delete yet
    const bool changed = onStoredCard(1, [&](frmEditJOB& job) {
        auto& panel = control<QFrame>(job, "picCancel");
        QVERIFY(!panel.isVisible());
        click(job, "Command8");
        QVERIFY(panel.isVisible());
        click(job, "Command12");
        QVERIFY(!panel.isVisible());

        prompts->expect(QStringLiteral("Are you sure to Delete!"), Answer::Esc);
        click(job, "Command7");
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs")), 1);
        prompts->expect(QStringLiteral("Are you sure to Delete!"), Answer::Yes);
        prompts->expect(QStringLiteral("Deleted."));
        click(job, "Command7");
        QVERIFY(!job.isVisible());
    });
    QVERIFY(changed);
    QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 0);
}

void tst_frmEditJOB::nextCardIsAFreshOne()
{
    storeCard();
    onNextModal<frmEditJOB>([&](frmEditJOB& job) {
        click(job, "Command8");
        control<QCheckBox>(job, "chStatus").setChecked(true);
        click(job, "Command3");
    });
    onNextModal<frmEditJOB>([&](frmEditJOB& job) {
        QCOMPARE(label(job, "lblTitle"), QStringLiteral("Create New Job Card"));
        QCOMPARE(shown(job, "txtJOBID"), QStringLiteral("2"));
        QCOMPARE(list(job).rowCount(), 0);
        QVERIFY(combo(job, "cmbClient").text().isEmpty());
        QVERIFY(combo(job, "cmbAccount").text().isEmpty());
        QVERIFY(!control<QCheckBox>(job, "chStatus").isChecked());
        QVERIFY(!control<QFrame>(job, "picCancel").isVisible());
        QCOMPARE(shown(job, "txtAmount"), QStringLiteral("0.00"));
    });
    QVERIFY(!frmEditJOB().ShowEdit(1));
}

void tst_frmEditJOB::cardThatCannotBeReadIsNotShown()
{
    frmEditJOB job;
    QVERIFY_THROWS_EXCEPTION(ado::DatabaseError, job.ShowEdit(5));
    QVERIFY(!job.isVisible() && !job.isLoaded());
}

void tst_frmEditJOB::smsIsOfferedAfterEverySave()
{
    storeCard();
    SetSetting(3, QStringLiteral("Yes"));
    const auto question =
        QStringLiteral("This Job has been registered.\r\nWould you like to Inform Client via SMS?");
    onStoredCard(1, [&](frmEditJOB& job) {
        prompts->expect(QStringLiteral("Job Edited."));
        prompts->expect(question, Answer::No);
        click(job, "Command1");
        prompts->expect(QStringLiteral("Job Edited."));
        prompts->expect(question, Answer::Yes);
        prompts->expect(QStringLiteral("Mobile Number Not Found!\r\nSMS Sending has been Failed."));
        click(job, "Command1");
        combo(job, "cmbClient").setText(QStringLiteral("Balu"));
        prompts->expect(QStringLiteral("Job Edited."));
        prompts->expect(question, Answer::Yes);
        prompts->expect(QStringLiteral("Modem Com Port Error!\r\nSMS Sending has been Failed."));
        click(job, "Command1");
    });
}

QTEST_MAIN(tst_frmEditJOB)
#include "tst_frmEditJOB.moc"
