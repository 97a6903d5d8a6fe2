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
#include "support/Prompts.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTemporaryDir>
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

/// A print system of the test's own: programs in the path that do what a script says.
class PrintSystem
{
public:
    PrintSystem() { qputenv("PATH", m_folder.path().toLocal8Bit() + ":" + m_before); }
    ~PrintSystem() { qputenv("PATH", m_before); }
    void program(const QString& name, const QByteArray& script)
    {
        writeFile(path(name), "#!/bin/sh\n" + script);
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }
    QString path(const QString& name) const { return m_folder.filePath(name); }
    void hideTheRest() { qputenv("PATH", m_folder.path().toLocal8Bit()); }

private:
    QTemporaryDir m_folder;
    const QByteArray m_before = qgetenv("PATH");
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

    void tellsWhatThePrintSystemRefuses()
    {
        setPrintPatience(500);
        for (const auto& [script, told] :
             {std::pair("echo '/usr/bin/lp: Error - No default destination.' >&2; exit 1",
                        " was not printed: this computer has no printer, or none of its printers is the "
                        "default one.\n\nSet up a printer in the computer's settings and make it the default "
                        "one. In the preview, \"Print\" lets you choose among the printers and \"Save as "
                        "PDF\" keeps the paper as a file."),
              std::pair("echo 'lp: jammed' >&2; exit 1", " was not printed.\n\njammed"),
              std::pair("exec yes", " was not printed.\n\nThe print system gives no reason."),
              std::pair("", " was not printed: this computer has no print system (the program \"lp\" is "
                            "missing).")}) {
            PrintSystem system;
            if (*script)
                system.program("lp", script);
            else
                system.hideTheRest();
            prompts->expect(QString("\"Bill\"") + told);
            printDirect(Bill({line("Shirt")}));
            QTRY_COMPARE(prompts->pending(), 0);
        }
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
