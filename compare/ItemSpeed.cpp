#include "compare/ItemSpeed.h"

#include "support/text/TextNumbers.h"

#include <QString>

#include <cmath>
#include <vector>

namespace vantrell
{

namespace
{

QString childText(XmlNode element, std::string_view name)
{
    return element.childElement(name).stringValue().trimmed();
}

bool isTrue(const QString &text)
{
    return text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1");
}

Ratio decimal(const QString &text)
{
    constexpr double precision = 1e6;
    const double value = doubleValue(text);
    return std::abs(value) < 1e9 ? Ratio(std::llround(value * precision), std::int64_t(precision)) : Ratio();
}

/// The line through all keyframes of the graph; nothing when it has less than two, or they lie on none.
/// `isCurve` then tells which.
std::optional<ItemSpeed::Line> lineOf(XmlNode graph, bool &isCurve)
{
    struct Point {
        Ratio when;
        Ratio value;
    };
    std::vector<Point> points;
    for (XmlNode child = graph.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (child.isElement("keyframe"))
            points.push_back({decimal(childText(child, "when")), decimal(childText(child, "value"))});
    }
    if (points.size() < 2 || points.front().when == points.back().when)
        return std::nullopt;
    const Ratio slope =
        (points.back().value - points.front().value) / (points.back().when - points.front().when);
    const ItemSpeed::Line line = {points.front().value - slope * points.front().when, slope};
    for (const Point &point : points) {
        const Ratio off = (line.origin + line.slope * point.when - point.value).absolute();
        isCurve = isCurve || Ratio(1) < off;
    }
    return isCurve ? std::nullopt : std::optional(line);
}

/// Whether as many clip frames fit over that many frames of the sequence.
bool fits(std::int64_t clipFrames, std::int64_t frames, Ratio step)
{
    return (Ratio(clipFrames) - step * Ratio(frames)).absolute() < Ratio(1);
}

bool nearlyOne(Ratio ratio)
{
    return (ratio - Ratio(1)).absolute() < Ratio(1, 100);
}

} // namespace

bool ItemSpeed::isTimeRemap(XmlNode filter)
{
    const XmlNode effect = filter.childElement("effect");
    return childText(effect, "effectid").compare(QLatin1String("timeremap"), Qt::CaseInsensitive) == 0 ||
           childText(effect, "name").compare(QLatin1String("Time Remap"), Qt::CaseInsensitive) == 0;
}

ItemSpeed ItemSpeed::of(XmlNode clip)
{
    ItemSpeed found;
    for (XmlNode filter = clip.firstChildElement(); filter; filter = filter.nextSiblingElement()) {
        if (!filter.isElement("filter") || !isTimeRemap(filter) ||
            childText(filter, "enabled").compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
            continue;
        bool isCurve = false;
        std::optional<bool> isVariable;
        const XmlNode effect = filter.childElement("effect");
        for (XmlNode child = effect.firstChildElement(); child; child = child.nextSiblingElement()) {
            if (!child.isElement("parameter"))
                continue;
            const QString id = childText(child, "parameterid").toLower();
            const QString value = childText(child, "value");
            if (id == QLatin1String("speed")) {
                const Ratio speed = decimal(value) / Ratio(100);
                found.speed = speed.absolute();
                found.isReversed = found.isReversed || speed < Ratio(0);
            } else if (id == QLatin1String("reverse")) {
                found.isReversed = found.isReversed || isTrue(value);
            } else if (id == QLatin1String("variablespeed")) {
                isVariable = isTrue(value);
            } else if (id == QLatin1String("graphdict")) {
                found.line = lineOf(child, isCurve);
            }
        }
        found.isVariable = isVariable.value_or(isCurve);
        if (found.isVariable || !found.line || found.line->slope.isZero() ||
            (found.line->slope < Ratio(0)) != found.isReversed)
            found.line.reset();
        return found;
    }
    return found;
}

Ratio rateOf(XmlNode element)
{
    const XmlNode rate = element.childElement("rate");
    const std::int64_t timebase = integerValue(childText(rate, "timebase"));
    if (timebase <= 0 || timebase > 1'000'000)
        return Ratio(0);
    return isTrue(childText(rate, "ntsc")) ? Ratio(timebase * 1000, 1001) : Ratio(timebase);
}

SourceMapping mappingOf(XmlNode clip, const ItemRange &range, Ratio sequenceRate)
{
    const ItemSpeed speed = ItemSpeed::of(clip);
    const std::int64_t length = range.end - range.start;
    SourceMapping mapping;
    mapping.rate = rateOf(clip);
    if (mapping.rate.isZero())
        mapping.rate = sequenceRate;
    Ratio perFrame = sequenceRate.isZero() ? Ratio(1) : mapping.rate / sequenceRate;
    const std::int64_t distance =
        range.out ? *range.out - range.in : (perFrame * Ratio(length)).floor(); // no out point: it fits
    // In and out points may count frames of the sequence although the clip has a rate of its own.
    const bool isAsLong = fits(distance, length, perFrame);
    if (distance == length && (nearlyOne(perFrame) || !isAsLong))
        perFrame = Ratio(1);
    const bool countsEventFrames = speed.isVariable || isAsLong || distance == length;

    mapping.speed = speed.speed;
    mapping.isReversed = speed.isReversed;
    mapping.isVariable = speed.isVariable;
    mapping.markOrigin = range.in;
    mapping.markStep = perFrame;
    if (speed.isPlain() || speed.isVariable) {
        mapping.step = perFrame;
        mapping.origin = Ratio(range.in);
        mapping.isReversed = false;
        return mapping;
    }
    const bool hasOwnFrames = countsEventFrames && (speed.speed != Ratio(1) || speed.line);
    mapping.marksAreSource = !hasOwnFrames;
    mapping.step = perFrame * speed.speed;
    if (!hasOwnFrames) {
        if (speed.speed != Ratio(1) && fits(distance, length, speed.speed) &&
            !fits(distance, length, mapping.step))
            mapping.step = speed.speed;
        const std::int64_t end = range.out.value_or(range.in + (mapping.step * Ratio(length)).ceil());
        mapping.origin = speed.isReversed ? Ratio(end - 1) : Ratio(range.in);
        return mapping;
    }
    if (speed.line) {
        const Ratio at = speed.line->origin + speed.line->slope * Ratio(range.in);
        mapping.step = perFrame * speed.line->slope.absolute();
        mapping.origin = speed.isReversed ? Ratio(at.ceil() - 1) : at;
        return mapping;
    }
    mapping.origin = speed.isReversed ? Ratio((Ratio(range.in + distance) * speed.speed).ceil() - 1)
                                      : Ratio(range.in) * speed.speed;
    return mapping;
}

} // namespace vantrell
