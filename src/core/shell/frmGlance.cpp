#include "core/shell/frmGlance.h"

#include "accounts/frmAccountBook.h"
#include "accounts/frmAccountsList.h"
#include "accounts/frmDayBook.h"
#include "core/shell/GlancePaper.h"
#include "core/shell/GlanceTexts.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "masters/frmClients.h"
#include "masters/frmWorkers.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Palette.h"
#include "platform/report/Preview.h"
#include "platform/values/Numbers.h"
#include "registers/frmBirthDayRimenders.h"
#include "registers/frmDeliveryRegister.h"
#include "registers/frmDueRegister.h"
#include "registers/frmTrailDate.h"
#include "registers/frmWorkerJobRegister.h"
#include "ui/modLang.h"
#include "ui_frmGlance.h"

#include <QMenu>
#include <QStyle>

using namespace Qt::StringLiterals;
using namespace glance;

frmGlance::frmGlance()
    : ui(std::make_unique<Ui::frmGlance>())
{
    ui->setupUi(this);
    ui->chDue->setSeries({{u"Uncompleted"_s, &palette::accent},
                          {u"Alteration"_s, &palette::amber},
                          {u"Ready"_s, &palette::accentLight}},
                         forms::BarChart::Bars::Stacked);
    ui->chMoney->setSeries({{u"Booked"_s, &palette::accentLight}, {u"Taken"_s, &palette::accent}},
                           forms::BarChart::Bars::SideBySide);
    ui->chDues->setSeries({{u"Owed by clients"_s, &palette::accent}}, forms::BarChart::Bars::SideBySide);
    ui->lvDues->setColumns({{u"Client"_s, forms::ListView::rest}, {u"Owes"_s, 36, Qt::AlignRight, 96}});
    ui->lvWorkers->setColumns({{u"Worker"_s, forms::ListView::rest, Qt::AlignLeft, 110},
                               {u"In hand"_s, 19, Qt::AlignRight, 62},
                               {u"Alteration"_s, 21, Qt::AlignRight, 86},
                               {u"Finished"_s, 21, Qt::AlignRight, 68}});

    on(ui->cmdDue, &QPushButton::clicked, [this] { openDueDay(0); });
    on(ui->cmdOverdue, &QPushButton::clicked, &frmGlance::openOverdue);
    on(ui->cmdTrials, &QPushButton::clicked, [] { frmTrailDate().showModal(); });
    on(ui->cmdBirthdays, &QPushButton::clicked, [] { frmBirthDayRimenders().showModal(); });
    on(ui->cmdTaken, &QPushButton::clicked, &frmGlance::openTaken);
    on(ui->cmdCards, &QPushButton::clicked,
       [this] { frmWorkerJobRegister().ShowLines({.from = m_day, .to = m_day}); });
    on(ui->chDue, &forms::BarChart::opened, &frmGlance::openDueDay);
    on(ui->chMoney, &forms::BarChart::opened, &frmGlance::openWeek);
    on(ui->chDues, &forms::BarChart::opened, [] { frmDueRegister().showModal(); });
    onOpened(ui->lvDues, &frmGlance::openDebtor);
    onOpened(ui->lvWorkers, &frmGlance::openWorker);
    on(ui->cmdLines, &QPushButton::clicked,
       [this] { frmWorkerJobRegister().ShowLines({.from = firstDay(), .to = lastDay()}); });
    on(ui->cmdAccounts, &QPushButton::clicked, &frmGlance::openAccounts);
    on(ui->cmdPostings, &QPushButton::clicked, [this] { frmDayBook().ShowDays(firstDay(), lastDay()); });
    on(ui->cmdPrint, &QPushButton::clicked, &frmGlance::print);
}

frmGlance::~frmGlance() = default;

void frmGlance::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    ui->cmdDue->setFocus();
}

void frmGlance::Form_Activate()
{
    if (m_filledAt != ShopMoment::now())
        fill();
}

void frmGlance::fill()
{
    m_day = session.WorkingDate.addDays(-m_daysBack);
    m_shop = figures::read(m_day);
    ui->lblDay->setText(longDay(m_day));
    showDay();
    showDue();
    showMoney();
    showDues();
    showWorkers();
    showRoom();
    m_filledAt = ShopMoment::now();
}

void frmGlance::showDay()
{
    const figures::InShop& today = m_shop.due.front();
    ui->cmdDue->show(count(today.all()), u"%1 ready, %2 not ready"_s.arg(today.ready).arg(today.notReady()));
    const figures::Overdue& overdue = m_shop.overdue;
    ui->cmdOverdue->show(count(overdue.uncompleted),
                         u"%1 in alteration, %2 not fetched"_s.arg(overdue.alteration).arg(overdue.ready),
                         overdue.uncompleted > 0);
    ui->cmdTrials->show(count(m_shop.trials.all), u"%1 not appeared"_s.arg(m_shop.trials.notAppeared));
    ui->cmdBirthdays->show(count(m_shop.birthdays), u"clients"_s);
    Currency all;
    QStringList accounts;
    for (const figures::Taken& taken : m_shop.taken) {
        all += taken.amount;
        accounts << taken.account + u' ' + money(taken.amount);
    }
    ui->cmdTaken->show(money(all), accounts.isEmpty() ? u"from clients"_s : accounts.join(u", "_s));
    for (forms::FigureButton* figure :
         {ui->cmdDue, ui->cmdTrials, ui->cmdBirthdays, ui->cmdTaken, ui->cmdCards})
        figure->setCaption(figure->caption().section(u' ', 0, figure == ui->cmdCards ? 1 : 0) + u' ' +
                           when(m_day));
    ui->cmdCards->show(count(m_shop.newCards), u"job cards"_s);
}

void frmGlance::showDue()
{
    std::vector<forms::BarChart::Group> groups;
    for (size_t i = 0; i < m_shop.due.size(); ++i) {
        const figures::InShop& lines = m_shop.due[i];
        const QDate day = m_day.addDays(qint64(i));
        groups.push_back(
            {.label = QLocale::c().toString(day, u"ddd d"_s),
             .values = {double(lines.uncompleted), double(lines.alteration), double(lines.ready)},
             .meaning = dateText(day) + u": "_s + inWords(lines),
             .apart = i == 0});
    }
    ui->chDue->setGroups(std::move(groups));
    ui->chDue->setMark(m_shop.finishedADay,
                       u"finished on a working day: "_s + values::Format(m_shop.finishedADay, u"0.0"_s));
}

void frmGlance::showMoney()
{
    std::vector<forms::BarChart::Group> groups;
    for (const figures::Week& week : m_shop.weeks)
        groups.push_back({.label = shortDay(week.from),
                          .values = {week.booked.toDouble(), week.taken.toDouble()},
                          .meaning = shortDay(week.from) + u" to "_s + shortDay(week.from.addDays(6)) +
                                     u": booked "_s + money(week.booked) + u", taken "_s +
                                     money(week.taken)});
    ui->chMoney->setGroups(std::move(groups));
}

void frmGlance::showDues()
{
    static const QString ages[figures::Dues::ages] = {u"30 days"_s, u"60 days"_s, u"90 days"_s, u"older"_s};
    std::vector<forms::BarChart::Group> groups;
    Currency all;
    for (int age = 0; age < figures::Dues::ages; ++age) {
        const Currency due = m_shop.dues.byAge[age];
        all += due;
        groups.push_back({.label = ages[age],
                          .values = {due.toDouble()},
                          .meaning = money(due) + u" is "_s + ageText(age)});
    }
    ui->chDues->setGroups(std::move(groups));
    ui->lblDues->setText(u"Dues: "_s + money(all) + u" of "_s + count(m_shop.dues.clients) + u" clients"_s);
    std::vector<forms::ListView::Row> rows;
    for (const figures::Dues::Debtor& debtor : m_shop.dues.largest)
        rows.push_back({{debtor.title, money(debtor.due)}, debtor.title});
    ui->lvDues->refreshRows(std::move(rows));
}

void frmGlance::showWorkers()
{
    std::vector<forms::ListView::Row> rows;
    for (const figures::WorkerLoad& worker : m_shop.workers)
        rows.push_back({{worker.name, count(worker.inHand), count(worker.alteration), count(worker.finished)},
                        worker.name});
    ui->lvWorkers->refreshRows(std::move(rows));
}

void frmGlance::showRoom()
{
    bool isShort = false;
    for (const auto& [button, name, room] : {std::tuple(ui->cmdLines, u"Lines"_s, m_shop.lines),
                                             {ui->cmdAccounts, u"Accounts"_s, m_shop.accounts},
                                             {ui->cmdPostings, u"Postings"_s, m_shop.postings}}) {
        button->setText(roomText(name, room));
        button->setProperty("urgent", room.isShort());
        button->style()->unpolish(button);
        button->style()->polish(button);
        isShort = isShort || room.isShort();
    }
    ui->lblRoom->setText(isShort ? u"Nearly full: New Books (Settings, Backup) make room."_s
                                 : u"Used of the shop's file:"_s);
}

// The lists behind the figures

void frmGlance::openDueDay(int day)
{
    frmDeliveryRegister().ShowLines({.from = m_day.addDays(day), .to = m_day.addDays(day), .inShop = true});
}

/// The days of all cards, and the working date.
QDate frmGlance::firstDay() const
{
    return m_shop.firstDay.isValid() ? std::min(m_shop.firstDay, m_day) : m_day;
}

QDate frmGlance::lastDay() const
{
    return m_shop.lastDay.isValid() ? std::max(m_shop.lastDay, m_day) : m_day;
}

/// The book of the account that took the money; of several, the one chosen.
void frmGlance::openTaken()
{
    const auto open = [this](const QString& account) {
        frmAccountBook().ShowLedgerAccount(account, m_day, m_day);
    };
    if (m_shop.taken.size() == 1)
        return open(m_shop.taken.front().account);
    if (m_shop.taken.empty())
        return frmDayBook().ShowDays(m_day, m_day);
    std::vector<Way> ways;
    for (const figures::Taken& taken : m_shop.taken)
        ways.push_back({taken.account + u"  "_s + money(taken.amount),
                        [open, account = taken.account] { open(account); }});
    choose(*ui->cmdTaken, ways);
}

/// The three lists of accounts together are what is counted.
void frmGlance::openAccounts()
{
    choose(*ui->cmdAccounts,
           {{u"Clients  "_s + count(m_shop.clients), [] { frmClients().showModal(); }},
            {u"Workers  "_s + count(qint64(m_shop.workers.size())), [] { frmWorkers().showModal(); }},
            {u"Accounts  "_s + count(m_shop.ledgerAccounts), [] { frmAccountsList().showModal(); }}});
}

/// Offers the lists that together are behind a figure.
void frmGlance::choose(QWidget& figure, const std::vector<Way>& ways)
{
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const Way& way : ways)
        on(menu->addAction(way.text), &QAction::triggered, way.open);
    forms::ListView::showMenu(*menu, figure.mapToGlobal(QPoint(0, figure.height())));
}

void frmGlance::openOverdue()
{
    const QDate yesterday = m_day.addDays(-1);
    frmDeliveryRegister().ShowLines(
        {.from = m_shop.overdue.since.isValid() ? m_shop.overdue.since : yesterday,
         .to = yesterday,
         .condition = u"Uncompleted"_s});
}

void frmGlance::openWeek(int week)
{
    const QDate from = m_shop.weeks[size_t(week)].from;
    frmDayBook().ShowDays(from, from.addDays(6));
}

void frmGlance::openDebtor()
{
    if (const int row = ui->lvDues->selectedRow(); row >= 0)
        frmAccountBook().ShowAccount(ui->lvDues->tag(row));
}

void frmGlance::openWorker()
{
    const int row = ui->lvWorkers->selectedRow();
    if (row < 0)
        return;
    const figures::WorkerLoad& worker = m_shop.workers[size_t(row)];
    frmWorkerJobRegister().ShowLines({.from = worker.since.isValid() ? std::min(worker.since, m_day) : m_day,
                                      .to = lastDay(),
                                      .worker = worker.name,
                                      .condition = u"Uncompleted"_s});
}

// Keys, paper

/// Page Up shows the day before, Page Down the day after, up to the working date.
void frmGlance::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::PageUp && key != forms::key::PageDown)
        return;
    m_daysBack = std::max(0, m_daysBack + (std::exchange(key, 0) == forms::key::PageUp ? 1 : -1));
    fill();
}

void frmGlance::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key != forms::key::CtrlP)
        return;
    key = 0;
    print();
}

void frmGlance::print() { report::Preview(GlancePaper(m_shop, m_day)).showModal(); }
