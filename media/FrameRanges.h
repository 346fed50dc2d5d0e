#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

/// Frames of a media file, counted from its first one: from `in` up to but without `out`.
struct FrameRange {
    std::int64_t in = 0;
    std::int64_t out = 0;

    friend bool operator==(const FrameRange &, const FrameRange &) = default;
};

/// Arithmetic with ranges of frames. Any thread.
namespace FrameRanges
{

/// The frames that lie in any of the ranges: ascending ranges that do not touch each other. Empty ranges are
/// dropped.
std::vector<FrameRange> unionOf(std::vector<FrameRange> ranges);

/// The range with that many frames more at both ends, as far as the file has them: it begins at 0 and has \a
/// length frames, if that is known. What the range itself has beyond those stays.
FrameRange withHandles(const FrameRange &range, std::int64_t handles,
                       const std::optional<std::int64_t> &length);

/// How many frames there are in ranges that do not overlap.
std::int64_t total(const std::vector<FrameRange> &ranges);

} // namespace FrameRanges

} // namespace vantrell
