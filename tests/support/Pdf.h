#pragma once

#include <QProcess>
#include <QStringList>

/// The text of a PDF file's pages, as another program reads it.
inline QStringList readBack(const QByteArray& content)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", "-", "-"});
    reader.write(content);
    reader.closeWriteChannel();
    reader.waitForFinished();
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
    pages.removeLast();
    return pages;
}
