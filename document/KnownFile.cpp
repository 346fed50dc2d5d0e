#include "document/KnownFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace vantrell
{

namespace
{

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace

QByteArray KnownFile::digestOf(const QString &path, const FileStamp &stamp)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    const bool isRead = stamp.size <= contentLimit && FileStamp::ofPath(path) == stamp &&
                        file.open(QIODevice::ReadOnly) && hash.addData(&file) &&
                        FileStamp::ofPath(path) == stamp;
    return isRead ? hash.result() : QByteArray();
}

std::optional<FileStamp> KnownFile::stamp()
{
    const std::lock_guard lock(m_mutex);
    return m_stamp;
}

QByteArray KnownFile::digest()
{
    const std::lock_guard lock(m_mutex);
    return m_digest;
}

void KnownFile::note(const QString &path, const std::optional<FileStamp> &stamp)
{
    const QString clean = cleanPath(path);
    const QString canonical = QFileInfo(path).canonicalFilePath();
    const std::lock_guard lock(m_mutex);
    m_path = clean;
    m_canonicalPath = canonical;
    m_stamp = stamp;
    m_digest.clear();
}

bool KnownFile::isAt(const QString &path)
{
    QString knownPath;
    QString canonicalPath;
    std::optional<FileStamp> stamp;
    {
        const std::lock_guard lock(m_mutex);
        if (!m_stamp)
            return false;
        stamp = m_stamp;
        knownPath = m_path;
        canonicalPath = m_canonicalPath;
    }
    if (cleanPath(path) == knownPath)
        return true;
    const QString canonical = QFileInfo(path).canonicalFilePath();
    if (!canonical.isEmpty() && canonical == canonicalPath)
        return true;
    const std::optional<FileStamp> found = FileStamp::ofPath(path); // by a hard link
    return found && found->device == stamp->device && found->number == stamp->number;
}

void KnownFile::rememberContent()
{
    QString path;
    std::optional<FileStamp> stamp;
    {
        const std::lock_guard lock(m_mutex);
        path = m_path;
        stamp = m_stamp;
    }
    if (!stamp)
        return;
    const QByteArray digest = digestOf(path, *stamp);
    const std::lock_guard lock(m_mutex);
    if (m_stamp == stamp && m_path == path)
        m_digest = digest;
}

std::optional<FileStamp> KnownFile::changeAt(const QString &path)
{
    std::optional<FileStamp> stamp;
    QByteArray digest;
    {
        const std::lock_guard lock(m_mutex);
        stamp = m_stamp;
        digest = m_digest;
    }
    if (!isAt(path))
        return std::nullopt;
    const std::optional<FileStamp> found = FileStamp::ofPath(path);
    if (!found || found == stamp)
        return std::nullopt;
    const bool isSame = found->size == stamp->size && !digest.isEmpty() && digestOf(path, *found) == digest;
    if (!isSame)
        return found;
    const std::lock_guard lock(m_mutex);
    if (m_stamp == stamp)
        m_stamp = found;
    return std::nullopt;
}

void KnownFile::accept(const FileStamp &stamp)
{
    const std::lock_guard lock(m_mutex);
    m_stamp = stamp;
    m_digest.clear();
}

} // namespace vantrell
