#include "markers/OwnOwner.h"

#include "markers/MarkerKeys.h"
#include "markers/SequenceTiming.h"
#include "xml/QVXMLParser.h"

namespace vantrell
{

OwnOwner OwnOwner::ofMarkersIn(XmlNode parent)
{
    OwnOwner owner;
    for (XmlNode up = parent; up && !owner.sequence; up = up.parent()) {
        if (up.isElement("sequence"))
            owner.sequence = up;
        else if (!owner.clip && (up.isElement("clipitem") || up.isElement("clip")))
            owner.clip = up;
    }
    return owner;
}

RowRecord OwnOwner::sequenceKeys(OwnerIndexes &indexes, const std::optional<QString> &uuid,
                                 const std::optional<QString> &name) const
{
    RowRecord keys;
    if (!sequence)
        return keys;
    keys.set(MarkerKey::sequence, sequence);
    keys.setIfThere(MarkerKey::sequenceUUID, uuid);
    keys.setIfThere(MarkerKey::sequenceName, name);
    SequenceTiming::ofFirstTexts(sequence).store(keys);
    keys.setIfThere(MarkerKey::sequenceIndex, indexes.ofOwnSequence(sequence, uuid.value_or(QString())));
    return keys;
}

RowRecord OwnOwner::clipKeys(OwnerIndexes &indexes) const
{
    RowRecord keys;
    if (!clip)
        return keys;
    const std::optional<QString> id = QVXMLParser::idAttributeForNode(clip);
    keys.set(MarkerKey::clip, clip);
    keys.setIfThere(MarkerKey::clipID, id);
    keys.setIfThere(MarkerKey::clipUUID, QVXMLParser::uuidForNode(clip));
    keys.setIfThere(MarkerKey::clipName, QVXMLParser::nameForNode(clip));
    SequenceTiming::ofFirstTexts(sequence).store(keys);
    keys.setIfThere(MarkerKey::clipIndex, indexes.ofOwnClip(clip, id.value_or(QString()), sequence));
    return keys;
}

} // namespace vantrell
