#include "platform/forms/ListSheet.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/ListView.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>
#include <QRegularExpression>
#include <numeric>

using namespace Qt::StringLiterals;

namespace forms {

namespace {

QString withoutMnemonic(QString caption)
{
    static const QRegularExpression mark(u"&(?=\\S)"_s);
    return caption.remove(mark).simplified();
}

QString captionOf(const QWidget& field)
{
    for (const QLabel* label : field.window()->findChildren<QLabel*>())
        if (label->buddy() == &field)
            return withoutMnemonic(label->text());
    return {};
}

/// What a field says, with its caption; empty for a field that says nothing.
QString saying(const QWidget& field)
{
    QString text;
    if (const auto* combo = qobject_cast<const ComboBox*>(&field))
        text = combo->text();
    else if (const auto* picker = qobject_cast<const QAbstractSpinBox*>(&field))
        text = picker->text();
    else if (const auto* option = qobject_cast<const QRadioButton*>(&field))
        return option->isChecked() ? withoutMnemonic(option->text()) : QString();
    else if (const auto* box = qobject_cast<const QLineEdit*>(&field);
             box && !qobject_cast<QAbstractSpinBox*>(box->parent()) &&
             !qobject_cast<ComboBox*>(box->parent()))
        text = box->text();
    if (text.trimmed().isEmpty())
        return {};
    const QString caption = captionOf(field);
    if (caption.isEmpty())
        return text;
    return caption + (caption.endsWith(u':') ? u" "_s : u": "_s) + text;
}

/// One line, in which nothing would be computed.
QString harmless(const QString& cell)
{
    QString text = cell.trimmed();
    bool isNumber = false;
    QLocale::c().toDouble(text, &isNumber);
    static const QString formula = u"=+-@\t\r"_s;
    if (!isNumber && !text.isEmpty() && formula.contains(text.front()))
        text.prepend(u'\'');
    return text;
}

QString field(const QString& cell)
{
    QString text = harmless(cell);
    if (const QDate date = shownDay(text); date.isValid())
        return date.toString(Qt::ISODate);
    if (text.contains(u',') || text.contains(u'"') || text.contains(u'\n') || text.contains(u'\r'))
        return u'"' + text.replace(u"\""_s, u"\"\""_s) + u'"';
    return text;
}

/// A picture alone is told by what stands below the pointer.
ListSheet::Row lineOf(ListView::Row&& row)
{
    ListSheet::Row line;
    line.bold.resize(size_t(row.cells.size()));
    line.cells = std::move(row.cells);
    for (auto look = row.looks.cbegin(); look != row.looks.cend(); ++look) {
        if (look.key() >= line.cells.size())
            continue;
        line.bold[size_t(look.key())] = look->bold;
        if (QString& cell = line.cells[look.key()]; cell.isEmpty() && !look->picture.isNull())
            cell = look->toolTip;
    }
    return line;
}

} // namespace

QDate shownDay(const QString& cell) { return QLocale::c().toDate(cell, u"dd-MMM-yyyy"_s); }

QStringList ListSheet::titles() const
{
    QStringList titles;
    for (const Column& column : columns)
        titles << column.title;
    return titles.join(QString()).isEmpty() ? QStringList() : titles;
}

ListSheet sheetOf(const QAbstractItemView& list)
{
    std::vector<int> all(size_t(list.model()->rowCount()));
    std::iota(all.begin(), all.end(), 0);
    return sheetOf(list, all);
}

ListSheet sheetOf(const QAbstractItemView& list, const std::vector<int>& rows)
{
    ListSheet sheet;
    sheet.title = list.window()->windowTitle();
    for (const QWidget* field : list.window()->findChildren<QWidget*>())
        if (field->isVisible())
            if (const QString said = saying(*field); !said.isEmpty())
                sheet.criteria << said;
    const QAbstractItemModel& model = *list.model();
    const auto* view = qobject_cast<const ListView*>(&list);
    const double digit = QFontMetricsF(list.font()).horizontalAdvance(u'0');
    for (int column = 0; column < model.columnCount(); ++column) {
        const auto side =
            model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).value<Qt::Alignment>();
        sheet.columns.push_back({view ? model.headerData(column, Qt::Horizontal).toString() : QString(),
                                 bool(side & Qt::AlignRight), view ? view->columnWidth(column) / digit : 0});
    }
    sheet.rows.reserve(rows.size());
    for (const int row : rows)
        sheet.rows.push_back(view ? lineOf(view->row(row))
                                  : ListSheet::Row{{model.index(row, 0).data().toString()}, {}});
    return sheet;
}

QString tabbed(const ListSheet& sheet)
{
    QStringList lines;
    if (const QStringList titles = sheet.titles(); !titles.isEmpty())
        lines << titles.join(u'\t');
    for (const ListSheet::Row& row : sheet.rows) {
        QStringList cells;
        for (const QString& cell : row.cells)
            cells << harmless(cell.simplified());
        lines << cells.join(u'\t');
    }
    return lines.join(u'\n');
}

QByteArray commaSeparated(const ListSheet& sheet)
{
    QString text(QChar::ByteOrderMark);
    const auto add = [&text](const QStringList& cells) {
        QStringList fields;
        for (const QString& cell : cells)
            fields << field(cell);
        text += fields.join(u',') + u"\r\n"_s;
    };
    if (const QStringList titles = sheet.titles(); !titles.isEmpty())
        add(titles);
    for (const ListSheet::Row& row : sheet.rows)
        add(row.cells);
    return text.toUtf8();
}

} // namespace forms
