#include "bridge/EventCancel.h"

#include "support/files/Descriptor.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace vantrell
{

using namespace std::chrono_literals;

struct EventCancel::State {
    std::atomic<bool> isCancelled = false;
    /// Readable once cancelled. Not open when the process has run out of descriptors.
    const Descriptor wake{::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)};
};

EventCancel::EventCancel()
    : m_state(std::make_shared<State>())
{
}

void EventCancel::cancel()
{
    m_state->isCancelled = true;
    const std::uint64_t one = 1;
    // Fails only without a descriptor or when it is readable already.
    [[maybe_unused]] const ssize_t written = ::write(m_state->wake.number(), &one, sizeof(one));
}

bool EventCancel::isCancelled() const
{
    return m_state->isCancelled;
}

bool EventCancel::waitFor(std::chrono::milliseconds time) const
{
    poll(-1, 0, time);
    return isCancelled();
}

short EventCancel::poll(int descriptor, short events, std::chrono::milliseconds time) const
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (!isCancelled()) {
        std::array<pollfd, 2> watched{pollfd{descriptor, events, 0},
                                      pollfd{m_state->wake.number(), POLLIN, 0}};
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        // Without a descriptor that wakes it, it checks the flag regularly.
        const auto turn =
            std::clamp<std::chrono::milliseconds>(left, 0ms, m_state->wake.isOpen() ? 60s : 50ms);
        const int ready = ::poll(watched.data(), watched.size(), int(turn.count()));
        if (ready > 0 && watched[0].revents != 0 && !isCancelled())
            return watched[0].revents;
        if ((ready < 0 && errno != EINTR) || left <= 0ms)
            return 0;
    }
    return 0;
}

} // namespace vantrell
