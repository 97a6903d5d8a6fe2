#include "core/DE.h"
#include "masters/frmEditItem.h"
#include "masters/frmItems.h"
#include "platform/forms/ListBox.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

#include <QTest>

namespace {

swTextBoxMultiLine& details(QWidget& form) { return control<swTextBoxMultiLine>(form, "txtItemDetails"); }

void edit(qint32 id, std::function<void(frmEditItem&)> act)
{
    onNextModal<frmEditItem>(std::move(act));
    frmEditItem().Edit(qint16(id));
}

} // namespace

class tst_items : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void addsAnItemByKeysAlone()
    {
        shop->addItem("Trouser");
        prompts->expectAll({"Please Enter Item Name!", "Duplicate!", "New Item Added."});
        inModal<frmItems>([](frmItems& list) {
            onNextModal<frmEditItem>([](frmEditItem& form) {
                QVERIFY(details(form).Text().endsWith("\r\nMeasurement 3=Default Value"));
                remove(); // a new record has nothing to delete
                save();
                typeText("trouser");
                save();
                press(Qt::Key_Delete);
                typeText("kurta");
                press(Qt::Key_Return);
                details(form).clear();
                for (const char* line : {"Length", "Chest=40", ""}) { // a double Enter ends the template
                    QCOMPARE(focused(form), "txtItemDetails");
                    typeText(line);
                    press(Qt::Key_Return);
                }
                QCOMPARE(focused(form), "txtFees");
                for (const char* typed : {"450.5", "120", "8", "two"}) {
                    typeText(typed);
                    press(Qt::Key_Return);
                }
                QCOMPARE(focused(form), "Command1");
                onNextModal<frmEditItem>([](frmEditItem& next) {
                    QCOMPARE(box(next, "txtProductionCap").Text(), QString());
                    press(Qt::Key_Escape);
                });
                press(Qt::Key_Return);
            });
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(control<forms::ListBox>(list, "lstSummary").ListCount(), 2);
            onNextModal<frmEditItem>([](frmEditItem& form) {
                QCOMPARE(box(form, "txtFees").Text(), "450.50");
                QCOMPARE(box(form, "txtWorkerFees").Text(), "120.00");
                QCOMPARE(details(form).Text(), "Length\r\nChest=40");
            });
            typeText("kur");
            press(Qt::Key_Return);
        });
        QCOMPARE(Shop::count("Select * from Items where name='Kurta' and Fees=450.5 and ProdcutionCap=8 and "
                             "OpPendingOrders=0 and PendingOrders is null"),
                 1);
    }

    void tidiesTheTemplate_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        QTest::newRow("blank lines go") << "\n\nA\n\n\nB=1\n"
                                        << "A\r\nB=1";
        QTest::newRow("blanks stay") << " A \n \n=x=\n"
                                     << " A \r\n \r\n=x=";
        QTest::newRow("empty") << "\n\n"
                               << "";
    }
    void tidiesTheTemplate()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        prompts->expect("Item Edited.");
        edit(shop->addItem("Shirt"), [&](frmEditItem& form) {
            details(form).setText(typed);
            details(form).setFocus();
            press(Qt::Key_Tab);
            QCOMPARE(details(form).Text(), kept);
            details(form).setFocus();
            details(form).setText(typed);
            save(); // with the focus still in the box
        });
        QCOMPARE(Shop::value("Select ItemDetails from Items").toString(), kept);
    }

    void onlyEntersInARowEndTheTemplate()
    {
        edit(shop->addItem("Shirt"), [](frmEditItem& form) {
            details(form).setFocus();
            for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Up, Qt::Key_Return})
                press(key);
            QCOMPARE(focused(form), "txtItemDetails");
            press(Qt::Key_Return);
            QCOMPARE(focused(form), "txtFees");
            details(form).setFocus();
            press(Qt::Key_Return);
            QCOMPARE(focused(form), "txtItemDetails");
        });
    }

    void renamesAndDeletes()
    {
        const qint32 used = shop->addItem("Shirt");
        const qint32 other = shop->addItem("Coat");
        shop->addJobLine(shop->addClient("Asha"), used);
        prompts->expectAll({"Item Edited.", "Duplicate!"});
        prompts->expect("Are you sure?", Answer::Yes);
        prompts->expect("Cant't Delete!");
        edit(used, [](frmEditItem& form) {
            for (const char* name : {"SHIRT", "coat"}) {
                box(form, "txtName").setText(name);
                save();
            }
            remove();
        });
        prompts->expect("Are you sure?", Answer::Yes);
        prompts->expect("Deleted.");
        edit(other, [](frmEditItem&) { remove(); });
        QCOMPARE(Shop::count("Select * from Items"), 1);
        QCOMPARE(Shop::value("Select Name from Items").toString(), "SHIRT");
    }
};

QTEST_MAIN(tst_items)
#include "tst_items.moc"
