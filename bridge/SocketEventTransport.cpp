#include "bridge/SocketEventTransport.h"

#include "bridge/EventCodes.h"
#include "bridge/EventWire.h"
#include "support/desktop/SocketAddress.h"
#include "support/desktop/Workspace.h"
#include "support/files/Descriptor.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>

namespace vantrell
{

namespace
{

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr std::chrono::milliseconds Forever = std::chrono::hours(24 * 365);
constexpr qsizetype Portion = qsizetype(1) << 20; ///< written in one go, so that cancelling is noticed

QString systemError()
{
    return QString::fromLocal8Bit(std::strerror(errno));
}

/// One connection to an application. Once a step has failed, failure() says why.
class Connection
{
public:
    Connection(std::chrono::milliseconds timeout, const EventCancel &cancel)
        : m_deadline(Clock::now() + timeout)
        , m_cancel(cancel)
    {
    }

    const EventFailure &failure() const { return m_failure; }
    bool hasFailed() const { return m_failure.number != 0; }

    bool open(const QString &path, uid_t user)
    {
        const auto address = socketAddress(path);
        if (!address)
            return fail(EventError::ProcessNotFound, QStringLiteral("it has no event socket"));
        m_socket = Descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        if (!m_socket.isOpen())
            return fail(EventError::OutOfMemory, systemError());
        while (::connect(m_socket.number(), reinterpret_cast<const sockaddr *>(&*address),
                         sizeof(*address)) != 0) {
            // EAGAIN: others are waiting to be accepted, as many as may wait.
            if (errno != EAGAIN && errno != EINTR)
                return fail(EventError::ProcessNotFound,
                            QStringLiteral("nobody answers on its event socket: ") + systemError());
            if (m_cancel.waitFor(std::min<std::chrono::milliseconds>(10ms, left())) || left() <= 0ms)
                return failWaiting();
        }
        ucred peer{};
        socklen_t size = sizeof(peer);
        if (::getsockopt(m_socket.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) != 0 || peer.uid != user)
            return fail(EventError::NotPermitted, QStringLiteral("its event socket is another user's"));
        return true;
    }

    bool write(const QByteArray &bytes)
    {
        qsizetype position = 0;
        while (position < bytes.size()) {
            if (!wait(POLLOUT))
                return false;
            const qsizetype size = std::min(bytes.size() - position, Portion);
            const ssize_t sent = ::send(m_socket.number(), bytes.constData() + position, std::size_t(size),
                                        MSG_NOSIGNAL | MSG_DONTWAIT);
            if (sent < 0 && !isTransient())
                return fail(EventError::ConnectionInvalid,
                            QStringLiteral("the event could not be written: ") + systemError());
            position += std::max<ssize_t>(sent, 0);
        }
        return true;
    }

    /// An EventWire::Source.
    qsizetype read(char *buffer, qsizetype maximum)
    {
        while (wait(POLLIN)) {
            const ssize_t got = ::recv(m_socket.number(), buffer, std::size_t(maximum), MSG_DONTWAIT);
            if (got > 0)
                return got;
            if (got == 0)
                fail(EventError::ConnectionInvalid,
                     QStringLiteral("the application ended before its reply was whole"));
            else if (!isTransient())
                fail(EventError::ConnectionInvalid,
                     QStringLiteral("the reply could not be read: ") + systemError());
        }
        return -1;
    }

private:
    std::chrono::milliseconds left() const
    {
        return std::chrono::ceil<std::chrono::milliseconds>(m_deadline - Clock::now());
    }

    static bool isTransient() { return errno == EAGAIN || errno == EINTR; }

    /// Waits until the socket is ready or has ended; false on a failure.
    bool wait(short events)
    {
        if (hasFailed())
            return false;
        const auto time = left();
        if (time > 0ms && m_cancel.poll(m_socket.number(), events, time) != 0)
            return true;
        return failWaiting();
    }

    bool failWaiting()
    {
        if (m_cancel.isCancelled())
            return fail(EventError::Cancelled, QStringLiteral("it was cancelled"));
        return fail(EventError::TimedOut, QStringLiteral("its time-out has passed"));
    }

    bool fail(std::int32_t number, const QString &reason)
    {
        m_failure = {number, reason};
        return false;
    }

    const Clock::time_point m_deadline;
    const EventCancel &m_cancel;
    Descriptor m_socket;
    EventFailure m_failure{0, {}};
};

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
        timeout = Forever;
    else if (event.timeout >= 0)
        timeout = std::chrono::milliseconds(std::int64_t(event.timeout) * 1000 / 60);
    const auto signature = event.address.toSignature();
    if (!signature)
        return EventFailure{EventError::BadParameter, QStringLiteral("it has no address")};
    const auto pieces = EventWire::pieces(event);
    if (!pieces)
        return EventFailure{EventError::BadParameter, pieces.message()};

    Connection connection(timeout, cancel);
    if (!connection.open(Workspace::eventSocketPath(signature->text()), m_user))
        return connection.failure();
    for (const QByteArray &piece : pieces.value()) {
        if (!connection.write(piece))
            return connection.failure();
    }
    Result<EventRecord> reply =
        EventWire::read([&](char *buffer, qsizetype maximum) { return connection.read(buffer, maximum); });
    if (connection.hasFailed())
        return connection.failure();
    if (!reply)
        return EventFailure{EventError::CorruptData, reply.message()};
    if (reply.value().eventClass != EventCode::CoreClass || reply.value().identifier != EventCode::Answer)
        return EventFailure{EventError::CorruptData, QStringLiteral("what came is no reply")};
    return std::move(reply.value());
}

} // namespace vantrell
