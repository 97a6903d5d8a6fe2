#include "core/shell/frmCheckShop.h"

#include "ui/modLang.h"
#include "ui_frmCheckShop.h"

using namespace Qt::StringLiterals;

frmCheckShop::frmCheckShop(shopcheck::Report report)
    : ui(std::make_unique<Ui::frmCheckShop>())
    , m_report(std::move(report))
{
    ui->setupUi(this);
    ui->lvSummary->setColumns({{u"What was found"_s, 50}, {u"What can be done"_s, forms::ListView::rest}});
    on(ui->lvSummary, &forms::ListView::selectionMoved, &frmCheckShop::showChosen);
}

frmCheckShop::~frmCheckShop() = default;

void frmCheckShop::Form_Load()
{
    SetFormLanguage(*this);
    ui->lblChecked->setText(
        u"Looked over: %1 job cards, %2 garments, %3 postings, %4 pictures. Nothing has been changed."_s
            .arg(m_report.cards)
            .arg(m_report.lines)
            .arg(m_report.postings)
            .arg(m_report.pictures));
    std::vector<forms::ListView::Row> rows;
    for (const shopcheck::Finding& finding : m_report.findings)
        rows.push_back({{finding.what, finding.remedy}});
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(0);
    ui->lvSummary->setFocus();
    showChosen();
}

/// The row's texts, whole.
void frmCheckShop::showChosen()
{
    const int row = ui->lvSummary->selectedRow();
    ui->lblWhat->setText(ui->lvSummary->cell(row, 0));
    ui->lblRemedy->setText(ui->lvSummary->cell(row, 1));
}
