#include "jobcards/PictureBox.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "media/frmPreview.h"
#include "messaging/frmByPhone.h"
#include "platform/ado/DatabaseError.h"
#include "platform/report/Preview.h"
#include "platform/values/Errors.h"
#include "support/ShopTest.h"
#include "ui/swTextBoxMultiLine.h"

#include <QRadioButton>
#include <QScrollBar>

/// A garment on its way through the workshop.
class tst_frmEditWorkerAssign : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        m_client = shop->addClient("Asha", "0981");
        m_ravi = shop->addWorker("Ravi");
        m_item = shop->addItem("Shirt");
        m_line = shop->addJobLine(m_client, m_item);
        shop->addJob(1);
    }
    void onLine(const std::function<void(frmEditWorkerAssign&)>& act)
    {
        onNextModal<frmEditWorkerAssign>(act);
        frmEditWorkerAssign().ShowEdit(m_line);
    }
    void change(const QString& what)
    {
        Shop::run(u"Update Jobs_Detail set %1 where ID=%2"_s.arg(what).arg(m_line));
    }
    void keep()
    {
        prompts->expect("Job Assign.");
        press(Qt::Key_S, Qt::ControlModifier);
    }
    QString stored(const QString& fields) const
    {
        return Shop::rows(u"Select %1 from Jobs_Detail where ID=%2"_s.arg(fields).arg(m_line)).value(0);
    }

    qint32 m_client = 0, m_ravi = 0, m_item = 0, m_line = 0;
private Q_SLOTS:
    void assignedByKeyboard()
    {
        change("WorkerWagesDue=40.125");
        shop->addJobLine(m_client, m_item); // another line is open: no message
        onLine([this](frmEditWorkerAssign& screen) {
            typeFields({u"r"_s});
            QCOMPARE(combo(screen, "cmbWorker").text(), "Ravi");
            QCOMPARE(focused(screen), "opUcom");
            press(Qt::Key_Down);
            press(Qt::Key_Down);
            QVERIFY(checked(screen, "opAlt"));
            typeFields({"", " "});
            QCOMPARE(focused(screen), "DtCutting");
            date(screen, "DtCutting").setValue(QDate(2024, 2, 8));
            QCOMPARE(field(screen, "txtWagesDue").text(), "40.125");
            typeFields({"", "shelf 3", "x5.5", " "});
            QCOMPARE(focused(screen), "Command1");
            keep();
            QCOMPARE(label(screen, "lbldateAlt"), "10-Feb-2024");
            QVERIFY(session.RefreshLists);
            QCOMPARE(stored(u"WorkerID, WorkerName, DoneByWorker, AltDate, CuttingStatus, CuttingDate, Loc, "
                            "WorkerWagesDue, MarkAsPaid"_s),
                     u"%1 Ravi 3 2024-02-10 1 2024-02-08 shelf 3 5.5 1"_s.arg(m_ravi));

            // Without a worker the name of the last one stays; no wage is none.
            combo(screen, "cmbWorker").setText("NA");
            click(screen, "opCom");
            fillIn(screen, "txtWagesDue", QString());
            keep();
        });
        QCOMPARE(stored("WorkerID, WorkerName, DoneByWorker, CompletedDate, AltDate, WorkerWagesDue"),
                 "0 Ravi 1 2024-02-10 2024-02-10 0");
    }

    void whatIsShown()
    {
        const QString picture = shop->folder() + "/a.png";
        QVERIFY(QImage(300, 200, QImage::Format_RGB32).save(picture));
        change(u"WorkerID=%1, Score=3, DoneByWorker=2, DelToCustDate='2024-02-09', "
               "Img1='%2', Img2='%3', color=255, Remarks='%4', ItemDetails='%5', ItemDetailsValue='%5'"_s
                   .arg(m_ravi)
                   .arg(picture, shop->folder(), QString(10000, u'r'), u"Chest\r\n"_s.repeated(60)));
        onLine([&](frmEditWorkerAssign& screen) {
            QCOMPARE(control<swTextBoxMultiLine>(screen, "txtRemark").Text().size(), 10000);
            QCOMPARE(label(screen, "lblAvgScorer"), "Overall Ratting : 3");
            QCOMPARE(label(screen, "lblDateDeltoCust"), "09-Feb-2024");
            control<swTextBoxMultiLine>(screen, "txtSize").verticalScrollBar()->setValue(30);
            QCOMPARE(control<swTextBoxMultiLine>(screen, "txtCap").verticalScrollBar()->value(), 30);
            onNextModal<frmPreview>([](frmPreview&) {});
            for (const char* box : {"pic1", "pic2"}) // the second is a folder: nothing
                QTest::mouseDClick(&control<PictureBox>(screen, box), Qt::LeftButton);
            onNextModal<report::Preview>([](report::Preview&) {});
            press(Qt::Key_P, Qt::ControlModifier);
            click(screen, "lblHideShow");
        });
        onLine([](frmEditWorkerAssign& screen) {
            QVERIFY(!control<QWidget>(screen, "fWorkerDetails").isVisible());
        });
    }

    void theLastJob()
    {
        QString text;
        const auto said = [&] {
            onLine([&](frmEditWorkerAssign& screen) { text = label(screen, "lblLastJob"); });
            return text;
        };
        shop->addJobLine(m_client, m_item, 0, "Date='2024-02-10', JobID=9"); // the same day is not before
        QCOMPARE(said(), "No last record found");
        shop->addJobLine(m_client, m_item, m_ravi, "Date='2024-01-05', JobID=8");
        QCOMPARE(said(), "Last Job ID # 8\r\nDate : 05-Jan-2024\r\nJob done by : Ravi");
        shop->addJobLine(m_client, m_item, 0, "Date='2023-12-31', JobID=7");
        QCOMPARE(said(), "Last Job ID # 7\r\nDate : 31-Dec-2023\r\nNo worker information found!");
    }

    void theLastDeliveryClosesTheCard()
    {
        const auto deliver = [this](qint32 line) {
            m_line = line;
            onLine([this](frmEditWorkerAssign& screen) {
                click(screen, "opDel");
                keep();
            });
            return Shop::rows("Select JobFinished, DeliveryDate from Jobs");
        };
        const qint32 second = shop->addJobLine(m_client, m_item);
        QCOMPARE(deliver(m_line), QStringList("0 2024-02-20"));
        QCOMPARE(deliver(second), QStringList("1 2024-02-10"));
    }

    void theClientIsToldOnceAllIsCompleted()
    {
        onLine([this](frmEditWorkerAssign& screen) {
            click(screen, "Command4"); // not all is completed: nothing
            click(screen, "opCom");
            prompts->expect("Job Assign.");
            prompts->expect("Send SMS Now?", Answer::Esc);
            save();
            QVERIFY2(screen.isVisible(), "Esc leaves the question, not the screen");
            prompts->expect("Send SMS Now?", Answer::Phone);
            onNextModal<frmByPhone>([](frmByPhone& code) {
                QVERIFY(control<QPlainTextEdit>(code, "txtMessage")
                            .toPlainText()
                            .contains("has been completed."));
                press(Qt::Key_Escape);
            });
            click(screen, "Command4");
            for (const auto& [port, outcome] :
                 {std::pair("70000", "Overflow: Com port 70000 is too large. The highest possible is 32767."),
                  std::pair("usb",
                            "No such file or directory\n\nThere is no /dev/ttyS-1. Is the modem plugged in, "
                            "and is its number right (Settings, SMS)?")}) { // port 0
                SetSetting(4, port);
                prompts->expect("Send SMS Now?", Answer::Yes);
                prompts->expect(outcome);
                click(screen, "Command4");
            }
        });
        QCOMPARE(stored("DoneByWorker"), "1");
    }

    void outsideTheirRangeAndGone()
    {
        for (const int state : {4, 9, -1}) {
            change(u"DoneByWorker=%1, CuttingStatus=7"_s.arg(state));
            onLine([this](frmEditWorkerAssign& screen) {
                for (const auto* option : screen.findChildren<QRadioButton*>())
                    QVERIFY(!option->isChecked());
                keep();
            });
            QCOMPARE(stored("DoneByWorker, CuttingStatus"), u"%1 0"_s.arg(state));
        }
        for (const char* id : {"ItemID", "ClintID", "WorkerID", "ID"}) {
            change(QString(id) + "=999");
            frmEditWorkerAssign screen;
            QVERIFY_THROWS_EXCEPTION(ado::NoCurrentRecordError, screen.ShowEdit(m_line));
            QVERIFY(!screen.isLoaded());
        }
    }

    void refusals()
    {
        shop->addWorker("O'Neil"); // cannot be looked up
        const QString told =
            "The apostrophe in the name \"O'Neil\" is in the way. Please open it in Masters, type the "
            "apostrophe anew, and save it.\r\nSyntax error in the statement: ' is not closed: Select * from "
            "Accounts where Title='O'Neil'";
        onLine([&](frmEditWorkerAssign& screen) {
            const auto refused = [&](const QString& message) {
                prompts->expect(message);
                press(Qt::Key_S, Qt::ControlModifier);
            };
            prompts->expect(told); // once, not at each key
            typeText("o'n");
            QCOMPARE(combo(screen, "cmbWorker").text(), "O'Neil");
            refused(told);
            combo(screen, "cmbWorker").setText("Rav");
            QCOMPARE(label(screen, "lblAvgScorer"), "Overall Ratting : 0");
            refused("Please Select Worker Name!");
            combo(screen, "cmbWorker").setText("ravi");
            field(screen, "txtWagesDue").setText("999999999999999");
            refused("Overflow: Wages Due 999999999999999 is too large. The highest possible is "
                    "922337203685477.5807.");
            QCOMPARE(stored("WorkerID"), "0");
            Shop::run("Delete from Jobs_Detail");
            field(screen, "txtWagesDue").setText("letters");
            refused(ado::NoCurrentRecordError().text());
            QVERIFY(screen.isVisible());
        });
    }
};

QTEST_MAIN(tst_frmEditWorkerAssign)
#include "tst_frmEditWorkerAssign.moc"
