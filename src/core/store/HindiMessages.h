#pragma once

#include <QString>

/// The Hindi of a message, in the letters of the shop's Hindi font, from the file of languages; empty for a
/// message without one. Throws ado::DatabaseError where the file cannot be read.
QString hindiMessage(const QString& english);
