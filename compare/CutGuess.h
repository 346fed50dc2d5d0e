#pragma once

#include "document/Menu.h"

#include <cstdint>

namespace vantrell
{

/// The cuts that are most likely to be compared, as items of sequence menus. Any thread, while nobody edits
/// the trees.
struct CutGuess {
    std::int64_t before = 0; ///< 0 when there is none
    std::int64_t after = 0;

    /// In two projects: of the sequences that have the same name in both, the longest; else the longest of
    /// each.
    static CutGuess inProjects(const Menu &before, const Menu &after);
    /// Within one project: the longest as the new cut, and as the old one, of all others, the longest among
    /// those whose name begins most like it.
    static CutGuess inProject(const Menu &menu);
};

} // namespace vantrell
