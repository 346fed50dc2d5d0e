#include "markers/QVMarker.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"

namespace vantrell
{

namespace
{

std::optional<std::int64_t> position(const RowRecord &record, TypedKey<QString> key)
{
    if (!record.contains(key))
        return std::nullopt;
    return integerValue(record.get(key));
}

} // namespace

QVMarker::QVMarker(const RowRecord &record)
    : name(record.get(MarkerKey::name))
    , comment(record.get(MarkerKey::comment))
    , inPos(position(record, MarkerKey::in))
    , outPos(position(record, MarkerKey::out))
    , markerElement(record.get(MarkerKey::markerElement))
    , sequence(record.get(MarkerKey::sequence))
    , sequenceUUID(record.get(MarkerKey::sequenceUUID))
    , sequenceName(record.get(MarkerKey::sequenceName))
    , clip(record.get(MarkerKey::clip))
    , chapter(record.get(MarkerKey::chapter) == 1)
    , scoring(record.get(MarkerKey::scoring) == 1)
    , compression(record.get(MarkerKey::compression) == 1)
    , color(record.get(MarkerKey::color))
    , ntsc(record.get(TimecodeKey::ntsc))
    , dropFrame(record.get(TimecodeKey::dropFrame))
    , timebase(record.get(TimecodeKey::timebase))
    , startFrame(record.get(TimecodeKey::startFrame))
    , sequenceIndex(record.get(MarkerKey::sequenceIndex))
{
    for (std::size_t i = 0; i < record.size(); ++i) {
        const QString key = record.keyAt(i).text();
        if (key.startsWith(MarkerKey::customPrefix))
            customFields.insert(key, record.text(record.keyAt(i)));
    }
}

} // namespace vantrell
