#include "core/Startup.h"

#include "core/Schema.h"
#include "core/Session.h"
#include "core/Settings.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

#include <QDir>

void MakeImagesFolder() { QDir().mkdir(session.imagesFolder()); }

bool CheckDatabaseVersion() { return values::Val(GetSetting(16, QStringLiteral("0"))) == DatabaseVersion; }

void LoadSessionDefaults()
{
    const QString never = QStringLiteral("1-April-2011");
    session.Language = GetSetting(0, QStringLiteral("English"));
    session.WorkingDate = values::readDate(GetSetting(1, never));
    if (!session.WorkingDate.isValid())
        session.WorkingDate = values::CDate(never);
    if (GetSetting(22, QStringLiteral("0")) == QLatin1String("1"))
        session.WorkingDate = QDate::currentDate();
}
