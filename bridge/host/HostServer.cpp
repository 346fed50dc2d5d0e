#include "bridge/host/HostServer.h"

#include "bridge/host/HostMessages.h"

#include <cerrno>
#include <exception>
#include <poll.h>
#include <sys/socket.h>

namespace vantrell
{

constexpr std::size_t mostClients = 64;
constexpr std::chrono::milliseconds retryInterval(100); // without free descriptors

void HostServer::serve(int listener)
{
    while (!m_stop.isCancelled()) {
        if (m_stop.poll(listener, POLLIN, EventCancel::forever) != 0)
            accept(listener);
    }
    for (Client &client : m_clients)
        client.thread.join();
    m_clients.clear();
}

void HostServer::accept(int listener)
{
    Descriptor socket(::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    joinFinished();
    if (!socket.isOpen()) {
        // Out of descriptors or memory: other connections have to end first.
        if (errno == EMFILE || errno == ENFILE || errno == ENOBUFS || errno == ENOMEM)
            m_stop.waitFor(retryInterval);
        return;
    }
    HostConnection connection(std::move(socket), m_stop);
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
        client.thread = std::thread([this, &client, moved = std::move(connection)]() mutable {
            {
                HostConnection own = std::move(moved);
                answer(own);
            }
            client.isDone = true;
        });
    } catch (const std::exception &exception) {
        hostMessage(QStringLiteral("refused a connection: %1").arg(QString::fromLocal8Bit(exception.what())));
        m_clients.pop_back();
    }
}

void HostServer::answer(HostConnection &connection)
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
            if (m_manner.delay.count() > 0 && m_stop.waitFor(m_manner.delay))
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

void HostServer::joinFinished()
{
    std::erase_if(m_clients, [](Client &client) {
        if (!client.isDone)
            return false;
        client.thread.join();
        return true;
    });
}

} // namespace vantrell
