#include "markers/TimecodeEntry.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/text/TextNumbers.h"
#include "timecode/QVTimecode.h"
#include "xml/QVXMLParser.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace vantrell
{

namespace
{

constexpr qsizetype wholeTimecode = 11; // characters; such a text is taken as it stands
const QString noTime = QStringLiteral("00:00:00:00");

SequenceTiming timingOf(const RowRecord &marker)
{
    return {.ntsc = marker.get(TimecodeKey::ntsc),
            .dropFrame = marker.get(TimecodeKey::dropFrame),
            .timebase = marker.get(TimecodeKey::timebase),
            .startFrame = marker.get(TimecodeKey::startFrame)};
}

/// In frames; nothing when the element does not tell.
std::optional<std::int64_t> lengthOf(XmlNode owner)
{
    const XmlNode duration = owner.childElement("duration");
    const std::int64_t frames = duration ? integerValue(duration.stringValue()) : 0;
    return frames > 0 ? std::optional(frames) : std::nullopt;
}

/// The timecode of a position that a file may hold.
QString timecodeAt(std::int64_t frames, const SequenceTiming &timing)
{
    return QVTimecode::timecodeFromFrameCount(quint64(frames), timing.timebase, timing.ntsc, timing.dropFrame,
                                              quint64(timing.startFrame));
}

/// As it is written.
std::int64_t written(quint64 frames)
{
    return std::int32_t(quint32(frames));
}

bool isDigits(const QString &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c >= QLatin1Char('0') && c <= QLatin1Char('9');
    });
}

QString shown(const QString &typed)
{
    return typed.size() <= 40 ? typed : typed.first(39) + QChar(u'…');
}

} // namespace

TimecodeEntry::Owner TimecodeEntry::ownerOf(const RowRecord &marker)
{
    const XmlNode clip = marker.get(MarkerKey::clip);
    const XmlNode element = clip ? clip : marker.get(MarkerKey::sequence);
    return {clip ? marker.get(MarkerKey::clipName) : marker.get(MarkerKey::sequenceName), timingOf(marker),
            lengthOf(element)};
}

TimecodeEntry::Owner TimecodeEntry::ownerOf(XmlNode sequence)
{
    return {QVXMLParser::nameForNode(sequence).value_or(QString()), SequenceTiming::ofFirstElements(sequence),
            lengthOf(sequence)};
}

TimecodeEntry::Reading TimecodeEntry::ofInPoint(const QString &typed, const RowRecord &marker)
{
    return inPoint(typed, QStringLiteral("01:00:00:00"), ownerOf(marker));
}

TimecodeEntry::Reading TimecodeEntry::ofDuration(const QString &typed, const RowRecord &marker)
{
    return duration(typed, ownerOf(marker), integerValue(marker.get(MarkerKey::in)));
}

TimecodeEntry::Reading TimecodeEntry::ofPlace(const QString &typed, const RowRecord &marker)
{
    const XmlNode sequence = marker.get(MarkerKey::sequence);
    return place(typed, {marker.get(MarkerKey::sequenceName), timingOf(marker), lengthOf(sequence)});
}

TimecodeEntry::Reading TimecodeEntry::ofNewInPoint(const QString &typed, XmlNode sequence)
{
    return place(typed, ownerOf(sequence));
}

TimecodeEntry::Reading TimecodeEntry::ofNewDuration(const QString &typed, XmlNode sequence,
                                                    std::int64_t inPoint)
{
    return duration(typed, ownerOf(sequence), inPoint);
}

QString TimecodeEntry::startOf(XmlNode sequence)
{
    return timecodeAt(0, SequenceTiming::ofFirstElements(sequence));
}

TimecodeEntry::Reading TimecodeEntry::inPoint(const QString &typed, const QString &start, const Owner &owner)
{
    const SequenceTiming &timing = owner.timing;
    const QString timecode = QVTimecode::timecodeFromUserString(typed, timing.dropFrame, start);
    Reading reading;
    reading.frames = written(QVTimecode::frameCountFromTimecode(
        timecode, timing.timebase, timing.ntsc, timing.dropFrame, quint64(timing.startFrame)));
    const QString result = timecodeAt(reading.frames, timing);
    reading.timecode = result;
    const QString what = typed.isEmpty() ? tr("An empty field") : shown(typed);
    reading.text =
        owner.name.isEmpty()
            ? tr("%1 is %2, frame %3").arg(what, result, QString::number(reading.frames))
            : tr("%1 is %2, frame %3 of %4").arg(what, result, QString::number(reading.frames), owner.name);
    reading.warnings = faultsOf(typed, timecode, timing);
    const QString name = owner.name.isEmpty() ? tr("the sequence") : owner.name;
    if (reading.frames < 0)
        reading.warnings.append(tr("This is before the start of %1 at %2.").arg(name, timecodeAt(0, timing)));
    else if (owner.length && reading.frames >= *owner.length)
        reading.warnings.append(
            tr("This is after the end of %1 at %2.").arg(name, timecodeAt(*owner.length, timing)));
    return reading;
}

/// The first place of the sequence with the digits that were typed: what is not typed comes from its start,
/// or from a second, a minute or an hour later where that would be before it.
TimecodeEntry::Reading TimecodeEntry::place(const QString &typed, const Owner &owner)
{
    const SequenceTiming &timing = owner.timing;
    const std::int64_t second = timing.timebase > 0 ? timing.timebase : 30;
    const Reading first = inPoint(typed, timecodeAt(0, timing), owner);
    for (const std::int64_t later : {second, 60 * second, 3600 * second}) {
        if (first.frames >= 0)
            break;
        Reading reading = inPoint(typed, timecodeAt(later, timing), owner);
        if (reading.frames >= 0)
            return reading;
    }
    return first;
}

TimecodeEntry::Reading TimecodeEntry::duration(const QString &typed, const Owner &owner, std::int64_t inPoint)
{
    const SequenceTiming &timing = owner.timing;
    const QString timecode = QVTimecode::timecodeFromUserString(typed, timing.dropFrame, noTime);
    const auto frames = std::int64_t(
        QVTimecode::frameCountFromTimecode(timecode, timing.timebase, timing.ntsc, timing.dropFrame, 0));
    Reading reading;
    reading.frames = std::max<std::int64_t>(frames, 0);
    const QString what = typed.isEmpty() ? tr("An empty field") : shown(typed);
    reading.warnings = faultsOf(typed, timecode, timing);
    if (frames <= 0) {
        reading.text = tr("%1 is no duration").arg(what);
        return reading;
    }
    const QString result = QVTimecode::timecodeFromFrameCount(quint64(frames), timing.timebase, timing.ntsc,
                                                              timing.dropFrame, 0);
    const std::int64_t out = inPoint + frames;
    const QString count = frames == 1 ? tr("1 frame") : tr("%1 frames").arg(frames);
    reading.text = tr("%1 is %2, %3, to %4").arg(what, result, count, timecodeAt(out, timing));
    if (owner.length && out > *owner.length)
        reading.warnings.append(tr("This ends after the end of %1 at %2.")
                                    .arg(owner.name.isEmpty() ? tr("the sequence") : owner.name,
                                         timecodeAt(*owner.length, timing)));
    return reading;
}

QStringList TimecodeEntry::faultsOf(const QString &typed, const QString &timecode,
                                    const SequenceTiming &timing)
{
    QStringList faults = typed.size() == wholeTimecode ? QStringList() : faultsOfTyping(typed);
    if (faults.isEmpty())
        faults = faultsOfFields(timecode, timing);
    return faults;
}

bool TimecodeEntry::isTimecode(const QString &typed)
{
    static const QRegularExpression timecode(QStringLiteral("^[:;.,]*[0-9][0-9:;.,]*$"));
    return timecode.match(typed.trimmed()).hasMatch();
}

/// Of a text that is put together from its digits, wherever its separators stand.
QStringList TimecodeEntry::faultsOfTyping(const QString &typed)
{
    static const QRegularExpression allowed(QStringLiteral("^[0-9:;.,]*$"));
    static const QRegularExpression trailing(QStringLiteral("[.,]+$"));
    static const QRegularExpression separators(QStringLiteral("[:;.,]"));
    static const QRegularExpression colons(QStringLiteral("[:;]"));
    if (!allowed.match(typed).hasMatch())
        return {tr("Only digits, colons, points and commas make a timecode.")};
    QString inner = typed;
    inner.remove(trailing);
    const QStringList fields = inner.split(separators);
    if (fields.size() > 1 && fields.contains(QString()))
        return {tr("Digits are missing between two separators; points count as zeros only at the end.")};
    // Colons are taken out, so that a single digit behind one joins the field before.
    const QStringList parts = inner.split(colons);
    for (qsizetype i = 1; i < parts.size(); ++i) {
        if (parts[i].size() == 1)
            return {tr("A digit is missing: fields after a colon need two.")};
    }
    QString digits = inner;
    digits.remove(separators);
    const QString points = typed.mid(inner.size());
    if (points.size() > 3 || digits.size() + 2 * points.size() > 8)
        return {tr("There are too many digits; only the last eight count.")};
    return {};
}

QStringList TimecodeEntry::faultsOfFields(const QString &timecode, const SequenceTiming &timing)
{
    static const QRegularExpression separators(QStringLiteral("[:;]"));
    const QStringList fields = timecode.trimmed().split(separators);
    if (fields.size() < 4)
        return {tr("Digits are missing: hours, minutes, seconds and frames are needed.")};
    if (fields.size() > 4)
        return {tr("There are too many fields; only the first four count.")};
    if (!std::all_of(fields.begin(), fields.end(), isDigits))
        return {tr("Only digits, colons, points and commas make a timecode.")};
    const std::int64_t rate = timing.timebase > 0 ? timing.timebase : 30;
    const std::int64_t minutes = integerValue(fields[1]);
    const std::int64_t seconds = integerValue(fields[2]);
    const std::int64_t frames = integerValue(fields[3]);
    QStringList faults;
    if (std::any_of(fields.begin(), fields.end(), [](const QString &field) { return field.size() < 2; }))
        faults.append(tr("A digit is missing: each field needs two."));
    if (integerValue(fields[0]) > 23)
        faults.append(tr("Hours cannot exceed 23."));
    if (minutes > 59)
        faults.append(tr("Minutes cannot exceed 59."));
    if (seconds > 59)
        faults.append(tr("Seconds cannot exceed 59."));
    if (frames >= rate)
        faults.append(tr("Frames cannot exceed %1 at this rate.").arg(rate - 1));
    const auto dropped = std::int64_t(std::round(double(rate) / 15));
    if (timing.dropFrame && minutes % 10 != 0 && seconds == 0 && frames < dropped)
        faults.append(tr("Drop-frame timecode leaves this number out."));
    return faults;
}

} // namespace vantrell
