#pragma once

#include <QString>

/// A shop that is looked at as it was on some day takes no change. The engine refuses what would be written
/// into its file; what goes elsewhere (pictures, messages to clients) asks here first.

/// The one sentence that refuses a change.
QString lookRefusal();

/// Throws OperatorError with that sentence while another shop than the living one is looked at.
void requireLivingShop();
