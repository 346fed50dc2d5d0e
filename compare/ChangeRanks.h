#pragma once

#include "compare/CutComparison.h"

#include <cstdint>
#include <vector>

namespace vantrell
{

/// The places of changes in the order of texts that they are sorted by, without regard to case. By the index
/// of the change; equal texts have the same place.
struct ChangeRanks {
    std::vector<std::uint32_t> names; ///< of events
    std::vector<std::uint32_t> files; ///< without their folders

    /// Any thread, while nobody changes the changes and events.
    static ChangeRanks of(const CutComparison &comparison);
};

} // namespace vantrell
