#include "core/store/Startup.h"

#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/devices/Files.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

void MakeImagesFolder()
{
    if (QDir().mkdir(session.imagesFolder()))
        files::sync(session.appFolder);
    if (QFileInfo(session.imagesFolder()).isDir())
        files::keepPrivate(session.imagesFolder());
}

bool CheckDatabaseVersion() { return values::Val(GetSetting(settings::DatabaseVersion)) == DatabaseVersion; }

QDate StoredWorkingDate()
{
    const QDate stored = values::readDate(GetSetting(settings::WorkingDate));
    return stored.isValid() ? stored : values::CDate(settings::WorkingDate.standard);
}

void LoadSessionDefaults()
{
    session.Language = GetSetting(settings::Language);
    session.WorkingDate = StoredWorkingDate();
    if (GetSetting(settings::SystemDateAtStart) == "1"_L1)
        session.WorkingDate = QDate::currentDate();
}
