#include "markers/MarkerTableValues.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

namespace vantrell::MarkerTableValues
{

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

QString reportedOutText(const RowRecord &record)
{
    const std::int32_t out = intValue(record.get(MarkerKey::out));
    if (out == -1)
        return QStringLiteral("00:00:00:00");
    const auto duration = std::int32_t(quint32(out) - quint32(intValue(record.get(MarkerKey::in))));
    return MyDocument::timecodeFromFrameCount(duration, record);
}

std::int64_t absolutePosition(const RowRecord &record, Point point)
{
    const std::int64_t position =
        integerValue(record.get(point == Point::In ? MarkerKey::in : MarkerKey::out));
    return std::int64_t(quint64(position) + quint64(record.get(TimecodeKey::startFrame)));
}

std::strong_ordering compareIntegersFromString(const RowRecord &a, const RowRecord &b, const QString &key)
{
    const Point point = key == MarkerKey::in.text() ? Point::In : Point::Out;
    return absolutePosition(a, point) <=> absolutePosition(b, point);
}

std::strong_ordering compareIntegersFromString(const QString &a, const QString &b)
{
    return integerValue(a) <=> integerValue(b);
}

} // namespace vantrell::MarkerTableValues
