#include "core/DE.h"
#include "core/Session.h"
#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "masters/frmEditWorker.h"
#include "masters/frmWorkers.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "support/ShopTest.h"

#include <QLabel>
#include <QTest>

namespace {

QString title(QWidget& screen) { return control<QLabel>(screen, "lblTitle").text(); }

QStringList entries(QWidget& list)
{
    const auto& box = control<forms::ListBox>(list, "lstSummary");
    QStringList texts;
    for (int i = 0; i < box.ListCount(); ++i)
        texts << box.List(i);
    return texts;
}

/// Types over a name.
void rename(QWidget& screen, const char* name)
{
    box(screen, "txtName").setFocus();
    box(screen, "txtName").selectAll();
    press(Qt::Key_Delete);
    typeText(QLatin1String(name));
}

void typeFields(const std::vector<const char*>& fields)
{
    for (const char* field : fields) {
        typeText(QLatin1String(field));
        press(Qt::Key_Return);
    }
}

/// Opens a list screen and acts in it.
template <class List>
void inList(std::function<void(List&)> act)
{
    onNextModal<List>(std::move(act));
    List().showModal();
}

template <class Edit>
void edit(qint32 id, std::function<void(Edit&)> act)
{
    onNextModal<Edit>(std::move(act));
    Edit().Edit(qint16(id));
}

} // namespace

class tst_clients : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void addsClientsUntilEsc()
    {
        shop->addWorker(QStringLiteral("Yusuf"));
        inList<frmClients>([this](frmClients& list) {
            QCOMPARE(list.windowTitle(), QStringLiteral("Clients"));
            onNextModal<frmEditClients>([](frmEditClients& form) {
                QCOMPARE(title(form), QStringLiteral("Add New Client"));
                QCOMPARE(control<forms::DatePicker>(form, "dateDob").value(), session.WorkingDate);
                remove(); // a new record has nothing to delete
                box(form, "txtName").setFocus();
                typeFields({"anita o'rao", "12 mill road", "pune", "mh", "9829000000"});
                QCOMPARE(focused(form), QStringLiteral("dateDob"));
                control<forms::DatePicker>(form, "dateDob").setValue(QDate(1990, 5, 17));
                press(Qt::Key_Return);
                QCOMPARE(focused(form), QStringLiteral("Command1"));
                onNextModal<frmEditClients>([](frmEditClients& next) {
                    for (const char* name : {"txtName", "txtAddress", "txtCity", "txtState", "txtMobile"})
                        QCOMPARE(box(next, name).Text(), QString());
                    QCOMPARE(control<forms::DatePicker>(next, "dateDob").value(), session.WorkingDate);
                    QCOMPARE(focused(next), QStringLiteral("txtName"));
                    save(); // without a name
                    for (const char* taken : {"ANITA O'RAO", "yusuf", "cash"}) {
                        rename(next, taken);
                        press(Qt::Key_Tab);
                        save();
                        QCOMPARE(focused(next), QStringLiteral("txtName"));
                    }
                    press(Qt::Key_Escape);
                });
                press(Qt::Key_Return);
            });
            prompts->expect(QStringLiteral("New Client Created."));
            prompts->expect(QStringLiteral("Please Enter Client Name!"));
            for (int i = 0; i < 3; ++i)
                prompts->expect(QStringLiteral("Duplicate!"));
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(entries(list), QStringList{QStringLiteral("Anita O'rao")});
            press(Qt::Key_Escape);
            QVERIFY(!list.isVisible());
        });
        shop->reopen();
        ado::Recordset row(DE.connection());
        row.Open(QStringLiteral("Select * from Accounts where Type=0"));
        QCOMPARE(row.RecordCount(), 1);
        QCOMPARE(row["Title"].text(), QStringLiteral("Anita O'rao"));
        QCOMPARE(row["ADDRESS"].text(), QStringLiteral("12 Mill Road"));
        QCOMPARE(row["CITY"].text(), QStringLiteral("Pune"));
        QCOMPARE(row["STATE"].text(), QStringLiteral("Mh"));
        QCOMPARE(row["MOBILE"].text(), QStringLiteral("9829000000"));
        QCOMPARE(row["DOB"].date(), QDate(1990, 5, 17));
    }

    void editsAClientFromTheList()
    {
        const qint32 id = shop->addClient(QStringLiteral("Bela"), QStringLiteral("98290"));
        shop->addClient(QStringLiteral("Asha"));
        inList<frmClients>([this](frmClients& list) {
            onNextModal<frmEditClients>([](frmEditClients& form) {
                QCOMPARE(title(form), QStringLiteral("Edit Client Information"));
                QCOMPARE(box(form, "txtName").Text(), QStringLiteral("Bela"));
                QCOMPARE(box(form, "txtMobile").Text(), QStringLiteral("98290"));
                rename(form, "BELA");
                save(); // another letter case alone is no other name
                rename(form, "asha");
                save();
                rename(form, "Chhaya");
                save();
                save(); // its own new name is not taken by another
                press(Qt::Key_Escape);
            });
            prompts->expect(QStringLiteral("Client Information Updated."));
            prompts->expect(QStringLiteral("Duplicate!"));
            prompts->expect(QStringLiteral("Client Information Updated."));
            prompts->expect(QStringLiteral("Client Information Updated."));
            typeText(QStringLiteral("be"));
            press(Qt::Key_Return);
            QCOMPARE(entries(list), QStringList({QStringLiteral("Asha"), QStringLiteral("Chhaya")}));
        });
        QCOMPARE(Shop::value(QStringLiteral("Select Title from Accounts where id=%1").arg(id)).toString(),
                 QStringLiteral("Chhaya"));
    }

    void searchesBehindTheFirstEntry()
    {
        for (const char* name : {"Ravi", "Raj", "Ram Lal"})
            shop->addWorker(QLatin1String(name));
        inList<frmWorkers>([&](frmWorkers& list) {
            auto& box = control<forms::ListBox>(list, "lstSummary");
            typeText(QStringLiteral("ra"));
            QCOMPARE(box.Text(), QStringLiteral("Ram Lal")); // Raj comes last
            typeText(QStringLiteral("J"));
            QCOMPARE(box.Text(), QStringLiteral("Raj"));
            typeText(QStringLiteral("x"));
            QCOMPARE(box.ListIndex(), -1);
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QCOMPARE(box.ListIndex(), 1);
            QCOMPARE(focused(list), QStringLiteral("txtSearch"));
        });
    }

    void keepsWhatIsReferredTo()
    {
        const qint32 client = shop->addClient(QStringLiteral("Asha"));
        const qint32 worker = shop->addWorker(QStringLiteral("Yusuf"));
        const qint32 paid = shop->addWorker(QStringLiteral("Zahir"));
        shop->addJobLine(client, shop->addItem(QStringLiteral("Shirt")), worker);
        shop->addVoucher(1, paid, client, 50);

        const auto refuse = [this] {
            prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
            prompts->expect(QStringLiteral("Cant't Delete!"));
        };
        refuse();
        edit<frmEditClients>(client, [](frmEditClients&) { remove(); });
        for (const qint32 id : {worker, paid}) {
            refuse();
            edit<frmEditWorker>(id, [](frmEditWorker& form) {
                QCOMPARE(title(form), QStringLiteral("Edit Worker Information"));
                remove();
            });
        }
        QCOMPARE(Shop::count(QStringLiteral("Select * from Accounts where Type<2")), 3);
    }

    void deletesTheRest()
    {
        const qint32 client = shop->addClient(QStringLiteral("Asha"));
        const qint32 worker = shop->addWorker(QStringLiteral("Yusuf"));
        shop->addVoucher(1, client, 1, 50); // the ledger alone doesn't hold a client
        session.RefreshLists = false;
        prompts->expect(QStringLiteral("Are you sure?"), Answer::No);
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Esc);
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
        prompts->expect(QStringLiteral("Deleted."));
        edit<frmEditClients>(client, [](frmEditClients& form) {
            remove();
            remove();
            QVERIFY(form.isVisible() && !session.RefreshLists);
            remove();
            QVERIFY(!form.isVisible() && session.RefreshLists);
        });
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
        prompts->expect(QStringLiteral("Deleted."));
        edit<frmEditWorker>(worker, [](frmEditWorker&) { remove(); });
        QCOMPARE(Shop::count(QStringLiteral("Select * from Accounts where Type<2")), 0);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 2);
    }

    void addsAndEditsAWorker()
    {
        inList<frmWorkers>([this](frmWorkers& list) {
            onNextModal<frmEditWorker>([](frmEditWorker& form) {
                QCOMPARE(title(form), QStringLiteral("Add New Worker"));
                save();
                typeFields({"yusuf", "a", "b", "c", "9"});
                QCOMPARE(focused(form), QStringLiteral("Command1"));
                onNextModal<frmEditWorker>([](frmEditWorker&) { press(Qt::Key_Escape); });
                press(Qt::Key_Return);
            });
            prompts->expect(QStringLiteral("Please Enter Worker Name!"));
            prompts->expect(QStringLiteral("New Worker Added."));
            press(Qt::Key_A, Qt::AltModifier);
            onNextModal<frmEditWorker>([](frmEditWorker& form) {
                QCOMPARE(box(form, "txtCity").Text(), QStringLiteral("B"));
                box(form, "txtMobile").setText(QStringLiteral("77"));
                save();
            });
            prompts->expect(QStringLiteral("Worker Information Updated."));
            control<forms::ListBox>(list, "lstSummary").setFocus();
            press(Qt::Key_Home);
            press(Qt::Key_Return);
        });
        QCOMPARE(Shop::value(QStringLiteral("Select Mobile from Accounts where Type=1 and Title='Yusuf'"))
                     .toString(),
                 QStringLiteral("77"));
        QVERIFY(Shop::value(QStringLiteral("Select dob from Accounts where Type=1")).isNull());
    }

    void handsANewClientToTheJobCard()
    {
        QString title;
        prompts->expect(QStringLiteral("New Client Created."));
        onNextModal<frmEditClients>([](frmEditClients&) {
            typeText(QStringLiteral("dina"));
            save();
        });
        frmEditClients().AddNewFromJobCard(title);
        QCOMPARE(title, QStringLiteral("Dina"));
        onNextModal<frmEditClients>([](frmEditClients&) { press(Qt::Key_Escape); });
        frmEditClients().AddNewFromJobCard(title);
        QCOMPARE(title, QString());
    }

    void takesAnyName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("apostrophes") << "D'Souza '' '";
        QTest::newRow("signs of the engine") << "100% [a_b] #1# `x` \"y\" ; --";
        QTest::newRow("emoji and Hindi")
            << QString::fromUtf8("\xF0\x9F\xA7\xB5 \xE0\xA4\xB0\xE0\xA4\xBE\xE0\xA4\xAE");
        QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('x'));
    }
    void takesAnyName()
    {
        QFETCH(QString, name);
        shop->addWorker(QStringLiteral("Aa"));
        const qint32 id = shop->addWorker(QStringLiteral("Bb"));
        prompts->expect(QStringLiteral("Worker Information Updated."));
        edit<frmEditWorker>(id, [&](frmEditWorker& form) {
            box(form, "txtName").setText(name);
            box(form, "txtAddress").setText(name);
            save();
        });
        shop->reopen();
        inList<frmWorkers>([&](frmWorkers& list) {
            box(list, "txtSearch").setText(name);
            QCOMPARE(control<forms::ListBox>(list, "lstSummary").Text(), name);
            onNextModal<frmEditWorker>([&](frmEditWorker& form) {
                QCOMPARE(box(form, "txtName").Text(), name);
                QCOMPARE(box(form, "txtAddress").Text(), name);
            });
            press(Qt::Key_Return);
        });
    }

    void cannotOpenIdsPast16Bits()
    {
        DE.connection().Execute(
            QStringLiteral("Insert into Accounts (Id, Title, Type) values (32768, 'Far', 0)"));
        prompts->expect(QStringLiteral("Overflow"));
        inList<frmClients>([](frmClients& list) {
            press(Qt::Key_Down);
            press(Qt::Key_Return);
            QVERIFY(list.isVisible());
        });
    }
};

QTEST_MAIN(tst_clients)
#include "tst_clients.moc"
