#include "core/store/Settings.h"

#include "core/store/Rows.h"
#include "core/store/Session.h"
#include "platform/values/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

QString settingQuery(qint32 number)
{
    return u"Select * from Settings where SETTING='"_s + QString::number(number) + u'\'';
}

} // namespace

QString GetSetting(qint32 number, const QString& defaultValue)
{
    QString value = defaultValue;
    firstRow(settingQuery(number), [&value](ado::Recordset& setting) { value = setting["value"].text(); });
    return value;
}

void SetSetting(qint32 number, const QString& value)
{
    withRows(settingQuery(number), [&](ado::Recordset& setting) {
        if (setting.AtEOF())
            setting.AddNew();
        setting["Setting"] = QString::number(number);
        setting["value"] = value;
        setting.Update();
    });
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

bool IsOn(const Setting& setting)
{
    const QString value = GetSetting(setting);
    return value == "Yes"_L1 || values::Val(value) == 1;
}

double GetNumber(const Setting& setting) { return values::Val(GetSetting(setting)); }

int GetTextSize()
{
    const QString stored = GetSetting(settings::TextSize);
    for (const int size : textSizes)
        if (stored == QString::number(size))
            return size;
    return settings::TextSize.standard.toInt();
}

bool IsDarkLook() { return GetSetting(settings::ScreenLook) == darkLook; }
