#pragma once

class QString;

/// The key filter of money boxes: digits, Backspace, the key of code 12 and one "." pass; all else gives 0,
/// no keystroke.
int NumKey(const QString& text, int key);
