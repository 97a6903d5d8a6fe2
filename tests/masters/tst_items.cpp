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

QVariant stored(qint32 id, const char* field)
{
    return Shop::value(QStringLiteral("Select %1 from Items where id=%2").arg(QLatin1String(field)).arg(id));
}

} // namespace

class tst_items : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void addsAnItemByKeysAlone()
    {
        shop->addItem(QStringLiteral("Trouser"));
        onNextModal<frmItems>([this](frmItems& list) {
            onNextModal<frmEditItem>([](frmEditItem& form) {
                QCOMPARE(details(form).Text(),
                         QStringLiteral("Measurement 1\r\nMeasurement 2\r\nMeasurement 3=Default Value"));
                remove(); // a new record has nothing to delete
                save();
                typeText(QStringLiteral("trouser"));
                save();
                press(Qt::Key_Delete);
                typeText(QStringLiteral("kurta"));
                press(Qt::Key_Return);
                QCOMPARE(focused(form), QStringLiteral("txtItemDetails"));
                details(form).clear();
                typeText(QStringLiteral("Length"));
                press(Qt::Key_Return);
                typeText(QStringLiteral("Chest=40"));
                press(Qt::Key_Return);
                press(Qt::Key_Return);
                QCOMPARE(focused(form), QStringLiteral("txtFees"));
                QCOMPARE(details(form).Text(), QStringLiteral("Length\r\nChest=40"));
                for (const char* typed : {"450.5", "120", "8", "two"}) {
                    typeText(QLatin1String(typed));
                    press(Qt::Key_Return);
                }
                QCOMPARE(box(form, "txtFees").Text(), QStringLiteral("450.50"));
                QCOMPARE(focused(form), QStringLiteral("Command1"));
                onNextModal<frmEditItem>([](frmEditItem& next) {
                    QVERIFY(details(next).Text().startsWith(QLatin1String("Measurement 1")));
                    QCOMPARE(box(next, "txtProductionCap").Text(), QString());
                    press(Qt::Key_Escape);
                });
                press(Qt::Key_Return);
            });
            prompts->expect(QStringLiteral("Please Enter Item Name!"));
            prompts->expect(QStringLiteral("Duplicate!"));
            prompts->expect(QStringLiteral("New Item Added."));
            press(Qt::Key_A, Qt::ControlModifier);
            QCOMPARE(control<forms::ListBox>(list, "lstSummary").ListCount(), 2);
            onNextModal<frmEditItem>([](frmEditItem& form) {
                QCOMPARE(box(form, "txtName").Text(), QStringLiteral("Kurta"));
                QCOMPARE(box(form, "txtWorkerFees").Text(), QStringLiteral("120.00"));
            });
            typeText(QStringLiteral("kur"));
            press(Qt::Key_Return);
        });
        frmItems().showModal();
        const qint32 id = Shop::value(QStringLiteral("Select id from Items where name='Kurta'")).toInt();
        QCOMPARE(stored(id, "Fees").toString(), QStringLiteral("450.5"));
        QCOMPARE(stored(id, "ItemDetails").toString(), QStringLiteral("Length\r\nChest=40"));
        QCOMPARE(stored(id, "ProdcutionCap").toString(), QStringLiteral("8"));
        QCOMPARE(stored(id, "OpPendingOrders").toString(), QStringLiteral("0"));
        QVERIFY(stored(id, "PendingOrders").isNull());
    }

    void tidiesTheTemplate_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kept");
        const auto row = [](const char* name, const char* typed, const char* kept) {
            QTest::newRow(name) << QString::fromLatin1(typed) << QString::fromLatin1(kept);
        };
        row("blank lines go", "\n\nA\n\n\nB=1\n", "A\r\nB=1");
        row("blanks stay", " A \n \n=x=\n", " A \r\n \r\n=x=");
        row("empty", "\n\n", "");
    }
    void tidiesTheTemplate()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kept);
        const qint32 id = shop->addItem(QStringLiteral("Shirt"));
        prompts->expect(QStringLiteral("Item Edited."));
        edit(id, [&](frmEditItem& form) {
            details(form).setText(typed);
            details(form).setFocus();
            press(Qt::Key_Tab);
            QCOMPARE(details(form).Text(), kept);
            details(form).setFocus();
            details(form).setText(typed);
            save(); // with the focus still in the box
            QCOMPARE(details(form).Text(), kept);
        });
        QCOMPARE(stored(id, "ItemDetails").toString(), kept);
    }

    /// Enter, another key, Enter: no double Enter.
    void onlyEntersInARowEndTheTemplate()
    {
        edit(shop->addItem(QStringLiteral("Shirt")), [](frmEditItem& form) {
            details(form).setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Up);
            press(Qt::Key_Return);
            QCOMPARE(focused(form), QStringLiteral("txtItemDetails"));
            press(Qt::Key_Return);
            QCOMPARE(focused(form), QStringLiteral("txtFees"));
            details(form).setFocus();
            press(Qt::Key_Return);
            QCOMPARE(focused(form), QStringLiteral("txtItemDetails"));
        });
    }

    void takesAmountsAsTheyCome_data()
    {
        QTest::addColumn<QString>("entered");
        QTest::addColumn<QString>("prompt");
        QTest::addColumn<QString>("fees");
        const auto row = [](const char* name, const char* entered, const char* prompt, const char* fees) {
            QTest::newRow(name) << QString::fromLatin1(entered) << QString::fromLatin1(prompt)
                                << QString::fromLatin1(fees);
        };
        row("letters", "abc", "Item Edited.", "0");
        row("two dots", "1.2.3", "Item Edited.", "1.2");
        row("negative", "-5", "Item Edited.", "-5");
        row("too large for money", "999999999999999", "Overflow", "100");
    }
    void takesAmountsAsTheyCome()
    {
        QFETCH(QString, entered);
        QFETCH(QString, prompt);
        QFETCH(QString, fees);
        const qint32 id = shop->addItem(QStringLiteral("Shirt"), 100);
        prompts->expect(prompt);
        edit(id, [&](frmEditItem& form) {
            box(form, "txtFees").QLineEdit::setText(entered); // as pasted
            box(form, "txtProductionCap").setText(QStringLiteral("many"));
            save();
        });
        QCOMPARE(stored(id, "Fees").toString(), fees);
        const QString capacity = stored(id, "ProdcutionCap").toString();
        QCOMPARE(capacity, prompt == QLatin1String("Overflow") ? QString() : QStringLiteral("0"));
    }

    void renamesAndDeletes()
    {
        const qint32 used = shop->addItem(QStringLiteral("Shirt"));
        const qint32 other = shop->addItem(QStringLiteral("Coat"));
        shop->addJobLine(shop->addClient(QStringLiteral("Asha")), used);
        prompts->expect(QStringLiteral("Item Edited."));
        prompts->expect(QStringLiteral("Duplicate!"));
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
        prompts->expect(QStringLiteral("Cant't Delete!"));
        edit(used, [](frmEditItem& form) {
            box(form, "txtName").setText(QStringLiteral("SHIRT"));
            save();
            box(form, "txtName").setText(QStringLiteral("coat"));
            save();
            remove();
        });
        prompts->expect(QStringLiteral("Are you sure?"), Answer::Yes);
        prompts->expect(QStringLiteral("Deleted."));
        edit(other, [](frmEditItem& form) {
            remove();
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(Shop::count(QStringLiteral("Select * from Items")), 1);
        QCOMPARE(stored(used, "Name").toString(), QStringLiteral("SHIRT"));
    }
};

QTEST_MAIN(tst_items)
#include "tst_items.moc"
