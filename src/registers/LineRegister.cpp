#include "registers/LineRegister.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Palette.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"

#include <QPainter>
#include <QPixmapCache>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString allWorkers = u"*All"_s;
constexpr int totalColumn = 2;

/// Of the dots: waiting, ready, gone, back on the table, void.
constexpr QRgb stateColours[] = {palette::amber, palette::green, palette::grey, palette::rust,
                                 palette::slate};

} // namespace

qint32 tagOf(const forms::ListView& list, int row)
{
    return values::CLng(values::Val(list.tag(row)), u"Line number"_s);
}

QPixmap statusDot(qint32 state)
{
    constexpr int size = 10;
    if (state < 0 || state >= qint32(std::size(stateColours)))
        return {};
    static QPixmapCache::Key keys[std::size(stateColours)];
    QPixmapCache::Key& key = keys[state];
    const qreal ratio = qApp->devicePixelRatio();
    QPixmap dot;
    if (QPixmapCache::find(key, &dot) && dot.devicePixelRatio() == ratio)
        return dot;
    dot = QPixmap(QSize(size, size) * ratio);
    dot.setDevicePixelRatio(ratio);
    dot.fill(Qt::transparent);
    QPainter painter(&dot);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(palette::white), 1)); // a ring, for a chosen row has a colour of its own
    painter.setBrush(QColor(stateColours[state]));
    painter.drawEllipse(QRectF(0.5, 0.5, size - 1, size - 1));
    painter.end();
    key = QPixmapCache::insert(dot);
    return dot;
}

// Opening

void LineRegister::resetCriteria()
{
    m_criteria.period.set(session.WorkingDate, session.WorkingDate);
    FillList(u"Title"_s, u"Accounts"_s, u" where type=%1"_s.arg(1), *m_criteria.worker, DE.rsaccounts);
    m_criteria.worker->insertItem(0, allWorkers);
    m_criteria.worker->setText(allWorkers);
    m_criteria.condition->setListIndex(0);
    SearchMode = Search::AllWorkers;
    ReturnIndex = 0;
}

void LineRegister::Form_Activate()
{
    if (!session.RefreshLists || m_opening)
        return;
    keepPosition();
    conditionStep();
}

// Filling

void LineRegister::showLines(const std::function<void(std::vector<forms::ListView::Row>&)>& read)
{
    session.RefreshLists = false; // also if it fails: once told, the fault isn't told at each activation
    std::vector<forms::ListView::Row> rows;
    try {
        read(rows);
    } catch (...) {
        m_criteria.list->setRows(std::move(rows));
        throw;
    }
    rows.push_back(totalRow(rows.size()));
    m_criteria.list->setRows(std::move(rows));
}

void LineRegister::keepLines(const std::function<bool(const QStringList&)>& stays)
{
    m_criteria.list->keepRows([&stays](const forms::ListView::Row& row) { return stays(row.cells); });
    m_criteria.list->addRow(totalRow(size_t(m_criteria.list->rowCount())));
}

forms::ListView::Row LineRegister::totalRow(size_t lines) const
{
    forms::ListView::Row total;
    for (int column = 0; column < m_criteria.list->model()->columnCount(); ++column)
        total.cells << u" "_s;
    total.cells[totalColumn] = u"Total JOBS : %1"_s.arg(lines);
    total.looks[totalColumn] = {{}, {}, true, QColor(palette::emphasis)};
    return total;
}

void LineRegister::conditionStep()
{
    ExecuteSQL();
    if (const QString condition = m_criteria.condition->text(); condition != m_criteria.condition->List(0))
        applyCondition(condition);
    forms::ListView& list = *m_criteria.list;
    list.setTopRow(std::exchange(m_topRow, -1));
    if (ReturnIndex < 1 || ReturnIndex > list.rowCount())
        return;
    const int row = ReturnIndex - 1;
    const int line = tagOf(list, row) != 0 ? row : row - 1;
    if (tagOf(list, line) != 0)
        list.selectRow(line);
}

void LineRegister::enterList()
{
    forms::ListView& list = *m_criteria.list;
    list.setFocus();
    if (list.selectedRow() < 0 && tagOf(list, 0) != 0)
        list.selectRow(0);
}

void LineRegister::view()
{
    if (!m_criteria.period.accepted(this))
        return;
    if (ComboFindIndex(*m_criteria.worker) < 0) {
        ShowMsg(u"Please Select Worker Name!"_s);
        return;
    }
    ViewedWorker = m_criteria.worker->text();
    SearchMode = ViewedWorker == allWorkers ? Search::AllWorkers : Search::Worker;
    session.RefreshLists = true;
    conditionStep();
    enterList();
}

// Coming back to the row

void LineRegister::keepPosition()
{
    if (const int row = m_criteria.list->selectedRow(); row >= 0)
        ReturnIndex = values::toInt16(row + 1, u"Row of the list"_s);
    m_topRow = m_criteria.list->topRow();
}

void LineRegister::openOnRow(const std::function<void()>& open)
{
    keepPosition();
    {
        m_opening = true;
        const auto opened = qScopeGuard([this] { m_opening = false; });
        open();
    }
    conditionStep();
}
