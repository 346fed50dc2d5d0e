#pragma once

#include "bridge/EventRecord.h"
#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <optional>

namespace vantrell
{

/// One connection over which events go one way and their replies the other. A peer that stands still in the
/// middle of either is given up after half a minute. One thread.
class HostConnection
{
public:
    /// Everything ends early once the file descriptor \a stop can be read from.
    HostConnection(Descriptor socket, int stop)
        : m_socket(std::move(socket))
        , m_stop(stop)
    {
    }

    /// Whether the other end is a process of this user.
    bool isOfThisUser() const;

    /// The next event, waited for without limit; nothing when the other end has closed or all is to stop.
    Result<std::optional<EventRecord>> readEvent();

    enum class Extent { Whole, Half };
    Result<void> write(const EventRecord &record, Extent extent = Extent::Whole);

private:
    bool waitFor(short events, int milliseconds) const;
    qsizetype read(char *buffer, qsizetype maximum);
    bool writeBytes(const char *bytes, qsizetype size);

    Descriptor m_socket;
    int m_stop;
    qsizetype m_left = 0; ///< bytes that the event being read may still have
};

} // namespace vantrell
