#pragma once

#include "rows/RowRecord.h"

namespace vantrell
{

/// Keys of a row read from a marker list or an interchange file. Texts are unchanged; what a format lacks is
/// absent.
namespace ImportedMarkerKey
{
inline const TypedKey<QString> name(u"name");
inline const TypedKey<QString> comment(u"comment");
inline const TypedKey<QString> startTimecode(u"startTimecode");
inline const TypedKey<QString> durationTimecode(u"durationTimecode");
/// The colour's name.
inline const TypedKey<QString> color(u"color");
/// The name of the clip or sequence that holds the marker.
inline const TypedKey<QString> parentName(u"parentName");
/// "Clip" or "Sequence".
inline const TypedKey<QString> parentType(u"parentType");
/// The position on the sequence, instead of the start timecode where timecodes are not asked for.
inline const TypedKey<double> seconds(u"seconds");
} // namespace ImportedMarkerKey

} // namespace vantrell
