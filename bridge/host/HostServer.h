#pragma once

#include "bridge/host/HostConnection.h"
#include "bridge/host/HostEvents.h"
#include "bridge/host/HostLog.h"

#include <atomic>
#include <chrono>
#include <list>
#include <thread>

namespace vantrell
{

/// Answers events on a listening socket, each connection on a thread of its own, so that none waits for
/// another. Main thread.
class HostServer
{
public:
    struct Manner {
        std::chrono::milliseconds delay{0}; ///< before each answer
        bool truncates = false;             ///< each reply ends in the middle, and so does its connection
    };

    /// Both outlive this object.
    HostServer(HostEvents &events, const HostLog &log, Manner manner)
        : m_events(events)
        , m_log(log)
        , m_manner(manner)
    {
    }

    /// Serves the connections that come in until \a stop can be read from; what is being answered then is
    /// given up, a save excepted.
    void serve(int listener, int stop);

private:
    struct Client {
        std::thread thread;
        std::atomic<bool> isDone = false;
    };

    void accept(int listener, int stop);
    void answer(HostConnection &connection, int stop);
    void joinThoseDone();

    HostEvents &m_events;
    const HostLog &m_log;
    const Manner m_manner;
    std::list<Client> m_clients;
};

} // namespace vantrell
