#pragma once

class QAbstractItemView;

namespace forms {

/// Writes the property `emptyText` of a list quietly into its middle as long as it has no rows: how it gets
/// some. For the end of the list's paint event.
void paintEmptyText(const QAbstractItemView& list);

} // namespace forms
