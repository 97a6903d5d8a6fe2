#pragma once

#include "accounts/BookLines.h"
#include "platform/forms/ListView.h"
#include "platform/forms/Screen.h"
#include "ui/Period.h"

#include <memory>

/// Opens what stands behind a row of a book: the job card, or the entry screen of a voucher. True when it
/// came back saved, and also when the ledger no longer has it (a message says so): either way the
/// book is to be made anew. A row of a total opens nothing. `posting` is the row among entries of the same
/// number.
bool openVoucher(QWidget* screen, const QString& tag, qint32 posting = 0);

/// Base of the books: a list of vouchers over some days, each of which opens on Enter.
class Book : public forms::Screen
{
    Q_OBJECT
public:
    /// Builds the list anew from what is chosen. Throws ado::DatabaseError.
    virtual void ExecuteSQL() = 0;

protected:
    /// For the constructor.
    void setBook(forms::ListView* list, const Period& period);
    /// Takes 97% of the display's height; both days are the working date.
    void Form_Load() override;

    /// Puts the lines on the list, the rows of totals apart from the others; `cells` makes the texts of one.
    /// The voucher that was selected stays so; when it has gone, the row in its place.
    using Lines = std::shared_ptr<const std::vector<BookLine>>;
    void show(const Lines& lines, QStringList (*cells)(const BookLine& line));
    /// Selects the row of a voucher, if the list has it.
    void select(const QString& tag);
    /// Opens what stands behind the selected row.
    virtual void openSelected();
    /// Builds the list anew after a change, from days in order.
    void refresh();

    Period period;

private:
    forms::ListView* m_list = nullptr;
    Lines m_lines = std::make_shared<std::vector<BookLine>>(); ///< on the list
};
