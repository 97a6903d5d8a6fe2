#include "core/shell/Startup.h"

#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "platform/values/Dates.h"
#include "platform/values/Numbers.h"

#include <QDir>

using namespace Qt::StringLiterals;

void MakeImagesFolder() { QDir().mkdir(session.imagesFolder()); }

bool CheckDatabaseVersion() { return values::Val(GetSetting(16, u"0"_s)) == DatabaseVersion; }

void LoadSessionDefaults()
{
    const QString never = u"1-April-2011"_s;
    session.Language = GetSetting(0, u"English"_s);
    session.WorkingDate = values::readDate(GetSetting(1, never));
    if (!session.WorkingDate.isValid())
        session.WorkingDate = values::CDate(never);
    if (GetSetting(22, u"0"_s) == "1"_L1)
        session.WorkingDate = QDate::currentDate();
}
