#pragma once

#include <QString>

namespace vantrell
{

/// Names, kinds and sizes of media files, from their paths alone. Any thread.
namespace MediaFile
{

/// The kind (MediaKind) that the path's extension stands for, in whatever case it is written.
QString fileTypeForPath(const QString &path);

/// The size in bytes as "%0.0f B", "%0.2f KB", "%0.2f MB" or "%0.2f GB", with units of 1024.
QString formatFileSize(double bytes);

/// The text without a leading "file:/", then without a leading "/localhost", then without a leading
/// "localhost".
QString formatPath(const QString &path);

/// The last component of a path and the path without it. "" gives "" for both, "/" gives "/" for both.
struct PathParts {
    QString filename;
    QString directory;
};
PathParts splitPath(const QString &path);

/// The path, a relative one as seen from the folder; an empty one stays empty.
QString absolutePath(const QString &path, const QString &folder);

/// The path of a file in a folder.
QString joinedPath(const QString &directory, const QString &filename);

/// The display name of the root volume: its label, "/" when it has none.
QString bootVolumeName();

} // namespace MediaFile

} // namespace vantrell
