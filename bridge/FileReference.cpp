#include "bridge/FileReference.h"

#include "support/files/StandardFolders.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QtEndian>

#include <sys/stat.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

// The layout of a reference. Numbers are big-endian; the rest is zero.
const QByteArray magic = "vFr1";
constexpr qsizetype userOffset = 4;        // 4 bytes
constexpr qsizetype deviceOffset = 8;      // 8 bytes
constexpr qsizetype fileNumberOffset = 16; // 8 bytes
constexpr qsizetype lengthOffset = 24;     // 2 bytes: of the path; 0 when its hash is stored instead
constexpr qsizetype pathOffset = 26;
constexpr qsizetype longestStored = fileReferenceSize - pathOffset;
constexpr qsizetype hashSize = 32;

constexpr qsizetype longestPath = 65536;
constexpr qint64 entryLifetime = 24 * 60 * 60; // seconds

constexpr QFile::Permissions ownerOnly = QFile::ReadOwner | QFile::WriteOwner;

template <typename Number>
void put(QByteArray &bytes, qsizetype offset, Number number)
{
    qToBigEndian(number, bytes.data() + offset);
}

template <typename Number>
Number numberAt(const QByteArray &bytes, qsizetype offset)
{
    return qFromBigEndian<Number>(bytes.constData() + offset);
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

/// Whether it belongs to this user, is no link, and nobody else can write to it.
bool isOurs(const QFileInfo &file)
{
    return !file.isSymLink() && file.ownerId() == ::geteuid() &&
           !(file.permissions() & (QFile::WriteGroup | QFile::WriteOther));
}

/// The folder of the registry, which has a file for each long path, named by the path's hash. Empty without
/// one that only this user can write to.
QString registryFolder()
{
    const QString runtime = StandardFolders::runtime();
    const QFileInfo folder(runtime + QStringLiteral("/references"));
    return !runtime.isEmpty() && folder.isDir() && isOurs(folder) ? folder.filePath() : QString();
}

QString makeRegistryFolder()
{
    const QString runtime = StandardFolders::runtime();
    if (!runtime.isEmpty()) {
        QDir().mkdir(runtime, ownerOnly | QFile::ExeOwner);
        QDir().mkdir(runtime + QStringLiteral("/references"), ownerOnly | QFile::ExeOwner);
    }
    return registryFolder();
}

/// The registered path with that hash; nothing without one.
std::optional<QByteArray> registeredPath(const QString &folder, const QByteArray &hash)
{
    QFile entry(folder + QLatin1Char('/') + QString::fromLatin1(hash.toHex()));
    const QFileInfo info(entry);
    if (folder.isEmpty() || !info.isFile() || !isOurs(info) || !entry.open(QIODevice::ReadOnly))
        return {};
    const QByteArray path = entry.read(longestPath);
    return hashOf(path) == hash ? std::optional(path) : std::nullopt;
}

void removeOldEntries(const QDir &folder)
{
    const QDateTime oldest = QDateTime::currentDateTimeUtc().addSecs(-entryLifetime);
    for (const QFileInfo &entry : folder.entryInfoList(QDir::Files | QDir::Hidden)) {
        if (entry.lastModified() < oldest)
            QFile::remove(entry.filePath());
    }
}

/// Keeps the path in the registry for another day.
bool registerPath(const QByteArray &path)
{
    const QString folder = makeRegistryFolder();
    if (folder.isEmpty())
        return false;
    const QByteArray hash = hashOf(path);
    const QString name = folder + QLatin1Char('/') + QString::fromLatin1(hash.toHex());
    if (registeredPath(folder, hash)) {
        QFile entry(name);
        if (entry.open(QIODevice::ReadWrite) &&
            entry.setFileTime(QDateTime::currentDateTimeUtc(), QFile::FileModificationTime))
            return true;
    }
    removeOldEntries(QDir(folder));
    QSaveFile entry(name);
    return entry.open(QIODevice::WriteOnly) && entry.setPermissions(ownerOnly) &&
           entry.write(path) == path.size() && entry.commit();
}

/// The path that the reference was made for; nothing for another user's reference and for invalid bytes.
std::optional<QByteArray> pathIn(const QByteArray &reference)
{
    if (reference.size() != fileReferenceSize || !reference.startsWith(magic) ||
        numberAt<quint32>(reference, userOffset) != quint32(::geteuid()))
        return {};
    const auto length = qsizetype(numberAt<quint16>(reference, lengthOffset));
    if (length > longestStored)
        return {};
    const auto path = length > 0 ? std::optional(reference.mid(pathOffset, length))
                                 : registeredPath(registryFolder(), reference.mid(pathOffset, hashSize));
    return path && path->startsWith('/') ? path : std::nullopt;
}

} // namespace

std::optional<QByteArray> fileReferenceForPath(const QString &path)
{
    if (path.isEmpty() || path.contains(QChar(u'\0')))
        return {};
    const QByteArray name = QFile::encodeName(QFileInfo(path).absoluteFilePath());
    const auto status = regularFile(name);
    if (!status || name.size() > longestPath)
        return {};
    QByteArray reference = magic.leftJustified(fileReferenceSize, '\0');
    put(reference, userOffset, quint32(::geteuid()));
    put(reference, deviceOffset, quint64(status->st_dev));
    put(reference, fileNumberOffset, quint64(status->st_ino));
    if (name.size() <= longestStored) {
        put(reference, lengthOffset, quint16(name.size()));
        reference.replace(pathOffset, name.size(), name);
        return reference;
    }
    if (!registerPath(name))
        return {};
    reference.replace(pathOffset, hashSize, hashOf(name));
    return reference;
}

std::optional<QString> pathForFileReference(const QByteArray &reference)
{
    const auto path = pathIn(reference);
    if (!path)
        return {};
    const auto status = regularFile(*path);
    if (!status || numberAt<quint64>(reference, deviceOffset) != quint64(status->st_dev) ||
        numberAt<quint64>(reference, fileNumberOffset) != quint64(status->st_ino))
        return {};
    return QFile::decodeName(*path);
}

std::optional<QString> pathInFileReference(const QByteArray &reference)
{
    const auto path = pathIn(reference);
    return path ? std::optional(QFile::decodeName(*path)) : std::nullopt;
}

} // namespace vantrell
