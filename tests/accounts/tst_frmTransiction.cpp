#include "accounts/frmTransiction.h"
#include "core/DE.h"
#include "core/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "support/ShopTest.h"

#include <QLabel>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>

namespace {

forms::ComboBox& combo(QWidget& form, const char* name) { return control<forms::ComboBox>(form, name); }

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
    return Shop::value(QStringLiteral("Select sum(Amount) from Postings ") + condition).toDouble();
}

const QString NewSaved = QStringLiteral("New Entry saved.");
const QString Updated = QStringLiteral("Entry Updated.");
const QString DeleteIt = QStringLiteral("Are you sure to delete entry?");
const QString DeletePayroll = QStringLiteral("You are going to delete a payroll?\r\nThis action will reset "
                                             "all jobs as unpaid?\r\nPress Yes to Delete!");

} // namespace

class tst_frmTransiction : public ShopTest
{
    Q_OBJECT
    void lay() override
    {
        asha = shop->addClient(QStringLiteral("Asha"));
        cash = Shop::value(QStringLiteral("Select id from Accounts where Title='Cash'")).toInt();
    }
    qint32 asha = 0;
    qint32 cash = 0;

private Q_SLOTS:
    void entersAVoucherByKeysAlone()
    {
        prompts->expect(NewSaved);
        prompts->expect(Updated);
        const qint16 saved = addNew(QStringLiteral("Asha"), [](frmTransiction& form) {
            QCOMPARE(form.windowTitle(), QStringLiteral("Add New Entry"));
            QCOMPARE(control<forms::DatePicker>(form, "VcDate").value(), session.WorkingDate);
            QCOMPARE(box(form, "txtVID").Text(), QStringLiteral("1"));
            QCOMPARE(combo(form, "cmbAccount").text(), QStringLiteral("Asha"));
            QVERIFY(!control<QPushButton>(form, "Command4").isVisible());
            remove(); // a new voucher has nothing to delete
            control<forms::DatePicker>(form, "VcDate").setFocus();
            press(Qt::Key_Return);
            press(Qt::Key_Return);
            typeText(QStringLiteral("r"));
            QCOMPARE(combo(form, "cmbParticulars").text(), QStringLiteral("Receipt"));
            press(Qt::Key_Return);
            QCOMPARE(labels(form), QStringLiteral("To Cr By Dr"));
            typeText(QStringLiteral("1250.5"));
            QCOMPARE(box(form, "txtAmount2").Text(), QStringLiteral("1250.50"));
            press(Qt::Key_Return);
            typeText(QStringLiteral("ca"));
            press(Qt::Key_Return);
            typeText(QStringLiteral("on account"));
            save();
            QCOMPARE(form.windowTitle(), QStringLiteral("Edit Entry"));
            save(); // a second save corrects the first
        });
        QCOMPARE(saved, qint16(-1));
        shop->reopen();
        ado::Recordset lines(DE.connection());
        lines.Open(QStringLiteral("Select * from Postings where VID=1 and vType=2 order by Sr"));
        QCOMPARE(lines.RecordCount(), 2);
        for (const int line : {1, 2}) {
            QCOMPARE(lines["Sr"].integer(), line);
            QCOMPARE(lines["accID"].integer(), line == 1 ? asha : cash);
            QCOMPARE(lines["refID"].integer(), line == 1 ? cash : asha);
            QCOMPARE(lines["Amount"].number(), line == 1 ? 1250.5 : -1250.5);
            QCOMPARE(lines["particulars"].text(), QStringLiteral("Receipt"));
            QCOMPARE(lines["Remark"].text(), QStringLiteral("on account"));
            QCOMPARE(lines["Date"].date(), session.WorkingDate);
            QCOMPARE(lines["Status"].integer() + lines["isPayroll"].integer(), 0);
            lines.MoveNext();
        }
    }

    void refusesWhatIsNotFilled()
    {
        const auto refused = [this](const char* prompt, const QString& kind, const QString& account,
                                    const QString& amount, const char* focus) {
            prompts->expect(QLatin1String(prompt));
            const qint16 saved = addNew(QStringLiteral("Asha"), [&](frmTransiction& form) {
                fill(form, kind, account, amount);
                save();
                QCOMPARE(focused(form), QLatin1String(focus));
            });
            QCOMPARE(saved, qint16(0));
        };
        const QString sales = QStringLiteral("Sales");
        const QString account = QStringLiteral("Cash");
        const QString amount = QStringLiteral("5");
        refused("Please select voucher!", {}, account, amount, "cmbParticulars");
        refused("Please select voucher!", QStringLiteral("Gift"), account, amount, "cmbParticulars");
        refused("Please Select Account!", sales, {}, amount, "cmbRefAcc");
        refused("Please enter amount!", sales, account, QStringLiteral("0.00"), "txtAmount");
        refused("Please enter amount!", sales, account, {}, "txtAmount");
        refused("Please Check accounts!", sales, QStringLiteral("asha"), amount, "Command1");
        refused("Overflow", sales, account, QStringLiteral("999999999999999"), "Command1");
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 0);
    }

    void signsByTheKindOfVoucher_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("words");
        QTest::addColumn<double>("main");
        const auto row = [](const char* typed, const char* kind, const char* words, double main) {
            QTest::newRow(kind) << QString::fromLatin1(typed) << QString::fromLatin1(kind)
                                << QString::fromLatin1(words) << main;
        };
        row("rec", "Receipt", "To Cr By Dr", 100.0);
        row("PAY", "Payment", "By Dr To Cr", -100.0);
        row("s", "Sales", "By Dr To Cr", -100.0);
        row("pu", "Purchase", "To Cr By Dr", 100.0);
        row("Wages", "Wages", "To Cr By Dr", 100.0);
    }
    void signsByTheKindOfVoucher()
    {
        QFETCH(QString, typed);
        QFETCH(QString, kind);
        QFETCH(QString, words);
        QFETCH(double, main);
        prompts->expect(NewSaved);
        addNew(QStringLiteral("Asha"), [&](frmTransiction& form) {
            fill(form, typed, QStringLiteral("cas"), QStringLiteral("100"));
            save();
            QCOMPARE(labels(form), words);
        });
        QCOMPARE(sum(QStringLiteral("where accID=%1").arg(asha)), main);
        QCOMPARE(sum(QStringLiteral("where accID=%1").arg(cash)), -main);
        prompts->expect(Updated);
        const qint16 saved = edit(1, [&](frmTransiction& form) {
            QCOMPARE(form.windowTitle(), QStringLiteral("Edit Entry"));
            QCOMPARE(combo(form, "cmbParticulars").text(), kind);
            QCOMPARE(combo(form, "cmbAccount").text(), QStringLiteral("Asha"));
            QCOMPARE(combo(form, "cmbRefAcc").text(), QStringLiteral("Cash"));
            QCOMPARE(labels(form), main > 0 ? QStringLiteral("To Cr By Cr") : QStringLiteral("By Dr To Cr"));
            QCOMPARE(box(form, "txtAmount").Text(), QStringLiteral("100.00"));
            QCOMPARE(box(form, "txtAmount2").Text(), QStringLiteral("100.00"));
            box(form, "txtAmount2").setText(QStringLiteral("7")); // only ever mirrors the amount
            QCOMPARE(box(form, "txtAmount2").Text(), QStringLiteral("100.00"));
            box(form, "txtAmount").setText(QStringLiteral("60"));
            save();
        });
        QCOMPARE(saved, qint16(-1));
        QCOMPARE(sum(QStringLiteral("where accID=%1 and sr=1").arg(asha)), main * 0.6);
        QCOMPARE(sum({}), 0.0);
    }

    void savesByTheAccountItWasOpenedWith()
    {
        prompts->expect(NewSaved);
        addNew(QStringLiteral("Gone"), [](frmTransiction& form) {
            combo(form, "cmbAccount").setText(QStringLiteral("Asha"));
            fill(form, QStringLiteral("Sales"), QStringLiteral("Cash"), QStringLiteral("9"));
            save();
        });
        QCOMPARE(sum(QStringLiteral("where accID=0 and refID=%1").arg(cash)), -9.0);
        // An opposite account deleted meanwhile: the look-up's error, and nothing written.
        prompts->expect(ado::NoCurrentRecordError().text());
        const qint16 saved = addNew(QStringLiteral("Cash"), [this](frmTransiction& form) {
            fill(form, QStringLiteral("Sales"), QStringLiteral("Asha"), QStringLiteral("9"));
            DE.connection().Execute(QStringLiteral("Delete from Accounts where id=%1").arg(asha));
            save();
        });
        QCOMPARE(saved, qint16(0));
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 2);
    }

    void deletesAVoucherButNoJobVoucher()
    {
        shop->addVoucher(1, asha, cash, 10);
        DE.connection().Execute(QStringLiteral("Update Postings set vType=1"));
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
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings where vid=1 and vtype=1")), 2);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings where vtype=2")), 2);

        qint32 next = 0;
        frmTransiction().GetNewNum(next);
        QCOMPARE(next, 3);
        prompts->expect(DeleteIt, Answer::Yes);
        edit(2, [](frmTransiction&) { remove(); });
        frmTransiction().GetNewNum(next);
        QCOMPARE(next, 1);
    }

    void deletingAPayrollLeavesItsJobsUnpaid()
    {
        const qint32 item = shop->addItem(QStringLiteral("Shirt"));
        for (int i = 0; i < 3; ++i)
            shop->addJobLine(asha, item);
        DE.connection().Execute(
            QStringLiteral("Update Jobs_Detail set MarkAsPaid=1, PayrollID=4 where id<3"));
        DE.connection().Execute(
            QStringLiteral("Update Jobs_Detail set MarkAsPaid=1, PayrollID=5 where id=3"));
        shop->addVoucher(4, asha, cash, 80);
        DE.connection().Execute(QStringLiteral("Update Postings set isPayroll=1"));
        const QString paid = QStringLiteral("Select * from Jobs_Detail where MarkAsPaid=1 and PayrollID=4");

        prompts->expect(DeleteIt, Answer::Yes);
        prompts->expect(DeletePayroll, Answer::No);
        QCOMPARE(edit(4,
                      [](frmTransiction& form) {
                          QVERIFY(control<QPushButton>(form, "Command4").isVisible());
                          remove();
                      }),
                 qint16(0));
        QCOMPARE(Shop::count(paid), 2);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 2);

        prompts->expect(Updated);
        prompts->expect(DeleteIt, Answer::Yes);
        prompts->expect(DeletePayroll, Answer::Yes);
        edit(4, [](frmTransiction& form) {
            box(form, "txtAmount").setText(QStringLiteral("70"));
            save();
            QCOMPARE(Shop::count(QStringLiteral("Select * from Postings where isPayroll=1")), 2);
            remove();
        });
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where MarkAsPaid=0 and PayrollID=0")),
                 2);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Jobs_Detail where PayrollID=5")), 1);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 0);
    }

    /// Whatever is entered, corrected and deleted: two swapped lines a voucher, and a ledger that sums to
    /// zero.
    void anyVouchersLeaveABalancedLedger()
    {
        QRandomGenerator random(20240210);
        const QStringList kinds{QStringLiteral("Payment"), QStringLiteral("Purchase"),
                                QStringLiteral("Receipt"), QStringLiteral("Sales"), QStringLiteral("Wages")};
        const QStringList titles{QStringLiteral("Purchase"), QStringLiteral("Cash"), QStringLiteral("Wages")};
        const auto write = [&](frmTransiction& form, const QString& done) {
            fill(form, kinds[random.bounded(5)], titles[random.bounded(3)],
                 QString::number(double(1 + random.bounded(10'000'000)) / 100, 'f', 2));
            prompts->expect(done);
            save();
        };
        for (int i = 0; i < 30; ++i) {
            const int vouchers = Shop::count(QStringLiteral("Select * from Postings where sr=1"));
            const int what = vouchers < 3 ? 0 : random.bounded(4);
            if (what < 2) {
                addNew(QStringLiteral("Asha"), [&](frmTransiction& form) { write(form, NewSaved); });
                continue;
            }
            const qint32 vid = Shop::value(QStringLiteral("Select vid from Postings where sr=1")).toInt();
            edit(vid, [&](frmTransiction& form) {
                if (what == 2)
                    return write(form, Updated);
                prompts->expect(DeleteIt, Answer::Yes);
                remove();
            });
        }
        QCOMPARE(sum({}), 0.0);
        const int vouchers = Shop::count(QStringLiteral("Select * from Postings where sr=1"));
        QVERIFY(vouchers > 3);
        QCOMPARE(Shop::count(QStringLiteral(
                     "Select a.id from Postings a, Postings b where a.sr=1 and b.sr=2 and a.vid=b.vid and "
                     "a.accID=b.refID and a.refID=b.accID and a.Amount=-b.Amount")),
                 vouchers);
        QCOMPARE(Shop::count(QStringLiteral("Select * from Postings")), 2 * vouchers);
    }
};

QTEST_MAIN(tst_frmTransiction)
#include "tst_frmTransiction.moc"
