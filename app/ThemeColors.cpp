#include "app/ThemeColors.h"

#include <QColor>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace vantrell
{

namespace
{

constexpr double leastContrast = 2.5; // placeholders of common themes have 2.6 and more
constexpr double leastTipContrast = 4;

double luminanceOf(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor painted(const QColor &color, const QColor &ground)
{
    const auto mix = [opacity = double(color.alphaF())](double above, double below) {
        return float(above * opacity + below * (1 - opacity));
    };
    return QColor::fromRgbF(mix(color.redF(), ground.redF()), mix(color.greenF(), ground.greenF()),
                            mix(color.blueF(), ground.blueF()));
}

} // namespace

double contrastOf(const QColor &one, const QColor &other)
{
    const auto [darker, lighter] = std::minmax({luminanceOf(one), luminanceOf(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QPalette withReadableTexts(const QPalette &palette)
{
    QPalette readable = palette;
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        if (contrastOf(palette.color(group, QPalette::ToolTipText),
                       palette.color(group, QPalette::ToolTipBase)) < leastTipContrast) {
            readable.setColor(group, QPalette::ToolTipText, palette.color(group, QPalette::Text));
            readable.setColor(group, QPalette::ToolTipBase, palette.color(group, QPalette::Base));
        }
        const QColor text = palette.color(group, QPalette::PlaceholderText);
        const auto isReadable = [&](QPalette::ColorRole role) {
            const QColor ground = palette.color(group, role);
            return contrastOf(painted(text, ground), ground) >= leastContrast;
        };
        if (isReadable(QPalette::Base) && isReadable(QPalette::Window))
            continue;
        QColor secondary = palette.color(group, QPalette::Text);
        constexpr float opacity = 0.6F;
        secondary.setAlphaF(opacity);
        readable.setColor(group, QPalette::PlaceholderText, secondary);
    }
    return readable;
}

} // namespace vantrell
