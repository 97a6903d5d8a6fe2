#pragma once

#include <QString>

class QWidget;

namespace report {

/// Asks where to save a file, with a name proposed in the operator's documents. Empty when the operator gives
/// up.
QString askSavePath(QWidget* parent, const QString& title, const QString& name, const QString& suffix,
                    const QString& kinds);

} // namespace report
