#pragma once

#include "rows/RecordKey.h"

#include <QDateTime>
#include <QString>

#include <cstdint>

namespace vantrell
{

/// Keys of a media record: one file that the project's clips point to. A file whose address is no URL
/// has "missing" alone.
namespace MediaKey
{
inline const TypedKey<QString> filename(u"filename");
inline const TypedKey<QString> directory(u"directory");
/// The file's URL as it stands in the project.
inline const TypedKey<QString> rawpath(u"rawpath");
/// How many clip items use the file.
inline const TypedKey<std::int64_t> usageCount(u"usageCount");
/// One of MediaKind.
inline const TypedKey<QString> filetype(u"filetype");
/// Absent unless the file is there and tells its date.
inline const TypedKey<QDateTime> modDate(u"modDate");
/// In bytes; absent unless the file is there and tells its size.
inline const TypedKey<std::int64_t> filesize(u"filesize");
/// True; present only when nothing exists at the path.
inline const TypedKey<bool> missing(u"missing");
} // namespace MediaKey

/// Kinds of media files.
namespace MediaKind
{
inline const QString movieClip = QStringLiteral("Movie Clip");
inline const QString audioClip = QStringLiteral("Audio Clip");
inline const QString image = QStringLiteral("Image");
inline const QString unknown = QStringLiteral("Unknown");
} // namespace MediaKind

/// Keys of the statistics of the media files on show, in the order of the record. Sizes are bytes; 0 and
/// "" when no file has a size. A file name that is not known ends the record before it.
namespace MediaStatisticsKey
{
inline const TypedKey<std::int64_t> totalSize(u"totalSize");
inline const TypedKey<std::int64_t> largestFileSize(u"largestFileSize");
inline const TypedKey<QString> largestFile(u"largestFile");
inline const TypedKey<std::int64_t> smallestFileSize(u"smallestFileSize");
inline const TypedKey<QString> smallestFile(u"smallestFile");
} // namespace MediaStatisticsKey

} // namespace vantrell
