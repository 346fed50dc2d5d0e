#pragma once

#include <utility>
#include <vector>

namespace vantrell
{

/// Pairs of equal values that stand in the same order in both lists: what begins and ends alike, then values
/// that each list holds once, then the same between any two of them. Near-linear; the pairs, as indexes, are
/// not always as many as there could be. Any thread.
std::vector<std::pair<int, int>> alignedPairs(const std::vector<int> &before, const std::vector<int> &after);

} // namespace vantrell
