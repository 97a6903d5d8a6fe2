#pragma once

#include "platform/forms/Screen.h"
#include "registers/ClientSearch.h"

#include <memory>

namespace Ui {
class frmSearchClient;
}

/// Finds a client by any part of a name, address, city, state or mobile number, as the operator types. Only
/// the box being typed in counts.
class frmSearchClient : public forms::Screen
{
    Q_OBJECT
public:
    frmSearchClient();
    ~frmSearchClient() override;

    /// Lists the clients whose `field` (Title, Address, City, State or Mobile) has the text in it; none for
    /// an empty text. "%" in it stands for any run of characters, "_" for any one.
    void SearchText(const QString& text, const QString& field);
    /// Selects the first row whose name begins with the text, in any case; none when no name does.
    void FindListItem(const QString& text);
    /// Up and Down, from a box, move the selection in the list.
    void ScrollLV(int& key);

    /// Lets the operator choose between the client's jobs of some days and all of them.
    void offerAllJobs();
    bool allJobs() const;
    /// The title of the client chosen; empty when none was.
    QString chosen() const { return m_chosen; }

protected:
    void Form_Load() override;
    void Form_KeyDown(int& key, Qt::KeyboardModifiers modifiers) override;

private:
    void choose();

    const std::unique_ptr<Ui::frmSearchClient> ui;
    std::shared_ptr<std::vector<FoundClient>> m_found = std::make_shared<std::vector<FoundClient>>();
    QString m_chosen;
};

/// Lets the operator find a client; `result` is the client's title, empty when none was chosen.
void SearchClient(QString& result);
/// The same, asking too whether all jobs of the client are wanted: `showAll` is 1 for all, 0 for those of the
/// days chosen. It is set only when a client was chosen.
void SearchClient2(qint16& showAll, QString& result);
