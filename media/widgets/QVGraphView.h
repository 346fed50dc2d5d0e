#pragma once

#include <QColor>
#include <QWidget>

#include <vector>

class QPainter;

namespace vantrell
{

struct ChartColor;

/// The pie chart of the media pane. Main thread.
class QVGraphView : public QWidget
{
    Q_OBJECT

public:
    explicit QVGraphView(QWidget *parent = nullptr);

    /// 0 for a pie; any other kind draws nothing.
    int type() const { return m_type; }
    void setType(int type) { m_type = type; }
    const std::vector<double> &values() const { return m_values; }
    void setValues(const std::vector<double> &values) { m_values = values; }
    /// Schedules a repaint.
    void refresh() { update(); }

    QSize sizeHint() const override;
    static QColor colorOf(const ChartColor &color);

    /// Draws the chart for an area of that size, which begins in the painter's origin. A slice that is
    /// narrower than a pixel has no edges, nor has a slice that only such ones are next to.
    void drawRect(QPainter &painter, const QRectF &area) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_type = 0;
    std::vector<double> m_values;
};

} // namespace vantrell
