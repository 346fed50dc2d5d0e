#include "compare/CutComparison.h"

#include "timecode/QVTimecode.h"

namespace vantrell
{

namespace
{

/// Without a timecode of its own a sequence counts from 0 at its rate.
SequenceTiming timingOf(const SequenceEvents &cut)
{
    SequenceTiming timing = SequenceTiming::ofFirstTexts(cut.sequence);
    if (timing.timebase <= 0 && !cut.rate.isZero())
        timing.timebase = cut.rate.ceil();
    return timing;
}

} // namespace

CutComparison CutComparison::of(XmlNode before, XmlNode after, const std::atomic<bool> *isCancelled)
{
    const auto isWanted = [isCancelled] { return !isCancelled || !*isCancelled; };
    CutComparison result;
    result.before = SequenceEvents::read(before);
    if (isWanted())
        result.after = SequenceEvents::read(after);
    if (!isWanted())
        return result;
    result.oldTiming = timingOf(result.before);
    result.newTiming = timingOf(result.after);
    const EventMatch match(result.before, result.after);
    if (isWanted())
        result.changes = changesBetween(result.before, result.after, match);
    if (isWanted())
        result.markers = MarkerCarrier::plan(result.before, result.after, match);
    return result;
}

QString CutComparison::file(const EventChange &change) const
{
    const TrackEvent &shown = event(change);
    if (shown.kind != TrackEvent::Kind::Clip)
        return QString();
    const MediaSource *const source = (change.after ? after : before).sourceOf(shown);
    return source ? source->label() : QString();
}

QString CutComparison::timecode(const SequenceTiming &timing, std::int64_t frame)
{
    return QVTimecode::timecodeFromFrameCount(quint64(frame), timing.timebase, timing.ntsc, timing.dropFrame,
                                              quint64(timing.startFrame));
}

} // namespace vantrell
