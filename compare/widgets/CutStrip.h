#pragma once

#include "compare/CutComparison.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

/// One of the two cuts as it is drawn: a lane for each track, video above audio, the topmost video track
/// first. Refers to the comparison, which outlives it. Main thread.
class CutStrip
{
public:
    enum class Which { Old, New };

    CutStrip() = default;
    CutStrip(const CutComparison &comparison, Which which);

    /// The events of a track, in the order of time, are those from `first` up to but without `end`.
    struct Lane {
        QString name; ///< "V1"
        bool isAudio = false;
        std::size_t first = 0;
        std::size_t end = 0;
    };
    const std::vector<Lane> &lanes() const { return m_lanes; }

    const TrackEvent &event(std::size_t index) const { return m_cut->events[index]; }
    const EventChange &change(std::size_t event) const { return m_comparison->changes[m_changes[event]]; }
    /// Index of the change of an event.
    std::size_t changeOf(std::size_t event) const { return m_changes[event]; }
    /// The first event of the lane that may be seen from that frame on.
    std::size_t firstFrom(const Lane &lane, std::int64_t frame) const;
    /// The events of the lane at the frame that is nearest to its middle, within that many frames.
    std::optional<std::size_t> eventNear(const Lane &lane, double frame, double tolerance) const;

    double framesPerSecond() const { return m_framesPerSecond; }
    /// Of its last event.
    std::int64_t endFrame() const { return m_endFrame; }
    double seconds() const { return double(m_endFrame) / m_framesPerSecond; }
    QString timecode(std::int64_t frame) const
    {
        return m_which == Which::Old ? m_comparison->oldTimecode(frame) : m_comparison->newTimecode(frame);
    }

private:
    Which m_which = Which::Old;
    const CutComparison *m_comparison = nullptr;
    const SequenceEvents *m_cut = nullptr;
    std::vector<Lane> m_lanes;
    std::vector<std::size_t> m_changes; // by event
    double m_framesPerSecond = 25;
    std::int64_t m_endFrame = 0;
    std::int64_t m_longest = 0; // of its transitions, which overlap other events
};

} // namespace vantrell
