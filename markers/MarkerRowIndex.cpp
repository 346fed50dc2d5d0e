#include "markers/MarkerRowIndex.h"

#include "markers/MarkerKeys.h"

namespace vantrell
{

MarkerRowIndex::MarkerRowIndex(const RowList &rows)
{
    m_rows.reserve(rows.size());
    for (const RowRecordPtr &row : rows)
        add(row);
}

void MarkerRowIndex::add(const RowRecordPtr &row)
{
    if (const XmlNode marker = row->get(MarkerKey::markerElement))
        m_rows.insert_or_assign(marker, row);
}

void MarkerRowIndex::remove(const RowRecord &row)
{
    m_rows.erase(row.get(MarkerKey::markerElement));
}

RowRecordPtr MarkerRowIndex::rowOf(XmlNode marker) const
{
    const auto found = m_rows.find(marker);
    return found == m_rows.end() ? nullptr : found->second;
}

} // namespace vantrell
