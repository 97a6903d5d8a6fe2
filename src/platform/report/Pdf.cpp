#include "platform/report/Pdf.h"

#include "platform/report/Pages.h"
#include "platform/values/Errors.h"

#include <QBuffer>
#include <QDir>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace report {

QByteArray pdf(const Pages& pages, const QString& title, int first, int last)
{
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(title);
    writer.setCreator(QCoreApplication::applicationName());
    writer.setResolution(twipsPerInch);
    writer.setPageSize(QPageSize(pages.size() / 20, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter(&writer);
    first = std::clamp(first, 0, pages.count() - 1);
    last = std::clamp(last, first, pages.count() - 1);
    for (int page = first; page <= last; ++page) {
        if (page > first)
            writer.newPage();
        pages.paint(painter, page);
    }
    painter.end();
    return content;
}

void saveFile(const QByteArray& content, const QString& path)
{
    QSaveFile file(path);
    const bool written =
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(content) == content.size();
    if (!written || !file.commit())
        throw OperatorError(QDir::toNativeSeparators(path) + u"\n\n"_s + file.errorString());
}

} // namespace report
