#pragma once

#include <QtGlobal>

#include <cstdint>
#include <vector>

namespace vantrell
{

/// Where a ruler along a sequence has its ticks. Any thread.
namespace TimecodeRuler
{

/// Frames between ticks so that labels of that width, in pixels, fit between them: a few frames, or a round
/// number of nominal seconds.
std::int64_t step(double framesPerSecond, double pixelsPerFrame, int width);

/// What the timecode of a sequence is counted by; see QVTimecode.
struct Timing {
    std::int64_t timebase = 0;
    bool dropFrame = false;
    std::int64_t startFrame = 0;
};

/// The frames of the sequence from `first` to `last`, ascending, whose timecode is a multiple of the step.
/// Where drop frame leaves that number out it is the frame with the next one. At most a thousand.
std::vector<std::int64_t> ticks(const Timing &timing, std::int64_t first, std::int64_t last,
                                std::int64_t step);

} // namespace TimecodeRuler
} // namespace vantrell
