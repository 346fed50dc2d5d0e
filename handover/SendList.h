#pragma once

#include "media/MediaUses.h"
#include "rows/RowRecord.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// Lists of media files to send. Any thread.
namespace vantrell::SendList
{

/// One file: its record, the path on this machine (null for none), and what the sequences use of it, if that
/// is known.
struct File {
    RowRecordPtr record;
    QString place;
    std::optional<MediaUses::File> uses;
};

/// The records as files to send; those of missing files only where \a missingToo, else they are counted in \a
/// missing. \a places are the records' paths on this machine. \a uses may be null.
std::vector<File> files(const RowList &records, const QStringList &places, const MediaUses *uses,
                        const MediaUses::Choice &choice, bool missingToo, std::size_t &missing);

/// Comma-separated values with a line of titles and line ends of carriage return and line feed, in UTF-8.
/// Sizes are bytes, dates ISO 8601 in UTC; Usage is the usage count of the record, Uses the one of MediaUses.
QByteArray csv(const std::vector<File> &files);

/// What ends a path in a list for rsync: a line feed, or a NUL for its option --from0.
enum class PathEnd : char { Line = '\n', Nul = '\0' };
/// The absolute paths, each once, for `rsync --files-from` with the source "/". Where line feeds end
/// paths, one that contains a line feed or a carriage return is left out, and appended to \a leftOut.
QByteArray paths(const std::vector<File> &files, PathEnd end, QStringList &leftOut);

} // namespace vantrell::SendList
