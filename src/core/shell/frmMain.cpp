#include "core/shell/frmMain.h"

#include "core/shell/CopyAtStart.h"
#include "core/shell/Look.h"
#include "core/shell/Wallpaper.h"
#include "core/shell/frmAbout.h"
#include "core/shell/frmLogin.h"
#include "core/shell/frmMasters.h"
#include "core/shell/frmMenu.h"
#include "core/shell/frmSettings.h"
#include "core/shell/frmShopINFO.h"
#include "core/store/Backup.h"
#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/ShopProfile.h"
#include "core/store/Texts.h"
#include "jobcards/frmEditJOB.h"
#include "planning/frmDDP.h"
#include "platform/forms/Icons.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"
#include "registers/ShopFigures.h"
#include "registers/frmWorkerJobRegister.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmMain.h"

#include <QApplication>
#include <QScreen>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 scannerPause = 1000; // ms, the longest between two characters

} // namespace

/// Painted once unseen, fonts, icons and the wall are ready.
void frmMain::prepare()
{
    resize(QWidget::screen()->availableSize());
    (void)grab();
}

bool frmMain::start(std::unique_ptr<frmMain> made)
{
    if (IsOn(settings::LoginRequired) && !frmLogin().Login())
        return false;
    frmMain* screen = made.release();
    connect(qApp, &QCoreApplication::aboutToQuit, screen, [screen] { delete screen; });
    screen->showModeless();
    screen->m_copyAtStart->begin();
    return true;
}

frmMain::frmMain()
    : ui(std::make_unique<Ui::frmMain>())
    , m_looks(!session.LookedAt.isEmpty())
{
    ui->setupUi(this);
    setWindowFlags(Qt::Window);
    forms::applyIcons(*this, palette::panelBright);
    ui->Image2->setPixmap(forms::picture(u"app"_s, 48));
    MyWall = new Wallpaper(ui->Picture1);
    m_copyAtStart = new CopyAtStart(this);

    on(ui->cmdCreateJOB, &QPushButton::clicked, [] { frmEditJOB().ShowAddNew(); });
    on(ui->cmdCreateNewClint, &QPushButton::clicked, [] { frmMasters().showModal(); });
    on(ui->Command2, &QPushButton::clicked, [] { frmWorkerJobRegister().showModal(); });
    on(ui->Command8, &QPushButton::clicked, [] { frmMenu().showModal(); });
    on(ui->Command5, &QPushButton::clicked, [] { frmShopINFO().showModal(); });
    on(ui->Command7, &QPushButton::clicked, [] { frmSettings().showModal(); });
    on(ui->Command4, &QPushButton::clicked, [] { frmAbout().showModal(); });
    on(ui->cmdLastBackup, &QPushButton::clicked,
       [this] { m_looks ? showDifferences(this) : frmSettings().ShowBackup(); });
    on(m_copyAtStart, &CopyAtStart::ended, &frmMain::showLastBackup);
    on(ui->TodayDate, &forms::DatePicker::changed, &frmMain::changeWorkingDate);
    on(ui->TodayDate, &forms::DatePicker::calendarClosed, [this] {
        changeWorkingDate();
        m_dateTaken = true;
    });
    onGotFocus(ui->TodayDate, [this] { m_dateTaken = false; });
}

frmMain::~frmMain() = default;

void frmMain::Form_Load()
{
    SetFormLanguage(*this);
    SetWall();
    setWindowState(Qt::WindowMaximized);
}

void frmMain::Form_Activate()
{
    RefershINFO();
    session.Language = GetSetting(settings::Language);
    showLastBackup();
}

/// Called only at load: a wallpaper changed meanwhile shows at the next start.
void frmMain::SetWall()
{
    const QString path = GetSetting(settings::Wallpaper);
    if (!path.isEmpty())
        MyWall->loadPicture(path);
}

void frmMain::RefershINFO()
{
    const QString name = loadShopProfile();
    ui->lblShopName->setText(name);
    ui->lblShopName->setToolTip(Qt::convertFromPlainText(name)); // a long one is cut
    session.ShownShopName = name;
    const QSignalBlocker quiet(ui->TodayDate);
    ui->TodayDate->setValue(session.WorkingDate);
    session.TodayDate = ui->TodayDate->value();
    showWhetherToday();
}

/// Everything is stamped with the working date: one that is not today's is not to be overlooked.
void frmMain::showWhetherToday()
{
    const bool today = session.WorkingDate == QDate::currentDate();
    ui->lblToday->setText(today ? u"WORKING DATE"_s : u"WORKING DATE  ·  NOT TODAY"_s);
    ui->lblToday->setProperty("notToday", !today);
    ui->lblToday->style()->unpolish(ui->lblToday);
    ui->lblToday->style()->polish(ui->lblToday);
}

/// The whole line is the way to the backup, by Alt+B too.
void frmMain::showLastBackup()
{
    if (m_looks) {
        ui->cmdLastBackup->setText(u"What differs from today, to &bring back"_s);
        ui->cmdLastBackup->setToolTip({});
        return;
    }
    QString text = lastBackupText(lastBackupDay(), QDate::currentDate()).replace(u"backup"_s, u"&backup"_s);
    if (!session.CopyTrouble.isEmpty())
        text += u"\nNo copy of the shop"_s;
    if (const figures::Room room = figures::scarcestRoom(); room.isShort())
        text += u"\n%1% of numbers used: New Books"_s.arg(room.percent());
    ui->cmdLastBackup->setText(text);
    ui->cmdLastBackup->setToolTip(session.CopyTrouble.isEmpty()
                                      ? u"Opens the backup in the settings"_s
                                      : Qt::convertFromPlainText(session.CopyTrouble));
}

void frmMain::Form_KeyPress(int& key)
{
    gatherCode(key);
    if (key != forms::key::Escape)
        return;
    key = 0;
    if (m_looks) {
        unload();
        return;
    }
    if (!ShowMsg(u"Are you sure to exit?"_s, 2))
        return;
    if (unsavedCards.isEmpty() ||
        ShowMsg(u"A job card that was left unsaved will be lost. Exit all the same?"_s, 2))
        unload();
}

/// What a scanner types, wherever the focus is. From its "/" on no button takes the Enter behind it, nor the
/// date box the rest of it.
void frmMain::gatherCode(int& key)
{
    if (m_sinceCharacter.hasExpired(scannerPause))
        m_scanned.clear();
    m_sinceCharacter.start();
    const bool belongs = (key >= '0' && key <= '9') || key == '/';
    if (!belongs) {
        m_scanned.clear();
        return;
    }
    m_scanned += QChar(char16_t(key));
    QWidget* focus = focusWidget();
    if (key != '/' || !focus || (focus == ui->TodayDate && !takesCodeFromDate()))
        return;
    focus->clearFocus();
    key = 0;
}

/// Whether the digits in the date box, with a "/" behind them, are a card's number: the date has been taken
/// already, or no day has it. The box then shows the working date again.
bool frmMain::takesCodeFromDate()
{
    constexpr int lastDay = 31;
    bool isNumber = false;
    const QString typed = ui->TodayDate->text();
    const int number = typed.toInt(&isNumber);
    if (!isNumber || (!m_dateTaken && number <= lastDay))
        return false;
    m_scanned = typed + u'/';
    ui->TodayDate->revert();
    return true;
}

void frmMain::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    constexpr int F2 = forms::key::F1 + 1;
    if (key == F2) {
        key = 0;
        m_dateTaken = false;
        ui->TodayDate->setFocus();
        ui->TodayDate->selectAll();
    }
    if (key == forms::key::F11) {
        key = 0;
        frmDDP().showModal();
    }
    if (key != forms::key::Enter)
        return;
    const bool inDate = ui->TodayDate->hasFocus();
    m_dateTaken = inDate;
    const QString typed =
        m_sinceCharacter.hasExpired(scannerPause) ? QString() : std::exchange(m_scanned, {});
    const bool isDate = inDate && values::readTypedDate(typed, session.WorkingDate).isValid();
    if (isDate || !typed.contains(u'/'))
        return;
    key = 0;
    if (!readLineCode(typed)) {
        QApplication::beep();
        return;
    }
    ui->cmdCreateJOB->setFocus();
    frmWorkerJobRegister().ShowLines({.from = {}, .to = {}, .jobId = typed});
}

/// The shop can be back-dated for a session; the next start remembers the day.
void frmMain::changeWorkingDate()
{
    session.TodayDate = ui->TodayDate->value();
    session.WorkingDate = session.TodayDate;
    RememberSetting(settings::WorkingDate, values::CStr(session.WorkingDate));
    showWhetherToday();
}

void frmMain::Form_Unload()
{
    if (!m_looks)
        QCoreApplication::quit();
}
