#pragma once

#include "media/FrameRanges.h"
#include "xml/XmlNode.h"

#include <cstdint>
#include <optional>

namespace vantrell
{

/// How many frames a second has: the timebase, times 1000/1001 for NTSC.
struct FrameRate {
    std::int64_t timebase = 0;
    bool ntsc = false;

    /// The `rate` of an element; nothing without a positive timebase.
    static std::optional<FrameRate> ofElement(XmlNode element);

    friend bool operator==(const FrameRate &, const FrameRate &) = default;
};

/// The duration that the element states, in frames of its own rate; nothing without one.
std::optional<std::int64_t> statedDuration(XmlNode element);

/// The frames of its file that a clip item uses, counted at the file's rate (the clip item's without one) and
/// rounded outwards. An in point that is missing or negative stands for 0, such an out point for the clip
/// item's duration, else \a length, the file's. A change of speed is followed: its key frames where it has
/// some, else its percentage. Any thread, while nobody edits the tree.
FrameRange sourceRangeOf(XmlNode clipItem, const std::optional<FrameRate> &fileRate,
                         const std::optional<std::int64_t> &length);

} // namespace vantrell
