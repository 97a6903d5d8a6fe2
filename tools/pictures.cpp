// Renders every screen, filled with believable data, to PNG: `pictures <folder> [font folder]`.
#include "accounts/frmAccountsList.h"
#include "accounts/frmEditAccount.h"
#include "accounts/frmTransiction.h"
#include "core/DE.h"
#include "core/Lookups.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "core/frmAbout.h"
#include "core/frmLogin.h"
#include "core/frmMain.h"
#include "core/frmMasters.h"
#include "core/frmMenu.h"
#include "core/frmSettings.h"
#include "core/frmShopINFO.h"
#include "jobcards/JobCard.h"
#include "jobcards/MODPrintJOBCARD.h"
#include "jobcards/frmAddItem.h"
#include "jobcards/frmEditJOB.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "masters/frmClients.h"
#include "masters/frmEditClients.h"
#include "masters/frmEditItem.h"
#include "masters/frmEditWorker.h"
#include "masters/frmItems.h"
#include "masters/frmWorkers.h"
#include "media/frmPreview.h"
#include "planning/frmFeedBack.h"
#include "planning/frmRatings.h"
#include "planning/frmWorkerReport2.h"
#include "platform/forms/DatePicker.h"
#include "platform/forms/ListBox.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Theme.h"
#include "registers/frmSearchClient.h"
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
#include <QTemporaryDir>
#include <QTimer>

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
    return value(QStringLiteral(
                     "Select JobID, 2*sum(Remarks<>'')+count(*) as shows from Jobs_Detail, Jobs where "
                     "Jobs.id=JobID and AmountPaid>0 and AmountPaid<AmountDue group by JobID "
                     "having sum(Img1<>'')>0 and count(*)<6 order by shows desc"))
        .toInt();
}

QString client()
{
    return value(QStringLiteral("Select ClintName from Jobs where id=%1").arg(showpiece())).toString();
}

QString worker() { return value(QStringLiteral("Select Title from Accounts where Type=1")).toString(); }

/// The lines that are due in these days are in every state.
void showDueLines(forms::Screen& screen)
{
    screen.findChild<QRadioButton*>(QStringLiteral("opDt2"))->setChecked(true);
    screen.findChild<forms::DatePicker*>(QStringLiteral("DateFrom"))
        ->setValue(session.WorkingDate.addDays(-2));
    screen.findChild<QPushButton*>(QStringLiteral("Command4"))->click();
    screen.findChild<forms::ListView*>(QStringLiteral("lvSummary"))->selectRow(2);
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
            screen->grab().save(folder.filePath(QString::fromLatin1(name) + QStringLiteral(".png")));
            while (QWidget* popup = QApplication::activePopupWidget())
                popup->close();
            screen->unload();
        });
    });
    open();
}

void selectInList(forms::Screen& screen)
{
    if (auto* list = screen.findChild<forms::ListBox*>(QStringLiteral("lstSummary")))
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

/// A completed line with pictures.
qint32 shownLine()
{
    return value(QStringLiteral("Select ID from Jobs_Detail where DoneByWorker=1 and WorkerID>0 "
                                "order by MarkAsPaid desc, Img1 desc, ID desc"))
        .toInt();
}

void message(const char* text, int kind, const char* language)
{
    session.Language = QString::fromLatin1(language);
    SetSetting(0, session.Language);
    ShowMsg(QString::fromLatin1(text), kind);
    session.Language = QStringLiteral("English");
    SetSetting(0, session.Language);
}

void takeAll()
{
    picture("masters", [] { frmMasters().showModal(); });
    picture("reports", [] { frmMenu().showModal(); });
    picture("about", [] { frmAbout().showModal(); });
    picture("login", [] { frmLogin().Login(); });
    picture("shop-info", [] { frmShopINFO().showModal(); });
    for (const char* tab : {"General", "Printing", "SMS", "Backup"})
        picture(
            qPrintable(QStringLiteral("settings-") + QString::fromLatin1(tab).toLower()),
            [] { frmSettings().showModal(); },
            [tab](forms::Screen& screen) {
                auto* tabs = screen.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
                tabs->setCurrentWidget(
                    tabs->findChild<QWidget*>(QStringLiteral("page") + QLatin1String(tab)));
            });
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
    picture("voucher", [] {
        qint16 saved = 0;
        frmTransiction().ShowAddNew(client(), saved);
    });
    picture("job-card", [] { frmEditJOB().ShowEdit(showpiece()); });
    picture(
        "job-register", [] { frmWorkerJobRegister().showModal(); }, showDueLines);
    picture("assign-job", [] { frmEditWorkerAssign().ShowEdit(shownLine()); });
    picture("paper-job-card", [] { PrintJobCard(showpiece()); });
    picture("paper-slip", [] { PrintWorkerSlip(shownLine()); });
    picture("paper-label", [] { PrintLabel(shownLine()); });
    picture("garment-picture", [] {
        frmPreview().ShowImage(
            value(QStringLiteral("Select Img2 from Jobs_Detail where Img2<>''")).toString());
    });
    picture("new-job-card", [] { frmEditJOB().ShowAddNew(); });
    picture("item-line", editLine);
    picture(
        "find-client",
        [] {
            qint16 showAll = 0;
            QString client;
            SearchClient2(showAll, client);
        },
        [](forms::Screen& screen) {
            screen.findChild<swTextBox*>(QStringLiteral("txtName"))->setText(QStringLiteral("a"));
        });
    picture("feedback", [] {
        QVariant score;
        const QString scored =
            QStringLiteral("Select ID from JOBS_DETAIL where Score=4 and ClientFeedback<>''");
        GiveFeedback(value(scored).toInt(), 0, score);
    });
    picture("ratings", [] { frmRatings().showModal(); });
    picture("work-overview", [] {
        QString worker;
        ShowWorkerOverView(QStringLiteral("Select * from JOBS_Detail where WorkerID=%id"), worker);
    });
    picture("select-date", [] {
        QDate from(2024, 2, 1);
        QDate to(2024, 2, 29);
        frmSelectDate().SelectDate(from, to, 2);
    });
    picture("select-file", [] { frmSelectFile().SelFile(); });
    picture("notice", [] { message("New Job Created.", 1, "English"); });
    picture("question", [] { message("Are you sure to exit?", 2, "English"); });
    picture("notice-hindi", [] { message("New Job Created.", 1, "Hindi"); });
    picture("question-hindi", [] {
        message("This Job has been registered.\r\nWould you like to Inform Client via SMS?", 2, "Hindi");
    });
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
    QApplication::setApplicationVersion(QStringLiteral("8.0"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3)
        qFatal("usage: pictures <folder> <program folder>");
    folder.setPath(arguments[1]);
    folder.mkpath(QStringLiteral("."));
    const QString program = arguments[2];
    forms::applyTheme(application, program + QStringLiteral("/fonts"));
    const QTemporaryDir temporary;
    sample::layShop(sample::demo(day), temporary.path());
    QFile::copy(program + QStringLiteral("/Lang.mdb"), session.languageDatabasePath());
    QTimer::singleShot(0, [] {
        takeAll();
        DE.close();
        QCoreApplication::quit();
    });
    return QApplication::exec();
}
