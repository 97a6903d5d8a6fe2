#include "accounts/BookLines.h"
#include "accounts/Wages.h"
#include "accounts/rptAccountsBooks.h"
#include "accounts/rptReceipt.h"
#include "accounts/rptWagesRegister.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "platform/ado/DatabaseError.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/Theme.h"
#include "platform/report/ListPaper.h"
#include "platform/report/Preview.h"
#include "platform/report/PrintDialog.h"
#include "platform/report/Printing.h"
#include "platform/values/Errors.h"
#include "support/Pdf.h"
#include "support/PrintSystem.h"
#include "support/ShopTest.h"
#include "ui/PaperPrinters.h"

#include <QComboBox>
#include <QFontDatabase>
#include <QPainter>
#include <QScopeGuard>

#include <algorithm>

/// The texts of all pages.
static QStringList texts(const report::Report& paper)
{
    const report::Pages pages(paper);
    QStringList all;
    for (int page = 0; page < pages.count(); ++page)
        all << pages.texts(page);
    return all;
}

static bool hasAll(const QStringList& texts, const QStringList& wanted)
{
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString& text) { return texts.contains(text); });
}

class tst_printing : public ShopTest
{
    Q_OBJECT

    /// Card 7 of 1,301.50 with `count` lines, of which nothing is paid.
    void storeCard(int count = 2)
    {
        JobCard card;
        for (int i = 1; i <= count; ++i) {
            Shop::order(card.JobRows, "Shirt", 150.5 * i, i);
            card.JobRows.SetRemarks(i, QString("remark %1").arg(i));
        }
        card.SaveNew(Shop::head(7, "Asha Rao", 1301.5));
        line = card.JobRows.Sr(1);
    }

    void lay() override
    {
        session.ShopName = "Rangoli Tailors";
        session.ShopAddress3 = "Jaipur";
        shop->addClient("Asha Rao");
        shop->addItem("Shirt");
    }

    qint32 line = 0;

private Q_SLOTS:
    /// As its file is read: heads on each page, every line once, the sums of the card.
    void cardOnPaper()
    {
        for (const char* file : {"PaperSans-Regular.otf", "PaperSans-Bold.otf"})
            QVERIFY(QFontDatabase::addApplicationFont(QStringLiteral(PROGRAM_FOLDER "/fonts/") + file) >= 0);
        storeCard(200);
        SetSetting(6, "Since 1974");
        Shop::run("Update Jobs_Detail set Remarks='A-B (10:30) [x] @5' where QNT=1");
        JobCardPaper(7);
        const QStringList pages = readBack(*JobCardPaper(7)); // staged anew
        QCOMPARE(Shop::count("Select * from tmpHead") + Shop::count("Select * from tmpBody"), 201);
        QVERIFY(pages.size() > 4);
        for (int page = 0; page < pages.size() - 1; ++page)
            QVERIFY(pages[page].contains("Particulars"));
        for (const char* head : {"Rangoli Tailors", "Jaipur", "Since 1974", "10-Feb-2024", "17-Feb-2024",
                                 "Trial Date: 13-Feb-2024", "Asha Rao", "A-B (10:30) [x] @5 150.50 150.50",
                                 "remark 2 150.50 301.00"})
            QVERIFY2(pages[0].contains(head), qPrintable(head + (" in " + pages[0])));
        const QString all = pages.join(u' ');
        for (int i = 2; i <= 200; ++i)
            QCOMPARE(all.count(QString("remark %1 ").arg(i)), 1);
        for (const auto& [paid, sums] :
             {std::pair("300",
                        QStringList{"Total 1,301.50", "Amount Received 300.00", "Amount Due 1,001.50"}),
              std::pair("1801", QStringList{"Amount Due (499.50)"})}) {
            Shop::run(QString("Update Jobs set AmountPaid=") + paid);
            const QString foot = readBack(*JobCardPaper(7)).join(u' ');
            for (const QString& sum : sums)
                QVERIFY2(foot.contains(sum), qPrintable(sum + " in " + foot));
        }
    }

    /// The card asks for what is due on it, and for nothing where nothing is.
    /// To the point, whichever look and text size the screens have.
    void papersKeepTheirFace()
    {
        storeCard();
        const qint32 client = GetAccountID("Asha Rao");
        shop->addVoucher(1, client, GetAccountID("Cash"), 300);
        const qint32 receipt =
            Shop::value(QString("Select max(ID) from Postings where AccID=%1").arg(client)).toInt();
        const forms::ListSheet list{"Register", {"From: 10-Feb-2024"}, {{"Line"}}, {{{"7/1"}, {true}}}};
        const auto printed = [&] {
            QList<QImage> pages;
            std::unique_ptr<report::Report> papers[] = {
                JobCardPaper(7),
                WorkerSlipPaper(line),
                LabelPaper(line),
                ReceiptPaper(receipt),
                StatementPaper({client, session.WorkingDate, session.WorkingDate}, "Asha Rao", "Today", true),
                wagesPaper({{.date = session.WorkingDate,
                             .job = "7 / 1",
                             .client = {},
                             .item = {},
                             .wage = {},
                             .balance = {},
                             .completed = {}}},
                           "Ravi"),
                report::listPaper(list)};
            for (const auto& paper : papers) {
                const report::Pages laid(*paper);
                QImage page((laid.size() / 15).toSize(), QImage::Format_RGB32);
                page.fill(Qt::white);
                QPainter painter(&page);
                painter.scale(1 / 15.0, 1 / 15.0);
                laid.paint(painter, 0);
                pages << page;
            }
            return pages;
        };
        const QList<QImage> before = printed();
        forms::setAppearance({palette::Look::Dark, 160});
        const QList<QImage> after = printed();
        forms::setAppearance({});
        qApp->setStyleSheet({});
        QCOMPARE(after, before);
    }

    void cardIsPaidByPhone()
    {
        storeCard();
        const QString page = shop->folder() + "/page.png";
        QCOMPARE(scanned(*JobCardPaper(7), page), "");
        SetSetting(42, "upi://pay?pa=rangoli@bank&pn=O'Neil \"Fine\" Tailors&am=1");
        QCOMPARE(scanned(*JobCardPaper(7), page),
                 "upi://pay?pa=rangoli@bank&pn=O'Neil%20%22Fine%22%20Tailors&am=1301.50&cu=INR");
        Shop::run("Update Jobs set Status=1"); // cancelled
        QCOMPARE(scanned(*JobCardPaper(7), page), "");
        Shop::run("Update Jobs set Status=0, AmountPaid=1301.5");
        QCOMPARE(scanned(*JobCardPaper(7), page), "");
    }

    void logoBesideTheHeading()
    {
        storeCard();
        const QString path = shop->folder() + "/logo.png";
        SetSetting(5, path);
        QVERIFY_THROWS_EXCEPTION(OperatorError, JobCardPaper(7));
        writeFile(path, "no picture");
        QVERIFY_THROWS_EXCEPTION(OperatorError, JobCardPaper(7));
        QVERIFY(QImage(60, 20, QImage::Format_RGB32).save(path));
        const auto with = JobCardPaper(7);
        report::Section& head = with->section("Section6");
        QVERIFY(head.label("lblCompany").Left > 144 + head.image("logo").Width);
        QCOMPARE(head.image("logo").Picture.size(), QSize(60, 20));
    }

    void showsByPrintOnTheCard()
    {
        storeCard();
        onNextModal<frmEditJOB>([&](frmEditJOB&) {
            onNextModal<report::Preview>([&](report::Preview&) {});
            press(Qt::Key_P, Qt::AltModifier);
            SetSetting(15, "2"); // neither preview nor printer
            press(Qt::Key_P, Qt::AltModifier);
            SetSetting(5, "/nowhere/logo.png");
            prompts->expect(
                "The logo can't be loaded: /nowhere/logo.png\nNothing has been printed. The file is "
                "chosen on the Settings screen.");
            press(Qt::Key_P, Qt::AltModifier);
        });
        frmEditJOB().ShowEdit(7);
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintJobCard(8));
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintWorkerSlip(99));
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintLabel(99));
    }

    void printsAtOnceAfterTheSaveOfANewCard()
    {
        PrintSystem system;
        system.program("lp", "cat > '" + system.path("printed").toLocal8Bit() + "'\n");
        SetSetting(14, "1");
        SetSetting(15, "0");
        onNextModal<frmEditJOB>([&](frmEditJOB& job) {
            combo(job, "cmbClient").setText("Asha Rao");
            press(Qt::Key_P, Qt::AltModifier); // nothing to print yet
            onNextModal<frmAddItem>([](frmAddItem& added) {
                combo(added, "cmbItems").setText("Shirt");
                field(added, "txtFees").setText("150");
                field(added, "txtQnt").setText("1");
                click(added, "Command1");
            });
            click(job, "Command4");
            prompts->expect("New Job Created.");
            save();
            QTRY_VERIFY(contents(system.path("printed")).contains("%%EOF"));
        });
        frmEditJOB().ShowAddNew();
    }

    /// Each kind of paper has its own printer and sheet in the settings; all else goes where lists go.
    void eachPaperHasItsPrinter()
    {
        rememberPrinters();
        const auto forget = qScopeGuard([] { report::setPrinterMemory({}); });
        PrintSystem system;
        system.program("lpstat", "echo Office; echo Zebra\n");
        system.program("lpoptions", "echo 'PageSize/Media Size: *Letter A4 A5 w283h170'\n");
        const QString how = system.path("how");
        system.program("lp", "echo \"$@\" >> '" + how.toLocal8Bit() + "'\n");
        storeCard();
        SetSetting(15, "0");
        SetSetting(44, "Lists Letter");
        SetSetting(45, "Office A4");
        SetSetting(46, "Office A5");
        PrintJobCard(7);
        report::printDirect(*WorkerSlipPaper(line));
        report::printDirect(report::Report("Sheet"));
        report::finishPrinting();
        for (const char* sent : {"Card -n 1 -d Office -o media=A4 ", "Order -n 1 -d Office -o media=A5 ",
                                 "Sheet -n 1 -d Lists -o media=Letter -o print-scaling=fit"})
            QVERIFY2(contents(how).contains(sent), contents(how));
        onNextModal<report::Preview>([&](report::Preview&) {
            onNextModal<report::PrintDialog>([&](report::PrintDialog& box) {
                QTRY_COMPARE(control<QComboBox>(box, "cmbPrinter").count(), 3);
                control<QComboBox>(box, "cmbPrinter").setCurrentIndex(2);
                QTRY_COMPARE(control<QComboBox>(box, "cmbMedium").count(), 4);
                control<QComboBox>(box, "cmbMedium").setCurrentIndex(3);
                press(Qt::Key_Return);
            });
            press(Qt::Key_P, Qt::ControlModifier);
        });
        PrintLabel(line);
        report::finishPrinting();
        QCOMPARE(GetSetting(47, "none"), "Zebra w283h170");
        QCOMPARE(GetSetting(45, "none"), "Office A4");
        session.LookedAt = "copy";
        const auto back = qScopeGuard([] { session.LookedAt.clear(); });
        report::keepPrinter(3, {});
        QCOMPARE(GetSetting(47, "none"), "Zebra w283h170");
    }

    void slipKeepsValuesBesideNames()
    {
        storeCard();
        Shop::run("Update Jobs_Detail set ItemDetails='" + QString("pocket ").repeated(20) + "\r\nChest'");
        const auto paper = WorkerSlipPaper(line);
        QVERIFY(hasAll(texts(*paper), {"Rangoli Tailors", "17-Feb-2024", "Shirt", "remark 1", "note"}));
        const QStringList names = paper->rows().front().value("ItemDetails").toString().split("\r\n");
        const QStringList values = paper->rows().front().value("ItemDetailsValue").toString().split("\r\n");
        QVERIFY(names.size() > 2);
        QCOMPARE(values.indexOf("40"), names.indexOf("Chest"));
        Shop::run("Update Jobs_Detail set Remarks='" + QString(10'000, 'x') + "'"); // in no place to break
        const QStringList unbroken = texts(*WorkerSlipPaper(line));
        QCOMPARE(unbroken.join(u' ').count('x'), 10'000);
        QVERIFY(!unbroken.filter("Job # 7 / 1 · 2 of ").isEmpty());
        SetSetting(0, "Hindi");
        for (const QString hindi : {"No", "Yes"}) {
            SetSetting(12, hindi);
            QCOMPARE(texts(*WorkerSlipPaper(line)).contains(u"शर्ट"), hindi == "Yes");
        }
    }

    void barsOfTheLine()
    {
        storeCard();
        for (const auto& [job, item] :
             {std::pair("7", "1"), std::pair("1436", "2"), std::pair("2147483646", "32767")}) {
            Shop::run(u"Update Jobs_Detail set JobID=%1, ItemSr=%2 where Id=%3"_s.arg(job, item).arg(line));
            for (const auto& paper : {LabelPaper(line), WorkerSlipPaper(line)})
                QCOMPARE(scanned(*paper, shop->folder() + "/page.png"), u"%1/%2"_s.arg(job, item));
        }
    }

    void labelGoesOnToFurtherLabels()
    {
        storeCard();
        const QStringList one = texts(*LabelPaper(line));
        QVERIFY(hasAll(one, {"Rangoli Tailors", "10-Feb-24", "7", "1", "Asha Rao", "remark 1"}));
        QVERIFY(one.filter(" of ").isEmpty());
        Shop::run("Update Jobs_Detail set Remarks='" + QString("zip ").repeated(2000) + "'");
        const QStringList all = texts(*LabelPaper(line));
        QCOMPARE(all.join(u' ').count("zip"), 2000);
        QVERIFY(!all.filter("Job # 7 / 1 · 2 of ").isEmpty());
    }
};

QTEST_MAIN(tst_printing)
#include "tst_printing.moc"
