#include "markers/MarkerColors.h"

#include "support/text/TextNumbers.h"
#include "xml/XmlEdit.h"

namespace vantrell::MarkerColors
{

namespace
{

constexpr std::array<const char *, 4> channels = {"alpha", "red", "green", "blue"};
using Channels = std::array<std::int64_t, channels.size()>;

Channels channelsOf(const MarkerColor &color)
{
    return {0, color.red, color.green, color.blue};
}

/// The index of the element's name among the channels; their number for another element or node.
std::size_t channelOf(XmlNode node)
{
    std::size_t channel = 0;
    while (channel < channels.size() && !node.isElement(channels[channel]))
        ++channel;
    return channel;
}

} // namespace

const std::array<MarkerColor, count> &table()
{
    static const std::array<MarkerColor, count> colors = {{
        {QStringLiteral("red"), QStringLiteral("Red"), 255, 0, 0},
        {QStringLiteral("orange"), QStringLiteral("Orange"), 255, 127, 0},
        {QStringLiteral("yellow"), QStringLiteral("Yellow"), 255, 255, 0},
        {QStringLiteral("green"), QStringLiteral("Green"), 48, 191, 72},
        {QStringLiteral("turquoise"), QStringLiteral("Turquoise"), 48, 191, 191},
        {QStringLiteral("blue"), QStringLiteral("Blue"), 0, 128, 255},
        {QStringLiteral("purple"), QStringLiteral("Purple"), 127, 0, 255},
        {QStringLiteral("pink"), QStringLiteral("Pink"), 255, 0, 127},
    }};
    return colors;
}

int indexOfElement(XmlNode color)
{
    Channels values = {0, 255, 0, 0};
    for (XmlNode child = color.firstChildElement(); child; child = child.nextSiblingElement()) {
        const std::size_t channel = channelOf(child);
        if (channel < channels.size())
            values[channel] = integerValue(child.stringValue());
    }
    for (std::size_t i = 1; i < count; ++i) {
        if (values == channelsOf(table()[i]))
            return int(i);
    }
    return 0;
}

void setXMLMarkerColorIndex(std::int64_t index, XmlNode color)
{
    const bool known = index >= 1 && index < std::int64_t(count);
    const Channels values = channelsOf(table()[known ? std::size_t(index) : 0]);
    std::array<bool, channels.size()> present = {};
    for (XmlNode child = color.firstChildElement(); child; child = child.nextSiblingElement()) {
        const std::size_t channel = channelOf(child);
        if (channel == channels.size())
            continue;
        XmlEdit::setText(child, QString::number(values[channel]));
        present[channel] = true;
    }
    for (std::size_t channel = 0; channel < channels.size(); ++channel) {
        if (!present[channel])
            XmlEdit::appendElement(color, QLatin1String(channels[channel]), QString::number(values[channel]));
    }
}

std::optional<int> find(const QString &name)
{
    const QString lower = name.toLower();
    for (std::size_t i = 0; i < count; ++i) {
        if (lower == table()[i].name)
            return int(i);
    }
    return std::nullopt;
}

int indexOfName(const QString &name)
{
    return find(name).value_or(0);
}

} // namespace vantrell::MarkerColors
