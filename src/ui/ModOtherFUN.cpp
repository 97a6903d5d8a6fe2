#include "ui/ModOtherFUN.h"

#include "platform/forms/ComboBox.h"
#include "platform/forms/Keys.h"
#include "platform/forms/ListBox.h"
#include "ui/NumKey.h"
#include "ui/boxes.h"
#include "ui/cSendKeys.h"
#include "ui/frmMsg.h"

#include <QApplication>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

using namespace forms;

namespace {

void shorten(ComboBox& combo)
{
    const QString text = combo.text();
    const bool cutAtSelection = combo.selStart() > 0 && combo.selLength() > 0;
    const QString rest = cutAtSelection ? text.left(combo.selStart()) : text.chopped(text.isEmpty() ? 0 : 1);
    combo.setText(rest);
    combo.select(int(rest.size()), 0);
}

void complete(ComboBox& combo, const QString& typed)
{
    ComboDropDown(combo);
    const int found = combo.findString(typed);
    if (found < 0) {
        QApplication::beep();
        return;
    }
    combo.setListIndex(found);
    combo.select(int(typed.size()), int(combo.text().size() - typed.size()));
}

} // namespace

int AutoSearchCombo(ComboBox& combo, int key)
{
    combo.setCursor(Qt::WaitCursor);
    const auto pointerBack = qScopeGuard([&combo] { combo.unsetCursor(); });
    if (key == key::Enter) {
        combo.select(int(combo.text().size()), 0);
        return key;
    }
    if (key == key::Backspace) {
        shorten(combo);
    } else if (key >= key::Blank) {
        const char32_t character = char32_t(key);
        const QString kept = combo.selLength() > 0 ? combo.text().left(combo.selStart()) : combo.text();
        complete(combo, kept + QString::fromUcs4(&character, 1));
    }
    return 0;
}

void ComboDropDown(ComboBox& combo) { combo.dropDown(); }

int ComboFindIndex(ComboBox& combo)
{
    if (combo.ListIndex() >= 0)
        return combo.ListIndex();
    const int whole = combo.findText(combo.text(), Qt::MatchFixedString);
    const int found = whole >= 0 ? whole : combo.findString(combo.text());
    if (found >= 0)
        combo.setListIndex(found);
    return found;
}

void ComboSyncIndex(ComboBox& combo)
{
    ComboFindIndex(combo);
    combo.select(0, int(combo.text().size()));
}

int NumbersOnly(const QLineEdit& box, int key) { return NumKey(boxes::unselectedText(box), key); }

int EnterAsTab(int key)
{
    if (key != key::Enter)
        return key;
    cSendKeys().SendKeys(u"{tab}"_s);
    return 0;
}

int ArrowsAsTab(int key)
{
    if (key != key::PageDown && key != key::PageUp)
        return key;
    cSendKeys().SendKeys(key == key::PageDown ? u"{tab}"_s : u"+{tab}"_s);
    return 0;
}

void ListSearch(ListBox& list, int& key)
{
    const int last = list.ListCount() - 1;
    switch (key) {
    case key::Up:
        key = 0;
        if (list.ListIndex() > 0)
            list.setListIndex(list.ListIndex() - 1);
        break;
    case key::Down:
        key = 0;
        if (list.ListIndex() < last)
            list.setListIndex(list.ListIndex() + 1);
        break;
    case key::End:
        if (last >= 0)
            list.setListIndex(last);
        break;
    case key::Home:
        if (last >= 0)
            list.setListIndex(0);
        break;
    default:
        break;
    }
}

bool ShowMsg(const QString& message, int kind)
{
    qint16 result = 0;
    frmMsg().ShowMessage(message, kind, result);
    return result != 0;
}

SmsWay AskSms(const QString& question)
{
    qint16 result = 0;
    frmMsg dialog;
    dialog.offerPhone();
    dialog.ShowMessage(question, 2, result);
    return SmsWay(result);
}
