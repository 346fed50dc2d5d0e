#pragma once

#include "media/widgets/SharesBar.h"

#include <QLabel>
#include <QWidget>

#include <vector>

class QGridLayout;

namespace vantrell
{

class QVGraphView;

/// What the media files on show come to: their totals, the chart with its legend, and bars of the shares by
/// kind and by drive. In a narrow window the totals stand above the rest. Main thread.
class MediaFooter : public QWidget
{
    Q_OBJECT

public:
    /// The labels become the footer's: from the left, the upper one of each column first.
    MediaFooter(const std::vector<QLabel *> &labels, QWidget *parent);

    /// Bytes of the media on show and free bytes of the start-up volume.
    void setChart(const std::vector<double> &values);
    SharesBar &kinds() const { return *m_kinds; }
    SharesBar &drives() const { return *m_drives; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();

    std::vector<QLabel *> m_labels;
    QGridLayout *m_layout;
    QWidget *m_totals;
    QGridLayout *m_totalsLayout;
    QWidget *m_bars;
    QVGraphView *m_chart;
    QWidget *m_legend;
    QLabel *m_media;
    QLabel *m_free;
    SharesBar *m_kinds;
    SharesBar *m_drives;
    bool m_isWide = false;
};

} // namespace vantrell
