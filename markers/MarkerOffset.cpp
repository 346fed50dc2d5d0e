#include "markers/MarkerOffset.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"

#include <QRegularExpression>

#include <algorithm>

namespace vantrell
{

namespace
{

SequenceTiming timingOf(const RowList &table)
{
    if (table.empty())
        return {.ntsc = true, .timebase = 30};
    return {.ntsc = table.front()->get(TimecodeKey::ntsc),
            .timebase = table.front()->get(TimecodeKey::timebase)};
}

QString timecodeOf(const QString &text)
{
    return QVTimecode::timecodeFromUserString(text.startsWith(QLatin1Char('-')) ? text.sliced(1) : text,
                                              false, QStringLiteral("00:00:00:00"));
}

} // namespace

bool MarkerOffset::isTimecode(const QString &text)
{
    static const QString separators = QStringLiteral(":;,.");
    return std::any_of(text.begin(), text.end(), [](QChar c) { return separators.contains(c); });
}

quint64 MarkerOffset::framesOf(const QString &text, const RowList &table)
{
    if (!isTimecode(text))
        return quint64(integerValue(text));
    const SequenceTiming timing = timingOf(table);
    const quint64 frames =
        QVTimecode::frameCountFromTimecode(timecodeOf(text), timing.timebase, timing.ntsc, false, 0);
    return text.startsWith(QLatin1Char('-')) ? 0 - frames : frames;
}

QString MarkerOffset::rateText(const RowList &table)
{
    const SequenceTiming timing = timingOf(table);
    const std::int64_t timebase = timing.timebase > 0 ? timing.timebase : 30;
    const QString rate =
        timing.ntsc ? QString::number(double(timebase) * 1000 / 1001, 'g', 5) : QString::number(timebase);
    if (table.empty())
        return tr("Timecodes count at %1 frames per second, without drop frame.").arg(rate);
    const QString sequence = table.front()->get(MarkerKey::sequenceName);
    return sequence.isEmpty() ? tr("Timecodes count at %1 frames per second, the rate of the table's first "
                                   "row, without drop "
                                   "frame.")
                                    .arg(rate)
                              : tr("Timecodes count at %1 frames per second, the rate of the table's first "
                                   "row (%2), without drop "
                                   "frame.")
                                    .arg(rate, sequence);
}

TimecodeEntry::Reading MarkerOffset::preview(const QString &text, const RowList &records,
                                             const RowList &table)
{
    TimecodeEntry::Reading reading;
    if (records.empty())
        return reading;
    const RowRecord &first = *records.front();
    const std::int32_t before = intValue(first.get(MarkerKey::in));
    const auto offset = std::int32_t(quint32(framesOf(text, table)));
    const auto after = std::int32_t(quint32(before) + quint32(offset));
    reading.frames = offset;
    const QString frames = offset == 1 || offset == -1 ? tr("%1 frame") : tr("%1 frames");
    const QString count = (offset > 0 ? QStringLiteral("+") : QString()) + QString::number(offset);
    reading.text = tr("%1: “%2” moves from %3 to %4.")
                       .arg(frames.arg(count), first.get(MarkerKey::name),
                            MyDocument::timecodeFromFrameCount(before, first),
                            MyDocument::timecodeFromFrameCount(after, first));
    static const QRegularExpression number(QStringLiteral("^\\s*[+-]?[0-9]+\\s*$"));
    if (isTimecode(text)) {
        const QString typed = text.startsWith(QLatin1Char('-')) ? text.sliced(1) : text;
        reading.warnings = TimecodeEntry::faultsOf(typed, timecodeOf(text), timingOf(table));
    } else if (!number.match(text).hasMatch()) {
        reading.warnings.append(tr("This is not a whole number of frames."));
    }
    if (after < 0)
        reading.warnings.append(tr("This is before the start."));
    return reading;
}

} // namespace vantrell
