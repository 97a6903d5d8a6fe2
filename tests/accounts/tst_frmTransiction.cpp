#include "accounts/frmTransiction.h"
#include "core/DE.h"
#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "support/ShopTest.h"

#include <QLabel>
#include <QRandomGenerator>
#include <QTest>

namespace {

/// The four words at the accounts, main account first.
QString labels(QWidget& form)
{
    QStringList words;
    for (const char* name : {"lblMain", "lblMainType", "lblRef", "lblRefType"})
        words << control<QLabel>(form, name).text();
    return words.join(QLatin1Char(' '));
}

void fill(QWidget& form, const QString& kind, const QString& account, const QString& amount)
{
    combo(form, "cmbParticulars").setText(kind);
    combo(form, "cmbRefAcc").setText(account);
    box(form, "txtAmount").setText(amount);
}

/// Both give what the screen tells of its saves: -1 something, 0 nothing.
qint16 addNew(const QString& account, std::function<void(frmTransiction&)> act)
{
    qint16 saved = 7;
    onNextModal<frmTransiction>(std::move(act));
    frmTransiction().ShowAddNew(account, saved);
    return saved;
}

qint16 edit(qint32 vid, std::function<void(frmTransiction&)> act)
{
    qint16 saved = 7;
    onNextModal<frmTransiction>(std::move(act));
    frmTransiction().ShowEdit(vid, saved);
    return saved;
}

double sum(const QString& condition)
{
    return Shop::value("Select sum(Amount) from Postings " + condition).toDouble();
}

const QString NewSaved = "New Entry saved.";
const QString Updated = "Entry Updated.";
const QString DeleteIt = "Are you sure to delete entry?";
const QString DeletePayroll = "You are going to delete a payroll?\r\nThis action will reset "
                              "all jobs as unpaid?\r\nPress Yes to Delete!";

} // namespace

class tst_frmTransiction : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        asha = shop->addClient("Asha");
        cash = Shop::value("Select id from Accounts where Title='Cash'").toInt();
    }
    qint32 asha = 0;
    qint32 cash = 0;

private Q_SLOTS:
    void entersAVoucherByKeysAlone()
    {
        prompts->expectAll({NewSaved, Updated});
        const qint16 saved = addNew("Asha", [](frmTransiction& form) {
            QCOMPARE(form.windowTitle(), "Add New Entry");
            QCOMPARE(control<forms::DatePicker>(form, "VcDate").value(), session.WorkingDate);
            QCOMPARE(box(form, "txtVID").Text(), "1");
            remove(); // a new voucher has nothing to delete
            control<forms::DatePicker>(form, "VcDate").setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Return);
            typeText("r");
            QCOMPARE(combo(form, "cmbParticulars").text(), "Receipt");
            press(Qt::Key_Return);
            typeText("1250.5");
            QCOMPARE(box(form, "txtAmount2").Text(), "1250.50");
            press(Qt::Key_Return);
            typeText("ca");
            press(Qt::Key_Return);
            typeText("on account");
            save();
            QCOMPARE(form.windowTitle(), "Edit Entry");
            save(); // a second save corrects the first
        });
        QCOMPARE(saved, qint16(-1));
        shop->reopen();
        ado::Recordset lines(DE.connection());
        lines.Open("Select * from Postings where VID=1 and vType=2 and Remark='on account' order by Sr");
        QCOMPARE(lines.RecordCount(), 2);
        for (const int line : {1, 2}) {
            QCOMPARE(lines["Sr"].integer(), line);
            QCOMPARE(lines["accID"].integer(), line == 1 ? asha : cash);
            QCOMPARE(lines["refID"].integer(), line == 1 ? cash : asha);
            QCOMPARE(lines["Amount"].number(), line == 1 ? 1250.5 : -1250.5);
            QCOMPARE(lines["Date"].date(), session.WorkingDate);
            QCOMPARE(lines["Status"].integer() + lines["isPayroll"].integer(), 0);
            lines.MoveNext();
        }
    }

    void refusesWhatIsNotFilled()
    {
        struct
        {
            const char *kind, *account, *amount, *prompt, *focus;
        } const rows[] = {
            {"", "Cash", "5", "Please select voucher!", "cmbParticulars"},
            {"Gift", "Cash", "5", "Please select voucher!", "cmbParticulars"},
            {"Sales", "", "5", "Please Select Account!", "cmbRefAcc"},
            {"Sales", "Cash", "0.00", "Please enter amount!", "txtAmount"},
            {"Sales", "Cash", "", "Please enter amount!", "txtAmount"},
            {"Sales", "asha", "5", "Please Check accounts!", "Command1"},
            {"Sales", "Cash", "999999999999999", "Overflow", "Command1"},
        };
        for (const auto& row : rows) {
            prompts->expect(row.prompt);
            const qint16 saved = addNew("Asha", [&](frmTransiction& form) {
                fill(form, row.kind, row.account, row.amount);
                save();
                QCOMPARE(focused(form), row.focus);
            });
            QCOMPARE(saved, qint16(0));
        }
        QCOMPARE(Shop::count("Select * from Postings"), 0);
    }

    void signsByTheKindOfVoucher_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("credit");
        QTest::newRow("receipt") << "rec"
                                 << "Receipt" << true;
        QTest::newRow("payment") << "PAY"
                                 << "Payment" << false;
        QTest::newRow("sales") << "s"
                               << "Sales" << false;
        QTest::newRow("purchase") << "pu"
                                  << "Purchase" << true;
        QTest::newRow("wages") << "Wages"
                               << "Wages" << true;
    }
    void signsByTheKindOfVoucher()
    {
        QFETCH(QString, typed);
        QFETCH(bool, credit);
        const double main = credit ? 100 : -100;
        prompts->expectAll({NewSaved, Updated});
        addNew("Asha", [&](frmTransiction& form) {
            fill(form, typed, "cas", "100");
            save();
            QCOMPARE(labels(form), credit ? "To Cr By Dr" : "By Dr To Cr");
        });
        QCOMPARE(sum(QString("where accID=%1").arg(asha)), main);
        const qint16 saved = edit(1, [&](frmTransiction& form) {
            QTEST(combo(form, "cmbParticulars").text(), "kind");
            QCOMPARE(combo(form, "cmbAccount").text(), "Asha");
            QCOMPARE(combo(form, "cmbRefAcc").text(), "Cash");
            QCOMPARE(labels(form), credit ? "To Cr By Cr" : "By Dr To Cr");
            QCOMPARE(box(form, "txtAmount").Text(), "100.00");
            box(form, "txtAmount2").setText("7"); // only ever mirrors the amount
            QCOMPARE(box(form, "txtAmount2").Text(), "100.00");
            box(form, "txtAmount").setText("60");
            save();
        });
        QCOMPARE(saved, qint16(-1));
        QCOMPARE(sum(QString("where accID=%1 and sr=1").arg(asha)), main * 0.6);
        QCOMPARE(sum({}), 0.0);
    }

    void anAccountDeletedMeanwhileLeavesNothingWritten()
    {
        prompts->expect(ado::NoCurrentRecordError().text());
        addNew("Cash", [this](frmTransiction& form) {
            fill(form, "Sales", "Asha", "9");
            DE.connection().Execute(QString("Delete from Accounts where id=%1").arg(asha));
            save();
        });
        QCOMPARE(Shop::count("Select * from Postings"), 0);
    }

    void deletesAVoucherButNoJobVoucher()
    {
        shop->addVoucher(1, asha, cash, 10);
        DE.connection().Execute("Update Postings set vType=1");
        shop->addVoucher(1, asha, cash, 20);
        shop->addVoucher(2, asha, cash, 30);
        prompts->expect(DeleteIt, Answer::No);
        prompts->expect(DeleteIt, Answer::Yes);
        const qint16 saved = edit(1, [](frmTransiction& form) {
            remove();
            QVERIFY(form.isVisible());
            remove();
            QVERIFY(!form.isVisible());
        });
        QCOMPARE(saved, qint16(-1));
        QCOMPARE(Shop::count("Select * from Postings where vid=1 and vtype=1"), 2);
        QCOMPARE(Shop::count("Select * from Postings where vtype=2"), 2);
        qint32 next = 0;
        frmTransiction().GetNewNum(next);
        QCOMPARE(next, 3);
    }

    void deletingAPayrollLeavesItsJobsUnpaid()
    {
        const qint32 item = shop->addItem("Shirt");
        for (int i = 0; i < 3; ++i)
            shop->addJobLine(asha, item);
        DE.connection().Execute("Update Jobs_Detail set MarkAsPaid=1, PayrollID=3");
        DE.connection().Execute("Update Jobs_Detail set PayrollID=4 where id=3");
        shop->addVoucher(3, asha, cash, 80);
        DE.connection().Execute("Update Postings set isPayroll=1");
        const auto removeAfter = [this](Answer answer) {
            prompts->expect(DeleteIt, Answer::Yes);
            prompts->expect(DeletePayroll, answer);
            remove();
        };
        edit(3, [&](frmTransiction& form) {
            removeAfter(Answer::No);
            prompts->expect(Updated);
            box(form, "txtAmount").setText("70");
            save();
            QCOMPARE(Shop::count("Select * from Postings where isPayroll=1"), 2);
            QCOMPARE(Shop::count("Select * from Jobs_Detail where MarkAsPaid=1 and PayrollID=3"), 2);
            removeAfter(Answer::Yes);
        });
        QCOMPARE(Shop::count("Select * from Jobs_Detail where MarkAsPaid=0 and PayrollID=0"), 2);
        QCOMPARE(Shop::count("Select * from Jobs_Detail where MarkAsPaid=1 and PayrollID=4"), 1);
        QCOMPARE(Shop::count("Select * from Postings"), 0);
    }

    /// Whatever is entered, corrected and deleted: two swapped lines a voucher, and a ledger that sums to
    /// zero.
    void anyVouchersLeaveABalancedLedger()
    {
        QRandomGenerator random(20240210);
        const QStringList kinds{"Payment", "Purchase", "Receipt", "Sales", "Wages"};
        const QStringList titles{"Purchase", "Cash", "Wages"};
        const auto write = [&](frmTransiction& form, const QString& done) {
            fill(form, kinds[random.bounded(5)], titles[random.bounded(3)],
                 QString::number(double(1 + random.bounded(10'000'000)) / 100, 'f', 2));
            prompts->expect(done);
            save();
        };
        for (int i = 0; i < 30; ++i) {
            const int vouchers = Shop::count("Select * from Postings where sr=1");
            const int what = vouchers < 3 ? 0 : random.bounded(4);
            if (what < 2) {
                addNew("Asha", [&](frmTransiction& form) { write(form, NewSaved); });
                continue;
            }
            const qint32 vid = Shop::value("Select vid from Postings where sr=1").toInt();
            edit(vid, [&](frmTransiction& form) {
                if (what == 2)
                    return write(form, Updated);
                prompts->expect(DeleteIt, Answer::Yes);
                remove();
            });
        }
        QCOMPARE(sum({}), 0.0);
        const int vouchers = Shop::count("Select * from Postings where sr=1");
        QVERIFY(vouchers > 3);
        QCOMPARE(
            Shop::count("Select a.id from Postings a, Postings b where a.sr=1 and b.sr=2 and a.vid=b.vid and "
                        "a.accID=b.refID and a.refID=b.accID and a.Amount=-b.Amount"),
            vouchers);
        QCOMPARE(Shop::count("Select * from Postings"), 2 * vouchers);
    }
};

QTEST_MAIN(tst_frmTransiction)
#include "tst_frmTransiction.moc"
