#pragma once

#include "platform/report/Pages.h"
#include "platform/report/Pdf.h"
#include "platform/report/Report.h"

#include <QImage>
#include <QPainter>
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

/// The first page of a paper as a printer of so many dots to the inch makes it.
inline QImage printed(const report::Report& paper, double resolution)
{
    const double dots = resolution / report::twipsPerInch;
    const report::Pages pages(paper);
    QImage page((pages.size() * dots).toSize(), QImage::Format_RGB32);
    page.fill(Qt::white);
    QPainter painter(&page);
    painter.scale(dots, dots);
    pages.paint(painter, 0);
    return page;
}

/// What a scanner reads on the first page of a printer of 203 dots to the inch, a code a line; `file` takes
/// the page's picture.
inline QString scanned(const report::Report& paper, const QString& file)
{
    printed(paper, 203).save(file);
    QProcess reader;
    reader.start("zbarimg", {"-q", "--raw", file});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput()).trimmed();
}

/// The text of a paper's pages; of each run of blanks one is left.
inline QStringList readBack(const report::Report& paper)
{
    QStringList pages = readBack(report::pdf(report::Pages(paper), paper.Title));
    for (QString& page : pages)
        page = page.simplified();
    return pages;
}
