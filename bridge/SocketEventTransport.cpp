#include "bridge/SocketEventTransport.h"

#include "bridge/EventCodes.h"
#include "bridge/EventConnection.h"
#include "bridge/EventWire.h"
#include "support/desktop/SocketAddress.h"
#include "support/desktop/Workspace.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <utility>

namespace vantrell
{

namespace
{

using namespace std::chrono_literals;

std::chrono::milliseconds timeLeft(const QDeadlineTimer &deadline)
{
    return std::chrono::ceil<std::chrono::milliseconds>(deadline.remainingTimeAsDuration());
}

/// A connection to the application's event socket.
EventResult<Descriptor> connectTo(const QString &path, const QDeadlineTimer &deadline,
                                  const EventCancel &cancel)
{
    for (;;) {
        Descriptor socket = connectedSocket(path);
        if (socket.isOpen())
            return socket;
        if (errno == EMFILE || errno == ENFILE || errno == ENOMEM)
            return EventFailure{EventError::OutOfMemory, qt_error_string(errno)};
        if (errno != EAGAIN && errno != EINTR)
            return EventFailure{EventError::ProcessNotFound,
                                QStringLiteral("nobody answers on its event socket: ") +
                                    qt_error_string(errno)};
        if (cancel.waitFor(std::min<std::chrono::milliseconds>(10ms, timeLeft(deadline))))
            return EventFailure{EventError::Cancelled, QStringLiteral("it was cancelled")};
        if (deadline.hasExpired())
            return EventFailure{EventError::TimedOut, QStringLiteral("its time-out has passed")};
    }
}

struct Shared {
    std::mutex mutex; ///< guards the transport
    std::shared_ptr<AppleEventTransport> transport;
};

Shared &shared()
{
    static Shared *const state = new Shared;
    return *state;
}

} // namespace

SocketEventTransport::SocketEventTransport(std::chrono::milliseconds systemTimeout, uid_t user)
    : AppleEventTransport(systemTimeout)
    , m_user(user)
{
}

EventResult<EventRecord> SocketEventTransport::send(const EventRecord &event, const EventCancel &cancel)
{
    auto timeout = systemTimeout();
    if (event.timeout == EventRecord::noTimeout)
        timeout = EventCancel::forever;
    else if (event.timeout >= 0)
        timeout = std::chrono::milliseconds(std::int64_t(event.timeout) * 1000 / 60);
    const auto signature = event.address.toSignature();
    if (!signature)
        return EventFailure{EventError::BadParameter, QStringLiteral("it has no address")};
    const auto pieces = EventWire::pieces(event);
    if (!pieces)
        return EventFailure{EventError::BadParameter, pieces.message()};

    const QDeadlineTimer deadline(timeout);
    auto socket = connectTo(Workspace::eventSocketPath(signature->text()), deadline, cancel);
    if (!socket)
        return socket.failure();
    EventConnection connection(std::move(socket.value()), cancel, [&] { return timeLeft(deadline); });
    if (!connection.belongsTo(m_user))
        return EventFailure{EventError::NotPermitted, QStringLiteral("its event socket is another user's")};
    for (const QByteArray &piece : pieces.value()) {
        if (!connection.write(piece))
            return *connection.failure();
    }
    Result<EventRecord> reply =
        EventWire::read([&](char *buffer, qsizetype maximum) { return connection.read(buffer, maximum); });
    if (connection.failure())
        return *connection.failure();
    if (!reply)
        return EventFailure{EventError::CorruptData, reply.message()};
    if (reply.value().eventClass != EventCode::CoreClass || reply.value().identifier != EventCode::Answer)
        return EventFailure{EventError::CorruptData, QStringLiteral("what came is no reply")};
    return std::move(reply.value());
}

std::shared_ptr<AppleEventTransport> sharedEventTransport()
{
    const std::lock_guard lock(shared().mutex);
    if (!shared().transport)
        shared().transport = std::make_shared<SocketEventTransport>();
    return shared().transport;
}

void setSharedEventTransport(std::shared_ptr<AppleEventTransport> transport)
{
    const std::lock_guard lock(shared().mutex);
    shared().transport = std::move(transport);
}

} // namespace vantrell
