#pragma once

#include "rows/RecordKey.h"
#include "xml/XmlNode.h"

#include <QString>

#include <cstdint>

namespace vantrell
{

/// Keys of a marker's row record, in the order in which it gets them. The timecode parameters that
/// stand between sequenceName and sequenceIndex are those of TimecodeKey.
namespace MarkerKey
{
inline const TypedKey<std::int64_t> color(u"color");
inline const TypedKey<XmlNode> markerElement(u"markerElement");
inline const TypedKey<QString> name(u"name");
inline const TypedKey<std::int64_t> chapter(u"chapter");
inline const TypedKey<std::int64_t> compression(u"compression");
inline const TypedKey<std::int64_t> scoring(u"scoring");
inline const TypedKey<QString> comment(u"comment");
inline const TypedKey<QString> in(u"in");   ///< frames, as the text that the marker holds
inline const TypedKey<QString> out(u"out"); ///< the same; "-1" for no duration
inline const TypedKey<XmlNode> sequence(u"sequence");
inline const TypedKey<QString> sequenceUUID(u"sequenceUUID");
inline const TypedKey<QString> sequenceName(u"sequenceName");
inline const TypedKey<std::int64_t> sequenceIndex(u"sequenceIndex"); ///< in the sequence menu
inline const TypedKey<XmlNode> clip(u"clip");
inline const TypedKey<QString> clipID(u"clipID");
inline const TypedKey<QString> clipUUID(u"clipUUID");
inline const TypedKey<QString> clipName(u"clipName");
inline const TypedKey<std::int64_t> clipIndex(u"clipIndex"); ///< in the clip menu of the sequence

/// What the key of every custom field begins with.
inline const QString customPrefix = QStringLiteral("QVCUSTOM_");
} // namespace MarkerKey

} // namespace vantrell
