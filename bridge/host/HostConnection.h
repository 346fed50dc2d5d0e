#pragma once

#include "bridge/EventConnection.h"
#include "bridge/EventRecord.h"
#include "support/files/Result.h"

#include <optional>

namespace vantrell
{

/// A connection of the host: events come in and replies go out, or the reverse when it hands files over. A
/// peer that stalls in the middle of a record is given up after half a minute. One thread.
class HostConnection
{
public:
    HostConnection(Descriptor socket, const EventCancel &stop);

    bool isOfThisUser() const;

    /// Waits without limit for the next event; nothing when the other end has closed the connection or the
    /// host is to stop.
    Result<std::optional<EventRecord>> readEvent();

    enum class Extent { Whole, Half };
    Result<void> write(const EventRecord &record, Extent extent = Extent::Whole);

private:
    EventConnection m_connection;
};

} // namespace vantrell
