#include "bridge/FileReference.h"

#include "support/files/Descriptor.h"
#include "support/files/StandardFolders.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

// What stands where in a reference. Numbers are big-endian; what is left over is zero.
constexpr std::array<char, 4> Magic{'v', 'F', 'r', '1'};
constexpr qsizetype UserAt = 4;        // 4 bytes
constexpr qsizetype DeviceAt = 8;      // 8 bytes
constexpr qsizetype FileNumberAt = 16; // 8 bytes
constexpr qsizetype LengthAt = 24;     // 2 bytes: of the path; 0 when its hash stands there instead
constexpr qsizetype PathAt = 26;
constexpr qsizetype PathRoom = fileReferenceSize - PathAt;
constexpr qsizetype HashSize = 32;

constexpr qsizetype LongestPath = 65536;
constexpr std::time_t EntryLifetime = 24 * 60 * 60; // seconds

template <typename Number>
void put(QByteArray &bytes, qsizetype at, Number number)
{
    qToBigEndian(number, bytes.data() + at);
}

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype at)
{
    return qFromBigEndian<Number>(bytes.constData() + at);
}

std::optional<struct stat> regularFile(const QByteArray &path)
{
    struct stat status = {};
    if (path.contains('\0') || ::stat(path.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return status;
}

QByteArray hashOf(const QByteArray &path)
{
    return QCryptographicHash::hash(path, QCryptographicHash::Sha256);
}

/// The files that hold the long paths, each named by its path's hash. Nobody else may write beside them.
class PathRegistry
{
public:
    /// Opens the folder; with `make` it is made where it is missing.
    explicit PathRegistry(bool make)
    {
        const QString runtime = StandardFolders::runtime();
        if (runtime.isEmpty())
            return;
        const QByteArray outer = QFile::encodeName(runtime);
        const QByteArray inner = outer + "/references";
        if (make && ::mkdir(outer.constData(), 0700) != 0 && errno != EEXIST)
            return;
        if (make && ::mkdir(inner.constData(), 0700) != 0 && errno != EEXIST)
            return;
        Descriptor folder(::open(inner.constData(), O_DIRECTORY | O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (folder.isOpen() && isOurs(folder, S_IFDIR))
            m_folder = std::move(folder);
    }

    bool isOpen() const { return m_folder.isOpen(); }

    /// The path of which this is the hash; nothing when it is not, or no longer, there.
    std::optional<QByteArray> path(const QByteArray &hash) const
    {
        const Descriptor file(::openat(m_folder.number(), nameOf(hash).constData(),
                                       O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
        if (!file.isOpen() || !isOurs(file, S_IFREG))
            return {};
        QByteArray path(LongestPath, Qt::Uninitialized);
        const ssize_t length = ::read(file.number(), path.data(), std::size_t(path.size()));
        if (length <= 0)
            return {};
        path.truncate(length);
        if (hashOf(path) != hash)
            return {};
        return path;
    }

    /// Keeps the path for another day. False when that cannot be done.
    bool add(const QByteArray &path) const
    {
        const QByteArray hash = hashOf(path);
        const QByteArray name = nameOf(hash);
        if (this->path(hash) && ::utimensat(m_folder.number(), name.constData(), nullptr, 0) == 0)
            return true;
        removeOld();
        const QByteArray temporary = name + '-' + QByteArray::number(::getpid()) + '-' + uniqueNumber();
        Descriptor file(::openat(m_folder.number(), temporary.constData(),
                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!file.isOpen())
            return false;
        const bool isWritten =
            ::write(file.number(), path.constData(), std::size_t(path.size())) == path.size() &&
            ::renameat(m_folder.number(), temporary.constData(), m_folder.number(), name.constData()) == 0;
        if (!isWritten)
            ::unlinkat(m_folder.number(), temporary.constData(), 0);
        return isWritten;
    }

private:
    static QByteArray nameOf(const QByteArray &hash) { return hash.toHex(); }

    /// Different for each call in this process.
    static QByteArray uniqueNumber()
    {
        static std::atomic<unsigned> next = 0;
        return QByteArray::number(next++);
    }

    static bool isOurs(const Descriptor &descriptor, mode_t kind)
    {
        struct stat status = {};
        return ::fstat(descriptor.number(), &status) == 0 && (status.st_mode & S_IFMT) == kind &&
               status.st_uid == ::geteuid() && (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
    }

    void removeOld() const
    {
        struct FolderDeleter {
            void operator()(DIR *folder) const { ::closedir(folder); }
        };
        const int copy = ::openat(m_folder.number(), ".", O_DIRECTORY | O_RDONLY | O_CLOEXEC);
        if (copy < 0)
            return;
        const std::unique_ptr<DIR, FolderDeleter> folder(::fdopendir(copy));
        if (!folder) {
            ::close(copy);
            return;
        }
        const std::time_t oldest = std::time(nullptr) - EntryLifetime;
        while (const dirent *entry = ::readdir(folder.get())) {
            struct stat status = {};
            if (::fstatat(copy, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
                S_ISREG(status.st_mode) && status.st_mtime < oldest)
                ::unlinkat(copy, entry->d_name, 0);
        }
    }

    Descriptor m_folder;
};

/// The path in the reference or kept for it.
std::optional<QByteArray> storedPath(const QByteArray &reference)
{
    const auto length = qsizetype(numberAt<quint16>(reference, LengthAt));
    if (length > PathRoom)
        return {};
    if (length > 0)
        return reference.mid(PathAt, length);
    const PathRegistry registry(false);
    if (!registry.isOpen())
        return {};
    return registry.path(reference.mid(PathAt, HashSize));
}

/// The same after a check of who made the reference; nothing for bytes that are none.
std::optional<QByteArray> checkedPath(const QByteArray &reference)
{
    if (reference.size() != fileReferenceSize ||
        std::memcmp(reference.constData(), Magic.data(), Magic.size()) != 0 ||
        numberAt<quint32>(reference, UserAt) != quint32(::geteuid()))
        return {};
    const auto path = storedPath(reference);
    return path && path->startsWith('/') ? path : std::nullopt;
}

} // namespace

std::optional<QByteArray> fileReferenceForPath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return {};
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    const auto status = regularFile(name);
    if (!status || name.size() > LongestPath)
        return {};
    QByteArray reference(fileReferenceSize, '\0');
    std::memcpy(reference.data(), Magic.data(), Magic.size());
    put(reference, UserAt, quint32(::geteuid()));
    put(reference, DeviceAt, quint64(status->st_dev));
    put(reference, FileNumberAt, quint64(status->st_ino));
    if (name.size() <= PathRoom) {
        put(reference, LengthAt, quint16(name.size()));
        reference.replace(PathAt, name.size(), name);
        return reference;
    }
    const PathRegistry registry(true);
    if (!registry.isOpen() || !registry.add(name))
        return {};
    reference.replace(PathAt, HashSize, hashOf(name));
    return reference;
}

std::optional<QString> pathForFileReference(const QByteArray &reference)
{
    const auto path = checkedPath(reference);
    if (!path)
        return {};
    const auto status = regularFile(*path);
    if (!status || numberAt<quint64>(reference, DeviceAt) != quint64(status->st_dev) ||
        numberAt<quint64>(reference, FileNumberAt) != quint64(status->st_ino))
        return {};
    return QFile::decodeName(*path);
}

std::optional<QString> pathInFileReference(const QByteArray &reference)
{
    const auto path = checkedPath(reference);
    return path ? std::optional(QFile::decodeName(*path)) : std::nullopt;
}

} // namespace vantrell
