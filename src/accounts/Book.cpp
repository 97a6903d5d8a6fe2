#include "accounts/Book.h"

#include "accounts/VoucherTag.h"
#include "accounts/frmTransiction.h"
#include "core/store/Session.h"
#include "jobcards/frmEditJOB.h"
#include "platform/forms/MessageBox.h"

using namespace Qt::StringLiterals;

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
    useScreenHeight();
    period.set(session.WorkingDate, session.WorkingDate);
}

void Book::show(const Lines& lines, QStringList (*cells)(const BookLine&))
{
    m_lines = lines;
    const auto titles = std::make_shared<RowTitles>(titlesOf(*lines));
    m_list->refreshRows(int(lines->size()), [lines, titles, cells](int row) {
        const BookLine line = withTitle((*lines)[size_t(row)], titles->of(size_t(row)));
        forms::ListView::Row shown{cells(line), line.tag()};
        shown.apart = !line.isPosting();
        for (int column = 0; shown.apart && column < int(shown.cells.size()) - 1; ++column)
            shown.looks[column].bold = true;
        return shown;
    });
}

void Book::select(const QString& tag)
{
    for (size_t row = 0; row < m_lines->size(); ++row) {
        if ((*m_lines)[row].tag() == tag)
            m_list->selectRow(int(row));
    }
}

void Book::openSelected()
{
    const int row = m_list->selectedRow();
    if (row < 0)
        return;
    const BookLine& line = (*m_lines)[size_t(row)];
    if (openVoucher(this, line.tag(), line.posting))
        refresh();
}

void Book::refresh()
{
    period.order();
    ExecuteSQL();
}
