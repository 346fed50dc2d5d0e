#pragma once

#include "compare/Ratio.h"

#include <cstdint>

namespace vantrell
{

/// Frames counted from the start of an event, `first` up to but without `end`.
struct OffsetRange {
    std::int64_t first = 0;
    std::int64_t end = 0;

    bool isEmpty() const { return first >= end; }
    std::int64_t length() const { return end - first; }
};

/// Which frame of its source an event shows at each of its own frames: a constant speed, forwards or
/// backwards. Source frames are those that the event's in and out points count, with its speed taken out.
/// A value; any thread.
struct SourceMapping {
    Ratio step = Ratio(1);   ///< source frames for one frame of the sequence; not negative
    Ratio origin = Ratio(0); ///< the source frame at the event's start
    bool isReversed = false;
    bool isVariable = false; ///< the speed changes on the way: the rest is only an approximation
    Ratio rate;              ///< source frames per second; 0 when unknown
    /// What the speed was set to, 1 for the source's own.
    Ratio speed = Ratio(1);

    // How markers in the event count: as its in and out points do.
    std::int64_t markOrigin = 0; ///< at the event's start
    Ratio markStep = Ratio(1);   ///< marks for one frame of the sequence
    bool marksAreSource = true;  ///< they count source frames; else the frames of the event at its speed

    /// The source frame at a frame of the event; beyond its ends the speed is kept.
    std::int64_t sourceAt(std::int64_t offset) const
    {
        const Ratio way = step * Ratio(offset);
        return isReversed ? origin.floor() - way.floor() : (origin + way).floor();
    }

    /// The frames of an endless event at which that source frame shows; empty for one that the speed skips.
    /// With a speed of 0 those of an event from 0 up to `length`.
    OffsetRange offsetsOf(std::int64_t source, std::int64_t length) const
    {
        if (step.isZero())
            return sourceAt(0) == source ? OffsetRange{0, length} : OffsetRange{};
        const Ratio way = isReversed ? Ratio(origin.floor() - source) : Ratio(source) - origin;
        return {(way / step).ceil(), ((way + Ratio(1)) / step).ceil()};
    }

    /// The frame of the event at which a marker inside it stands.
    std::int64_t offsetOfMark(std::int64_t mark) const
    {
        if (marksAreSource && isReversed)
            return step.isZero() ? 0 : (Ratio(origin.floor() - mark) / step).floor();
        return (Ratio(mark - markOrigin) / markStep).ceil();
    }
    /// The other way.
    std::int64_t markAt(std::int64_t offset) const
    {
        return marksAreSource ? sourceAt(offset) : (Ratio(markOrigin) + markStep * Ratio(offset)).floor();
    }
    bool marksAlike(const SourceMapping &other) const
    {
        return marksAreSource == other.marksAreSource &&
               (marksAreSource || (speed == other.speed && isReversed == other.isReversed));
    }
};

} // namespace vantrell
