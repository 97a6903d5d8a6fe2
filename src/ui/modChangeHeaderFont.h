#pragma once

class QTreeView;

/// Part of the system's definition; no screen calls it today.
///
/// Gives the headings of `list` the font of the headings of `fontList`, weight included; `bold` has no say in
/// it.
void ChangeHeaderFont(QTreeView& list, const QTreeView& fontList, int bold);
