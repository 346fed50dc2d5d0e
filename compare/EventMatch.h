#pragma once

#include "compare/SequenceEvents.h"

#include <vector>

namespace vantrell
{

/// Which event of an old cut is which of a new one. Clips and generators are matched by source, source range
/// and speed: first those that kept their order on their track, then those that are the same elsewhere, then
/// those of one source in the same place or with overlapping ranges, and last those of another source that
/// took the place of one. Gaps and transitions are matched by their neighbours. Near-linear. Any thread.
class EventMatch
{
public:
    static constexpr int none = -1;

    EventMatch(const SequenceEvents &before, const SequenceEvents &after);

    /// The index of the event in the other sequence; `none` without one.
    int newOf(std::size_t event) const { return m_newOf[event]; }
    int oldOf(std::size_t event) const { return m_oldOf[event]; }
    /// Whether the matched old event has another source in the new cut.
    bool isReplaced(std::size_t event) const { return m_isReplaced[event]; }

private:
    friend class EventMatcher;

    std::vector<int> m_newOf;
    std::vector<int> m_oldOf;
    std::vector<bool> m_isReplaced;
};

} // namespace vantrell
