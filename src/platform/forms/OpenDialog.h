#pragma once

#include <QString>

class QWidget;

namespace forms {

/// Asks for a file to be read, beginning with the operator's documents. Empty when the operator gives up.
QString askOpenPath(QWidget* parent, const QString& title, const QString& kinds);

} // namespace forms
