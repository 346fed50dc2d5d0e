#include "xml/XmlFile.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell
{

Result<std::shared_ptr<XmlFile>> XmlFile::open(const QString &path, const std::atomic<bool> *cancelled)
{
    std::shared_ptr<XmlFile> file(new XmlFile);
    file->m_cancelled = cancelled;
    file->m_descriptor =
        Descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!file->m_descriptor.isOpen()) {
        const int reason = errno;
        if (reason == ENOENT || reason == ENOTDIR)
            return Failure{QStringLiteral("The file \"%1\" does not exist.").arg(path)};
        return Failure{
            QStringLiteral("The file \"%1\" cannot be opened: %2.").arg(path, qt_error_string(reason))};
    }
    struct stat status = {};
    if (fstat(file->m_descriptor.number(), &status) != 0)
        return Failure{
            QStringLiteral("The file \"%1\" cannot be read: %2.").arg(path, qt_error_string(errno))};
    if (S_ISDIR(status.st_mode))
        return Failure{QStringLiteral("\"%1\" is a folder, not a project file.").arg(path)};
    if (S_ISREG(status.st_mode)) {
        if (status.st_size == 0)
            return Failure{QStringLiteral("The file \"%1\" is empty.").arg(path)};
        file->m_size = file->m_remaining = status.st_size;
#ifdef POSIX_FADV_SEQUENTIAL
        posix_fadvise(file->m_descriptor.number(), 0, 0, POSIX_FADV_SEQUENTIAL);
#endif
    }
    return file;
}

int XmlFile::read(char *buffer, int length)
{
    if (m_remaining >= 0)
        length = int(std::min<long long>(length, m_remaining));
    if (length <= 0)
        return 0;
    ssize_t count;
    do {
        if (!waitForData())
            return -1;
        count = ::read(m_descriptor.number(), buffer, std::size_t(length));
    } while (count < 0 && (errno == EINTR || errno == EAGAIN));
    if (count > 0 && m_remaining >= 0)
        m_remaining -= count;
    return int(count);
}

/// Pipes and terminals may have nothing for a long time. False once cancelled.
bool XmlFile::waitForData() const
{
    constexpr int cancelInterval = 100; // milliseconds
    pollfd data = {m_descriptor.number(), POLLIN, 0};
    while (m_remaining < 0 && poll(&data, 1, cancelInterval) == 0) {
        if (m_cancelled && m_cancelled->load(std::memory_order_relaxed))
            return false;
    }
    return true;
}

} // namespace vantrell
