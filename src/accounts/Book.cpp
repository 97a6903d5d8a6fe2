#include "accounts/Book.h"

#include "accounts/VoucherTag.h"
#include "accounts/frmTransiction.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "platform/forms/MessageBox.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double heightOfScreen = 0.97;

} // namespace

bool openVoucher(QWidget* screen, const QString& tag, qint32 posting)
{
    const VoucherTag voucher = VoucherTag::of(tag);
    if (voucher.type != VoucherType::Job && voucher.type != VoucherType::Entry)
        return false;
    const bool isCard = voucher.type == VoucherType::Job;
    if (!voucher.exists()) {
        forms::plainMessage(
            screen, (isCard ? u"Job card # %1 is no longer there."_s : u"Voucher # %1 is no longer there."_s)
                        .arg(voucher.number));
        return true;
    }
    if (isCard)
        return frmEditJOB().ShowEdit(voucher.number);
    qint16 saved = 0;
    frmTransiction().ShowEdit(voucher.number, saved, posting);
    return saved != 0;
}

void Book::setBook(forms::ListView* list, const Period& days)
{
    m_list = list;
    period = days;
    onOpened(list, &Book::openSelected);
}

void Book::Form_Load()
{
    useScreenHeight(heightOfScreen);
    period.set(session.WorkingDate, session.WorkingDate);
}

void Book::show(const std::vector<BookLine>& lines)
{
    std::vector<forms::ListView::Row> rows;
    rows.reserve(lines.size());
    m_postings.clear();
    for (const BookLine& line : lines) {
        m_postings.push_back(line.posting);
        forms::ListView::Row row{line.cells, line.tag};
        row.apart = !line.isPosting();
        if (row.apart) {
            for (int column = 0; column < int(line.cells.size()) - 1; ++column)
                row.looks[column].bold = true;
        }
        rows.push_back(std::move(row));
    }
    m_list->refreshRows(std::move(rows));
}

void Book::select(const QString& tag)
{
    for (int row = 0; row < m_list->rowCount(); ++row) {
        if (m_list->tag(row) == tag)
            m_list->selectRow(row);
    }
}

void Book::openSelected()
{
    const int row = m_list->selectedRow();
    if (row >= 0 && openVoucher(this, m_list->tag(row), m_postings[size_t(row)]))
        refresh();
}

void Book::refresh()
{
    period.order();
    ExecuteSQL();
}
