#include "accounts/frmTransiction.h"
#include "core/shell/frmGlance.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmMenu.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "planning/frmDDP.h"
#include "planning/frmFeedBack.h"
#include "platform/forms/FigureButton.h"
#include "platform/report/Preview.h"
#include "registers/frmDueRegister.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/Pdf.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

#include <QPushButton>

/// How many keys the counter's most frequent errands take, from the main screen and back to it.
class tst_keys : public ShopTest
{
    Q_OBJECT

    int pressed = 0;

    void key(Qt::Key which, Qt::KeyboardModifiers modifiers = {})
    {
        ++pressed;
        press(which, modifiers);
    }
    void type(const QString& text)
    {
        pressed += int(text.size());
        typeText(text);
    }
    /// A notice that the operator takes away by a key.
    void notice(const QString& text)
    {
        ++pressed;
        prompts->expect(text);
    }
    /// On the main screen, with its keys alone.
    void atTheCounter(const std::function<void()>& errand)
    {
        pressed = 0;
        inModal<frmMain>([&](frmMain&) { errand(); });
    }

    void lay() override
    {
        shop->addItem("Shirt", 150, 40, "");
        shop->addItem("Kurta", 200);
        Shop::run("Update Items set ProdcutionCap=2 where Name='Shirt'");
        asha = shop->addClient("Asha Rao");
        kamal = shop->addClient("Kamal Jain");
    }
    qint32 asha = 0;
    qint32 kamal = 0;

private Q_SLOTS:
    void orderWithAdvance()
    {
        atTheCounter([&] {
            onNextModal<frmEditJOB>([&](frmEditJOB& card) {
                type("ash");
                key(Qt::Key_Return);
                onNextModal<frmAddItem>([&](frmAddItem& line) {
                    QVERIFY(label(line, "lblHelp").startsWith("Esc all garments in: to the money  ·  "));
                    type("sh");
                    key(Qt::Key_Return);
                    type("2");
                    key(Qt::Key_O, Qt::AltModifier);
                });
                key(Qt::Key_A, Qt::AltModifier);
                key(Qt::Key_F5);
                QCOMPARE(combo(card, "cmbAccount").text(), "Cash");
                type("100");
                notice("New Job Created.");
                key(Qt::Key_S, Qt::AltModifier);
                key(Qt::Key_Escape);
            });
            key(Qt::Key_N, Qt::AltModifier);
        });
        QCOMPARE(Shop::rows("Select ClintName, AmountDue, AmountPaid from Jobs"),
                 QStringList("Asha Rao 300 100"));
        QCOMPARE(Shop::count("Select * from Postings where vType=1"), 4);
        QVERIFY2(pressed <= 24, qPrintable(QString::number(pressed)));
    }

    void takingTheBalance()
    {
        shop->addVoucher(1, GetAccountID("Sales"), asha, 400);
        shop->addVoucher(2, GetAccountID("Sales"), kamal, 250.5);
        atTheCounter([&] {
            onNextModal<frmMenu>([&](frmMenu&) {
                onNextModal<frmDueRegister>([&](frmDueRegister& dues) {
                    type("ka");
                    onNextModal<frmTransiction>([&](frmTransiction& voucher) {
                        QCOMPARE(focused(voucher), "txtAmount");
                        notice("New Entry saved.");
                        key(Qt::Key_S, Qt::AltModifier);
                        key(Qt::Key_Escape);
                    });
                    key(Qt::Key_F5);
                    QCOMPARE(rowText(dues, 0), "Asha Rao|400.00");
                    key(Qt::Key_Escape);
                });
                key(Qt::Key_U, Qt::AltModifier);
                key(Qt::Key_Escape);
            });
            key(Qt::Key_S, Qt::AltModifier);
        });
        QCOMPARE(GetBalance(qint16(kamal), session.WorkingDate), 0.0);
        QCOMPARE(Shop::value("Select Amount from Postings where VID=3 and Sr=1 and particulars='Receipt'")
                     .toDouble(),
                 250.5);
        QVERIFY2(pressed <= 12, qPrintable(QString::number(pressed)));
    }

    /// Also from the line at hand; what is typed there replaces what is due.
    void takingAPart()
    {
        shop->addVoucher(1, GetAccountID("Sales"), kamal, 250);
        shop->addJobLine(kamal, 1, 0, "ClintName='Kamal Jain'");
        inModal<frmWorkerJobRegister>([&](frmWorkerJobRegister& list) {
            listView(list, "lvSummary").setFocus();
            listView(list, "lvSummary").selectRow(0);
            onNextModal<frmTransiction>([&](frmTransiction&) {
                type("50");
                notice("New Entry saved.");
                key(Qt::Key_S, Qt::AltModifier);
            });
            key(Qt::Key_F5);
        });
        QCOMPARE(GetBalance(qint16(kamal), session.WorkingDate), -200.0);
    }

    void whatWasTakenYesterday()
    {
        const qint32 bank = Shop::add("Accounts", {{"Title", "Bank"}, {"Type", 2}, {"Nature", 0}});
        shop->addVoucher(1, asha, GetAccountID("Cash"), 100);
        shop->addVoucher(2, kamal, bank, 50);
        Shop::run("Update Postings set Date='2024-02-09'");
        atTheCounter([&] {
            onNextModal<frmMenu>([&](frmMenu&) {
                onNextModal<frmGlance>([&](frmGlance& glance) {
                    const auto& taken = control<forms::FigureButton>(glance, "cmdTaken");
                    QVERIFY(taken.figure().contains("0.00"));
                    key(Qt::Key_PageUp);
                    QVERIFY2(taken.figure().contains("150.00"), qPrintable(taken.figure()));
                    QCOMPARE(taken.caption(), "Taken that day");
                    const int needed = pressed;
                    onNextModal<report::Preview>([](report::Preview& paper) {
                        QVERIFY(readBack(paper.report()).join(u' ').contains("Taken that day"));
                    });
                    press(Qt::Key_P, Qt::ControlModifier);
                    QVERIFY2(needed <= 6, qPrintable(QString::number(needed)));
                    key(Qt::Key_PageDown);
                    key(Qt::Key_PageDown); // not beyond the working date
                    QVERIFY(label(glance, "lblDay").contains("10"));
                    QCOMPARE(taken.caption(), "Taken today");
                });
                key(Qt::Key_G, Qt::AltModifier);
            });
            key(Qt::Key_S, Qt::AltModifier);
        });
    }

    void whenCanIHaveIt()
    {
        atTheCounter([&] {
            onNextModal<frmDDP>([](frmDDP& list) { QVERIFY(rowText(list, 0).endsWith("11-Feb-2024")); });
            key(Qt::Key_F11);
            QVERIFY(pressed <= 3);
            onNextModal<frmEditJOB>([&](frmEditJOB&) {
                onNextModal<frmDDP>([](frmDDP& list) { QVERIFY(rowText(list, 0).startsWith("Shirt|")); });
                press(Qt::Key_F11); // over the open list of clients
            });
            press(Qt::Key_N, Qt::AltModifier);
        });
    }

    /// Notes are left by a second Enter, which adds no line to them.
    void notesAreLeftByEnter()
    {
        const auto leaves = [&](QWidget& screen, const char* note) {
            auto& box = control<swTextBoxMultiLine>(screen, note);
            box.setFocus();
            typeText("first");
            press(Qt::Key_Return);
            typeText("second");
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), note);
            press(Qt::Key_Return);
            QCOMPARE(focused(screen), "Command1");
            QCOMPARE(box.Text(), "first\r\nsecond");
            box.setFocus();
            press(Qt::Key_Return);
            typeText("x");
            press(Qt::Key_Backspace);
            press(Qt::Key_Return); // not straight after the first
            QCOMPARE(focused(screen), note);
        };
        onNextModal<frmTransiction>([&](frmTransiction& voucher) { leaves(voucher, "txtRemark"); });
        qint16 saved = 0;
        frmTransiction().ShowAddNew("Asha Rao", saved);
        onNextModal<frmFeedBack>([&](frmFeedBack& feedback) { leaves(feedback, "txtFeedback"); });
        QVariant result;
        GiveFeedback(shop->addJobLine(asha, 1), 0, result);
    }
};

QTEST_MAIN(tst_keys)
#include "tst_keys.moc"
