#include "bridge/host/StopSignals.h"

#include <atomic>
#include <cerrno>
#include <csignal>

namespace vantrell
{

namespace
{

std::atomic<EventCancel *> s_stop = nullptr; // for the signal handler
static_assert(std::atomic<EventCancel *>::is_always_lock_free);

void handleSignal(int)
{
    const int savedError = errno;
    if (EventCancel *const cancel = s_stop)
        cancel->cancel();
    errno = savedError;
}

} // namespace

StopSignals::StopSignals()
{
    s_stop = &m_stop;
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        struct sigaction present = {};
        // Signals that the process was started to ignore stay ignored.
        if (::sigaction(number, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
            ::sigaction(number, &action, nullptr);
    }
    std::signal(SIGPIPE, SIG_IGN);
}

StopSignals::~StopSignals()
{
    s_stop = nullptr;
}

} // namespace vantrell
