#pragma once

#include "rows/Column.h"
#include "rows/RowRecord.h"
#include "rows/SortDescriptor.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantrell
{

/// Sorts rows in steps: what of them is compared is read first, and then no row is needed any more. One
/// thread at a time; for what is sorted, see sortedRows().
class RowSorter
{
public:
    RowSorter(const std::vector<SortDescriptor> &descriptors, const Columns &columns);
    RowSorter(RowSorter &&) noexcept;
    ~RowSorter();

    /// Reads the values of the next row.
    void add(const RowRecord &row);
    std::size_t size() const { return m_size; } ///< how many rows were added

    /// The rows in their order, by the order in which they were added; once.
    std::vector<std::uint32_t> order();

private:
    struct Values;

    std::vector<Values> m_values; // by descriptor
    std::size_t m_size = 0;
};

/// The rows in the order of the descriptors, most important first; rows that compare as equal keep their
/// order, as do all rows without descriptors. An absent value comes first; texts are compared without
/// regard to case, then exactly; numbers, dates and booleans by value. Each row's value is read once for
/// each descriptor. An identifier that is none of the columns' is a record key. Any thread.
RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors, const Columns &columns = {});

/// The rows in reverse order.
RowList reverseArray(const RowList &rows);

} // namespace vantrell
