#pragma once

#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Report.h"

#include <QProcess>
#include <QStringList>

/// The text of a PDF file's pages, as another program reads it.
inline QStringList readBack(const QByteArray& content)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", "-", "-"}); // -layout keeps the rows together
    reader.write(content);
    reader.closeWriteChannel();
    reader.waitForFinished();
    QStringList pages = QString::fromUtf8(reader.readAllStandardOutput()).split(u'\f');
    pages.removeLast();
    return pages;
}

/// The same of a paper; of each run of blanks one is left.
inline QStringList readBack(const report::Report& paper)
{
    QStringList pages = readBack(report::pdf(report::Pages(paper), paper.Title));
    for (QString& page : pages)
        page = page.simplified();
    return pages;
}
