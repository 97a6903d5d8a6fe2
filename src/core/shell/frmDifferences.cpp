#include "core/shell/frmDifferences.h"

#include "core/shell/Look.h"
#include "core/store/Texts.h"
#include "platform/forms/MessageBox.h"
#include "ui/modLang.h"
#include "ui_frmDifferences.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// By the order of differences::Change and differences::Kind.
constexpr std::array changes{"deleted since"_L1, "changed since"_L1, "added since"_L1};
constexpr std::array kinds{"Job card"_L1, "Voucher"_L1, "Payroll"_L1};

QString changeText(differences::Change change) { return changes.at(size_t(change)); }
QString nameText(differences::Kind kind, qint32 number)
{
    return kinds.at(size_t(kind)) + u' ' + QString::number(number);
}

/// What the operator reads of wages that the shop has paid already; empty for none.
QString wagesText(int lines)
{
    if (lines == 0)
        return {};
    return lines == 1
               ? u"\nThe wage of one garment was paid already: it is marked as paid."_s
               : u"\nThe wages of %1 garments were paid already: they are marked as paid."_s.arg(lines);
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
            {{changeText(difference.change), nameText(difference.kind, difference.number),
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
    if (m_back.contains(row)) {
        forms::plainMessage(this, u"%1 is %2 already."_s.arg(what, ui->lvSummary->cell(row, 0)));
        return;
    }
    if (!forms::askPlain(this,
                         u"Bring back %1 (%2) into the living shop, as a new one?"_s.arg(what, chosen.who)))
        return;
    const differences::Returned returned = bringToLivingShop(chosen);
    const QString now = nameText(chosen.kind, returned.number);
    m_back << row;
    ui->lvSummary->setCell(row, 0, u"back as "_s + now);
    forms::plainMessage(this, u"It is %1 of the living shop now."_s.arg(now) + wagesText(returned.paidSince));
}
