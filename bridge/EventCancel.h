#pragma once

#include <chrono>
#include <memory>

namespace vantrell
{

/// Ends what is waiting for another application: one for each document that may be closed meanwhile. Copies
/// are cheap and stand for the same; once cancelled it stays so. Any thread.
class EventCancel
{
public:
    EventCancel();
    EventCancel(const EventCancel &other);
    EventCancel &operator=(const EventCancel &other);
    ~EventCancel();

    /// Ends every wait that was given this or a copy, those to come included.
    void cancel();
    bool isCancelled() const;

    /// Waits so long, or until it is cancelled; whether it is.
    bool waitFor(std::chrono::milliseconds time) const;

    /// Waits for one of poll()'s `events` on the file descriptor, or until it is cancelled or the time is
    /// up. What happened there; 0 when nothing did.
    short poll(int descriptor, short events, std::chrono::milliseconds time) const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
