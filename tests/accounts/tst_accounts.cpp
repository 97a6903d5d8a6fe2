#include "accounts/frmAccountsList.h"
#include "accounts/frmEditAccount.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/ListBox.h"
#include "support/ShopTest.h"

#include <QLabel>
#include <QTest>

namespace {

forms::ComboBox& type(QWidget& form) { return control<forms::ComboBox>(form, "cmbType"); }
forms::ListBox& accounts(QWidget& list) { return control<forms::ListBox>(list, "lstSummary"); }

void edit(const QString& title, std::function<void(frmEditAccount&)> act)
{
    onNextModal<frmEditAccount>(std::move(act));
    frmEditAccount().ShowEdit(qint16(GetAccountID(title)));
}

} // namespace

class tst_accounts : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void addsAnAccountAndGoesOnEditingIt()
    {
        shop->addClient(QStringLiteral("Asha"));
        for (const char* prompt : {"Please enter account title!", "Please select account type", "Duplicate!",
                                   "New Account created.", "Account information edited.", "Duplicate!"})
            prompts->expect(QLatin1String(prompt));
        onNextModal<frmAccountsList>([](frmAccountsList& list) {
            onNextModal<frmEditAccount>([](frmEditAccount& form) {
                QCOMPARE(control<QLabel>(form, "lblTitle").text(), QStringLiteral("Add New Account"));
                QCOMPARE(type(form).text(), QString());
                remove(); // a new account has nothing to delete
                save();
                typeText(QStringLiteral("asha")); // a client's
                save();
                press(Qt::Key_Down);
                press(Qt::Key_Down);
                QCOMPARE(type(form).text(), QStringLiteral("Expenses"));
                save();
                box(form, "txtName").selectAll();
                typeText(QStringLiteral("rent"));
                press(Qt::Key_Return);
                press(Qt::Key_Return);
                QCOMPARE(focused(form), QStringLiteral("Command1"));
                press(Qt::Key_Return);
                type(form).setListIndex(0);
                box(form, "txtName").setText(QStringLiteral("RENT"));
                press(Qt::Key_Return);
                box(form, "txtName").setText(QStringLiteral("asha"));
                press(Qt::Key_Return);
                press(Qt::Key_Escape);
            });
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(accounts(list).ListCount(), 5);
            QCOMPARE(accounts(list).findString(QStringLiteral("asha")), -1);
        });
        frmAccountsList().showModal();
        QCOMPARE(Shop::count(QStringLiteral(
                     "Select * from Accounts where Title='RENT' and type=2 and nature=0 and readonly=0")),
                 1);
    }

    void findsTheFirstThatBegins()
    {
        onNextModal<frmAccountsList>([](frmAccountsList& list) {
            typeText(QStringLiteral("c"));
            QCOMPARE(accounts(list).Text(), QStringLiteral("Cash"));
            typeText(QStringLiteral("x"));
            QCOMPARE(accounts(list).ListIndex(), -1);
            press(Qt::Key_Return); // nothing is selected, nothing opens
            press(Qt::Key_Home);
            onNextModal<frmEditAccount>([](frmEditAccount& form) {
                QCOMPARE(box(form, "txtName").Text(), QStringLiteral("Cash"));
                QCOMPARE(type(form).text(), QStringLiteral("Income"));
            });
            press(Qt::Key_Return);
            QCOMPARE(accounts(list).Text(), QStringLiteral("Cash"));
        });
        frmAccountsList().showModal();
    }

    void keepsTheAccountsOfTheBeginning()
    {
        prompts->expect(QStringLiteral("Cant't Rename!"));
        prompts->expect(QStringLiteral("Cant't Delete!"));
        edit(QStringLiteral("Wages"), [](frmEditAccount& form) {
            type(form).setListIndex(0);
            save();
            remove();
        });
        QCOMPARE(Shop::value(QStringLiteral("Select nature from Accounts where Title='Wages'")).toInt(), 1);
    }

    void deletesOnlyWhatTheLedgerNeverNamed()
    {
        const qint32 main = shop->addClient(QStringLiteral("Main"));
        const qint32 opposite = shop->addClient(QStringLiteral("Opposite"));
        shop->addClient(QStringLiteral("Free"));
        shop->addVoucher(1, main, opposite, 10);
        for (const char* title : {"Main", "Opposite"}) {
            prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
            prompts->expect(QStringLiteral("Cant't Delete!"));
            edit(QLatin1String(title), [](frmEditAccount&) { remove(); });
        }
        session.RefreshLists = false;
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Esc);
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
        prompts->expect(QStringLiteral("Deleted."));
        edit(QStringLiteral("Free"), [](frmEditAccount& form) {
            remove();
            QVERIFY(form.isVisible());
            remove();
            QVERIFY(!form.isVisible());
        });
        QVERIFY(session.RefreshLists);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Accounts where Type=0")), 2);
    }
};

QTEST_MAIN(tst_accounts)
#include "tst_accounts.moc"
