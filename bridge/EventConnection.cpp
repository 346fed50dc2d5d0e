#include "bridge/EventConnection.h"

#include "bridge/EventCodes.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <utility>

namespace vantrell
{

namespace
{

constexpr qsizetype Portion = qsizetype(1) << 20; ///< written in one go, so that cancelling is noticed

bool isTransient()
{
    return errno == EAGAIN || errno == EINTR;
}

} // namespace

EventConnection::EventConnection(Descriptor socket, const EventCancel &cancel, TimeLeft timeLeft)
    : m_socket(std::move(socket))
    , m_cancel(cancel)
    , m_timeLeft(std::move(timeLeft))
{
}

bool EventConnection::belongsTo(uid_t user) const
{
    ucred peer{};
    socklen_t size = sizeof(peer);
    return ::getsockopt(m_socket.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == user;
}

bool EventConnection::write(QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        if (!wait(POLLOUT))
            return false;
        const ssize_t sent =
            ::send(m_socket.number(), bytes.data(), std::size_t(std::min(bytes.size(), Portion)),
                   MSG_NOSIGNAL | MSG_DONTWAIT);
        if (sent < 0 && !isTransient())
            return fail(EventError::ConnectionInvalid,
                        QStringLiteral("the event could not be written: ") + qt_error_string(errno));
        bytes = bytes.sliced(std::max<ssize_t>(sent, 0));
    }
    return true;
}

qsizetype EventConnection::read(char *buffer, qsizetype maximum)
{
    while (wait(POLLIN)) {
        const ssize_t got = ::recv(m_socket.number(), buffer, std::size_t(maximum), MSG_DONTWAIT);
        if (got > 0)
            return got;
        if (got == 0) {
            fail(EventError::ConnectionInvalid,
                 QStringLiteral("the application ended before its reply was whole"));
            return 0;
        }
        if (!isTransient())
            fail(EventError::ConnectionInvalid,
                 QStringLiteral("the reply could not be read: ") + qt_error_string(errno));
    }
    return -1;
}

bool EventConnection::waitForRecord() const
{
    char first = 0;
    return m_cancel.poll(m_socket.number(), POLLIN, EventCancel::forever) != 0 &&
           ::recv(m_socket.number(), &first, 1, MSG_PEEK | MSG_DONTWAIT) > 0;
}

/// Waits until the socket is ready or has ended.
bool EventConnection::wait(short events)
{
    if (m_failure)
        return false;
    const std::chrono::milliseconds time = m_timeLeft();
    if (time.count() > 0 && m_cancel.poll(m_socket.number(), events, time) != 0)
        return true;
    if (m_cancel.isCancelled())
        return fail(EventError::Cancelled, QStringLiteral("it was cancelled"));
    return fail(EventError::TimedOut, QStringLiteral("its time-out has passed"));
}

bool EventConnection::fail(std::int32_t number, const QString &reason)
{
    m_failure = EventFailure{number, reason};
    return false;
}

} // namespace vantrell
