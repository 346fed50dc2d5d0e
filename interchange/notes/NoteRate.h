#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace vantrell
{

/// Whole numbers that no product of the conversions exceeds.
__extension__ typedef __int128 WideInteger; // NOLINT(modernize-use-using): a pedantic compiler takes no other

/// The frame rate of a list or a sequence, exactly, and how its timecode counts. Any thread.
struct NoteRate {
    qint64 timebase = 30; ///< frames that a second of timecode counts; above 0
    bool ntsc = false;    ///< the real rate is timebase × 1000/1001
    bool dropFrame = false;

    /// Frames per second as a fraction.
    qint64 numerator() const { return ntsc ? timebase * 1000 : timebase; }
    qint64 denominator() const { return ntsc ? 1001 : 1; }

    bool operator==(const NoteRate &) const = default;

    /// Of a sequence: 30 for a timebase below 1; only whole multiples of 24 and 30 are ever 1000/1001.
    static NoteRate ofSequence(qint64 timebase, bool ntsc, bool dropFrame);
    /// "23.976", "24", "25", "29.97", "29.97df", "30", "50", "59.94", "59.94df" or "60"; of other rates the
    /// number with its decimals.
    QString name() const;
    /// Reads such a name, and what lists say: "29.97 fps drop", "23.98", "30 Drop Frame" (which is 29.97df).
    /// nullopt for what begins with no rate.
    static std::optional<NoteRate> fromText(QStringView text);

    /// The frames from timecode zero to a timecode's number of seconds and frames, by the usual rule for
    /// drop frame: the first two numbers (four at 60) of each minute are left out, except of every tenth.
    qint64 framesAt(qint64 seconds, qint64 frames) const;

    /// A timecode's fields by the same rule.
    struct Label {
        qint64 seconds = 0;
        qint64 frames = 0;
    };
    /// The label of a frame, which is not below 0.
    Label labelOf(qint64 frame) const;
};

/// The quotient to the nearest whole number, halves up; the divisor is above 0. Saturates at 2^62.
qint64 roundedQuotient(WideInteger dividend, WideInteger divisor);

} // namespace vantrell
