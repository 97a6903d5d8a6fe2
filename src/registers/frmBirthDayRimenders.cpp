#include "registers/frmBirthDayRimenders.h"

#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "registers/ShopFigures.h"
#include "ui/ModOtherFUN.h"
#include "ui_frmBirthDayRimenders.h"

using namespace Qt::StringLiterals;

frmBirthDayRimenders::frmBirthDayRimenders()
    : ReminderScreen(settings::BirthdayGreeting, u"wishes you a very Happy Birthday..."_s)
    , ui(std::make_unique<Ui::frmBirthDayRimenders>())
{
    ui->setupUi(this);
    setControls({ui->lvSummary, ui->Command1, ui->txtMessage, ui->Command3, ui->Command2});
    ui->lvSummary->setColumns({{u"Name"_s, forms::ListView::rest, Qt::AlignLeft, 150},
                               {u"DOB"_s, 24, Qt::AlignLeft, 118},
                               {u"Contact"_s, 28, Qt::AlignLeft, 120}});
    onKeyPress(ui->DateSel, [](int& key) { key = EnterAsTab(key); });
}

frmBirthDayRimenders::~frmBirthDayRimenders() = default;

void frmBirthDayRimenders::resetDays() { ui->DateSel->setValue(session.WorkingDate); }

std::vector<forms::ListView::Row> frmBirthDayRimenders::read()
{
    std::vector<forms::ListView::Row> rows;
    ado::Recordset& clients = DE.rsaccounts;
    for (clients.Open(figures::birthdaySearch(ui->DateSel->value())); !clients.AtEOF(); clients.MoveNext())
        rows.push_back({{clients["Title"].text(), dateText(clients["dob"].date()), clients["Mobile"].text()},
                        clients["ID"].text()});
    clients.Close();
    return rows;
}
