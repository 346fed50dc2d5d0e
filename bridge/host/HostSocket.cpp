#include "bridge/host/HostSocket.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/file.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

Failure folderFailure(const QString &folder, int error)
{
    return Failure{
        QStringLiteral("The folder \"%1\" cannot be used: %2.").arg(folder, qt_error_string(error))};
}

} // namespace

HostSocket::~HostSocket()
{
    const QByteArray name = QFile::encodeName(path());
    struct stat present = {};
    if (m_listener.isOpen() && ::lstat(name.constData(), &present) == 0 &&
        present.st_dev == m_identity.st_dev && present.st_ino == m_identity.st_ino)
        ::unlink(name.constData());
}

Result<HostSocket::Claim> HostSocket::claim()
{
    const QByteArray name = QFile::encodeName(m_folder);
    if (!QDir().mkpath(QFileInfo(m_folder).path()))
        return folderFailure(m_folder, errno);
    if (::mkdir(name.constData(), 0700) != 0 && errno != EEXIST)
        return folderFailure(m_folder, errno);
    Descriptor folder(::open(name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status = {};
    if (!folder.isOpen() || ::fstat(folder.number(), &status) != 0)
        return folderFailure(m_folder, errno);
    if (status.st_uid != ::geteuid())
        return folderFailure(m_folder, EPERM);
    // On file systems without locks only the check below remains.
    if (::flock(folder.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return Claim::Taken;
    if (connect().isOpen() || errno == EAGAIN)
        return Claim::Taken;
    m_lock = std::move(folder);
    return Claim::Own;
}

Result<void> HostSocket::listen()
{
    const auto failure = [this](int error) {
        return Failure{
            QStringLiteral("The socket \"%1\" cannot be made: %2.").arg(path(), qt_error_string(error))};
    };
    // Renamed into place once it is listening and protected: clients never see a socket that refuses them.
    const QString unfinishedPath = m_folder + QStringLiteral("/.KeyG");
    const QByteArray name = QFile::encodeName(path());
    const QByteArray unfinished = QFile::encodeName(unfinishedPath);
    const std::optional<sockaddr_un> address = socketAddress(unfinishedPath);
    if (!address)
        return failure(ENAMETOOLONG);
    Descriptor listener(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    ::unlink(unfinished.constData());
    if (!listener.isOpen() ||
        ::bind(listener.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof(*address)) != 0)
        return failure(errno);
    if (::chmod(unfinished.constData(), 0600) != 0 || ::listen(listener.number(), SOMAXCONN) != 0 ||
        ::lstat(unfinished.constData(), &m_identity) != 0 ||
        std::rename(unfinished.constData(), name.constData()) != 0) {
        const int error = errno;
        ::unlink(unfinished.constData());
        return failure(error);
    }
    m_listener = std::move(listener);
    return {};
}

} // namespace vantrell
