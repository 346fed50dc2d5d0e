#pragma once

#include <functional>

class QObject;

namespace vantrell
{

/// The event loops that run inside an operation while it waits for the user. Whatever such an operation
/// works on must live until it has returned, however it is ended from within. Main thread.
class NestedEvents
{
public:
    /// Events are dispatched inside an operation while this lives.
    NestedEvents() { ++s_depth; }
    ~NestedEvents() { --s_depth; }
    NestedEvents(const NestedEvents &) = delete;
    NestedEvents &operator=(const NestedEvents &) = delete;

    /// Whether the caller was reached through events that an operation further up the stack dispatches.
    static bool areRunning();

    /// Runs `work` from the program's own event loop, once no operation waits any more; not at all when
    /// `context` has been destroyed by then.
    static void whenUnwound(QObject *context, std::function<void()> work);

private:
    static inline int s_depth = 0;
};

} // namespace vantrell
