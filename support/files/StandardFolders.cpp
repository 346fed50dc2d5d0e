#include "support/files/StandardFolders.h"

#include <QDir>
#include <QFile>

#include <mutex>
#include <optional>

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
    const QString folder = environmentFolder(variable);
    return folder.isEmpty() ? QDir::homePath() + belowHome : folder;
}

/// The folder in one line of user-dirs.dirs, which reads NAME="$HOME/folder" or NAME="/folder" with
/// a backslash before special characters; empty when the line is another one.
QString userDirectory(const QString &line, const QString &name)
{
    const QString start = name + QStringLiteral("=\"");
    const QString trimmed = line.trimmed();
    if (!trimmed.startsWith(start))
        return QString();
    QString value;
    bool isClosed = false;
    for (qsizetype i = start.size(); i < trimmed.size() && !isClosed; ++i) {
        if (trimmed[i] == u'"') {
            isClosed = true;
        } else {
            if (trimmed[i] == u'\\' && i + 1 < trimmed.size())
                ++i;
            value.append(trimmed[i]);
        }
    }
    if (!isClosed)
        return QString();
    if (value == QStringLiteral("$HOME") || value.startsWith(QStringLiteral("$HOME/")))
        value.replace(0, 5, QDir::homePath());
    return QDir::isAbsolutePath(value) ? QDir::cleanPath(value) : QString();
}

QString userFolder(const char *variable, const QString &belowHome)
{
    QString folder = environmentFolder(variable);
    if (!folder.isEmpty())
        return folder;
    QFile file(preferences() + QStringLiteral("/user-dirs.dirs"));
    if (file.open(QIODevice::ReadOnly)) {
        const QString name = QString::fromLatin1(variable);
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (const QString &line : lines) {
            const QString found = userDirectory(line, name);
            if (!found.isEmpty())
                folder = found;
        }
    }
    return folder.isEmpty() ? QDir::homePath() + belowHome : folder;
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
    return userFolder("XDG_DOCUMENTS_DIR", QStringLiteral("/Documents"));
}

QString desktop()
{
    return userFolder("XDG_DESKTOP_DIR", QStringLiteral("/Desktop"));
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

QString volumesFolder()
{
    return volumesFolders().value(0, QStringLiteral("/Volumes"));
}

void setVolumesFolder(const QString &folder)
{
    const std::lock_guard lock(overrides().mutex);
    overrides().volumes = folder;
}

} // namespace vantrell::StandardFolders
