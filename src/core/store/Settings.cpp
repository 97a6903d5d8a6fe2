#include "core/store/Settings.h"

#include "core/store/DE.h"
#include "core/store/Session.h"

using namespace Qt::StringLiterals;

namespace {

QString settingQuery(qint32 number)
{
    return u"Select * from Settings where SETTING='"_s + QString::number(number) + u'\'';
}

} // namespace

QString GetSetting(qint32 number, const QString& defaultValue)
{
    ado::Recordset& settings = DE.rsSettings;
    settings.Open(settingQuery(number));
    const QString value = settings.AtEOF() ? defaultValue : settings["value"].text();
    settings.Close();
    return value;
}

void SetSetting(qint32 number, const QString& value)
{
    ado::Recordset& settings = DE.rsSettings;
    settings.Open(settingQuery(number));
    if (settings.RecordCount() < 1)
        settings.AddNew();
    settings["Setting"] = QString::number(number);
    settings["value"] = value;
    settings.UpdateBatch();
    settings.Close();
}

QString GetSetting(const Setting& setting) { return GetSetting(setting, setting.standard); }

QString GetSetting(const Setting& setting, const QString& otherwise)
{
    return GetSetting(setting.number, otherwise);
}

void SetSetting(const Setting& setting, const QString& value) { SetSetting(setting.number, value); }

void RememberSetting(const Setting& setting, const QString& value)
{
    if (session.LookedAt.isEmpty())
        SetSetting(setting, value);
}
