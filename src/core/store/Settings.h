#pragma once

#include <QString>

/// The options of the shop, kept as numbered texts. A setting without a row has the default that its reader
/// names. Both use the shared recordset `DE.rsSettings` and throw ado::DatabaseError.
QString GetSetting(qint32 number, const QString& defaultValue);
void SetSetting(qint32 number, const QString& value);
