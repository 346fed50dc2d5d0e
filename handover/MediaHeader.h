#pragma once

#include <QString>

#include <optional>

namespace vantrell::MediaHeader
{

/// How many seconds a media file lasts, as its header says: QuickTime and MPEG-4 files, WAVE and RF64, AIFF.
/// Nothing for other files, and when the header is damaged. Reads a few small parts of the file; any thread
/// that may wait for the disk.
std::optional<double> durationOf(const QString &path);

} // namespace vantrell::MediaHeader
