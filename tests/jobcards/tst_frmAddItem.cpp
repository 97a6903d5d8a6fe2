#include "core/store/Startup.h"
#include "jobcards/ColorBox.h"
#include "jobcards/ItemDetails.h"
#include "jobcards/MeasurementGuard.h"
#include "jobcards/PictureBox.h"
#include "jobcards/PictureFiles.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmClothColor.h"
#include "media/frmHandNote.h"
#include "platform/forms/Palette.h"
#include "platform/values/Errors.h"
#include "support/ShopTest.h"
#include "ui/HelpLine.h"
#include "ui/frmSelectFile.h"
#include "ui/swTextBox.h"

#include <QColorDialog>
#include <QDir>
#include <QRegularExpression>

static void choose(frmAddItem& line, const QString& item)
{
    fillIn(line, "cmbItems", item);
    press(Qt::Key_Return);
}

static QString measurements(frmAddItem& line)
{
    QStringList all;
    auto& grid = control<ItemDetails>(line, "ItemDetails1");
    for (qint32 i = 0; i < grid.Count(); ++i) {
        QString name, value;
        grid.ListItemText(name, value, i);
        all << name + u'=' + value;
    }
    return all.join(u'|');
}

/// "row: reason" for each that shows.
static QString reasons(frmAddItem& line)
{
    QStringList all;
    for (int i = 0; i < control<ItemDetails>(line, "ItemDetails1").Count(); ++i)
        if (const auto& box = control<swTextBox>(line, qPrintable(u"txtValue_%1"_s.arg(i)));
            !box.accessibleDescription().isEmpty())
            all << u"%1: %2"_s.arg(i).arg(box.accessibleDescription());
    return all.join(u'|');
}

/// How many pixels of a box have about a colour: thin letters blend into their ground.
static int ink(swTextBox& box, QRgb color)
{
    const QImage image = box.grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count +=
                qAbs(qRed(image.pixel(x, y)) - qRed(color)) + qAbs(qBlue(image.pixel(x, y)) - qBlue(color)) <
                        100
                    ? 1
                    : 0;
    return count;
}

static bool hasPicture(frmAddItem& line) { return !control<PictureBox>(line, "pic2").picture().isNull(); }

static void insertPicture(frmAddItem& line, const QString& file)
{
    onNextModal<frmSelectFile>([&file](frmSelectFile& picker) {
        field(picker, "txtfilename").setText(file);
        click(picker, "cmdOK");
    });
    click(line, "Command8");
}

/// Leaves the pad by OK, or by Esc.
static void drawNote(frmAddItem& line, Qt::Key leave)
{
    onNextModal<frmHandNote>(
        [leave](frmHandNote&) { press(leave, leave == Qt::Key_O ? Qt::AltModifier : Qt::NoModifier); });
    click(line, "Command7");
}

static QStringList imageFiles() { return QDir(session.imagesFolder()).entryList(QDir::Files); }

static QString paint(const QString& path)
{
    return QImage(64, 48, QImage::Format_RGB32).save(path) ? path : QString();
}

class tst_frmAddItem : public ShopTest
{
    Q_OBJECT

    void lay() override
    {
        rows = {};
        client = shop->addClient("Asha");
        shop->addItem("Men's");
        shirt = shop->addItem("Shirt", 150.5);
    }

    /// Both give true for a line that was cancelled.
    bool addLine(std::function<void(frmAddItem&)> act)
    {
        onNextModal<frmAddItem>(std::move(act));
        return frmAddItem().ItemDetails(rows, client);
    }
    bool editLine(std::function<void(frmAddItem&)> act, int row = 1)
    {
        onNextModal<frmAddItem>(std::move(act));
        return frmAddItem().EditItemDetails(rows, client, row);
    }
    void addRow(const QString& names, const QString& values)
    {
        Shop::order(rows, "Shirt", 300.75, 3);
        rows.SetRemarks(1, "remark");
        rows.SetItemDetails(1, names);
        rows.SetItemDetailsValue(1, values);
    }

    /// What the operator sees of a row.
    QString written(int row) const
    {
        return QStringList{rows.ItemName(row),    QString::number(rows.Amount(row)), rows.Remarks(row),
                           rows.ItemDetails(row), rows.ItemDetailsValue(row),        rows.ClientRemarks(row),
                           rows.Color(row)}
            .join("; ");
    }

    clsJobCardData rows;
    qint32 client = 0;
    qint32 shirt = 0;

private Q_SLOTS:
    void aLineByKeyboard()
    {
        addRow("Length", "30");
        QVERIFY(!addLine([](frmAddItem& line) {
            QCOMPARE(label(line, "lblClint"), "Asha");
            QVERIFY2(combo(line, "cmbItems").isDroppedDown(), "the list of items is open from the start");
            typeText("sh");
            press(Qt::Key_Return);
            QCOMPARE(label(line, "lblLast"), "No Previous record found!");
            QCOMPARE(field(line, "txtFees").text(), "150.5");
            typeFields({"30", "41", "x2y"}); // the measurements, the quantity
            QCOMPARE(focused(line), "txtFees");
            press(Qt::Key_PageDown);
            typeFields(
                {"blue", "loose", "fit", {}, {}}); // a second Enter ends the note, a third presses "Save"
        }));
        QCOMPARE(rows.ItemID(2), shirt);
        QCOMPARE(written(2), "Shirt; 301; blue; Length\r\nChest; 30\r\n41; loose\r\nfit\r\n; 16777215");
        const auto correct = [](frmAddItem& line) {
            QCOMPARE(focused(line), "txtValue_0");
            QVERIFY2(!combo(line, "cmbItems").isDroppedDown(), "the list of items has closed again");
            typeText("33");
            press(Qt::Key_Return, Qt::ControlModifier);
            QCOMPARE(focused(line), "txtQnt");
            fillIn(line, "txtQnt", "2.5");
            fillIn(line, "txtFees", "100.25");
            auto& color = control<ColorBox>(line, "picColor");
            color.setFocus();
            onNextModal<frmClothColor>([](frmClothColor& swatches) {
                QCOMPARE(label(swatches, "lblColor"), "White"); // what the line has
                for (const Qt::Key key :
                     {Qt::Key_Up, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_Right})
                    press(key);
                QCOMPARE(label(swatches, "lblColor"), "Bottle green");
                press(Qt::Key_Return);
            });
            press(Qt::Key_Return);
            QCOMPARE(color.color(), QColor(0x0F, 0x5A, 0x3C));
            const auto other = [](const QColor& taken, bool leaves) {
                onNextModal<frmClothColor>([=](frmClothColor& swatches) {
                    QCOMPARE(label(swatches, "lblColor"), "Bottle green");
                    onNextModal<QColorDialog>([=](QColorDialog& dialog) {
                        dialog.setCurrentColor(taken);
                        dialog.accept();
                    });
                    press(Qt::Key_O, Qt::AltModifier);
                    QCOMPARE(!swatches.isVisible(), leaves);
                });
                press(Qt::Key_Space);
            };
            QVERIFY2(color.hasFocus(), "the keys come back to the colour");
            other(Qt::black, false); // no cloth's colour: the swatches stay
            QCOMPARE(color.color(), QColor(0x0F, 0x5A, 0x3C));
            other({1, 2, 3}, true);
            click(line, "Command1");
        };
        QVERIFY(!editLine(correct, 2));
        QCOMPARE(rows.Qty(2), 2);
        QCOMPARE(written(2), "Shirt; 250.625; blue; Length\r\nChest; 33\r\n41; loose\r\nfit\r\n; 197121");
        QCOMPARE(written(1), "Shirt; 300.75; remark; Length; 30; note; 255");
    }

    void measuresAreReadInEveryForm_data()
    {
        QTest::addColumn<double>("inches"); // below 0: no number
        const std::pair<const char*, double> forms[] = {
            {"42", 42},     {" 9.5 ", 9.5},    {"9,5", 9.5},    {"14 1/2", 14.5}, {"14-3/4", 14.75},
            {"14½", 14.5},  {"14 ¼\"", 14.25}, {"3/4", 0.75},   {"¾", 0.75},      {"42 Inches", 42},
            {"40 cm", 40},  {"", -1},          {"Regular", -1}, {"16 loose", -1}, {"38/40", 0.95},
            {"14 1/0", -1}, {"4.", -1},        {"in", -1},      {"-4", -1},       {"141/2", 70.5},
            {"1 2", -1},
        };
        for (const auto& [text, inches] : forms)
            QTest::newRow(text) << inches;
    }
    void measuresAreReadInEveryForm()
    {
        QFETCH(double, inches);
        const QString text = QString::fromUtf8(QTest::currentDataTag());
        QCOMPARE(MeasurementGuard::measure(text).value_or(-1), inches);
    }

    /// The reason stands beside the value as soon as it has been left, and OK counts: no key more than
    /// without.
    void aSlipInAMeasurementIsMarked()
    {
        const QString set = "ItemDetails='Length\r\nChest\r\nCollar', ItemDetailsValue='%1'";
        shop->addJobLine(client, shirt, 0, set.arg("20\r\n42\r\nHigh"));
        shop->addJobLine(client, shirt, 0, set.arg("29 1/2\r\n42\r\nHigh"));
        QVERIFY(!addLine([](frmAddItem& line) {
            choose(line, "Shirt");
            QCOMPARE(reasons(line), "");
            typeFields({"29.75", "24"}); // Collar stays
            press(Qt::Key_Return);
            QCOMPARE(reasons(line), "1: last time 42");
            auto& help = control<HelpLine>(line, "lblHelp");
            control<QPushButton>(line, "Command1").setFocus();
            QCOMPARE(help.notice(), "1 measurement looks unusual");
            auto& chest = control<swTextBox>(line, "txtValue_1");
            QVERIFY2(ink(chest, palette::notice) > 20, "it can be read");
            chest.setFocus();
            QCOMPARE(help.notice(), "");
            QVERIFY(ink(chest, palette::amber) > 20);
            typeText("4");
            QCOMPARE(reasons(line), ""); // what is being typed is not judged
            press(Qt::Key_Return);
            QCOMPARE(reasons(line), "1: last time 42");
            fillIn(line, "txtValue_0", "Long");
            fillIn(line, "txtQnt", "1");
            press(Qt::Key_O, Qt::AltModifier);
        }));
        QVERIFY(rows.ItemDetailsValue(1) == "Long\r\n4\r\nHigh");
        // A stored line is compared with what was ordered before it, not with itself.
        rows.SetSr(1, Shop::value("Select max(ID) from Jobs_Detail").toInt());
        QVERIFY(editLine([](frmAddItem& line) {
            QCOMPARE(reasons(line), "1: last time 42");
            typeFields({"29"});
            QCOMPARE(reasons(line), "0: last time 20|1: last time 42");
            control<QPushButton>(line, "Command1").setFocus();
            QCOMPARE(control<HelpLine>(line, "lblHelp").notice(), "2 measurements look unusual");
            press(Qt::Key_Escape);
        }));
    }

    /// Without an order of the client, those of the shop speak: for somebody of this build, and once there
    /// are enough.
    void whatTheShopKnowsOfAGarment()
    {
        const auto order = [this](int orders, double size, double sleeve) {
            const qint32 other = shop->addClient("Other " + QString::number(size));
            for (int i = 0; i < orders; ++i)
                shop->addJobLine(other, shirt, 0,
                                 QString("ItemDetails='Length\r\nChest\r\nWaist\r\nHip\r\nSleeve', "
                                         "ItemDetailsValue='%1\r\n%2\r\n%3\r\n%4\r\n%5'")
                                     .arg(30 * size)
                                     .arg(42 * size)
                                     .arg(40 * size)
                                     .arg(44 * size)
                                     .arg(sleeve * size));
        };
        const auto typed = [this](const QStringList& values) {
            QStringList found;
            const QStringList names = {"Length", "CHEST ", "Waist", "Hip", "Sleeve"};
            const QStringList all = MeasurementGuard::of(shirt, client).doubts({names, values});
            for (const QString& each : all)
                found << (each.isEmpty() ? u"-"_s : each);
            return found.join(u'|');
        };
        order(7, 1, 24);
        QCOMPARE(typed({"30", "24", "40", "44", "24"}), "-|-|-|-|-");
        for (const double size : {0.8, 0.9, 1.0, 1.1, 1.2})
            order(6, size, 24);
        order(3, 1, 10);
        QCOMPARE(typed({"27", "37.5", "36", "39.5", "21.5"}), "-|-|-|-|-"); // a slim client
        QCOMPARE(typed({"27", "42", "36", "39.5", "9.5"}),
                 "-|here mostly 37 to 39|-|-|-"); // usual in the shop, not for this one; short sleeves are a
                                                  // fashion
        QCOMPARE(typed({"30", "24", "40", "44", "16"}), "-|here mostly 41 to 43|-|-|here mostly 23 to 25");
        QCOMPARE(typed({{}, "14", {}, "44", {}}), "-|here mostly 23.5 to 60.5|-|-|-"); // build not known
        QCOMPARE(MeasurementGuard::of(shirt + 1, client).doubts({{"Chest"}, {"1"}}),
                 QStringList({QString()}));
    }

    /// Of several orders the line that was stored last counts; the fee is the catalogue's all the same.
    void measurementsOfTheLastOrder()
    {
        shop->addItem("Lehenga", 900, 40, "\r\nLength\r\n\r\nFold=a=b\r\n");
        shop->addItem("Towel", 20, 0, {});
        shop->addJobLine(client, shirt);
        shop->addJobLine(client, shirt, 0,
                         "Date=#01-Dec-2023#, ItemDetails='Length\r\nChest\r\nCuff', "
                         "ItemDetailsValue='29\r\na=b', ClientRemarks='later'");
        shop->addJobLine(shop->addClient("Other"), shirt);
        QVERIFY(addLine([](frmAddItem& line) {
            choose(line, "Shirt");
            QCOMPARE(measurements(line), "Length=29|Chest=a|Cuff=");
            QCOMPARE(label(line, "lblLast"), "Previous JOB : 01-Dec-2023");
            QCOMPARE(field(line, "txtFees").text(), "150.5");
            auto& note = control<QPlainTextEdit>(line, "txtClientRemark");
            QCOMPARE(note.toPlainText(), "later");

            click(line, "Command2"); // a clean form starts from the template
            QCOMPARE(measurements(line) + note.toPlainText(), "Length=|Chest=40");
            choose(line, "Lehenga"); // empty lines of a template name nothing; a value ends at a second =
            QCOMPARE(measurements(line), "Length=|Fold=a");
            choose(line, "Towel");
            QCOMPARE(focused(line), "txtQnt"); // nothing to measure
            QCOMPARE(measurements(line), QString());
            choose(line, "Men's"); // an apostrophe ends no statement
            QCOMPARE(measurements(line), "Length=|Chest=40");
        }));
    }

    void refusalsChangeNothing()
    {
        QVERIFY(addLine([this](frmAddItem& line) {
            const auto refused = [&](const char* message, const char* field) {
                prompts->expect(message);
                click(line, "Command1");
                QTRY_COMPARE(focused(line), field);
            };
            refused("Please Select Item!", "cmbItems");
            choose(line, "Shirt");
            field(line, "txtFees").setText("abc");
            refused("Please Enter Fees!", "txtFees");
            field(line, "txtFees").setText("12..5");
            field(line, "txtQnt").setText("0.0");
            refused("Please Enter Quantity!", "txtQnt");
        }));
        QVERIFY(addLine([](frmAddItem& line) {
            press(Qt::Key_Return);
            QVERIFY2(!line.isVisible(), "Enter in an empty item box closes");
        }));
        QCOMPARE(rows.RowCount(), 0);
        addRow("Length", "30");
        const QString tooLarge = "Overflow: %1 is too large. The highest possible is %2.";
        QVERIFY(editLine([&](frmAddItem& line) {
            // An item that left the catalogue keeps its name, though an entry that begins like it offers
            // itself.
            for (const auto& [item, quantity, fees, message] :
                 {std::tuple("Shirt", "32768", "1", tooLarge.arg("Quantity 32768", "32767")),
                  std::tuple("Shirt", "2", "999999999999999",
                             tooLarge.arg("Amount (quantity x fees)", "922337203685477.5807")),
                  std::tuple("Shir", "1", "1", ado::NoCurrentRecordError().text())}) {
                field(line, "txtRemark").setText("changed");
                combo(line, "cmbItems").setText(item);
                field(line, "txtQnt").setText(quantity);
                field(line, "txtFees").setText(fees);
                prompts->expect(message);
                click(line, "Command1");
                QVERIFY2(line.isVisible(), "the operator can put it right");
            }
            combo(line, "cmbItems").setFocus();
            QCOMPARE(combo(line, "cmbItems").text(), "Shir");
        }));
        QCOMPARE(written(1), "Shirt; 300.75; remark; Length; 30; note; 255");

        // Whatever old rows hold, a second look at them changes nothing more.
        for (const auto& [names, values, color, stored] :
             {std::tuple("A\rx\r\nB\r", "1\r\n2", "-2147483643", "Ax\r\nB; 1\r\n2; note; -2147483643"),
              std::tuple("A\r\nB", "1", "99999999999999999999", "A\r\nB; 1\r\n; note; 16777215"),
              std::tuple("A", "1\r\n2\r\n3", "", "A; 1; note; 0"),
              std::tuple("", "5", "1", "; 5; note; 1")}) {
            rows.SetItemDetails(1, names);
            rows.SetItemDetailsValue(1, values);
            rows.SetColor(1, color);
            for (int time = 0; time < 2; ++time) {
                QVERIFY(!editLine([](frmAddItem& line) { click(line, "Command1"); }));
                QCOMPARE(written(1), QString("Shirt; 300.75; remark; ") + stored);
            }
        }
    }

    void picturesLiveOnTheDisk()
    {
        const QString source = paint(shop->folder() + "/photo.png");
        const QString letter = writeFile(shop->folder() + "/letter.jpg", "Dear client");
        const QString images = session.imagesFolder();
        addRow({}, {});
        editLine([&](frmAddItem& line) {
            prompts->expect(letter + " is not a picture that can be shown.");
            for (const QString& refused : {QString("Cancel"), QString(), letter})
                insertPicture(line, refused);
            QVERIFY(imageFiles().isEmpty());
            insertPicture(line, source);
            drawNote(line, Qt::Key_Escape);
            QVERIFY(label(line, "picPath1").isEmpty());
            for (int time = 0; time < 2; ++time) { // the second note is drawn on the first
                drawNote(line, Qt::Key_O);
                QCOMPARE(imageFiles().size(), 2);
            }
            click(line, "Command1");
        });
        QVERIFY(contents(rows.img1(1)).startsWith("BM"));
        const QString stored = rows.img2(1);
        static const QRegularExpression name("/Asha_10_02_2024_7_\\d_\\d\\d_1\\.bmp$");
        QVERIFY2(stored.startsWith(images) && name.match(stored).hasMatch(), qPrintable(stored));
        QCOMPARE(contents(stored), contents(source));

        QVERIFY(editLine([&](frmAddItem& line) {
            QVERIFY(hasPicture(line));
            click(line, "Command2");
            QVERIFY(!hasPicture(line) && label(line, "picPath2").isEmpty());
        }));
        QVERIFY2(imageFiles().isEmpty(), "a cancelled editor does not bring a picture back");
        QCOMPARE(rows.img2(1), stored);

        // The shop has moved: of a link only the name counts, and no file of another folder is touched. What
        // is missing keeps its link until it is cleared.
        const QString elsewhere = paint(shop->folder() + "/a.bmp");
        MakeImagesFolder();
        for (const char* link : {"C:\\old shop\\images\\a.bmp", "/old/images/a.bmp", ""}) {
            const QString moved = *link ? QString(link) : elsewhere;
            rows.SetImg1(1, "/old/images/gone.bmp");
            rows.SetImg2(1, moved);
            paint(images + "/a.bmp");
            QVERIFY(!editLine([](frmAddItem& line) {
                QVERIFY(hasPicture(line));
                click(line, "Command1");
            }));
            QCOMPARE(rows.img1(1) + ' ' + rows.img2(1), "/old/images/gone.bmp " + images + "/a.bmp");
            rows.SetImg2(1, moved);
            QVERIFY(!editLine([](frmAddItem& line) {
                click(line, "Command2");
                click(line, "Command1");
            }));
            QVERIFY(imageFiles().isEmpty() && QFile::exists(elsewhere));
            QCOMPARE(rows.img1(1) + rows.img2(1), QString());
        }

        // A client's name never leads out of the folder, and no picture takes the place of another.
        const QDateTime sunday(QDate(2024, 2, 11), QTime(14, 37, 5));
        for (const char* seconds : {"05", "06"}) {
            const QString path = picturefiles::newPath("A/B\\%1 %3", sunday, 1);
            QCOMPARE(path, images + "/A_B\\%1 %3_11_02_2024_1_7_" + seconds + "_1.bmp");
            paint(path);
        }
        paint(picturefiles::newPath(u"👔"_s.repeated(3000), sunday, 1));
        QVERIFY(QDir(images).removeRecursively());
        writeFile(images, "in the way");
        QVERIFY_THROWS_EXCEPTION(OperatorError, picturefiles::copy(source, stored));
    }
};

QTEST_MAIN(tst_frmAddItem)
#include "tst_frmAddItem.moc"
