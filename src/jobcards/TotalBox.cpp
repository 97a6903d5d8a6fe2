#include "jobcards/TotalBox.h"

#include "platform/forms/Keys.h"
#include "platform/values/Numbers.h"
#include "ui/ModOtherFUN.h"
#include "ui/boxes.h"

using namespace Qt::StringLiterals;

TotalBox::TotalBox(QWidget* parent)
    : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this, &TotalBox::reformat);
}

void TotalBox::reformat(const QString& typed)
{
    const QString formatted = values::formatMoneyText(typed);
    if (formatted == typed)
        return;
    const auto point = [](const QString& text) {
        const auto at = text.indexOf(u'.');
        return int(at < 0 ? text.size() : at);
    };
    const int fromPoint = cursorPosition() - point(typed);
    setText(formatted);
    setCursorPosition(qBound(0, point(formatted) + fromPoint, int(formatted.size())));
}

void TotalBox::keyPressEvent(QKeyEvent* event)
{
    const bool beforePoint = !hasSelectedText() && text().mid(cursorPosition(), 1) == "."_L1;
    if (beforePoint && forms::keyNumber(*event) == forms::key::Delete) {
        cursorForward(false);
        return event->accept();
    }
    boxes::withFilteredKey(
        *event, [this](int key) { return filterKey(key); },
        [this](QKeyEvent* e) { QLineEdit::keyPressEvent(e); });
}

int TotalBox::filterKey(int key)
{
    const int caret = cursorPosition();
    const bool plainCaret = !hasSelectedText();
    if (plainCaret && key == '.' && text().mid(caret, 1) == "."_L1)
        cursorForward(false);
    if (plainCaret && key == forms::key::Backspace && caret > 0 && text().at(caret - 1) == u'.') {
        cursorBackward(false);
        return 0;
    }
    return NumbersOnly(*this, key);
}
