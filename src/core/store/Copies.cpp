#include "core/store/Copies.h"

#include "core/store/DE.h"
#include "core/store/Schema.h"
#include "core/store/Session.h"
#include "core/store/Settings.h"
#include "core/store/Texts.h"
#include "platform/devices/Files.h"
#include "platform/values/Dates.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace copies {

namespace {

constexpr int days = 7;
constexpr int weeks = 4;
constexpr int months = 12;

constexpr auto everyFile = QDir::Files | QDir::Hidden | QDir::System;

/// When the shop's file was changed last: each write of the engine changes its time.
QDateTime lastChange() { return QFileInfo(session.databasePath()).lastModified(); }

bool isNewer(const Copy& one, const Copy& other)
{
    return std::pair(one.day, one.changed) > std::pair(other.day, other.changed);
}

QList<Copy> filesIn(const QString& folder, const QString& pattern)
{
    QList<Copy> found;
    for (const QFileInfo& file : QDir(folder).entryInfoList({pattern}, everyFile, QDir::Name))
        if (file.isFile())
            found << read(file.filePath());
    std::sort(found.begin(), found.end(), isNewer);
    return found;
}

/// A month, or a week, of a day: a number that grows with time.
qint64 monthOf(const QDate& day) { return day.year() * qint64(months) + day.month(); }
qint64 weekOf(const QDate& day) { return (day.toJulianDay()) / 7; } // a Monday begins each

/// Keeps the first day of each of so many spans, from the place `next` on, and moves that behind them.
void keepOfSpans(const QList<QDate>& newestFirst, qsizetype& next, int spans, qint64 (*spanOf)(const QDate&),
                 QSet<QDate>& kept)
{
    // A span that the closer copies have reached into already is theirs.
    qint64 last = next > 0 ? spanOf(newestFirst[next - 1]) : -1;
    for (int found = 0; next < newestFirst.size(); ++next) {
        const qint64 span = spanOf(newestFirst[next]);
        if (span == last)
            continue;
        if (found == spans)
            return;
        ++found;
        kept << newestFirst[next];
        last = span;
    }
}

void keepOf(const QList<QDate>& newestFirst, QSet<QDate>& kept)
{
    qsizetype next = std::min<qsizetype>(days, newestFirst.size());
    kept.unite(QSet<QDate>(newestFirst.begin(), newestFirst.begin() + next));
    keepOfSpans(newestFirst, next, weeks, weekOf, kept);
    keepOfSpans(newestFirst, next, months, monthOf, kept);
}

/// Removes what the rule lets go, and never the copy just made.
void thin(const QString& madeNow)
{
    const QList<Copy> all = inFolder(folder());
    QList<QDate> found;
    for (const Copy& copy : all)
        if (copy.day.isValid())
            found << copy.day;
    const QSet<QDate> stay = kept(found, QDate::currentDate());
    for (const Copy& copy : all)
        if (copy.day.isValid() && !stay.contains(copy.day) && QFileInfo(copy.path).fileName() != madeNow)
            QFile::remove(copy.path);
}

} // namespace

QString lockPath() { return session.appFolder + u"/data.copy.lock"_s; }

QString folder() { return session.appFolder + u"/copies"_s; }

QString fileName(const QDate& day, const QDate& workingDay)
{
    return u"shop-%1-works-on-%2.mdb"_s.arg(values::CStr(day), values::CStr(workingDay));
}

std::optional<std::pair<QDate, QDate>> readFileName(const QString& name)
{
    static const QRegularExpression form(
        u"^shop-(\\d{4}-\\d\\d-\\d\\d)-works-on-(\\d{4}-\\d\\d-\\d\\d)\\.mdb$"_s);
    const QRegularExpressionMatch match = form.match(name);
    const QDate day = QDate::fromString(match.captured(1), Qt::ISODate);
    const QDate workingDay = QDate::fromString(match.captured(2), Qt::ISODate);
    if (!day.isValid() || !workingDay.isValid())
        return {};
    return std::pair(day, workingDay);
}

Copy read(const QString& path)
{
    const QFileInfo file(path);
    Copy copy;
    copy.path = path;
    copy.changed = file.lastModified();
    copy.size = file.size();
    if (const auto named = readFileName(file.fileName()))
        std::tie(copy.day, copy.workingDay) = *named;
    return copy;
}

QList<Copy> inFolder(const QString& folder) { return filesIn(folder, u"*.mdb"_s); }

QList<Copy> putAside() { return filesIn(session.appFolder, u"data.before-restore*.mdb"_s) + oldBooks(); }

QList<Copy> oldBooks() { return filesIn(session.appFolder, u"data.books-to-*.mdb"_s); }

QDate lastDayOfBooks(const QString& path)
{
    const QString name = QFileInfo(path).completeBaseName();
    const QString before = u"data.books-to-"_s;
    return name.startsWith(before) ? QDate::fromString(name.mid(before.size()), Qt::ISODate) : QDate();
}

QSet<QDate> kept(const QList<QDate>& days, const QDate& today)
{
    QList<QDate> past;
    QList<QDate> future;
    for (const QDate& day : QSet<QDate>(days.begin(), days.end()))
        (day > today ? future : past) << day;
    QSet<QDate> stay;
    for (QList<QDate>* group : {&past, &future}) {
        std::sort(group->begin(), group->end(), std::greater<>());
        keepOf(*group, stay);
    }
    return stay;
}

Contents contentsOf(const QString& path)
{
    ado::Connection connection;
    connection.open(path, databasePassword(), ado::Connection::Mode::ReadOnly);
    archive::Counts counts = archive::countRows(connection);
    return {counts[u"JOBS"_s], counts[u"postings"_s]};
}

bool isDue()
{
    const QDateTime changed = lastChange();
    const QList<Copy> all = inFolder(folder());
    return std::none_of(all.begin(), all.end(),
                        [&](const Copy& copy) { return copy.day.isValid() && copy.changed == changed; });
}

Making::Making(const QDate& workingDay)
    : m_lock(lockPath())
    , m_workingDay(workingDay)
{
    if (!files::takeLock(m_lock))
        throw OperatorError(u"Another program is at a copy of this shop, or the shop's folder cannot be "
                            "written: "_s +
                            QDir::toNativeSeparators(session.appFolder));
    if (!QDir().mkpath(folder()))
        throw OperatorError(u"The folder %1 cannot be made."_s.arg(QDir::toNativeSeparators(folder())));
    files::keepPrivate(folder());
    m_scratch = std::make_unique<archive::Scratch>(folder() + u'/' + archive::unfinishedCopy);
    m_copy = std::make_unique<ado::FileCopy>(DE.connection(), m_scratch->path(), databasePassword());
}

bool Making::step(int pages)
{
    if (!m_copy->step(pages))
        return false;
    settle();
    return true;
}

/// What the copy holds, and of when, while nothing can have come between.
void Making::settle()
{
    m_changed = lastChange();
    if (!m_workingDay.isValid())
        m_workingDay = m_changed.date();
    m_counts = archive::countRows(DE.connection());
}

void Making::takePlace()
{
    if (archive::prove(m_scratch->path(), {}) != m_counts)
        throw OperatorError(u"The copy holds other records than the shop."_s);
    QFile file(m_scratch->path());
    if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(m_changed, QFileDevice::FileModificationTime))
        throw OperatorError(file.fileName() + u": "_s + file.errorString());
    file.close();
    const QString name = fileName(m_changed.date(), m_workingDay);
    files::replace(folder() + u'/' + name, m_scratch->path());
    for (const Copy& copy : inFolder(folder())) // the day's earlier state
        if (copy.day == m_changed.date() && QFileInfo(copy.path).fileName() != name &&
            copy.changed <= m_changed)
            QFile::remove(copy.path);
    thin(name);
}

void bringTo(const QString& backupFolder)
{
    if (backupFolder.isEmpty())
        return;
    const QList<Copy> all = inFolder(folder());
    if (all.isEmpty() || !all.first().day.isValid())
        return;
    // A day from when the clock was wrong may stand before it.
    const auto asTheShop = std::find_if(all.begin(), all.end(), [](const Copy& copy) {
        return copy.day.isValid() && copy.changed == lastChange();
    });
    const Copy& newest = asTheShop == all.end() ? all.first() : *asTheShop;
    if (!QFileInfo(backupFolder).isDir())
        throw OperatorError(u"There is no folder %1: the copy of %2 lies on this computer alone."_s.arg(
            QDir::toNativeSeparators(backupFolder), dateText(newest.day)));
    const QString to = backupFolder + u"/SEcopies"_s;
    const QString name = QFileInfo(newest.path).fileName();
    if (const QFileInfo there(to + u'/' + name);
        there.size() == newest.size && qAbs(there.lastModified().secsTo(newest.changed)) <= 2)
        return;
    if (!QDir().mkpath(to))
        throw OperatorError(u"The folder %1 cannot be made."_s.arg(QDir::toNativeSeparators(to)));
    files::keepPrivate(to);
    files::copyWhole(newest.path, to + u'/' + name);
    const QByteArray birthMark = archive::birthMark(newest.path);
    for (const Copy& copy : inFolder(to))
        if (copy.day.isValid() && QFileInfo(copy.path).fileName() != name &&
            archive::birthMark(copy.path) == birthMark)
            QFile::remove(copy.path);
}

void finishDay()
{
    if (!DE.connection().isOpen() || !session.LookedAt.isEmpty())
        return; // the shop's file has been exchanged, or the open one is not the living shop's
    try {
        const QString backupFolder = GetSetting(settings::BackupFolder);
        if (isDue()) {
            constexpr int all = -1;
            Making making(session.WorkingDate);
            if (making.step(all))
                making.takePlace();
        }
        bringTo(backupFolder);
    } catch (const OperatorError&) { // the next start tries again, and tells
    }
}

} // namespace copies
