#pragma once

#include <QStringList>
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
/// Asks for a line of text; "" on Cancel and Esc. What was answered before can be chosen from a list below
/// the box, with Up and Down while the keys stay in the box, or by the mouse; a double click takes it at
/// once.
QString inputBox(QWidget* parent, const QString& prompt, const QString& title,
                 const QStringList& earlier = {});

} // namespace forms
