#include "platform/report/PageView.h"
#include "platform/report/Pdf.h"
#include "platform/report/Preview.h"
#include "platform/report/PrintDialog.h"
#include "platform/report/Printing.h"
#include "platform/values/Errors.h"
#include "support/Fields.h"
#include "support/Files.h"
#include "support/Modal.h"
#include "support/Pdf.h"
#include "support/PrintSystem.h"
#include "support/Prompts.h"

#include <QComboBox>
#include <QScopeGuard>
#include <QSpinBox>
#include <QTest>

using namespace report;

static Row line(const QString& name, const QString& remark = {})
{
    Row row;
    row.set("Name", name);
    row.set("Remark", remark);
    row.set("Amount", "1234.5");
    row.set("Day", "10-Feb-2024");
    return row;
}

/// A bill: a heading whose column titles come again, a band a line with a growing remark, a foot, numbers of
/// pages.
class Bill : public Report
{
public:
    explicit Bill(std::vector<Row> lines)
        : Report("Bill")
    {
        Section& head = addSection("Head", Band::Head, 1000);
        head.addLabel("lblCompany", "Rangoli").place(0, 0, 5000, 300);
        head.addLabel("lblTitles", "Particulars").place(0, 700, 5000, 300);
        head.label("lblTitles").Repeats = true;
        Section& body = addSection("Body", Band::Detail, 700);
        body.addField("txtName", "NAME").place(0, 0, 2000, 300);
        Field& remark = body.addField("txtRemark", "remark");
        remark.place(2000, 0, 3000, 300);
        remark.CanGrow = true;
        body.addField("txtAmount", "Amount", "#,##0.00;(#,##0.00)").place(0, 350, 2000, 300);
        body.addField("txtDay", "Day", "dd-mmm-yy").place(2000, 350, 2000, 300);
        addSection("Foot", Band::Foot, 400).addLabel("lblTotal", "Total").place(0, 0, 2000, 300);
        addSection("Page", Band::PageFoot, 400).addLabel("lblPage", "%p/%P").place(0, 0, 2000, 300);
        section("Page").label("lblPage").CountsPages = true;
        Row bill;
        bill.details = std::move(lines);
        setDataSource({bill});
    }
};

/// A printer's description: its sheets in points, with margins of 12, and any other size.
static QByteArray printerOf(const std::vector<std::pair<QByteArray, QSize>>& sheets)
{
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*LanguageLevel: \"3\"\n*LandscapeOrientation: Plus90\n"
                      "*MaxMediaWidth: \"1000\"\n*MaxMediaHeight: \"1000\"\n*HWMargins: 12 12 12 12\n"
                      "*CustomPageSize True: \"pop\"\n*ParamCustomPageSize Width: 1 points 30 1000\n"
                      "*ParamCustomPageSize Height: 2 points 30 1000\n*OpenUI *PageSize/Size: PickOne\n"
                      "*DefaultPageSize: A4\n";
    for (const auto& [name, size] : sheets)
        text += "*PageSize " + name + ": \"<<>>setpagedevice\"\n";
    text += "*CloseUI: *PageSize\n*DefaultImageableArea: A4\n*DefaultPaperDimension: A4\n";
    for (const auto& [name, size] : sheets) {
        const QByteArray width = QByteArray::number(size.width());
        const QByteArray height = QByteArray::number(size.height());
        text += "*ImageableArea " + name + ": \"12 12 " + QByteArray::number(size.width() - 12) + " " +
                QByteArray::number(size.height() - 12) + "\"\n*PaperDimension " + name + ": \"" + width +
                " " + height + "\"\n";
    }
    return text;
}

/// The size of a PDF file's page and the place of its one word, in points, as another program reads them.
struct Placed
{
    explicit Placed(const QByteArray& content)
    {
        QProcess reader;
        reader.start("pdftotext", {"-bbox", "-", "-"});
        reader.write(content);
        reader.closeWriteChannel();
        reader.waitForFinished();
        static const QRegularExpression numbers("<page width=\"(.*)\" height=\"(.*)\">\\s*<word "
                                                "xMin=\"(.*)\" yMin=\"(.*)\" xMax=\"(.*)\" yMax=\"(.*)\">");
        const auto match = numbers.match(QString::fromUtf8(reader.readAllStandardOutput()));
        const auto number = [&match](int index) { return match.captured(index).toDouble(); };
        page = {number(1), number(2)};
        word = {QPointF(number(3), number(4)), QPointF(number(5), number(6))};
    }
    QSizeF page;
    QRectF word;
};

class tst_report : public QObject
{
    Q_OBJECT
    std::unique_ptr<Prompts> prompts;

private Q_SLOTS:
    void init() { prompts = std::make_unique<Prompts>(); }
    void cleanup() { QVERIFY(prompts->allMet()); }

    void breaksManyLinesOverPages()
    {
        std::vector<Row> lines;
        for (int i = 1; i <= 80; ++i)
            lines.push_back(line(QString("Shirt%1").arg(i), QString::fromUtf8("कुर्ता")));
        const Bill bill(std::move(lines));
        const Pages pages(bill);
        const QStringList read = readBack(pdf(pages, bill.Title));
        QCOMPARE(read.size(), pages.count());
        QCOMPARE(pages.count(), 4);
        for (int i = 0; i < read.size(); ++i) {
            QVERIFY(read[i].contains("Particulars"));
            QCOMPARE(read[i].contains("Rangoli"), i == 0);
            QCOMPARE(read[i].contains("Total"), i == 3);
            QVERIFY(read[i].contains(QString("%1/4").arg(i + 1)));
        }
        const QString all = read.join(' ');
        for (int i = 1; i <= 80; ++i)
            QCOMPARE(all.count(QRegularExpression(QString("Shirt%1\\b").arg(i))), 1);
        QVERIFY(read[0].contains("1,234.50") && read[0].contains("10-Feb-24"));
    }

    void turnsPagesAndPrintsAFew()
    {
        PrintSystem system;
        const QString printed = system.path("printed.pdf");
        system.program("lpstat", "echo Counter\necho Office\n");
        system.program("lp", "echo \"$@\" > '" + system.path("how").toLocal8Bit() + "'\ncat > '" +
                                 printed.toLocal8Bit() + ".part'\nmv '" + printed.toLocal8Bit() + ".part' '" +
                                 printed.toLocal8Bit() + "'\n");
        const Bill bill(std::vector<Row>(80, line("Shirt")));
        onNextModal<Preview>([&](Preview& preview) {
            QCOMPARE(label(preview, "lblPage"), QString("Page 1 of 4"));
            press(Qt::Key_PageUp);
            press(Qt::Key_PageDown);
            press(Qt::Key_PageDown);
            QCOMPARE(label(preview, "lblPage"), QString("Page 3 of 4"));
            press(Qt::Key_End);
            press(Qt::Key_PageDown);
            QCOMPARE(label(preview, "lblPage"), QString("Page 4 of 4"));
            typeText("1+");
            QCOMPARE(label(preview, "lblZoom"), QString("125 %"));
            onNextModal<PrintDialog>([&](PrintDialog& dialog) {
                auto& printers = control<QComboBox>(dialog, "cmbPrinter");
                QTRY_COMPARE(printers.count(), 3);
                printers.setCurrentIndex(2);
                control<QSpinBox>(dialog, "txtCopies").setValue(2);
                control<QSpinBox>(dialog, "txtFrom").setValue(3);
                press(Qt::Key_Return);
            });
            press(Qt::Key_P, Qt::ControlModifier);
        });
        Preview(bill).showModal();
        QTRY_VERIFY(QFile::exists(printed));
        QCOMPARE(contents(system.path("how")).trimmed(), QByteArray("-t Bill -n 2 -d Office"));
        QCOMPARE(readBack(contents(printed)).size(), 2);
    }

    void tellsWhatThePrintSystemRefuses_data()
    {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("told");
        QTest::newRow("no printer")
            << QByteArray("echo '/usr/bin/lp: Error - No default destination.' >&2; exit 1")
            << ", for this computer has no printer that is its default one: in the preview, "
               "\"Print\" lets you choose another, and \"Save as PDF\" keeps the paper as a "
               "file.";
        QTest::newRow("jam") << QByteArray("echo 'lp: jammed' >&2; exit 1") << ": jammed";
        QTest::newRow("noise") << QByteArray("exec yes") << ", and the print system gives no reason.";
        QTest::newRow("no print system") << QByteArray()
                                         << ", for this computer has no print system (CUPS): in the preview, "
                                            "\"Save as PDF\" keeps the paper as a file.";
    }
    void tellsWhatThePrintSystemRefuses()
    {
        QFETCH(QByteArray, script);
        QFETCH(QString, told);
        setPrintPatience(500);
        PrintSystem system;
        if (script.isEmpty())
            system.hideTheRest();
        else
            system.program("lp", script);
        prompts->expect("\"Bill\" was not printed" + told);
        printDirect(Bill({line("Shirt")}));
        QTRY_COMPARE(prompts->pending(), 0);
    }

    /// The print box opens where the paper went the last time, and so does direct printing; a printer and a
    /// sheet that are gone are replaced by the default ones.
    void remembersPrinterAndSheet()
    {
        setPrintPatience(10'000);
        PrintSystem system;
        std::map<int, Destination> kept;
        setPrinterMemory({.recall = [&](int kind) { return kept[kind]; },
                          .keep = [&](int kind, const Destination& where) { kept[kind] = where; }});
        const auto forget = qScopeGuard([] { setPrinterMemory({}); });
        const auto printers = [&](const QByteArray& names) {
            system.program("lpstat", "printf '" + names + "'\n");
        };
        printers("Office\\nZebra\\n");
        system.program("lpoptions", "case \"$2\" in\nOffice) echo 'Resolution/Resolution: *600dpi'\n"
                                    "echo 'PageSize/Media Size: *A4 A5 Letter Custom.WIDTHxHEIGHT' ;;\n"
                                    "Zebra) echo 'media/Media: w170h283 *w283h170' ;;\n*) exit 1\nesac\n");
        const QString how = system.path("how");
        system.program("lp",
                       "case \"$*\" in *Gone*) echo 'lp: The printer or class does not exist.' >&2; exit 1;; "
                       "esac\necho \"$@\" >> '" +
                           how.toLocal8Bit() + "'\n");
        Bill bill({line("Shirt")});
        bill.Kind = 3;
        bill.PageSize = {100, 60};
        const auto printBox = [&](const std::function<void(PrintDialog&)>& act) {
            onNextModal<Preview>([&](Preview&) {
                onNextModal<PrintDialog>([&](PrintDialog& dialog) { act(dialog); });
                press(Qt::Key_P, Qt::ControlModifier);
            });
            Preview(bill).showModal();
            finishPrinting();
            const QByteArray arguments = contents(how).trimmed();
            QFile::remove(how);
            return arguments;
        };
        const auto sheets = [](PrintDialog& dialog) -> QComboBox& {
            return control<QComboBox>(dialog, "cmbMedium");
        };
        QCOMPARE(
            printBox([&](PrintDialog& dialog) {
                QTRY_COMPARE(control<QComboBox>(dialog, "cmbPrinter").count(), 3);
                control<QComboBox>(dialog, "cmbPrinter").setCurrentIndex(2);
                QTRY_COMPARE(sheets(dialog).currentText(), "w283h170 (100 x 60 mm)");
                press(Qt::Key_Return);
            }),
            QByteArray("-t Bill -n 1 -d Zebra -o media=w283h170 -o print-scaling=none -o nopdfAutoRotate"));
        QCOMPARE(kept[3], (Destination{"Zebra", "w283h170"}));
        QCOMPARE(
            printBox([](PrintDialog&) { press(Qt::Key_Return); }), // before anything has come in
            QByteArray("-t Bill -n 1 -d Zebra -o media=w283h170 -o print-scaling=none -o nopdfAutoRotate"));
        kept[3].medium = "w1h1";
        printDirect(bill);
        finishPrinting();
        QVERIFY(contents(how).contains("-d Zebra -o media=w283h170 "));
        QCOMPARE(
            printBox([&](PrintDialog& dialog) {
                QTRY_COMPARE(
                    label(dialog, "lblNote"),
                    "The printer no longer has the sheet \"w1h1\", on which this paper was printed the "
                    "last time.");
                press(Qt::Key_Return);
            })
                .split('\n')
                .last(),
            QByteArray("-t Bill -n 1 -d Zebra -o media=w283h170 -o print-scaling=none -o nopdfAutoRotate"));
        kept[3] = {"Gone", "A5"};
        prompts->expect(
            "\"Bill\" was not printed, for the printer \"Gone\" is gone: the next time this paper goes to "
            "the default printer, unless you choose another with \"Print\" in the preview.");
        printDirect(bill);
        finishPrinting();
        QCOMPARE(kept[3], Destination());
        kept[3] = {"Gone", "A5"};
        QCOMPARE(printBox([&](PrintDialog& dialog) {
                     QTRY_COMPARE(label(dialog, "lblNote"),
                                  "The printer \"Gone\", where this paper went the last time, is gone.");
                     press(Qt::Key_Return);
                 }),
                 QByteArray("-t Bill -n 1"));
        printers("");
        QCOMPARE(printBox([&](PrintDialog& dialog) {
                     QTRY_COMPARE(label(dialog, "lblNote"),
                                  "This computer has no printer: \"Save as PDF\" in the "
                                  "preview keeps the paper as a file.");
                     press(Qt::Key_Return);
                 }),
                 QByteArray("-t Bill -n 1"));
    }

    void knowsTheSizesOfSheets_data()
    {
        QTest::addColumn<QSizeF>("size");
        for (const char* name : {"A5", "a5", "A5.Borderless", "iso_a5_148x210mm"})
            QTest::newRow(name) << QSizeF(148, 210);
        QTest::newRow("w283h170") << QSizeF(100, 60);
        QTest::newRow("4x6") << QSizeF(102, 152);
        QTest::newRow("na_5x7_5x7in") << QSizeF(127, 178);
        QTest::newRow("oe_w288h432_4x6in") << QSizeF(102, 152);
        QTest::newRow("100x150mm") << QSizeF(100, 150);
        for (const char* name : {"Tabloidish", "A4.Transverse", "w0h0", "x", ""})
            QTest::newRow(name) << QSizeF();
    }
    void knowsTheSizesOfSheets()
    {
        QFETCH(QSizeF, size);
        const QSizeF known = mediumSize(QTest::currentDataTag()).expandedTo({0, 0});
        QCOMPARE(QSize(qRound(known.width()), qRound(known.height())), size.expandedTo({0, 0}).toSize());
    }

    /// What the print system makes of a paper and its options: the sheet, and how large and which way round
    /// the paper's word stands on it.
    void liesOnTheSheet_data()
    {
        QTest::addColumn<QSizeF>("paper");
        QTest::addColumn<QString>("medium");
        QTest::addColumn<QSizeF>("sheet");
        QTest::addColumn<bool>("upright");
        QTest::addColumn<double>("scale");
        const QSizeF a4(595, 842);
        const QSizeF label(100, 60);
        QTest::newRow("slip on its own sheet") << QSizeF(148, 210) << "A5" << QSizeF(420, 595) << true << 1.0;
        QTest::newRow("slip fills A4") << QSizeF(148, 210) << "A4" << a4 << true << 1.36;
        QTest::newRow("receipt on A4 keeps its size") << QSizeF(105, 148) << "A4" << a4 << true << 1.0;
        QTest::newRow("label on A4 is not turned") << label << "A4" << a4 << true << 1.0;
        QTest::newRow("label on its own") << label << "w283h170" << QSizeF(283, 170) << true << 1.0;
        QTest::newRow("label on a narrow roll") << label << "w170h283" << QSizeF(170, 283) << false << 1.0;
        QTest::newRow("label of its own size")
            << label << "Custom.WIDTHxHEIGHT" << QSizeF(283, 170) << true << 1.0;
        QTest::newRow("wide list on A4") << QSizeF(297, 210) << "A4" << a4 << false << 1.0;
        QTest::newRow("two receipts on A4") << QSizeF(210, 148) << "A4" << a4 << true << 1.0;
    }
    void liesOnTheSheet()
    {
        const QString filter = "/usr/lib/cups/filter/pdftopdf";
        if (!QFile::exists(filter))
            QSKIP("pdftopdf is not installed (Debian's cups-filters-core-drivers)");
        QFETCH(QSizeF, paper);
        QFETCH(QString, medium);
        QFETCH(QSizeF, sheet);
        QFETCH(bool, upright);
        QFETCH(double, scale);
        PrintSystem system;
        writeFile(system.path("any.ppd"), printerOf({{"A4", {595, 842}},
                                                     {"A5", {420, 595}},
                                                     {"w283h170", {283, 170}},
                                                     {"w170h283", {170, 283}}}));
        qputenv("PPD", system.path("any.ppd").toLocal8Bit());
        Report page("Corner");
        page.PageSize = paper;
        page.LeftMargin = page.TopMargin = page.RightMargin = page.BottomMargin = mm(5);
        page.addSection("All", Band::ReportHead, 300).addLabel("lbl", "CORNER").place(0, 0, mm(60), 300);
        QProcess program;
        program.start(filter, {"1", "user", "Corner", "1", placing(medium, paper).join(' ')});
        program.write(pdf(Pages(page), page.Title));
        program.closeWriteChannel();
        QVERIFY(program.waitForFinished());
        const Placed before(pdf(Pages(page), page.Title));
        const Placed after(program.readAllStandardOutput());
        QCOMPARE(after.page.toSize(), sheet.toSize());
        QCOMPARE(after.word.width() > after.word.height(), upright);
        const double length = std::max(after.word.width(), after.word.height());
        QVERIFY2(std::abs(length / before.word.width() - scale) < 0.03, qPrintable(QString::number(length)));
        QVERIFY(QRectF({0, 0}, sheet).contains(after.word));
    }

    /// The end of the program: paper of any size arrives whole, a failure is told, and no program of the
    /// print system stays behind, also one that nobody waits for.
    void finishesPrintingAtTheEnd()
    {
        PrintSystem system;
        const QByteArray out = system.path("out").toLocal8Bit();
        system.program("lp", "sleep 0.3; cat > '" + out + "'\n");
        setPrintPatience(10'000);
        const QByteArray paper = QByteArray(1'000'000, 'x') + "%%EOF\n";
        print({.pdf = paper, .title = "Bill"});
        finishPrinting();
        QCOMPARE(contents(system.path("out")), paper);
        system.program("lp", "echo $$ > '" + out + "'; exec sleep 30\n");
        setPrintPatience(300);
        prompts->expect("The printer does not answer. \"Bill\" may not have been printed.");
        print({.pdf = paper, .title = "Bill"});
        finishPrinting();
        QCOMPARE(prompts->pending(), 0);
        QTRY_VERIFY(!QFile::exists(QString("/proc/" + contents(system.path("out")).trimmed())));
        system.program("lpstat", "exec sleep 30\n");
        setPrintPatience(10'000);
        askPrinters(this, [](const QStringList&) {}); // runs on as the application ends
    }

    void printsPicturesAndSavesFilesWhole()
    {
        PrintSystem system;
        system.program("lp", "cat > '" + system.path("out").toLocal8Bit() + "'\n");
        QVERIFY(QImage(40, 30, QImage::Format_RGB32).save(system.path("cloth.png")));
        printPicture(system.path("cloth.png"), 100, 100);
        QTRY_VERIFY(contents(system.path("out")).endsWith("%%EOF\n"));
        for (const char* unfit : {"lp", ""})
            QVERIFY_THROWS_EXCEPTION(OperatorError, printPicture(system.path(unfit), 100, 100));
        for (const char* unfit : {"none/a.pdf", ""})
            QVERIFY_THROWS_EXCEPTION(OperatorError, saveFile("paper", system.path(unfit)));
    }
};

QTEST_MAIN(tst_report)
#include "tst_report.moc"
