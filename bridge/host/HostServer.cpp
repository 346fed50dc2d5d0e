#include "bridge/host/HostServer.h"

#include "bridge/host/HostMessages.h"

#include <cerrno>
#include <exception>
#include <poll.h>
#include <sys/socket.h>

namespace vantrell
{

namespace
{

constexpr std::size_t mostClients = 64;

/// Waits so long (for ever when negative) or until the descriptor can be read from; whether it can.
bool waitFor(int descriptor, std::chrono::milliseconds time)
{
    pollfd waiting = {descriptor, POLLIN, 0};
    int ready = 0;
    do
        ready = ::poll(&waiting, 1, int(time.count()));
    while (ready < 0 && errno == EINTR);
    return ready > 0;
}

} // namespace

void HostServer::serve(int listener, int stop)
{
    for (;;) {
        pollfd waiting[] = {{listener, POLLIN, 0}, {stop, POLLIN, 0}};
        if (::poll(waiting, std::size(waiting), -1) < 0 && errno != EINTR)
            break;
        if (waiting[1].revents != 0)
            break;
        if (waiting[0].revents != 0)
            accept(listener, stop);
    }
    for (Client &client : m_clients)
        client.thread.join();
    m_clients.clear();
}

void HostServer::accept(int listener, int stop)
{
    Descriptor socket(::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    joinThoseDone();
    if (!socket.isOpen()) {
        // Without descriptors to spare, those of others have to be closed first.
        if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM)
            waitFor(stop, std::chrono::milliseconds(100));
        return;
    }
    HostConnection connection(std::move(socket), stop);
    if (!connection.isOfThisUser()) {
        hostMessage(QStringLiteral("refused a connection of another user"));
        return;
    }
    if (m_clients.size() >= mostClients) {
        hostMessage(QStringLiteral("refused a connection: there are %1 already").arg(mostClients));
        return;
    }
    Client &client = m_clients.emplace_back();
    try {
        client.thread = std::thread([this, &client, stop, moved = std::move(connection)]() mutable {
            {
                HostConnection own = std::move(moved);
                answer(own, stop);
            }
            client.isDone = true;
        });
    } catch (const std::exception &exception) {
        hostMessage(QStringLiteral("refused a connection: %1").arg(QString::fromLocal8Bit(exception.what())));
        m_clients.pop_back();
    }
}

void HostServer::answer(HostConnection &connection, int stop)
{
    try {
        for (;;) {
            const auto event = connection.readEvent();
            if (!event) {
                hostMessage(QStringLiteral("closed a connection: %1").arg(event.message()));
                return;
            }
            if (!event.value())
                return;
            m_log.append(*event.value());
            if (m_manner.delay.count() > 0 && waitFor(stop, m_manner.delay))
                return;
            const auto extent =
                m_manner.truncates ? HostConnection::Extent::Half : HostConnection::Extent::Whole;
            const Result<void> written = connection.write(m_events.replyTo(*event.value()), extent);
            if (!written)
                hostMessage(QStringLiteral("closed a connection: %1").arg(written.message()));
            if (!written || m_manner.truncates)
                return;
        }
    } catch (const std::exception &exception) {
        hostMessage(QStringLiteral("closed a connection: %1").arg(QString::fromLocal8Bit(exception.what())));
    }
}

void HostServer::joinThoseDone()
{
    std::erase_if(m_clients, [](Client &client) {
        if (!client.isDone)
            return false;
        client.thread.join();
        return true;
    });
}

} // namespace vantrell
