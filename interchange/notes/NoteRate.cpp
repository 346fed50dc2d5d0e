#include "interchange/notes/NoteRate.h"

#include "support/text/TextNumbers.h"

namespace vantrell
{

namespace
{

qint64 droppedPerMinute(const NoteRate &rate)
{
    return rate.dropFrame ? (rate.timebase + 7) / 15 : 0;
}

} // namespace

NoteRate NoteRate::ofSequence(qint64 timebase, bool ntsc, bool dropFrame)
{
    if (timebase < 1)
        timebase = 30;
    return {timebase, ntsc && (timebase % 24 == 0 || timebase % 30 == 0), dropFrame};
}

QString NoteRate::name() const
{
    QString text = QString::number(timebase);
    if (ntsc && timebase == 24)
        text = QStringLiteral("23.976");
    else if (ntsc)
        text = QString::number(double(timebase) * 1000 / 1001, 'f', 2);
    return dropFrame ? text + QStringLiteral("df") : text;
}

std::optional<NoteRate> NoteRate::fromText(QStringView text)
{
    text = text.trimmed();
    qsizetype end = 0;
    while (end < text.size() && (isDigit(text[end]) || text[end] == u'.' || text[end] == u','))
        ++end;
    QString number = text.first(end).toString();
    number.replace(QLatin1Char(','), QLatin1Char('.'));
    const double value = doubleValue(number);
    if (end == 0 || value < 1 || value > 1000)
        return std::nullopt;
    const QStringView rest = text.sliced(end).trimmed();
    const bool saysDrop = (rest.contains(u"drop", Qt::CaseInsensitive) || rest == u"df" || rest == u"DF") &&
                          !rest.contains(u"non", Qt::CaseInsensitive);
    NoteRate rate;
    rate.timebase = qint64(value + 0.5);
    rate.ntsc = value < double(rate.timebase) - 0.001;
    rate.dropFrame = saysDrop && rate.timebase % 30 == 0;
    if (rate.dropFrame)
        rate.ntsc = true;
    return rate;
}

qint64 NoteRate::framesAt(qint64 seconds, qint64 frames) const
{
    const qint64 minutes = seconds / 60;
    return seconds * timebase + frames - droppedPerMinute(*this) * (minutes - minutes / 10);
}

NoteRate::Label NoteRate::labelOf(qint64 frame) const
{
    if (dropFrame) {
        // Frames: | 1800 | 1798 | 1798 | … nine of these | 1800 | …
        const qint64 dropped = droppedPerMinute(*this);
        const qint64 perMinute = 60 * timebase - dropped;
        const qint64 perTen = 10 * perMinute + dropped;
        const qint64 tens = frame / perTen;
        const qint64 rest = frame % perTen;
        const qint64 minutes = rest < 60 * timebase ? 0 : 1 + (rest - 60 * timebase) / perMinute;
        frame += dropped * (9 * tens + minutes);
    }
    return {frame / timebase, frame % timebase};
}

qint64 roundedQuotient(WideInteger dividend, WideInteger divisor)
{
    const WideInteger twice = 2 * dividend + divisor;
    WideInteger quotient = twice / (2 * divisor);
    if (twice < 0 && quotient * 2 * divisor != twice)
        --quotient;
    constexpr qint64 limit = qint64(1) << 62;
    if (quotient > limit)
        return limit;
    return quotient < -limit ? -limit : qint64(quotient);
}

} // namespace vantrell
