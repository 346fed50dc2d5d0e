#include "support/files/FileStamp.h"

#include <QFile>

#include <sys/stat.h>

namespace vantrell
{

namespace
{

std::optional<FileStamp> stampOf(const struct stat &status)
{
    if (!S_ISREG(status.st_mode))
        return std::nullopt;
#ifdef __APPLE__
    const timespec &changed = status.st_mtimespec;
#else
    const timespec &changed = status.st_mtim;
#endif
    return FileStamp{std::uint64_t(status.st_dev), std::uint64_t(status.st_ino), std::int64_t(status.st_size),
                     std::int64_t(changed.tv_sec), std::int64_t(changed.tv_nsec)};
}

} // namespace

std::optional<FileStamp> FileStamp::ofPath(const QString &path)
{
    struct stat status = {};
    if (path.isEmpty() || ::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return stampOf(status);
}

std::optional<FileStamp> FileStamp::ofDescriptor(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 ? stampOf(status) : std::nullopt;
}

} // namespace vantrell
