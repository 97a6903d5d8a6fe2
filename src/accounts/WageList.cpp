#include "accounts/WageList.h"

#include "accounts/rptWagesRegister.h"
#include "core/store/Texts.h"
#include "platform/report/Preview.h"

using namespace Qt::StringLiterals;

WageList::WageList(QWidget* parent)
    : ListView(parent)
{
    setColumns({{u"Date"_s, 10, Qt::AlignLeft, 118},
                {u"JOB ID"_s, 10, Qt::AlignLeft, 92},
                {u"Client Name"_s, 20, Qt::AlignLeft, 130},
                {u"Item Name"_s, 12, Qt::AlignLeft, 110},
                {u"Wages Due"_s, 12, Qt::AlignRight, 100},
                {u"Balance"_s, 12, Qt::AlignRight, 108},
                {u"Completed Date"_s, 12, Qt::AlignLeft, 132},
                {u"Paid/Unpaid"_s, rest, Qt::AlignLeft, 108}});
}

void WageList::setLines(std::vector<wages::Line> lines)
{
    Clear(); // the rows are made of the lines
    m_lines = std::move(lines);
    setRows(int(m_lines.size()), [this](int row) {
        const wages::Line& line = m_lines[size_t(row)];
        return Row{line.cells(), QString::number(line.id), {}};
    });
}

QString WageList::total() const
{
    if (m_lines.empty())
        return {};
    return u"%1 %2  ·  %3"_s.arg(QString::number(m_lines.size()),
                                 m_lines.size() == 1 ? u"line"_s : u"lines"_s,
                                 moneyText(m_lines.back().balance.toDouble()));
}

void WageList::print(const QString& worker) { report::Preview(*wagesPaper(m_lines, worker)).showModal(); }
