#include "markers/SequenceInfoCache.h"

#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

namespace vantrell
{

const SequenceInfo &SequenceInfoCache::infoOf(XmlNode sequence)
{
    static const XmlQuery anyName(QStringLiteral(".//name[1]/text()"));
    dropOutdated();
    const auto [known, isNew] = m_entries.try_emplace(sequence);
    if (isNew) {
        known->second = {{QVXMLParser::uuidForNode(sequence), QVXMLParser::nameForNode(sequence),
                          SequenceTiming::ofFirstElements(sequence)},
                         bool(anyName.first(sequence))};
    }
    return known->second.info;
}

void SequenceInfoCache::append(XmlNode marker, XmlNode sequence)
{
    dropOutdated();
    m_document.moveTo(marker, sequence);
    m_revision = m_document.revision();
    // In the sequence itself the marker comes last: a name that was found there still comes first.
    const auto known = m_entries.find(sequence);
    if (known != m_entries.end() && !known->second.holdsName && QVXMLParser::nameForNode(marker))
        m_entries.erase(known);
    for (XmlNode around = sequence.parent(); around; around = around.parent())
        m_entries.erase(around);
}

void SequenceInfoCache::dropOutdated()
{
    if (m_document.revision() == m_revision)
        return;
    m_entries.clear();
    m_revision = m_document.revision();
}

} // namespace vantrell
