// Renders every screen, filled with believable data, to PNG: `pictures <folder> <program folder> [text size]
// [look]`.
#include "accounts/frmAccountBook.h"
#include "accounts/frmAccountsList.h"
#include "accounts/frmDayBook.h"
#include "accounts/frmEditAccount.h"
#include "accounts/frmPayrollDetails.h"
#include "accounts/frmTransiction.h"
#include "accounts/frmWorkerWagesRegister.h"
#include "accounts/rptAccountsBooks.h"
#include "accounts/rptReceipt.h"
#include "accounts/rptWagesRegister.h"
#include "core/shell/Look.h"
#include "core/shell/frmAbout.h"
#include "core/shell/frmCheckShop.h"
#include "core/shell/frmDifferences.h"
#include "core/shell/frmGlance.h"
#include "core/shell/frmLogin.h"
#include "core/shell/frmMain.h"
#include "core/shell/frmMasters.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmNewBooks.h"
#include "core/shell/frmSettings.h"
#include "core/shell/frmShopINFO.h"
#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/ShopChecks.h"
#include "core/store/Texts.h"
#include "jobcards/JobCard.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmClothColor.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "masters/frmEditItem.h"
#include "masters/frmEditWorker.h"
#include "masters/frmItems.h"
#include "masters/frmWorkers.h"
#include "media/frmCam.h"
#include "media/frmHandNote.h"
#include "media/frmPreview.h"
#include "messaging/frmByPhone.h"
#include "planning/frmDDP.h"
#include "planning/frmFeedBack.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/devices/TestCameras.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Theme.h"
#include "platform/report/ListPaper.h"
#include "platform/report/Preview.h"
#include "platform/report/PrintDialog.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmClientFolder.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmSearchClient.h"
#include "registers/frmTrailDate.h"
#include "registers/frmWorkerJobRegister.h"
#include "sample/SampleShop.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmSelectDate.h"
#include "ui/frmSelectFile.h"
#include "ui/swTextBox.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

using Prepare = std::function<void(forms::Screen&)>;

QDir folder;

/// The shop of the pictures is the demo shop on its last day, always the same.
const QDate day(2024, 2, 10);

/// The first value of a query.
QVariant value(const QString& sql)
{
    ado::Recordset rows(DE.connection());
    rows.Open(sql);
    return rows[0].value();
}

/// The card that shows best: with several lines, remarks, a picture, and money still to come.
qint32 showpiece()
{
    return value(u"Select JobID, 2*sum(Remarks<>'')+count(*) as shows from Jobs_Detail, Jobs where "
                 "Jobs.id=JobID and AmountPaid>0 and AmountPaid<AmountDue group by JobID "
                 "having sum(Img1<>'')>0 and count(*)<6 order by shows desc"_s)
        .toInt();
}

QString client() { return value(u"Select ClintName from Jobs where id=%1"_s.arg(showpiece())).toString(); }

QString worker() { return value(u"Select Title from Accounts where Type=1"_s).toString(); }

/// The lines that are due in these days are in every state.
void showDueLines(forms::Screen& screen)
{
    screen.findChild<QRadioButton*>(u"opDt2"_s)->setChecked(true);
    screen.findChild<forms::DatePicker*>(u"DateFrom"_s)->setValue(session.WorkingDate.addDays(-2));
    screen.findChild<QPushButton*>(u"Command4"_s)->click();
    screen.findChild<forms::ListView*>(u"lvSummary"_s)->selectRow(2);
}

/// The account that shows best over the last half year: with most vouchers of the books.
QString busyAccount(AccountType type)
{
    return value(u"Select Title from Accounts, Postings where accID=Accounts.ID and Type=%1 and vType=2 and "
                 "Date>'2023-08-10' group by Title order by count(*) desc"_s.arg(int(type)))
        .toString();
}

/// The last half year of an account's book, or the last days of the day book.
void showDays(forms::Screen& screen, int days)
{
    screen.findChild<forms::DatePicker*>(u"DateFrom"_s)->setValue(session.WorkingDate.addDays(-days));
    screen.findChild<QPushButton*>(u"Command4"_s)->click();
    screen.findChild<forms::ListView*>(u"lvSummary"_s)->selectRow(2);
}

/// The largest payroll, and whom it pays.
qint32 payrollShown()
{
    return value(u"Select VID from Postings where isPayroll=1 and sr=1 order by Amount desc"_s).toInt();
}
QString payrollWorker()
{
    return value(u"Select Title from Accounts, Postings where Accounts.ID=accID and sr=1 and vType=2 and "
                 "VID=%1"_s.arg(payrollShown()))
        .toString();
}

/// A month of that worker, paid and unpaid.
void showWages(forms::Screen& screen)
{
    screen.findChild<forms::ComboBox*>(u"cmbClient"_s)->setText(payrollWorker());
    showDays(screen, 30);
}

std::unique_ptr<report::Report> statement(bool withRemark)
{
    const QDate from = session.WorkingDate.addDays(-180);
    const QString account = busyAccount(AccountType::Client);
    return StatementPaper(AccountBook(GetAccountID(account), from, session.WorkingDate), account,
                          dateText(from) + u" To "_s + dateText(session.WorkingDate), withRemark);
}

/// Takes some money of a client who owes, and gives the receipt's posting.
qint32 newReceipt()
{
    const qint32 job = value(u"Select max(JobID) from Jobs_Detail"_s).toInt();
    const qint32 account = value(u"Select ClintID from Jobs where id=%1"_s.arg(job)).toInt();
    PairRows rows;
    DE.connection().writeBatch([&] {
        rows = Voucher(VoucherType::Entry, Voucher::NextEntryNumber())
                   .AddPair({.particulars = u"Receipt"_s,
                             .date = session.WorkingDate,
                             .account = account,
                             .opposite = GetAccountID(u"Cash"_s),
                             .amount = Currency::fromDouble(350),
                             .remark = u"Job Card # %1"_s.arg(job)});
    });
    return rows.first;
}

/// Calls `open`, which shows a screen modally; takes the picture of the screen in front, and closes it.
void picture(const char* name, const std::function<void()>& open, const Prepare& prepare = {})
{
    constexpr int settle = 250; // ms: fonts laid out, activation done
    QTimer::singleShot(settle, [=] {
        forms::Screen* screen = forms::Screen::front();
        if (!screen)
            qFatal("%s: no screen came up", name);
        if (prepare)
            prepare(*screen);
        QTimer::singleShot(settle, screen, [=] {
            if (screen->size().boundedTo(screen->screen()->availableSize()) != screen->size())
                qCritical("%s is larger than the display", name);
            screen->grab().save(folder.filePath(QString::fromLatin1(name) + u".png"_s));
            while (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
            screen->unload();
        });
    });
    open();
}

void selectInList(forms::Screen& screen)
{
    if (auto* list = screen.findChild<forms::ListBox*>(u"lstSummary"_s))
        list->setListIndex(3);
}

/// A line of the showpiece that has pictures, in the line editor.
void editLine()
{
    JobCard card;
    card.CurrentJobID = showpiece();
    card.LoadLines();
    qint16 row = 1;
    while (card.JobRows.img1(row).isEmpty())
        ++row;
    frmAddItem().EditItemDetails(card.JobRows, GetAccountID(client()), row);
}

/// Two digits of a measurement typed the wrong way round.
void swapDigits(forms::Screen& screen)
{
    auto* value = screen.findChild<swTextBox*>(u"txtValue_1"_s);
    QString typed = value->text();
    qSwap(typed[0], typed[1]);
    value->setFocus();
    value->setText(typed);
    screen.findChild<QPushButton*>(u"Command1"_s)->setFocus();
}

/// A completed line with pictures.
qint32 shownLine()
{
    return value(u"Select ID from Jobs_Detail where DoneByWorker=1 and WorkerID>0 "
                 "order by MarkAsPaid desc, Img1 desc, ID desc"_s)
        .toInt();
}

void message(const char* text, int kind, const char* language)
{
    session.Language = QString::fromLatin1(language);
    SetSetting(0, session.Language);
    ShowMsg(QString::fromLatin1(text), kind);
    session.Language = u"English"_s;
    SetSetting(0, session.Language);
}

/// Copies of three days, the shop of the last one, and what has been lost since.
void takeThoseOfCopies()
{
    copies::finishDay();
    const QString made = copies::inFolder(copies::folder()).first().path;
    for (int ago = 0; ago < 3; ++ago) {
        const QDate past = day.addDays(-ago);
        QFile::copy(made, copies::folder() + u'/' + copies::fileName(past, past));
    }
    QFile::remove(made);
    JobCard lost;
    lost.CurrentJobID = showpiece();
    lost.Delete();
    picture("copies", [] { frmSettings().ShowBackup(); });
    picture("new-books", [] { frmNewBooks().showModal(); });
    const QString copy = copies::inFolder(copies::folder()).first().path;
    ado::Connection then;
    then.open(copy, databasePassword(), ado::Connection::Mode::ReadOnly);
    const auto found = differences::between(then, DE.connection());
    then.close();
    picture(
        "look", [&copy] { lookInto(copy); },
        [&found](forms::Screen&) {
            picture("differences", [&found] { frmDifferences(found).showModal(); });
        });
}

/// Menus, and what is set up once.
void takeThoseOfTheShop()
{
    picture("masters", [] { frmMasters().showModal(); });
    picture("reports", [] { frmMenu().showModal(); });
    picture("about", [] { frmAbout().showModal(); });
    picture("login", [] { frmLogin().Login(); });
    picture("shop-info", [] { frmShopINFO().showModal(); });
    for (const char* tab : {"General", "Printing", "SMS", "Backup"})
        picture(
            qPrintable(u"settings-"_s + QString::fromLatin1(tab).toLower()),
            [] { frmSettings().showModal(); },
            [tab](forms::Screen& screen) {
                auto* tabs = screen.findChild<QTabWidget*>(u"SSTab1"_s);
                tabs->setCurrentWidget(tabs->findChild<QWidget*>(u"page"_s + QLatin1String(tab)));
            });
}

/// Clients, workers, items and accounts.
void takeThoseOfMasters()
{
    picture(
        "clients", [] { frmClients().showModal(); }, selectInList);
    picture("client", [] { frmEditClients().Edit(static_cast<qint16>(GetAccountID(client()))); });
    picture(
        "workers", [] { frmWorkers().showModal(); }, selectInList);
    picture("worker", [] { frmEditWorker().Edit(static_cast<qint16>(GetAccountID(worker()))); });
    picture(
        "items", [] { frmItems().showModal(); }, selectInList);
    picture("item", [] { frmEditItem().Edit(1); });
    picture("accounts", [] { frmAccountsList().showModal(); });
    picture("account", [] { frmEditAccount().ShowEdit(4); });
}

/// Vouchers and wages.
void takeThoseOfMoney()
{
    picture("voucher", [] {
        qint16 saved = 0;
        frmTransiction().ShowAddNew(client(), saved);
    });
    picture("payroll", [] {
        qint16 saved = 0;
        frmTransiction().ShowEdit(payrollShown(), saved);
    });
    picture("payroll-details", [] { frmPayrollDetails().ExecuteSQL(payrollWorker(), payrollShown()); });
    picture(
        "wages-register", [] { frmWorkerWagesRegister().showModal(); }, showWages);
    picture("paper-wages", [] {
        report::Preview(*wagesPaper(wages::read(wages::linesOfPayroll(payrollShown())), payrollWorker()))
            .showModal();
    });
}

/// The card, the registers and the books.
void takeRegisters()
{
    picture("job-card", [] { frmEditJOB().ShowEdit(showpiece()); });
    picture(
        "job-register", [] { frmWorkerJobRegister().showModal(); }, showDueLines);
    picture(
        "delivery-register", [] { frmDeliveryRegister().showModal(); },
        [](forms::Screen& screen) { showDays(screen, 2); });
    picture("trials", [] { frmTrailDate().showModal(); });
    picture("birthdays", [] { frmBirthDayRimenders().showModal(); });
    picture(
        "dues", [] { frmDueRegister().showModal(); },
        [](forms::Screen& screen) { screen.findChild<forms::ListView*>(u"lvSummary"_s)->selectRow(2); });
    picture(
        "account-book", [] { frmAccountBook().ShowAccount(busyAccount(AccountType::Client)); },
        [](forms::Screen& screen) { showDays(screen, 180); });
    picture(
        "day-book", [] { frmDayBook().showModal(); }, [](forms::Screen& screen) { showDays(screen, 3); });
}

/// What is printed.
void takePapers()
{
    picture("paper-list", [] {
        frmDueRegister dues;
        dues.load();
        dues.ExcuteSQl();
        report::Preview(*report::listPaper(forms::sheetOf(*dues.findChild<forms::ListView*>()))).showModal();
    });
    picture("paper-statement", [] { report::Preview(*statement(false)).showModal(); });
    picture("paper-statement-remark", [] { report::Preview(*statement(true)).showModal(); });
    picture("assign-job", [] { frmEditWorkerAssign().ShowEdit(shownLine()); });
    picture("paper-job-card", [] { PrintJobCard(showpiece()); });
    picture("paper-slip", [] { PrintWorkerSlip(shownLine()); });
    picture("print-box", [] {
        const auto paper = LabelPaper(shownLine());
        report::PrintDialog(*paper, report::Pages(*paper)).showModal();
    });
    picture("paper-slip-hindi", [] {
        SetSetting(settings::Language, u"Hindi"_s);
        SetSetting(settings::HindiSlip, u"Yes"_s);
        PrintWorkerSlip(shownLine());
        SetSetting(settings::Language, u"English"_s);
    });
    picture("paper-label", [] { PrintLabel(shownLine()); });
    SetSetting(settings::PaymentAddress, u"upi://pay?pa=rangoli@bank&pn=Rangoli Tailors"_s);
    picture("paper-job-card-paid-by-phone", [] { PrintJobCard(showpiece()); });
    const qint32 receipt = newReceipt();
    picture("paper-receipt", [receipt] { PrintReceipt(receipt); });
    SetSetting(settings::TwoReceipts, u"1"_s);
    picture("paper-receipt-twice", [receipt] { PrintReceipt(receipt); });
}

/// A garment and its pictures, the client who orders.
void takeThoseOfOrders()
{
    picture("garment-picture", [] {
        frmPreview().ShowImage(value(u"Select Img2 from Jobs_Detail where Img2<>''"_s).toString());
    });
    picture("web-cam", [] {
        devices::setCameras(std::make_unique<devices::TestCameras>(
            std::vector<devices::TestCamera>{{.name = u"Test pattern"_s}}));
        bool cancelled = true;
        frmCam().TakeSnap(QDir::tempPath() + u"/never-taken.bmp"_s, cancelled);
    });
    picture("hand-note", [] {
        bool cancelled = true;
        frmHandNote().TakeSnap(value(u"Select Img2 from Jobs_Detail where Img2<>''"_s).toString(), cancelled);
    });
    picture("new-job-card", [] { frmEditJOB().ShowAddNew(); });
    picture("item-line", editLine, swapDigits);
    picture(
        "find-client",
        [] {
            qint16 showAll = 0;
            QString client;
            SearchClient2(showAll, client);
        },
        [](forms::Screen& screen) { screen.findChild<swTextBox*>(u"txtName"_s)->setText(u"a"_s); });
    picture("feedback", [] {
        QVariant score;
        const QString scored = u"Select ID from JOBS_DETAIL where Score=4 and ClientFeedback<>''"_s;
        GiveFeedback(value(scored).toInt(), 0, score);
    });
    picture("client-folder", [] {
        frmClientFolder().ShowClient(
            value(u"Select ClintName from JOBS_DETAIL group by ClintID, ItemID order by count(*) desc"_s)
                .toString());
    });
}

/// The shop as a whole, and small pickers.
void takeThoseOfPlanning()
{
    picture("glance", [] { frmGlance().showModal(); });
    picture("check-shop", [] {
        frmCheckShop(
            {.findings = {{u"Job card 1436 comes to 1150; its garments and the books say 1250."_s,
                           u"Mend: the card's total becomes 1250."_s, &shopcheck::recordChecks().front()},
                          {u"2 garments have the one code 1440/1."_s,
                           u"Open the card. If one stands there twice, remove it. Save: its garments "
                           "are numbered anew."_s}},
             .cards = 530,
             .lines = 1000,
             .postings = 2570,
             .pictures = 12})
            .showModal();
    });
    picture("pending-orders", [] { frmDDP().showModal(); });
    picture("ratings", [] { frmRatings().showModal(); });
    picture("work-overview", [] {
        QString worker;
        ShowWorkerOverView(u"Select * from JOBS_Detail where WorkerID=%id"_s, worker);
    });
    picture("select-date", [] {
        QDate from(2024, 2, 1);
        QDate to(2024, 2, 29);
        frmSelectDate().SelectDate(from, to, 2);
    });
    picture("cloth-color", [] { frmClothColor().choose(0); });
    picture("select-file", [] { frmSelectFile().SelFile(); });
}

/// Messages and questions.
void takeMessages()
{
    picture("notice", [] { message("New Job Created.", 1, "English"); });
    picture("question", [] { message("Are you sure to exit?", 2, "English"); });
    picture("notice-hindi", [] { message("New Job Created.", 1, "Hindi"); });
    picture("by-phone", [] {
        ShowByPhone(
            nullptr, u"9829012345"_s,
            u"Dear Customer Your Job ID # 530 has been completed. Please visit our shop to collect clothes."
            "\r\rRangoli"_s);
    });
    picture("sms-question", [] { AskSms(u"Send SMS Now?"_s); });
    picture("question-hindi", [] {
        message("This Job has been registered.\r\nWould you like to Inform Client via SMS?", 2, "Hindi");
    });
}

void takeAll()
{
    takeThoseOfTheShop();
    takeThoseOfMasters();
    takeThoseOfMoney();
    takeRegisters();
    takePapers();
    takeThoseOfOrders();
    takeThoseOfPlanning();
    takeMessages();
    takeThoseOfCopies();
    // Last: the program ends with its main screen.
    picture("main", [] {
        frmMain screen;
        screen.showModal();
    });
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setApplicationVersion(QStringLiteral(SEAMWISE_VERSION));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        qFatal("usage: pictures <folder> <program folder>");
    folder.setPath(arguments[1]);
    folder.mkpath(u"."_s);
    const QString program = arguments[2];
    forms::applyTheme(application, program + u"/fonts"_s);
    forms::setAppearance({arguments.value(4) == darkLook ? palette::Look::Dark : palette::Look::Light,
                          arguments.value(3, settings::TextSize.standard).toInt()});
    const QTemporaryDir temporary;
    sample::layShop(sample::demo(day), temporary.path());
    QFile::copy(program + u"/Lang.mdb"_s, session.languageDatabasePath());
    QTimer::singleShot(0, [] {
        takeAll();
        DE.close();
        QCoreApplication::quit();
    });
    return QApplication::exec();
}
