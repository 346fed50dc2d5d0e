#pragma once

#include "support/desktop/SocketAddress.h"
#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

namespace vantrell
{

/// The Unix-domain socket "KeyG", named after the application's signature, in a folder. One process at a time
/// claims it and listens there. Main thread.
class HostSocket
{
public:
    explicit HostSocket(const QString &folder)
        : m_folder(folder)
    {
    }
    /// Removes the socket, unless it has been replaced by another one.
    ~HostSocket();
    HostSocket(const HostSocket &) = delete;
    HostSocket &operator=(const HostSocket &) = delete;

    QString path() const { return m_folder + QStringLiteral("/KeyG"); }

    enum class Claim { Own, Taken };
    /// Claims the socket, creating its folder, accessible to its owner only, if necessary. Taken: another
    /// process has claimed it or answers on it; the call may be repeated.
    Result<Claim> claim();
    /// Listens, replacing a socket that an earlier process left behind. After claim() has returned Own.
    Result<void> listen();

    /// The listening descriptor; -1 before listen().
    int descriptor() const { return m_listener.number(); }

    /// A connection to the listening process; not open without one.
    Descriptor connect() const { return connectedSocket(path()); }

private:
    QString m_folder;
    Descriptor m_lock; // the folder, locked
    Descriptor m_listener;
    struct stat m_identity = {}; // of the socket's file
};

} // namespace vantrell
