#pragma once

#include <QString>
#include <vector>

class QWidget;

namespace report {

/// A kind of file that the dialog offers: its ending without the dot, and how the list of kinds names it.
struct FileKind
{
    QString suffix;
    QString text;
};

/// Asks where to save a file, with a name proposed in the operator's documents. Empty when the operator gives
/// up. A name without an ending gets that of the chosen kind, and one with another kind's ending changes with
/// the choice.
QString askSavePath(QWidget* parent, const QString& title, const QString& name,
                    const std::vector<FileKind>& kinds);

} // namespace report
