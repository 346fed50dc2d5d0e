#pragma once

#include <QString>

#include <optional>

namespace vantrell::MediaHeader
{

/// What the header of a media file says; nothing of what it does not.
struct Facts {
    std::optional<double> seconds; ///< how long it is
    std::optional<double> start;   ///< its timecode, in seconds since midnight
    std::optional<double> rate;    ///< frames a second of that timecode
    QString reel;
};

/// Reads QuickTime and MPEG-4 files (duration, timecode, rate and reel), WAVE and RF64 (duration, timecode)
/// and AIFF (duration); nothing of other files, and what comes before the damage of a damaged header. Reads a
/// few small parts of the file; any thread that may wait for the disk.
Facts read(const QString &path);

} // namespace vantrell::MediaHeader
