#include "core/DE.h"
#include "core/Session.h"
#include "jobcards/ColorBox.h"
#include "jobcards/ItemDetails.h"
#include "jobcards/PictureBox.h"
#include "jobcards/PictureFiles.h"
#include "jobcards/clsJobCardData.h"
#include "jobcards/frmAddItem.h"
#include "platform/forms/ComboBox.h"
#include "platform/values/Errors.h"
#include "support/Files.h"
#include "support/ShopTest.h"
#include "ui/frmSelectFile.h"
#include "ui/swTextBoxMultiLine.h"

#include <QColorDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

namespace {

/// The controls of the open editor.
struct Editor
{
    frmAddItem& screen;
    forms::ComboBox& item = control<forms::ComboBox>(screen, "cmbItems");
    ItemDetails& grid = control<ItemDetails>(screen, "ItemDetails1");
    QLineEdit& qnt = control<QLineEdit>(screen, "txtQnt");
    QLineEdit& fees = control<QLineEdit>(screen, "txtFees");
    QLineEdit& remark = control<QLineEdit>(screen, "txtRemark");
    swTextBoxMultiLine& note = control<swTextBoxMultiLine>(screen, "txtClientRemark");
    ColorBox& color = control<ColorBox>(screen, "picColor");
    QLabel& last = control<QLabel>(screen, "lblLast");

    QString focused() const { return ::focused(screen); }
    void click(const char* button) { control<QPushButton>(screen, button).click(); }
    void choose(const QString& name)
    {
        item.setFocus();
        item.setText(name);
        press(Qt::Key_Return);
    }
    QString measurements() const
    {
        QStringList all;
        for (qint32 i = 0; i < grid.Count(); ++i) {
            QString name, value;
            grid.ListItemText(name, value, i);
            all << name + u'=' + value;
        }
        return all.join(u'|');
    }
    QString path(int picture)
    {
        return control<QLabel>(screen, picture == 1 ? "picPath1" : "picPath2").text();
    }
    bool hasPicture(int picture)
    {
        return !control<PictureBox>(screen, picture == 1 ? "pic1" : "pic2").picture().isNull();
    }
    void insert(const QString& file)
    {
        onNextModal<frmSelectFile>([&file](frmSelectFile& picker) {
            control<QLineEdit>(picker, "txtfilename").setText(file);
            control<QPushButton>(picker, "cmdOK").click();
        });
        click("Command8");
    }
};

using Act = std::function<void(Editor)>;

void whenOpen(const Act& act)
{
    onNextModal<frmAddItem>([act](frmAddItem& screen) { act(Editor{screen}); });
}

bool openNew(clsJobCardData& rows, qint32 client, const Act& act)
{
    whenOpen(act);
    frmAddItem editor;
    return editor.ItemDetails(rows, client);
}

bool openRow(clsJobCardData& rows, qint32 client, int row, const Act& act)
{
    whenOpen(act);
    frmAddItem editor;
    return editor.EditItemDetails(rows, client, row);
}

void addRow(clsJobCardData& rows, const QString& item, qint32 itemID, const QString& names,
            const QString& values, const QString& img1 = {})
{
    rows.AddNewRow(77, item, itemID, 3, 100.25, 300.75, "remark", names, values, 0, {}, {}, {}, {}, {}, 0, 0,
                   0, {}, img1, {}, "255", 0, {}, "note");
}

QString picture(const QString& path)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(Qt::red);
    if (!image.save(path))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QStringList imageFiles() { return QDir(session.imagesFolder()).entryList(QDir::Files, QDir::Name); }

} // namespace

class tst_frmAddItem : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void aLineByKeyboard();
    void measurementsOfTheLastOrder();
    void refusals();
    void whatCannotBeHeldChangesNothing();
    void measurementsComeBackAsStored_data();
    void measurementsComeBackAsStored();
    void theColourOfTheCloth();
    void picturesLiveOnTheDisk();
    void picturesThatCannotBeTaken();
    void pictureNames();

private:
    void lay() override;
    void orderBefore(qint32 client, const QDate& date, const QString& names, const QString& values,
                     const QString& note);

    clsJobCardData m_rows;
    qint32 m_client = 0;
    qint32 m_shirt = 0;
};

void tst_frmAddItem::lay()
{
    m_rows = {};
    m_client = shop->addClient("Asha O'Neil");
    m_shirt = shop->addItem("Shirt", 150.5, 40, "Length\r\nChest=40");
    shop->addItem("Lehenga", 900, 40, "\r\nLength\r\n\r\nFold=a=b\r\n");
}

void tst_frmAddItem::orderBefore(qint32 client, const QDate& date, const QString& names,
                                 const QString& values, const QString& note)
{
    ado::Recordset rows(DE.connection());
    rows.Open(QStringLiteral("Select * from Jobs_Detail where id=%1").arg(shop->addJobLine(client, m_shirt)));
    rows["Date"] = date;
    rows["ItemDetails"] = names;
    rows["ItemDetailsValue"] = values;
    rows["ClientRemarks"] = note;
    rows.Update();
}

void tst_frmAddItem::aLineByKeyboard()
{
    const bool cancelled = openNew(m_rows, m_client, [](Editor editor) {
        QCOMPARE(control<QLabel>(editor.screen, "lblClint").text(), "Asha O'Neil");
        QVERIFY2(editor.item.isDroppedDown(), "the list of items is open from the start");
        typeText("sh");
        QCOMPARE(editor.item.text(), "Shirt");
        press(Qt::Key_Return);
        QCOMPARE(editor.last.text(), "No Previous record found!");
        QCOMPARE(editor.fees.text(), "150.5");
        QCOMPARE(editor.focused(), "txtValue_0");
        typeText("30");
        press(Qt::Key_Return);
        typeText("41");
        press(Qt::Key_Return);
        QCOMPARE(editor.focused(), "txtQnt");
        typeText("x2y");
        press(Qt::Key_Return);
        QCOMPARE(editor.focused(), "txtFees");
        press(Qt::Key_PageDown);
        QCOMPARE(editor.focused(), "txtRemark");
        typeText("blue");
        press(Qt::Key_Return);
        QCOMPARE(editor.focused(), "txtClientRemark");
        typeText("loose");
        press(Qt::Key_Return);
        typeText("fit");
        press(Qt::Key_Return);
        QCOMPARE(editor.focused(), "txtClientRemark");
        press(Qt::Key_Return);
        QCOMPARE(editor.focused(), "Command1");
        press(Qt::Key_Return);
    });
    QVERIFY(!cancelled);
    QCOMPARE(m_rows.RowCount(), 1);
    QCOMPARE(m_rows.Sr(1), 0);
    QCOMPARE(m_rows.ItemName(1), "Shirt");
    QCOMPARE(m_rows.ItemID(1), m_shirt);
    QCOMPARE(m_rows.Qty(1), 2);
    QCOMPARE(m_rows.Fees(1), 150.5);
    QCOMPARE(m_rows.Amount(1), 301.0);
    QCOMPARE(m_rows.Remarks(1), "blue");
    QCOMPARE(m_rows.ItemDetails(1), "Length\r\nChest");
    QCOMPARE(m_rows.ItemDetailsValue(1), "30\r\n41");
    QCOMPARE(m_rows.ClientRemarks(1), "loose\r\nfit\r\n");

    QVERIFY(!openRow(m_rows, m_client, 1, [](Editor editor) {
        QCOMPARE(editor.focused(), "txtValue_0");
        QVERIFY2(!editor.item.isDroppedDown(), "the list of items has closed again");
        QCOMPARE(editor.measurements(), "Length=30|Chest=41");
        typeText("33");
        editor.qnt.setText("2.5");
        editor.fees.setText("100.25");
        editor.click("Command1");
    }));
    QCOMPARE(m_rows.RowCount(), 1);
    QCOMPARE(m_rows.ItemDetailsValue(1), "33\r\n41");
    QCOMPARE(m_rows.Qty(1), 2);
    QCOMPARE(m_rows.Amount(1), 250.625);
}

/// Of several orders the line that was stored last counts; the fee is the catalogue's all the same.
void tst_frmAddItem::measurementsOfTheLastOrder()
{
    orderBefore(m_client, QDate(2024, 1, 5), "Length", "28", "early");
    orderBefore(m_client, QDate(2023, 12, 1), "Length\r\nChest\r\nCuff", "29\r\na=b", "later");
    orderBefore(shop->addClient("Other"), QDate(2024, 2, 1), "Length", "99", "not hers");
    openNew(m_rows, m_client, [](Editor editor) {
        editor.click("Command2");
        QCOMPARE(editor.measurements(), QString());
        editor.choose("Shirt");
        QCOMPARE(editor.measurements(), "Length=29|Chest=a|Cuff=");
        QCOMPARE(editor.last.text(), "Previous JOB : 01-Dec-2023");
        QCOMPARE(editor.note.Text(), "later");
        QCOMPARE(editor.fees.text(), "150.5");

        editor.click("Command2"); // a clean form starts from the template
        QCOMPARE(editor.measurements(), "Length=|Chest=40");
        QCOMPARE(editor.last.text(), "No Previous record found!");
        QCOMPARE(editor.note.Text(), QString());
        editor.choose("Lehenga"); // empty lines of a template name nothing; a value ends at a second =
        QCOMPARE(editor.fees.text(), "900");
        QCOMPARE(editor.measurements(), "Length=|Fold=a");
    });
}

void tst_frmAddItem::refusals()
{
    const bool cancelled = openNew(m_rows, m_client, [this](Editor editor) {
        const auto refused = [&](const char* message, const char* field) {
            prompts->expect(QString::fromLatin1(message));
            editor.click("Command1");
            QTRY_COMPARE(editor.focused(), QString::fromLatin1(field));
        };
        refused("Please Select Item!", "cmbItems");
        editor.choose("Shirt");
        editor.fees.setText("abc");
        refused("Please Enter Fees!", "txtFees");
        editor.fees.setText("12..5");
        editor.qnt.setText("0.0");
        refused("Please Enter Quantity!", "txtQnt");
        press(Qt::Key_Escape);
        QVERIFY(!editor.screen.isVisible());
    });
    QVERIFY(cancelled);
    QCOMPARE(m_rows.RowCount(), 0);

    QVERIFY(openNew(m_rows, m_client, [](Editor editor) {
        press(Qt::Key_Return);
        QVERIFY2(!editor.screen.isVisible(), "Enter in an empty item box closes");
    }));
}

void tst_frmAddItem::whatCannotBeHeldChangesNothing()
{
    addRow(m_rows, "Shirt", m_shirt, "Length", "30", session.imagesFolder() + "/gone.bmp");
    QVERIFY(openRow(m_rows, m_client, 1, [this](Editor editor) {
        QVERIFY2(editor.path(1).isEmpty(), "a picture that is gone leaves its place empty");
        const auto refused = [&](const QString& item, const char* quantity, const char* fees,
                                 const QString& message) {
            prompts->expect(message);
            editor.item.setText(item);
            editor.qnt.setText(quantity);
            editor.fees.setText(fees);
            editor.click("Command1");
            QVERIFY2(editor.screen.isVisible(), "the operator can put it right");
        };
        editor.remark.setText("changed");
        refused("Shirt", "32768", "1", OverflowError().text());
        refused("Shirt", "2", "999999999999999", OverflowError().text());
        // An item that left the catalogue keeps its name, though an entry that begins like it offers itself.
        refused("Shir", "1", "1", ado::NoCurrentRecordError().text());
        editor.item.setFocus();
        QCOMPARE(editor.item.text(), "Shir");
    }));
    QCOMPARE(m_rows.Qty(1), 3);
    QCOMPARE(m_rows.Remarks(1), "remark");
}

void tst_frmAddItem::measurementsComeBackAsStored_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("storedNames");
    QTest::addColumn<QString>("storedValues");
    const auto changed = [](const char* title, const QString& names, const QString& values,
                            const QString& storedNames, const QString& storedValues) {
        QTest::newRow(title) << names << values << storedNames << storedValues;
    };
    const auto same = [&](const char* title, const QString& names, const QString& values) {
        changed(title, names, values, names, values);
    };
    changed("carriage return in a name", "A\rx\r\nB\r", "1\r\n2", "Ax\r\nB", "1\r\n2");
    changed("fewer values", "A\r\nB\r\nC", "1", "A\r\nB\r\nC", "1\r\n\r\n");
    changed("more values", "A", "1\r\n2\r\n3", "A", "1");
    same("values with =", "A\r\nB", "1=2\r\n=");
    same("a value without a name", "", "5");
    same("none", "", "");
}

void tst_frmAddItem::measurementsComeBackAsStored()
{
    QFETCH(QString, names);
    QFETCH(QString, values);
    addRow(m_rows, "Shirt", m_shirt, names, values);
    for (int time = 0; time < 2; ++time) {
        QVERIFY(!openRow(m_rows, m_client, 1, [](Editor editor) { editor.click("Command1"); }));
        QTEST(m_rows.ItemDetails(1), "storedNames");
        QTEST(m_rows.ItemDetailsValue(1), "storedValues");
    }
}

void tst_frmAddItem::theColourOfTheCloth()
{
    openNew(m_rows, m_client, [](Editor editor) {
        editor.choose("Shirt");
        const auto pick = [&editor](const QColor& color) {
            onNextModal<QColorDialog>([color](QColorDialog& dialog) {
                dialog.setCurrentColor(color);
                dialog.accept();
            });
            QTRY_VERIFY(editor.screen.isActiveWindow());
            editor.color.setFocus();
            press(Qt::Key_Space);
        };
        pick(QColor(1, 2, 3));
        QCOMPARE(editor.color.number(), 0x030201);
        pick(Qt::black);
        QCOMPARE(editor.color.number(), 0x030201);
        editor.qnt.setText("1");
        editor.click("Command1");
    });
    QCOMPARE(m_rows.Color(1), "197121");

    const auto keeps = [this](const QString& stored, const QColor& shown, const char* kept) {
        m_rows.SetColor(1, stored);
        openRow(m_rows, m_client, 1, [&](Editor editor) {
            QCOMPARE(editor.color.color(), shown);
            editor.click("Command1");
        });
        QCOMPARE(m_rows.Color(1), QString::fromLatin1(kept));
    };
    keeps("-2147483643", QColor(5, 0, 0), "-2147483643");
    keeps("99999999999999999999", Qt::white, "16777215");
    keeps("", Qt::black, "0");
}

void tst_frmAddItem::picturesLiveOnTheDisk()
{
    const QString source = picture(shop->folder() + "/photo.png");
    QString stored;
    openNew(m_rows, m_client, [&](Editor editor) {
        editor.insert("Cancel");
        editor.insert("");
        QCOMPARE(imageFiles(), QStringList());

        editor.insert(source);
        stored = editor.path(2);
        QVERIFY(editor.hasPicture(2) && !editor.hasPicture(1));
        editor.choose("Shirt");
        editor.qnt.setText("1");
        editor.click("Command1");
    });
    static const QRegularExpression name(
        "/images/Asha O'Neil_\\d\\d_\\d\\d_\\d{4}_[1-7]_\\d_\\d\\d_1\\.bmp$");
    QVERIFY2(stored.startsWith(shop->folder()) && name.match(stored).hasMatch(), qPrintable(stored));
    QCOMPARE(contents(stored), contents(source));
    QCOMPARE(m_rows.img2(1), stored);

    QVERIFY(openRow(m_rows, m_client, 1, [&](Editor editor) {
        QVERIFY(editor.hasPicture(2));
        QCOMPARE(editor.path(2), stored);
        editor.click("Command2"); // clears both places
        QVERIFY(!editor.hasPicture(2) && editor.path(2).isEmpty());
        press(Qt::Key_Escape);
    }));
    QVERIFY2(imageFiles().isEmpty(), "a cancelled editor does not bring a picture back");
    QCOMPARE(m_rows.img2(1), stored);
}

void tst_frmAddItem::picturesThatCannotBeTaken()
{
    const QString noPicture = shop->folder() + "/letter.jpg";
    QFile letter(noPicture);
    QVERIFY(letter.open(QIODevice::WriteOnly) && letter.write("Dear client") > 0);
    letter.close();
    const QString source = picture(shop->folder() + "/photo.png");
    openNew(m_rows, m_client, [&](Editor editor) {
        prompts->expect(noPicture + " is not a picture that can be shown.");
        editor.insert(noPicture);
        editor.insert(source);
        const QString kept = editor.path(2);
        QCOMPARE(imageFiles().size(), 1);

        QVERIFY(QDir(session.imagesFolder()).removeRecursively());
        QFile inTheWay(session.imagesFolder());
        QVERIFY(inTheWay.open(QIODevice::WriteOnly));
        prompts->expect("The folder for pictures cannot be made: " + session.imagesFolder());
        editor.insert(source);
        QCOMPARE(editor.path(2), kept);
        QVERIFY(editor.hasPicture(2));
        editor.click("Command5");
        QVERIFY2(editor.path(2).isEmpty() && !editor.hasPicture(2), "a file that is gone is no fault");
    });
}

/// A client's name never leads out of the folder, and no picture takes the place of another.
void tst_frmAddItem::pictureNames()
{
    const QDateTime sunday(QDate(2024, 2, 11), QTime(14, 37, 5));
    const QString folder = session.imagesFolder() + u'/';
    const QString path = picturefiles::newPath("A/B\\%1 %3", sunday, 1);
    QCOMPARE(path, folder + "A_B\\%1 %3_11_02_2024_1_7_05_1.bmp");
    picture(folder + "Asha_11_02_2024_1_7_05_1.bmp");
    QCOMPARE(picturefiles::newPath("Asha", sunday, 1), folder + "Asha_11_02_2024_1_7_06_1.bmp");
    picture(picturefiles::newPath(QStringLiteral("👔").repeated(3000), sunday, 1));
}

QTEST_MAIN(tst_frmAddItem)
#include "tst_frmAddItem.moc"
