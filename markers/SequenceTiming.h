#pragma once

#include "rows/RowRecord.h"
#include "xml/XmlNode.h"

#include <cstdint>

namespace vantrell
{

/// The timecode parameters that a sequence's "timecode" element gives; all false and 0 for a null
/// sequence and for what is missing.
struct SequenceTiming {
    bool ntsc = false;
    bool dropFrame = false;
    std::int64_t timebase = 0;   ///< frames per second
    std::int64_t startFrame = 0; ///< frames

    /// Of the text in the first element of each name, which is how markers are read.
    static SequenceTiming ofFirstTexts(XmlNode sequence);
    /// Of the first element found with each path, which is how markers are added and moved.
    static SequenceTiming ofFirstElements(XmlNode sequence);

    /// Sets the record's four keys.
    void store(RowRecord &record) const;
};

} // namespace vantrell
