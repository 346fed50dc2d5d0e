#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>

#include <functional>

class QIODevice;

/// Reading and writing whole files, and names of files. Any thread.
namespace vantrell::FileUtilities
{

/// Writes what a file shall hold into the open device; a Failure gives up the whole write.
using Writer = std::function<Result<void>(QIODevice &)>;
/// The last word before the old file is replaced, with the descriptor of the new one, which is whole and on
/// the disk: a Failure leaves the old file. It has none where a file is written to directly.
using BeforeReplacing = std::function<Result<void>(int descriptor)>;

/// Replaces the content of a file, or makes it. The content goes to a temporary file beside the old
/// one and is on the disk before it takes the old one's place: after any failure (a full disk, a
/// writer that fails or throws) the old file is whole and the temporary is gone. The old file's
/// permissions are kept, a new file gets the user's usual ones. A symbolic link stays and its target
/// is replaced. What is there and is no regular file (a device, a pipe) is written to directly.
Result<void> writeAtomically(const QString &path, const QByteArray &content,
                             const BeforeReplacing &beforeReplacing = {});
Result<void> writeAtomically(const QString &path, const Writer &writer,
                             const BeforeReplacing &beforeReplacing = {});

/// Whether both paths lead to the same file, links followed. False when either leads to none.
bool isSameFile(const QString &a, const QString &b);

/// The whole content of a file.
Result<QByteArray> readFile(const QString &path);

/// The path itself if no file exists there, else the first that is free of "name 2.ext",
/// "name 3.ext" and so on.
QString uniqueFilePath(const QString &path);

/// Makes an empty file at uniqueFilePath() and gives its path, which nobody else who asks is given then.
Result<QString> makeUniqueFile(const QString &path);

/// What stands behind the last dot of a path's last component; empty when there is none, when the
/// name ends in its dot, or when only its first character is a dot.
QString pathExtension(const QString &path);

/// The path without pathExtension() and its dot; slashes at its end are dropped too.
QString deletingPathExtension(const QString &path);

} // namespace vantrell::FileUtilities
