#include "ui/frmSelectDate.h"

#include "ui/ModOtherFUN.h"
#include "ui_frmSelectDate.h"

using namespace Qt::StringLiterals;

frmSelectDate::frmSelectDate(QWidget* parent)
    : Screen(parent)
    , ui(std::make_unique<Ui::frmSelectDate>())
{
    ui->setupUi(this);
    ui->DateTo->look(values::Looks::Onward, ui->DateFrom);
    on(ui->DateFrom, &forms::DatePicker::changed, &frmSelectDate::followDateFrom);
    on(ui->DateFrom, &forms::DatePicker::calendarClosed, &frmSelectDate::followDateFrom);
    for (forms::DatePicker* day : {ui->DateFrom, ui->DateTo})
        onKeyPress(day, [](int& key) { key = EnterAsTab(key); });
    on(ui->cmdOk, &QPushButton::clicked, &frmSelectDate::select);
}

frmSelectDate::~frmSelectDate() = default;

void frmSelectDate::lookAhead(const QDate& from) { ui->DateFrom->look(values::Looks::Ahead, from); }

bool frmSelectDate::SelectDate(QDate& fromDate, QDate& toDate, int mode)
{
    m_confirmed = false;
    m_single = mode == SingleDate;
    ui->DateTo->setEnabled(!m_single);
    ui->DateTo->setValue(toDate);
    ui->DateFrom->setValue(fromDate);
    followDateFrom();
    showModal();
    if (m_confirmed) {
        fromDate = ui->DateFrom->value();
        toDate = ui->DateTo->value();
    }
    return m_confirmed;
}

/// A single date stands in both boxes.
void frmSelectDate::followDateFrom()
{
    if (m_single)
        ui->DateTo->setValue(ui->DateFrom->value());
}

void frmSelectDate::select()
{
    if (ui->DateFrom->value() > ui->DateTo->value()) {
        ShowMsg(u"Invalid Dates!"_s);
        return;
    }
    m_confirmed = true;
    unload();
}
