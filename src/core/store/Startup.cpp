#include "core/store/Startup.h"

#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/devices/Files.h"
#include "platform/values/Dates.h"
#include "platform/values/Errors.h"
#include "platform/values/Numbers.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

void FindFolders(const QString& programFolder)
{
    session.appFolder = programFolder;
    session.partsFolder = programFolder;
    const QString parts = QDir::cleanPath(programFolder + u"/../share/seamwise"_s);
    if (!QFileInfo(parts).isDir())
        return;
    session.partsFolder = parts;
    if (!QFileInfo(session.databasePath()).isFile())
        session.appFolder =
            QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/seamwise"_s;
}

void MakeShopFolder()
{
    if (QFileInfo(session.appFolder).isDir())
        return;
    if (!QDir().mkpath(session.appFolder))
        throw OperatorError(
            u"The folder %1 for the shop cannot be made."_s.arg(QDir::toNativeSeparators(session.appFolder)));
    files::keepPrivate(session.appFolder);
    files::sync(QFileInfo(session.appFolder).path());
}

void MakeImagesFolder()
{
    if (QDir().mkdir(session.imagesFolder()))
        files::sync(session.appFolder);
    if (QFileInfo(session.imagesFolder()).isDir())
        files::keepPrivate(session.imagesFolder());
}

bool CheckDatabaseVersion() { return GetNumber(settings::DatabaseVersion) == DatabaseVersion; }

QDate StoredWorkingDate()
{
    const QDate stored = values::readDate(GetSetting(settings::WorkingDate));
    return stored.isValid() ? stored : values::CDate(settings::WorkingDate.standard);
}

void LoadSessionDefaults()
{
    session.Language = GetSetting(settings::Language);
    session.WorkingDate = StoredWorkingDate();
    if (IsOn(settings::SystemDateAtStart))
        session.WorkingDate = QDate::currentDate();
}
