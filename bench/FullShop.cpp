#include "FullShop.h"

#include "core/store/DE.h"
#include "core/store/Session.h"
#include "core/store/Startup.h"

#include <QFile>

using namespace Qt::StringLiterals;

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
    if (!QFile::copy(QString::fromUtf8(FULL_SHOP), session.databasePath()))
        qFatal("there is no full shop at " FULL_SHOP);
    DE.open(session.databasePath());
    DE.ensureIndexes();
    LoadSessionDefaults();
    s_clients = texts(u"Select Title from Accounts where type=0 order by id"_s);
    s_garments = texts(u"Select Name from Items order by id"_s);
}

void FullShop::touch() { DE.connection().Execute(u"Update Jobs set ID=ID where ID=1"_s); }

FullShop::~FullShop() { DE.close(); }
