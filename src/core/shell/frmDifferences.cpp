#include "core/shell/frmDifferences.h"

#include "core/shell/Look.h"
#include "core/store/Texts.h"
#include "platform/forms/MessageBox.h"
#include "ui/modLang.h"
#include "ui_frmDifferences.h"

using namespace Qt::StringLiterals;

namespace {

QString changeText(differences::Change change)
{
    switch (change) {
    case differences::Change::Deleted:
        return u"deleted since"_s;
    case differences::Change::Changed:
        return u"changed since"_s;
    case differences::Change::Added:
        break;
    }
    return u"added since"_s;
}

QString kindText(differences::Kind kind)
{
    switch (kind) {
    case differences::Kind::Card:
        return u"Job card"_s;
    case differences::Kind::Payroll:
        return u"Payroll"_s;
    case differences::Kind::Voucher:
        break;
    }
    return u"Voucher"_s;
}

} // namespace

frmDifferences::frmDifferences(std::vector<differences::Difference> found)
    : ui(std::make_unique<Ui::frmDifferences>())
    , m_found(std::move(found))
{
    ui->setupUi(this);
    ui->lvSummary->setColumns({{u"What happened"_s, 20},
                               {u"What"_s, 17},
                               {u"Date"_s, 13},
                               {u"Whose"_s, forms::ListView::rest},
                               {u"Amount"_s, 13, Qt::AlignRight, 100}});
    onOpened(ui->lvSummary, &frmDifferences::bringBack);
}

frmDifferences::~frmDifferences() = default;

void frmDifferences::Form_Load()
{
    SetFormLanguage(*this);
    std::vector<forms::ListView::Row> rows;
    for (const differences::Difference& difference : m_found)
        rows.push_back(
            {{changeText(difference.change),
              kindText(difference.kind) + u' ' + QString::number(difference.number),
              dateText(difference.date), difference.who, moneyText(difference.amount.toDouble())}});
    ui->lvSummary->setRows(std::move(rows));
    ui->lvSummary->selectRow(0);
    ui->lvSummary->setFocus();
}

void frmDifferences::bringBack()
{
    const int row = ui->lvSummary->selectedRow();
    if (row < 0)
        return;
    const differences::Difference& chosen = m_found[size_t(row)];
    const QString what = ui->lvSummary->cell(row, 1);
    if (chosen.change == differences::Change::Added) {
        forms::plainMessage(this, u"%1 was not there on that day: it is in the living shop."_s.arg(what));
        return;
    }
    if (!forms::askPlain(this,
                         u"Bring back %1 (%2) into the living shop, as a new one?"_s.arg(what, chosen.who)))
        return;
    const QString now = kindText(chosen.kind) + u' ' + QString::number(bringToLivingShop(chosen));
    ui->lvSummary->setCell(row, 0, u"back as "_s + now);
    forms::plainMessage(this, u"It is %1 of the living shop now."_s.arg(now));
}
