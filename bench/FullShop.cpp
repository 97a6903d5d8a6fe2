#include "FullShop.h"

#include "core/DE.h"
#include "core/Session.h"
#include "core/Startup.h"

#include <QFile>

namespace {

QStringList texts(const QString& sql)
{
    QStringList result;
    ado::Recordset rows(DE.connection());
    for (rows.Open(sql); !rows.AtEOF(); rows.MoveNext())
        result << rows[0].text();
    return result;
}

} // namespace

FullShop::FullShop()
{
    session = Session();
    session.appFolder = m_folder.path();
    if (!QFile::copy(QStringLiteral(FULL_SHOP), session.databasePath()))
        qFatal("there is no full shop at " FULL_SHOP);
    DE.open(session.databasePath());
    DE.ensureIndexes();
    LoadSessionDefaults();
    s_clients = texts(QStringLiteral("Select Title from Accounts where type=0 order by id"));
    s_garments = texts(QStringLiteral("Select Name from Items order by id"));
}

FullShop::~FullShop() { DE.close(); }
