#include "compare/MarkerPlaces.h"

#include "support/text/TextNumbers.h"

#include <algorithm>
#include <tuple>
#include <unordered_map>

namespace vantrell
{

namespace
{

std::int64_t markerNumber(XmlNode marker, std::string_view name, std::int64_t absent)
{
    const XmlNode child = marker.childElement(name);
    return child ? integerValue(child.stringValue()) : absent;
}

void addMarkersIn(XmlNode element, std::optional<std::size_t> event, std::vector<MarkerSpan> &markers)
{
    for (XmlNode child = element.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (!child.isElement("marker"))
            continue;
        MarkerSpan marker;
        marker.element = child;
        marker.in = markerNumber(child, "in", 0);
        marker.duration = std::max<std::int64_t>(markerNumber(child, "out", -1) - marker.in, 0);
        marker.event = event;
        markers.push_back(marker);
    }
}

/// A number of frames at another rate.
std::int64_t scaled(std::int64_t frames, Ratio from, Ratio to)
{
    if (from.isZero() || to.isZero() || from == to)
        return frames;
    return (Ratio(frames) * (to / from) + Ratio(1, 2)).floor();
}

} // namespace

std::vector<MarkerSpan> MarkerSpan::of(const SequenceEvents &sequence)
{
    std::unordered_map<XmlNode, std::size_t> items;
    for (std::size_t i = 0; i < sequence.events.size(); ++i) {
        if (sequence.events[i].isItem())
            items.emplace(sequence.events[i].element, i);
    }
    std::vector<MarkerSpan> markers;
    const auto addItems = [&](XmlNode media) {
        for (XmlNode kind = media.firstChildElement(); kind; kind = kind.nextSiblingElement()) {
            for (XmlNode track = kind.firstChildElement(); track; track = track.nextSiblingElement()) {
                for (XmlNode item = track.firstChildElement(); item; item = item.nextSiblingElement()) {
                    const auto known = items.find(item);
                    if (known != items.end())
                        addMarkersIn(item, known->second, markers);
                }
            }
        }
    };
    for (XmlNode child = sequence.sequence.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (child.isElement("media")) {
            addItems(child);
        } else if (child.isElement("marker")) {
            MarkerSpan marker;
            marker.element = child;
            marker.in = markerNumber(child, "in", 0);
            marker.duration = std::max<std::int64_t>(markerNumber(child, "out", -1) - marker.in, 0);
            markers.push_back(marker);
        }
    }
    return markers;
}

/// A marker of the sequence on its way.
struct MarkerPlaces::Search {
    MarkerSpan marker;
    MarkerPlace place;
    const TrackEvent *event = nullptr; ///< the old clip that it is on; null off pictures
    int match = EventMatch::none;      ///< the new event of that
    const SourcePlaces *in = nullptr;  ///< what the places are in
    std::vector<SourcePlaces::Place> places;
    bool isBeneathPicture = false; ///< the places are those of a sound that was without a picture

    bool isAnchor() const { return places.size() == 1 && places.front().distance == 0; }
};

MarkerPlaces::MarkerPlaces(const SequenceEvents &before, const SequenceEvents &after, const EventMatch &match)
    : m_old(before)
    , m_new(after)
    , m_match(match)
    , m_oldMap(before)
    , m_newMap(after)
    , m_oldClips(before, PictureMap::Items::WithoutGenerators)
    , m_places(after, m_newMap)
    , m_newSounds(after, PictureMap::Items::Audio)
    , m_soundPlaces(after, m_newSounds)
    , m_newSources(after.sources)
{
    for (const PictureMap::Part &part : m_oldClips.parts()) {
        if (matchedClip(part.event))
            m_keptParts.push_back(part);
    }
    for (std::size_t i = 0; i < after.events.size(); ++i) {
        if (after.events[i].isItem() && match.oldOf(i) == EventMatch::none)
            m_addedClips[after.events[i].source].push_back(int(i));
    }
}

const TrackEvent *MarkerPlaces::matchedClip(std::size_t event) const
{
    const int other = m_match.newOf(event);
    return other == EventMatch::none || m_match.isReplaced(event) ? nullptr
                                                                  : &m_new.events[std::size_t(other)];
}

std::vector<MarkerPlace> MarkerPlaces::placesOf(const std::vector<MarkerSpan> &markers) const
{
    std::vector<MarkerPlace> places(markers.size());
    std::vector<std::size_t> onPictures; // in the order of time
    std::vector<Search> searches(markers.size());
    for (std::size_t i = 0; i < markers.size(); ++i) {
        if (markers[i].event) {
            places[i] = inItem(markers[i]);
            continue;
        }
        searches[i] = search(markers[i]);
        if (searches[i].event)
            onPictures.push_back(i);
        else
            places[i] = besidePicture(markers[i]);
    }
    std::stable_sort(onPictures.begin(), onPictures.end(),
                     [&markers](std::size_t a, std::size_t b) { return markers[a].in < markers[b].in; });
    std::vector<const Search *> following(onPictures.size(), nullptr);
    const Search *anchor = nullptr;
    for (std::size_t i = onPictures.size(); i-- > 0;) {
        following[i] = anchor;
        if (searches[onPictures[i]].isAnchor())
            anchor = &searches[onPictures[i]];
    }
    anchor = nullptr;
    for (std::size_t i = 0; i < onPictures.size(); ++i) {
        Search &one = searches[onPictures[i]];
        settle(one, anchor, following[i]);
        places[onPictures[i]] = one.place;
        if (one.isAnchor())
            anchor = &one;
    }
    return places;
}

MarkerPlaces::Search MarkerPlaces::search(const MarkerSpan &marker) const
{
    Search search;
    search.marker = marker;
    search.place.oldFrame = marker.in;
    const PictureMap::Part *part = m_oldMap.at(marker.in);
    if (!part || m_old.events[part->event].kind != TrackEvent::Kind::Clip)
        return search;
    const TrackEvent &event = m_old.events[part->event];
    search.event = &event;
    search.match = matchedClip(part->event) ? m_match.newOf(part->event) : EventMatch::none;
    const std::int64_t offset = marker.in - event.start;
    SourcePlaces::Wanted wanted;
    wanted.source = m_old.sources[std::size_t(event.source)];
    wanted.isAudio = event.isAudio;
    wanted.frame = event.mapping.sourceAt(offset);
    wanted.rate = event.mapping.rate;
    const OffsetRange shown = event.mapping.offsetsOf(wanted.frame, event.length());
    wanted.repeat = std::max<std::int64_t>(offset - shown.first, 0);
    wanted.repeats = std::max<std::int64_t>(shown.length(), 1);
    search.place.file = wanted.source.label();
    search.place.sourceFrame = wanted.frame;
    search.in = &m_places;
    search.places = m_places.find(wanted);
    if (event.isAudio && (search.places.empty() || search.places.front().distance > 0)) {
        std::vector<SourcePlaces::Place> sounds = m_soundPlaces.find(wanted);
        if (!sounds.empty() && (search.places.empty() || sounds.front().distance == 0)) {
            search.in = &m_soundPlaces;
            search.places = std::move(sounds);
            search.isBeneathPicture = true;
        }
    }
    return search;
}

/// Sets the place of a marker on a picture. `before` and `after` are the markers next to it that have one
/// place; null without one.
void MarkerPlaces::settle(Search &search, const Search *before, const Search *after) const
{
    if (search.places.empty())
        return;
    const SourcePlaces::Place &chosen = search.places[chosenPlace(search, before, after)];
    const TrackEvent &event = m_new.events[search.in->eventAt(chosen.part)];
    const SourceMapping &from = search.event->mapping;
    const SourceMapping &to = event.mapping;
    const bool isCertain =
        chosen.distance == 0 && !search.isBeneathPicture && !from.isVariable && !to.isVariable;
    MarkerPlace &place = search.place;
    place.state = isCertain ? MarkerPlace::State::Carried : MarkerPlace::State::Nearest;
    place.newFrame = chosen.frame;
    place.in = chosen.frame;
    if (search.marker.duration == 0)
        return;
    // As much of the source, in time, as it was.
    const auto perSecond = [](const SourceMapping &mapping) {
        return mapping.rate.isZero() ? mapping.step : mapping.step / mapping.rate;
    };
    const std::int64_t duration = scaled(search.marker.duration, perSecond(to), perSecond(from));
    const std::int64_t end = search.in->endOfPicture(chosen.part);
    place.duration = std::clamp<std::int64_t>(duration, 1, std::max<std::int64_t>(end - place.in, 1));
}

std::size_t MarkerPlaces::chosenPlace(const Search &search, const Search *before, const Search *after) const
{
    const std::vector<SourcePlaces::Place> &places = search.places;
    const auto frameOf = [](const Search *anchor) { return anchor->places.front().frame; };
    const auto keepsOrder = [&](const SourcePlaces::Place &place) {
        return (!before || frameOf(before) <= place.frame) && (!after || place.frame <= frameOf(after));
    };
    const auto isInEvent = [&](const SourcePlaces::Place &place) {
        return int(search.in->eventAt(place.part)) == search.match;
    };
    std::int64_t expected = search.marker.in;
    if (before)
        expected += frameOf(before) - before->marker.in;
    else if (after)
        expected += frameOf(after) - after->marker.in;
    const auto rank = [&](const SourcePlaces::Place &place) {
        return std::make_tuple(!keepsOrder(place), !isInEvent(place), std::abs(place.frame - expected));
    };
    const auto best = std::min_element(places.begin(), places.end(),
                                       [&](const auto &a, const auto &b) { return rank(a) < rank(b); });
    return std::size_t(best - places.begin());
}

/// A marker in a gap or over a generator.
MarkerPlace MarkerPlaces::besidePicture(const MarkerSpan &marker) const
{
    MarkerPlace place;
    place.oldFrame = marker.in;
    const PictureMap::Part *part = m_oldMap.at(marker.in);
    const TrackEvent *generator = part ? &m_old.events[part->event] : nullptr;
    std::optional<std::int64_t> frame = frameOverClip(marker.in);
    if (!frame)
        frame = frameBesideClip(marker.in);
    if (!frame && part) {
        const TrackEvent *other = matchedClip(part->event);
        if (other)
            frame = other->start + std::min(marker.in - generator->start, other->length() - 1);
    }
    if (!frame && !part && m_oldClips.parts().empty())
        frame = scaled(marker.in, m_old.rate, m_new.rate); // its distance to the start of the sequence
    if (!frame)
        return place;
    place.newFrame = std::max<std::int64_t>(*frame, 0);
    place.in = place.newFrame;
    place.duration = scaled(marker.duration, m_old.rate, m_new.rate);
    const PictureMap::Part *there = m_newMap.at(place.newFrame);
    bool isSame = !there && !generator;
    if (there && generator) {
        const TrackEvent &event = m_new.events[there->event];
        isSame =
            event.kind == generator->kind && m_old.sourceOf(*generator)->isSameAs(*m_new.sourceOf(event));
    }
    place.state = isSame && *frame >= 0 ? MarkerPlace::State::Carried : MarkerPlace::State::Nearest;
    return place;
}

/// Where the frame of the clip beneath a generator has gone; nothing without such a clip in both cuts.
std::optional<std::int64_t> MarkerPlaces::frameOverClip(std::int64_t frame) const
{
    const PictureMap::Part *part = m_oldClips.at(frame);
    if (!part || !matchedClip(part->event))
        return std::nullopt;
    return newFrameOf(part->event, frame);
}

/// As far from the nearest clip in both cuts as it was; nothing without one.
std::optional<std::int64_t> MarkerPlaces::frameBesideClip(std::int64_t frame) const
{
    const auto after =
        std::upper_bound(m_keptParts.begin(), m_keptParts.end(), frame,
                         [](std::int64_t at, const PictureMap::Part &part) { return at < part.from; });
    const auto before = after == m_keptParts.begin() ? m_keptParts.end() : std::prev(after);
    if (after == m_keptParts.end() && before == m_keptParts.end())
        return std::nullopt;
    const auto distance = [&](std::int64_t frames) { return scaled(frames, m_old.rate, m_new.rate); };
    const bool takesBefore = before != m_keptParts.end() &&
                             (after == m_keptParts.end() || frame - before->to <= after->from - frame);
    if (takesBefore)
        return newFrameOf(before->event, before->to - 1) + 1 + distance(frame - before->to);
    return newFrameOf(after->event, after->from) - distance(after->from - frame);
}

/// The frame of the matched event, its first or last when it does not have the source frame any more.
std::int64_t MarkerPlaces::newFrameOf(std::size_t index, std::int64_t oldFrame) const
{
    const TrackEvent &event = m_old.events[index];
    const TrackEvent &other = *matchedClip(index);
    if (oldFrame == event.end - 1)
        return other.end - 1;
    if (oldFrame == event.start)
        return other.start;
    const std::int64_t source = event.mapping.sourceAt(oldFrame - event.start);
    const OffsetRange offsets = other.mapping.offsetsOf(source, other.length());
    return other.start + std::clamp<std::int64_t>(offsets.first, 0, other.length() - 1);
}

MarkerPlace MarkerPlaces::inItem(const MarkerSpan &marker) const
{
    const TrackEvent &item = m_old.events[*marker.event];
    const std::int64_t offset = item.mapping.offsetOfMark(marker.in);
    const std::int64_t source = item.mapping.sourceAt(offset);
    MarkerPlace place;
    place.oldFrame = item.start + offset;
    if (item.kind == TrackEvent::Kind::Clip) {
        place.file = m_old.sourceOf(item)->label();
        place.sourceFrame = source;
    }
    const int matched = matchedClip(*marker.event) ? m_match.newOf(*marker.event) : EventMatch::none;
    const int target = itemFor(item, matched, source);
    if (target == EventMatch::none)
        return place;
    const TrackEvent &other = m_new.events[std::size_t(target)];
    place.event = std::size_t(target);
    place.in = other.mapping.marksAlike(item.mapping)
                   ? marker.in
                   : other.mapping.markAt(other.mapping.offsetsOf(source, other.length()).first);
    place.duration = marker.duration;
    const std::int64_t newOffset = other.mapping.offsetOfMark(place.in);
    const bool wasSeen = offset >= 0 && offset < item.length();
    const bool isSeen = newOffset >= 0 && newOffset < other.length();
    place.newFrame = other.start + std::clamp<std::int64_t>(newOffset, 0, other.length() - 1);
    place.state = wasSeen && !isSeen ? MarkerPlace::State::Nearest : MarkerPlace::State::Carried;
    return place;
}

/// The item that a marker at that source frame follows; `none` when it has gone with its item.
int MarkerPlaces::itemFor(const TrackEvent &item, int matched, std::int64_t source) const
{
    const auto hasFrame = [&](int event) {
        const TrackEvent &other = m_new.events[std::size_t(event)];
        const OffsetRange offsets = other.mapping.offsetsOf(source, other.length());
        return other.isAudio == item.isAudio && offsets.first >= 0 && offsets.first < other.length();
    };
    if (matched != EventMatch::none && hasFrame(matched))
        return matched;
    constexpr std::size_t reach = 256; // parts of one source looked at
    for (const int same : m_newSources.sameAs(m_old.sources[std::size_t(item.source)])) {
        const auto added = m_addedClips.find(same);
        if (added == m_addedClips.end())
            continue;
        const std::size_t count = std::min(added->second.size(), reach);
        for (std::size_t i = 0; i < count; ++i) {
            if (hasFrame(added->second[i]))
                return added->second[i];
        }
    }
    return matched;
}

} // namespace vantrell
