#pragma once

#include <QProcess>
#include <QStringList>

/// What a spreadsheet file (.xlsx) holds, a cell a line: "B2|number 0.00|-650|bold"; then the rows that do
/// not scroll, the columns' widths and the file's properties. `script`: where read_sheet.py lies.
inline QStringList readSheet(const QString& path, const QString& script)
{
    QProcess reader;
    reader.start(QStringLiteral("python3"), {script, path});
    reader.waitForFinished();
    return QString::fromUtf8(reader.readAllStandardOutput() + reader.readAllStandardError())
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}
