#include "bridge/host/StopSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <sys/eventfd.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

// For the signal handler: where it writes.
std::atomic<int> s_event = -1;
static_assert(std::atomic<int>::is_always_lock_free);

void tell(int)
{
    const int savedError = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(s_event, &one, sizeof one);
    errno = savedError;
}

} // namespace

StopSignals::StopSignals()
    : m_event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    s_event = m_event.number();
    struct sigaction action = {};
    action.sa_handler = tell;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction present = {};
        // What the caller has the process ignore stays ignored.
        if (::sigaction(number, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace vantrell
