#include "core/shell/frmCheckShop.h"

#include "platform/forms/BackgroundTask.h"
#include "platform/forms/MessageBox.h"
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
    on(ui->lvSummary, &forms::ListView::dblClicked, &frmCheckShop::mend);
    onKeyDown(ui->lvSummary, [this](int& key) {
        if (key == forms::key::Enter) {
            key = 0;
            mend();
        }
    });
    on(ui->Command1, &QPushButton::clicked, &frmCheckShop::mend);
}

frmCheckShop::~frmCheckShop() = default;

void frmCheckShop::Form_Load()
{
    SetFormLanguage(*this);
    showReport(0);
    ui->lvSummary->setFocus();
}

void frmCheckShop::showReport(int row)
{
    ui->lblChecked->setText(
        u"Looked over: %1 job cards, %2 garments, %3 postings, %4 pictures. %5"_s.arg(m_report.cards)
            .arg(m_report.lines)
            .arg(m_report.postings)
            .arg(m_report.pictures)
            .arg(m_mended == 0 ? u"Nothing has been changed."_s : u"Mended: %1."_s.arg(m_mended)));
    std::vector<forms::ListView::Row> rows;
    for (const shopcheck::Finding& finding : m_report.findings)
        rows.push_back({{finding.what, finding.remedy}});
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(qMin(row, ui->lvSummary->rowCount() - 1));
    showChosen();
}

/// The row's texts, whole.
void frmCheckShop::showChosen()
{
    const int row = ui->lvSummary->selectedRow();
    ui->lblWhat->setText(ui->lvSummary->cell(row, 0));
    ui->lblRemedy->setText(ui->lvSummary->cell(row, 1));
    const bool mends = row >= 0 && m_report.findings[size_t(row)].canBeMended();
    ui->Command1->setEnabled(mends);
}

/// Does what the chosen finding's remedy says, when the operator agrees, and looks the shop over anew.
void frmCheckShop::mend()
{
    const int row = ui->lvSummary->selectedRow();
    if (row < 0 || !m_report.findings[size_t(row)].canBeMended())
        return;
    const shopcheck::Finding finding = m_report.findings[size_t(row)];
    if (!forms::askPlain(this, finding.what + u"\r\n\r\n"_s + finding.remedy + u"\r\n\r\nDo this now?"_s))
        return;
    shopcheck::mend(finding);
    ++m_mended;
    forms::runInBackground(this, u"Check the Shop"_s,
                           [this](const Progress& progress) { m_report = shopcheck::run(progress); });
    showReport(row);
    ui->lvSummary->setFocus();
}
