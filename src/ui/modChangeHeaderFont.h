#pragma once

class QTreeView;

/// Gives the headings of `list` the font of the headings of `fontList`, weight included; `bold` has no say in
/// it.
void ChangeHeaderFont(QTreeView& list, const QTreeView& fontList, int bold);
