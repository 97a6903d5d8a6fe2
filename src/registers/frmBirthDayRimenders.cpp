#include "registers/frmBirthDayRimenders.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/forms/Palette.h"
#include "registers/ShopFigures.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmBirthDayRimenders.h"

using namespace Qt::StringLiterals;

namespace {

void dim(forms::ListView::Row& row)
{
    for (int column = 0; column < int(row.cells.size()); ++column)
        row.looks[column].colour = &palette::quietInk;
}

} // namespace

frmBirthDayRimenders::frmBirthDayRimenders()
    : ReminderScreen(settings::BirthdayGreeting, u"wishes you a very Happy Birthday..."_s)
    , ui(std::make_unique<Ui::frmBirthDayRimenders>())
{
    ui->setupUi(this);
    setControls({ui->lvSummary, ui->Command1, ui->txtMessage, ui->Command3, ui->Command2, ui->cmdByPhone});
    ui->lvSummary->setColumns({{u"Name"_s, forms::ListView::rest, Qt::AlignLeft, 150},
                               {u"DOB"_s, 24, Qt::AlignLeft, 118},
                               {u"Contact"_s, 28, Qt::AlignLeft, 120}});
    ui->DateSel->look(values::Looks::Around, session.WorkingDate);
    onKeyPress(ui->DateSel, [](int& key) { key = EnterAsTab(key); });
}

frmBirthDayRimenders::~frmBirthDayRimenders() = default;

void frmBirthDayRimenders::resetDays() { ui->DateSel->setValue(session.WorkingDate); }

std::vector<forms::ListView::Row> frmBirthDayRimenders::read()
{
    std::vector<forms::ListView::Row> rows;
    const QDate day = ui->DateSel->value();
    bool anyDimmed = false;
    for (const figures::Birthday& born : figures::birthdays(day)) {
        rows.push_back({{born.client, dateText(born.dob), born.mobile}, QString::number(born.id)});
        if (born.underAYear) {
            dim(rows.back());
            anyDimmed = true;
        }
    }
    ui->lblHelp->setNotice(anyDimmed ? u"Dimmed: younger than a year, mostly the day of the entry"_s
                                     : QString());
    return rows;
}
