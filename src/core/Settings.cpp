#include "core/Settings.h"

#include "core/DE.h"

namespace {

QString settingQuery(qint32 number)
{
    return QStringLiteral("Select * from Settings where SETTING='") + QString::number(number) + u'\'';
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
