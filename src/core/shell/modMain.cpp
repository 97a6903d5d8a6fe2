#include "core/shell/modMain.h"

#include "core/shell/Look.h"
#include "core/shell/frmMain.h"
#include "core/store/Backup.h"
#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/SchemaSteps.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Startup.h"
#include "core/store/Texts.h"
#include "masters/ClientFolder.h"
#include "platform/devices/Files.h"
#include "platform/forms/MessageBox.h"
#include "platform/report/ListPaper.h"
#include "registers/frmClientFolder.h"
#include "ui/Appearance.h"
#include "ui/PaperPrinters.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

bool openDatabase()
{
    MakeShopFolder();
    if (!QFileInfo(session.databasePath()).isFile())
        CreateDatabase();
    MakeImagesFolder();
    DE.open(session.databasePath());
    files::keepPrivate(session.databasePath()); // its journal takes after it
    if (!bringUpToDate()) {
        forms::plainMessage(nullptr, u"Invalid Database!\r\nSeamwise Can not Run with this Database!"_s);
        return false;
    }
    DE.ensureIndexes();
    LoadSessionDefaults();
    ApplyAppearance();
    clearLeftovers(GetSetting(settings::BackupFolder));
    return true;
}

} // namespace

void openShopAhead()
{
    if (QFileInfo(session.databasePath()).isFile())
        ado::openAhead(session.databasePath(), databasePassword());
}

bool Main()
{
    setClientFolder([](const QString& client) { frmClientFolder().ShowClient(client); });
    setOldBooks(lookIntoBooks);
    rememberPrinters();
    report::setListHeading([] {
        return report::ListHeading{session.ShownShopName, dateText(session.WorkingDate)};
    });
    try {
        auto screen = std::make_unique<frmMain>();
        screen->prepare(); // while the file is being opened
        return openDatabase() && frmMain::start(std::move(screen));
    } catch (const OperatorError& error) {
        forms::criticalMessage(nullptr, error.text());
        return false;
    }
}
