#include "markers/SequenceInfoCache.h"

#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

namespace vantrell
{

namespace
{

const XmlQuery &anyName()
{
    static const XmlQuery query(QStringLiteral(".//name[1]/text()"));
    return query;
}

const XmlQuery &anyUuid()
{
    static const XmlQuery query(QStringLiteral(".//uuid[1]/text()"));
    return query;
}

bool isInside(XmlNode node, XmlNode element)
{
    while (node && !(node == element))
        node = node.parent();
    return bool(node);
}

} // namespace

const SequenceInfo &SequenceInfoCache::infoOf(XmlNode sequence)
{
    synchronize();
    auto known = m_entries.find(sequence);
    if (known == m_entries.end()) {
        known = m_entries.emplace(sequence, Entry()).first;
        known->second.info.timing = SequenceTiming::ofFirstElements(sequence);
    }
    Entry &entry = known->second;
    look(sequence, anyName(), QVXMLParser::nameForNode, entry.name, entry.info.name);
    look(sequence, anyUuid(), QVXMLParser::uuidForNode, entry.uuid, entry.info.uuid);
    return entry.info;
}

/// Makes an unknown place known. The query finds the text at any depth, the finder also what stands for it
/// when there is none.
void SequenceInfoCache::look(XmlNode sequence, const XmlQuery &query, Finder finder, Place &place,
                             QString &text)
{
    if (place.kind != Place::Kind::Unknown)
        return;
    const std::optional<QString> own = place.lacksOwn ? std::nullopt : finder(sequence, true);
    if (own) {
        text = *own;
        place.kind = Place::Kind::Own;
        return;
    }
    place.lacksOwn = true;
    place.element = query.first(sequence).parent();
    place.kind = place.element ? Place::Kind::Within : Place::Kind::None;
    text =
        (place.element ? finder(place.element.parent(), true) : finder(sequence, false)).value_or(QString());
}

/// Lets the change be made to the entries of the sequences around the element. What happens inside a
/// sequence's "timecode" can change all of its entry.
template <typename Change>
void SequenceInfoCache::changeAround(XmlNode element, Change change)
{
    if (m_entries.empty())
        return;
    XmlNode below = element;
    for (XmlNode up = element.parent(); up; below = up, up = up.parent()) {
        const auto known = m_entries.find(up);
        if (known == m_entries.end())
            continue;
        if (below.isElement("timecode")) {
            m_entries.erase(known);
            continue;
        }
        change(known->second.name, up, true);
        change(known->second.uuid, up, false);
    }
}

void SequenceInfoCache::willChangeChild(XmlNode marker, const QString &child, bool wholeElements)
{
    synchronize();
    const bool names = wholeElements || child == QStringLiteral("name");
    const bool uuids = wholeElements || child == QStringLiteral("uuid");
    changeAround(marker, [names, uuids](Place &place, XmlNode, bool isName) {
        if (isName ? names : uuids)
            place.forget();
    });
}

void SequenceInfoCache::willDetach(XmlNode marker)
{
    synchronize();
    changeAround(marker, [marker](Place &place, XmlNode, bool) {
        if (place.kind == Place::Kind::Within && isInside(place.element, marker))
            place.forget();
    });
}

void SequenceInfoCache::didChange()
{
    m_revision = m_document.revision();
}

void SequenceInfoCache::didAppend(XmlNode marker, XmlNode parent)
{
    didChange();
    const bool hasName = bool(anyName().first(marker));
    const bool hasUuid = bool(anyUuid().first(marker));
    changeAround(marker, [&](Place &place, XmlNode sequence, bool isName) {
        // In the parent the marker comes last: what was found there before still comes first.
        const bool comesFirst = sequence == parent && place.kind == Place::Kind::Within;
        if ((isName ? hasName : hasUuid) && !comesFirst)
            place.forget();
    });
}

void SequenceInfoCache::synchronize()
{
    if (m_document.revision() == m_revision)
        return;
    m_entries.clear();
    m_revision = m_document.revision();
}

} // namespace vantrell
