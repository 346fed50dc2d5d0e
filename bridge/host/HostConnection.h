#pragma once

#include "bridge/EventCancel.h"
#include "bridge/EventConnection.h"
#include "bridge/EventRecord.h"
#include "bridge/host/HostSocket.h"
#include "support/files/Result.h"

#include <QStringList>

#include <optional>
#include <unistd.h>

namespace vantrell
{

/// A connection of the host: events come in and replies go out, or the reverse when it hands files over. A
/// peer that stalls in the middle of a record is given up after half a minute. One thread.
class HostConnection
{
public:
    HostConnection(Descriptor socket, const EventCancel &stop);

    bool isOfThisUser() const { return m_connection.belongsTo(::geteuid()); }

    /// Waits without limit for the next event; nothing when the other end has closed the connection or the
    /// host is to stop.
    Result<std::optional<EventRecord>> readEvent();

    enum class Extent { Whole, Half };
    Result<void> write(const EventRecord &record, Extent extent = Extent::Whole);

private:
    EventConnection m_connection;
};

enum class HandOver {
    Done,  ///< the other host has opened the files
    Nobody ///< there is no other host; the socket is claimed
};

/// Claims the socket, or has the host that listens there open the files. Waits up to ten seconds for a host
/// that is just starting. Fails when the files cannot be opened there, and on \a stop. Main thread.
Result<HandOver> handOver(HostSocket &socket, const QStringList &files, const EventCancel &stop);

} // namespace vantrell
