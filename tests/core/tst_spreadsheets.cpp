#include "accounts/frmAccountBook.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "planning/frmDDP.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/report/ListKeys.h"
#include "platform/report/ListPaper.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmClientFolder.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmSearchClient.h"
#include "registers/frmTrailDate.h"
#include "registers/frmWorkerJobRegister.h"
#include "support/ShopTest.h"
#include "support/Spreadsheet.h"

#include <QFileDialog>

/// The shop's lists as F12 saves them, read back from the file.
class tst_spreadsheets : public ShopTest
{
    Q_OBJECT

    qint32 m_client = 0;

    void lay() override
    {
        m_client = shop->addClient("Asha Rao", "09829012345");
        Shop::run("Update Accounts set DOB='1990-02-10', Address='1/2', City='=Agra' where Title='Asha Rao'");
        const qint32 worker = shop->addWorker("Ravi");
        shop->addItem("Shirt", 150, 40, "Chest\nLength");
        shop->addJobLine(m_client, 1, worker,
                         "DoneByWorker=1, CuttingStatus=0, ItemSr=2, QNT=3, Score=4, Loc='7', Remarks='12', "
                         "WorkerWagesDue=120, CompletedDate='2024-02-09', ItemDetails='Chest\nLength', "
                         "ItemDetailsValue='38\n14 1/2'");
        shop->addJob(1, m_client);
        Shop::run("Update Jobs set TrialDate='2024-02-10'");
        shop->addVoucher(1, GetAccountID("Sales"), m_client, 650);
        shop->addVoucher(2, m_client, GetAccountID("Cash"), 12.5);
        report::ListKeys::install();
        report::setListHeading([] { return report::ListHeading{"Rangoli", "10-Feb-2024"}; });
    }

    /// Presses F12 in a list and reads what was saved: cells, and what belongs to the file.
    QStringList saved(forms::ListView& list)
    {
        const QString path = shop->folder() + "/list.xlsx";
        QFile::remove(path);
        prompts->expect("The list was saved for a spreadsheet:\n\n" + path);
        onNextModal<QFileDialog>([&path](QFileDialog& dialog) {
            control<QLineEdit>(dialog, "fileNameEdit").setText(path);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        list.setFocus();
        press(Qt::Key_F12);
        return readSheet(path, QFINDTESTDATA("../support/read_sheet.py"))
            .replaceInStrings("number dd-mmm-yyyy", "day") // 45332: 10 February 2024
            .replaceInStrings("number 0.00", "amount")
            .replaceInStrings("number General", "number");
    }

    using Open = std::function<void()>;

private Q_SLOTS:
    void whatAListSaysComputes_data()
    {
        QTest::addColumn<Open>("open");
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("rows");
        const auto row = [](const char* name, const Open& open, const char* rows,
                            const char* list = "lvSummary") {
            QTest::newRow(name) << open << QByteArray(list) << QString::fromUtf8(rows);
        };
        row(
            "register", [] { frmWorkerJobRegister().showModal(); },
            "A2|day|45332  B2|text|1/2  C2|text|Asha Rao  D2|text|Shirt  E2|text|12  F2|day|45332  "
            "G2|text|Ravi  H2|text|Not Done  I2|text|Completed  J2|text|7  K2|amount|-637.5  C3|text|Total "
            "JOBS : 1|bold");
        row(
            "deliveries", [] { frmDeliveryRegister().showModal(); },
            "A2|day|45332  B2|day|45332  C2|text|0 Days  D2|text|1/2  E2|text|Asha Rao  F2|text|Shirt  "
            "G2|text|12  H2|text|Ravi  I2|text|Completed  C3|text|Total JOBS : 1|bold");
        row(
            "account book", [] { frmAccountBook().ShowAccount("Asha Rao"); },
            "A2|day|45332  B2|number|1  C2|text|Receipt  D2|text|Sales  E2|amount|650  A3|day|45332  "
            "B3|number|2  C3|text|Receipt  D3|text|Cash  F3|amount|12.5  D4|text|Current Total|bold  "
            "E4|amount|650|bold  F4|amount|12.5|bold  D5|text|Balance C/F|bold  E5|amount|637.5|bold");
        row(
            "day book", [] { frmDayBook().showModal(); },
            "A2|day|45332  B2|number|1  C2|text|Receipt  D2|text|Sales  E2|amount|650  A3|day|45332  "
            "B3|number|2  C3|text|Receipt  D3|text|Asha Rao  E3|amount|12.5  D4|text|Total Vouchers : "
            "2|bold");
        row(
            "dues", [] { frmDueRegister().showModal(); }, "A2|text|Asha Rao  B2|amount|637.5");
        row(
            "trials", [] { frmTrailDate().showModal(); },
            "A2|text|Asha Rao  B2|day|45332  C2|text|Not Appeared  D2|text|1  E2|text|09829012345");
        row(
            "birthdays", [] { frmBirthDayRimenders().showModal(); },
            "A2|text|Asha Rao  B2|day|32914  C2|text|09829012345");
        row(
            "ratings", [] { frmRatings().showModal(); },
            "A2|number|1  B2|number|1  C2|text|Ravi  D2|number|4  E2|text|4 of 5 stars");
        row(
            "cards of a folder", [] { frmClientFolder().ShowClient("Asha Rao"); },
            "A2|number|1  B2|day|45323  C2|text|1 of 1 ready  D2|amount|0  E2|amount|0", "lvCards");
        row(
            "measurements", [] { frmClientFolder().ShowClient("Asha Rao"); },
            "A2|text|Chest  B2|text|0 days  C2|text|38  A3|text|Length  B3|text|0 days  C3|text|14 1/2  "
            "A4|text|Remark  C4|text|12  A5|text|Client note",
            "lvMeasures");
        row(
            "wages", [] { frmWorkerWagesRegister().showModal(); },
            "A2|day|45332  B2|text|1 / 2  D2|text|Shirt  E2|amount|120  F2|amount|120  G2|day|45331  "
            "H2|text|Unpaid");
        row(
            "found clients",
            [] {
                qint16 all = 0;
                QString client;
                SearchClient2(all, client);
            },
            "A2|text|Asha Rao  B2|text|1/2  C2|text|=Agra  D2|text|09829012345", "lvResults");
    }
    void whatAListSaysComputes()
    {
        QFETCH(Open, open);
        QFETCH(QByteArray, list);
        QFETCH(QString, rows);
        onNextModal<forms::Screen>([&](forms::Screen& screen) {
            auto& shown = control<forms::ListView>(screen, list.constData());
            if (QTest::currentDataTag() == QByteArray("wages")) {
                combo(screen, "cmbClient").setText("Ravi");
                click(screen, "Command4");
            } else if (QTest::currentDataTag() == QByteArray("found clients")) {
                typeText("asha");
            }
            QStringList file = saved(shown);
            QStringList cells;
            while (!file.isEmpty() && !file.first().startsWith("frozen"))
                cells << file.takeFirst();
            cells.removeIf(
                [](const QString& cell) { return cell.contains(QRegularExpression("^[A-Z]1\\|")); });
            QCOMPARE(cells.join("  "), rows);
            QCOMPARE(file.first(), "frozen|1");
            QVERIFY(file.contains("title|" + screen.windowTitle()) && file.contains("Company|Rangoli"));
        });
        open();
    }
};

QTEST_MAIN(tst_spreadsheets)
#include "tst_spreadsheets.moc"
