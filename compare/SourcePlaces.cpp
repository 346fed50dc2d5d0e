#include "compare/SourcePlaces.h"

#include <algorithm>

namespace vantrell
{

namespace
{

/// 24 and 23.976 are two names for the rate of the same frames.
std::int64_t nominalRate(Ratio rate)
{
    return rate.ceil();
}

} // namespace

SourcePlaces::SourcePlaces(const SequenceEvents &sequence, const PictureMap &map)
    : m_sequence(sequence)
    , m_map(map)
    , m_sources(sequence.sources)
{
    for (std::size_t i = 0; i < map.parts().size(); ++i) {
        const PictureMap::Part &part = map.parts()[i];
        const TrackEvent &event = eventOf(i);
        if (event.kind != TrackEvent::Kind::Clip)
            continue;
        const std::int64_t a = event.mapping.sourceAt(part.from - event.start);
        const std::int64_t b = event.mapping.sourceAt(part.to - 1 - event.start);
        m_shown[{event.source, event.isAudio, nominalRate(event.mapping.rate)}].push_back(
            {std::min(a, b), std::max(a, b), 0, i});
    }
    for (auto &[source, shown] : m_shown) {
        std::stable_sort(shown.begin(), shown.end(),
                         [](const Shown &a, const Shown &b) { return a.first < b.first; });
        std::int64_t highest = shown.front().last;
        for (Shown &one : shown) {
            highest = std::max(highest, one.last);
            one.highest = highest;
        }
    }
}

const TrackEvent &SourcePlaces::eventOf(std::size_t part) const
{
    return m_sequence.events[m_map.parts()[part].event];
}

std::vector<SourcePlaces::Place> SourcePlaces::find(const Wanted &wanted) const
{
    std::vector<const std::vector<Shown> *> lists;
    for (const int source : m_sources.sameAs(wanted.source)) {
        for (auto shown = m_shown.lower_bound({source, wanted.isAudio, 0});
             shown != m_shown.end() && std::get<0>(shown->first) == source &&
             std::get<1>(shown->first) == wanted.isAudio;
             ++shown)
            lists.push_back(&shown->second);
    }
    std::vector<Place> places;
    for (const auto *shown : lists)
        addPlaces(*shown, wanted, places);
    if (places.empty()) {
        for (const auto *shown : lists)
            addNearest(*shown, wanted, places);
        std::int64_t least = INT64_MAX;
        for (const Place &place : places)
            least = std::min(least, place.distance);
        std::erase_if(places, [least](const Place &place) { return place.distance > least; });
    }
    std::sort(places.begin(), places.end(), [](const Place &a, const Place &b) { return a.frame < b.frame; });
    return places;
}

/// The frame in the counting of the part's clip.
std::int64_t SourcePlaces::frameIn(const Shown &shown, const Wanted &wanted) const
{
    const Ratio rate = eventOf(shown.part).mapping.rate;
    if (rate.isZero() || wanted.rate.isZero() || nominalRate(rate) == nominalRate(wanted.rate))
        return wanted.frame;
    return (Ratio(wanted.frame) * (rate / wanted.rate)).floor();
}

void SourcePlaces::addPlaces(const std::vector<Shown> &shown, const Wanted &wanted,
                             std::vector<Place> &places) const
{
    const std::int64_t frame = frameIn(shown.front(), wanted);
    auto at = std::upper_bound(shown.begin(), shown.end(), frame,
                               [](std::int64_t value, const Shown &one) { return value < one.first; });
    while (at != shown.begin()) {
        --at;
        if (at->highest < frame)
            break;
        if (at->last >= frame)
            addPlaceIn(*at, frame, 0, wanted, places);
    }
}

/// The frame of the sequence in the part that shows the source frame; none when the speed skips it.
void SourcePlaces::addPlaceIn(const Shown &shown, std::int64_t frame, std::int64_t distance,
                              const Wanted &wanted, std::vector<Place> &places) const
{
    const PictureMap::Part &part = m_map.parts()[shown.part];
    const TrackEvent &event = eventOf(shown.part);
    const OffsetRange all = event.mapping.offsetsOf(frame, event.length());
    const OffsetRange seen = {std::max(all.first, part.from - event.start),
                              std::min(all.end, part.to - event.start)};
    if (seen.isEmpty())
        return;
    // Where one frame is shown several times, the one that is as far on as it was.
    const std::int64_t repeat = (Ratio(wanted.repeat * all.length(), wanted.repeats)).floor();
    const std::int64_t offset = std::clamp(all.first + repeat, seen.first, seen.end - 1);
    places.push_back({event.start + offset, shown.part, distance});
}

void SourcePlaces::addNearest(const std::vector<Shown> &shown, const Wanted &wanted,
                              std::vector<Place> &places) const
{
    const std::int64_t frame = frameIn(shown.front(), wanted);
    std::int64_t least = INT64_MAX;
    struct Near {
        const Shown *shown;
        std::int64_t frame;
        std::int64_t distance;
    };
    std::vector<Near> near;
    const auto add = [&](const Shown &one, std::int64_t shownFrame) {
        const std::int64_t distance = std::abs(shownFrame - frame);
        if (distance < least)
            near.clear();
        least = std::min(least, distance);
        if (distance == least)
            near.push_back({&one, shownFrame, distance});
    };
    const auto above =
        std::upper_bound(shown.begin(), shown.end(), frame,
                         [](std::int64_t value, const Shown &one) { return value < one.first; });
    for (auto one = above; one != shown.end() && one->first == above->first; ++one)
        add(*one, one->first);
    const std::int64_t highest = above == shown.begin() ? 0 : std::prev(above)->highest;
    for (auto one = above; one != shown.begin();) {
        --one;
        if (one->highest < std::min(frame, highest))
            break;
        if (one->last == highest && highest < frame)
            add(*one, highest);
        if (one->last < frame)
            continue;
        // Skipped by the speed: the frames shown before and after it.
        const TrackEvent &event = eventOf(one->part);
        const PictureMap::Part &part = m_map.parts()[one->part];
        const std::int64_t next = event.mapping.offsetsOf(frame, event.length()).first;
        for (const std::int64_t offset : {next - 1, next}) {
            if (offset >= part.from - event.start && offset < part.to - event.start)
                add(*one, event.mapping.sourceAt(offset));
        }
    }
    for (const Near &one : near)
        addPlaceIn(*one.shown, one.frame, one.distance, wanted, places);
}

std::int64_t SourcePlaces::endOfPicture(std::size_t index) const
{
    const std::vector<PictureMap::Part> &parts = m_map.parts();
    std::int64_t end = parts[index].to;
    for (std::size_t next = index + 1; next < parts.size() && parts[next].from == end; ++next) {
        const TrackEvent &event = eventOf(next - 1);
        const TrackEvent &following = eventOf(next);
        const bool goesOn =
            following.kind == TrackEvent::Kind::Clip && following.source == event.source &&
            following.isAudio == event.isAudio && following.mapping.isReversed == event.mapping.isReversed &&
            following.mapping.step == event.mapping.step &&
            following.mapping.sourceAt(end - following.start) == event.mapping.sourceAt(end - event.start);
        if (!goesOn)
            break;
        end = parts[next].to;
    }
    return end;
}

} // namespace vantrell
