#pragma once

#include <QString>

/// `u"..."_s` and `"..."_L1` for headers; a .cpp file states the directive for itself.
using namespace Qt::StringLiterals;
