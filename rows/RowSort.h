#pragma once

#include "rows/Column.h"
#include "rows/RowRecord.h"
#include "rows/SortDescriptor.h"

#include <vector>

namespace vantrell
{

/// The rows in the order of the descriptors, most important first; rows that compare as equal keep their
/// order, as do all rows without descriptors. An absent value comes first; texts are compared without
/// regard to case, then exactly; numbers, dates and booleans by value. Each row's value is read once for
/// each descriptor. An identifier that is none of the columns' is a record key. Any thread.
RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors, const Columns &columns = {});

/// The rows in reverse order.
RowList reverseArray(const RowList &rows);

} // namespace vantrell
