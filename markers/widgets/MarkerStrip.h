#pragma once

#include "markers/MarkerOverview.h"
#include "markers/SequenceClips.h"
#include "support/widgets/StripMouse.h"

#include <QPoint>
#include <QWidget>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace vantrell
{

/// A sequence along its timecode: a ruler, its markers in their colours with their durations as bars, those
/// that the table does not show faint, and its clips. The wheel zooms about the pointer, with Shift it
/// scrolls, as does dragging; a double click and Escape show all of it. A click chooses a marker and leaves
/// the keyboard focus where it is. Main thread.
class MarkerStrip final : public QWidget
{
    Q_OBJECT

public:
    explicit MarkerStrip(QWidget *parent);

    /// The sequence may be null and lives until it is replaced. The part that shows stays if `keepsView`.
    void setSequence(const OverviewSequence *sequence, std::shared_ptr<const SequenceClips> clips,
                     bool keepsView);
    /// Other markers of the sequence are selected.
    void updateSelection();
    /// Scrolls to the marker unless it is in view.
    void reveal(std::size_t marker);

    /// Null for none.
    const OverviewSequence *sequence() const { return m_sequence; }
    bool showsAll() const { return m_showsAll; }
    double pixelsPerFrame() const { return m_scale; }
    /// Of the widget.
    QPoint placeOf(std::size_t marker) const;
    /// The frame at a place of the widget.
    double frameAt(double x) const { return view().frameAt(x); }
    /// What the tool tip says there, as plain text; null for nothing.
    QString textAt(const QPoint &point) const;
    QString timecode(std::int64_t frame) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

public Q_SLOTS:
    void zoomIn();
    void zoomOut();
    void showAll();

Q_SIGNALS:
    /// The user wants the marker selected; or, if it `toggles`, added to the selection or taken from it.
    void markerChosen(std::size_t marker, bool toggles);
    /// Escape was pressed with all of the sequence in view.
    void left();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    /// Where the parts are, in pixels from the top.
    struct Places {
        int heads;
        int bars;
        int clips;
        int bottom; ///< of the clips
        int height;
    };

    Places places() const;
    QFont smallFont() const;
    OverviewView view() const;
    const std::vector<OverviewColumn> &columns() const;
    int room() const;
    void updateView();
    void zoom(double factor, double around);
    void scrollBy(double pixels);
    std::vector<std::size_t> markersAt(double x) const;
    const SequenceClips::Clip *clipAt(double frame) const;
    void choose(const QPoint &point, bool toggles);
    void chooseNext(int direction);

    void paintRuler(QPainter &painter) const;
    void paintClips(QPainter &painter) const;
    void paintBars(QPainter &painter) const;
    void paintHeads(QPainter &painter) const;
    void paintHead(QPainter &painter, const OverviewMarker &marker, const QRect &place) const;
    void paintPosition(QPainter &painter) const;

    const OverviewSequence *m_sequence = nullptr;
    std::shared_ptr<const SequenceClips> m_clips;
    std::int64_t m_end = 1; ///< of the range, in frames
    bool m_showsAll = true;
    double m_scale = 1;                                           ///< pixels per frame
    double m_first = 0;                                           ///< frame at the left end
    mutable std::optional<std::vector<OverviewColumn>> m_columns; ///< made when they are drawn

    StripMouse m_mouse;
    std::optional<QPoint> m_clicked; ///< where the last click chose a marker
};

} // namespace vantrell
