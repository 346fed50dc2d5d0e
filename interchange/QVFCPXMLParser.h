#pragma once

#include "rows/RowRecord.h"

#include <QString>

namespace vantrell
{

/// Reads the markers of Final Cut Pro X interchange files (root element fcpxml). Stateless; any thread. A
/// missing or malformed time, and a quotient that is not finite, count as 0.
class QVFCPXMLParser
{
public:
    QVFCPXMLParser() = delete;

    /// The seconds of a rational time ("1001/30000s", "3600s").
    static double secondsFromTimeString(const QString &time);

    /// Frames per second of a frame duration: denominator / numerator. A plain number is returned as it is.
    static double fpsFromFrameDuration(const QString &frameDuration);

    /// The numerator of a frame duration; a negative one wraps around.
    static quint64 multiplierFromFrameDuration(const QString &frameDuration);

    /// The frames in a time with the timescale of the frame duration: the time's numerator divided by the
    /// given numerator of the frame duration, truncated toward zero. A negative count wraps around.
    static quint64 framesFromTimeString(const QString &time, quint64 frameDuration);

    /// The markers of the file in its order, with the keys of ImportedMarkerKey: the name, then the
    /// position on the sequence, as "startTimecode" or, without useTimecode, as "seconds". A marker element
    /// that has no value attribute gives a row without any key. A marker outside the used part of its
    /// item is left out. Empty for a file that cannot be read, is not well-formed or is something else.
    ///
    /// stripDuplicates keeps the first marker only of those at one position. mainStorylineOnly leaves out
    /// connected clips and all else that does not lie directly on the first spine; it is on, and the
    /// others off, where they are not given. With a relativeHour of 0 or more the timecode's hour is 0
    /// when it equals that, and that much more when it is less; ":" then separates all its fields.
    static RowList markersFromXMLFile(const QString &path, bool useTimecode);
    static RowList markersFromXMLFile(const QString &path, bool useTimecode, bool stripDuplicates,
                                      bool mainStorylineOnly);
    static RowList markersFromXMLFile(const QString &path, bool useTimecode, bool stripDuplicates,
                                      bool mainStorylineOnly, qint64 relativeHour);
};

} // namespace vantrell
