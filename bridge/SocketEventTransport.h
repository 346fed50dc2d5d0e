#pragma once

#include "bridge/AppleEventTransport.h"

#include <memory>
#include <sys/types.h>
#include <unistd.h>

namespace vantrell
{

/// Sends events over the Unix-domain socket of the application that they are addressed to
/// (Workspace::eventSocketPath()): one connection per event, one flattened record in each direction. The
/// time-out covers the whole exchange. Large texts are neither copied nor held twice.
class SocketEventTransport : public AppleEventTransport
{
public:
    /// Only talks to programs of that user.
    explicit SocketEventTransport(std::chrono::milliseconds systemTimeout = std::chrono::minutes(1),
                                  uid_t user = ::geteuid());

    EventResult<EventRecord> send(const EventRecord &event, const EventCancel &cancel) override;

private:
    const uid_t m_user;
};

/// The transport that the whole process uses: the one that was set, else sockets. Any thread.
std::shared_ptr<AppleEventTransport> sharedEventTransport();

/// Replaces it from the next event on; null restores sockets. Any thread.
void setSharedEventTransport(std::shared_ptr<AppleEventTransport> transport);

} // namespace vantrell
