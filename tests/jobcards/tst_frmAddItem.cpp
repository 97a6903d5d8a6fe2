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

QString lines(const QStringList& all) { return all.join("\r\n"); }

QString focusName()
{
    return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

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
            const QString& values, const QString& img1 = {}, const QString& color = "255")
{
    rows.AddNewRow(77, item, itemID, 3, 100.25, 300.75, "remark", names, values, 0, {}, {}, {}, {}, {}, 0, 0,
                   0, {}, img1, {}, color, 0, {}, "note");
}

void orderBefore(qint32 client, qint32 item, const QDate& date, const QStringList& names,
                 const QStringList& values, const QString& note = {})
{
    ado::Recordset rows(DE.connection());
    rows.Open("Select * from Jobs_Detail");
    rows.AddNew();
    rows["Date"] = date;
    rows["JobID"] = 1;
    rows["ClintID"] = client;
    rows["ClintName"] = "client";
    rows["ItemID"] = item;
    rows["ItemName"] = "item";
    rows["QNT"] = 1;
    rows["FEES"] = 999;
    rows["Amount"] = 999;
    rows["Remarks"] = "";
    rows["ItemDetails"] = lines(names);
    rows["ItemDetailsValue"] = lines(values);
    rows["JobDelDate"] = date;
    rows["ClientRemarks"] = note;
    rows["CuttingDate"] = date;
    rows.Update();
}

QString picture(const QString& path, const QColor& color = Qt::red)
{
    QImage image(64, 48, QImage::Format_RGB32);
    image.fill(color);
    if (!image.save(path))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList imageFiles() { return QDir(session.imagesFolder()).entryList(QDir::Files, QDir::Name); }

} // namespace

class tst_frmAddItem : public ShopTest
{
    Q_OBJECT
private Q_SLOTS:
    void aLineByKeyboard();
    void measurementsOfTheLastOrder();
    void templateOfTheItem_data();
    void templateOfTheItem();
    void refusals();
    void whatCannotBeHeldChangesNothing_data();
    void whatCannotBeHeldChangesNothing();
    void editingARow();
    void measurementsComeBackAsStored_data();
    void measurementsComeBackAsStored();
    void aRowWhoseItemIsGone();
    void theColourOfTheCloth();
    void coloursOfAllNumbers_data();
    void coloursOfAllNumbers();
    void picturesLiveOnTheDisk();
    void picturesThatCannotBeTaken();
    void cleanForm();
    void pictureNames();

private:
    void lay() override;

    clsJobCardData m_rows;
    qint32 m_client = 0;
    qint32 m_shirt = 0;
};

void tst_frmAddItem::lay()
{
    m_rows = {};
    m_client = shop->addClient("Asha O'Neil");
    m_shirt = shop->addItem("Shirt", 150.5, 40, "Length\r\nChest=40");
    shop->addItem("Lehenga", 900);
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
        QCOMPARE(focusName(), "txtValue_0");
        typeText("30");
        press(Qt::Key_Return);
        typeText("41");
        press(Qt::Key_Return);
        QCOMPARE(focusName(), "txtQnt");
        typeText("x2y");
        press(Qt::Key_Return);
        QCOMPARE(focusName(), "txtFees");
        press(Qt::Key_PageDown);
        QCOMPARE(focusName(), "txtRemark");
        typeText("blue");
        press(Qt::Key_Return);
        QCOMPARE(focusName(), "txtClientRemark");
        typeText("loose");
        press(Qt::Key_Return);
        typeText("fit");
        press(Qt::Key_Return);
        QCOMPARE(focusName(), "txtClientRemark");
        press(Qt::Key_Return);
        QCOMPARE(focusName(), "Command1");
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
    QCOMPARE(m_rows.img1(1) + m_rows.img2(1), QString());
    QCOMPARE(m_rows.Color(1), "16777215");
    QCOMPARE(m_rows.ClientRemarks(1), "loose\r\nfit\r\n");
    QCOMPARE(Shop::count("Select * from Jobs_Detail"), 0);
}

void tst_frmAddItem::measurementsOfTheLastOrder()
{
    const qint32 other = shop->addClient("Other");
    orderBefore(m_client, m_shirt, QDate(2024, 1, 5), {"Length"}, {"28"}, "early");
    orderBefore(m_client, m_shirt, QDate(2023, 12, 1), {"Length", "Chest", "Cuff"}, {"29", "a=b"}, "later");
    orderBefore(other, m_shirt, QDate(2024, 2, 1), {"Length"}, {"99"}, "not hers");
    openNew(m_rows, m_client, [](Editor editor) {
        editor.choose("Shirt");
        QCOMPARE(editor.measurements(), "Length=29|Chest=a|Cuff=");
        QCOMPARE(editor.last.text(), "Previous JOB : 01-Dec-2023");
        QCOMPARE(editor.note.Text(), "later");
        QCOMPARE(editor.fees.text(), "150.5");

        editor.choose("Lehenga");
        QCOMPARE(editor.measurements(), "Length=|Chest=40");
        QCOMPARE(editor.last.text(), "No Previous record found!");
        QCOMPARE(editor.note.Text(), QString());
        QCOMPARE(editor.fees.text(), "900");
    });
}

void tst_frmAddItem::templateOfTheItem_data()
{
    QTest::addColumn<QString>("details");
    QTest::addColumn<QString>("shown");
    QTest::newRow("default values") << "Length\r\nChest=40"
                                    << "Length=|Chest=40";
    QTest::newRow("blank lines") << "\r\nLength\r\n\r\nChest\r\n"
                                 << "Length=|Chest=";
    QTest::newRow("value with =") << "Fold=a=b"
                                  << "Fold=a";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_frmAddItem::templateOfTheItem()
{
    QFETCH(QString, details);
    QFETCH(QString, shown);
    shop->addItem("Kurta", 75, 10, details);
    openNew(m_rows, m_client, [&](Editor editor) {
        editor.choose("Kurta");
        QCOMPARE(editor.measurements(), shown);
        QCOMPARE(focusName(), shown.isEmpty() ? "txtQnt" : "txtValue_0");
        editor.qnt.setText("1");
        editor.click("Command1");
    });
    QCOMPARE(m_rows.RowCount(), 1);
    QCOMPARE(m_rows.ItemDetails(1).count(u'\n'), m_rows.ItemDetailsValue(1).count(u'\n'));
    if (shown.isEmpty())
        QCOMPARE(m_rows.ItemDetails(1) + m_rows.ItemDetailsValue(1), QString());
}

void tst_frmAddItem::refusals()
{
    const bool cancelled = openNew(m_rows, m_client, [this](Editor editor) {
        const auto refused = [&](const char* message, const char* field) {
            prompts->expect(QString::fromLatin1(message));
            editor.click("Command1");
            QTRY_COMPARE(focusName(), QString::fromLatin1(field));
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

void tst_frmAddItem::whatCannotBeHeldChangesNothing_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<QString>("fees");
    QTest::addColumn<QString>("message");
    const QString overflow = OverflowError().text();
    QTest::newRow("pieces past 16 bits") << "Shirt"
                                         << "32768"
                                         << "1" << overflow;
    QTest::newRow("a sum past all money") << "Shirt"
                                          << "2"
                                          << "999999999999999" << overflow;
    QTest::newRow("an item that is not in the catalogue") << "Toga"
                                                          << "1"
                                                          << "1" << ado::NoCurrentRecordError().text();
}

void tst_frmAddItem::whatCannotBeHeldChangesNothing()
{
    QFETCH(QString, item);
    QFETCH(QString, quantity);
    QFETCH(QString, fees);
    QFETCH(QString, message);
    addRow(m_rows, "Shirt", m_shirt, "Length", "30");
    prompts->expect(message);
    QVERIFY(openRow(m_rows, m_client, 1, [&](Editor editor) {
        editor.item.setText(item);
        editor.remark.setText("changed");
        editor.qnt.setText(quantity);
        editor.fees.setText(fees);
        editor.click("Command1");
        QVERIFY2(editor.screen.isVisible(), "the operator can put it right");
    }));
    QCOMPARE(m_rows.Qty(1), 3);
    QCOMPARE(m_rows.Remarks(1), "remark");
}

void tst_frmAddItem::editingARow()
{
    addRow(m_rows, "Shirt", m_shirt, "Length", "30");
    addRow(m_rows, "Shirt", m_shirt, "Length\r\nChest", "31\r\n42", session.imagesFolder() + "/gone.bmp");
    QVERIFY(!openRow(m_rows, m_client, 2, [](Editor editor) {
        QCOMPARE(focusName(), "txtValue_0");
        QVERIFY2(!editor.item.isDroppedDown(), "the list of items has closed again");
        QCOMPARE(editor.item.text(), "Shirt");
        QCOMPARE(editor.measurements(), "Length=31|Chest=42");
        QCOMPARE(editor.qnt.text(), "3");
        QCOMPARE(editor.fees.text(), "100.25");
        QCOMPARE(editor.remark.text(), "remark");
        QCOMPARE(editor.note.Text(), "note");
        QCOMPARE(editor.color.color(), QColor(Qt::red));
        QVERIFY2(editor.path(1).isEmpty(), "a picture that is gone leaves its place empty");
        typeText("33");
        editor.qnt.setText("2.5");
        editor.click("Command1");
    }));
    QCOMPARE(m_rows.RowCount(), 2);
    QCOMPARE(m_rows.Sr(2), 77);
    QCOMPARE(m_rows.ItemDetailsValue(2), "33\r\n42");
    QCOMPARE(m_rows.Qty(2), 2);
    QCOMPARE(m_rows.Amount(2), 250.625);
    QCOMPARE(m_rows.img1(2), QString());
    QCOMPARE(m_rows.ItemDetailsValue(1), "30");
}

void tst_frmAddItem::measurementsComeBackAsStored_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("storedNames");
    QTest::addColumn<QString>("storedValues");
    QTest::newRow("plain") << "A\r\nB"
                           << "1\r\n2"
                           << "A\r\nB"
                           << "1\r\n2";
    QTest::newRow("carriage return in a name") << "A\rx\r\nB\r"
                                               << "1\r\n2"
                                               << "Ax\r\nB"
                                               << "1\r\n2";
    QTest::newRow("fewer values") << "A\r\nB\r\nC"
                                  << "1"
                                  << "A\r\nB\r\nC"
                                  << "1\r\n\r\n";
    QTest::newRow("more values") << "A"
                                 << "1\r\n2\r\n3"
                                 << "A"
                                 << "1";
    QTest::newRow("values with =") << "A\r\nB"
                                   << "1=2\r\n="
                                   << "A\r\nB"
                                   << "1=2\r\n=";
    QTest::newRow("marks") << "O'Neil %1\r\n<b>&B"
                           << "10%\r\n👖 \"2\""
                           << "O'Neil %1\r\n<b>&B"
                           << "10%\r\n👖 \"2\"";
    QTest::newRow("a value without a name") << ""
                                            << "5"
                                            << ""
                                            << "5";
    QTest::newRow("none") << ""
                          << ""
                          << ""
                          << "";
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

/// The name stands in the box, though an entry that begins like it would offer itself.
void tst_frmAddItem::aRowWhoseItemIsGone()
{
    addRow(m_rows, "Shir", 99, "Length", "30");
    prompts->expect(ado::NoCurrentRecordError().text());
    QVERIFY(openRow(m_rows, m_client, 1, [](Editor editor) {
        QCOMPARE(editor.item.text(), "Shir");
        editor.item.setFocus();
        QCOMPARE(editor.item.text(), "Shir");
        editor.click("Command1");
    }));
    QCOMPARE(m_rows.ItemID(1), 99);
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
}

void tst_frmAddItem::coloursOfAllNumbers_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("kept");
    QTest::addColumn<QColor>("shown");
    QTest::newRow("blue") << "16711680"
                          << "16711680" << QColor(Qt::blue);
    QTest::newRow("negative") << "-2147483643"
                              << "-2147483643" << QColor(5, 0, 0);
    QTest::newRow("huge") << "99999999999999999999"
                          << "16777215" << QColor(Qt::white);
    QTest::newRow("a stored double") << "255.0"
                                     << "255" << QColor(Qt::red);
    QTest::newRow("none") << ""
                          << "0" << QColor(Qt::black);
}

void tst_frmAddItem::coloursOfAllNumbers()
{
    QFETCH(QString, stored);
    QFETCH(QColor, shown);
    addRow(m_rows, "Shirt", m_shirt, {}, {}, {}, stored);
    openRow(m_rows, m_client, 1, [&](Editor editor) {
        QCOMPARE(editor.color.color(), shown);
        editor.color.grab();
        editor.click("Command1");
    });
    QTEST(m_rows.Color(1), "kept");
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
        editor.click("Command5");
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
    });
}

void tst_frmAddItem::cleanForm()
{
    orderBefore(m_client, m_shirt, QDate(2024, 1, 5), {"Length"}, {"28"}, "note");
    const QString source = picture(shop->folder() + "/photo.png");
    openNew(m_rows, m_client, [&](Editor editor) {
        editor.click("Command2");
        QCOMPARE(editor.measurements(), QString());
        editor.choose("Shirt");
        editor.insert(source);
        QCOMPARE(editor.measurements(), "Length=28");
        editor.click("Command2");
        QCOMPARE(editor.measurements(), "Length=|Chest=40");
        QCOMPARE(editor.note.Text(), QString());
        QVERIFY(editor.path(2).isEmpty() && imageFiles().isEmpty());
    });
}

void tst_frmAddItem::pictureNames()
{
    const QDateTime sunday(QDate(2024, 2, 11), QTime(14, 37, 5));
    const QString folder = session.imagesFolder() + u'/';
    QCOMPARE(picturefiles::newPath("Asha", sunday, 2), folder + "Asha_11_02_2024_1_7_05_2.bmp");
    QCOMPARE(picturefiles::newPath("A/B\\%1 %3", sunday, 1), folder + "A_B\\%1 %3_11_02_2024_1_7_05_1.bmp");

    picture(folder + "Asha_11_02_2024_1_7_05_1.bmp");
    QCOMPARE(picturefiles::newPath("Asha", sunday, 1), folder + "Asha_11_02_2024_1_7_06_1.bmp");

    const QString longName = picturefiles::newPath(QStringLiteral("👔").repeated(3000), sunday, 1);
    picture(longName);
    QVERIFY(QFile::exists(longName));
}

QTEST_MAIN(tst_frmAddItem)
#include "tst_frmAddItem.moc"
