#include "registers/LineRegister.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "jobcards/frmEditWorkerAssign.h"
#include "platform/forms/ComboBox.h"
#include "platform/forms/Palette.h"
#include "platform/values/Numbers.h"
#include "registers/JobLines.h"
#include "ui/HelpLine.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"

#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

const QString allWorkers = u"*All"_s;
constexpr int totalColumn = 2;

/// Of the dots: waiting, ready, gone, back on the table, void.
constexpr const palette::Tone* stateColours[] = {&palette::amber, &palette::green, &palette::grey,
                                                 &palette::rust, &palette::slate};

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
    painter.setPen(QPen(QColor(palette::ring), 1)); // a ring, for a chosen row has a colour of its own
    painter.setBrush(QColor(*stateColours[state]));
    painter.drawEllipse(QRectF(0.5, 0.5, size - 1, size - 1));
    painter.end();
    key = QPixmapCache::insert(dot);
    return dot;
}

// Opening

void LineRegister::setCriteria(const Criteria& criteria)
{
    m_criteria = criteria;
    on(criteria.jobId, &QLineEdit::textChanged, [this](const QString& text) {
        if (text.isEmpty() && SearchMode == Search::Card)
            leaveCard();
    });
    onKeyPress(criteria.jobId, [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        findJob();
    });
    onKeyPress(criteria.worker, [this](int& key) {
        key = AutoSearchCombo(*m_criteria.worker, key);
        if (key != forms::key::Enter)
            return;
        key = 0;
        view();
    });
    on(criteria.condition, &forms::ComboBox::clicked, [this] {
        m_inShop = false;
        conditionStep();
    });
    on(criteria.view, &QPushButton::clicked, &LineRegister::view);
    on(criteria.find, &QPushButton::clicked, &LineRegister::quickFind);
    onKeyPress(criteria.list, [this](int& key) {
        if (key < '0' || key > '9')
            return;
        m_criteria.jobId->setText(QChar(char16_t(key))); // the next garment is scanned
        m_criteria.jobId->setFocus(Qt::OtherFocusReason);
        m_criteria.jobId->deselect();
        key = 0;
    });
    onOpened(criteria.list, &LineRegister::openLine);
}

void LineRegister::ShowLines(const Beginning& beginning)
{
    m_beginning = beginning;
    showModal();
}

void LineRegister::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    session.RefreshLists = true;
    resetCriteria();
    m_criteria.list->setFocus();
    // A line that cannot be shown must not keep the register shut.
    forms::guarded(this, [this] { m_beginning.jobId.isEmpty() ? conditionStep() : findJob(); });
}

void LineRegister::resetCriteria()
{
    m_criteria.period.set(m_beginning.from.isValid() ? m_beginning.from : session.WorkingDate,
                          m_beginning.to.isValid() ? m_beginning.to : session.WorkingDate);
    FillList(u"Title"_s, u"Accounts"_s, u" where type=%1"_s.arg(1), *m_criteria.worker, DE.rsaccounts);
    m_criteria.worker->insertItem(0, allWorkers);
    ViewedWorker = m_beginning.worker.isEmpty() ? allWorkers : m_beginning.worker;
    m_criteria.worker->setText(ViewedWorker);
    m_criteria.condition->setListIndex(0);
    if (!m_beginning.condition.isEmpty())
        m_criteria.condition->setText(m_beginning.condition);
    m_criteria.jobId->setText(m_beginning.jobId);
    SearchMode = ViewedWorker == allWorkers ? Search::AllWorkers : Search::Worker;
    m_inShop = m_beginning.inShop;
    ReturnIndex = 0;
}

void LineRegister::Form_Activate()
{
    if (session.RefreshLists.count() == m_filledAt || m_opening)
        return;
    keepPosition();
    conditionStep();
}

void LineRegister::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key != forms::key::CtrlF)
        return;
    key = 0;
    quickFind();
}

// Filling

QString LineRegister::searchText() const
{
    const QString between = DateField + u" between "_s;
    if (SearchMode == Search::Card)
        return allLines + u"JOBid="_s + values::CStr(values::Val(m_criteria.jobId->text()));
    if (SearchMode == Search::Worker)
        return allLines + u"WorkerID=%1 and "_s.arg(GetAccountID(ViewedWorker)) + between +
               period().between() + order();
    if (SearchMode == Search::Client)
        return allLines + u"ClintID=%1 and "_s.arg(GetAccountID(SearchClient)) + between +
               period().between() + order();
    return allLines + between + period().betweenShort() + order();
}

/// The lines before one at fault are shown without a total.
void LineRegister::ExecuteSQL()
{
    m_criteria.period.order();
    noteFilled(); // also if it fails: the message comes once, not at each activation
    m_filling.reset();
    explainEmpty({});
    m_shown = std::make_shared<Shown>();
    m_shown->names = LineNames(m_criteria.balances ? period().to() : QDate());
    try {
        SearchSql = searchText();
        readLines(SearchSql, m_shown->names, [this](RegisterLine line) {
            if (!m_inShop || isInShop(LineState(line.state)))
                m_shown->lines.push_back(std::move(line));
        });
    } catch (...) {
        showLines(false);
        throw;
    }
    showLines(true);
}

void LineRegister::showLines(bool withTotal)
{
    const size_t count = m_shown->lines.size();
    m_criteria.list->setRows(int(count) + int(withTotal), [this, shown = m_shown, count](int row) {
        if (size_t(row) >= count)
            return totalRow(count);
        shown->names.readClients(shown->lines, size_t(row));
        return rowOf(shown->lines[size_t(row)], shown->names);
    });
}

void LineRegister::keepLines(const std::function<bool(const RegisterLine&)>& stays)
{
    m_criteria.list->Clear();
    std::erase_if(m_shown->lines, [&stays](const RegisterLine& line) { return !stays(line); });
    showLines(true);
}

forms::ListView::Row LineRegister::totalRow(size_t lines) const
{
    forms::ListView::Row total;
    for (int column = 0; column < m_criteria.list->model()->columnCount(); ++column)
        total.cells << u" "_s;
    total.total = true;
    total.cells[totalColumn] = u"Total JOBS : %1"_s.arg(lines);
    total.looks[totalColumn] = {{}, {}, true, &palette::emphasis};
    return total;
}

void LineRegister::RemoveUnwanted(const QString& condition)
{
    keepLines([&](const RegisterLine& line) { return statusName(line.state) == condition; });
}

void LineRegister::applyCondition(const QString& condition) { RemoveUnwanted(condition); }

void LineRegister::conditionStep()
{
    m_criteria.period.order();
    if (m_filling && m_filling == filling()) {
        noteFilled();
    } else {
        ExecuteSQL();
        narrow();
        m_filling = filling();
    }
    showPosition();
}

/// What the list would be filled from now; nothing where that cannot be said, as of a worker who is gone.
std::optional<LineRegister::Filling> LineRegister::filling() const
{
    try {
        return Filling{ShopMoment::now(), searchText(), m_criteria.balances ? period().to() : QDate(),
                       m_criteria.condition->text(), m_inShop};
    } catch (const OperatorError&) {
        return std::nullopt;
    }
}

void LineRegister::noteFilled()
{
    m_criteria.help->setNotice(m_inShop ? u"Only what is still in the shop: Alt+V shows all"_s : QString());
    session.RefreshLists = false;
    m_filledAt = session.RefreshLists.count();
}

/// Takes the lines off the list that the condition does not want.
void LineRegister::narrow()
{
    const QString condition = m_criteria.condition->text();
    if (condition == m_criteria.condition->List(0))
        return;
    applyCondition(condition);
    explainEmpty(condition);
}

void LineRegister::showPosition()
{
    m_criteria.list->setTopRow(std::exchange(m_topRow, -1));
    m_criteria.list->selectRow(isLine(ReturnIndex - 1) ? ReturnIndex - 1 : -1);
}

void LineRegister::changeLine(qint32 line, const std::function<void()>& write)
{
    keepPosition();
    const bool wasTrue = m_filling && m_filling == filling();
    write();
    if (!wasTrue || !readAgain(line))
        return conditionStep();
    narrow();
    m_filling = filling();
    showPosition();
}

/// Puts a line that is on the list in place of itself as it was. False where it is no longer one.
bool LineRegister::readAgain(qint32 line)
{
    std::vector<RegisterLine> now;
    readLines(allLines + u"id=%1"_s.arg(line), m_shown->names,
              [&now](RegisterLine read) { now.push_back(std::move(read)); });
    const auto before = std::ranges::find(m_shown->lines, line, &RegisterLine::id);
    if (now.size() != 1 || before == m_shown->lines.end())
        return false;
    noteFilled();
    m_criteria.list->Clear();
    *before = std::move(now.front());
    keepLines([this](const RegisterLine& kept) { return !m_inShop || isInShop(LineState(kept.state)); });
    return true;
}

QString LineRegister::daysText() const
{
    return (DateField == u"Date" ? u"with the job date "_s : u"with the delivery date "_s) + period().words();
}

/// Why the list has no lines, for the operator who sees an empty one.
void LineRegister::explainEmpty(const QString& condition)
{
    const QString days = u' ' + daysText();
    QString text;
    if (!condition.isEmpty())
        text = u"None of these lines is in the state '%1'."_s.arg(condition);
    else if (SearchMode == Search::Card)
        text = u"There is no line of a job card '%1'."_s.arg(m_criteria.jobId->text());
    else if (SearchMode == Search::ClientOnAllDays)
        text = SearchClient + u" has no lines."_s;
    else if (SearchMode == Search::Client)
        text = SearchClient + u" has no lines"_s + days + u". "_s + otherDaysHint();
    else if (SearchMode == Search::Worker)
        text = ViewedWorker + u" has no lines"_s + days + u'.';
    else
        text = u"There are no lines"_s + days + u'.';
    m_criteria.list->setProperty("emptyText", text);
}

void LineRegister::enterList()
{
    forms::ListView& list = *m_criteria.list;
    list.setFocus();
    if (list.selectedRow() < 0 && isLine(0))
        list.selectRow(0);
}

void LineRegister::view()
{
    if (!m_criteria.period.accepted(this))
        return;
    m_inShop = false;
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

void LineRegister::showClient(const QString& client, Search mode)
{
    SearchClient = client;
    SearchMode = mode;
    m_inShop = false;
    session.RefreshLists = true;
    ExecuteSQL();
    enterList();
}

/// Shows the card of the number in the box. A line's code, as a scanner types it, chooses the line too. Where
/// there is none no line is chosen, and the box waits for the next.
void LineRegister::findJob()
{
    SearchMode = Search::Card;
    m_inShop = false;
    ExecuteSQL();
    forms::ListView& list = *m_criteria.list;
    const QString typed = m_criteria.jobId->text().trimmed();
    const bool wantsLine = typed.contains(u'/');
    const int line = wantsLine ? rowOfCode(typed) : 0;
    if (line < 0) {
        QApplication::beep();
        m_criteria.help->setNotice(u"There is no line %1: nothing is chosen"_s.arg(typed));
    }
    if (!isLine(line)) {
        m_criteria.jobId->setFocus();
        m_criteria.jobId->selectAll();
        return;
    }
    list.setFocus();
    list.selectRow(line);
}

/// The row of the line with this code; -1: none.
int LineRegister::rowOfCode(const QString& typed) const
{
    const std::optional<LineCode> code = readLineCode(typed);
    if (!code)
        return -1;
    int row = int(m_shown->lines.size()) - 1;
    while (row >= 0 && m_shown->lines[size_t(row)].code != *code)
        --row;
    return row;
}

/// The emptied box leaves the card for the lines of all workers; the worker's box says so, unless another
/// name was put there meanwhile.
void LineRegister::leaveCard()
{
    SearchMode = Search::AllWorkers;
    if (m_criteria.worker->text() == ViewedWorker)
        m_criteria.worker->setText(allWorkers);
    ViewedWorker = allWorkers;
}

// The selected row

const RegisterLine* LineRegister::selected() const
{
    const int row = m_criteria.list->selectedRow();
    return isLine(row) ? &m_shown->lines[size_t(row)] : nullptr;
}

qint32 LineRegister::selectedLine() const
{
    const RegisterLine* line = selected();
    return line ? line->id : 0;
}

/// Opens the line in the workshop's screen.
void LineRegister::openLine()
{
    if (const qint32 line = selectedLine(); line != 0)
        openOnRow([line] { frmEditWorkerAssign().ShowEdit(line); });
}

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
