#pragma once

#include "bench/XmlStream.h"

#include <cstdint>

namespace vantrell::bench
{

/// Size and content of a project.
struct ProjectShape {
    double megabytes = 0; ///< target size in 1,000,000 bytes; decides `sequences` unless 0
    std::int64_t sequences = 4;
    std::int64_t clips = 500;          ///< clip items in each sequence
    std::int64_t sequenceMarkers = 25; ///< on each sequence
    double clipMarkers = 0.1;          ///< on each clip, on average
    std::int64_t files = 0;            ///< 0: one for a dozen clip items
    double filters = 1.0;              ///< on each clip item, on average
    std::int64_t bins = 12;
    bool whiteSpace = true; ///< between the elements
    std::uint64_t seed = 1;
    double dropFrameShare = 0.5; ///< of the sequences
};

/// What was written.
struct ProjectCounts {
    std::int64_t sequences = 0;
    std::int64_t files = 0;
    std::int64_t clipItems = 0;
    std::int64_t effects = 0;
    std::int64_t markers = 0;
};

/// Writes a project of that shape: the same bytes for the same shape, in constant memory, as the properties
/// of a clip follow from its number.
ProjectCounts writeProject(const ProjectShape &shape, XmlStream &xml);

} // namespace vantrell::bench
