#include "media/SourceRange.h"

#include "support/text/TextNumbers.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace vantrell
{

namespace
{

constexpr double largest = 9e15; // what a double holds to the frame

bool isTrue(const QString &text)
{
    return text.compare(QStringLiteral("TRUE"), Qt::CaseInsensitive) == 0;
}

std::int64_t roundedDown(double frames)
{
    return std::isnan(frames) ? 0 : std::int64_t(std::floor(std::clamp(frames, -largest, largest) + 1e-6));
}

std::int64_t roundedUp(double frames)
{
    return std::isnan(frames) ? 0 : std::int64_t(std::ceil(std::clamp(frames, -largest, largest) - 1e-6));
}

/// A change of speed: from the frames of the clip item to those of its source.
struct Retiming {
    struct Key {
        double when = 0;
        double value = 0;
    };
    std::vector<Key> keys;
    double factor = 1;
    bool reverse = false;
};

std::vector<Retiming::Key> keysOf(XmlNode graph)
{
    std::vector<Retiming::Key> keys;
    for (XmlNode child = graph.firstChildElement(); child; child = child.nextSiblingElement()) {
        if (child.hasName("keyframe"))
            keys.push_back({doubleValue(child.childElement("when").stringValue()),
                            doubleValue(child.childElement("value").stringValue())});
    }
    std::stable_sort(keys.begin(), keys.end(),
                     [](const Retiming::Key &a, const Retiming::Key &b) { return a.when < b.when; });
    return keys;
}

/// The clip item's change of speed; nothing without one.
std::optional<Retiming> retimingOf(XmlNode clipItem)
{
    for (XmlNode filter = clipItem.firstChildElement(); filter; filter = filter.nextSiblingElement()) {
        if (!filter.hasName("filter") || filter.childElement("enabled").stringValue().compare(
                                             QStringLiteral("FALSE"), Qt::CaseInsensitive) == 0)
            continue;
        const XmlNode effect = filter.childElement("effect");
        if (effect.childElement("effectid").stringValue() != QStringLiteral("timeremap"))
            continue;
        Retiming retiming;
        XmlNode parameter = effect.firstChildElement();
        for (; parameter; parameter = parameter.nextSiblingElement()) {
            const QString id = parameter.childElement("parameterid").stringValue();
            const QString value = parameter.childElement("value").stringValue();
            if (id == QStringLiteral("speed"))
                retiming.factor = doubleValue(value) / 100;
            else if (id == QStringLiteral("reverse"))
                retiming.reverse = isTrue(value);
            else if (id == QStringLiteral("graphdict"))
                retiming.keys = keysOf(parameter);
        }
        return retiming;
    }
    return std::nullopt;
}

/// The source frame at a frame of the clip item; beyond the keys the speed of the last two holds.
double valueAt(const std::vector<Retiming::Key> &keys, double when)
{
    std::size_t next = 1;
    while (next + 1 < keys.size() && keys[next].when < when)
        ++next;
    const Retiming::Key &a = keys[next - 1];
    const Retiming::Key &b = keys[next];
    return b.when > a.when ? a.value + (when - a.when) * (b.value - a.value) / (b.when - a.when) : a.value;
}

struct Span {
    double in = 0;
    double out = 0;
};

Span retimed(const Span &clip, const Retiming &retiming, std::optional<double> sourceLength)
{
    if (retiming.keys.size() >= 2) {
        const double first = valueAt(retiming.keys, clip.in);
        const double last = valueAt(retiming.keys, clip.out);
        Span source{std::min(first, last), std::max(first, last)};
        for (const Retiming::Key &key : retiming.keys) {
            if (key.when > clip.in && key.when < clip.out) {
                source.in = std::min(source.in, key.value);
                source.out = std::max(source.out, key.value);
            }
        }
        return source;
    }
    const double factor = std::abs(retiming.factor);
    if (factor == 0 || !std::isfinite(factor))
        return clip;
    const Span source{clip.in * factor, clip.out * factor};
    if ((retiming.reverse || retiming.factor < 0) && sourceLength)
        return {*sourceLength - source.out, *sourceLength - source.in};
    return source;
}

} // namespace

std::optional<FrameRate> FrameRate::ofElement(XmlNode element)
{
    const XmlNode rate = element.childElement("rate");
    const FrameRate found{integerValue(rate.childElement("timebase").stringValue()),
                          isTrue(rate.childElement("ntsc").stringValue())};
    return found.timebase > 0 && found.timebase < 1'000'000 ? std::optional(found) : std::nullopt;
}

std::optional<std::int64_t> statedDuration(XmlNode element)
{
    const QString text = element.childElement("duration").stringValue().trimmed();
    return !text.isEmpty() && isDigit(text[0]) ? std::optional<std::int64_t>(integerValue(text))
                                               : std::nullopt;
}

FrameRange sourceRangeOf(XmlNode clipItem, const std::optional<FrameRate> &fileRate,
                         const std::optional<std::int64_t> &length)
{
    const std::optional<FrameRate> ownRate = FrameRate::ofElement(clipItem);
    double scale = 1; // from frames of the clip item to those of the file
    if (ownRate && fileRate && !(*ownRate == *fileRate)) {
        scale = double(fileRate->timebase * (fileRate->ntsc ? 1000 : 1001)) /
                double(ownRate->timebase * (ownRate->ntsc ? 1000 : 1001));
    }
    const auto point = [clipItem](const char *name) {
        const QString text = clipItem.childElement(name).stringValue().trimmed();
        const double frames = doubleValue(text);
        return text.isEmpty() || frames < 0 ? std::nullopt : std::optional(frames);
    };
    Span span{point("in").value_or(0), 0};
    if (const auto out = point("out"))
        span.out = *out;
    else if (const auto duration = statedDuration(clipItem))
        span.out = double(*duration);
    else if (length)
        span.out = double(*length) / scale;
    if (const std::optional<Retiming> retiming = retimingOf(clipItem))
        span = retimed(span, *retiming, length ? std::optional(double(*length) / scale) : std::nullopt);
    return {std::max<std::int64_t>(0, roundedDown(span.in * scale)), roundedUp(span.out * scale)};
}

} // namespace vantrell
