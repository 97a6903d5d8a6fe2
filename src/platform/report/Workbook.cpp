#include "platform/report/Workbook.h"

#include "platform/forms/ListSheet.h"
#include "platform/values/Errors.h"

#include <QDate>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <optional>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace report {

namespace {

constexpr qsizetype longestCell = 32767; // letters, as the file's form has it
constexpr qsizetype longestName = 31;    // of a sheet
constexpr qsizetype longestProperty = 255;
constexpr double leastWidth = 11; // in digits: a day finds room, else the spreadsheet shows ####
constexpr double mostWidth = 60;

const QRegularExpression& balanceForm()
{
    static const QRegularExpression form(u"^(\\d{1,12}\\.\\d\\d) (Dr|Cr)\\.?$"_s);
    return form;
}

QString sheetName(QString name)
{
    static const QRegularExpression unfit(u"[\\[\\]\\\\/:*?'\\x00-\\x1F]"_s);
    name = name.replace(unfit, u" "_s).simplified().left(longestName).trimmed();
    return name.isEmpty() ? u"List"_s : name;
}

/// Any figure of a column of figures; elsewhere, where no titles tell what a column holds, an amount.
std::optional<double> figure(const QString& text, bool ofFigures)
{
    static const QRegularExpression number(u"^-?(0|[1-9]\\d{0,11})(\\.\\d+)?$"_s);
    static const QRegularExpression amount(u"^-?(0|[1-9]\\d{0,11})\\.\\d\\d$"_s);
    if (!(ofFigures ? number : amount).match(text).hasMatch())
        return std::nullopt;
    return QLocale::c().toDouble(text);
}

/// A day, also one with the days that are left behind it: "10-Feb-2024 (3 D)".
QDate dayOf(const QString& text)
{
    static const QRegularExpression daysLeft(u" \\(-?\\d+ D\\)$"_s);
    return forms::shownDay(QString(text).remove(daysLeft));
}

/// The file while it is made.
class Book
{
public:
    Book(const QByteArray& path, const forms::ListSheet& sheet, const QString& owner)
        : m_sheet(sheet)
        , m_owner(owner)
        , m_book(workbook_new(path.constData()))
        , m_page(workbook_add_worksheet(m_book, sheetName(sheet.title).toUtf8().constData()))
        , m_hasTitles(!sheet.titles().isEmpty())
    {
        for (const size_t bold : {0, 1})
            for (const auto& [kind, form] :
                 {std::pair{Text, ""}, {Number, "General"}, {Amount, "0.00"}, {Day, "dd-mmm-yyyy"}})
                m_formats[kind][bold] = format(form, bold == 1);
    }

    lxw_error fill()
    {
        setProperties();
        lxw_row_t line = 0;
        for (size_t column = 0; column < m_sheet.columns.size(); ++column)
            setColumn(column);
        if (m_hasTitles)
            worksheet_freeze_panes(m_page, ++line, 0);
        for (const forms::ListSheet::Row& row : m_sheet.rows) {
            for (size_t column = 0; column < size_t(row.cells.size()); ++column)
                write(line, column, row);
            ++line;
        }
        return workbook_close(m_book);
    }

private:
    enum Kind { Text, Number, Amount, Day, Kinds };

    lxw_format* format(const char* form, bool bold)
    {
        lxw_format* made = workbook_add_format(m_book);
        if (*form)
            format_set_num_format(made, form);
        if (bold)
            format_set_bold(made);
        return made;
    }

    void setProperties()
    {
        const auto property = [](const QString& text) {
            return text.simplified().left(longestProperty).toUtf8();
        };
        QByteArray title = property(m_sheet.title);
        QByteArray criteria = property(m_sheet.criteria.join(u", "_s));
        QByteArray company = property(m_owner);
        lxw_doc_properties properties{};
        properties.title = title.data();
        properties.subject = criteria.data();
        properties.company = company.data();
        workbook_set_properties(m_book, &properties);
    }

    bool hasBalances(size_t column) const
    {
        return m_sheet.columns[column].isRight &&
               std::any_of(m_sheet.rows.begin(), m_sheet.rows.end(), [column](const auto& row) {
                   return balanceForm().match(row.cells.value(qsizetype(column))).hasMatch();
               });
    }

    void setColumn(size_t column)
    {
        const forms::ListSheet::Column& shown = m_sheet.columns[column];
        m_balances.push_back(hasBalances(column));
        QString title = shown.title;
        if (m_balances.back())
            title += u" (Dr is minus)"_s;
        const auto place = lxw_col_t(column);
        const double width =
            std::clamp(std::max(shown.letters, double(title.size()) + 1), leastWidth, mostWidth);
        worksheet_set_column(m_page, place, place, width, nullptr);
        if (m_hasTitles && !title.isEmpty())
            worksheet_write_string(m_page, 0, place, title.toUtf8().constData(), m_formats[Text][1]);
    }

    /// Whether the cell is a balance, and was written as one.
    bool writeBalance(lxw_row_t line, lxw_col_t place, const QString& text, size_t bold)
    {
        if (text == u"None"_s)
            return worksheet_write_number(m_page, line, place, 0, m_formats[Amount][bold]) == LXW_NO_ERROR;
        const auto balance = balanceForm().match(text);
        if (!balance.hasMatch())
            return false;
        const double amount = QLocale::c().toDouble(balance.captured(1));
        worksheet_write_number(m_page, line, place, balance.captured(2) == "Dr"_L1 ? -amount : amount,
                               m_formats[Amount][bold]);
        return true;
    }

    void write(lxw_row_t line, size_t column, const forms::ListSheet::Row& row)
    {
        const QString text = row.cells[qsizetype(column)].trimmed();
        if (text.isEmpty())
            return;
        const auto place = lxw_col_t(column);
        const size_t bold = row.isBold(column) ? 1 : 0;
        const bool ofFigures = column < m_sheet.columns.size() && m_sheet.columns[column].isRight;
        if (ofFigures && m_balances[column] && writeBalance(line, place, text, bold))
            return;
        if (const auto number = ofFigures || !m_hasTitles ? figure(text, ofFigures) : std::nullopt) {
            const Kind kind = text.contains(u'.') ? Amount : Number;
            worksheet_write_number(m_page, line, place, *number, m_formats[kind][bold]);
        } else if (const QDate day = dayOf(text); day.isValid() && day.year() > 1900) {
            lxw_datetime when{day.year(), day.month(), day.day(), 0, 0, 0};
            worksheet_write_datetime(m_page, line, place, &when, m_formats[Day][bold]);
        } else {
            worksheet_write_string(m_page, line, place, text.left(longestCell).toUtf8().constData(),
                                   m_formats[Text][bold]);
        }
    }

    const forms::ListSheet& m_sheet;
    const QString m_owner;
    lxw_workbook* m_book;
    lxw_worksheet* m_page;
    bool m_hasTitles;
    std::vector<bool> m_balances; ///< by column
    lxw_format* m_formats[Kinds][2]{};
};

} // namespace

QByteArray workbook(const forms::ListSheet& sheet, const QString& owner)
{
    const QTemporaryDir folder;
    QFile made(folder.filePath(u"list.xlsx"_s));
    const lxw_error error = folder.isValid() ? Book(QFile::encodeName(made.fileName()), sheet, owner).fill()
                                             : LXW_ERROR_CREATING_TMPFILE;
    if (error != LXW_NO_ERROR || !made.open(QIODevice::ReadOnly))
        throw OperatorError(u"The spreadsheet cannot be made: "_s + QString::fromUtf8(lxw_strerror(error)));
    return made.readAll();
}

} // namespace report
