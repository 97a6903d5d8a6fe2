#include "registers/frmSearchClient.h"

#include "core/store/Settings.h"
#include "masters/ClientFolder.h"
#include "platform/values/Titles.h"
#include "ui/modLang.h"
#include "ui_frmSearchClient.h"

using namespace Qt::StringLiterals;

frmSearchClient::frmSearchClient()
    : ui(std::make_unique<Ui::frmSearchClient>())
{
    ui->setupUi(this);
    ui->lvResults->setColumns(
        {{u"Name"_s, 33}, {u"Address"_s, forms::ListView::rest}, {u"City"_s, 16}, {u"Mobile"_s, 19}});
    ui->fmQuery->hide();

    const auto chooseOnEnter = [this](int& key) {
        if (key != forms::key::Enter)
            return;
        key = 0;
        choose();
    };
    const std::pair<swTextBox*, QString> boxes[] = {{ui->txtName, u"Title"_s},
                                                    {ui->txtAddress, u"Address"_s},
                                                    {ui->txtCity, u"City"_s},
                                                    {ui->txtState, u"State"_s},
                                                    {ui->txtMobile, u"Mobile"_s}};
    for (const auto& [typed, field] : boxes) {
        on(typed, &swTextBox::Change, [this, box = typed, name = field] {
            SearchText(box->Text(), name);
            FindListItem(box->Text());
        });
        onKeyDown(typed, [this](int& key) { ScrollLV(key); });
        onKeyPress(typed, chooseOnEnter);
    }
    onKeyPress(ui->lvResults, chooseOnEnter);
    on(ui->lvResults, &forms::ListView::dblClicked, &frmSearchClient::choose);
    on(ui->opShowAllUndel, &QCheckBox::clicked,
       [this] { RememberSetting(settings::UndeliveredClientsOnly, allJobs() ? u"1"_s : u"0"_s); });
    on(ui->Command1, &QPushButton::clicked, &frmSearchClient::choose);
    on(ui->Command2, &QPushButton::clicked, &frmSearchClient::unload);
}

frmSearchClient::~frmSearchClient() = default;

void frmSearchClient::Form_Load()
{
    SetFormLanguage(*this);
    ui->opShowAllUndel->setChecked(IsOn(settings::UndeliveredClientsOnly));
}

void frmSearchClient::Form_KeyDown(int& key, Qt::KeyboardModifiers)
{
    if (key != forms::key::F3)
        return;
    key = 0;
    showClientFolder(ui->lvResults->cell(ui->lvResults->selectedRow(), 0));
}

void frmSearchClient::offerAllJobs() { ui->fmQuery->show(); }

bool frmSearchClient::allJobs() const { return ui->opShowAllUndel->isChecked(); }

void frmSearchClient::SearchText(const QString& text, const QString& field)
{
    m_found = std::make_shared<std::vector<FoundClient>>();
    ui->lvResults->Clear();
    if (text.isEmpty())
        return;
    m_found = std::make_shared<std::vector<FoundClient>>(searchClients(field, text));
    ui->lvResults->setRows(int(m_found->size()), [found = m_found](int row) {
        const FoundClient& client = (*found)[size_t(row)];
        return forms::ListView::Row{{client.title, client.address, client.city, client.mobile}};
    });
}

void frmSearchClient::FindListItem(const QString& text)
{
    const QString wanted = values::foldedTitle(text.trimmed());
    const auto row = std::ranges::find_if(*m_found, [&](const FoundClient& client) {
        return values::foldedTitle(client.title.left(text.size()).trimmed()) == wanted;
    });
    ui->lvResults->selectRow(int(row - m_found->begin()));
}

void frmSearchClient::ScrollLV(int& key)
{
    if (key != forms::key::Up && key != forms::key::Down)
        return;
    const int step = key == forms::key::Up ? -1 : 1;
    key = 0;
    if (const int rows = ui->lvResults->rowCount(); rows > 0)
        ui->lvResults->selectRow(qBound(0, ui->lvResults->selectedRow() + step, rows - 1));
}

/// Without a selection the only row is taken, as there is no doubt; of more none is.
void frmSearchClient::choose()
{
    const int row = ui->lvResults->rowCount() == 1 ? 0 : ui->lvResults->selectedRow();
    if (row < 0)
        return;
    m_chosen = ui->lvResults->cell(row, 0);
    unload();
}

void SearchClient(QString& result)
{
    result.clear();
    frmSearchClient search;
    search.showModal();
    result = search.chosen();
}

void SearchClient2(qint16& showAll, QString& result)
{
    result.clear();
    frmSearchClient search;
    search.offerAllJobs();
    search.showModal();
    result = search.chosen();
    if (!result.isEmpty())
        showAll = search.allJobs() ? 1 : 0;
}
