#pragma once

#include "interchange/notes/NoteRate.h"

#include <QStringView>

#include <optional>

namespace vantrell
{

/// What plain numbers in a column of times count.
enum class NoteUnit { Frames, Seconds, Milliseconds };

/// One time as a list writes it, before its rate is known. Any thread.
struct NoteTime {
    /// "01:00:10:05" is a timecode; "1:02:03.5", "00:10", "12.5 s" and "1001/30000s" are seconds; "250"
    /// and feet of sixteen frames ("12+05") are frames.
    enum class Kind { Timecode, Seconds, Frames };

    Kind kind = Kind::Timecode;
    qint64 seconds = 0;     ///< of a timecode and of seconds, the whole ones
    qint64 frames = 0;      ///< of a timecode and of frames
    qint64 numerator = 0;   ///< the rest: of a second of seconds, of a frame otherwise
    qint64 denominator = 1; ///< above 0
    bool hasSemicolon = false;

    /// Reads a time without regard to white space around it. Separators are ":" and ";" and, before a
    /// fraction, "." and ",". nullopt for anything else, for 60 and more minutes or seconds behind a
    /// separator, and for more than fifteen digits in a row. Frames may have commas before each three digits.
    static std::optional<NoteTime> parse(QStringView text, NoteUnit unit);

    /// Whether the rate counts such a frame: the frame field of a timecode is below the timebase.
    bool fits(const NoteRate &rate) const;

    /// The frames from zero at the rate, as a fraction with that denominator.
    struct Position {
        WideInteger numerator = 0;
        WideInteger denominator = 1;

        Position minus(const Position &other) const;
    };
    Position framesFromZero(const NoteRate &rate) const;
};

/// The frames of the rate `to` in that many frames of the rate `from`, in real time.
qint64 convertedFrames(const NoteTime::Position &frames, const NoteRate &from, const NoteRate &to);

} // namespace vantrell
