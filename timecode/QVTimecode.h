#pragma once

#include <QString>
#include <QTime>

namespace vantrell
{

/// a − trunc(a / b) × b, each step rounded to a double; not a number when b is 0. Any thread.
double modulus(double a, double b);

/// Converts between frame counts and timecodes, and adds and compares timecodes. Stateless; every operation
/// may be called on any thread, never fails and never logs.
///
/// A timecode consists of hours, minutes, seconds and frames, each of at least two digits, joined by ":",
/// with ";" before the frames for drop frame. When reading one, surrounding white space is dropped, any ":"
/// or ";" separates, parts after the fourth are ignored, a part that is not a number is 0, and fewer than
/// four parts give 0 frames.
///
/// A frame count is unsigned and wraps around below zero and beyond 64 bits. A double becomes a count the
/// same way on every processor: truncated toward zero, modulo 2^64 (so −1.0 is 2^64 − 1); 0 when not finite.
///
/// A timebase is the nominal number of frames per second; 30 is used when it is 0 or less. The flag ntsc (the
/// real rate is timebase × 1000/1001) does not affect frame counts. A start frame is the number of the first
/// frame of a sequence.
class QVTimecode
{
public:
    QVTimecode() = delete;

    /// The timecode of the frame `frames` after startFrame. Hours wrap around at 24.
    static QString timecodeFromFrameCount(quint64 frames, qint64 timebase, bool ntsc, bool dropFrame,
                                          quint64 startFrame);

    /// The frames from startFrame to a timecode; wraps around before the start.
    static quint64 frameCountFromTimecode(const QString &timecode, qint64 timebase, bool ntsc, bool dropFrame,
                                          quint64 startFrame);

    /// The duration of a number of frames at fps frames per second (30 unless above 0; may be fractional),
    /// always with ":".
    static QString elapsedTimeFromFrameCount(quint64 frames, double fps);

    /// The frames in an elapsed time at fps frames per second (30 unless above 0). Hours, minutes and seconds
    /// may have fractions; each is rounded to frames on its own.
    static quint64 frameCountFromElapsedTime(const QString &elapsedTime, double fps);

    /// A timecode moved by a number of frames. It is read without drop frame and written with the
    /// given flag.
    static QString timecodeIncrementBy(const QString &timecode, qint64 frames, qint64 timebase, bool ntsc,
                                       bool dropFrame);

    /// Frames per second: the timebase itself, or with ntsc the real rate of 24, 30 and 60, and 0 for other
    /// timebases.
    static double frameRateFromTimebase(qint64 timebase, bool isNTSC);

    /// The timecode of a time in seconds, to the nearest frame, halves away from zero.
    static QString timecodeFromSeconds(double seconds, float fps, bool dropFrame);

    /// Expands what a user typed into a timecode field: digits, with "." or "," for a pair of zeros, replace
    /// the right end of a start timecode (all zeros when empty). Eleven characters are returned as they are.
    static QString timecodeFromUserString(const QString &text, bool dropFrame, const QString &startTimecode);

    /// The local time of day, its frames counted at the rate of frameRateFromTimebase().
    static QString timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame);

    /// The same for a given time.
    static QString timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame, QTime time);

    static QString addTimecode(const QString &timecode, const QString &toTimecode, qint64 timebase, bool ntsc,
                               bool dropFrame);

    /// fromTimecode minus timecode; null when timecode is later.
    static QString subtractTimecode(const QString &timecode, const QString &fromTimecode, qint64 timebase,
                                    bool ntsc, bool dropFrame);

    /// Whether a timecode is between two others or equal to one; compared at 24 frames per second, whatever
    /// their rate.
    static bool timecodeInRange(const QString &timecode, const QString &start, const QString &end);

    /// The drop-frame number of a frame count. The ten-minute block is the nominal 600 × fps frames. A rate
    /// too low for a block of one frame leaves the count unchanged.
    static quint64 addDroppedFrames(quint64 count, double fps);

    /// The frame count of a drop-frame number.
    static quint64 subtractDroppedFrames(quint64 count, double fps);

    /// A timecode for use in a file name: "." instead of every ":" and ";".
    static QString sanitizeTimecodeForFilename(const QString &timecode);

    /// The fields as a timecode. Printed as unsigned numbers, with "0" in front when below 10.
    static QString formatHours(qint64 hours, qint64 mins, qint64 secs, qint64 frames, bool dropFrame);
};

} // namespace vantrell
