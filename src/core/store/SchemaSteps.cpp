#include "core/store/SchemaSteps.h"

#include "core/store/Archive.h"
#include "core/store/Backup.h"
#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Startup.h"
#include "platform/ado/FileCopy.h"

#include <algorithm>
#include <stop_token>

using namespace Qt::StringLiterals;

namespace {

/// Makes the steps in a copy of the shop, as one commit.
void change(const QString& copy, std::vector<SchemaStep>::const_iterator step,
            std::vector<SchemaStep>::const_iterator end)
{
    ado::Connection shop;
    shop.open(copy, databasePassword());
    shop.writeBatch([&] {
        for (; step != end; ++step)
            step->change(shop);
        shop.Execute(u"Update Settings set VALUE='%1' where SETTING='%2'"_s.arg(DatabaseVersion)
                         .arg(settings::DatabaseVersion.number));
    });
}

} // namespace

const std::vector<SchemaStep>& schemaSteps()
{
    static const std::vector<SchemaStep> steps;
    return steps;
}

bool bringUpToDate(const std::vector<SchemaStep>& steps)
{
    if (CheckDatabaseVersion())
        return true;
    const auto first = std::find_if(steps.begin(), steps.end(), [](const SchemaStep& step) {
        return step.version == GetNumber(settings::DatabaseVersion);
    });
    if (first == steps.end() || steps.back().version + 1 != DatabaseVersion)
        return false;
    const archive::Scratch copy(session.appFolder + u"/data.restoring.mdb"_s);
    ado::FileCopy(DE.connection(), copy.path(), databasePassword()).step(-1);
    change(copy.path(), first, steps.end());
    archive::prove(copy.path(), std::stop_token());
    replaceShop(copy.path());
    DE.open(session.databasePath());
    return true;
}
