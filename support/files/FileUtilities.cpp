#include "support/files/FileUtilities.h"

#include "support/files/Descriptor.h"
#include "support/files/UnfinishedFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <exception>
#include <fcntl.h>
#include <new>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace vantrell::FileUtilities
{

namespace
{

constexpr std::chrono::seconds lockPatience{2};
constexpr std::chrono::milliseconds lockInterval{5};

Failure writeFailure(const QString &path, const QString &reason)
{
    return Failure{QStringLiteral("The file \"%1\" could not be written: %2.").arg(path, reason)};
}

Failure writeFailure(const QString &path, int error)
{
    return writeFailure(path, qt_error_string(error));
}

bool isUsable(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

/// A file that remembers the first error: a writer that does not look at what write() returns still fails.
class CheckedFile : public QFile
{
public:
    using QFile::QFile;

    /// Runs the writer and has what it wrote leave this process.
    Result<void> writeContent(const QString &path, const Writer &writer)
    {
        try {
            const Result<void> written = writer(*this);
            if (!flush() && m_error.isNull())
                m_error = errorString();
            return m_error.isNull() ? written : writeFailure(path, m_error);
        } catch (const std::exception &exception) {
            return writeFailure(path, QString::fromUtf8(exception.what()));
        } catch (...) {
            return writeFailure(path, QStringLiteral("unknown error"));
        }
    }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        for (qint64 written = 0; written < size && m_error.isNull();) {
            const qint64 count = QFile::writeData(data + written, size - written);
            if (count <= 0)
                m_error = errorString();
            written += count;
        }
        return m_error.isNull() ? size : -1;
    }

private:
    QString m_error;
};

/// A file with a name of its own beside its target, until it takes the target's name; removed at the end
/// unless it did. QSaveFile would serve, but that it cannot replace a file whose name has more than 248
/// bytes, and keeps the temporary name, which is to be removed on a signal, to itself.
class NewFile : public CheckedFile
{
public:
    explicit NewFile(const QFileInfo &target)
        : CheckedFile(QStringLiteral("%1/.%2.%3")
                          .arg(target.path(), target.fileName().left(60),
                               QString::number(QRandomGenerator::system()->generate64(), 36)))
        , m_path(encodeName(fileName()))
    {
        UnfinishedFiles::add(m_path);
    }
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;
    ~NewFile() override
    {
        // QFile would not remove it after a write that failed.
        if (!m_isInPlace)
            ::unlink(m_path.constData());
        UnfinishedFiles::remove(m_path);
    }

    Result<void> replace(const QString &path, const QString &target)
    {
        close();
        if (error() != NoError)
            return writeFailure(path, errorString());
        m_isInPlace = ::rename(m_path.constData(), encodeName(target).constData()) == 0;
        return m_isInPlace ? Result<void>() : writeFailure(path, errno);
    }

private:
    const QByteArray m_path;
    bool m_isInPlace = false;
};

/// The path without a file that a chain of symbolic links ends at; empty when the chain is a ring.
QString linkTarget(QString path)
{
    for (int step = 0; step < 40; ++step) {
        const QString next = QFile::symLinkTarget(path);
        if (next.isEmpty())
            return path;
        path = next;
    }
    return QString();
}

Descriptor openFolder(const QString &folder)
{
    return Descriptor(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

/// Makes the new directory entry last; that it cannot be done on some file systems does no harm.
void syncFolder(const QString &folder)
{
    const Descriptor file = openFolder(folder);
    if (file.isOpen())
        ::fsync(file.number());
}

/// Locks the folder against others that look at a file in it and replace it, until the descriptor is closed.
/// Goes without the lock where there is none to be had: another process may be stopped while it holds it.
Descriptor lockFolder(const QString &folder)
{
    Descriptor file = openFolder(folder);
    const auto last = std::chrono::steady_clock::now() + lockPatience;
    while (file.isOpen() && ::flock(file.number(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
           std::chrono::steady_clock::now() < last)
        std::this_thread::sleep_for(lockInterval);
    return file;
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
    if (!isUsable(path))
        return writeFailure(path, ENOENT);
    struct stat old = {};
    const bool isThere = ::stat(QFile::encodeName(path).constData(), &old) == 0;
    if (isThere && S_ISDIR(old.st_mode))
        return writeFailure(path, EISDIR);
    if (isThere && !S_ISREG(old.st_mode)) {
        CheckedFile file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly))
            return writeFailure(path, file.errorString());
        return file.writeContent(path, writer);
    }
    const QString target = isThere ? QFileInfo(path).canonicalFilePath() : linkTarget(path);
    if (target.isEmpty())
        return writeFailure(path, ELOOP);
    if (isThere && ::access(QFile::encodeName(target).constData(), W_OK) != 0)
        return writeFailure(path, errno);

    const QFileInfo info(target);
    NewFile file(info);
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return writeFailure(path, file.errorString());
    const Result<void> written = file.writeContent(path, writer);
    if (!written)
        return written;
    if (isThere) {
        // The owner first: changing it takes away the set-user and set-group bits.
        [[maybe_unused]] const int ownerKept = ::fchown(file.handle(), old.st_uid, old.st_gid);
        if (::fchmod(file.handle(), old.st_mode & 07777) != 0)
            return writeFailure(path, errno);
    }
    if (::fsync(file.handle()) != 0 && errno != EINVAL)
        return writeFailure(path, errno);
    Descriptor lock;
    if (beforeReplacing) {
        lock = lockFolder(info.path());
        const Result<void> mayReplace = beforeReplacing(file.handle());
        if (!mayReplace)
            return mayReplace;
    }
    const Result<void> replaced = file.replace(path, target);
    if (replaced)
        syncFolder(info.path());
    return replaced;
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
    const auto failure = [&path](const QString &reason) {
        return Failure{QStringLiteral("The file \"%1\" could not be read: %2.").arg(path, reason)};
    };
    // QFile has sentences of its own for these.
    if (!isUsable(path))
        return failure(qt_error_string(ENOENT));
    if (QFileInfo(path).isDir())
        return failure(qt_error_string(EISDIR));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return failure(file.errorString());
    try {
        QByteArray content = file.readAll();
        return file.error() == QFileDevice::NoError ? Result<QByteArray>(std::move(content))
                                                    : Result<QByteArray>(failure(file.errorString()));
    } catch (const std::bad_alloc &) {
        return failure(qt_error_string(ENOMEM));
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
        if (file.isOpen())
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
