#include "support/desktop/SocketAddress.h"

#include <QFile>

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

} // namespace vantrell
