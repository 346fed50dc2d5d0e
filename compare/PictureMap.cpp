#include "compare/PictureMap.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace vantrell
{

namespace
{

/// The highest is seen. Of items that overlap on one track it is the later one.
using Height = std::tuple<bool, int, std::size_t>;

Height heightOf(const TrackEvent &event, std::size_t index)
{
    return {!event.isAudio, event.isAudio ? -event.track : event.track, index};
}

struct Edge {
    std::int64_t frame;
    std::size_t event;
    bool isStart;
};

} // namespace

PictureMap::PictureMap(const SequenceEvents &sequence, Items items)
{
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < sequence.events.size(); ++i) {
        const TrackEvent &event = sequence.events[i];
        const bool isLeftOut =
            (items == Items::WithoutGenerators && event.kind == TrackEvent::Kind::Generator) ||
            (items == Items::Audio && !event.isAudio);
        if (!event.isItem() || !event.isEnabled || isLeftOut)
            continue;
        edges.push_back({event.start, i, true});
        edges.push_back({event.end, i, false});
    }
    std::sort(edges.begin(), edges.end(), [](const Edge &a, const Edge &b) { return a.frame < b.frame; });
    std::set<Height> present;
    for (std::size_t i = 0; i < edges.size(); ++i) {
        const Height height = heightOf(sequence.events[edges[i].event], edges[i].event);
        if (edges[i].isStart)
            present.insert(height);
        else
            present.erase(height);
        const std::int64_t from = edges[i].frame;
        if (present.empty() || i + 1 == edges.size() || edges[i + 1].frame == from)
            continue;
        const std::size_t event = std::get<2>(*present.rbegin());
        const std::int64_t to = edges[i + 1].frame;
        if (!m_parts.empty() && m_parts.back().event == event && m_parts.back().to == from)
            m_parts.back().to = to;
        else
            m_parts.push_back({from, to, event});
    }
}

std::size_t PictureMap::firstEndingAfter(std::int64_t frame) const
{
    const auto after = std::upper_bound(m_parts.begin(), m_parts.end(), frame,
                                        [](std::int64_t at, const Part &part) { return at < part.to; });
    return std::size_t(after - m_parts.begin());
}

const PictureMap::Part *PictureMap::at(std::int64_t frame) const
{
    const std::size_t index = firstEndingAfter(frame);
    return index < m_parts.size() && m_parts[index].from <= frame ? &m_parts[index] : nullptr;
}

} // namespace vantrell
