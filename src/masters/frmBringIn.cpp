#include "masters/frmBringIn.h"

#include "core/store/DE.h"
#include "core/store/Session.h"
#include "platform/forms/BackgroundTask.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/MessageBox.h"
#include "platform/forms/OpenDialog.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmBringIn.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int fieldsInARow = 3;
constexpr int leastCell = 90;

QString fateText(bringin::Fate fate)
{
    switch (fate) {
    case bringin::Fate::New:
        return u"new"_s;
    case bringin::Fate::There:
        return u"already there"_s;
    case bringin::Fate::Refused:
        break;
    }
    return u"cannot be taken"_s;
}

QString becomes(const bringin::Line& line)
{
    return line.why.isEmpty() ? fateText(line.fate) : fateText(line.fate) + u": "_s + line.why;
}

forms::ListView::Row listRow(const bringin::Line& line)
{
    forms::ListView::Row row{{QString::number(line.row), becomes(line)}};
    for (const QString& text : line.texts)
        row.cells << text.simplified();
    return row;
}

/// The choices of the box "Show".
enum Show : int { All, New, There, Refused };

bool isShown(const bringin::Line& line, int show)
{
    switch (show) {
    case New:
        return line.fate == bringin::Fate::New;
    case There:
        return line.fate == bringin::Fate::There;
    case Refused:
        return line.fate == bringin::Fate::Refused;
    default:
        return true;
    }
}

} // namespace

frmBringIn::frmBringIn(bringin::Kind kind, bringin::Source source)
    : ui(std::make_unique<Ui::frmBringIn>())
    , m_kind(kind)
    , m_source(std::move(source))
{
    ui->setupUi(this);
    setWindowTitle(kind == bringin::Kind::Clients ? u"Bring In Clients"_s : u"Bring In Items"_s);
    ui->lblTitle->setText(windowTitle());
    makeCombos();
    const auto& names = bringin::fieldNames(kind);
    ui->lvSummary->setColumns({{u"Row"_s, 6, Qt::AlignRight, 50},
                               {u"What becomes of it"_s, 24, Qt::AlignLeft, 190},
                               {names[0], 18, Qt::AlignLeft, 130},
                               {names[1], 12, Qt::AlignLeft, leastCell},
                               {names[2], forms::ListView::rest, Qt::AlignLeft, leastCell},
                               {names[3], 10, Qt::AlignLeft, leastCell},
                               {names[4], 8, Qt::AlignLeft, leastCell},
                               {names[5], 10, Qt::AlignLeft, leastCell}});
    on(ui->chTitles, &QCheckBox::clicked, &frmBringIn::useTitles);
    on(ui->cmbShow, &forms::ComboBox::clicked, &frmBringIn::showRows);
    on(ui->lvSummary, &forms::ListView::selectionMoved, &frmBringIn::showChosen);
    on(ui->Command1, &QPushButton::clicked, &frmBringIn::bringIn);
    on(ui->Command2, &QPushButton::clicked, &frmBringIn::unload);
}

frmBringIn::~frmBringIn() = default;

void frmBringIn::choose(QWidget* parent, bringin::Kind kind)
{
    DE.refuseIfLookedAt();
    const bool isClients = kind == bringin::Kind::Clients;
    const QString path =
        forms::askOpenPath(parent, isClients ? u"Bring In Clients"_s : u"Bring In Items"_s,
                           isClients ? u"Tables and contacts (*.csv *.tsv *.txt *.vcf);;All files (*)"_s
                                     : u"Tables (*.csv *.tsv *.txt);;All files (*)"_s);
    if (!path.isEmpty())
        frmBringIn(kind, bringin::readSource(kind, path)).showModal();
}

/// A box for each field, in which the file's columns stand.
void frmBringIn::makeCombos()
{
    const auto& names = bringin::fieldNames(m_kind);
    for (size_t field = 0; field < bringin::fieldCount; ++field) {
        auto* combo = new forms::ComboBox;
        auto* label = new QLabel(names[field]);
        combo->setObjectName(u"cmbColumn%1"_s.arg(field));
        combo->setEditable(false);
        label->setBuddy(combo);
        const int row = int(field) / fieldsInARow;
        const int column = int(field) % fieldsInARow * 2;
        ui->columnsLayout->addWidget(label, row, column);
        ui->columnsLayout->addWidget(combo, row, column + 1);
        ui->columnsLayout->setColumnStretch(column + 1, 1);
        onKeyPress(combo, [](int& key) { key = EnterAsTab(key); });
        on(combo, &forms::ComboBox::clicked, &frmBringIn::sortRows);
        m_columns[field] = combo;
    }
}

void frmBringIn::Form_Load()
{
    SetFormLanguage(*this);
    ui->chTitles->setChecked(bringin::hasTitles(m_kind, m_source));
    useTitles();
    ui->lvSummary->setFocus();
}

/// With titles or without, the columns are guessed anew.
void frmBringIn::useTitles()
{
    const bool withTitles = ui->chTitles->isChecked();
    const bringin::Columns columns = bringin::guessColumns(m_kind, m_source, withTitles);
    const QStringList names = bringin::columnNames(m_source, withTitles);
    for (size_t field = 0; field < bringin::fieldCount; ++field) {
        m_columns[field]->Clear();
        m_columns[field]->AddItems(QStringList(u"(none)"_s) + names);
        m_columns[field]->setListIndex(columns[field] + 1);
    }
    sortRows();
}

void frmBringIn::sortRows()
{
    bringin::Columns columns{};
    for (size_t field = 0; field < bringin::fieldCount; ++field)
        columns[field] = m_columns[field]->ListIndex() - 1;
    m_plan = bringin::plan(m_kind, m_source, ui->chTitles->isChecked(), columns);
    const int counts[] = {int(m_plan.lines.size()), m_plan.count(bringin::Fate::New),
                          m_plan.count(bringin::Fate::There), m_plan.count(bringin::Fate::Refused)};
    const int shown = qMax(ui->cmbShow->ListIndex(), 0);
    ui->lblFile->setText(u"%1, %2: %3 rows, of which %4 new, %5 already there, %6 cannot be taken"_s.arg(
        QFileInfo(m_source.path).fileName(), m_source.form, QString::number(counts[All]),
        QString::number(counts[New]), QString::number(counts[There]), QString::number(counts[Refused])));
    ui->cmbShow->Clear();
    ui->cmbShow->AddItems({u"All rows (%1)"_s.arg(counts[All]), u"New (%1)"_s.arg(counts[New]),
                           u"Already there (%1)"_s.arg(counts[There]),
                           u"Cannot be taken (%1)"_s.arg(counts[Refused])});
    ui->cmbShow->setListIndex(shown);
    ui->Command1->setText(u"Bring &In %1"_s.arg(nameOf(counts[New])));
    ui->Command1->setEnabled(counts[New] > 0);
    showRows();
}

void frmBringIn::showRows()
{
    m_shown.clear();
    for (size_t i = 0; i < m_plan.lines.size(); ++i)
        if (isShown(m_plan.lines[i], ui->cmbShow->ListIndex()))
            m_shown.push_back(i);
    ui->lvSummary->setRows(int(m_shown.size()),
                           [this](int row) { return listRow(m_plan.lines[m_shown[size_t(row)]]); });
    ui->lvSummary->selectRow(m_shown.empty() ? -1 : 0);
    showChosen();
}

/// The row's fate, whole.
void frmBringIn::showChosen()
{
    const int row = ui->lvSummary->selectedRow();
    ui->lblWhy->setText(
        row < 0 ? QString() : u"Row %1, %2"_s.arg(ui->lvSummary->cell(row, 0), ui->lvSummary->cell(row, 1)));
}

QString frmBringIn::nameOf(int count) const
{
    const QString one = m_kind == bringin::Kind::Clients ? u"client"_s : u"item"_s;
    return QString::number(count) + u' ' + (count == 1 ? one : one + u's');
}

/// Whatever is refused or cancelled on the way leaves the shop as it was, and this screen as it is.
void frmBringIn::bringIn()
{
    // A list that is not read to its end would keep the other connection from writing.
    DE.rsaccounts.Close();
    DE.rsITEMS.Close();
    int taken = 0;
    forms::runInBackground(this, windowTitle(),
                           [&](const Progress& progress) { taken = bringin::take(m_plan, progress); });
    session.RefreshLists = true;
    forms::plainMessage(this,
                        u"%1 %2 brought in. %3 of the file were already there, %4 could not be taken."_s.arg(
                            nameOf(taken), taken == 1 ? u"was"_s : u"were"_s,
                            QString::number(m_plan.count(bringin::Fate::There)),
                            QString::number(m_plan.count(bringin::Fate::Refused))));
    unload();
}
