#pragma once

#include "xml/XmlNode.h"

#include <cstdint>
#include <vector>

namespace vantrell
{

/// What is seen of a sequence from its first frame to its last: on each frame the topmost enabled video clip,
/// or in a sequence without video the first audio clip. A nested sequence is a clip like others. A value that
/// refers to the elements of the tree.
struct SequenceClips {
    struct Clip {
        std::int64_t start = 0; ///< frames from the start of the sequence
        std::int64_t end = 0;   ///< frame after the last one
        XmlNode element;
    };
    std::vector<Clip> clips;   ///< without overlaps, in the order of time
    std::int64_t duration = 0; ///< frames, as the sequence says; else where its last clip ends

    /// Nothing for a null sequence. Any thread, while nobody edits the tree.
    static SequenceClips read(XmlNode sequence);
};

} // namespace vantrell
