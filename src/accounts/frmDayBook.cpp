#include "accounts/frmDayBook.h"

#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_frmDayBook.h"

using namespace Qt::StringLiterals;

frmDayBook::frmDayBook()
    : ui(std::make_unique<Ui::frmDayBook>())
{
    ui->setupUi(this);
    setBook(ui->lvSummary, {ui->DateFrom, ui->DateTo});
    ui->lvSummary->setSeveral(true);
    ui->lvSummary->setColumns({{u"Date"_s, 10, Qt::AlignLeft, 118},
                               {u"VC #"_s, 10, Qt::AlignRight, 66},
                               {u"Voucher"_s, 10, Qt::AlignLeft, 92},
                               {u"Particulars"_s, 32, Qt::AlignLeft, 190},
                               {u"Amount"_s, 15, Qt::AlignRight, 110},
                               {u"Remark"_s, 20, Qt::AlignLeft, 120}});
    for (forms::DatePicker* day : {ui->DateFrom, ui->DateTo})
        onKeyPress(day, [](int& key) { key = EnterAsTab(key); });
    on(ui->Command4, &QPushButton::clicked, &frmDayBook::view);
}

frmDayBook::~frmDayBook() = default;

void frmDayBook::ShowDays(const QDate& from, const QDate& to)
{
    m_from = from;
    m_to = to;
    showModal();
}

void frmDayBook::Form_Load()
{
    SetFormLanguage(*this);
    Book::Form_Load();
    if (m_from.isValid())
        period.set(m_from, m_to);
    view();
}

void frmDayBook::view()
{
    if (!period.accepted(this))
        return;
    ExecuteSQL();
    ui->lvSummary->setFocus();
}

void frmDayBook::ExecuteSQL()
{
    show(std::make_shared<std::vector<BookLine>>(daybook::read(period.from(), period.to())), daybook::cells);
}
