#include "planning/frmWorkerReport2.h"

#include "planning/Ratings.h"
#include "ui/modLang.h"
#include "ui_frmWorkerReport2.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int WorkerColumn = 1;

} // namespace

frmWorkerReport2::frmWorkerReport2(const QString& sql, const QString& range)
    : ui(std::make_unique<Ui::frmWorkerReport2>())
    , m_sql(sql)
{
    ui->setupUi(this);
    ui->lblRange->setText(range);
    ui->lblRange->setVisible(!range.isEmpty());
    ui->lvSummary->setColumns({{u"Sr"_s, 12, Qt::AlignRight},
                               {u"Worker"_s, forms::ListView::rest},
                               {u"Jobs in Hand"_s, 28, Qt::AlignRight}});
    onKeyPress(ui->lvSummary, [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        choose();
    });
    on(ui->lvSummary, &forms::ListView::dblClicked, &frmWorkerReport2::choose);
}

frmWorkerReport2::~frmWorkerReport2() = default;

void frmWorkerReport2::Form_Load()
{
    SetFormLanguage(*this);
    fill();
}

void frmWorkerReport2::fill()
{
    std::vector<forms::ListView::Row> rows;
    for (const WorkerLines& counted : countByWorker(m_sql))
        rows.push_back({{QString::number(rows.size() + 1), counted.worker, QString::number(counted.lines)}});
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(0);
}

void frmWorkerReport2::choose()
{
    const int row = ui->lvSummary->selectedRow();
    if (row < 0)
        return;
    m_chosen = ui->lvSummary->cell(row, WorkerColumn);
    unload();
}

void ShowWorkerOverView(const QString& sql, QString& result, const QString& range)
{
    frmWorkerReport2 overview(sql, range);
    overview.showModal();
    result = overview.chosen();
}
