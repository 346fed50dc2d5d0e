#pragma once

#include <chrono>
#include <memory>

namespace vantrell
{

/// Cancels waiting for other applications, for instance when a document is closed. Copies share one state and
/// are cheap; once cancelled, it stays cancelled. Any thread.
class EventCancel
{
public:
    static constexpr std::chrono::milliseconds forever = std::chrono::hours(24 * 365);

    EventCancel();

    /// Ends every present and future wait on this object and its copies. May be called in a signal handler.
    void cancel();
    bool isCancelled() const;

    /// Waits for that time or until it is cancelled; returns whether it is.
    bool waitFor(std::chrono::milliseconds time) const;

    /// Waits for one of poll()'s `events` on the file descriptor, for that time at most and until it is
    /// cancelled. Returns the events that occurred; 0 for none.
    short poll(int descriptor, short events, std::chrono::milliseconds time) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
