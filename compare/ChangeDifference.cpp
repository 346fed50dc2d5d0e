#include "compare/ChangeDifference.h"

#include "timecode/QVTimecode.h"

#include <QMap>
#include <QStringList>

#include <array>

namespace vantrell
{

namespace
{

QString percentOf(const SourceMapping &mapping)
{
    if (mapping.isVariable)
        return QStringLiteral("variable");
    const QString number = QString::number(mapping.speed.value() * 100, 'g', 6);
    return (mapping.isReversed ? QStringLiteral("-%1%") : QStringLiteral("%1%")).arg(number);
}

/// How many frames longer the event is at its head, in frames of the new cut.
std::int64_t growthAtHead(const TrackEvent &before, const TrackEvent &after)
{
    const std::int64_t earlier = before.mapping.sourceAt(0) - after.mapping.sourceAt(0);
    const Ratio step = after.mapping.step;
    const std::int64_t frames = step.isZero() ? 0 : (Ratio(earlier) / step).floor();
    return after.mapping.isReversed ? -frames : frames;
}

QString trimOf(const TrackEvent &before, const TrackEvent &after, const SequenceTiming &timing)
{
    const std::int64_t growth = after.length() - before.length();
    if (!after.isItem())
        return signedTimecode(growth, timing);
    const std::int64_t head = growthAtHead(before, after);
    QStringList parts;
    if (head != 0)
        parts.append(QStringLiteral("head ") + signedTimecode(head, timing));
    if (growth != head)
        parts.append(QStringLiteral("tail ") + signedTimecode(growth - head, timing));
    return parts.join(QStringLiteral(", "));
}

/// How often each filter is there: off, on.
using FilterCounts = QMap<QString, std::array<int, 2>>;

FilterCounts filtersOf(const QString &effects)
{
    FilterCounts counts;
    const QStringList lines = effects.split(QLatin1Char('\n'));
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) // the last one is the event's own switch
        ++counts[lines[i]][lines[i + 1] == QLatin1String("+") ? 1 : 0];
    return counts;
}

QString effectsText(const QString &before, const QString &after)
{
    QStringList parts;
    const bool isOn = after.endsWith(QLatin1Char('+'));
    if (isOn != before.endsWith(QLatin1Char('+')))
        parts.append(isOn ? QStringLiteral("switched on") : QStringLiteral("switched off"));
    const FilterCounts old = filtersOf(before);
    const FilterCounts now = filtersOf(after);
    FilterCounts all = old;
    all.insert(now);
    for (auto filter = all.cbegin(); filter != all.cend(); ++filter) {
        const std::array<int, 2> a = old.value(filter.key());
        const std::array<int, 2> b = now.value(filter.key());
        const int more = b[0] + b[1] - a[0] - a[1];
        for (int i = 0; i < more; ++i)
            parts.append(QStringLiteral("+ %1").arg(filter.key()));
        for (int i = 0; i < -more; ++i)
            parts.append(QStringLiteral("- %1").arg(filter.key()));
        if (more == 0 && a[1] != b[1])
            parts.append(
                (b[1] > a[1] ? QStringLiteral("%1 on") : QStringLiteral("%1 off")).arg(filter.key()));
    }
    return parts.join(QStringLiteral(", "));
}

} // namespace

QString signedTimecode(std::int64_t frames, const SequenceTiming &timing)
{
    return QLatin1Char(frames < 0 ? '-' : '+') +
           QVTimecode::timecodeFromFrameCount(quint64(frames < 0 ? -frames : frames), timing.timebase,
                                              timing.ntsc, timing.dropFrame, 0);
}

QString differenceOf(const CutComparison &comparison, const EventChange &change)
{
    using Kind = EventChange::Kind;
    const SequenceTiming &timing = comparison.newTiming;
    if (change.kind == Kind::Added)
        return signedTimecode(comparison.event(change).length(), timing);
    if (change.kind == Kind::Removed)
        return signedTimecode(-comparison.event(change).length(), comparison.oldTiming);
    const TrackEvent &before = *comparison.oldEvent(change);
    const TrackEvent &after = *comparison.newEvent(change);
    switch (change.kind) {
    case Kind::Replaced:
        return QStringLiteral("was %1").arg(before.name);
    case Kind::Speed:
        return QStringLiteral("%1 to %2").arg(percentOf(before.mapping), percentOf(after.mapping));
    case Kind::Slipped:
        return signedTimecode(after.mapping.sourceAt(0) - before.mapping.sourceAt(0), timing);
    case Kind::Trimmed:
        return trimOf(before, after, timing);
    case Kind::Track:
        return QStringLiteral("%1 to %2").arg(before.trackName(), after.trackName());
    case Kind::Moved:
        return signedTimecode(change.by, timing);
    case Kind::Effects:
        return effectsText(before.effects, after.effects);
    case Kind::Unchanged:
    case Kind::Added:
    case Kind::Removed:
        break;
    }
    return QString();
}

} // namespace vantrell
