#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace vantrell
{

/// Bytes of a file reference.
inline constexpr qsizetype fileReferenceSize = 80;

/// A reference to an existing regular file, from which another program of this user gets the path. It holds
/// user, device and file number, and a path of up to 54 bytes. A longer path is kept, readable by this user
/// only, in the folder "references" of the runtime folder for a day after the last reference to it was made.
/// Nothing without such a file, or for a long path without a runtime folder. Symbolic links are followed but
/// not resolved in the path. Any thread.
std::optional<QByteArray> fileReferenceForPath(const QString &path);

/// The absolute path while it still leads to the file that the reference was made for. Nothing when the file
/// is gone or was replaced, for another user's reference, and for invalid bytes. Any thread.
std::optional<QString> pathForFileReference(const QByteArray &reference);

/// The absolute path that the reference was made for, whether or not the file is still there. Nothing for
/// another user's reference and for invalid bytes. Any thread.
std::optional<QString> pathInFileReference(const QByteArray &reference);

} // namespace vantrell
