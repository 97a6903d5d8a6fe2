#pragma once

#include <QString>

namespace values {

/// The text of a file in UTF-8, with or without its mark. Throws OperatorError, which names the file, for one
/// that is gone, cannot be read, is empty, larger than 32 MB, no text, or in another encoding than UTF-8; the
/// line where the bytes are none is named then.
QString readTextFile(const QString& path);

} // namespace values
