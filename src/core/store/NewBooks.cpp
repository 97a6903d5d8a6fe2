#include "core/store/NewBooks.h"

#include "core/store/Archive.h"
#include "core/store/Backup.h"
#include "core/store/DE.h"
#include "core/store/NewBooks_Parts.h"
#include "core/store/Rows.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/ShopCheck.h"
#include "core/store/Texts.h"
#include "platform/ado/FileCopy.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace newbooks {

namespace {

const QString shopStands = u"No new books have been made: the shop is as it was."_s;

QString makingPath() { return session.appFolder + u"/data.new-books.mdb"_s; }

/// A connection of its own, that reads the shop as it is.
std::unique_ptr<ado::Connection> readShop(const QString& path, const std::stop_token& stop)
{
    auto shop = std::make_unique<ado::Connection>();
    shop->open(path, databasePassword(), ado::Connection::Mode::ReadOnly);
    shop->endWhenAsked(stop);
    return shop;
}

qint32 oneOf(ado::Connection& shop, const QString& sql)
{
    ado::Recordset row(shop);
    row.Open(sql);
    return row[0].integer();
}

/// The faults that Check the Shop finds in a file, without those that may be meant.
void refuseFaults(const QString& file, const QString& where, const Progress& progress)
{
    const shopcheck::Report report = shopcheck::run(progress, file);
    QStringList faults;
    for (const shopcheck::Finding& finding : report.findings)
        if (!finding.mayBeMeant)
            faults << finding.what;
    if (!faults.isEmpty())
        throw OperatorError(u"Check the Shop finds %1 in %2, first:\n%3\n\nPut them right there (Settings, "
                            u"Backup, Check the Shop), "
                            "then make the new books."_s.arg(
                                faults.size() == 1 ? u"a fault"_s : u"%1 faults"_s.arg(faults.size()), where,
                                faults.first()));
}

/// The first day with a card or a posting; an invalid one where there is none.
QDate firstDay(ado::Connection& shop)
{
    ado::Recordset row(shop);
    row.Open(u"Select min(Day) from (Select min(DATE) as Day from JOBS union all Select min(Date) from "
             u"postings)"_s);
    return QDate::fromString(row[0].text(), Qt::ISODate);
}

void readIdle(ado::Connection& shop, Plan& plan)
{
    ado::Recordset row(shop);
    for (row.Open(
             u"Select Id, Title, Type, (Select max(Moved) from (Select max(Date) as Moved from postings "
             u"where "
             "AccID=a.Id union all Select max(DATE) from JOBS_DETAIL where ClintID=a.Id union all Select "
             "max(DATE) from JOBS_DETAIL where WorkerID=a.Id)) as Last from Accounts as a where Id not in "
             "(Select Id from keptAccounts) order by titlekey(Title)"_s);
         !row.AtEOF(); row.MoveNext())
        plan.idle.push_back({.account = row["Id"].integer(),
                             .title = row["Title"].text(),
                             .type = row["Type"].code<AccountType>(),
                             .lastMoved = QDate::fromString(row["Last"].text(), Qt::ISODate)});
}

} // namespace

QString lastDayBefore(const QString& file)
{
    const auto shop = readShop(file, {});
    ado::Recordset row(*shop);
    row.Open(u"Select VALUE from Settings where SETTING='%1'"_s.arg(settings::OldBooksTo.number));
    return row.AtEOF() ? QString() : row[0].text();
}

QString oldBooksPath(const QDate& lastDay)
{
    return session.appFolder + u"/data.books-to-%1.mdb"_s.arg(lastDay.toString(Qt::ISODate));
}

Plan plan(const QDate& lastDay, const Progress& progress)
{
    if (!session.LookedAt.isEmpty())
        throw OperatorError(
            u"This is the shop as it was on %1, only to be looked at: nothing in it can be changed."_s.arg(
                session.LookedAt));
    const auto shop = readShop(session.databasePath(), progress.stop);
    const QDate first = firstDay(*shop);
    if (!first.isValid())
        throw OperatorError(u"There are no job cards and no vouchers yet: these books are new."_s);
    if (lastDay < first)
        throw OperatorError(
            u"The shop's first day is %1. The last day of the old books is that day or a later one."_s.arg(
                dateText(first)));
    if (QFileInfo::exists(oldBooksPath(lastDay)))
        throw OperatorError(
            u"There are old books to %1 already. Choose another last day."_s.arg(dateText(lastDay)));
    Plan plan{.lastDay = lastDay, .idle = {}};
    progress.step(u"finding out who stays behind"_s, [&] {
        choose(*shop, plan);
        readIdle(*shop, plan);
        plan.lines = oneOf(*shop, u"Select count(*) from JOBS_DETAIL"_s);
        plan.linesStay = oneOf(*shop, u"Select count(*) from keptLines"_s);
    });
    return plan;
}

Making::Making(Plan plan)
    : m_plan(std::move(plan))
{
}

Making::~Making() = default;

void Making::make(const Progress& progress)
{
    try {
        m_changed = QFileInfo(session.databasePath()).lastModified();
        refuseFaults(session.databasePath(), u"the shop"_s, progress);
        m_file = std::make_unique<archive::Scratch>(makingPath());
        const auto old = readShop(session.databasePath(), progress.stop);
        progress.step(u"copying the shop"_s, [&] {
            ado::FileCopy copy(*old, m_file->path(), databasePassword());
            while (!copy.step(1000))
                if (progress.stop.stop_requested())
                    throw Cancelled();
        });
        choose(*old, m_plan);
        ado::Connection books;
        books.open(m_file->path(), databasePassword());
        books.endWhenAsked(progress.stop);
        progress.step(u"carrying over what is needed"_s, [&] {
            choose(books, m_plan);
            carryOver(books, m_plan);
        });
        progress.step(u"proving that both agree"_s, [&] { prove(*old, books, m_plan); });
        progress.step(u"tidying the new file"_s, [&] { books.Execute(u"VACUUM"_s); });
        books.close();
        refuseFaults(m_file->path(), u"the new books"_s, progress);
    } catch (OperatorError& error) {
        m_file.reset();
        error.putBefore(shopStands);
        throw;
    }
}

void Making::takePlace(const Progress& progress)
{
    if (QFileInfo(session.databasePath()).lastModified() != m_changed)
        throw OperatorError(shopStands + u"\nIt has been changed meanwhile. Make them again."_s);
    replaceShop(m_file->path(), progress, oldBooksPath(m_plan.lastDay));
}

} // namespace newbooks
