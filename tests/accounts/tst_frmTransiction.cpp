#include "accounts/frmTransiction.h"
#include "support/ShopTest.h"

static void fill(QWidget& form, const QString& kind, const QString& account, const QString& amount)
{
    combo(form, "cmbParticulars").setText(kind);
    combo(form, "cmbRefAcc").setText(account);
    box(form, "txtAmount").setText(amount);
}

/// Both give what the screen tells of its saves: -1 something, 0 nothing.
static qint16 addNew(const QString& account, std::function<void(frmTransiction&)> act)
{
    qint16 saved = 7;
    onNextModal<frmTransiction>(std::move(act));
    frmTransiction().ShowAddNew(account, saved);
    return saved;
}

static qint16 edit(qint32 vid, std::function<void(frmTransiction&)> act)
{
    qint16 saved = 7;
    onNextModal<frmTransiction>(std::move(act));
    frmTransiction().ShowEdit(vid, saved);
    return saved;
}

const QString NewSaved = "New Entry saved.";
const QString Updated = "Entry Updated.";
const QString DeleteIt = "Are you sure to delete entry?";
const QString DeletePayroll = "You are going to delete a payroll?\r\nThis action will reset "
                              "all jobs as unpaid?\r\nPress Yes to Delete!";

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
        shop->addVoucher(40, asha, cash, 80);
        Shop::run("Update Postings set vType=1"); // a job card's: its number is of another series
        prompts->expectAll({NewSaved, Updated});
        const qint16 saved = addNew("Asha", [](frmTransiction& form) {
            QCOMPARE(date(form, "VcDate").value(), session.WorkingDate);
            QCOMPARE(box(form, "txtVID").Text(), "1");
            remove(); // a new voucher has nothing to delete
            date(form, "VcDate").setFocus();
            typeFields({{}, {}, "r"});
            QCOMPARE(combo(form, "cmbParticulars").text(), "Receipt");
            typeText("1250.5");
            QCOMPARE(box(form, "txtAmount2").Text(), "1250.50");
            typeFields({{}, "ca"});
            typeText("on account");
            save();
            QCOMPARE(form.windowTitle(), "Edit Entry");
            save(); // a second save corrects the first
        });
        QCOMPARE(saved, qint16(-1));
        shop->reopen();
        QCOMPARE(
            Shop::rows("Select Sr, accID, refID, Amount, Date, Status, isPayroll, Remark from Postings where "
                       "VID=1 and vType=2 order by Sr"),
            QStringList({QString("1 %1 %2 1250.5 2024-02-10 0 0 on account").arg(asha).arg(cash),
                         QString("2 %2 %1 -1250.5 2024-02-10 0 0 on account").arg(asha).arg(cash)}));
    }

    void refusesWhatIsNotFilled()
    {
        const std::tuple<const char*, const char*, const char*, const char*, const char*> refusals[] = {
            {"", "Cash", "5", "Please select voucher!", "cmbParticulars"},
            {"Sales", "", "5", "Please Select Account!", "cmbRefAcc"},
            {"Sales", "Cash", "0.00", "Please enter amount!", "txtAmount"},
            {"Sales", "asha", "5", "Please Check accounts!", "Command1"},
            {"Sales", "Cash", "999999999999999",
             "Overflow: Amount 999999999999999 is too large. The highest possible is 922337203685477.5807.",
             "Command1"},
        };
        const qint16 saved = addNew("Asha", [&](frmTransiction& form) {
            for (const auto& [kind, account, amount, prompt, focus] : refusals) {
                prompts->expect(prompt);
                fill(form, kind, account, amount);
                save();
                QCOMPARE(focused(form), focus);
            }
            for (const char* number : {"", "2147483647"}) { // the next could not follow
                box(form, "txtVID").setText(number);
                prompts->expect(
                    "The Voucher # must be a number from 1 to 2147483646, in digits alone. Nothing "
                    "has been saved.");
                fill(form, "Sales", "Cash", "9");
                save();
                QCOMPARE(focused(form), "txtVID");
            }
            box(form, "txtVID").setText("1");
            prompts->expect(ado::NoCurrentRecordError().text()); // of an account that was deleted meanwhile
            fill(form, "Sales", "Cash", "9");
            Shop::run("Delete from Accounts where Title='Cash'");
            save();
        });
        QCOMPARE(saved, qint16(0));
        QCOMPARE(Shop::count("Select * from Postings"), 0);
    }

    void signsByTheKindOfVoucher()
    {
        for (const auto& [typed, kind, credit] :
             {std::tuple("rec", "Receipt", true), std::tuple("PAY", "Payment", false),
              std::tuple("s", "Sales", false), std::tuple("pu", "Purchase", true),
              std::tuple("Wages", "Wages", true)}) {
            Shop::run("Delete from Postings");
            const auto stored = [&, credit = credit](int amount) {
                QCOMPARE(Shop::rows("Select accID, Amount from Postings order by sr"),
                         QStringList({u"%1 %2"_s.arg(asha).arg(credit ? amount : -amount),
                                      u"%1 %2"_s.arg(cash).arg(credit ? -amount : amount)}));
            };
            prompts->expectAll({NewSaved, Updated});
            addNew("Asha", [&, typed = typed, credit = credit](frmTransiction& form) {
                fill(form, typed, "cas", "100");
                save();
                QCOMPARE(label(form, "lblMain") + label(form, "lblRef"), credit ? "ToBy" : "ByTo");
            });
            stored(100);
            edit(1, [&, kind = kind, credit = credit](frmTransiction& form) {
                QCOMPARE(combo(form, "cmbParticulars").text(), kind);
                QCOMPARE(combo(form, "cmbAccount").text() + combo(form, "cmbRefAcc").text(), "AshaCash");
                box(form, "txtAmount2").setText("7"); // only ever mirrors the amount
                QCOMPARE(box(form, "txtAmount").Text() + box(form, "txtAmount2").Text(), "100.00100.00");
                box(form, "txtAmount").setText("60");
                save();
            });
            stored(60);
        }
    }

    void aNumberThatIsTaken()
    {
        const qint32 bela = shop->addClient("Bela");
        prompts->expect(NewSaved);
        addNew("Asha", [](frmTransiction& form) {
            fill(form, "Receipt", "Cash", "100");
            save();
        });
        const QString question = "Voucher 1 is there already: a Receipt of 100.00. Use the next free number "
                                 "2?\n\nNo saves this one as another voucher of number 1.";
        const auto amounts = [](qint32 account) {
            return Shop::rows(u"Select Amount from Postings where accID=%1"_s.arg(account)).join(' ');
        };
        addNew("Bela", [&](frmTransiction& form) {
            box(form, "txtVID").setText("1");
            fill(form, "Receipt", "Cash", "70");
            prompts->expect(question, Answer::Esc);
            save();
            QCOMPARE(focused(form), "txtVID");
            QCOMPARE(amounts(bela), "");
            prompts->expect(question, Answer::No);
            prompts->expectAll({NewSaved, Updated});
            save();
            box(form, "txtAmount").setText("75");
            save(); // changes its own rows
        });
        QCOMPARE(amounts(asha) + "; " + amounts(bela) + "; " + amounts(cash), "100; 75; -100 -75");
        const qint32 belas = Shop::value(u"Select ID from Postings where accID=%1"_s.arg(bela)).toInt();
        onNextModal<frmTransiction>([this](frmTransiction& form) {
            QCOMPARE(combo(form, "cmbAccount").text(), "Bela");
            prompts->expect(DeleteIt, Answer::Yes);
            remove();
        });
        qint16 saved = 0;
        frmTransiction().ShowEdit(1, saved, belas);
        QCOMPARE(amounts(asha) + "; " + amounts(bela), "100; ");
        addNew("Bela", [&](frmTransiction& form) {
            box(form, "txtVID").setText("1");
            fill(form, "Receipt", "Cash", "70");
            prompts->expect(question, Answer::Yes);
            prompts->expect(NewSaved);
            save();
            QCOMPARE(form.number(), 2);
        });
        QCOMPARE(Shop::value(u"Select VID from Postings where accID=%1"_s.arg(bela)).toInt(), 2);
    }

    void deletesVouchersButNoneOfJobs()
    {
        const qint32 item = shop->addItem("Shirt");
        for (const char* payroll : {"1", "2"})
            shop->addJobLine(asha, item, 0, QString("MarkAsPaid=1, PayrollID=") + payroll);
        for (const int number : {1, 1, 2})
            shop->addVoucher(number, asha, cash, 80);
        Shop::run("Update Postings set vType=1 where id<3"); // a job card's, of the same number
        Shop::run("Update Postings set isPayroll=1 where id in (3, 4)");
        const qint16 saved = edit(1, [this](frmTransiction& form) {
            for (const Answer answer : {Answer::No, Answer::Yes}) {
                prompts->expect(DeleteIt, Answer::Yes);
                prompts->expect(DeletePayroll, answer);
                remove();
                QCOMPARE(form.isVisible(), answer == Answer::No);
                QCOMPARE(Shop::rows("Select MarkAsPaid, PayrollID from Jobs_Detail"),
                         QStringList({answer == Answer::No ? "1 1" : "0 0", "1 2"}));
            }
        });
        QCOMPARE(saved, qint16(-1));
        QCOMPARE(Shop::rows("Select vid, vtype from Postings"), QStringList({"1 1", "1 1", "2 2", "2 2"}));
    }
};

QTEST_MAIN(tst_frmTransiction)
#include "tst_frmTransiction.moc"
