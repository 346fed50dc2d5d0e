#pragma once

#include <QString>

#include <optional>
#include <vector>

namespace vantrell
{

/// An application as a folder "Name.app" whose Contents/Info.plist says what it is. A value; any thread.
struct ApplicationBundle {
    QString path;       ///< absolute, links resolved
    QString identifier; ///< CFBundleIdentifier
    QString executable; ///< path of the main executable; empty when there is none

    static bool isBundlePath(const QString &path)
    {
        return path.endsWith(QLatin1String(".app"), Qt::CaseInsensitive);
    }

    /// The bundle in that folder; none when its information cannot be read or holds no identifier.
    static std::optional<ApplicationBundle> read(const QString &path);

    /// The bundles directly in `folder`, then those one folder deeper, each in the order of their names.
    /// Links are followed. Empty when the folder cannot be read.
    static std::vector<ApplicationBundle> inFolder(const QString &folder);
};

} // namespace vantrell
