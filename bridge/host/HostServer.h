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

/// Answers events on a listening socket, each connection on a thread of its own, so that none blocks another.
/// Main thread.
class HostServer
{
public:
    struct Manner {
        std::chrono::milliseconds delay{0}; ///< before each answer
        bool truncates = false;             ///< each connection is closed in the middle of its first reply
    };

    /// Events and log outlive this object.
    HostServer(HostEvents &events, const HostLog &log, Manner manner, const EventCancel &stop)
        : m_events(events)
        , m_log(log)
        , m_manner(manner)
        , m_stop(stop)
    {
    }

    /// Serves incoming connections until it is stopped; pending answers are dropped then, except for saves.
    void serve(int listener);

private:
    struct Client {
        std::thread thread;
        std::atomic<bool> isDone = false;
    };

    void accept(int listener);
    void answer(HostConnection &connection);
    void joinFinished();

    HostEvents &m_events;
    const HostLog &m_log;
    const Manner m_manner;
    const EventCancel m_stop;
    std::list<Client> m_clients;
};

} // namespace vantrell
