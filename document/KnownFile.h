#pragma once

#include "support/files/FileStamp.h"

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <mutex>
#include <optional>

namespace vantrell
{

/// The file that a document was read from or written to last, as it was then: what tells whether another
/// program has changed it since. Nothing is known at first. Any thread.
///
/// A file whose stamp is the same is taken for unchanged. One of the same size with another stamp (it was
/// copied back, or only touched) is compared by its content if that was remembered, which costs a read of
/// the file at a time of its own and is done for files up to contentLimit; else it counts as changed.
class KnownFile
{
public:
    /// The largest file whose content is remembered, in bytes: what is read in a fraction of a second.
    static constexpr std::int64_t contentLimit = 64 << 20;

    /// Without a stamp nothing is known from now on.
    void note(const QString &path, const std::optional<FileStamp> &stamp);

    /// Whether the path leads to the file, or is the path that was noted and leads elsewhere now.
    bool isAt(const QString &path);

    /// Reads the file and remembers its content, when it is not too large and still has its stamp.
    void rememberContent();

    /// The stamp of the file at the path if that is the known file and another program changed it. Nothing
    /// also when the path leads to another file or to none.
    std::optional<FileStamp> changeAt(const QString &path);

    /// The stamp; nothing when nothing is known. And a digest of the content; empty when it is not
    /// remembered.
    std::optional<FileStamp> stamp();
    QByteArray digest();
    /// The digest of the file while it has that stamp; empty when it cannot be read or is too large.
    static QByteArray digestOf(const QString &path, const FileStamp &stamp);

    /// What has that stamp may be overwritten: the user has agreed to it.
    void accept(const FileStamp &stamp);

private:
    std::mutex m_mutex; // guards the rest; not held while files are looked at
    QString m_path;
    QString m_canonicalPath; ///< of the path when it was noted
    std::optional<FileStamp> m_stamp;
    QByteArray m_digest; ///< of the content; empty when it is not remembered
};

} // namespace vantrell
