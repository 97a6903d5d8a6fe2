#include "core/shell/Look.h"

#include "core/shell/frmDifferences.h"
#include "core/shell/frmMain.h"
#include "core/store/Copies.h"
#include "core/store/DE.h"
#include "core/store/LivingShop.h"
#include "core/store/Lookups.h"
#include "core/store/NewBooks.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Startup.h"
#include "core/store/Texts.h"
#include "jobcards/UnsavedCards.h"
#include "masters/ClientFolder.h"
#include "platform/ado/Integrity.h"
#include "platform/forms/BackgroundTask.h"

using namespace Qt::StringLiterals;

namespace {

/// What is looked at.
copies::Copy& current()
{
    static copies::Copy copy;
    return copy;
}

/// The program turned to another shop for a while. What belongs to the living one is kept meanwhile.
class ShopSwitch
{
public:
    ShopSwitch()
        : m_session(session)
        , m_unsaved(std::exchange(unsavedCards, {}))
    {
        DE.close();
    }

    /// Opens the living shop again. Throws ado::DatabaseError.
    void end()
    {
        forms::Screen::setBand({});
        m_session.CopyTrouble = session.CopyTrouble;
        session = m_session;
        session.RefreshLists = true;
        unsavedCards = std::move(m_unsaved);
        DE.open(session.databasePath());
    }

private:
    Session m_session;
    UnsavedCards m_unsaved;
};

void openFile() { DE.openToLook(current().path, lookRefusal()); }

void openToLook(const copies::Copy& copy)
{
    current() = copy;
    session.LookedAt = dateText(copy.day.isValid() ? copy.day : copy.changed.date());
    openFile();
    if (!CheckDatabaseVersion())
        throw OperatorError(u"%1 is a shop of another version of this program."_s.arg(copy.path));
    LoadSessionDefaults();
    session.WorkingDate = StoredWorkingDate();
    forms::Screen::setBand(
        u"The shop as it was on %1, only to be looked at: nothing can be changed. Pictures are as they are "
        "today."_s.arg(session.LookedAt));
}

/// Shows something of the shop as a file has it, and comes back to the living one.
void look(const QString& path, const std::function<void()>& show)
{
    const copies::Copy copy = copies::read(path);
    ShopSwitch other;
    try {
        openToLook(copy);
        show();
    } catch (...) {
        other.end();
        throw;
    }
    other.end();
}

} // namespace

void lookInto(const QString& path)
{
    look(path, [] { frmMain().showModal(); });
}

void lookIntoBooks(const QString& path, const QString& client)
{
    look(path, [&client] {
        if (idOfAccount(client) == 0)
            throw OperatorError(u"%1 is not in these old books."_s.arg(client));
        showClientFolder(client);
    });
}

void showDifferences(QWidget* parent)
{
    if (archive::birthMark(current().path) != archive::birthMark(session.databasePath()))
        throw OperatorError(
            u"This is a copy of another shop: it cannot be compared with this one, and nothing "
            "of it comes back into it."_s);
    if (newbooks::lastDayBefore(current().path) != newbooks::lastDayBefore(session.databasePath()))
        throw OperatorError(
            u"New books have been made since that day: what is closed here is in their opening "
            "balances, and nothing comes back into them."_s);
    std::vector<differences::Difference> found;
    forms::runInBackground(parent, u"What Differs From Today"_s, [&found](const Progress& progress) {
        progress.step(u"comparing both shops"_s, [&] {
            ado::Connection then;
            ado::Connection now;
            then.open(current().path, databasePassword(), ado::Connection::Mode::ReadOnly);
            now.open(session.databasePath(), databasePassword(), ado::Connection::Mode::ReadOnly);
            then.endWhenAsked(progress.stop);
            now.endWhenAsked(progress.stop);
            found = differences::between(then, now);
        });
    });
    frmDifferences(std::move(found)).showModal();
}

differences::Returned bringToLivingShop(const differences::Difference& difference)
{
    const differences::Kept kept = differences::read(DE.connection(), difference);
    DE.close();
    differences::Returned returned;
    try {
        DE.open(session.databasePath());
        returned = differences::bringBack(kept);
    } catch (...) {
        openFile();
        throw;
    }
    openFile();
    return returned;
}
