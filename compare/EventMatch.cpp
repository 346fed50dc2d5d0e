#include "compare/EventMatch.h"

#include "compare/EventAlignment.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>

namespace vantrell
{

class EventMatcher
{
public:
    EventMatcher(const SequenceEvents &before, const SequenceEvents &after, EventMatch &match)
        : m_old(before)
        , m_new(after)
        , m_match(match)
    {
        match.m_newOf.assign(before.events.size(), EventMatch::none);
        match.m_oldOf.assign(after.events.size(), EventMatch::none);
        match.m_isReplaced.assign(before.events.size(), false);
        unifySources();
        fillItems(before, m_oldSources, m_oldItems, m_oldKeys);
        fillItems(after, m_newSources, m_newItems, m_newKeys);
    }

    void run()
    {
        matchInOrder();
        matchSameElsewhere();
        matchInPlace(true);
        matchOverlapping(true);
        matchOverlapping(false);
        matchInPlace(false);
        matchBetweenNeighbors();
    }

private:
    /// Source frames of an event, `first` up to but without `end`.
    struct FrameRange {
        std::int64_t first;
        std::int64_t end;

        bool overlaps(const FrameRange &other) const { return first < other.end && other.first < end; }
    };

    static FrameRange framesOf(const TrackEvent &event)
    {
        const std::int64_t a = event.mapping.sourceAt(0);
        const std::int64_t b = event.mapping.sourceAt(event.length() - 1);
        return {std::min(a, b), std::max(a, b) + 1};
    }

    using Tracks = std::map<std::pair<bool, int>, std::vector<int>>; ///< items by media and track

    /// Gives the sources of both sequences that are the same one number.
    void unifySources()
    {
        m_oldSources.resize(m_old.sources.size());
        m_newSources.assign(m_new.sources.size(), -1);
        const SourceIndex index(m_new.sources);
        for (std::size_t i = 0; i < m_old.sources.size(); ++i) {
            const std::vector<int> same = index.sameAs(m_old.sources[i]);
            int number = int(i);
            for (const int other : same) {
                if (m_newSources[std::size_t(other)] >= 0) {
                    number = m_newSources[std::size_t(other)];
                    break;
                }
            }
            m_oldSources[i] = number;
            for (const int other : same) {
                if (m_newSources[std::size_t(other)] < 0)
                    m_newSources[std::size_t(other)] = number;
            }
        }
        for (std::size_t i = 0; i < m_newSources.size(); ++i) {
            if (m_newSources[i] < 0)
                m_newSources[i] = int(m_old.sources.size() + i);
        }
    }

    /// The items of each track, and a number for each that stands for its source, range and speed.
    void fillItems(const SequenceEvents &sequence, const std::vector<int> &sources, Tracks &tracks,
                   std::vector<int> &keys)
    {
        keys.assign(sequence.events.size(), -1);
        for (std::size_t i = 0; i < sequence.events.size(); ++i) {
            const TrackEvent &event = sequence.events[i];
            if (!event.isItem())
                continue;
            const FrameRange frames = framesOf(event);
            const std::array<std::int64_t, 6> key = {
                event.isAudio ? 1 : 0, sources[std::size_t(event.source)], frames.first, frames.end,
                event.length(),        event.mapping.isReversed ? 1 : 0,
            };
            keys[i] = m_keys.try_emplace(key, int(m_keys.size())).first->second;
            tracks[{event.isAudio, event.track}].push_back(int(i));
        }
    }

    bool isFreeOld(int event) const { return m_match.m_newOf[std::size_t(event)] == EventMatch::none; }
    bool isFreeNew(int event) const { return m_match.m_oldOf[std::size_t(event)] == EventMatch::none; }
    const TrackEvent &oldEvent(int event) const { return m_old.events[std::size_t(event)]; }
    const TrackEvent &newEvent(int event) const { return m_new.events[std::size_t(event)]; }
    int oldSource(int event) const { return m_oldSources[std::size_t(oldEvent(event).source)]; }
    int newSource(int event) const { return m_newSources[std::size_t(newEvent(event).source)]; }

    void pair(int before, int after)
    {
        m_match.m_newOf[std::size_t(before)] = after;
        m_match.m_oldOf[std::size_t(after)] = before;
    }

    void matchInOrder()
    {
        for (const auto &[track, items] : m_oldItems) {
            const auto other = m_newItems.find(track);
            if (other == m_newItems.end())
                continue;
            std::vector<int> before;
            std::vector<int> after;
            for (const int event : items)
                before.push_back(m_oldKeys[std::size_t(event)]);
            for (const int event : other->second)
                after.push_back(m_newKeys[std::size_t(event)]);
            for (const auto &[i, j] : alignedPairs(before, after))
                pair(items[std::size_t(i)], other->second[std::size_t(j)]);
        }
    }

    /// What is the same in source, range and speed: on the same track first, in order.
    void matchSameElsewhere()
    {
        for (const bool sameTrack : {true, false}) {
            struct List {
                std::vector<int> events;
                std::size_t next = 0;
            };
            std::map<std::pair<int, int>, List> free;
            const auto trackOf = [sameTrack](const TrackEvent &event) { return sameTrack ? event.track : 0; };
            forEachFree(m_newItems, m_match.m_oldOf, [&](int event) {
                free[{m_newKeys[std::size_t(event)], trackOf(newEvent(event))}].events.push_back(event);
            });
            forEachFree(m_oldItems, m_match.m_newOf, [&](int event) {
                const auto at = free.find({m_oldKeys[std::size_t(event)], trackOf(oldEvent(event))});
                if (at != free.end() && at->second.next < at->second.events.size())
                    pair(event, at->second.events[at->second.next++]);
            });
        }
    }

    template <typename Action>
    static void forEachFree(const Tracks &tracks, const std::vector<int> &matches, Action action)
    {
        for (const auto &[track, items] : tracks) {
            for (const int event : items) {
                if (matches[std::size_t(event)] == EventMatch::none)
                    action(event);
            }
        }
    }

    /// Where on its track an old event would be in the new cut: as far as its nearest matched neighbours on
    /// it have moved, and where it was.
    struct Shifts {
        std::int64_t before = 0;
        std::int64_t after = 0;
    };
    std::vector<Shifts> shifts() const
    {
        std::vector<Shifts> shifts(m_old.events.size());
        for (const auto &[place, items] : m_oldItems) {
            const int track = place.second;
            const auto walk = [&](auto begin, auto end, auto edgeOf, std::int64_t Shifts::*side) {
                std::int64_t shift = 0;
                for (auto item = begin; item != end; ++item) {
                    const int other = m_match.m_newOf[std::size_t(*item)];
                    const bool onTrack = other != EventMatch::none && newEvent(other).track == track;
                    if (onTrack)
                        shift = newEvent(other).*edgeOf - oldEvent(*item).*edgeOf;
                    shifts[std::size_t(*item)].*side = shift;
                }
            };
            walk(items.begin(), items.end(), &TrackEvent::end, &Shifts::before);
            walk(items.rbegin(), items.rend(), &TrackEvent::start, &Shifts::after);
        }
        return shifts;
    }

    /// Free items at the same place on their track. Of the same source: one edge stands in place. Of any:
    /// both do, and the new one replaces the old one.
    void matchInPlace(bool sameSource)
    {
        using Place = std::tuple<bool, int, std::int64_t>; // media, track, frame
        std::map<Place, int> starts;
        std::map<Place, int> ends;
        forEachFree(m_newItems, m_match.m_oldOf, [&](int event) {
            const TrackEvent &item = newEvent(event);
            starts.emplace(Place(item.isAudio, item.track, item.start), event);
            ends.emplace(Place(item.isAudio, item.track, item.end), event);
        });
        const std::vector<Shifts> moved = shifts();
        forEachFree(m_oldItems, m_match.m_newOf, [&](int event) {
            const TrackEvent &item = oldEvent(event);
            const Shifts &shift = moved[std::size_t(event)];
            const auto take = [&](const std::map<Place, int> &places, std::int64_t frame) {
                const auto at = places.find(Place(item.isAudio, item.track, frame));
                if (at == places.end() || !isFreeNew(at->second) || !isFreeOld(event))
                    return;
                const int other = at->second;
                if (sameSource ? newSource(other) != oldSource(event)
                               : newEvent(other).length() != item.length())
                    return;
                pair(event, other);
                m_match.m_isReplaced[std::size_t(event)] = newSource(other) != oldSource(event);
            };
            take(starts, item.start + shift.before);
            if (sameSource)
                take(ends, item.end + shift.after);
            else
                take(starts, item.start + shift.after);
            take(starts, item.start);
            if (sameSource)
                take(ends, item.end);
        });
    }

    /// Free items of one source whose ranges overlap, in their order.
    void matchOverlapping(bool sameTrack)
    {
        constexpr std::size_t reach = 64; // candidates looked at for each
        using Group = std::tuple<bool, int, int>;
        struct Candidate {
            FrameRange frames;
            int event;
        };
        std::map<Group, std::vector<Candidate>> free;
        const auto groupOf = [sameTrack](const TrackEvent &event, int source) {
            return Group(event.isAudio, source, sameTrack ? event.track : 0);
        };
        forEachFree(m_newItems, m_match.m_oldOf, [&](int event) {
            free[groupOf(newEvent(event), newSource(event))].push_back({framesOf(newEvent(event)), event});
        });
        for (auto &[group, candidates] : free) {
            std::sort(candidates.begin(), candidates.end(), [](const Candidate &a, const Candidate &b) {
                return std::tie(a.frames.first, a.event) < std::tie(b.frames.first, b.event);
            });
        }
        forEachFree(m_oldItems, m_match.m_newOf, [&](int event) {
            const auto group = free.find(groupOf(oldEvent(event), oldSource(event)));
            if (group == free.end())
                return;
            const std::vector<Candidate> &candidates = group->second;
            const FrameRange frames = framesOf(oldEvent(event));
            auto at = std::lower_bound(
                candidates.begin(), candidates.end(), frames.end,
                [](const Candidate &candidate, std::int64_t end) { return candidate.frames.first < end; });
            int best = EventMatch::none;
            for (std::size_t looked = 0; at != candidates.begin() && looked < reach; ++looked) {
                --at;
                if (isFreeNew(at->event) && frames.overlaps(at->frames) &&
                    (best == EventMatch::none || at->event < best))
                    best = at->event;
            }
            if (best != EventMatch::none)
                pair(event, best);
        });
    }

    // Gaps and transitions

    /// The items around each event on its track; none at the ends of the track.
    struct Neighbors {
        int before = EventMatch::none;
        int after = EventMatch::none;
    };
    static std::vector<Neighbors> neighborsIn(const SequenceEvents &sequence)
    {
        const std::vector<TrackEvent> &events = sequence.events;
        std::vector<Neighbors> neighbors(events.size());
        const auto sameTrack = [&events](std::size_t a, std::size_t b) {
            return events[a].isAudio == events[b].isAudio && events[a].track == events[b].track;
        };
        int item = EventMatch::none;
        for (std::size_t i = 0; i < events.size(); ++i) {
            if (i > 0 && !sameTrack(i - 1, i))
                item = EventMatch::none;
            neighbors[i].before = item;
            if (events[i].isItem())
                item = int(i);
        }
        item = EventMatch::none;
        for (std::size_t i = events.size(); i-- > 0;) {
            if (i + 1 < events.size() && !sameTrack(i, i + 1))
                item = EventMatch::none;
            neighbors[i].after = item;
            if (events[i].isItem())
                item = int(i);
        }
        return neighbors;
    }

    void matchBetweenNeighbors()
    {
        const std::vector<Neighbors> before = neighborsIn(m_old);
        const std::vector<Neighbors> after = neighborsIn(m_new);
        // Kind, media, track, and the new items on both sides; a side that is not asked for is `any`.
        constexpr int any = -2;
        using Slot = std::tuple<int, bool, int, int, int>;
        std::map<Slot, int> slots;
        const auto slotOf = [](const TrackEvent &event, int left, int right) {
            return Slot(int(event.kind), event.isAudio, event.track, left, right);
        };
        for (std::size_t i = 0; i < m_new.events.size(); ++i) {
            const TrackEvent &event = m_new.events[i];
            if (event.isItem())
                continue;
            slots.emplace(slotOf(event, after[i].before, after[i].after), int(i));
            slots.emplace(slotOf(event, after[i].before, any), int(i));
            slots.emplace(slotOf(event, any, after[i].after), int(i));
        }
        const auto matched = [this](int item) {
            return item == EventMatch::none ? item : m_match.m_newOf[std::size_t(item)];
        };
        // A side that is matched with nothing fits nothing; the end of the track fits that of the new one.
        const auto isKnown = [&](int item) {
            return item == EventMatch::none || matched(item) != EventMatch::none;
        };
        for (const int pass : {0, 1, 2}) {
            for (std::size_t i = 0; i < m_old.events.size(); ++i) {
                const TrackEvent &event = m_old.events[i];
                if (event.isItem() || !isFreeOld(int(i)))
                    continue;
                const bool asksLeft = pass != 2;
                const bool asksRight = pass != 1;
                if ((asksLeft && !isKnown(before[i].before)) || (asksRight && !isKnown(before[i].after)))
                    continue;
                const auto at = slots.find(slotOf(event, asksLeft ? matched(before[i].before) : any,
                                                  asksRight ? matched(before[i].after) : any));
                if (at == slots.end() || !isFreeNew(at->second))
                    continue;
                pair(int(i), at->second);
                m_match.m_isReplaced[i] =
                    event.kind == TrackEvent::Kind::Transition && event.name != newEvent(at->second).name;
            }
        }
    }

    const SequenceEvents &m_old;
    const SequenceEvents &m_new;
    EventMatch &m_match;
    std::vector<int> m_oldSources; ///< the number of each source
    std::vector<int> m_newSources;
    std::map<std::array<std::int64_t, 6>, int> m_keys;
    Tracks m_oldItems;
    Tracks m_newItems;
    std::vector<int> m_oldKeys; ///< of each event; -1 for those that are no items
    std::vector<int> m_newKeys;
};

EventMatch::EventMatch(const SequenceEvents &before, const SequenceEvents &after)
{
    EventMatcher(before, after, *this).run();
}

} // namespace vantrell
