#include "media/widgets/QVGraphView.h"

#include "media/MediaChart.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrell
{

namespace
{

QPainterPath pathOf(const ChartSlice &slice, const QPointF &centre, double radius)
{
    const QRectF circle(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius);
    QPainterPath path;
    if (slice.startsAtCentre)
        path.moveTo(centre);
    else
        path.arcMoveTo(circle, slice.startAngle);
    path.arcTo(circle, slice.startAngle, slice.sweep);
    path.lineTo(centre);
    return path;
}

/// Upwards to the right through the whole of the bounds: from where a line across the direction first
/// touches them to where it leaves them.
QLinearGradient gradientAt45Degrees(const QRectF &bounds)
{
    const double half = (bounds.width() + bounds.height()) / 4;
    const QPointF reach(half, -half);
    return QLinearGradient(bounds.center() - reach, bounds.center() + reach);
}

} // namespace

QColor QVGraphView::colorOf(const ChartColor &color)
{
    return QColor::fromHsvF(float(color.hue), float(color.saturation), float(color.brightness),
                            float(color.alpha));
}

QVGraphView::QVGraphView(QWidget *parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize QVGraphView::sizeHint() const
{
    const int side = fontMetrics().height() * 5;
    return QSize(side, side);
}

void QVGraphView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawRect(painter, rect());
}

void QVGraphView::drawRect(QPainter &painter, const QRectF &area) const
{
    const MediaChart chart = mediaChart(m_type, m_values, area.width(), area.height());
    if (chart.slices.empty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre(chart.centreX, area.height() - chart.centreY);
    const double pixel = 1 / painter.device()->devicePixelRatioF();
    const auto isSeen = [&](const ChartSlice &slice) {
        return std::abs(slice.sweep) * std::numbers::pi / 180 * chart.radius >= pixel;
    };
    const bool isAlone = std::count_if(chart.slices.begin(), chart.slices.end(), isSeen) == 1;
    for (const ChartSlice &slice : chart.slices) {
        if (!isSeen(slice))
            continue;
        QPainterPath path;
        if (isAlone)
            path.addEllipse(centre, chart.radius, chart.radius);
        else
            path = pathOf(slice, centre, chart.radius);
        painter.strokePath(path, QPen(colorOf(slice.wideOutline), MediaChart::wideLine));
        if (slice.fill) {
            QLinearGradient gradient = gradientAt45Degrees(path.boundingRect());
            gradient.setColorAt(0, colorOf(slice.fill->from));
            gradient.setColorAt(1, colorOf(slice.fill->to));
            painter.fillPath(path, gradient);
        }
        painter.strokePath(path, QPen(colorOf(slice.narrowOutline), MediaChart::narrowLine));
    }
}

} // namespace vantrell
