#include "compare/SequenceComparison.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace vantrell
{

namespace
{

EventChange::Kind kindOf(const TrackEvent &before, const TrackEvent &after, bool isReplaced)
{
    using Kind = EventChange::Kind;
    if (isReplaced)
        return Kind::Replaced;
    if (before.isItem()) {
        const SourceMapping &a = before.mapping;
        const SourceMapping &b = after.mapping;
        if (!(a.speed == b.speed) || a.isReversed != b.isReversed || a.isVariable != b.isVariable)
            return Kind::Speed;
        const bool sameHead = a.sourceAt(0) == b.sourceAt(0);
        const bool sameTail = a.sourceAt(before.length() - 1) == b.sourceAt(after.length() - 1);
        if (before.length() == after.length() && !(sameHead && sameTail))
            return Kind::Slipped;
    }
    if (before.length() != after.length())
        return Kind::Trimmed;
    if (before.track != after.track)
        return Kind::Track;
    if (before.start != after.start)
        return Kind::Moved;
    return before.effects == after.effects ? Kind::Unchanged : Kind::Effects;
}

} // namespace

QString EventChange::kindName() const
{
    static const std::array<const char *, 10> names = {"unchanged", "replaced", "speed", "slipped",
                                                       "trimmed",   "track",    "moved", "effects",
                                                       "added",     "removed"};
    return QLatin1String(names[std::size_t(kind)]);
}

std::vector<EventChange> changesBetween(const SequenceEvents &before, const SequenceEvents &after,
                                        const EventMatch &match)
{
    struct Placed {
        std::tuple<bool, int, std::int64_t, int, std::size_t> place; ///< media, track, index after, …
        EventChange change;
    };
    std::vector<Placed> placed;
    placed.reserve(after.events.size());
    for (std::size_t i = 0; i < after.events.size(); ++i) {
        const TrackEvent &event = after.events[i];
        EventChange change;
        change.after = i;
        const int other = match.oldOf(i);
        if (other == EventMatch::none) {
            change.kind = EventChange::Kind::Added;
        } else {
            change.before = std::size_t(other);
            const TrackEvent &old = before.events[std::size_t(other)];
            change.kind = kindOf(old, event, match.isReplaced(std::size_t(other)));
            if (change.kind == EventChange::Kind::Moved)
                change.by = event.start - old.start;
        }
        placed.push_back({{event.isAudio, event.track, std::int64_t(i), 0, 0}, change});
    }
    // Beside the nearest event before it on its track that is still on that track.
    std::int64_t last = -1;
    for (std::size_t i = 0; i < before.events.size(); ++i) {
        const TrackEvent &event = before.events[i];
        const bool startsTrack = i == 0 || before.events[i - 1].isAudio != event.isAudio ||
                                 before.events[i - 1].track != event.track;
        if (startsTrack)
            last = -1;
        const int other = match.newOf(i);
        if (other == EventMatch::none) {
            EventChange change;
            change.kind = EventChange::Kind::Removed;
            change.before = i;
            placed.push_back({{event.isAudio, event.track, last, 1, i}, change});
        } else if (after.events[std::size_t(other)].isAudio == event.isAudio &&
                   after.events[std::size_t(other)].track == event.track) {
            last = other;
        }
    }
    std::sort(placed.begin(), placed.end(),
              [](const Placed &a, const Placed &b) { return a.place < b.place; });
    std::vector<EventChange> changes;
    changes.reserve(placed.size());
    for (const Placed &one : placed)
        changes.push_back(one.change);
    return changes;
}

} // namespace vantrell
