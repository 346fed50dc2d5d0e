#include "timecode/TimecodeRuler.h"

#include "timecode/QVTimecode.h"

#include <algorithm>
#include <cmath>

namespace vantrell::TimecodeRuler
{

namespace
{

constexpr std::size_t mostTicks = 1000;
constexpr std::int64_t longestStep = std::int64_t(1) << 50;

/// The number that the timecode of a frame stands for.
std::int64_t numberOf(const Timing &timing, double fps, std::int64_t frame)
{
    const auto total = quint64(frame) + quint64(timing.startFrame);
    return std::int64_t(timing.dropFrame ? QVTimecode::addDroppedFrames(total, fps) : total);
}

/// The first frame with that number or, where it is left out, a later one.
std::int64_t frameOf(const Timing &timing, double fps, std::int64_t number)
{
    if (!timing.dropFrame)
        return std::int64_t(quint64(number) - quint64(timing.startFrame));
    auto frame =
        std::int64_t(QVTimecode::subtractDroppedFrames(quint64(number), fps) - quint64(timing.startFrame));
    const auto dropped = std::int64_t(std::ceil(fps)); // more than are dropped at once
    for (std::int64_t i = 0; i < dropped && numberOf(timing, fps, frame) < number; ++i)
        ++frame;
    return frame;
}

} // namespace

std::int64_t step(double framesPerSecond, double pixelsPerFrame, int width)
{
    const auto second = std::max<std::int64_t>(std::llround(framesPerSecond), 1);
    for (const std::int64_t frames : {std::int64_t(1), std::int64_t(2), std::int64_t(5), std::int64_t(10)}) {
        if (frames < second && double(frames) * pixelsPerFrame >= width)
            return frames;
    }
    for (const int seconds : {1, 2, 5, 10, 30, 60, 120, 300, 600, 1800, 3600, 7200, 18000, 36000}) {
        if (double(second * seconds) * pixelsPerFrame >= width)
            return second * seconds;
    }
    std::int64_t frames = second * 86400;
    while (double(frames) * pixelsPerFrame < width && frames < longestStep)
        frames *= 2;
    return frames;
}

std::vector<std::int64_t> ticks(const Timing &timing, std::int64_t first, std::int64_t last,
                                std::int64_t step)
{
    std::vector<std::int64_t> frames;
    if (step <= 0 || last < first)
        return frames;
    const double fps = timing.timebase > 0 ? double(timing.timebase) : 30;
    std::int64_t number = numberOf(timing, fps, first);
    number -= ((number % step) + step) % step;
    for (std::size_t i = 0; i < mostTicks; ++i, number += step) {
        const std::int64_t frame = frameOf(timing, fps, number);
        if (frame > last)
            break;
        if (frame >= first && (frames.empty() || frame > frames.back()))
            frames.push_back(frame);
    }
    return frames;
}

} // namespace vantrell::TimecodeRuler
