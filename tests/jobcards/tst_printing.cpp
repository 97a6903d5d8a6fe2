#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "jobcards/JobCard.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "platform/ado/DatabaseError.h"
#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Preview.h"
#include "platform/values/Errors.h"
#include "support/Files.h"
#include "support/Pdf.h"
#include "support/ShopTest.h"

#include <QFontDatabase>
#include <QImage>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>

namespace {

/// The texts of all pages.
QStringList texts(const report::Report& paper)
{
    const report::Pages pages(paper);
    QStringList all;
    for (int page = 0; page < pages.count(); ++page)
        all << pages.texts(page);
    return all;
}

bool hasAll(const QStringList& texts, const QStringList& wanted)
{
    return std::all_of(wanted.begin(), wanted.end(),
                       [&](const QString& text) { return texts.contains(text); });
}

} // namespace

class tst_printing : public ShopTest
{
    Q_OBJECT

    /// Card 7 of 301.50 with `count` lines, of which nothing is paid.
    void storeCard(int count = 2)
    {
        JobCard card;
        for (int i = 1; i <= count; ++i)
            card.JobRows.AddNewRow(0, "Shirt", item, qint16(i), 150.5, 150.5 * i, QString("remark %1").arg(i),
                                   "Length\r\nChest", "29\r\n42", 0, {}, {}, {}, {}, {}, 0, 0, 0, {}, {}, {},
                                   {}, 0, {}, "loose");
        JobCardHead head;
        head.Number = 7;
        head.Client = "Asha Rao";
        head.Date = session.WorkingDate;
        head.TrialDate = head.Date.addDays(3);
        head.DeliveryDate = head.Date.addDays(5);
        head.Total = Currency::fromDouble(1301.5);
        card.SaveNew(head);
        line = card.JobRows.Sr(1);
    }

    void lay() override
    {
        session.ShopName = "Rangoli Tailors";
        session.ShopAddress3 = "Jaipur";
        shop->addClient("Asha Rao");
        item = shop->addItem("Shirt");
    }

    qint32 item = 0;
    qint32 line = 0;

private Q_SLOTS:
    void cardOnPaper()
    {
        storeCard(200);
        SetSetting(6, "Since 1974");
        JobCardPaper(7);
        const auto paper = JobCardPaper(7);
        QCOMPARE(
            Shop::rows(
                "Select Date, JobID, Name, DelDate, TrialDate, AmountDue, AmountPaid, Amount from tmpHead"),
            QStringList("2024-02-10 7 Asha Rao 2024-02-15 2024-02-13 1301.5 0 1301.5"));
        QCOMPARE(Shop::count("Select * from tmpBody"), 200);

        const report::Pages pages(*paper);
        const QStringList first = pages.texts(0);
        QVERIFY(pages.count() > 4);
        for (int page = 0; page < pages.count(); ++page)
            QVERIFY(pages.texts(page).contains("Particulars") || page == pages.count() - 1);
        QVERIFY(hasAll(first, {"Rangoli Tailors", "Jaipur", "Since 1974", "Date:", "10-Feb-2024",
                               "15-Feb-2024", "Trial Date:", "13-Feb-2024", "Asha Rao", "7"}));
        const QStringList all = texts(*paper);
        for (int i = 1; i <= 200; ++i)
            QCOMPARE(all.count(QString("remark %1").arg(i)), 1);
        QVERIFY(hasAll(all, {"150.50", "301.00", "Total", "Amount Received", "0.00", "For Rangoli Tailors",
                             "Auth Sig", "Staple Cloth Samples here..."}));
        QCOMPARE(all.count("1,301.50"), 2); // "Total" and "Amount Due"
        QCOMPARE(all.count("Seamwise - The Whole Shop at Hand"), 1);
    }

    /// What the client reads in the file is what stands on the paper, and the sums are the card's.
    void cardInTheFile()
    {
        for (const char* file : {"PaperSans-Regular.otf", "PaperSans-Bold.otf"})
            QVERIFY(QFontDatabase::addApplicationFont(QStringLiteral(PROGRAM_FOLDER "/fonts/") + file) >= 0);
        const QFontMetrics digits(QFont("Paper Sans", 10));
        QCOMPARE(digits.horizontalAdvance("1111"), digits.horizontalAdvance("4808"));
        storeCard();
        Shop::run("Update Jobs set AmountPaid=300");
        Shop::run("Update Jobs_Detail set Remarks='A-B (10:30) [x] @5' where QNT=1");
        const auto sums = [] {
            const auto paper = JobCardPaper(7);
            const QString text =
                readBack(report::pdf(report::Pages(*paper), paper->Title)).join(' ').simplified();
            return text;
        };
        QString text = sums();
        for (const char* printed : {"Total 1,301.50", "Amount Received 300.00", "Amount Due 1,001.50",
                                    "10-Feb-2024", "Trial Date:", "A-B (10:30) [x] @5"})
            QVERIFY2(text.contains(printed), qPrintable(printed + (" in " + text)));
        Shop::run("Update Jobs set AmountPaid=1801");
        text = sums();
        QVERIFY2(text.contains("Amount Due (499.50)"), qPrintable(text));
        QCOMPARE(JobCardPaper(7)->Subject, "Job Card 7 Asha Rao");
    }

    void logoBesideTheHeading()
    {
        storeCard();
        const auto company = [](report::Report& paper) -> report::Label& {
            return paper.section("Section6").label("lblCompany");
        };
        const auto without = JobCardPaper(7);
        QCOMPARE(company(*without).Left, 144);
        QCOMPARE(company(*without).Width, 9360);

        const QString path = shop->folder() + "/logo.png";
        SetSetting(5, path);
        QVERIFY_THROWS_EXCEPTION(OperatorError, JobCardPaper(7));
        writeFile(path, "no picture");
        QVERIFY_THROWS_EXCEPTION(OperatorError, JobCardPaper(7));
        QVERIFY(QImage(60, 20, QImage::Format_RGB32).save(path));
        const auto with = JobCardPaper(7);
        QVERIFY(company(*with).Left > 144 + with->section("Section6").image("logo").Width);
        QCOMPARE(with->section("Section6").image("logo").Picture.size(), QSize(60, 20));
    }

    void showsByPrintOnTheCard()
    {
        storeCard();
        onNextModal<frmEditJOB>([&](frmEditJOB&) {
            bool shown = false;
            onNextModal<report::Preview>(
                [&](report::Preview& preview) { shown = preview.windowTitle().contains("Print Job Card"); });
            press(Qt::Key_P, Qt::AltModifier);
            QVERIFY(shown);
            SetSetting(15, "2"); // neither preview nor printer
            press(Qt::Key_P, Qt::AltModifier);
            SetSetting(5, "/nowhere/logo.png");
            prompts->expect(
                "The logo can't be loaded: /nowhere/logo.png\nNothing has been printed. The file is "
                "chosen on the Settings screen.");
            press(Qt::Key_P, Qt::AltModifier);
        });
        frmEditJOB().ShowEdit(7);
    }

    void printsAtOnceAfterTheSaveOfANewCard()
    {
        const QString lp = writeFile(shop->folder() + "/lp",
                                     "#!/bin/sh\ncat > " + shop->folder().toLocal8Bit() + "/printed\n");
        QVERIFY(QFile::setPermissions(lp, QFile::ReadOwner | QFile::ExeOwner));
        const QByteArray path = qgetenv("PATH");
        qputenv("PATH", shop->folder().toLocal8Bit() + ":" + path);
        const auto pathBack = qScopeGuard([&] { qputenv("PATH", path); });
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
            QTRY_VERIFY(contents(shop->folder() + "/printed").contains("%%EOF"));
        });
        frmEditJOB().ShowAddNew();
    }

    void slipKeepsValuesBesideNames()
    {
        storeCard();
        Shop::run("Update Jobs_Detail set ItemDetails='" + QString("pocket ").repeated(20) + "\r\nChest'");
        const QStringList slip = texts(*WorkerSlipPaper(line));
        QVERIFY(
            hasAll(slip, {"Rangoli Tailors", "Delivery Date:", "15-Feb-2024", "Shirt", "remark 1", "loose"}));
        const auto paper = WorkerSlipPaper(line);
        const QStringList names = paper->rows().front().value("ItemDetails").toString().split("\r\n");
        const QStringList values = paper->rows().front().value("ItemDetailsValue").toString().split("\r\n");
        QVERIFY(names.size() > 2);
        Shop::run("Update Jobs_Detail set Remarks='" + QString("zip ").repeated(2000) + "'");
        const report::Pages pages(*WorkerSlipPaper(line));
        QVERIFY(pages.texts(1).contains(QString("Job # 7 / 1 · 2 of %1").arg(pages.count())));
        QCOMPARE(values.indexOf("42"), names.indexOf("Chest"));

        SetSetting(0, "Hindi");
        for (const char* hindi : {"No", "Yes"}) {
            SetSetting(12, hindi);
            QCOMPARE(WorkerSlipPaper(line)->section("Section1").field("txtItemDetails").FontFamily,
                     qstrcmp(hindi, "Yes") == 0 ? "Kruti Dev 010" : QString());
        }
    }

    void labelGoesOnToFurtherLabels()
    {
        storeCard();
        const QStringList one = texts(*LabelPaper(line));
        QVERIFY(hasAll(one, {"Rangoli Tailors", "Date :", "10-Feb-24", "7", "1", "Asha Rao", "remark 1"}));
        QVERIFY(one.filter(" of ").isEmpty());
        QString remark;
        for (int i = 0; remark.size() < 10000; ++i)
            remark += QString("w%1 ").arg(i);
        Shop::run("Update Jobs_Detail set Remarks='" + remark + "'");
        const auto paper = LabelPaper(line);
        const QString all = texts(*paper).join(' ');
        for (const QString& word : remark.split(' ', Qt::SkipEmptyParts))
            QVERIFY2(all.contains(word), qPrintable(word));
        QVERIFY(texts(*paper).contains(QString("Job # 7 / 1 · 2 of %1").arg(report::Pages(*paper).count())));
    }

    void whatIsGone()
    {
        storeCard();
        JobCardPaper(7);
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintJobCard(8));
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintWorkerSlip(99));
        QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, PrintLabel(99));
    }
};

QTEST_MAIN(tst_printing)
#include "tst_printing.moc"
