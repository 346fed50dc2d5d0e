#pragma once

#include "bridge/AppleEventTransport.h"
#include "bridge/EventCancel.h"
#include "support/files/Descriptor.h"

#include <QByteArrayView>

#include <chrono>
#include <functional>
#include <optional>
#include <sys/types.h>

namespace vantrell
{

/// A connected Unix-domain socket. Waiting ends at once on cancelling, which QLocalSocket could not do.
/// After the first failure every operation fails. One thread.
class EventConnection
{
public:
    /// How long the next wait may take; zero or less once the time is up.
    using TimeLeft = std::function<std::chrono::milliseconds()>;

    EventConnection(Descriptor socket, const EventCancel &cancel, TimeLeft timeLeft);

    /// Whether the other end is a process of that user.
    bool belongsTo(uid_t user) const;

    bool write(QByteArrayView bytes);
    /// An EventWire::Source; a connection that ends is a failure too.
    qsizetype read(char *buffer, qsizetype maximum);
    /// Waits without limit for the first byte of a record; false when the other end has closed the connection
    /// or on cancelling.
    bool waitForRecord() const;

    /// The first failure.
    const std::optional<EventFailure> &failure() const { return m_failure; }

private:
    bool wait(short events);
    bool fail(std::int32_t number, const QString &reason);

    Descriptor m_socket;
    EventCancel m_cancel;
    TimeLeft m_timeLeft;
    std::optional<EventFailure> m_failure;
};

} // namespace vantrell
