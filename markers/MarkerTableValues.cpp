#include "markers/MarkerTableValues.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

namespace vantrell::MarkerTableValues
{

namespace
{

const QString inColumn = QStringLiteral("in");
const QString outColumn = QStringLiteral("out");

/// The record's in or out point from the zero of timecode, in frames; it wraps around.
std::int64_t absolutePosition(const RowRecord &record, bool in)
{
    const std::int64_t position = integerValue(record.get(in ? MarkerKey::in : MarkerKey::out));
    return std::int64_t(quint64(position) + quint64(record.get(TimecodeKey::startFrame)));
}

} // namespace

QString inText(const RowRecord &record)
{
    return MyDocument::timecodeFromFrameCount(intValue(record.get(MarkerKey::in)), record);
}

QString outText(const RowRecord &record)
{
    const std::int64_t out = integerValue(record.get(MarkerKey::out));
    if (out < 0)
        return QStringLiteral("00:00:00:00");
    const quint64 duration = quint64(out) - quint64(integerValue(record.get(MarkerKey::in)));
    return QVTimecode::timecodeFromFrameCount(duration, record.get(TimecodeKey::timebase),
                                              record.get(TimecodeKey::ntsc),
                                              record.get(TimecodeKey::dropFrame), 0);
}

std::strong_ordering compareIntegersFromString(const RowRecord &a, const RowRecord &b, const QString &key)
{
    const bool in = key == inColumn;
    return absolutePosition(a, in) <=> absolutePosition(b, in);
}

std::strong_ordering compareIntegersFromString(const QString &a, const QString &b)
{
    return integerValue(a) <=> integerValue(b);
}

SortValue sortValueOfColumn(const QString &column)
{
    if (column == QStringLiteral("sequence"))
        return recordValueOfColumn(MarkerKey::sequenceName.text());
    if (column == QStringLiteral("clip"))
        return recordValueOfColumn(MarkerKey::clipName.text());
    if (column != inColumn && column != outColumn)
        return recordValueOfColumn(column);
    const bool in = column == inColumn;
    return [in](const RowRecord &row) { return std::optional<RecordValue>(absolutePosition(row, in)); };
}

} // namespace vantrell::MarkerTableValues
