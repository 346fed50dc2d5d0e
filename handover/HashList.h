#pragma once

#include "handover/Checksums.h"
#include "support/files/Result.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace vantrell
{

/// One file of a media hash list.
struct HashListEntry {
    QString file;                     ///< relative to the list's folder, or absolute
    std::optional<std::int64_t> size; ///< bytes
    QDateTime modified;               ///< null when the list does not say
    Checksums checksums;
    QDateTime made; ///< when the checksums were made; null when the list does not say

    /// Whether a file with these checksums is the one of the list. False when the list has none that are
    /// known.
    bool agreesWith(const Checksums &found) const;
    ChecksumKinds kinds() const;
};

/// A media hash list in the classic XML form, version 1.1.
struct HashList {
    QString tool; ///< the program that made it, with its version
    QDateTime started;
    QDateTime finished;
    std::vector<HashListEntry> entries;

    /// The path in the list's folder of a file below it, the absolute path of any other.
    static QString entryName(const QString &path, const QString &listFolder);
    /// The path of an entry's file: as it is written or, where nothing is there, with slashes for backslashes
    /// or in the other Unicode form. Asks the disk.
    static QString placeOf(const QString &entry, const QString &listFolder);

    /// As XML in UTF-8; the failure names an entry that XML cannot hold.
    Result<QByteArray> toBytes() const;
    /// Reads a list. Checksums of kinds that are not known are passed over.
    static Result<HashList> fromFile(const QString &path);
};

} // namespace vantrell
