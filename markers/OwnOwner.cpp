#include "markers/OwnOwner.h"

#include "markers/MarkerKeys.h"
#include "markers/SequenceTiming.h"
#include "xml/QVXMLParser.h"

namespace vantrell
{

namespace
{

template <typename Key>
void setIfThere(RowRecord &record, Key key, const std::optional<typename Key::ValueType> &value)
{
    if (value)
        record.set(key, *value);
}

} // namespace

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
    setIfThere(keys, MarkerKey::sequenceUUID, uuid);
    setIfThere(keys, MarkerKey::sequenceName, name);
    SequenceTiming::ofFirstTexts(sequence).store(keys);
    setIfThere(keys, MarkerKey::sequenceIndex, indexes.ofOwnSequence(sequence, uuid.value_or(QString())));
    return keys;
}

RowRecord OwnOwner::clipKeys(OwnerIndexes &indexes) const
{
    RowRecord keys;
    if (!clip)
        return keys;
    const std::optional<QString> id = QVXMLParser::idAttributeForNode(clip);
    keys.set(MarkerKey::clip, clip);
    setIfThere(keys, MarkerKey::clipID, id);
    setIfThere(keys, MarkerKey::clipUUID, QVXMLParser::uuidForNode(clip));
    setIfThere(keys, MarkerKey::clipName, QVXMLParser::nameForNode(clip));
    SequenceTiming::ofFirstTexts(sequence).store(keys);
    setIfThere(keys, MarkerKey::clipIndex, indexes.ofOwnClip(clip, id.value_or(QString()), sequence));
    return keys;
}

} // namespace vantrell
