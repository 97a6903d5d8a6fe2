#pragma once

#include <QKeyEvent>

/// Keys as the screens know them. A key press is a character code (a letter's code, 13, 27, 8, 1 for Ctrl+A
/// ...); a key-down is a key number (the page keys, arrows, F2 ...). In both 0 means: swallowed.
namespace forms {

namespace key {
inline constexpr int Backspace = 8;
inline constexpr int Tab = 9;
inline constexpr int Enter = 13;
inline constexpr int Escape = 27;
inline constexpr int CtrlA = 1;
inline constexpr int CtrlD = 4;
inline constexpr int CtrlE = 5;
inline constexpr int CtrlF = 6;
inline constexpr int CtrlP = 16;
inline constexpr int CtrlS = 19;
inline constexpr int CtrlZ = 26;
inline constexpr int Blank = 32;
// key-down numbers
inline constexpr int PageUp = 33;
inline constexpr int PageDown = 34;
inline constexpr int End = 35;
inline constexpr int Home = 36;
inline constexpr int Left = 37;
inline constexpr int Up = 38;
inline constexpr int Right = 39;
inline constexpr int Down = 40;
inline constexpr int Delete = 46;
inline constexpr int F1 = 112; // F2 is 113, and so on
inline constexpr int F2 = F1 + 1;
inline constexpr int F3 = F1 + 2;
inline constexpr int F5 = F1 + 4;
inline constexpr int F6 = F1 + 5;
inline constexpr int F7 = F1 + 6;
inline constexpr int F8 = F1 + 7;
inline constexpr int F11 = F1 + 10;
} // namespace key

/// The character code of a key event (Unicode beyond the control codes); 0 when the key makes no character.
/// Alt with a letter makes none, nor do the Delete key and Tab.
int charCode(const QKeyEvent& event);
/// The key number of a key event; 0 for a key that has none.
int keyNumber(const QKeyEvent& event);
/// The key event that types another character instead.
QKeyEvent withCharCode(const QKeyEvent& event, int code);

} // namespace forms
