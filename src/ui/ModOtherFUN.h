#pragma once

#include <QString>

namespace forms {
class ComboBox;
class ListBox;
} // namespace forms

/// Completes names as they are typed into a combo; called with each of its key presses. Typing searches the
/// list from the top for the first entry that begins with what was typed, and selects the rest of it; without
/// a match the computer beeps and the text stays. Backspace shortens without a search. Gives the key to pass
/// on: 13 for Enter, else 0.
int AutoSearchCombo(forms::ComboBox& combo, int key);
void ComboDropDown(forms::ComboBox& combo);
/// Takes the entry whose name stands in the combo, or else the first that begins with what is typed, and
/// gives its index; -1 for none, and the text stays.
int ComboFindIndex(forms::ComboBox& combo);
/// The same, and selects the whole text, so that typing replaces it.
void ComboSyncIndex(forms::ComboBox& combo);

/// The key filter for a number in a plain box: gives the key, or 0 for one that has no place in it.
int NumbersOnly(const QString& text, int key);
/// The same for a key that comes to a box: what it replaces counts no more.
int NumbersOnly(const QLineEdit& box, int key);
/// Enter moves to the next field and gives 0; any other key comes back.
int EnterAsTab(int key);
/// Page Down and Page Up move to the next and the previous field and give 0; any other key comes back.
int ArrowsAsTab(int key);
/// The arrow keys, Home and End of a search box (its key-downs) walk the list. Up and Down are swallowed.
void ListSearch(forms::ListBox& list, int& key);

/// Shows a message in the message dialog; kind 1 has an OK button, kind 2 asks with Yes and No. True for OK
/// and Yes.
bool ShowMsg(const QString& message, int kind = 1);

/// How a client is to be told something: not at all, by the modem, or by the shop's phone.
enum class SmsWay { None, Modem, Phone };

/// Asks in the message dialog whether a client is to be told: Yes is the modem.
SmsWay AskSms(const QString& question);
