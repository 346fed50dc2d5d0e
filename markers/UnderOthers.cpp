#include "markers/UnderOthers.h"

#include "markers/MarkerKeys.h"

#include <algorithm>

namespace vantrell
{

bool UnderOthers::work(const RowList &list, std::size_t rows)
{
    const std::size_t end = std::min(list.size(), m_next + rows);
    for (; m_next < end; ++m_next) {
        const RowRecord &record = *list[m_next];
        const XmlNode marker = record.get(MarkerKey::markerElement);
        if (!marker)
            continue;
        const XmlNode parent = marker.parent();
        if (!m_parent || !(m_parent == parent)) {
            m_parent = parent;
            m_own = OwnOwner::ofMarkersIn(parent);
        }
        // A marker can be moved to a generator, which is no clip of its own.
        const XmlNode clip = record.get(MarkerKey::clip);
        const bool isOwn =
            record.get(MarkerKey::sequence) == m_own.sequence && (clip == m_own.clip || clip == parent);
        m_count += isOwn ? 0 : 1;
    }
    return m_next >= list.size();
}

} // namespace vantrell
