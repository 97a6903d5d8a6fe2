#pragma once

#include <QString>
#include <functional>

/// The plain critical box of code that knows no widgets. The program sets the handler to a real message box;
/// without one the text goes to the warning log.
namespace values {

void setCriticalNotice(std::function<void(const QString& text)> handler);
void criticalNotice(const QString& text);

} // namespace values
