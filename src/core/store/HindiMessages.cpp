#include "core/store/HindiMessages.h"

#include "core/store/Session.h"
#include "core/store/Texts.h"
#include "platform/ado/Connection.h"
#include "platform/ado/Recordset.h"

using namespace Qt::StringLiterals;

QString hindiMessage(const QString& english)
{
    ado::Connection language;
    language.open(session.languageDatabasePath(), {}, ado::Connection::Mode::ReadOnly);
    ado::Recordset messages(language);
    messages.Open(u"Select * from messages where EngMessage='"_s + sqlText(english) + u'\'');
    return messages.AtEOF() ? QString() : messages["HindiMessage"].text();
}
