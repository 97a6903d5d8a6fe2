#include "platform/values/Titles.h"

namespace values {

namespace {

constexpr QChar Straight = u'\'';
constexpr QChar Typographic = u'\u2019';

} // namespace

QString title(QString typed) { return typed.replace(Straight, Typographic); }

QString plainApostrophes(QString text) { return text.replace(Typographic, Straight); }

QString foldedTitle(const QString& text) { return plainApostrophes(text.toCaseFolded()); }

} // namespace values
