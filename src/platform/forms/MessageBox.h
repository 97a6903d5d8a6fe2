#pragma once

#include <QString>
#include <optional>

class QWidget;

/// Plain system message boxes. They are always in English.
namespace forms {

void plainMessage(QWidget* parent, const QString& text);
void criticalMessage(QWidget* parent, const QString& text);
/// A question with Yes and No; true for Yes. Esc is No.
bool askPlain(QWidget* parent, const QString& text);
/// The same with Cancel, which Esc is; nothing for that.
std::optional<bool> askPlainOrCancel(QWidget* parent, const QString& text);
/// Asks for a line of text; "" on Cancel and Esc.
QString inputBox(QWidget* parent, const QString& prompt, const QString& title);

} // namespace forms
