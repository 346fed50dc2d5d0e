#include "support/desktop/SocketAddress.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <sys/socket.h>

namespace vantrell
{

std::optional<sockaddr_un> socketAddress(const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof(address.sun_path))
        return {};
    std::memcpy(address.sun_path, name.constData(), static_cast<std::size_t>(name.size()));
    return address;
}

Descriptor connectedSocket(const QString &path)
{
    const auto address = socketAddress(path);
    if (!address) {
        errno = ENAMETOOLONG;
        return Descriptor();
    }
    Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (socket.isOpen() &&
        ::connect(socket.number(), reinterpret_cast<const sockaddr *>(&*address), sizeof(*address)) != 0) {
        const int error = errno;
        socket.close();
        errno = error;
    }
    return socket;
}

} // namespace vantrell
