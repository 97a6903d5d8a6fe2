#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "masters/frmEditWorker.h"
#include "masters/frmWorkers.h"
#include "support/ShopTest.h"

static forms::ListBox& entries(QWidget& list) { return listBox(list, "lstSummary"); }

template <class Edit>
void edit(qint32 id, std::function<void(Edit&)> act)
{
    onNextModal<Edit>(std::move(act));
    Edit().Edit(qint16(id));
}

class tst_clients : public ShopTest
{
    Q_OBJECT

private Q_SLOTS:
    void clientsAreAddedUntilEscAndEdited()
    {
        shop->addWorker("Yusuf");
        inModal<frmClients>([this](frmClients& list) {
            onNextModal<frmEditClients>([](frmEditClients& form) {
                remove(); // a new record has nothing to delete
                box(form, "txtName").setFocus();
                typeFields({"anita o'rao", "12 mill road", "pune", "mh", "9829000000"});
                QCOMPARE(focused(form), "dateDob");
                QCOMPARE(label(form, "lblDobHint"),
                         "Unless it is changed, 10-Feb-2024 is stored  ·  Del: no date");
                date(form, "dateDob").setValue({1990, 5, 17});
                press(Qt::Key_Return);
                onNextModal<frmEditClients>([](frmEditClients& next) {
                    QCOMPARE(box(next, "txtName").Text() + box(next, "txtMobile").Text(), QString());
                    QCOMPARE(date(next, "dateDob").value(), session.WorkingDate);
                    save(); // without a name
                    for (const char* taken : {"ANITA O'RAO", "ANITA O\u2019RAO", "yusuf", "cash"}) {
                        box(next, "txtName").setText(taken);
                        press(Qt::Key_Tab);
                        save();
                        QCOMPARE(focused(next), "txtName");
                    }
                    press(Qt::Key_Escape);
                });
                press(Qt::Key_Return);
            });
            prompts->expectAll({"New Client Created.", "Please Enter Client Name!", "Duplicate!",
                                "Duplicate!", "Duplicate!", "Duplicate!"});
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(entries(list).List(0), QString("Anita O\u2019rao"));
            fillIn(list, "txtSearch", "anita o'");
            QCOMPARE(entries(list).ListIndex(), 0);
            fillIn(list, "txtSearch", {});

            shop->addClient("Bela");
            onNextModal<frmEditClients>([](frmEditClients& form) {
                QCOMPARE(box(form, "txtAddress").Text(), "12 Mill Road");
                QCOMPARE(date(form, "dateDob").value(), QDate(1990, 5, 17));
                // Another letter case alone is no other name, and its own new name not taken by another.
                for (const char* name : {"ANITA O'RAO", "bela", "Chhaya", "Chhaya"}) {
                    box(form, "txtName").setText(name);
                    save();
                }
            });
            const QString updated = "Client Information Updated.";
            prompts->expectAll({updated, "Duplicate!", updated, updated, updated, updated, updated, updated});
            typeText("an");
            press(Qt::Key_Return);
            QCOMPARE(entries(list).List(0) + entries(list).List(1), "BelaChhaya");
            onNextModal<frmEditClients>([&](frmEditClients& form) {
                const auto& hint = control<QLabel>(form, "lblDobHint");
                QVERIFY(hint.isVisible());
                save();
                QCOMPARE(Shop::count("Select * from Accounts where Title='Bela' and DOB is null"), 1);
                QVERIFY(date(form, "dateDob").text().isEmpty());
                date(form, "dateDob").setFocus();
                typeText("2-1-88");
                save();
                QVERIFY(!hint.isVisible());
                date(form, "dateDob").setFocus();
                press(Qt::Key_Delete);
                QVERIFY(hint.isVisible());
                save();
                QCOMPARE(Shop::count("Select * from Accounts where Title='Bela' and DOB is null"), 1);
                date(form, "dateDob").setFocus();
                typeText("11-2-2024");
                press(Qt::Key_Tab);
                QCOMPARE(hint.text(), "This day is still to come");
                date(form, "dateDob").setFocus();
                typeText("2-1-88");
                save();
            });
            fillIn(list, "txtSearch", "bel");
            press(Qt::Key_Return);
            QCOMPARE(Shop::rows("Select DOB from Accounts where Title='Bela'"), QStringList{"1988-01-02"});
            press(Qt::Key_Escape);
            QVERIFY(!list.isVisible());
        });
        shop->reopen();
        QCOMPARE(Shop::count(
                     "Select * from Accounts where Type=0 and Title='Chhaya' and City='Pune' and State='Mh' "
                     "and Mobile='9829000000'"),
                 1);
    }

    /// What is stored for a new client's date of birth: what stands there, what is typed, nothing after Del.
    void newClientsDateOfBirth()
    {
        for (const auto& [keys, stored] : {std::pair("", "2024-02-10"), std::pair("17-5", "2023-05-17"),
                                           std::pair("26-11-05", "2005-11-26"), std::pair("x", "")}) {
            const QString name = QString("Client ") + keys;
            onNextModal<frmEditClients>([&](frmEditClients& form) {
                box(form, "txtName").setText(name);
                date(form, "dateDob").setFocus();
                if (QString(keys) == "x")
                    press(Qt::Key_Delete);
                else
                    typeText(keys);
                save();
            });
            prompts->expect("New Client Created.");
            QString added;
            frmEditClients().AddNewFromJobCard(added);
            QCOMPARE(Shop::rows("Select DOB from Accounts where Title='" + added + "'"), QStringList(stored));
        }
    }

    void workersAreAddedSearchedAndEdited()
    {
        for (const char* name : {"Ravi", "Raj", "Ram Lal"})
            shop->addWorker(name);
        prompts->expectAll({"Please Enter Worker Name!", "New Worker Added.", "Worker Information Updated."});
        inModal<frmWorkers>([](frmWorkers& list) {
            typeText("ra");
            QCOMPARE(entries(list).Text(), "Ram Lal"); // Raj, the first entry, comes last
            typeText("Jx");
            for (const int entry : {-1, 0, 1, 2, 2}) { // Down stops at the last
                QCOMPARE(entries(list).ListIndex(), entry);
                press(Qt::Key_Down);
            }
            QCOMPARE(focused(list), "txtSearch");
            onNextModal<frmEditWorker>([](frmEditWorker& form) {
                save();
                typeFields({"yusuf", "a", "b", "c", "9"});
                QCOMPARE(focused(form), "Command1");
                onNextModal<frmEditWorker>([](frmEditWorker&) { press(Qt::Key_Escape); });
                press(Qt::Key_Return);
            });
            press(Qt::Key_A, Qt::AltModifier);
            onNextModal<frmEditWorker>([](frmEditWorker& form) {
                box(form, "txtMobile").setText("77");
                save();
            });
            entries(list).setFocus();
            press(Qt::Key_End);
            press(Qt::Key_Return);
        });
        QCOMPARE(
            Shop::rows("Select City, Mobile from Accounts where Type=1 and Title='Yusuf' and dob is null"),
            QStringList("B 77"));
    }

    void deletesOnlyWhatNothingRefersTo()
    {
        const qint32 client = shop->addClient("Asha");
        const qint32 worker = shop->addWorker("Yusuf");
        const qint32 paid = shop->addWorker("Zahir");
        shop->addJobLine(client, shop->addItem("Shirt"), worker);
        shop->addVoucher(1, paid, client, 50);
        const auto expectDeletion = [this](const QString& outcome) {
            prompts->expect("Are you sure?", Answer::Yes);
            prompts->expect(outcome);
        };
        for (int refused = 0; refused < 3; ++refused)
            expectDeletion("Cant't Delete!");
        edit<frmEditClients>(client, [](frmEditClients&) { remove(); });
        for (const qint32 id : {worker, paid})
            edit<frmEditWorker>(id, [](frmEditWorker&) { remove(); });
        QCOMPARE(Shop::count("Select * from Accounts where Type<2"), 3);

        Shop::run("Delete from Jobs_Detail"); // the ledger alone doesn't hold a client
        session.RefreshLists = false;
        prompts->expect("Are you sure?", Answer::Esc);
        expectDeletion("Deleted.");
        edit<frmEditClients>(client, [](frmEditClients& form) {
            remove();
            QVERIFY(form.isVisible() && !session.RefreshLists);
            remove();
            QVERIFY(!form.isVisible() && session.RefreshLists);
        });
        expectDeletion("Deleted.");
        edit<frmEditWorker>(worker, [](frmEditWorker&) { remove(); });
        QCOMPARE(Shop::count("Select * from Accounts where Type<2"), 1);
        QCOMPARE(Shop::count("Select * from Postings"), 2);
    }

    void takesAnyName()
    {
        const qint32 worker = shop->addWorker("Bb");
        const QString name =
            "D'Souza '' ' 100% [a_b] #1# `x` \"y\" ; -- 🧵 राम" + QString(10000, 'x');
        prompts->expect("Worker Information Updated.");
        edit<frmEditWorker>(worker, [&](frmEditWorker& form) {
            box(form, "txtName").setText(name);
            save();
        });
        shop->reopen();
        inModal<frmWorkers>([&](frmWorkers& list) {
            box(list, "txtSearch").setText(name);
            onNextModal<frmEditWorker>([&](frmEditWorker& form) {
                QCOMPARE(box(form, "txtName").Text(), QString(name).replace('\'', u'’'));
            });
            press(Qt::Key_Return);
        });
        Shop::run("Insert into Accounts (Id, Title, Type) values (32768, 'Far', 0)"); // past 16 bits
        prompts->expect("Overflow: Number of the record 32768 is too large. The highest possible is 32767.");
        inModal<frmClients>([](frmClients& list) {
            press(Qt::Key_Down);
            press(Qt::Key_Return);
            QVERIFY(list.isVisible());
        });
    }
};

QTEST_MAIN(tst_clients)
#include "tst_clients.moc"
