#include "media/MediaChart.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>

namespace vantrell
{

namespace
{

constexpr ChartColor darkGrey{0, 0, 0.2};

constexpr std::array<ChartGradient, 2> fills{{
    {{0.336, 0.85, 0.57}, {0.306, 0.65, 0.77}}, // greens
    {{0.592, 0.85, 0.57}, {0.562, 0.65, 0.77}}, // blues
}};

constexpr ChartColor gray{0, 0, 0.5};
constexpr ChartColor brown{1.0 / 12, 2.0 / 3, 0.6};

/// Outlines of the slices behind those that are filled.
constexpr std::array<ChartColor, 9> plainColors{{
    {0, 1, 1},       // red
    {1.0 / 6, 1, 1}, // yellow
    {1.0 / 2, 1, 1}, // cyan
    {5.0 / 6, 1, 1}, // magenta
    brown,
    {0, 0, 0}, // black
    brown,
    {1.0 / 12, 1, 1},  // orange
    {5.0 / 6, 1, 0.5}, // purple
}};

} // namespace

MediaChart mediaChart(int type, const std::vector<double> &values, double width, double height)
{
    MediaChart chart;
    chart.centreX = width / 2;
    chart.centreY = height / 2;
    chart.radius = width / 2.1;
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    if (type != 0 || sum == 0 || !std::isfinite(sum))
        return chart;
    ChartColor color = darkGrey;
    double angle = 0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        ChartSlice slice;
        slice.startAngle = angle;
        slice.sweep = values[i] / sum * 360;
        slice.startsAtCentre = i == 0;
        slice.wideOutline = color;
        if (i < fills.size())
            slice.fill = fills[i];
        else
            color = i - fills.size() < plainColors.size() ? plainColors[i - fills.size()] : gray;
        slice.narrowOutline = color;
        angle += slice.sweep;
        chart.slices.push_back(slice);
    }
    return chart;
}

} // namespace vantrell
