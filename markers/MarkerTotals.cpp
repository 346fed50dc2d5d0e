#include "markers/MarkerTotals.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <vector>

namespace vantrell
{

namespace
{

struct MarkerRate {
    std::int64_t timebase = 30;
    bool ntsc = false;
    bool dropFrame = false;

    static MarkerRate of(const RowRecord &marker)
    {
        const std::int64_t timebase = marker.get(TimecodeKey::timebase);
        return {timebase > 0 ? timebase : 30, marker.get(TimecodeKey::ntsc),
                marker.get(TimecodeKey::dropFrame)};
    }
    double fps() const
    {
        const double fps = QVTimecode::frameRateFromTimebase(timebase, ntsc);
        return fps > 0 ? fps : double(timebase);
    }
    friend bool operator==(const MarkerRate &, const MarkerRate &) = default;
};

QString durationText(quint64 frames, const MarkerRate &rate)
{
    const QString text =
        QVTimecode::timecodeFromFrameCount(frames, rate.timebase, rate.ntsc, rate.dropFrame, 0);
    const auto hours = quint64(double(frames) / rate.fps() / 3600);
    constexpr quint64 day = 24;
    if (hours < day)
        return text;
    // At the rates that are not whole, midnight comes some seconds before or after that of the clock.
    const quint64 shown = text.left(2).toULongLong();
    quint64 days = hours / day;
    if (shown == 0 && hours % day == day - 1)
        ++days;
    else if (shown == day - 1 && hours % day == 0)
        --days;
    return QString::number(days * day + shown) + text.sliced(2);
}

} // namespace

QString totalDurationText(const RowList &markers)
{
    struct Part {
        MarkerRate rate;
        std::size_t markers = 0;
        quint64 frames = 0;
    };
    std::vector<Part> parts;
    for (const RowRecordPtr &marker : markers) {
        const RecordValue *const value = marker->find(MarkerKey::out);
        const QString *const out = value ? std::get_if<QString>(value) : nullptr;
        if (!out || out->isEmpty() || out->startsWith(QLatin1Char('-')))
            continue;
        const std::int64_t length = integerValue(*out) - integerValue(marker->get(MarkerKey::in));
        if (length <= 0)
            continue;
        const MarkerRate rate = MarkerRate::of(*marker);
        auto part =
            std::find_if(parts.begin(), parts.end(), [&rate](const Part &each) { return each.rate == rate; });
        if (part == parts.end())
            part = parts.insert(parts.end(), {.rate = rate});
        ++part->markers;
        part->frames += quint64(length);
    }
    if (parts.empty())
        return QString();
    // Not the first one: the sum does not depend on the order of the markers.
    std::sort(parts.begin(), parts.end(), [](const Part &a, const Part &b) {
        return std::tie(a.markers, a.frames, a.rate.timebase, a.rate.ntsc, a.rate.dropFrame) >
               std::tie(b.markers, b.frames, b.rate.timebase, b.rate.ntsc, b.rate.dropFrame);
    });
    const Part &most = parts.front();
    double otherSeconds = 0;
    for (std::size_t i = 1; i < parts.size(); ++i)
        otherSeconds += double(parts[i].frames) / parts[i].rate.fps();
    return durationText(most.frames + quint64(std::llround(otherSeconds * most.rate.fps())), most.rate);
}

} // namespace vantrell
