#include "accounts/frmAccountsList.h"
#include "accounts/frmEditAccount.h"
#include "support/ShopTest.h"

static void edit(const QString& title, std::function<void(frmEditAccount&)> act)
{
    onNextModal<frmEditAccount>(std::move(act));
    frmEditAccount().ShowEdit(qint16(GetAccountID(title)));
}

class tst_accounts : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void addsAnAccountAndGoesOnEditingIt()
    {
        shop->addClient("Asha");
        prompts->expectAll({"Please enter account title!", "Please select account type", "Duplicate!",
                            "New Account created.", "Account information edited.", "Duplicate!"});
        inModal<frmAccountsList>([](frmAccountsList& list) {
            onNextModal<frmEditAccount>([](frmEditAccount& form) {
                remove(); // a new account has nothing to delete
                save();
                typeText("asha"); // a client's
                save();
                press(Qt::Key_Down);
                press(Qt::Key_Down);
                QCOMPARE(combo(form, "cmbType").text(), "Expenses");
                save();
                fillIn(form, "txtName", "rent");
                typeFields({{}, {}, {}}); // the last on "Save"
                combo(form, "cmbType").setListIndex(0);
                for (const char* title : {"RENT", "asha"}) {
                    box(form, "txtName").setText(title);
                    press(Qt::Key_Return);
                }
                press(Qt::Key_Escape);
            });
            press(Qt::Key_A, Qt::ControlModifier);
            forms::ListBox& accounts = listBox(list, "lstSummary");
            QCOMPARE(accounts.ListCount(), 5); // no clients

            typeFields({"rx"}); // nothing is selected, nothing opens
            press(Qt::Key_Backspace);
            QCOMPARE(accounts.Text(), "RENT");
            onNextModal<frmEditAccount>([](frmEditAccount& form) {
                QCOMPARE(box(form, "txtName").Text(), "RENT");
                QCOMPARE(combo(form, "cmbType").ListIndex(), 0);
            });
            press(Qt::Key_Return);
            QCOMPARE(accounts.Text(), "RENT");
        });
        QCOMPARE(
            Shop::count("Select * from Accounts where Title='RENT' and type=2 and nature=0 and readonly=0"),
            1);
    }

    void keepsTheAccountsOfTheBeginningAndOfTheLedger()
    {
        prompts->expectAll({"Cant't Rename!", "Cant't Delete!"});
        edit("Wages", [](frmEditAccount& form) {
            combo(form, "cmbType").setListIndex(0);
            save();
            remove();
        });
        QCOMPARE(Shop::value("Select nature from Accounts where Title='Wages'").toInt(), 1);

        shop->addVoucher(1, shop->addClient("Main"), shop->addClient("Opposite"), 10);
        shop->addClient("Free");
        for (const char* title : {"Main", "Opposite"}) {
            prompts->expect("Are you sure?", Answer::Yes);
            prompts->expect("Cant't Delete!");
            edit(title, [](frmEditAccount&) { remove(); });
        }
        session.RefreshLists = false;
        prompts->expect("Are you sure?", Answer::Yes);
        prompts->expect("Deleted.");
        edit("Free", [](frmEditAccount& form) {
            remove();
            QVERIFY(!form.isVisible());
        });
        QVERIFY(session.RefreshLists);
        QCOMPARE(Shop::count("Select * from Accounts where Type=0"), 2);
    }
};

QTEST_MAIN(tst_accounts)
#include "tst_accounts.moc"
