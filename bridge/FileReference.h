#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vantrell
{

/// Bytes of a file reference.
inline constexpr qsizetype fileReferenceSize = 80;

/// A reference to an existing regular file, by which another program of this user finds the path. It
/// names user, device and file number; a short path stands in it, a longer one in a file that only this
/// user can read, in the folder "references" of the runtime folder. Such a file serves for a day after the
/// latest reference to its path was made. Nothing when there is no such file, or when its path is long and
/// there is no runtime folder. Links are followed and their paths kept. Any thread.
std::optional<QByteArray> fileReferenceForPath(const QString &path);

/// The absolute path, while it still leads to the file that the reference was made for. Nothing when the
/// file has gone or was replaced, when another user made the reference, and for bytes that are none. Any
/// thread.
std::optional<QString> pathForFileReference(const QByteArray &reference);

/// The absolute path that the reference was made for, whatever stands there by now. Nothing when another
/// user made it, and for bytes that are none. Any thread.
std::optional<QString> pathInFileReference(const QByteArray &reference);

} // namespace vantrell
