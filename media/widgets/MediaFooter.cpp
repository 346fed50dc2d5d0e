#include "media/widgets/MediaFooter.h"

#include "media/MediaChart.h"
#include "media/MediaFile.h"
#include "media/widgets/QVGraphView.h"
#include "support/widgets/ShownText.h"

#include <QGridLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace vantrell
{

namespace
{

constexpr int widthInOneLine = 205; // characters of average width

/// A square in a colour of the chart.
class Swatch final : public QWidget
{
public:
    Swatch(const ChartColor &color, QWidget *parent)
        : QWidget(parent)
        , m_color(QVGraphView::colorOf(color))
    {
        const int side = fontMetrics().height() / 2;
        setFixedSize(side, side);
    }

protected:
    void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), m_color); }

private:
    QColor m_color;
};

} // namespace

MediaFooter::MediaFooter(const std::vector<QLabel *> &labels, QWidget *parent)
    : QWidget(parent)
    , m_labels(labels)
    , m_layout(new QGridLayout(this))
    , m_totals(new QWidget(this))
    , m_totalsLayout(new QGridLayout(m_totals))
    , m_bars(new QWidget(this))
    , m_chart(new QVGraphView(this))
    , m_legend(new QWidget(this))
    , m_media(new QLabel(m_legend))
    , m_free(new QLabel(m_legend))
    , m_kinds(new SharesBar(tr("By kind:"), m_bars))
    , m_drives(new SharesBar(tr("By drive:"), m_bars))
{
    const int space = fontMetrics().averageCharWidth() * 2;
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setHorizontalSpacing(space);
    m_totalsLayout->setContentsMargins(0, 0, 0, 0);
    m_totalsLayout->setHorizontalSpacing(space);
    m_kinds->setAccessibleName(tr("Shares of the media on show by kind"));
    m_drives->setAccessibleName(tr("Shares of the media on show by drive"));
    m_chart->setAccessibleName(tr("Chart of the media on show and the free space of the start-up volume"));

    auto *const bars = new QVBoxLayout(m_bars);
    bars->setContentsMargins(0, 0, 0, 0);
    bars->addStretch();
    bars->addWidget(m_kinds);
    bars->addWidget(m_drives);
    bars->addStretch();

    auto *const legend = new QGridLayout(m_legend);
    legend->setContentsMargins(0, 0, 0, 0);
    legend->setVerticalSpacing(0);
    legend->setRowStretch(0, 1);
    legend->setRowStretch(5, 1);
    const MediaChart colors = mediaChart(0, {1, 1}, 1, 1);
    const QStringList titles{tr("Media on show"), tr("Free on System Drive")};
    for (int i = 0; i < 2; ++i) {
        auto *const title = new QLabel(titles[i], m_legend);
        title->setForegroundRole(QPalette::PlaceholderText);
        legend->addWidget(new Swatch(colors.slices[std::size_t(i)].fill->to, m_legend), 1 + 2 * i, 0);
        legend->addWidget(title, 1 + 2 * i, 1);
        legend->addWidget(i == 0 ? m_media : m_free, 2 + 2 * i, 1);
    }
    place();
}

void MediaFooter::setChart(const std::vector<double> &values)
{
    m_chart->setValues(values);
    m_chart->refresh();
    if (values.size() != 2)
        return;
    const QString media = shownSize(MediaFile::formatFileSize(values[0]));
    const QString free = shownSize(MediaFile::formatFileSize(values[1]));
    m_media->setText(media);
    m_free->setText(free);
    const QString text =
        tr("Media on show: %1 (green)\nFree on the start-up volume: %2 (blue)").arg(media, free);
    m_chart->setToolTip(text);
    m_chart->setAccessibleDescription(text);
    m_legend->setToolTip(text);
}

void MediaFooter::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const bool isWide = width() >= fontMetrics().averageCharWidth() * widthInOneLine;
    if (isWide == m_isWide)
        return;
    m_isWide = isWide;
    place();
}

void MediaFooter::place()
{
    // Three columns of totals above the rest, or two at its left.
    const int lines = m_isWide ? 3 : 2;
    const int columns = int(m_labels.size()) / lines;
    for (int i = 0; i < int(m_labels.size()); ++i) {
        if (m_isWide)
            m_totalsLayout->addWidget(m_labels[std::size_t(i)], i / 2, i % 2);
        else
            m_totalsLayout->addWidget(m_labels[std::size_t(i)], i % lines, i / lines);
    }
    for (int column = 0; column < 3; ++column)
        m_totalsLayout->setColumnStretch(column, column < columns ? 1 : 0);
    const int line = m_isWide ? 0 : 1;
    const int first = m_isWide ? 1 : 0;
    m_layout->addWidget(m_totals, 0, 0, 1, m_isWide ? 1 : 3, Qt::AlignVCenter);
    m_layout->addWidget(m_bars, line, first);
    m_layout->addWidget(m_chart, line, first + 1, Qt::AlignVCenter);
    m_layout->addWidget(m_legend, line, first + 2);
    m_layout->setColumnStretch(0, 1);
    m_layout->setColumnStretch(1, m_isWide ? 1 : 0);
}

} // namespace vantrell
