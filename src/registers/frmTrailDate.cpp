#include "registers/frmTrailDate.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "jobcards/frmEditJOB.h"
#include "platform/report/ListKeys.h"
#include "platform/values/Dates.h"
#include "registers/LineRegister.h"
#include "ui/ModOtherFUN.h"
#include "ui/frmSelectDate.h"
#include "ui_frmTrailDate.h"

using namespace Qt::StringLiterals;

frmTrailDate::frmTrailDate()
    : ReminderScreen(settings::TrialReminder, u"Dear Customer\r\nYour Trial Date is : \r\n"
                                              "Please don't forgot visit our shop for a trial."_s)
    , ui(std::make_unique<Ui::frmTrailDate>())
{
    ui->setupUi(this);
    setControls({ui->lvSummary, ui->Command1, ui->txtMessage, ui->Command3, ui->Command2, ui->cmdByPhone});
    period = {ui->DateFrom, ui->DateTo, Period::Of::PromisedDays};
    ui->lvSummary->setColumns({{u"Name"_s, forms::ListView::rest, Qt::AlignLeft, 150},
                               {u"Trial Date"_s, 16, Qt::AlignLeft, 118},
                               {u"Status"_s, 28, Qt::AlignLeft, 200},
                               {u"Job ID"_s, 10, Qt::AlignLeft, 76},
                               {u"Contact"_s, 18, Qt::AlignLeft, 120}});
    for (forms::DatePicker* day : {ui->DateFrom, ui->DateTo})
        onKeyPress(day, [](int& key) { key = EnterAsTab(key); });
    onOpened(ui->lvSummary, &frmTrailDate::openCard);
    on(ui->lvSummary, &forms::ListView::menuAsked, [this](int, const QPoint& place) {
        if (selectedJob() != 0)
            forms::ListView::showMenu(*ui->mnuS, place);
    });
    report::ListKeys::addTo(*ui->mnuS, *ui->lvSummary);
    on(ui->mnuSetApp, &QAction::triggered, [this] { setState(TrialState::Appeared); });
    on(ui->mnuNot, &QAction::triggered, [this] { setState(TrialState::NotAppeared); });
    on(ui->mnuCancel, &QAction::triggered, [this] { setState(TrialState::Canceled); });
    on(ui->mnuNewDate, &QAction::triggered, &frmTrailDate::chooseNewDay);
    on(ui->mnuOpen, &QAction::triggered, &frmTrailDate::openCard);
}

frmTrailDate::~frmTrailDate() = default;

void frmTrailDate::resetDays() { period.set(session.WorkingDate, session.WorkingDate); }

bool frmTrailDate::daysAccepted() { return period.accepted(this); }

std::vector<forms::ListView::Row> frmTrailDate::read()
{
    std::vector<forms::ListView::Row> rows;
    for (const trials::Trial& trial : trials::read(u"select * from  Jobs where TrialDate between "_s +
                                                   period.betweenShort() + u" order by TrialDate,id"_s)) {
        const QString job = QString::number(trial.job);
        rows.push_back({{trial.client, dateText(trial.day), trial.status, job, trial.mobile}, job});
    }
    return rows;
}

// Actions on the selected row

/// 0 when there is none.
qint32 frmTrailDate::selectedJob() const { return tagOf(*ui->lvSummary, ui->lvSummary->selectedRow()); }

void frmTrailDate::setState(TrialState state)
{
    if (const qint32 job = selectedJob(); job != 0) {
        trials::setState(job, state);
        fill();
    }
}

/// The client will come on another day, which the operator chooses; left without a choice nothing changes.
void frmTrailDate::chooseNewDay()
{
    const qint32 job = selectedJob();
    if (job == 0)
        return;
    QDate day = values::readDate(ui->lvSummary->cell(ui->lvSummary->selectedRow(), 1));
    frmSelectDate dialog;
    dialog.lookAhead(session.WorkingDate);
    if (!dialog.SelectDate(day, day, frmSelectDate::SingleDate))
        return;
    trials::setDay(job, day);
    fill();
}

void frmTrailDate::openCard()
{
    if (const qint32 job = selectedJob(); job != 0 && frmEditJOB().ShowEdit(job))
        fill();
}
