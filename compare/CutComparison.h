#pragma once

#include "compare/MarkerCarrier.h"
#include "compare/SequenceComparison.h"
#include "markers/SequenceTiming.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <vector>

namespace vantrell
{

/// Two cuts side by side: what they hold, what changed, and where the markers of the old one go in the new
/// one. A value that refers to elements of both trees: only carrying the markers looks at these, so that all
/// else can be told when the trees are gone.
struct CutComparison {
    SequenceEvents before;
    SequenceEvents after;
    SequenceTiming oldTiming;
    SequenceTiming newTiming;
    std::vector<EventChange> changes;
    std::vector<CarriedMarker> markers;

    /// Near-linear. A null sequence has no events. Stops early, with a part of it, when `isCancelled` (null
    /// for never) turns true. Any thread, while nobody edits the trees.
    static CutComparison of(XmlNode before, XmlNode after, const std::atomic<bool> *isCancelled = nullptr);

    /// Null for an event that was added, or removed.
    const TrackEvent *oldEvent(const EventChange &change) const
    {
        return change.before ? &before.events[*change.before] : nullptr;
    }
    const TrackEvent *newEvent(const EventChange &change) const
    {
        return change.after ? &after.events[*change.after] : nullptr;
    }
    /// The event as it is in the new cut; as it was when it was removed.
    const TrackEvent &event(const EventChange &change) const
    {
        return change.after ? *newEvent(change) : *oldEvent(change);
    }
    /// Path, else name, of what the event shows or plays; null for gaps, transitions and generators.
    QString file(const EventChange &change) const;

    /// Of a frame counted from the first of its cut.
    QString oldTimecode(std::int64_t frame) const { return timecode(oldTiming, frame); }
    QString newTimecode(std::int64_t frame) const { return timecode(newTiming, frame); }

private:
    static QString timecode(const SequenceTiming &timing, std::int64_t frame);
};

} // namespace vantrell
