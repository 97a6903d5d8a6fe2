#pragma once

#include <QString>

class QLockFile;

/// What QFile leaves out: files for the owner alone, safety at a power cut, and which file a name stands for.
namespace files {

/// Lets only the owner use the file (0600) or folder (0700) from now on. One that can't be changed stays.
void keepPrivate(const QString& path);

/// Brings a file's content, or what a folder lists, to the disk. False when the system refuses.
bool sync(const QString& path);

/// Gives a file another name in its folder, unless something has that name already, a link to nowhere
/// included. False then, and on any other refusal.
bool renameUnlessTaken(const QString& from, const QString& to);

/// Gives a file a second name in its folder, or where the file system knows none, makes a copy of that name;
/// unless something has it already. False then, and on any other refusal.
bool addName(const QString& path, const QString& name);

/// Puts a file in the place of another of the same folder, or in a free one, in one step: a reader
/// finds the old file or the new one, also after a power cut. Throws OperatorError with the system's reason.
void replace(const QString& path, const QString& with);

/// Makes an empty file for the owner alone. Throws OperatorError with the system's reason.
void createPrivate(const QString& path);

/// The name of a copy that is not finished.
inline constexpr QLatin1StringView unfinishedCopy(".unfinished-copy");
/// Copies a file so that under its new name it is whole or not there, and of the same time. A file of that
/// name is replaced. Throws OperatorError with the system's reason.
void copyWhole(const QString& from, const QString& to);

/// Takes a lock that may be held for hours; false while another program that lives holds it. That of a dead
/// program is known by the number in its file; it is none's, too, when the program died before it had written
/// the number.
bool takeLock(QLockFile& lock);

/// Tells the file that the name stands for now from any other; empty when there is none.
QByteArray identity(const QString& path);

} // namespace files
