#pragma once

#include "platform/values/Literals.h"

#include <QDate>
#include <QString>

/// Raised by a save that may put lists out of date. A list that fills itself lowers it, but each list asks
/// for itself whether anything was saved since it was filled: one that is filled first takes nothing from the
/// others.
class RefreshFlag
{
public:
    RefreshFlag& operator=(bool raised)
    {
        m_raised = raised;
        m_count += quint64(raised);
        return *this;
    }
    operator bool() const { return m_raised; }
    /// How often it was raised so far: a list keeps it when it is filled, to compare.
    quint64 count() const { return m_count; }

private:
    bool m_raised = false;
    quint64 m_count = 0;
};

/// What holds for the whole session and is read by every screen: who the shop is and what day it works on.
struct Session
{
    QString Language = u"English"_s; ///< "English" or "Hindi"; setting 0
    QDate WorkingDate;        ///< the shop's current day; records are stamped with it, never with the clock
    QDate TodayDate;          ///< the date that the main screen shows; the registers stamp with it
    RefreshFlag RefreshLists; ///< a list brought back to the front may be out of date

    // The shop's printed lines, copies of the one row of `SHOP`.
    QString ShopName;
    QString ShopAddress1;
    QString ShopAddress2;
    QString ShopAddress3;
    QString ShopContacts;

    /// The day of the shop that is looked at, as the operator reads it; empty in the living shop.
    QString LookedAt;

    QString CopyTrouble; ///< why the last day's copy of the shop is not where it should be; empty when it is

    QString ShownShopName; ///< as the main screen has it

    /// The shop's folder, without a slash at its end: the database and the pictures lie in it.
    QString appFolder;
    /// The folder of what comes with the program, the Hindi texts and the fonts. Empty where that is the
    /// shop's folder too.
    QString partsFolder;

    QString databasePath() const { return appFolder + u"/data.mdb"_s; }
    QString imagesFolder() const { return appFolder + u"/images"_s; }
    QString languageDatabasePath() const
    {
        return (partsFolder.isEmpty() ? appFolder : partsFolder) + u"/Lang.mdb"_s;
    }
};

inline Session session;
