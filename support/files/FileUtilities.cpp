#include "support/files/FileUtilities.h"

#include "support/files/UnfinishedFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <exception>
#include <fcntl.h>
#include <new>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace vantrell::FileUtilities
{

namespace
{

Failure writeFailure(const QString &path, const QString &reason)
{
    return Failure{QStringLiteral("The file \"%1\" could not be written: %2.").arg(path, reason)};
}

Failure writeFailure(const QString &path, int error)
{
    return writeFailure(path, qt_error_string(error));
}

/// Writes to an open file descriptor through a buffer of its own and remembers the first error: a
/// writer that does not look at what write() returns still fails.
class DescriptorDevice : public QIODevice
{
public:
    explicit DescriptorDevice(int descriptor)
        : m_descriptor(descriptor)
    {
        open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        m_buffer.reserve(bufferSize);
    }

    bool isSequential() const override { return true; }
    int error() const { return m_error; }

    bool flush()
    {
        writeOut(m_buffer.constData(), m_buffer.size());
        m_buffer.resize(0);
        return m_error == 0;
    }

protected:
    qint64 readData(char *, qint64) override { return -1; }

    qint64 writeData(const char *data, qint64 size) override
    {
        if (m_buffer.size() + size > bufferSize)
            flush();
        if (size >= bufferSize)
            writeOut(data, size);
        else if (m_error == 0)
            m_buffer.append(data, size);
        if (m_error == 0)
            return size;
        setErrorString(qt_error_string(m_error));
        return -1;
    }

private:
    static constexpr qint64 bufferSize = 64 * 1024;

    void writeOut(const char *data, qint64 size)
    {
        while (m_error == 0 && size > 0) {
            const ssize_t written = ::write(m_descriptor, data, static_cast<std::size_t>(size));
            if (written >= 0) {
                data += written;
                size -= written;
            } else if (errno != EINTR) {
                m_error = errno;
            }
        }
    }

    int m_descriptor;
    int m_error = 0;
    QByteArray m_buffer;
};

/// An open file, closed at the end; -1 for none.
class Descriptor
{
public:
    explicit Descriptor(int number = -1)
        : m_number(number)
    {
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    ~Descriptor() { close(); }

    int number() const { return m_number; }

    void reset(int number)
    {
        close();
        m_number = number;
    }

    /// False with errno set when what was written is not sure to have arrived.
    bool close()
    {
        const int number = std::exchange(m_number, -1);
        return number < 0 || ::close(number) == 0 || errno == EINTR;
    }

private:
    int m_number;
};

/// A file that is removed at the end unless it was kept.
class NewFile
{
public:
    NewFile() = default;
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;
    ~NewFile()
    {
        if (!m_path.isEmpty()) {
            ::unlink(m_path.constData());
            UnfinishedFiles::remove(m_path);
        }
    }

    /// Makes a file with a name of its own in the folder; false with errno set when it cannot.
    bool create(const QString &folder, const QString &name)
    {
        for (int attempt = 0; attempt < 100; ++attempt) {
            const QString unique = QString::number(QRandomGenerator::system()->generate64(), 36);
            m_path = QFile::encodeName(folder + u'/' + u'.' + name.left(60) + u'.' + unique);
            m_descriptor.reset(::open(m_path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
            if (m_descriptor.number() >= 0) {
                UnfinishedFiles::add(m_path);
                return true;
            }
            if (errno != EEXIST)
                break;
        }
        m_path.clear();
        return false;
    }

    int descriptor() const { return m_descriptor.number(); }
    const QByteArray &path() const { return m_path; }
    bool close() { return m_descriptor.close(); }
    void keep()
    {
        UnfinishedFiles::remove(m_path);
        m_path.clear();
    }

private:
    Descriptor m_descriptor;
    QByteArray m_path;
};

/// The path that a chain of symbolic links ends at, whether there is a file or not; empty when the
/// chain is a ring.
QString linkTarget(QString path)
{
    for (int step = 0; step < 40; ++step) {
        QByteArray target(4096, Qt::Uninitialized);
        const ssize_t size = ::readlink(QFile::encodeName(path).constData(), target.data(),
                                        static_cast<std::size_t>(target.size()));
        if (size < 0)
            return path;
        const QString next = QFile::decodeName(target.left(size));
        path = next.startsWith(u'/') ? next : QFileInfo(path).path() + u'/' + next;
    }
    return QString();
}

/// Runs the writer on the open descriptor.
Result<void> writeContent(const QString &path, int descriptor, const Writer &writer)
{
    DescriptorDevice device(descriptor);
    try {
        const Result<void> written = writer(device);
        device.flush();
        if (device.error() != 0)
            return writeFailure(path, device.error());
        return written;
    } catch (const std::exception &exception) {
        return writeFailure(path, QString::fromUtf8(exception.what()));
    } catch (...) {
        return writeFailure(path, QStringLiteral("unknown error"));
    }
}

Result<void> writeDirectly(const QString &path, const Writer &writer)
{
    Descriptor file(::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC));
    if (file.number() < 0)
        return writeFailure(path, errno);
    const Result<void> written = writeContent(path, file.number(), writer);
    if (!file.close() && written.isOk())
        return writeFailure(path, errno);
    return written;
}

/// Makes the new directory entry last; that it cannot be done on some file systems does no harm.
void syncFolder(const QString &folder)
{
    const Descriptor file(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.number() >= 0)
        ::fsync(file.number());
}

/// Reads to the end of the file; nothing with errno set when that fails.
std::optional<QByteArray> readToEnd(int descriptor, qsizetype expectedSize)
{
    QByteArray content;
    // One byte more than expected, so that the end shows without another block.
    content.reserve(expectedSize + 1);
    for (;;) {
        const qsizetype size = content.size();
        const qsizetype room = content.capacity() - size;
        content.resize(size + (room > 0 ? room : 4096 + size / 2));
        const ssize_t count =
            ::read(descriptor, content.data() + size, static_cast<std::size_t>(content.size() - size));
        content.resize(size + std::max<qsizetype>(count, 0));
        if (count < 0 && errno != EINTR)
            return std::nullopt;
        if (count == 0)
            return content;
    }
}

QString withoutTrailingSlashes(QString path)
{
    while (path.size() > 1 && path.endsWith(u'/'))
        path.chop(1);
    return path;
}

/// The index of the dot before the extension; -1 when there is no extension.
qsizetype extensionDot(const QString &path)
{
    const qsizetype nameStart = path.lastIndexOf(u'/') + 1;
    const qsizetype dot = path.lastIndexOf(u'.');
    return dot > nameStart && dot + 1 < path.size() ? dot : -1;
}

} // namespace

Result<void> writeAtomically(const QString &path, const QByteArray &content,
                             const BeforeReplacing &beforeReplacing)
{
    const auto writer = [&content](QIODevice &device) -> Result<void> {
        device.write(content);
        return {};
    };
    return writeAtomically(path, writer, beforeReplacing);
}

Result<void> writeAtomically(const QString &path, const Writer &writer,
                             const BeforeReplacing &beforeReplacing)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return writeFailure(path, ENOENT);
    struct stat old = {};
    const bool isThere = ::stat(QFile::encodeName(path).constData(), &old) == 0;
    if (isThere && S_ISDIR(old.st_mode))
        return writeFailure(path, EISDIR);
    if (isThere && !S_ISREG(old.st_mode))
        return writeDirectly(path, writer);

    const QString target = linkTarget(path);
    if (target.isEmpty())
        return writeFailure(path, ELOOP);
    const QByteArray encodedTarget = QFile::encodeName(target);
    if (isThere && ::access(encodedTarget.constData(), W_OK) != 0)
        return writeFailure(path, errno);

    const QFileInfo info(target);
    NewFile file;
    if (!file.create(info.path(), info.fileName()))
        return writeFailure(path, errno);
    const Result<void> written = writeContent(path, file.descriptor(), writer);
    if (!written)
        return written;
    if (isThere) {
        // The owner first: changing it takes away the set-user and set-group bits.
        [[maybe_unused]] const int ownerKept = ::fchown(file.descriptor(), old.st_uid, old.st_gid);
        if (::fchmod(file.descriptor(), old.st_mode & 07777) != 0)
            return writeFailure(path, errno);
    }
    if (::fsync(file.descriptor()) != 0 && errno != EINVAL)
        return writeFailure(path, errno);
    if (beforeReplacing) {
        const Result<void> mayReplace = beforeReplacing(file.descriptor());
        if (!mayReplace)
            return mayReplace;
    }
    if (!file.close() || ::rename(file.path().constData(), encodedTarget.constData()) != 0)
        return writeFailure(path, errno);
    file.keep();
    syncFolder(info.path());
    return {};
}

bool isSameFile(const QString &a, const QString &b)
{
    struct stat first = {};
    struct stat second = {};
    return ::stat(QFile::encodeName(a).constData(), &first) == 0 &&
           ::stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev &&
           first.st_ino == second.st_ino;
}

Result<QByteArray> readFile(const QString &path)
{
    const auto failure = [&path](int error) {
        return Failure{
            QStringLiteral("The file \"%1\" could not be read: %2.").arg(path, qt_error_string(error))};
    };
    if (path.contains(QChar(u'\0')))
        return failure(ENOENT);
    const Descriptor file(::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC));
    struct stat status = {};
    if (file.number() < 0 || ::fstat(file.number(), &status) != 0)
        return failure(errno);
    try {
        std::optional<QByteArray> content = readToEnd(file.number(), static_cast<qsizetype>(status.st_size));
        return content ? Result<QByteArray>(*std::move(content)) : Result<QByteArray>(failure(errno));
    } catch (const std::bad_alloc &) {
        return failure(ENOMEM);
    }
}

QString uniqueFilePath(const QString &path)
{
    if (!QFileInfo::exists(path))
        return path;
    const QString extension = pathExtension(path);
    const QString suffix = extension.isEmpty() ? QString() : u'.' + extension;
    const QString base = deletingPathExtension(path) + u' ';
    for (qint64 number = 2;; ++number) {
        const QString candidate = base + QString::number(number) + suffix;
        if (!QFileInfo::exists(candidate))
            return candidate;
    }
}

Result<QString> makeUniqueFile(const QString &path)
{
    for (;;) {
        const QString candidate = uniqueFilePath(path);
        const Descriptor file(
            ::open(QFile::encodeName(candidate).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
        if (file.number() >= 0)
            return candidate;
        // A link to nothing is no file that exists, and yet in the way.
        if (errno != EEXIST || !QFileInfo::exists(candidate))
            return writeFailure(candidate, errno);
    }
}

QString pathExtension(const QString &path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype dot = extensionDot(trimmed);
    return dot < 0 ? QString() : trimmed.sliced(dot + 1);
}

QString deletingPathExtension(const QString &path)
{
    const QString trimmed = withoutTrailingSlashes(path);
    const qsizetype dot = extensionDot(trimmed);
    return dot < 0 ? trimmed : trimmed.left(dot);
}

} // namespace vantrell::FileUtilities
