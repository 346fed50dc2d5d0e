#pragma once

#include <QString>
#include <QTime>

namespace vantrell
{

/// a − trunc(a / b) × b, each step rounded to a double; not a number when b is 0. Any thread.
double modulus(double a, double b);

/// Converts between frame counts and timecodes, and does sums with them. Stateless; every operation
/// may be called on any thread, never fails and never logs.
///
/// A timecode is hours, minutes, seconds and frames, each of at least two digits, joined by ":", with
/// ";" before the frames when it counts drop frame. Reading one, white space and line ends around it
/// are dropped, any ":" or ";" separates, parts after the fourth are ignored, a part that is no number
/// is 0, and fewer than four parts are 0 frames.
///
/// A frame count is unsigned: what goes below zero, or beyond 64 bits, wraps around. A double becomes
/// a count the same way: truncated toward zero and taken modulo 2^64 (so −1.0 is 2^64 − 1), 0 when it
/// is not finite. That holds on every processor.
///
/// A timebase is the nominal number of frames a second, 30 when it is 0 or less. The flag ntsc (the
/// real rate is timebase × 1000/1001) changes nothing where frames are counted. A start frame is the
/// number of a sequence's first frame.
class QVTimecode
{
public:
    QVTimecode() = delete;

    /// The timecode of a frame that lies `frames` after startFrame. Hours start again at 24.
    static QString timecodeFromFrameCount(quint64 frames, qint64 timebase, bool ntsc, bool dropFrame,
                                          quint64 startFrame);

    /// The frames from startFrame to a timecode; one before the start wraps around.
    static quint64 frameCountFromTimecode(const QString &timecode, qint64 timebase, bool ntsc, bool dropFrame,
                                          quint64 startFrame);

    /// The time that a number of frames takes at fps frames a second (30 unless above 0; fractions
    /// are allowed), always with ":".
    static QString elapsedTimeFromFrameCount(quint64 frames, double fps);

    /// The frames in an elapsed time at fps frames a second (30 unless above 0). Hours, minutes and
    /// seconds may have fractions: each is rounded to frames by itself.
    static quint64 frameCountFromElapsedTime(const QString &elapsedTime, double fps);

    /// A timecode moved by a number of frames. It is read without drop frame and written with the
    /// given flag.
    static QString timecodeIncrementBy(const QString &timecode, qint64 frames, qint64 timebase, bool ntsc,
                                       bool dropFrame);

    /// Frames a second: the timebase as it is, or with ntsc the real rate of 24, 30 and 60, and 0 for
    /// any other timebase.
    static double frameRateFromTimebase(qint64 timebase, bool isNTSC);

    /// The timecode of a time in seconds, to the nearest frame, halves away from zero.
    static QString timecodeFromSeconds(double seconds, float fps, bool dropFrame);

    /// What a user typed into a timecode field: digits, "." or "," for a pair of zeros, put over the
    /// right-hand end of a start timecode (all zeros when that is empty). Eleven characters are given
    /// back as they are.
    static QString timecodeFromUserString(const QString &text, bool dropFrame, const QString &startTimecode);

    /// The local time of day, its frames counted at the rate of frameRateFromTimebase().
    static QString timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame);

    /// The same of a given time.
    static QString timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame, QTime time);

    static QString addTimecode(const QString &timecode, const QString &toTimecode, qint64 timebase, bool ntsc,
                               bool dropFrame);

    /// fromTimecode minus timecode; null when timecode is the later one.
    static QString subtractTimecode(const QString &timecode, const QString &fromTimecode, qint64 timebase,
                                    bool ntsc, bool dropFrame);

    /// Whether a timecode lies between two others or is one of them; compared at 24 frames a second,
    /// whatever the rate of the timecodes.
    static bool timecodeInRange(const QString &timecode, const QString &start, const QString &end);

    /// The number that drop-frame numbering shows for a count of frames. The ten-minute block is the
    /// nominal 600 × fps frames. A rate too low for a block of one frame leaves the count as it is.
    static quint64 addDroppedFrames(quint64 count, double fps);

    /// The count of frames behind a number that drop-frame numbering shows.
    static quint64 subtractDroppedFrames(quint64 count, double fps);

    /// A timecode for use in a file name: "." instead of every ":" and ";".
    static QString sanitizeTimecodeForFilename(const QString &timecode);

    /// The fields as a timecode. They are written as unsigned numbers, after "0" when below 10.
    static QString formatHours(qint64 hours, qint64 mins, qint64 secs, qint64 frames, bool dropFrame);
};

} // namespace vantrell
