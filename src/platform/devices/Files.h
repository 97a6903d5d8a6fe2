#pragma once

#include <QString>

/// What QFile leaves out: privacy, safety at a power cut, and which file a name stands for.
namespace files {

/// Lets only the owner use the file (0600) or folder (0700) from now on. One that can't be changed stays.
void keepPrivate(const QString& path);

/// Brings a file's content, or what a folder lists, to the disk. False when the system refuses.
bool sync(const QString& path);

/// Gives a file another name in its folder, unless something has that name already, a link to nowhere
/// included. False then, and on any other refusal.
bool renameUnlessTaken(const QString& from, const QString& to);

/// Tells the file that the name stands for now from any other; empty when there is none.
QByteArray identity(const QString& path);

} // namespace files
