#pragma once

#include "compare/MediaSource.h"
#include "compare/TrackEvent.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

/// What stands on the tracks of a sequence: read once, in one walk. Nested sequences are events and not
/// looked into. A value that refers to the elements of the tree.
struct SequenceEvents {
    XmlNode sequence;
    QString name;                ///< "" without one
    std::optional<QString> uuid; ///< by the rule for all sequences
    std::int64_t duration = 0;   ///< frames, as the sequence says; else where its last event ends
    Ratio rate;                  ///< frames per second; 0 when it does not say
    std::vector<MediaSource> sources;
    /// Video tracks first, each from the lowest on, its events in the order of time.
    std::vector<TrackEvent> events;

    const MediaSource *sourceOf(const TrackEvent &event) const
    {
        return event.source < 0 ? nullptr : &sources[std::size_t(event.source)];
    }

    /// A null sequence has no events. Items without a length are left out, as are items whose place cannot be
    /// told. Any thread, while nobody edits the tree.
    static SequenceEvents read(XmlNode sequence);
};

} // namespace vantrell
