#include "core/shell/CopyList.h"

#include "core/store/Copies.h"
#include "core/store/Texts.h"
#include "platform/values/Errors.h"

#include <QFileInfo>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {

enum Column { Day, WorkingDay, Cards, Postings, Size };

QString sizeText(qint64 bytes)
{
    constexpr double million = 1'000'000;
    return QString::number(double(bytes) / million, 'f', 1) + u" MB"_s;
}

QString dayText(const copies::Copy& copy)
{
    if (copy.day.isValid())
        return dateText(copy.day);
    if (const QDate lastDay = copies::lastDayOfBooks(copy.path); lastDay.isValid())
        return u"Old books to %1"_s.arg(dateText(lastDay));
    return u"%1 (%2)"_s.arg(QFileInfo(copy.path).completeBaseName(), dateText(copy.changed.date()));
}

} // namespace

CopyList::CopyList(forms::ListView* list)
    : QObject(list)
    , m_list(list)
{
    constexpr int number = 70; // pixels
    list->setColumns({{u"Day"_s, forms::ListView::rest},
                      {u"Worked on"_s, 20, Qt::AlignLeft, 100},
                      {u"Cards"_s, 13, Qt::AlignRight, number},
                      {u"Postings"_s, 13, Qt::AlignRight, number},
                      {u"Size"_s, 15, Qt::AlignRight, number}});
}

CopyList::~CopyList() { endReading(); }

void CopyList::endReading()
{
    m_stop.request_stop();
    if (m_thread)
        m_thread->wait();
}

void CopyList::fill()
{
    endReading();
    QStringList paths;
    std::vector<forms::ListView::Row> rows;
    for (const copies::Copy& copy : copies::inFolder(copies::folder()) + copies::putAside()) {
        rows.push_back({{dayText(copy), dateText(copy.workingDay), {}, {}, sizeText(copy.size)}, copy.path});
        paths << copy.path;
    }
    m_list->refreshRows(std::move(rows));
    if (m_list->selectedRow() < 0)
        m_list->selectRow(0);
    m_stop = {};
    m_thread.reset(QThread::create([this, paths, stop = m_stop.get_token()] {
        for (const QString& path : paths)
            if (!stop.stop_requested())
                read(path);
    }));
    m_thread->start();
}

/// In the thread.
void CopyList::read(const QString& path)
{
    QStringList counts;
    try {
        const copies::Contents contents = copies::contentsOf(path);
        counts = {QString::number(contents.cards), QString::number(contents.postings)};
    } catch (const OperatorError&) {
        counts = {u"damaged"_s};
    }
    QMetaObject::invokeMethod(this, [this, path, counts] { show(path, counts); });
}

void CopyList::show(const QString& path, const QStringList& counts)
{
    for (int row = 0; row < m_list->rowCount(); ++row)
        if (m_list->tag(row) == path)
            for (int i = 0; i < counts.size(); ++i)
                m_list->setCell(row, Cards + i, counts[i]);
}

QString CopyList::chosen() const { return m_list->tag(m_list->selectedRow()); }
