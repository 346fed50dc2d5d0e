#pragma once

#include "markers/OwnOwner.h"
#include "rows/RowView.h"

#include <cstddef>

namespace vantrell
{

/// Counts, a few at a time, how many markers of a list stand under another sequence or clip than their own.
/// Main thread; starts anew for another list and after any edit.
class UnderOthers
{
public:
    /// Goes on with at most that many rows of the list; true when all are counted.
    bool work(const RowList &list, std::size_t rows);
    /// Of those that were looked at so far.
    std::size_t count() const { return m_count; }

private:
    std::size_t m_next = 0; ///< index of the next row
    std::size_t m_count = 0;
    XmlNode m_parent; ///< of the last row's marker
    OwnOwner m_own;   ///< of the markers in it
};

} // namespace vantrell
