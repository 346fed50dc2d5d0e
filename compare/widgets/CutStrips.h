#pragma once

#include "compare/widgets/ChangeTableModel.h"
#include "compare/widgets/CutStrip.h"
#include "support/widgets/StripMouse.h"

#include <QAbstractScrollArea>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class QPainter;

namespace vantrell
{

/// Both cuts as strips of bars along their timecode, the old one above the new one, with lines between the
/// events that are in both. The wheel zooms around the mouse, dragging pans, a click chooses an event. Draws
/// what is visible, and events narrower than a pixel as one. Main thread.
class CutStrips final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    explicit CutStrips(QWidget *parent);

    /// Null for none. Shows the whole of both cuts, unless `keepsView`.
    void setComparison(std::shared_ptr<const CutComparison> comparison, bool keepsView);
    /// Events of other kinds are drawn like background.
    void setKinds(ChangeTableModel::Kinds kinds);
    /// Marks the change and scrolls to its bars, further away when they do not fit otherwise.
    void showChange(std::size_t change);
    /// The same with frames of the old and the new cut, where a marker is.
    void showFrames(std::int64_t oldFrame, std::optional<std::int64_t> newFrame);
    /// The markers' destinations have changed.
    void updateMarkers();

    /// Where the bar of the change is drawn in the viewport; empty without one.
    QRect barOf(std::size_t change, CutStrip::Which which) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showAll();

Q_SIGNALS:
    /// The user has clicked on an event.
    void changeChosen(std::size_t change);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;

private:
    using Which = CutStrip::Which;

    /// What is drawn over the same pixel.
    struct Column {
        int x = -1;
        std::optional<EventChange::Kind> kind;
    };

    const CutStrip &strip(Which which) const { return m_strips[std::size_t(which)]; }
    double x(double seconds) const;
    double x(Which which, double frame) const;
    double frameAt(Which which, double x) const;
    int laneHeight() const;
    int stripTop(Which which) const;
    int stripBottom(Which which) const;
    int contentHeight() const;
    int visibleWidth() const;
    double longest() const;
    void zoom(double factor, double around);
    void updateGutter();
    void updateScrollBars();
    void showRange(double from, double to);

    bool isWanted(const EventChange &change) const { return m_kinds.test(std::size_t(change.kind)); }
    void paintRuler(QPainter &painter, Which which) const;
    void paintStrip(QPainter &painter, Which which) const;
    void paintLane(QPainter &painter, Which which, const CutStrip::Lane &lane, int top) const;
    void paintBar(QPainter &painter, const QRect &bar, const TrackEvent &event,
                  const EventChange &change) const;
    void paintColumn(QPainter &painter, Column &column, int top) const;
    void paintLines(QPainter &painter) const;
    void paintChosen(QPainter &painter) const;
    void paintMarkers(QPainter &painter) const;
    std::optional<std::size_t> changeAt(const QPoint &point) const;

    std::shared_ptr<const CutComparison> m_comparison;
    std::array<CutStrip, 2> m_strips; // by Which
    ChangeTableModel::Kinds m_kinds;
    int m_gutter = 0;   // pixels beside the bars, for the names of the tracks
    double m_scale = 1; // pixels for a second
    bool m_showsAll = true;
    std::optional<std::size_t> m_chosen;
    std::array<std::optional<std::int64_t>, 2> m_chosenFrames; // by Which
    StripMouse m_mouse;
};

} // namespace vantrell
