#pragma once

#include "compare/SourceMapping.h"
#include "xml/XmlNode.h"

#include <cstdint>
#include <optional>

namespace vantrell
{

/// The speed that a clip's Time Remap filter gives it.
struct ItemSpeed {
    Ratio speed = Ratio(1); ///< 1 for the source's own; not negative
    bool isReversed = false;
    bool isVariable = false;
    /// Where the filter's graph is a line: the source frame of the clip's frame 0, and source frames for one
    /// frame of the clip, negative when it plays backwards.
    struct Line {
        Ratio origin;
        Ratio slope;
    };
    std::optional<Line> line;

    bool isPlain() const { return speed == Ratio(1) && !isReversed && !isVariable; }

    /// Of the first enabled Time Remap filter among the clip's children.
    static ItemSpeed of(XmlNode clip);
    static bool isTimeRemap(XmlNode filter);
};

/// The frames per second that a "rate" child gives; 0 without one.
Ratio rateOf(XmlNode element);

/// Where an item stands on its track, and what its in and out points say.
struct ItemRange {
    std::int64_t start = 0; ///< frames of the sequence: where its in point shows
    std::int64_t end = 0;
    std::int64_t in = 0; ///< frames of the clip
    std::optional<std::int64_t> out;
};

/// How the clip runs over its range, counted from `range.start`. In and out points count frames of the clip
/// at its own rate and speed when they are as far apart as the clip is long; else those of the source.
SourceMapping mappingOf(XmlNode clip, const ItemRange &range, Ratio sequenceRate);

} // namespace vantrell
