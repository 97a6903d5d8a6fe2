#pragma once

/// Gives all screens the text size and the look that the shop's settings have, at once. Throws
/// ado::DatabaseError.
void ApplyAppearance();
