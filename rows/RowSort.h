#pragma once

#include "rows/RowRecord.h"
#include "rows/SortDescriptor.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

/// The value that a row is sorted by in a column; nothing when it has none.
using SortValue = std::function<std::optional<RecordValue>(const RowRecord &row)>;
/// How the rows of a table are sorted by a column, by its identifier.
using SortValueOfColumn = std::function<SortValue(const QString &column)>;

/// The record's own value under the column's identifier.
SortValue recordValueOfColumn(const QString &column);

/// The rows in the order of the descriptors, the first one counting most; rows that they do not tell
/// apart keep their order. Without descriptors nothing moves. An absent value comes first; texts are
/// compared without regard to case, then exactly; numbers, dates and booleans by value. Each row's value
/// is asked for once a descriptor. Any thread.
RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors,
                   const SortValueOfColumn &valueOfColumn = recordValueOfColumn);

/// The rows in reverse order.
RowList reverseArray(const RowList &rows);

} // namespace vantrell
