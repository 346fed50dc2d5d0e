#include "compare/widgets/CutStrip.h"

#include <algorithm>

namespace vantrell
{

CutStrip::CutStrip(const CutComparison &comparison, Which which)
    : m_which(which)
    , m_comparison(&comparison)
    , m_cut(which == Which::Old ? &comparison.before : &comparison.after)
    , m_changes(m_cut->events.size())
{
    const SequenceTiming &timing = which == Which::Old ? comparison.oldTiming : comparison.newTiming;
    if (!m_cut->rate.isZero())
        m_framesPerSecond = m_cut->rate.value();
    else if (timing.timebase > 0)
        m_framesPerSecond = double(timing.timebase);
    for (std::size_t i = 0; i < comparison.changes.size(); ++i) {
        const EventChange &change = comparison.changes[i];
        if (const auto event = which == Which::Old ? change.before : change.after)
            m_changes[*event] = i;
    }
    for (std::size_t i = 0; i < m_cut->events.size(); ++i) {
        const TrackEvent &event = m_cut->events[i];
        const TrackEvent *const before = i > 0 ? &m_cut->events[i - 1] : nullptr;
        if (!before || before->isAudio != event.isAudio || before->track != event.track)
            m_lanes.push_back({event.trackName(), event.isAudio, i, i});
        m_lanes.back().end = i + 1;
        m_endFrame = std::max(m_endFrame, event.end);
        if (event.kind == TrackEvent::Kind::Transition)
            m_longest = std::max(m_longest, event.length());
    }
    const auto audio =
        std::find_if(m_lanes.begin(), m_lanes.end(), [](const Lane &lane) { return lane.isAudio; });
    std::reverse(m_lanes.begin(), audio);
}

std::size_t CutStrip::firstFrom(const Lane &lane, std::int64_t frame) const
{
    const auto begin = m_cut->events.begin();
    const auto found = std::partition_point(
        begin + std::ptrdiff_t(lane.first), begin + std::ptrdiff_t(lane.end),
        [frame, this](const TrackEvent &event) { return event.start < frame - m_longest; });
    // The one before it may reach into view.
    const auto index = std::size_t(found - begin);
    return index > lane.first ? index - 1 : index;
}

std::optional<std::size_t> CutStrip::eventNear(const Lane &lane, double frame, double tolerance) const
{
    std::optional<std::size_t> nearest;
    double least = 0;
    for (std::size_t i = firstFrom(lane, std::int64_t(frame - tolerance)); i < lane.end; ++i) {
        const TrackEvent &one = event(i);
        if (double(one.start) > frame + tolerance)
            break;
        if (double(one.end) < frame - tolerance)
            continue;
        const bool isInside = double(one.start) <= frame && frame < double(one.end);
        const double middle = double(one.start + one.end) / 2;
        double distance = middle > frame ? middle - frame : frame - middle;
        // A transition lies over the events that it joins, and a gap beneath everything.
        if (isInside && one.kind != TrackEvent::Kind::Transition)
            distance = 0;
        if (one.kind == TrackEvent::Kind::Gap)
            distance = 1e15;
        if (isInside && one.kind == TrackEvent::Kind::Transition)
            distance = -1;
        if (!nearest || distance < least) {
            nearest = i;
            least = distance;
        }
    }
    return nearest;
}

} // namespace vantrell
