#pragma once

#include <QDateTime>
#include <QString>

/// The picture files of job lines, in the folder of pictures beside the executable. They are the living
/// shop's: a shop that is only looked at makes and deletes none, and gets an OperatorError.
namespace picturefiles {

/// A path that no file has yet: the folder, the client's name, the day as DD_MM_YYYY, then weekday (1 is
/// Sunday), last digit of the minute and seconds of the time, and the number of the picture. A time that is
/// taken moves on by a second. Throws OperatorError when all are taken.
QString newPath(const QString& client, const QDateTime& now, int picture);

/// Copies a file into the folder of pictures as it is; makes the folder if it is missing. Throws
/// OperatorError, with nothing left behind, when it is no picture or cannot be copied.
void copy(const QString& source, const QString& target);

/// Deletes the picture of a link from the folder of pictures; one that is not there is no fault. Throws
/// OperatorError.
void remove(const QString& link);

} // namespace picturefiles
