#pragma once

#include "compare/SequenceEvents.h"

#include <cstdint>
#include <vector>

namespace vantrell
{

/// Which event a marker at each frame of a sequence belongs to: that on the topmost track among the enabled
/// video items, where there is none that on the first track among the audio items. Any thread.
class PictureMap
{
public:
    /// Frames, `from` up to but without `to`, that belong to one event, an index of the sequence's events.
    struct Part {
        std::int64_t from;
        std::int64_t to;
        std::size_t event;
    };

    enum class Items { All, WithoutGenerators, Audio };

    /// In n log n of the events.
    explicit PictureMap(const SequenceEvents &sequence, Items items = Items::All);

    /// In the order of time, without overlaps; gaps are left out.
    const std::vector<Part> &parts() const { return m_parts; }
    /// The part at the frame; null in a gap.
    const Part *at(std::int64_t frame) const;
    /// The first part that ends after the frame; parts().size() without one.
    std::size_t firstEndingAfter(std::int64_t frame) const;

private:
    std::vector<Part> m_parts;
};

} // namespace vantrell
