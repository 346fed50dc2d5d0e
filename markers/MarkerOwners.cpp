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
    const Ancestor &innermost = nearestAncestor(parent);
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

void MarkerOwners::addByPosition(const Ancestor &innermost)
{
    std::vector<const Ancestor *> ancestors;
    for (const Ancestor *ancestor = &innermost; ancestor->up; ancestor = ancestor->up)
        ancestors.push_back(ancestor);
    XmlNode current;
    for (auto ancestor = ancestors.rbegin(); ancestor != ancestors.rend() && !m_owner.lacksSequence;
         ++ancestor) {
        if ((*ancestor)->kind == Kind::Sequence)
            addSequence(**ancestor, innermost, current);
        else if ((*ancestor)->kind != Kind::None)
            addClip(**ancestor, innermost, current);
    }
}

const MarkerOwners::Ancestor &MarkerOwners::nearestAncestor(XmlNode element)
{
    std::vector<XmlNode> unknown;
    const Ancestor *ancestor = &m_root;
    for (XmlNode up = element; up.isElement(); up = up.parent()) {
        const auto known = m_ancestors.find(up);
        if (known != m_ancestors.end()) {
            ancestor = known->second;
            break;
        }
        unknown.push_back(up);
    }
    for (auto down = unknown.rbegin(); down != unknown.rend(); ++down) {
        const bool matters =
            down->nameStartsWith("sequence") || down->nameStartsWith("clip") || down->nameContains("angle");
        if (matters)
            ancestor = &addAncestor(*down, *ancestor);
        m_ancestors.emplace(*down, ancestor);
    }
    return *ancestor;
}

const MarkerOwners::Ancestor &MarkerOwners::addAncestor(XmlNode element, const Ancestor &up)
{
    Ancestor ancestor = up;
    ancestor.up = &up;
    ancestor.element = element;
    if (element.nameStartsWith("sequence"))
        ancestor.kind = Kind::Sequence;
    else if (element.nameStartsWith("clipitem"))
        ancestor.kind = Kind::ClipItem;
    else
        ancestor.kind = element.nameStartsWith("clip") ? Kind::Clip : Kind::None;
    ancestor.inAngle = up.inAngle || element.nameContains("angle");
    if (element.isElement("angle"))
        ancestor.angle = element;
    else if (element.isElement("sequence"))
        ancestor.sequence = element;
    else if (element.isElement("clipitem"))
        ancestor.clipItem = element;
    else if (element.isElement("clip"))
        ancestor.clip = element;
    if (ancestor.sequence == element)
        ancestor.ownClip = XmlNode();
    else if (ancestor.clipItem == element || ancestor.clip == element)
        ancestor.ownClip = element;
    m_ancestorList.push_back(ancestor);
    return m_ancestorList.back();
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

void MarkerOwners::addSequence(const Ancestor &at, const Ancestor &innermost, XmlNode &current)
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
        made.keys.setIfThere(MarkerKey::sequenceUUID, uuid);
        made.keys.setIfThere(MarkerKey::sequenceName, QVXMLParser::nameForNode(sequence));
        SequenceTiming::ofFirstTexts(sequence).store(made.keys);
        made.keys.setIfThere(MarkerKey::sequenceIndex, uuid ? m_indexes.ofSequence(*uuid) : std::nullopt);
        part = m_sequences.insert(step, made);
    }
    m_owner.keys.merge(part->keys);
    current = part->sequence;
}

void MarkerOwners::addClip(const Ancestor &at, const Ancestor &innermost, XmlNode current)
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
    keys.setIfThere(MarkerKey::clipID, id);
    keys.setIfThere(MarkerKey::clipUUID, QVXMLParser::uuidForNode(clip));
    keys.set(MarkerKey::clipName, *name);
    SequenceTiming::ofFirstTexts(current).store(keys);
    keys.setIfThere(MarkerKey::clipIndex, id ? m_indexes.ofClip(*id, current) : std::nullopt);
    m_owner.keys.merge(keys);
    m_clips.emplace(track, std::move(keys));
}

} // namespace vantrell
