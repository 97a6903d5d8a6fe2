#include "core/shell/frmNewBooks.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/forms/BackgroundTask.h"
#include "platform/forms/MessageBox.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmNewBooks.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Books are mostly closed with a month: the last one that is over.
QDate lastMonthsEnd(const QDate& day) { return day.addDays(-day.day()); }

} // namespace

frmNewBooks::frmNewBooks()
    : ui(std::make_unique<Ui::frmNewBooks>())
{
    ui->setupUi(this);
    ui->lvIdle->setColumns({{u"Who stays behind"_s, forms::ListView::rest, Qt::AlignLeft, 180},
                            {u"Kind"_s, 16, Qt::AlignLeft, 90},
                            {u"Last there"_s, 20, Qt::AlignLeft, 118},
                            {u"Comes along"_s, 18, Qt::AlignLeft, 110}});
    onKeyPress(ui->LastDay, [](int& key) { key = EnterAsTab(key); });
    on(ui->cmdView, &QPushButton::clicked, &frmNewBooks::view);
    onOpened(ui->lvIdle, &frmNewBooks::toggle);
    on(ui->cmdMake, &QPushButton::clicked, &frmNewBooks::make);
    on(ui->cmdClose, &QPushButton::clicked, &frmNewBooks::unload);
}

frmNewBooks::~frmNewBooks() = default;

void frmNewBooks::Form_Load()
{
    SetFormLanguage(*this);
    ui->LastDay->setValue(lastMonthsEnd(session.WorkingDate));
    ui->LastDay->setFocus();
}

/// When the screen first comes, it shows what a month's end would do.
void frmNewBooks::Form_Activate()
{
    if (!std::exchange(m_viewed, true))
        view();
}

void frmNewBooks::view()
{
    ui->LastDay->settle(); // a date that is still being typed is chosen, too
    m_plan = {};
    showPlan();
    forms::runInBackground(this, u"New Books"_s,
                           [this, lastDay = ui->LastDay->value()](const Progress& progress) {
                               m_plan = newbooks::plan(lastDay, progress);
                           });
    showPlan();
    ui->lvIdle->selectRow(0);
    if (!m_plan.idle.empty())
        ui->lvIdle->setFocus();
}

void frmNewBooks::showPlan()
{
    const bool isPlanned = m_plan.lastDay.isValid();
    ui->cmdMake->setEnabled(isPlanned);
    ui->lblIdle->setText(
        isPlanned
            ? u"Of %1 lines of job cards %2 come along. Without a movement in two years, a balance or anything open: %3."_s
                  .arg(m_plan.lines)
                  .arg(m_plan.linesStay)
                  .arg(m_plan.idle.empty() ? u"nobody"_s : u"these %1"_s.arg(m_plan.idle.size()))
            : QString());
    std::vector<forms::ListView::Row> rows;
    for (const newbooks::Idle& idle : m_plan.idle)
        rows.push_back(rowOf(idle));
    ui->lvIdle->refreshRows(std::move(rows));
}

forms::ListView::Row frmNewBooks::rowOf(const newbooks::Idle& idle) const
{
    return {{idle.title, idle.type == AccountType::Worker ? u"Worker"_s : u"Client"_s,
             idle.lastMoved.isValid() ? dateText(idle.lastMoved) : u"never"_s,
             idle.comesAlong ? u"Yes"_s : QString()},
            QString::number(idle.account)};
}

void frmNewBooks::toggle()
{
    const int row = ui->lvIdle->selectedRow();
    if (row < 0)
        return;
    newbooks::Idle& idle = m_plan.idle[size_t(row)];
    idle.comesAlong = !idle.comesAlong;
    ui->lvIdle->setRow(row, rowOf(idle).cells);
}

void frmNewBooks::make()
{
    if (ui->LastDay->value() != m_plan.lastDay) {
        view(); // what is made is what was seen
        return;
    }
    if (!forms::askPlain(this,
                         u"Make new books now, the old ones to end with %1?"_s.arg(dateText(m_plan.lastDay))))
        return;
    newbooks::Making books(m_plan);
    forms::runInBackground(this, u"New Books"_s,
                           [&books](const Progress& progress) { books.make(progress); });
    books.takePlace();
    forms::plainMessage(
        this, u"The new books are made. The old ones, to %1, are listed with the copies of the shop, "
              "on the Backup page.\r\nPlease restart application."_s.arg(dateText(m_plan.lastDay)));
    m_made = true;
    setNotice(true);
    unload();
}
