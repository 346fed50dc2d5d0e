#include "media/FrameRanges.h"

#include <algorithm>

namespace vantrell::FrameRanges
{

std::vector<FrameRange> unionOf(std::vector<FrameRange> ranges)
{
    std::erase_if(ranges, [](const FrameRange &range) { return range.out <= range.in; });
    std::sort(ranges.begin(), ranges.end(),
              [](const FrameRange &a, const FrameRange &b) { return a.in < b.in; });
    std::vector<FrameRange> merged;
    for (const FrameRange &range : ranges) {
        if (!merged.empty() && range.in <= merged.back().out)
            merged.back().out = std::max(merged.back().out, range.out);
        else
            merged.push_back(range);
    }
    return merged;
}

FrameRange withHandles(const FrameRange &range, std::int64_t handles,
                       const std::optional<std::int64_t> &length)
{
    if (range.out <= range.in)
        return range;
    FrameRange wider = range;
    wider.in = std::min(range.in, std::max<std::int64_t>(0, range.in - handles));
    wider.out += handles;
    if (length)
        wider.out = std::max(range.out, std::min(wider.out, *length));
    return wider;
}

std::int64_t total(const std::vector<FrameRange> &ranges)
{
    std::int64_t frames = 0;
    for (const FrameRange &range : ranges)
        frames += range.out - range.in;
    return frames;
}

} // namespace vantrell::FrameRanges
