#pragma once

#include <QByteArray>
#include <QString>
#include <limits>

namespace report {

class Pages;

/// The pages from `first` to `last` (from 0; both are brought into range) as a PDF file.
QByteArray pdf(const Pages& pages, const QString& title, int first = 0,
               int last = std::numeric_limits<int>::max());

/// Writes a file whole or not at all. Throws OperatorError, which names the file, when the folder or the disk
/// refuses it.
void saveFile(const QByteArray& content, const QString& path);

} // namespace report
