#include "planning/frmDDP.h"

#include "core/store/Texts.h"
#include "planning/PendingOrders.h"
#include "platform/forms/MessageBox.h"
#include "ui/modLang.h"
#include "ui_frmDDP.h"

using namespace Qt::StringLiterals;

frmDDP::frmDDP()
    : ui(std::make_unique<Ui::frmDDP>())
{
    ui->setupUi(this);
    ui->lvSummary->setColumns({{u"Name of Item"_s, 20, Qt::AlignLeft},
                               {u"Production Cap."_s, 15, Qt::AlignRight},
                               {u"Pending Orders"_s, 15, Qt::AlignRight},
                               {u"Order Today"_s, 15, Qt::AlignRight},
                               {u"Watting"_s, 15, Qt::AlignRight},
                               {u"Pre. Del. Date"_s, 15, Qt::AlignRight}});
}

frmDDP::~frmDDP() = default;

void frmDDP::Form_Load()
{
    SetFormLanguage(*this);
    forms::guarded(this, [this] { Prddict(); });
}

void frmDDP::Prddict()
{
    std::vector<ItemLoad> loads;
    try {
        predictDelivery(loads);
    } catch (...) {
        showLoads(loads); // those before the one at fault
        throw;
    }
    showLoads(loads);
}

void frmDDP::showLoads(const std::vector<ItemLoad>& loads)
{
    std::vector<forms::ListView::Row> rows;
    for (const ItemLoad& load : loads) {
        forms::ListView::Row row{{load.item, QString::number(load.capacity), QString::number(load.pending),
                                  QString::number(load.today), u"%1 Days"_s.arg(load.waiting),
                                  dateText(load.ready)}};
        row.looks[PendingColumn].bold = true;
        row.looks[DateColumn].bold = true;
        rows.push_back(std::move(row));
    }
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(0);
}
