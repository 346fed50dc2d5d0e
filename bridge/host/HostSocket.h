#pragma once

#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <sys/stat.h>

namespace vantrell
{

/// The Unix-domain socket of the application's signature, "KeyG", in a folder, and the claim to it: one
/// process at a time listens there. Main thread.
class HostSocket
{
public:
    explicit HostSocket(const QString &folder)
        : m_folder(folder)
    {
    }
    /// Removes the socket, unless another one has taken its place.
    ~HostSocket();
    HostSocket(const HostSocket &) = delete;
    HostSocket &operator=(const HostSocket &) = delete;

    QString path() const;

    enum class Claim { Own, Taken };
    /// Claims the socket, making its folder, for its owner only, where there is none. Taken: another
    /// process has claimed it or answers on it. May be called again after that.
    Result<Claim> claim();
    /// Listens, in place of what an earlier process left behind. After claim() gave Own.
    Result<void> listen();

    /// Connections can be accepted from it; -1 before listen().
    int descriptor() const { return m_listener.number(); }

    /// A connection to whoever listens there; not open when nobody does.
    Descriptor connect() const;

private:
    bool isAnswered() const;

    QString m_folder;
    Descriptor m_lock; // the folder, locked
    Descriptor m_listener;
    struct stat m_identity = {}; // of the socket's file
};

} // namespace vantrell
