#include "masters/frmEditItem.h"
#include "masters/frmItems.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

static swTextBoxMultiLine& details(QWidget& form)
{
    return control<swTextBoxMultiLine>(form, "txtItemDetails");
}

static void edit(qint32 id, std::function<void(frmEditItem&)> act)
{
    onNextModal<frmEditItem>(std::move(act));
    frmEditItem().Edit(qint16(id));
}

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
                remove(); // a new record has nothing to delete
                save();
                typeText("trouser");
                save();
                press(Qt::Key_Delete);
                typeFields({"kurta"});
                details(form).clear();
                for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Up, Qt::Key_Return})
                    press(key);
                typeFields({"Length", "Chest=40"});
                press(Qt::Key_Return); // a second Enter in a row ends the template
                QCOMPARE(focused(form), "txtFees");
                details(form).setFocus();
                press(Qt::Key_Return, Qt::ControlModifier);
                QCOMPARE(focused(form), "txtFees");
                typeFields({"450.5", "120", "8", "two"});
                QCOMPARE(focused(form), "Command1");
                onNextModal<frmEditItem>([](frmEditItem& next) {
                    QCOMPARE(box(next, "txtProductionCap").Text(), QString());
                    press(Qt::Key_Escape);
                });
                press(Qt::Key_Return);
            });
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(listBox(list, "lstSummary").ListCount(), 2);
            onNextModal<frmEditItem>([](frmEditItem& form) {
                QCOMPARE(box(form, "txtFees").Text() + box(form, "txtWorkerFees").Text(), "450.50120.00");
                QCOMPARE(details(form).Text(), "Length\r\nChest=40");
            });
            typeFields({"kur"});
        });
        QCOMPARE(Shop::count("Select * from Items where name='Kurta' and Fees=450.5 and ProdcutionCap=8 and "
                             "OpPendingOrders=0 and PendingOrders is null"),
                 1);
    }

    void tidiesTheTemplate()
    {
        const qint32 shirt = shop->addItem("Shirt");
        for (const auto& [typed, kept] : {std::pair("\n\nA\n\n\nB=1\n", "A\r\nB=1"),
                                          std::pair(" A \n \n=x=\n", " A \r\n \r\n=x="), // blanks stay
                                          std::pair("\n\n", "")}) {
            prompts->expect("Item Edited.");
            edit(shirt, [typed = typed, kept = kept](frmEditItem& form) {
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
    }

    void renamesAndDeletes()
    {
        const qint32 used = shop->addItem("Shirt");
        const qint32 other = shop->addItem("Coat");
        shop->addJobLine(shop->addClient("Asha"), used);
        prompts->expectAll({"Item Edited.", "Duplicate!"});
        for (const char* outcome : {"Cant't Delete!", "Deleted."}) {
            prompts->expect("Are you sure?", Answer::Yes);
            prompts->expect(outcome);
        }
        edit(used, [](frmEditItem& form) {
            for (const char* name : {"SHIRT", "coat"}) {
                box(form, "txtName").setText(name);
                save();
            }
            remove();
        });
        edit(other, [](frmEditItem&) { remove(); });
        QCOMPARE(Shop::rows("Select Name from Items"), QStringList("SHIRT"));
    }
};

QTEST_MAIN(tst_items)
#include "tst_items.moc"
