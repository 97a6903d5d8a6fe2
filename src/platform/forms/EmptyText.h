#pragma once

class QAbstractItemView;

namespace forms {

/// Writes the property `emptyText` of an empty list quietly into its middle: why it has no rows, how it gets
/// some. For the end of the list's paint event.
void paintEmptyText(const QAbstractItemView& list);

} // namespace forms
