#pragma once

#include <optional>
#include <vector>

namespace vantrell
{

/// A colour by hue, saturation, brightness and opacity, each from 0 to 1.
struct ChartColor {
    double hue = 0;
    double saturation = 0;
    double brightness = 0;
    double alpha = 1;

    friend bool operator==(const ChartColor &, const ChartColor &) = default;
};

/// A linear gradient at 45 degrees, from the lower left to the upper right.
struct ChartGradient {
    ChartColor from;
    ChartColor to;

    friend bool operator==(const ChartGradient &, const ChartGradient &) = default;
};

/// One slice: an arc about the chart's centre and a line from its end back to the centre. Angles are
/// degrees, counter-clockwise from three o'clock. It is outlined twice, wide before it is filled and
/// narrow after.
struct ChartSlice {
    double startAngle = 0;
    double sweep = 0;
    /// Whether the outline begins with a line from the centre; without it, it begins at the arc.
    bool startsAtCentre = false;
    ChartColor wideOutline;
    /// Absent for a slice that shows as its outline alone.
    std::optional<ChartGradient> fill;
    ChartColor narrowOutline;
};

/// The media pie chart as it is drawn: slice by slice, in order. Lengths are in the units of the area,
/// with the origin at the lower left.
struct MediaChart {
    static constexpr double wideLine = 2;
    static constexpr double narrowLine = 1;

    double centreX = 0;
    double centreY = 0;
    double radius = 0;
    std::vector<ChartSlice> slices; ///< empty: nothing is drawn
};

/// The chart of the values in an area of that size. Only type 0, a pie, draws anything, and only when the
/// values do not sum up to 0.
MediaChart mediaChart(int type, const std::vector<double> &values, double width, double height);

} // namespace vantrell
