#include "timecode/QVTimecode.h"

#include "support/text/TextNumbers.h"

#include <QDateTime>
#include <QList>
#include <QStringList>

#include <array>
#include <cmath>
#include <limits>
#include <utility>

namespace vantrell
{

namespace
{

constexpr double kTwoToThe63 = 9223372036854775808.0;
constexpr double kTwoToThe64 = 18446744073709551616.0;
constexpr qint64 kDefaultTimebase = 30;

qint64 timebaseOrDefault(qint64 timebase)
{
    return timebase > 0 ? timebase : kDefaultTimebase;
}

double rateOrDefault(double fps)
{
    return fps > 0 ? fps : double(kDefaultTimebase);
}

QLatin1Char frameSeparator(bool dropFrame)
{
    return QLatin1Char(dropFrame ? ';' : ':');
}

/// Truncated toward zero, modulo 2^64; 0 when not finite.
quint64 countFromDouble(double value)
{
    if (!std::isfinite(value))
        return 0;
    // Both steps are exact, so the conversions below are of whole numbers in range.
    const double whole = std::fmod(std::trunc(value), kTwoToThe64);
    return whole < 0 ? 0 - quint64(-whole) : quint64(whole);
}

/// Truncated toward zero, saturating; 0 when not a number.
qint64 integerFromDouble(double value)
{
    if (std::isnan(value))
        return 0;
    if (value >= kTwoToThe63)
        return std::numeric_limits<qint64>::max();
    if (value < -kTwoToThe63)
        return std::numeric_limits<qint64>::min();
    return qint64(value);
}

/// At least two digits, after the sign.
void appendTwoDigits(QString &text, qint64 value)
{
    if (value < 0)
        text += QLatin1Char('-');
    const quint64 magnitude = value < 0 ? 0 - quint64(value) : quint64(value);
    if (magnitude < 10)
        text += QLatin1Char('0');
    text += QString::number(magnitude);
}

/// "0" before anything below 10, negative numbers included.
QString zeroPrefix(qint64 value)
{
    return value < 10 ? QStringLiteral("0") : QString();
}

/// The timecode of a count, without any drop-frame conversion.
QString displayedTimecode(quint64 count, double fps, QLatin1Char separator)
{
    const double total = double(count);
    const quint64 seconds = countFromDouble(std::floor(total / fps));
    const qint64 frames = integerFromDouble(std::floor(modulus(total, fps)));

    QString text;
    text.reserve(11);
    appendTwoDigits(text, qint64(seconds / 3600 - (seconds / 86400) * 24));
    text += QLatin1Char(':');
    appendTwoDigits(text, qint64((seconds / 60) % 60));
    text += QLatin1Char(':');
    appendTwoDigits(text, qint64(seconds % 60));
    text += separator;
    appendTwoDigits(text, frames);
    return text;
}

/// The text between the ":" and ";" of a timecode without white space around it.
QList<QStringView> partsOfTimecode(QStringView timecode)
{
    timecode = timecode.trimmed();
    QList<QStringView> parts;
    qsizetype start = 0;
    for (qsizetype i = 0; i < timecode.size(); ++i) {
        if (timecode[i] == QLatin1Char(':') || timecode[i] == QLatin1Char(';')) {
            parts.append(timecode.sliced(start, i - start));
            start = i + 1;
        }
    }
    parts.append(timecode.sliced(start));
    return parts;
}

struct SuffixRule {
    QLatin1String suffix;
    QLatin1String replacement;
};

/// In the order of application, each to the result of the previous one.
constexpr std::array<SuffixRule, 8> kSuffixRules{{
    {QLatin1String("...."), QLatin1String("00000000")},
    {QLatin1String("..."), QLatin1String(".000000")},
    {QLatin1String(".."), QLatin1String(".0000")},
    {QLatin1String("."), QLatin1String(".00")},
    {QLatin1String(",,,,"), QLatin1String("00000000")},
    {QLatin1String(",,,"), QLatin1String(",000000")},
    {QLatin1String(",,"), QLatin1String(",0000")},
    {QLatin1String(","), QLatin1String(",00")},
}};

/// The digits that a user's shorthand stands for, without separators.
QString digitsOfShorthand(QString text)
{
    for (const SuffixRule &rule : kSuffixRules) {
        if (text.endsWith(rule.suffix)) {
            text.chop(rule.suffix.size());
            text += rule.replacement;
        }
    }

    text.replace(QLatin1Char(','), QLatin1Char('.'));
    QString digits;
    digits.reserve(text.size());
    for (const QStringView part : QStringView(text).split(QLatin1Char('.'))) {
        if (part.size() == 1)
            digits += QLatin1Char('0');
        digits += part;
    }
    digits.remove(QLatin1Char(':'));
    digits.remove(QLatin1Char(';'));
    return digits;
}

/// Separators between the pairs, counted from the right; two characters or fewer stay as they are.
QString separatedPairs(const QString &digits, bool dropFrame)
{
    if (digits.size() < 3)
        return digits;
    const QString padded = digits.size() % 2 ? QLatin1Char('0') + digits : digits;
    QString text = padded.first(2);
    for (qsizetype i = 2; i < padded.size(); i += 2) {
        text += frameSeparator(dropFrame && i + 2 == padded.size());
        text += QStringView(padded).sliced(i, 2);
    }
    return text;
}

} // namespace

double modulus(double a, double b)
{
    return a - std::trunc(a / b) * b;
}

QString QVTimecode::timecodeFromFrameCount(quint64 frames, qint64 timebase, bool, bool dropFrame,
                                           quint64 startFrame)
{
    const double fps = double(timebaseOrDefault(timebase));
    quint64 total = frames + startFrame;
    if (dropFrame)
        total = addDroppedFrames(total, fps);
    return displayedTimecode(total, fps, frameSeparator(dropFrame));
}

quint64 QVTimecode::frameCountFromTimecode(const QString &timecode, qint64 timebase, bool, bool dropFrame,
                                           quint64 startFrame)
{
    const QList<QStringView> parts = partsOfTimecode(timecode);
    if (parts.size() < 4)
        return 0;
    const quint64 hours = quint64(integerValue(parts[0]));
    const quint64 minutes = quint64(integerValue(parts[1]));
    const quint64 seconds = quint64(integerValue(parts[2]));
    const quint64 frames = quint64(integerValue(parts[3]));

    const quint64 fps = quint64(timebaseOrDefault(timebase));
    quint64 count = (seconds + minutes * 60 + hours * 3600) * fps + frames;
    if (dropFrame)
        count = subtractDroppedFrames(count, double(fps));
    return count - startFrame;
}

QString QVTimecode::elapsedTimeFromFrameCount(quint64 frames, double fps)
{
    return displayedTimecode(frames, rateOrDefault(fps), frameSeparator(false));
}

quint64 QVTimecode::frameCountFromElapsedTime(const QString &elapsedTime, double fps)
{
    fps = rateOrDefault(fps);
    const QList<QStringView> parts = partsOfTimecode(elapsedTime);
    if (parts.size() < 4)
        return 0;
    return countFromDouble(std::round(doubleValue(parts[0]) * fps * 60 * 60)) +
           countFromDouble(std::round(doubleValue(parts[1]) * fps * 60)) +
           countFromDouble(std::round(doubleValue(parts[2]) * fps)) + quint64(integerValue(parts[3]));
}

QString QVTimecode::timecodeIncrementBy(const QString &timecode, qint64 frames, qint64 timebase, bool ntsc,
                                        bool dropFrame)
{
    const quint64 count = quint64(frames) + frameCountFromTimecode(timecode, timebase, ntsc, false, 0);
    return timecodeFromFrameCount(count, timebase, ntsc, dropFrame, 0);
}

double QVTimecode::frameRateFromTimebase(qint64 timebase, bool isNTSC)
{
    if (!isNTSC)
        return double(timebase);
    if (timebase != 24 && timebase != 30 && timebase != 60)
        return 0.0;
    return double(timebase) * 1000.0 / 1001.0;
}

QString QVTimecode::timecodeFromSeconds(double seconds, float fps, bool dropFrame)
{
    const double rate = double(fps);
    const quint64 frames = countFromDouble(std::round(seconds * rate));
    const qint64 timebase = integerFromDouble(std::ceil(rate));
    const bool ntsc = std::floor(rate) != std::ceil(rate);
    return timecodeFromFrameCount(frames, timebase, ntsc, dropFrame, 0);
}

QString QVTimecode::timecodeFromUserString(const QString &text, bool dropFrame, const QString &startTimecode)
{
    if (text.size() == 11)
        return text;

    QString digits = digitsOfShorthand(text);
    if (digits.size() >= 9)
        digits = digits.last(8);
    const QString result = separatedPairs(digits, dropFrame);

    const QString start = startTimecode.isEmpty()
                              ? QStringLiteral("00:00:00") + frameSeparator(dropFrame) + QStringLiteral("00")
                              : startTimecode;
    if (result.size() >= start.size())
        return result;
    return start.first(start.size() - result.size()) + result;
}

QString QVTimecode::timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame)
{
    return timeOfDayTimecode(timebase, ntsc, dropFrame, QDateTime::currentDateTime().time());
}

QString QVTimecode::timeOfDayTimecode(qint64 timebase, bool ntsc, bool dropFrame, QTime time)
{
    const int hundredths = time.msec() / 10;
    const double rate = frameRateFromTimebase(timebase, ntsc);
    const qint64 frames = integerFromDouble(std::floor(hundredths / 100.0 * rate));

    const auto field = [](qint64 value) { return zeroPrefix(value) + QString::number(value); };
    return field(time.hour()) + QLatin1Char(':') + field(time.minute()) + QLatin1Char(':') +
           field(time.second()) + frameSeparator(dropFrame) + field(frames);
}

QString QVTimecode::addTimecode(const QString &timecode, const QString &toTimecode, qint64 timebase,
                                bool ntsc, bool dropFrame)
{
    const quint64 sum = frameCountFromTimecode(timecode, timebase, ntsc, dropFrame, 0) +
                        frameCountFromTimecode(toTimecode, timebase, ntsc, dropFrame, 0);
    return timecodeFromFrameCount(sum, timebase, ntsc, dropFrame, 0);
}

QString QVTimecode::subtractTimecode(const QString &timecode, const QString &fromTimecode, qint64 timebase,
                                     bool ntsc, bool dropFrame)
{
    const quint64 subtrahend = frameCountFromTimecode(timecode, timebase, ntsc, dropFrame, 0);
    const quint64 minuend = frameCountFromTimecode(fromTimecode, timebase, ntsc, dropFrame, 0);
    if (minuend < subtrahend)
        return QString();
    return timecodeFromFrameCount(minuend - subtrahend, timebase, ntsc, dropFrame, 0);
}

bool QVTimecode::timecodeInRange(const QString &timecode, const QString &start, const QString &end)
{
    if (timecode == start || timecode == end)
        return true;
    const auto frames = [](const QString &text) { return frameCountFromTimecode(text, 24, false, false, 0); };
    const quint64 count = frames(timecode);
    return frames(start) <= count && count <= frames(end);
}

quint64 QVTimecode::addDroppedFrames(quint64 count, double fps)
{
    const double block = std::round(60 * fps * 10);
    if (!(block >= 1))
        return count;
    const qint64 dropped = integerFromDouble(std::round(fps * 0.06666666666666667));

    // A block beyond 64 bits holds every count.
    quint64 blocks = 0;
    quint64 rest = count;
    if (block < kTwoToThe64) {
        blocks = count / quint64(block);
        rest = count % quint64(block);
    }
    const quint64 inWholeBlocks = 9 * quint64(dropped) * blocks;
    const qint64 beyondFirst = qint64(rest - quint64(dropped));
    if (beyondFirst <= 0)
        return count + inWholeBlocks;

    const double perMinute = std::round(fps) * 60 - double(dropped);
    quint64 minutes = 0;
    if (perMinute >= 1 && perMinute < kTwoToThe63)
        minutes = quint64(beyondFirst) / quint64(perMinute);
    return countFromDouble(double(count) + double(quint64(dropped) * minutes) + double(inWholeBlocks));
}

quint64 QVTimecode::subtractDroppedFrames(quint64 count, double fps)
{
    const quint64 added = addDroppedFrames(count, fps) - count;
    return addDroppedFrames(added, fps) + count - 2 * added;
}

QString QVTimecode::sanitizeTimecodeForFilename(const QString &timecode)
{
    QString text = timecode;
    text.replace(QLatin1Char(':'), QLatin1Char('.'));
    text.replace(QLatin1Char(';'), QLatin1Char('.'));
    return text;
}

QString QVTimecode::formatHours(qint64 hours, qint64 mins, qint64 secs, qint64 frames, bool dropFrame)
{
    const auto field = [](qint64 value) { return zeroPrefix(value) + QString::number(quint64(value)); };
    return field(hours) + QLatin1Char(':') + field(mins) + QLatin1Char(':') + field(secs) +
           frameSeparator(dropFrame) + field(frames);
}

} // namespace vantrell
