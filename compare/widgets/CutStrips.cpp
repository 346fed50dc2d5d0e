#include "compare/widgets/CutStrips.h"

#include "compare/widgets/ChangeColors.h"
#include "timecode/TimecodeRuler.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace vantrell
{

namespace
{

constexpr int rulerHeight = 28;
constexpr int laneGap = 2;
constexpr int leastLane = 5;
constexpr int mostLane = 22;
constexpr int leastBetween = 34; // for the lines
constexpr int lettered = 12;     // height of a lane whose bars show names
constexpr int grabbed = 4;       // pixels beside a narrow bar that still count as it
constexpr double mostPixelsPerFrame = 24;
constexpr double zoomStep = 1.25;

} // namespace

CutStrips::CutStrips(QWidget *parent)
    : QAbstractScrollArea(parent)
{
    updateGutter();
    setAccessibleName(tr("Old and new cut"));
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    viewport()->setBackgroundRole(QPalette::Base);
    viewport()->setAutoFillBackground(true);
    viewport()->setCursor(Qt::OpenHandCursor);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, viewport(), qOverload<>(&QWidget::update));
}

QSize CutStrips::sizeHint() const
{
    return {800, 2 * rulerHeight + 8 * (14 + laneGap) + 90};
}

QSize CutStrips::minimumSizeHint() const
{
    return {300, 2 * rulerHeight + 4 * (leastLane + laneGap) + leastBetween + 20};
}

void CutStrips::setComparison(std::shared_ptr<const CutComparison> comparison, bool keepsView)
{
    m_strips = {};
    m_comparison = std::move(comparison);
    if (m_comparison)
        m_strips = {CutStrip(*m_comparison, Which::Old), CutStrip(*m_comparison, Which::New)};
    m_chosen.reset();
    m_chosenFrames = {};
    if (keepsView)
        updateScrollBars();
    else
        showAll();
}

void CutStrips::setKinds(ChangeTableModel::Kinds kinds)
{
    m_kinds = kinds;
    viewport()->update();
}

void CutStrips::updateMarkers()
{
    viewport()->update();
}

double CutStrips::longest() const
{
    return m_comparison ? std::max({strip(Which::Old).seconds(), strip(Which::New).seconds(), 0.1}) : 1;
}

int CutStrips::visibleWidth() const
{
    return std::max(viewport()->width() - m_gutter, 1);
}

/// Measured once: places are computed for every event.
void CutStrips::updateGutter()
{
    m_gutter = 2 * fontMetrics().horizontalAdvance(QStringLiteral("A88"));
}

void CutStrips::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGutter();
        updateScrollBars();
    }
    QAbstractScrollArea::changeEvent(event);
}

double CutStrips::x(double seconds) const
{
    const int origin = m_gutter * 3 / 4;
    return origin + seconds * m_scale - horizontalScrollBar()->value();
}

double CutStrips::x(Which which, double frame) const
{
    return x(frame / strip(which).framesPerSecond());
}

double CutStrips::frameAt(Which which, double at) const
{
    return (at - x(0)) / m_scale * strip(which).framesPerSecond();
}

/// As high as lets both strips and the lines fit, within limits.
int CutStrips::laneHeight() const
{
    const auto lanes = int(strip(Which::Old).lanes().size() + strip(Which::New).lanes().size());
    const int room = viewport()->height() - 2 * rulerHeight - leastBetween - lanes * laneGap;
    return std::clamp(lanes > 0 ? room / lanes : mostLane, leastLane, mostLane);
}

int CutStrips::contentHeight() const
{
    const auto lanes = int(strip(Which::Old).lanes().size() + strip(Which::New).lanes().size());
    return 2 * rulerHeight + leastBetween + lanes * (laneHeight() + laneGap);
}

int CutStrips::stripTop(Which which) const
{
    const int top = -verticalScrollBar()->value();
    if (which == Which::Old)
        return top + rulerHeight;
    const int bottom = top + std::max(contentHeight(), viewport()->height());
    return bottom - rulerHeight - int(strip(which).lanes().size()) * (laneHeight() + laneGap);
}

int CutStrips::stripBottom(Which which) const
{
    return stripTop(which) + int(strip(which).lanes().size()) * (laneHeight() + laneGap);
}

void CutStrips::updateScrollBars()
{
    if (m_showsAll)
        m_scale = visibleWidth() / longest();
    const double width = longest() * m_scale;
    horizontalScrollBar()->setRange(0, std::max(int(std::ceil(width)) - visibleWidth(), 0));
    horizontalScrollBar()->setPageStep(visibleWidth());
    horizontalScrollBar()->setSingleStep(40);
    verticalScrollBar()->setRange(0, std::max(contentHeight() - viewport()->height(), 0));
    verticalScrollBar()->setPageStep(viewport()->height());
    viewport()->update();
}

void CutStrips::zoom(double factor, double around)
{
    if (!m_comparison)
        return;
    const double least = visibleWidth() / longest();
    const double most = std::max(mostPixelsPerFrame * std::max(strip(Which::Old).framesPerSecond(),
                                                               strip(Which::New).framesPerSecond()),
                                 least);
    const double seconds = (around - x(0)) / m_scale;
    const double scale = std::clamp(m_scale * factor, least, most);
    m_showsAll = scale <= least;
    m_scale = scale;
    updateScrollBars();
    horizontalScrollBar()->setValue(int(std::lround(horizontalScrollBar()->value() + x(seconds) - around)));
}

void CutStrips::zoomIn()
{
    zoom(zoomStep * zoomStep, x(0) + horizontalScrollBar()->value() + visibleWidth() / 2.0);
}

void CutStrips::zoomOut()
{
    zoom(1 / zoomStep / zoomStep, x(0) + horizontalScrollBar()->value() + visibleWidth() / 2.0);
}

void CutStrips::showAll()
{
    m_showsAll = true;
    horizontalScrollBar()->setValue(0);
    updateScrollBars();
}

/// Scrolls to seconds, zooming out where they do not fit.
void CutStrips::showRange(double from, double to)
{
    constexpr double margin = 0.1; // of the width, on each side
    const double room = visibleWidth() * (1 - 2 * margin);
    if ((to - from) * m_scale > room) {
        m_scale = std::max(room / (to - from), visibleWidth() / longest());
        m_showsAll = false;
    }
    updateScrollBars();
    const double left = x(from) - x(0) - visibleWidth() * margin;
    const double right = x(to) - x(0) - visibleWidth() * (1 - margin);
    const int value = horizontalScrollBar()->value();
    if (left < value || right > value)
        horizontalScrollBar()->setValue(int((left + right) / 2));
    viewport()->update();
}

void CutStrips::showChange(std::size_t change)
{
    m_chosen = change;
    m_chosenFrames = {};
    const EventChange &one = m_comparison->changes[change];
    double from = longest();
    double to = 0;
    for (const Which which : {Which::Old, Which::New}) {
        const TrackEvent *const event =
            which == Which::Old ? m_comparison->oldEvent(one) : m_comparison->newEvent(one);
        if (event) {
            from = std::min(from, double(event->start) / strip(which).framesPerSecond());
            to = std::max(to, double(event->end) / strip(which).framesPerSecond());
        }
    }
    showRange(from, to);
}

void CutStrips::showFrames(std::int64_t oldFrame, std::optional<std::int64_t> newFrame)
{
    m_chosen.reset();
    m_chosenFrames = {oldFrame, newFrame};
    const double before = double(oldFrame) / strip(Which::Old).framesPerSecond();
    const double after = newFrame ? double(*newFrame) / strip(Which::New).framesPerSecond() : before;
    showRange(std::min(before, after), std::max(before, after));
}

QRect CutStrips::barOf(std::size_t change, Which which) const
{
    if (!m_comparison)
        return {};
    const EventChange &one = m_comparison->changes[change];
    const auto event = which == Which::Old ? one.before : one.after;
    if (!event)
        return {};
    const TrackEvent &shown = strip(which).event(*event);
    int top = stripTop(which);
    for (const CutStrip::Lane &lane : strip(which).lanes()) {
        if (*event >= lane.first && *event < lane.end)
            break;
        top += laneHeight() + laneGap;
    }
    const double left = x(which, double(shown.start));
    const double right = x(which, double(shown.end));
    return {int(left), top, std::max(int(right) - int(left), 1), laneHeight()};
}

void CutStrips::resizeEvent(QResizeEvent *)
{
    updateScrollBars();
}

void CutStrips::paintEvent(QPaintEvent *)
{
    QPainter painter(viewport());
    if (!m_comparison)
        return;
    paintLines(painter);
    for (const Which which : {Which::Old, Which::New}) {
        paintStrip(painter, which);
        paintRuler(painter, which);
    }
    paintChosen(painter);
    paintMarkers(painter);
}

void CutStrips::paintRuler(QPainter &painter, Which which) const
{
    const CutStrip &cut = strip(which);
    const bool isOld = which == Which::Old;
    const int top = isOld ? stripTop(which) - rulerHeight : stripBottom(which);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const double pixels = m_scale / cut.framesPerSecond();
    const int room = painter.fontMetrics().horizontalAdvance(QStringLiteral("00:00:00:00")) + 16;
    const std::int64_t step = TimecodeRuler::step(cut.framesPerSecond(), pixels, room);
    const int line = isOld ? top + rulerHeight - 1 : top;
    painter.drawLine(0, line, viewport()->width(), line);
    auto frame = std::int64_t(std::max(frameAt(which, 0), 0.0)) / step * step;
    for (; x(which, double(frame)) < viewport()->width(); frame += step) {
        const int at = int(x(which, double(frame)));
        painter.drawLine(at, isOld ? line - 4 : line, at, isOld ? line : line + 4);
        painter.drawText(QRect(at + 3, isOld ? top : top + 10, room, rulerHeight - 10), Qt::AlignVCenter,
                         cut.timecode(frame));
    }
}

void CutStrips::paintStrip(QPainter &painter, Which which) const
{
    int top = stripTop(which);
    QFont font = painter.font();
    const QFont before = font;
    font.setPointSizeF(font.pointSizeF() * 0.85);
    painter.setFont(font);
    for (const CutStrip::Lane &lane : strip(which).lanes()) {
        painter.fillRect(QRect(0, top, viewport()->width(), laneHeight()),
                         palette().color(QPalette::AlternateBase));
        paintLane(painter, which, lane, top);
        if (laneHeight() >= lettered) {
            const QRect name(0, top, m_gutter, laneHeight());
            const int width = painter.fontMetrics().horizontalAdvance(lane.name) + 6;
            painter.fillRect(QRect(0, top, width, laneHeight()), palette().color(QPalette::Base));
            painter.setPen(palette().color(QPalette::PlaceholderText));
            painter.drawText(name.adjusted(3, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, lane.name);
        }
        top += laneHeight() + laneGap;
    }
    painter.setFont(before);
}

void CutStrips::paintLane(QPainter &painter, Which which, const CutStrip::Lane &lane, int top) const
{
    const CutStrip &cut = strip(which);
    const double last = frameAt(which, viewport()->width());
    Column column;
    std::vector<std::size_t> transitions;
    for (std::size_t i = cut.firstFrom(lane, std::int64_t(frameAt(which, 0))); i < lane.end; ++i) {
        const TrackEvent &event = cut.event(i);
        if (double(event.start) > last)
            break;
        const EventChange &change = cut.change(i);
        if (event.kind == TrackEvent::Kind::Transition) {
            transitions.push_back(i);
            continue;
        }
        if (event.kind == TrackEvent::Kind::Gap && !isWanted(change))
            continue;
        const double from = x(which, double(event.start));
        const double to = x(which, double(event.end));
        if (to - from >= 2) {
            paintColumn(painter, column, top);
            const int left = int(std::max(std::round(from), -10.0));
            const int right = int(std::min(std::round(to), viewport()->width() + 10.0));
            paintBar(painter, {left, top, right - left, laneHeight()}, event, change);
            continue;
        }
        if (int(from) != column.x) {
            paintColumn(painter, column, top);
            column = {int(from), {}};
        }
        const bool isNotable = isWanted(change) && change.kind != EventChange::Kind::Unchanged;
        if (!column.kind || isNotable)
            column.kind = isWanted(change) ? change.kind : EventChange::Kind::Unchanged;
    }
    paintColumn(painter, column, top);
    int drawnTo = -1;
    for (const std::size_t i : transitions) {
        const TrackEvent &event = cut.event(i);
        const int left = int(x(which, double(event.start)));
        const int right = std::max(int(x(which, double(event.end))), left + 1);
        if (right <= drawnTo)
            continue;
        drawnTo = right;
        paintBar(painter, {left, top, right - left, std::max(laneHeight() / 3, 2)}, event, cut.change(i));
    }
}

/// The events that fell on one pixel.
void CutStrips::paintColumn(QPainter &painter, Column &column, int top) const
{
    if (column.kind)
        painter.fillRect(column.x, top, 2, laneHeight(), ChangeColors::of(*column.kind, palette()));
    column = {};
}

void CutStrips::paintBar(QPainter &painter, const QRect &bar, const TrackEvent &event,
                         const EventChange &change) const
{
    const bool isShown = isWanted(change);
    const QColor color = ChangeColors::of(isShown ? change.kind : EventChange::Kind::Unchanged, palette());
    QRect inner = bar.width() > 3 ? bar.adjusted(0, 0, -1, 0) : bar;
    if (event.kind == TrackEvent::Kind::Gap)
        inner = inner.adjusted(0, inner.height() / 3, 0, -inner.height() / 3);
    painter.fillRect(inner, color);
    if (isShown && ChangeColors::isHatched(change.kind))
        painter.fillRect(inner, QBrush(palette().color(QPalette::WindowText), Qt::BDiagPattern));
    if (event.kind == TrackEvent::Kind::Transition) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawRect(inner.adjusted(0, 0, -1, 0));
        return;
    }
    constexpr int leastText = 30;
    const QRect seen = inner.intersected(viewport()->rect()).adjusted(3, 0, -2, 0);
    if (event.kind == TrackEvent::Kind::Gap || laneHeight() < lettered || seen.width() < leastText)
        return;
    const QString name = painter.fontMetrics().elidedText(event.name, Qt::ElideRight, seen.width());
    if (isShown && ChangeColors::isHatched(change.kind)) {
        QRect written = seen;
        written.setWidth(std::min(painter.fontMetrics().horizontalAdvance(name) + 4, seen.width()));
        painter.fillRect(written.adjusted(-2, 1, 0, -1), color);
    }
    painter.setPen(ChangeColors::textOn(color));
    painter.drawText(seen, Qt::AlignVCenter | Qt::AlignLeft, name);
}

/// The lines of events that are in both cuts; of those of a kind that begin at the same pixels only one.
void CutStrips::paintLines(QPainter &painter) const
{
    constexpr int pixels = 2;
    constexpr double farAway = 1e5; // where the slope no longer shows
    const int width = viewport()->width();
    const int top = stripBottom(Which::Old);
    const int bottom = stripTop(Which::New) - 1;
    struct Lines {
        QList<QLine> lines;
        std::vector<bool> areTaken; // the places where one begins, and beyond the edges where one ends
    };
    std::array<Lines, ChangeColors::kinds.size()> byKind;
    for (Lines &one : byKind)
        one.areTaken.resize(std::size_t(2 * width / pixels) + 2);
    for (const EventChange &change : m_comparison->changes) {
        if (!change.before || !change.after || !isWanted(change))
            continue;
        const TrackEvent &before = m_comparison->before.events[*change.before];
        const TrackEvent &after = m_comparison->after.events[*change.after];
        const double from = x(Which::Old, double(before.start + before.end) / 2);
        const double to = x(Which::New, double(after.start + after.end) / 2);
        if (!after.isItem() || std::max(from, to) < 0 || std::min(from, to) > width)
            continue;
        Lines &one = byKind[std::size_t(change.kind)];
        const bool begins = from >= 0 && from <= width;
        const double place = begins ? from : width + std::clamp<double>(to, 0, width);
        const auto slot = std::size_t(place / pixels);
        if (one.areTaken[slot])
            continue;
        one.areTaken[slot] = true;
        one.lines.append(
            {int(std::clamp(from, -farAway, farAway)), top, int(std::clamp(to, -farAway, farAway)), bottom});
    }
    qsizetype count = 0;
    for (const Lines &one : byKind)
        count += one.lines.size();
    constexpr qsizetype mostSmooth = 300;
    painter.setRenderHint(QPainter::Antialiasing, count <= mostSmooth);
    for (auto kind = ChangeColors::kinds.rbegin(); kind != ChangeColors::kinds.rend(); ++kind) {
        painter.setPen(ChangeColors::of(*kind, palette()));
        painter.drawLines(byKind[std::size_t(*kind)].lines);
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

void CutStrips::paintChosen(QPainter &painter) const
{
    if (!m_chosen)
        return;
    QPen pen(palette().color(QPalette::Highlight), 2);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    const QRect before = barOf(*m_chosen, Which::Old);
    const QRect after = barOf(*m_chosen, Which::New);
    for (const QRect &bar : {before, after}) {
        if (!bar.isEmpty())
            painter.drawRect(bar.adjusted(-1, -1, std::max(4 - bar.width(), 0), 0));
    }
    if (before.isEmpty() || after.isEmpty())
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawLine(before.center().x(), before.bottom() + 1, after.center().x(), after.top() - 1);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// Triangles on the rulers: where markers were, and where they go.
void CutStrips::paintMarkers(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    const int oldTip = stripTop(Which::Old) - 1;
    const int newTip = stripBottom(Which::New);
    std::array<std::vector<bool>, 2> areDrawn; // by Which and pixel
    for (std::vector<bool> &pixels : areDrawn)
        pixels.resize(std::size_t(viewport()->width()));
    const auto draw = [&](Which which, std::int64_t frame, const QColor &color, int side) {
        const int at = int(x(which, double(frame)));
        if (at < -side || at > viewport()->width() + side)
            return;
        const bool isOld = which == Which::Old;
        const int tip = isOld ? oldTip : newTip;
        const int base = isOld ? tip - side : tip + side;
        QPainterPath path;
        path.moveTo(at, tip);
        path.lineTo(at - side / 2.0, base);
        path.lineTo(at + side / 2.0, base);
        path.closeSubpath();
        painter.fillPath(path, color);
    };
    constexpr int side = 8;
    const auto colorOf = [this](const CarriedMarker &marker) {
        switch (marker.place.state) {
        case MarkerPlace::State::Nearest:
            return ChangeColors::of(EventChange::Kind::Replaced, palette());
        case MarkerPlace::State::Gone:
            return ChangeColors::of(EventChange::Kind::Removed, palette());
        case MarkerPlace::State::Carried:
            break;
        }
        return palette().color(QPalette::WindowText);
    };
    for (const CarriedMarker &marker : m_comparison->markers) {
        const bool isGone = marker.place.state == MarkerPlace::State::Gone;
        const auto drawOnce = [&](Which which, std::int64_t frame) {
            std::vector<bool> &pixels = areDrawn[std::size_t(which)];
            const double at = x(which, double(frame));
            if (at < 0 || at >= double(pixels.size()) || pixels[std::size_t(at)])
                return;
            pixels[std::size_t(at)] = true;
            draw(which, frame, colorOf(marker), side);
        };
        drawOnce(Which::Old, marker.place.oldFrame);
        if (!isGone)
            drawOnce(Which::New, marker.place.newFrame);
        else if (marker.isWanted && marker.statedFrame)
            drawOnce(Which::New, *marker.statedFrame);
    }
    const QColor highlight = palette().color(QPalette::Highlight);
    for (const Which which : {Which::Old, Which::New}) {
        if (const auto frame = m_chosenFrames[std::size_t(which)])
            draw(which, *frame, highlight, side + 6);
    }
    if (m_chosenFrames[0] && m_chosenFrames[1]) {
        painter.setPen(QPen(highlight, 2, Qt::DashLine));
        painter.drawLine(QPointF(x(Which::Old, double(*m_chosenFrames[0])), oldTip),
                         QPointF(x(Which::New, double(*m_chosenFrames[1])), newTip));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
}

std::optional<std::size_t> CutStrips::changeAt(const QPoint &point) const
{
    if (!m_comparison)
        return std::nullopt;
    for (const Which which : {Which::Old, Which::New}) {
        const int row = point.y() - stripTop(which);
        const int height = laneHeight() + laneGap;
        const std::vector<CutStrip::Lane> &lanes = strip(which).lanes();
        if (row < 0 || row >= int(lanes.size()) * height)
            continue;
        const double tolerance = grabbed * strip(which).framesPerSecond() / m_scale;
        const auto event =
            strip(which).eventNear(lanes[std::size_t(row / height)], frameAt(which, point.x()), tolerance);
        if (event)
            return strip(which).changeOf(*event);
    }
    return std::nullopt;
}

void CutStrips::wheelEvent(QWheelEvent *event)
{
    const QPoint angle = event->angleDelta();
    const bool pans =
        event->modifiers().testFlag(Qt::ShiftModifier) || std::abs(angle.x()) > std::abs(angle.y());
    if (pans) {
        const int delta = std::abs(angle.x()) > std::abs(angle.y()) ? angle.x() : angle.y();
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - delta);
    } else {
        constexpr double notch = 120;
        zoom(std::pow(zoomStep, angle.y() / notch), event->position().x());
    }
    event->accept();
}

void CutStrips::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = m_last = event->pos();
    m_isPanning = false;
}

void CutStrips::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_pressed)
        return;
    if ((event->pos() - *m_pressed).manhattanLength() >= QApplication::startDragDistance() && !m_isPanning) {
        m_isPanning = true;
        viewport()->setCursor(Qt::ClosedHandCursor);
    }
    if (!m_isPanning)
        return;
    const QPoint way = event->pos() - m_last;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - way.x());
    verticalScrollBar()->setValue(verticalScrollBar()->value() - way.y());
    m_last = event->pos();
}

void CutStrips::mouseReleaseEvent(QMouseEvent *event)
{
    viewport()->setCursor(Qt::OpenHandCursor);
    const bool isClick = m_pressed && !m_isPanning;
    m_pressed.reset();
    if (!isClick)
        return;
    if (const auto change = changeAt(event->pos())) {
        m_chosen = change;
        m_chosenFrames = {};
        viewport()->update();
        Q_EMIT changeChosen(*change);
    }
}

void CutStrips::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        zoomIn();
        break;
    case Qt::Key_Minus:
        zoomOut();
        break;
    case Qt::Key_0:
        showAll();
        break;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

bool CutStrips::viewportEvent(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractScrollArea::viewportEvent(event);
    const auto *const help = static_cast<QHelpEvent *>(event);
    if (const auto change = changeAt(help->pos()))
        QToolTip::showText(help->globalPos(), ChangeTableModel::toolTip(*m_comparison, *change), viewport());
    else
        QToolTip::hideText();
    return true;
}

} // namespace vantrell
