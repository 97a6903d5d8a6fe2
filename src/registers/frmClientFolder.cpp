#include "registers/frmClientFolder.h"

#include "core/store/Contacts.h"
#include "core/store/Copies.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "jobcards/frmEditJOB.h"
#include "masters/ClientFolder.h"
#include "media/frmPreview.h"
#include "platform/forms/ListSheet.h"
#include "platform/forms/Palette.h"
#include "platform/forms/Thumbnails.h"
#include "platform/report/ListPaper.h"
#include "platform/report/Preview.h"
#include "ui/modLang.h"
#include "ui_frmClientFolder.h"

#include <QPushButton>
#include <QSignalBlocker>

using namespace Qt::StringLiterals;

namespace {

constexpr size_t ordersShown = 60; ///< of one garment, beside each other
constexpr int ordersOnPaper = 6;
constexpr size_t picturesShown = 8;
constexpr int pictureSize = 64;
enum MeasureColumn { NameColumn, SinceColumn, FirstOrder };

QString ageText(const QDate& since)
{
    if (!since.isValid())
        return {};
    const qint64 days = since.daysTo(session.WorkingDate);
    if (days < 60)
        return u"%1 day%2"_s.arg(days).arg(days == 1 ? u""_s : u"s"_s);
    return days < 730 ? u"%1 months"_s.arg(days / 30) : u"%1 years"_s.arg(days / 365);
}

} // namespace

frmClientFolder::frmClientFolder()
    : ui(std::make_unique<Ui::frmClientFolder>())
    , m_thumbnails(new forms::Thumbnails({pictureSize, pictureSize}, this))
{
    ui->setupUi(this);
    connect(m_thumbnails, &forms::Thumbnails::arrived, this, &frmClientFolder::showArrivedPictures);
    for (forms::ListView* list : {ui->lvCards, ui->lvMeasures})
        list->setSeveral(true);
    ui->lvCards->setColumns({{u"Card"_s, 15, Qt::AlignRight, 60},
                             {u"Date"_s, 24, Qt::AlignLeft, 104},
                             {u"State"_s, forms::ListView::rest, Qt::AlignLeft, 110},
                             {u"Amount"_s, 19, Qt::AlignRight, 84},
                             {u"Paid with it"_s, 19, Qt::AlignRight, 90}});
    ui->lvGarments->setColumns({{u"Garment"_s, forms::ListView::rest},
                                {u"Orders"_s, 18, Qt::AlignRight, 60},
                                {u"Last order"_s, 28, Qt::AlignLeft, 122}});
    on(ui->lvGarments, &forms::ListView::selectionMoved, &frmClientFolder::showMeasurements);
    onKeyDown(ui->lvGarments, [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        ui->lvMeasures->setFocus();
    });
    onOpened(ui->lvCards, &frmClientFolder::openCard);
    on(ui->cmdPrint, &QPushButton::clicked, &frmClientFolder::print);
    on(ui->cmdOldBooks, &QPushButton::clicked, [this] { showOldBooks(m_oldBooks, m_client); });
}

frmClientFolder::~frmClientFolder() = default;

void frmClientFolder::ShowClient(const QString& title)
{
    m_client = title;
    GetAccountID(title);
    showModal();
}

void frmClientFolder::Form_Load()
{
    SetFormLanguage(*this);
    useScreenHeight();
    ui->lvGarments->setFocus();
}

/// Back from a card the folder shows it as it is now.
void frmClientFolder::Form_Activate()
{
    if (m_shown == ShopMoment::now())
        return;
    const qint32 id = GetAccountID(m_client);
    m_garments = history::garmentsOf(id);
    const AccountContact contact = AccountContact::of(id);
    ui->lblClient->setText(contact.title);
    ui->lblContact->setText(contact.lines.join(u"  ·  "_s));
    showWhetherOlder();
    const double balance = GetBalances(QString::number(id), session.WorkingDate).value(id);
    ui->lblBalance->setText(u"Balance: "_s + balanceText(balance));
    showCards();
    showGarments();
    m_shown = ShopMoment::now();
}

/// Orders of before the new books are in the old ones.
void frmClientFolder::showWhetherOlder()
{
    const QList<copies::Copy> books = session.LookedAt.isEmpty() ? copies::oldBooks() : QList<copies::Copy>();
    ui->cmdOldBooks->setVisible(!books.isEmpty());
    m_oldBooks = books.isEmpty() ? QString() : books.front().path;
    if (!books.isEmpty())
        ui->cmdOldBooks->setText(
            u"&Older Orders: books to %1"_s.arg(dateText(copies::lastDayOfBooks(m_oldBooks))));
}

void frmClientFolder::showCards()
{
    std::vector<forms::ListView::Row> rows;
    for (const history::Card& card : history::cardsOf(GetAccountID(m_client))) {
        const QString number = QString::number(card.number);
        rows.push_back(
            {{number, dateText(card.booked), card.state, moneyText(card.amount), moneyText(card.paid)},
             number});
    }
    ui->lvCards->refreshRows(std::move(rows));
    if (ui->lvCards->selectedRow() < 0)
        ui->lvCards->selectRow(0);
}

void frmClientFolder::showGarments()
{
    std::vector<forms::ListView::Row> rows;
    for (const history::Garment& garment : m_garments)
        rows.push_back(
            {{garment.item, QString::number(garment.orders.size()), dateText(garment.orders.front().booked)},
             garment.item});
    {
        const QSignalBlocker quiet(ui->lvGarments); // the measurements are shown once, below
        ui->lvGarments->refreshRows(std::move(rows));
        if (ui->lvGarments->selectedRow() < 0)
            ui->lvGarments->selectRow(0);
    }
    showMeasurements();
}

const history::Garment* frmClientFolder::chosenGarment() const
{
    const int row = ui->lvGarments->selectedRow();
    return row >= 0 && size_t(row) < m_garments.size() ? &m_garments[size_t(row)] : nullptr;
}

void frmClientFolder::showMeasurements()
{
    const history::Garment* garment = chosenGarment();
    std::vector<forms::ListView::Column> columns{{u"Measurement"_s, 18, Qt::AlignLeft, 120},
                                                 {u"Unchanged for"_s, 12, Qt::AlignLeft, 108}};
    std::vector<forms::ListView::Row> rows;
    if (garment) {
        const size_t orders = std::min(garment->orders.size(), ordersShown);
        for (size_t order = 0; order < orders; ++order)
            columns.push_back(
                {dateText(garment->orders[order].booked) + u"  "_s + garment->orders[order].code, 18,
                 Qt::AlignLeft, 160});
        for (qsizetype i = 0; i < garment->measurements.size(); ++i) {
            forms::ListView::Row row{{garment->measurements[i], ageText(garment->since(i))}};
            for (size_t order = 0; order < orders; ++order) {
                row.cells << garment->orders[order].values.value(i);
                if (garment->isChanged(order, i))
                    row.looks[FirstOrder + int(order)] = {{}, {}, true, &palette::accent};
            }
            rows.push_back(std::move(row));
        }
        for (const auto& [name, text] :
             {std::pair(u"Remark"_s, &history::Order::remark), {u"Client note"_s, &history::Order::note}}) {
            forms::ListView::Row row{{name, QString()}};
            row.apart = true;
            for (size_t order = 0; order < orders; ++order)
                row.cells << (garment->orders[order].*text).simplified();
            rows.push_back(std::move(row));
        }
    }
    showHowMany(garment ? garment->orders.size() : 0);
    ui->lvMeasures->setColumns(columns);
    ui->lvMeasures->setRows(std::move(rows));
    ui->lvMeasures->selectRow(0);
    ui->cmdPrint->setEnabled(garment != nullptr);
    showPictures(garment ? *garment : history::Garment());
}

/// Not every order of a garment that was ordered often has a column.
void frmClientFolder::showHowMany(size_t orders)
{
    QString caption = u"Measurements, what changed from one order to the next in colour"_s;
    if (orders > ordersShown)
        caption += u"; the newest %1 of %2 orders"_s.arg(ordersShown).arg(orders);
    ui->lblMeasures->setText(caption);
}

/// Those of the newest orders.
void frmClientFolder::showPictures(const history::Garment& garment)
{
    for (const Picture& picture : m_pictures) {
        picture.button->hide();
        picture.button->deleteLater(); // its click may still be under way
    }
    m_pictures.clear();
    for (const history::Order& order : garment.orders) {
        for (const QString& path : order.pictures) {
            if (m_pictures.size() == picturesShown)
                return;
            auto* button = new QPushButton;
            button->setProperty("figure", true);
            button->setIconSize({pictureSize, pictureSize});
            if (path.isEmpty()) {
                button->setText(u"gone"_s);
                button->setEnabled(false);
            } else {
                button->setIcon(m_thumbnails->of(path));
            }
            button->setToolTip(order.code + u"  "_s + dateText(order.booked));
            button->setAccessibleName(u"Picture of "_s + order.code);
            on(button, &QPushButton::clicked, [path] { frmPreview().ShowImage(path); });
            ui->layPictures->insertWidget(int(m_pictures.size()), button);
            m_pictures.push_back({button, path});
        }
    }
}

void frmClientFolder::showArrivedPictures()
{
    for (const Picture& picture : m_pictures)
        if (!picture.path.isEmpty())
            picture.button->setIcon(m_thumbnails->of(picture.path));
}

void frmClientFolder::openCard()
{
    if (const int row = ui->lvCards->selectedRow(); row >= 0)
        frmEditJOB().ShowEdit(ui->lvCards->tag(row).toInt());
}

void frmClientFolder::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key != forms::key::CtrlP)
        return;
    key = 0;
    print();
}

/// The measurement sheet of the garment: its newest orders.
void frmClientFolder::print()
{
    const history::Garment* garment = chosenGarment();
    if (!garment)
        return;
    forms::ListSheet sheet = forms::sheetOf(*ui->lvMeasures);
    sheet.title = u"Measurements of "_s + m_client;
    sheet.criteria = {garment->item, dateText(session.WorkingDate)};
    if (const size_t orders = garment->orders.size(); orders > size_t(ordersOnPaper))
        sheet.criteria << u"the newest %1 of %2 orders"_s.arg(ordersOnPaper).arg(orders);
    const size_t columns = std::min(sheet.columns.size(), size_t(FirstOrder + ordersOnPaper));
    sheet.columns.resize(columns);
    for (forms::ListSheet::Row& row : sheet.rows)
        row.cells = row.cells.first(std::min(row.cells.size(), qsizetype(columns)));
    report::Preview(*report::listPaper(sheet)).showModal();
}
