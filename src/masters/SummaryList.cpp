#include "masters/SummaryList.h"

#include "core/store/DE.h"
#include "core/store/Lookups.h"
#include "core/store/Session.h"
#include "masters/frmBringIn.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/modLang.h"
#include "ui_SummaryList.h"

using namespace Qt::StringLiterals;

SummaryList::SummaryList(const Kind& kind)
    : m_kind(kind)
    , ui(std::make_unique<Ui::SummaryList>())
{
    setObjectName(kind.name);
    ui->setupUi(this);
    setWindowTitle(kind.title);
    ui->lblTitle->setText(kind.title);
    ui->lstSummary->setAccessibleName(kind.title);
    ui->lstSummary->setProperty("emptyText",
                                u"Nothing here yet: Ctrl+A adds the first %1"_s.arg(kind.oneRecord));
    ui->lblHelp->setText(u"Ctrl+A new %1  ·  Enter opens  ·  Esc close"_s.arg(kind.oneRecord));

    on(ui->txtSearch, &swTextBox::Change, [this] { search(ui->txtSearch->Text()); });
    onKeyDown(ui->txtSearch, [this](int& key) { ListSearch(*ui->lstSummary, key); });
    const auto openOnEnter = [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        openSelected();
    };
    onKeyPress(ui->txtSearch, openOnEnter);
    onKeyPress(ui->lstSummary, openOnEnter);
    on(ui->lstSummary, &forms::ListBox::dblClicked, &SummaryList::openSelected);
    on(ui->Command1, &QPushButton::clicked, [this] { addRecord(); });
    on(ui->Command2, &QPushButton::clicked, [this] { unload(); });
    ui->cmdBringIn->hide();
}

SummaryList::~SummaryList() = default;

void SummaryList::setButtonCaptions(const QString& add, const QString& back)
{
    ui->Command1->setText(add);
    ui->Command2->setText(back);
}

void SummaryList::Form_Load()
{
    SetFormLanguage(*this);
    session.RefreshLists = true;
}

void SummaryList::Form_Activate()
{
    if (session.RefreshLists.count() == m_filledAt)
        return;
    m_filledAt = session.RefreshLists.count();
    forms::ListBox& list = *ui->lstSummary;
    const QString selected = list.Text();
    fill(list);
    // The operator comes back to the entry that was opened, if it still has its title.
    const int index = list.findString(selected);
    if (index >= 0 && list.List(index) == selected)
        list.setListIndex(index);
}

void SummaryList::Form_KeyPress(int& key)
{
    Screen::Form_KeyPress(key);
    if (key != forms::key::CtrlA)
        return;
    key = 0;
    addRecord();
}

void SummaryList::search(const QString& text)
{
    const int startAfter = m_kind.searchFrom == SearchFrom::SecondEntry ? 0 : -1;
    ui->lstSummary->setListIndex(ui->lstSummary->findString(text, startAfter));
}

void SummaryList::setHelp(const QString& help) { ui->lblHelp->setText(help); }

void SummaryList::offerBringIn(bringin::Kind records)
{
    ui->cmdBringIn->show();
    on(ui->cmdBringIn, &QPushButton::clicked, [this, records] { frmBringIn::choose(this, records); });
    ui->lstSummary->setProperty(
        "emptyText", u"Nothing here yet: Ctrl+A adds the first %1, Alt+I brings them in from a file"_s.arg(
                         m_kind.oneRecord));
}

QString SummaryList::selectedTitle() const
{
    return ui->lstSummary->ListIndex() < 0 ? QString() : ui->lstSummary->Text();
}

void SummaryList::openSelected()
{
    if (ui->lstSummary->ListIndex() < 0)
        return;
    const QVariant id =
        FieldValueExists(ui->lstSummary->Text(), m_kind.keyField, u"ID"_s, m_kind.table, DE.rsaccounts);
    editRecord(values::toInt16(id.toLongLong(), u"Number of the record"_s));
}
