#include "support/files/StandardFolders.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include <mutex>

namespace vantrell::StandardFolders
{

namespace
{

struct Overrides {
    std::mutex mutex; ///< guards the two folders
    QString systemLibrary;
    QString volumes;
};

Overrides &overrides()
{
    static Overrides *const shared = new Overrides;
    return *shared;
}

/// The folder that an environment variable names. Relative paths are ignored, as the base
/// directory rules ask.
QString environmentFolder(const char *variable)
{
    const QString folder = qEnvironmentVariable(variable);
    return QDir::isAbsolutePath(folder) ? QDir::cleanPath(folder) : QString();
}

QString baseFolder(const char *variable, const QString &belowHome)
{
    const QString folder = environmentFolder(variable); // QStandardPaths takes a relative one as well
    return folder.isEmpty() ? QDir::homePath() + belowHome : folder;
}

/// Qt looks a user directory up in user-dirs.dirs alone.
QString userFolder(const char *variable, QStandardPaths::StandardLocation location)
{
    const QString folder = environmentFolder(variable);
    return folder.isEmpty() ? QDir::cleanPath(QStandardPaths::writableLocation(location)) : folder;
}

} // namespace

QString userLibrary()
{
    return baseFolder("XDG_STATE_HOME", QStringLiteral("/.local/state"));
}

QString systemLibrary()
{
    const std::lock_guard lock(overrides().mutex);
    return overrides().systemLibrary.isEmpty() ? QStringLiteral("/var") : overrides().systemLibrary;
}

void setSystemLibrary(const QString &folder)
{
    const std::lock_guard lock(overrides().mutex);
    overrides().systemLibrary = folder;
}

QString sharedLibrary()
{
    return QStringLiteral("/usr/share");
}

QString preferences()
{
    return baseFolder("XDG_CONFIG_HOME", QStringLiteral("/.config"));
}

QString applicationSupport()
{
    return baseFolder("XDG_DATA_HOME", QStringLiteral("/.local/share"));
}

QString documents()
{
    return userFolder("XDG_DOCUMENTS_DIR", QStandardPaths::DocumentsLocation);
}

QString documentsOrHome()
{
    const QString folder = documents();
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

QString desktop()
{
    return userFolder("XDG_DESKTOP_DIR", QStandardPaths::DesktopLocation);
}

QString runtime()
{
    const QString folder = environmentFolder("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QString() : folder + QStringLiteral("/vantrell");
}

QStringList volumesFolders()
{
    {
        const std::lock_guard lock(overrides().mutex);
        if (!overrides().volumes.isEmpty())
            return {overrides().volumes};
    }
    const QString volumes = QStringLiteral("/Volumes");
    if (QDir(volumes).exists())
        return {volumes};
    QStringList candidates;
    const QString user = qEnvironmentVariable("USER", qEnvironmentVariable("LOGNAME"));
    if (!user.isEmpty())
        candidates << QStringLiteral("/run/media/") + user << QStringLiteral("/media/") + user;
    candidates << QStringLiteral("/mnt");
    candidates.removeIf([](const QString &folder) { return !QDir(folder).exists(); });
    return candidates;
}

void setVolumesFolder(const QString &folder)
{
    const std::lock_guard lock(overrides().mutex);
    overrides().volumes = folder;
}

} // namespace vantrell::StandardFolders
