#pragma once

#include "bridge/EventCancel.h"
#include "bridge/EventRecord.h"
#include "support/desktop/SocketAddress.h"
#include "support/desktop/Workspace.h"
#include "support/files/Descriptor.h"
#include "tests/support/EventBytes.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>
#include <functional>
#include <mutex>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <utility>
#include <vector>

namespace vantrell
{

/// An application that takes events, played by a thread of the test: it notes each event and answers as it
/// is told. It listens from its construction on until it dies.
class ScriptedHost
{
public:
    /// Writes whatever to the socket, on the host's thread; the connection ends when it returns.
    using Answer = std::function<void(int socket, const EventRecord &event)>;

    explicit ScriptedHost(Answer answer)
        : m_answer(std::move(answer))
    {
        const QString path = Workspace::eventSocketPath(QStringLiteral("KeyG"));
        QDir().mkpath(QFileInfo(path).path());
        QFile::remove(path);
        const auto address = socketAddress(path);
        m_socket = Descriptor(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
        if (!address ||
            ::bind(m_socket.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof(*address)) != 0 ||
            ::listen(m_socket.number(), 8) != 0)
            qFatal("The scripted host could not listen.");
        m_thread = std::thread([this] { run(); });
    }

    /// With replies made of events.
    static Answer replying(std::function<EventRecord(const EventRecord &)> reply)
    {
        return [reply = std::move(reply)](int socket, const EventRecord &event) {
            write(socket, EventWire::flatten(reply(event)).value());
        };
    }

    ScriptedHost(const ScriptedHost &) = delete;
    ScriptedHost &operator=(const ScriptedHost &) = delete;
    ~ScriptedHost()
    {
        m_stop.cancel();
        m_thread.join();
        QFile::remove(Workspace::eventSocketPath(QStringLiteral("KeyG")));
    }

    /// The events so far.
    std::vector<EventRecord> events() const
    {
        const std::lock_guard lock(m_mutex);
        return m_events;
    }

    /// False when the other side has gone.
    static bool write(int socket, const QByteArray &bytes)
    {
        for (qsizetype at = 0; at < bytes.size();) {
            const ssize_t sent =
                ::send(socket, bytes.constData() + at, std::size_t(bytes.size() - at), MSG_NOSIGNAL);
            if (sent < 0)
                return false;
            at += sent;
        }
        return true;
    }

    /// Returns when the other side has closed the connection.
    static void waitForClose(int socket)
    {
        char byte;
        while (::recv(socket, &byte, 1, 0) > 0) {
        }
    }

private:
    void run()
    {
        while (m_stop.poll(m_socket.number(), POLLIN, std::chrono::hours(1)) != 0) {
            const Descriptor connection(::accept4(m_socket.number(), nullptr, nullptr, SOCK_CLOEXEC));
            const auto event = EventWire::read([&](char *buffer, qsizetype maximum) {
                return qsizetype(::recv(connection.number(), buffer, std::size_t(maximum), 0));
            });
            if (!event) // somebody who only looks whether it is running
                continue;
            {
                const std::lock_guard lock(m_mutex);
                m_events.push_back(event.value());
            }
            m_answer(connection.number(), event.value());
        }
    }

    const Answer m_answer;
    EventCancel m_stop;
    Descriptor m_socket;
    mutable std::mutex m_mutex; ///< guards m_events
    std::vector<EventRecord> m_events;
    std::thread m_thread;
};

} // namespace vantrell
