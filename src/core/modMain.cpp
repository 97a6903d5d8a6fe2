#include "core/modMain.h"

#include "core/DE.h"
#include "core/Schema.h"
#include "core/Session.h"
#include "core/Startup.h"
#include "core/frmMain.h"
#include "platform/forms/MessageBox.h"

#include <QFileInfo>

namespace {

bool openDatabase()
{
    if (!QFileInfo(session.databasePath()).isFile())
        CreateDatabase();
    MakeImagesFolder();
    DE.open(session.databasePath());
    if (!CheckDatabaseVersion()) {
        forms::plainMessage(nullptr,
                            QStringLiteral("Invalid Database!\r\nSeamwise Can not Run with this Database!"));
        return false;
    }
    DE.ensureIndexes();
    LoadSessionDefaults();
    return true;
}

} // namespace

bool Main()
{
    try {
        return openDatabase() && frmMain::start();
    } catch (const OperatorError& error) {
        forms::criticalMessage(nullptr, error.text());
        return false;
    }
}
