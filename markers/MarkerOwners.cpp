#include "markers/MarkerOwners.h"

#include "markers/MarkerKeys.h"
#include "markers/SequenceTiming.h"
#include "xml/QVXMLParser.h"
#include "xml/XmlQuery.h"

namespace vantrell
{

namespace
{

bool saysTrue(const XmlQuery &query, XmlNode element)
{
    const std::optional<QString> text = query.firstText(element);
    return text && text->toLower() == QStringLiteral("true");
}

} // namespace

const MarkerOwners::Owner &MarkerOwners::ownerOfMarkersIn(XmlNode parent)
{
    // What markers side by side get is the same: the first one left nothing to be found out.
    if (m_parent && m_parent == parent)
        return m_owner;
    m_parent = parent;
    m_owner = Owner();
    const Place &innermost = placeOf(parent);
    if (innermost.inAngle && !isActiveAngle(innermost.angle)) {
        m_owner.inInactiveAngle = true;
        return m_owner;
    }
    const OwnOwner own{innermost.sequence, innermost.ownClip};
    if (m_listing == OwnerListing::Own)
        addOwn(own);
    else
        addByPosition(innermost);
    m_owner.isOwn = m_owner.keys.get(MarkerKey::sequence) == own.sequence &&
                    m_owner.keys.get(MarkerKey::clip) == own.clip;
    return m_owner;
}

void MarkerOwners::addOwn(const OwnOwner &own)
{
    const auto [known, isNew] = m_ownSequences.try_emplace(own.sequence);
    if (isNew)
        known->second = own.sequenceKeys(m_indexes, QVXMLParser::uuidForNode(own.sequence),
                                         QVXMLParser::nameForNode(own.sequence));
    m_owner.keys.merge(known->second);
    m_owner.keys.merge(own.clipKeys(m_indexes));
}

void MarkerOwners::addByPosition(const Place &innermost)
{
    std::vector<const Place *> places;
    for (const Place *place = &innermost; place->up; place = place->up)
        places.push_back(place);
    XmlNode current;
    for (auto place = places.rbegin(); place != places.rend() && !m_owner.lacksSequence; ++place) {
        if ((*place)->kind == Kind::Sequence)
            addSequence(**place, innermost, current);
        else if ((*place)->kind != Kind::None)
            addClip(**place, innermost, current);
    }
}

const MarkerOwners::Place &MarkerOwners::placeOf(XmlNode element)
{
    std::vector<XmlNode> unknown;
    const Place *place = &m_root;
    for (XmlNode up = element; up.isElement(); up = up.parent()) {
        const auto known = m_places.find(up);
        if (known != m_places.end()) {
            place = known->second;
            break;
        }
        unknown.push_back(up);
    }
    for (auto down = unknown.rbegin(); down != unknown.rend(); ++down) {
        const bool matters =
            down->nameStartsWith("sequence") || down->nameStartsWith("clip") || down->nameContains("angle");
        if (matters)
            place = &addPlace(*down, *place);
        m_places.emplace(*down, place);
    }
    return *place;
}

const MarkerOwners::Place &MarkerOwners::addPlace(XmlNode element, const Place &up)
{
    Place place = up;
    place.up = &up;
    place.element = element;
    if (element.nameStartsWith("sequence"))
        place.kind = Kind::Sequence;
    else if (element.nameStartsWith("clipitem"))
        place.kind = Kind::ClipItem;
    else
        place.kind = element.nameStartsWith("clip") ? Kind::Clip : Kind::None;
    place.inAngle = up.inAngle || element.nameContains("angle");
    if (element.isElement("angle"))
        place.angle = element;
    else if (element.isElement("sequence"))
        place.sequence = element;
    else if (element.isElement("clipitem"))
        place.clipItem = element;
    else if (element.isElement("clip"))
        place.clip = element;
    if (place.sequence == element)
        place.ownClip = XmlNode();
    else if (place.clipItem == element || place.clip == element)
        place.ownClip = element;
    m_placeList.push_back(place);
    return m_placeList.back();
}

bool MarkerOwners::isActiveAngle(XmlNode angle)
{
    static const XmlQuery video(QStringLiteral("./activevideoangle[1]/text()"));
    static const XmlQuery audio(QStringLiteral("./activeaudioangle[1]/text()"));
    const auto known = m_angles.find(angle);
    if (known != m_angles.end())
        return known->second;
    const bool active = saysTrue(video, angle) || saysTrue(audio, angle);
    m_angles.emplace(angle, active);
    return active;
}

/// The element's step in a location path. Like-named siblings are counted once for all of them.
const QString &MarkerOwners::stepOf(XmlNode element)
{
    const auto known = m_steps.find(element);
    if (known != m_steps.end())
        return known->second;
    const XmlNode parent = element.parent();
    QHash<QString, int> counts;
    for (XmlNode child = parent.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (!child.nameStartsWith("sequence"))
            continue;
        const QString name = child.name();
        m_steps.emplace(child, QStringLiteral("%1[%2]").arg(name).arg(++counts[name]));
    }
    return m_steps[element];
}

void MarkerOwners::addSequence(const Place &at, const Place &innermost, XmlNode &current)
{
    const QString &step = stepOf(at.element);
    auto part = m_sequences.constFind(step);
    if (part == m_sequences.constEnd()) {
        const XmlNode sequence = innermost.sequence;
        if (!sequence) {
            m_owner.lacksSequence = true;
            return;
        }
        SequencePart made;
        made.sequence = sequence;
        made.keys.set(MarkerKey::sequence, sequence);
        const std::optional<QString> uuid = QVXMLParser::uuidForNode(sequence);
        if (uuid)
            made.keys.set(MarkerKey::sequenceUUID, *uuid);
        if (const std::optional<QString> name = QVXMLParser::nameForNode(sequence))
            made.keys.set(MarkerKey::sequenceName, *name);
        SequenceTiming::ofFirstTexts(sequence).store(made.keys);
        const std::optional<std::int64_t> index = uuid ? m_indexes.ofSequence(*uuid) : std::nullopt;
        if (index)
            made.keys.set(MarkerKey::sequenceIndex, *index);
        part = m_sequences.insert(step, made);
    }
    m_owner.keys.merge(part->keys);
    current = part->sequence;
}

void MarkerOwners::addClip(const Place &at, const Place &innermost, XmlNode current)
{
    const XmlNode track = at.element.parent();
    const auto known = m_clips.find(track);
    if (known != m_clips.end()) {
        m_owner.keys.merge(known->second);
        return;
    }
    const XmlNode clip = at.kind == Kind::ClipItem ? innermost.clipItem : innermost.clip;
    const std::optional<QString> name = QVXMLParser::nameForNode(clip);
    if (!clip || !name)
        return;
    RowRecord keys;
    keys.set(MarkerKey::clip, clip);
    const std::optional<QString> id = QVXMLParser::idAttributeForNode(clip);
    if (id)
        keys.set(MarkerKey::clipID, *id);
    if (const std::optional<QString> uuid = QVXMLParser::uuidForNode(clip))
        keys.set(MarkerKey::clipUUID, *uuid);
    keys.set(MarkerKey::clipName, *name);
    SequenceTiming::ofFirstTexts(current).store(keys);
    const std::optional<std::int64_t> index = id ? m_indexes.ofClip(*id, current) : std::nullopt;
    if (index)
        keys.set(MarkerKey::clipIndex, *index);
    m_owner.keys.merge(keys);
    m_clips.emplace(track, std::move(keys));
}

} // namespace vantrell
