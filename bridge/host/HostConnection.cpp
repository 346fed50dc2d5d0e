#include "bridge/host/HostConnection.h"

#include "bridge/EventWire.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

constexpr int patience = 30000;                        // milliseconds
constexpr qsizetype largestEvent = qsizetype(1) << 29; // bytes

} // namespace

bool HostConnection::isOfThisUser() const
{
    ucred peer = {};
    socklen_t size = sizeof(peer);
    return ::getsockopt(m_socket.number(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

Result<std::optional<EventRecord>> HostConnection::readEvent()
{
    char first = 0;
    if (!waitFor(POLLIN, -1) || ::recv(m_socket.number(), &first, 1, MSG_PEEK | MSG_DONTWAIT) <= 0)
        return std::optional<EventRecord>();
    m_left = largestEvent;
    Result<EventRecord> event =
        EventWire::read([this](char *buffer, qsizetype maximum) { return read(buffer, maximum); });
    if (!event)
        return event.failure();
    return std::optional<EventRecord>(std::move(event.value()));
}

Result<void> HostConnection::write(const EventRecord &record, Extent extent)
{
    const auto pieces = EventWire::pieces(record);
    if (!pieces)
        return pieces.failure();
    qsizetype left = 0;
    for (const QByteArray &piece : pieces.value())
        left += piece.size();
    if (extent == Extent::Half)
        left /= 2;
    for (const QByteArray &piece : pieces.value()) {
        const qsizetype size = std::min(piece.size(), left);
        left -= size;
        if (!writeBytes(piece.constData(), size))
            return Failure{QStringLiteral("The other end did not take the whole reply.")};
    }
    return {};
}

bool HostConnection::waitFor(short events, int milliseconds) const
{
    pollfd waiting[] = {{m_socket.number(), events, 0}, {m_stop, POLLIN, 0}};
    int ready = 0;
    do
        ready = ::poll(waiting, std::size(waiting), milliseconds);
    while (ready < 0 && errno == EINTR);
    return ready > 0 && waiting[1].revents == 0;
}

qsizetype HostConnection::read(char *buffer, qsizetype maximum)
{
    for (;;) {
        if (m_left == 0 || !waitFor(POLLIN, patience))
            return -1;
        const ssize_t got =
            ::recv(m_socket.number(), buffer, std::size_t(std::min(maximum, m_left)), MSG_DONTWAIT);
        if (got >= 0) {
            m_left -= got;
            return got;
        }
        if (errno != EINTR && errno != EAGAIN)
            return -1;
    }
}

bool HostConnection::writeBytes(const char *bytes, qsizetype size)
{
    while (size > 0) {
        if (!waitFor(POLLOUT, patience))
            return false;
        const ssize_t written =
            ::send(m_socket.number(), bytes, std::size_t(size), MSG_DONTWAIT | MSG_NOSIGNAL);
        if (written < 0 && errno != EINTR && errno != EAGAIN)
            return false;
        bytes += std::max<ssize_t>(written, 0);
        size -= std::max<ssize_t>(written, 0);
    }
    return true;
}

} // namespace vantrell
