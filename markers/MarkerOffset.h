#pragma once

#include "markers/TimecodeEntry.h"
#include "rows/RowRecord.h"

#include <QCoreApplication>
#include <QString>

namespace vantrell
{

/// The offset of markers as a user types it: frames, or, when the text holds one of ":;,.", a timecode
/// without drop frame at the rate of the first row of the table, whether that is moved or not; at 29.97
/// frames in an empty table. Any thread.
class MarkerOffset
{
    Q_DECLARE_TR_FUNCTIONS(MarkerOffset)

public:
    MarkerOffset() = delete;

    static bool isTimecode(const QString &text);
    /// In frames; a negative offset wraps around.
    static quint64 framesOf(const QString &text, const RowList &table);

    /// The rate that a timecode counts at, as a sentence.
    static QString rateText(const RowList &table);
    /// What becomes of the first of the records; an empty text without records.
    static TimecodeEntry::Reading preview(const QString &text, const RowList &records, const RowList &table);
};

} // namespace vantrell
