#pragma once

#include "markers/SequenceTiming.h"
#include "rows/RowRecord.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <optional>

namespace vantrell
{

/// What a timecode that a user types for a marker becomes, told before it is written. Main thread.
class TimecodeEntry
{
    Q_DECLARE_TR_FUNCTIONS(TimecodeEntry)

public:
    /// A line such as "1.. is 01:01:00:00, frame 1500 of Reel 1", and what is wrong with the text or its
    /// position, a sentence each.
    struct Reading {
        QString text;
        QStringList warnings;
        std::int64_t frames = 0; ///< position or duration that would be written
        QString timecode;        ///< of the position; null for a duration
    };

    TimecodeEntry() = delete;

    /// Typed into the cell of a marker's in point or duration.
    static Reading ofInPoint(const QString &typed, const RowRecord &marker);
    static Reading ofDuration(const QString &typed, const RowRecord &marker);

    /// Typed as a place in the sequence of a marker.
    static Reading ofPlace(const QString &typed, const RowRecord &marker);

    /// Typed as the in point, or as the duration, of a marker that is to be added to the sequence at a
    /// position in frames.
    static Reading ofNewInPoint(const QString &typed, XmlNode sequence);
    static Reading ofNewDuration(const QString &typed, XmlNode sequence, std::int64_t inPoint);

    /// Whether a text can be read as a timecode: it has digits, and nothing but digits and separators.
    static bool isTimecode(const QString &typed);

    /// The timecode of a sequence's first frame.
    static QString startOf(XmlNode sequence);

    /// What the typed text and the timecode that it is read as have wrong: missing or needless digits,
    /// characters that are no digits, fields out of range.
    static QStringList faultsOf(const QString &typed, const QString &timecode, const SequenceTiming &timing);

private:
    /// What a position counts in.
    struct Owner {
        QString name;
        SequenceTiming timing;
        std::optional<std::int64_t> length; ///< frames
    };
    static Owner ownerOf(const RowRecord &marker);
    static Owner ownerOf(XmlNode sequence);
    static Reading inPoint(const QString &typed, const QString &start, const Owner &owner);
    static Reading place(const QString &typed, const Owner &owner);
    static Reading duration(const QString &typed, const Owner &owner, std::int64_t inPoint);
    static QStringList faultsOfTyping(const QString &typed);
    static QStringList faultsOfFields(const QString &timecode, const SequenceTiming &timing);
};

} // namespace vantrell
