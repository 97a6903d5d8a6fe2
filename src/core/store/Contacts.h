#pragma once

#include "platform/ado/Recordset.h"

#include <QStringList>

/// How the shop reaches a client or a worker. All throw ado::DatabaseError.

/// The mobile number of a client, by title, or by id where one is given (above 0); empty when there is no
/// such client. Workers and ledger accounts are never found.
QString GetClientMobile(const QString& title, qint16 id);

/// Mobile, address and city of an account in one line, "No Information Found" when all three are empty; empty
/// when there is no such account.
QString GetClientContact(qint16 id);

/// The same of what an account holds.
QString contactText(const QString& mobile, const QString& address, const QString& city);

/// Title and contact of an account, for a heading; what is empty is left out.
struct AccountContact
{
    QString title;
    QStringList lines; ///< address, city, mobile

    /// Throws ado::NoCurrentRecordError for an account that is gone.
    static AccountContact of(qint32 id);
};
