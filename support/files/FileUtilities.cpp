#include "support/files/FileUtilities.h"

#include "support/files/Descriptor.h"
#include "support/files/UnfinishedFiles.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <exception>
#include <fcntl.h>
#include <new>
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

bool isUsable(const QString &path)
{
    return !path.isEmpty() && !path.contains(QChar(u'\0'));
}

/// A file to which less is never written than was asked for, without an error: Qt's files leave it to the
/// writer to see that, and a writer may look away.
template <typename File>
class WholeFile : public File
{
public:
    using File::File;

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        for (qint64 written = 0; written < size;) {
            const qint64 count = File::writeData(data + written, size - written);
            if (count <= 0)
                return -1;
            written += count;
        }
        return size;
    }
};

/// Notes the temporary file while it is being written, where it has a name: most file systems keep it without
/// one until it is whole.
class NotedTemporary
{
public:
    NotedTemporary() = default;
    NotedTemporary(const NotedTemporary &) = delete;
    NotedTemporary &operator=(const NotedTemporary &) = delete;
    ~NotedTemporary() { UnfinishedFiles::remove(m_path); }

    void note(int descriptor)
    {
        const QString link = QStringLiteral("/proc/self/fd/%1").arg(descriptor);
        const QString path = QFile::symLinkTarget(link);
        if (isSameFile(path, link))
            UnfinishedFiles::add(m_path = QFile::encodeName(path));
    }

private:
    QByteArray m_path;
};

/// Runs the writer on the open file and has what it wrote leave this process.
Result<void> writeContent(const QString &path, QFileDevice &file, const Writer &writer)
{
    try {
        const Result<void> written = writer(file);
        if (!written)
            return written;
    } catch (const std::exception &exception) {
        return writeFailure(path, QString::fromUtf8(exception.what()));
    } catch (...) {
        return writeFailure(path, QStringLiteral("unknown error"));
    }
    if (!file.flush() || file.error() != QFileDevice::NoError)
        return writeFailure(path, file.errorString());
    return {};
}

/// Makes the new directory entry last; that it cannot be done on some file systems does no harm.
void syncFolder(const QString &folder)
{
    const Descriptor file(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (file.isOpen())
        ::fsync(file.number());
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
    if (isThere && !S_ISREG(old.st_mode) && !S_ISDIR(old.st_mode)) {
        WholeFile<QFile> file(path);
        if (!file.open(QIODevice::WriteOnly | QIODevice::ExistingOnly))
            return writeFailure(path, file.errorString());
        return writeContent(path, file, writer);
    }
    // QSaveFile has sentences of its own for these.
    if (isThere && S_ISDIR(old.st_mode))
        return writeFailure(path, EISDIR);
    if (!isThere && errno != ENOENT)
        return writeFailure(path, errno);
    if (isThere && ::access(QFile::encodeName(path).constData(), W_OK) != 0)
        return writeFailure(path, errno);

    NotedTemporary temporary; // until QSaveFile has removed it
    WholeFile<QSaveFile> file(path);
    if (!file.open(QIODevice::WriteOnly))
        return writeFailure(path, file.errorString());
    temporary.note(file.handle());
    const Result<void> written = writeContent(path, file, writer);
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
    if (beforeReplacing) {
        const Result<void> mayReplace = beforeReplacing(file.handle());
        if (!mayReplace)
            return mayReplace;
    }
    if (!file.commit())
        return writeFailure(path, file.errorString());
    syncFolder(QFileInfo(path).canonicalPath());
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
