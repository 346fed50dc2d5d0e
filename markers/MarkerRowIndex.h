#pragma once

#include "rows/RowRecord.h"
#include "xml/XmlNode.h"

#include <unordered_map>

namespace vantrell
{

/// Which row of the list has which marker element. Main thread.
class MarkerRowIndex
{
public:
    explicit MarkerRowIndex(const RowList &rows);

    /// A record without an element is ignored.
    void add(const RowRecordPtr &row);
    void remove(const RowRecord &row);

    /// Null for an element that no row has.
    RowRecordPtr rowOf(XmlNode marker) const;

private:
    std::unordered_map<XmlNode, RowRecordPtr> m_rows;
};

} // namespace vantrell
