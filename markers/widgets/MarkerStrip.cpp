#include "markers/widgets/MarkerStrip.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerTableValues.h"
#include "timecode/QVTimecode.h"
#include "timecode/TimecodeRuler.h"
#include "xml/QVXMLParser.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrell
{

namespace
{

constexpr int edge = 7;      // pixels beside the first and the last frame
constexpr int headWidth = 9; // odd
constexpr int headHeight = 11;
constexpr int leastHead = 3;       // pixels of a place for a head with its shape
constexpr double leastShare = 0.4; // of the height of a head
constexpr int barHeight = 6;
constexpr int positionHeight = 3;
constexpr double grabbed = 5; // pixels beside a marker that still count as it
constexpr double mostScale = 24;
constexpr int mostOutlined = 100; // selected markers that are close together
constexpr int leastClip = 3;      // pixels of a clip that is drawn on its own
constexpr int leastName = 36;     // pixels of a clip that shows its name

QColor mixed(const QColor &a, const QColor &b, double share)
{
    const auto mix = [share](int from, int to) { return int(std::lround(from + (to - from) * share)); };
    return QColor(mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue()));
}

QColor colorOf(const OverviewMarker &marker, const QColor &background)
{
    const MarkerColor &color = MarkerColors::table()[marker.color];
    const QColor full(color.red, color.green, color.blue);
    return marker.isShown ? full : mixed(background, full, 0.28);
}

/// Of heads and bars: bright colours need one on a light background.
QColor outlineOf(const QColor &color, const QColor &background)
{
    return background.lightness() > 127 ? color.darker(150) : color.darker(125);
}

QString oneLine(QString text)
{
    return text.replace(QLatin1Char('\n'), QLatin1Char(' '));
}

} // namespace

MarkerStrip::MarkerStrip(QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(tr("Marker overview"));
    setAccessibleDescription(
        tr("Left and Right select the previous and the next marker. Plus and minus zoom, 0 shows all."));
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QFont MarkerStrip::smallFont() const
{
    QFont small = font();
    small.setPointSizeF(small.pointSizeF() * 0.85);
    return small;
}

MarkerStrip::Places MarkerStrip::places() const
{
    const int line = QFontMetrics(smallFont()).height();
    Places places{};
    places.heads = line + 7;
    places.bars = places.heads + headHeight + 3;
    places.clips = places.bars + barHeight + 4;
    places.bottom = places.clips + line + 2;
    places.height = places.bottom + positionHeight + 4;
    return places;
}

QSize MarkerStrip::sizeHint() const
{
    return {800, places().height};
}

QSize MarkerStrip::minimumSizeHint() const
{
    return {160, places().height};
}

// The view

int MarkerStrip::room() const
{
    return std::max(width() - 2 * edge, 1);
}

OverviewView MarkerStrip::view() const
{
    return {m_first - edge / m_scale, m_scale, width(), m_end};
}

const std::vector<OverviewColumn> &MarkerStrip::columns() const
{
    if (!m_columns)
        m_columns = m_sequence->columns(view());
    return *m_columns;
}

void MarkerStrip::updateView()
{
    const double least = room() / double(m_end);
    m_scale = m_showsAll ? least : std::clamp(m_scale, least, std::max(mostScale, least));
    m_first = std::clamp(m_first, 0.0, std::max(double(m_end) - room() / m_scale, 0.0));
    m_columns.reset();
    update();
}

void MarkerStrip::setSequence(const OverviewSequence *sequence, std::shared_ptr<const SequenceClips> clips,
                              bool keepsView)
{
    m_sequence = sequence;
    m_clips = std::move(clips);
    m_clicked.reset();
    m_columns.reset();
    update();
    if (!keepsView) {
        m_showsAll = true;
        m_first = 0;
    }
    if (!m_sequence)
        return;
    m_end = m_sequence->rangeEnd(m_clips ? m_clips->duration : 0);
    updateView();
}

void MarkerStrip::updateSelection()
{
    m_columns.reset();
    update();
}

void MarkerStrip::reveal(std::size_t marker)
{
    const double x = placeOf(marker).x();
    if (m_showsAll || (x >= edge && x < width() - edge))
        return;
    m_first = double(m_sequence->markers[marker].start) - room() / 2.0 / m_scale;
    updateView();
}

void MarkerStrip::zoom(double factor, double around)
{
    const double least = room() / double(m_end);
    const double frame = frameAt(around);
    m_scale = std::clamp(m_scale * factor, least, std::max(mostScale, least));
    m_showsAll = m_scale <= least;
    m_first = frame - (around - edge) / m_scale;
    updateView();
}

void MarkerStrip::scrollBy(double pixels)
{
    m_first += pixels / m_scale;
    updateView();
}

void MarkerStrip::zoomIn()
{
    zoom(StripMouse::zoomStep * StripMouse::zoomStep, width() / 2.0);
}

void MarkerStrip::zoomOut()
{
    zoom(1 / StripMouse::zoomStep / StripMouse::zoomStep, width() / 2.0);
}

void MarkerStrip::showAll()
{
    m_showsAll = true;
    updateView();
}

void MarkerStrip::resizeEvent(QResizeEvent *)
{
    updateView();
}

// What is where

QPoint MarkerStrip::placeOf(std::size_t marker) const
{
    const std::int64_t frame = std::clamp<std::int64_t>(m_sequence->markers[marker].start, 0, m_end);
    return {int(std::floor(view().x(double(frame)))), places().heads + headHeight / 2};
}

std::vector<std::size_t> MarkerStrip::markersAt(double x) const
{
    return m_sequence ? m_sequence->markersAt(view(), x, grabbed) : std::vector<std::size_t>();
}

const SequenceClips::Clip *MarkerStrip::clipAt(double frame) const
{
    if (!m_clips)
        return nullptr;
    const auto found =
        std::partition_point(m_clips->clips.begin(), m_clips->clips.end(),
                             [frame](const SequenceClips::Clip &clip) { return double(clip.end) <= frame; });
    return found == m_clips->clips.end() || double(found->start) > frame ? nullptr : &*found;
}

QString MarkerStrip::timecode(std::int64_t frame) const
{
    const SequenceTiming &timing = m_sequence->timing;
    return QVTimecode::timecodeFromFrameCount(quint64(frame), timing.timebase, timing.ntsc, timing.dropFrame,
                                              quint64(timing.startFrame));
}

QString MarkerStrip::textAt(const QPoint &point) const
{
    if (!m_sequence)
        return QString();
    const std::vector<std::size_t> found = markersAt(point.x());
    if (!found.empty() && point.y() < places().clips) {
        const OverviewMarker &marker = m_sequence->markers[found.front()];
        const QString name = marker.record->get(MarkerKey::name);
        QStringList lines{name.isEmpty() ? tr("(no name)") : oneLine(name)};
        lines.append(marker.end > marker.start ? tr("%1, duration %2")
                                                     .arg(MarkerTableValues::inText(*marker.record),
                                                          MarkerTableValues::outText(*marker.record))
                                               : MarkerTableValues::inText(*marker.record));
        const QString clip = marker.record->get(MarkerKey::clipName);
        if (!clip.isEmpty())
            lines.append(tr("on the clip “%1”").arg(oneLine(clip)));
        if (marker.start < 0 || (m_clips && m_clips->duration > 0 && marker.start >= m_clips->duration))
            lines.append(tr("outside the sequence"));
        if (!marker.isShown)
            lines.append(tr("hidden by the filter"));
        if (found.size() > 1)
            lines.append(tr("and %1 more here").arg(QLocale().toString(qulonglong(found.size() - 1))));
        return lines.join(QLatin1Char('\n'));
    }
    const SequenceClips::Clip *const clip = clipAt(frameAt(point.x()));
    if (!clip || point.y() < places().clips)
        return QString();
    return tr("%1\n%2 – %3")
        .arg(oneLine(QVXMLParser::nameForNode(clip->element).value_or(tr("(no name)"))),
             timecode(clip->start), timecode(clip->end));
}

// The user

bool MarkerStrip::event(QEvent *event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        updateGeometry();
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto *const help = static_cast<QHelpEvent *>(event);
    const QString text = textAt(help->pos());
    if (text.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help->globalPos(), Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal), this,
                           QRect(help->pos() - QPoint(2, 2), QSize(5, 5)));
    return true;
}

void MarkerStrip::wheelEvent(QWheelEvent *event)
{
    const StripMouse::Turn turn = StripMouse::turnOf(*event);
    if (turn.scroll != 0)
        scrollBy(turn.scroll);
    else
        zoom(turn.zoom, event->position().x());
    event->accept();
}

void MarkerStrip::mousePressEvent(QMouseEvent *event)
{
    m_mouse.press(*event);
}

void MarkerStrip::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_mouse.isPressed()) {
        setCursor(markersAt(event->pos().x()).empty() ? Qt::ArrowCursor : Qt::PointingHandCursor);
        return;
    }
    const auto way = m_mouse.drag(*event);
    if (!way)
        return;
    if (!m_showsAll)
        setCursor(Qt::ClosedHandCursor);
    scrollBy(-way->x());
}

void MarkerStrip::mouseReleaseEvent(QMouseEvent *event)
{
    const StripMouse::Released released = m_mouse.release(*event);
    if (released == StripMouse::Released::Nothing)
        return;
    setCursor(Qt::ArrowCursor);
    if (released == StripMouse::Released::Click)
        choose(event->pos(), event->modifiers().testFlag(Qt::ControlModifier));
}

void MarkerStrip::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        showAll();
}

/// A further click at the same place chooses the next one of the markers that lie there.
void MarkerStrip::choose(const QPoint &point, bool toggles)
{
    const std::vector<std::size_t> found = markersAt(point.x());
    if (found.empty())
        return;
    std::size_t chosen = 0;
    const bool isRepeated = m_clicked && (*m_clicked - point).manhattanLength() <= 2;
    if (isRepeated && !toggles) {
        const auto selected = std::find_if(found.begin(), found.end(), [this](std::size_t index) {
            return m_sequence->markers[index].isSelected;
        });
        if (selected != found.end())
            chosen = std::size_t(selected - found.begin() + 1) % found.size();
        if (!m_sequence->markers[found[chosen]].isShown)
            chosen = 0;
    }
    m_clicked = point;
    Q_EMIT markerChosen(found[chosen], toggles);
}

void MarkerStrip::chooseNext(int direction)
{
    if (!m_sequence)
        return;
    const std::vector<OverviewMarker> &markers = m_sequence->markers;
    const auto isSelected = [](const OverviewMarker &marker) { return marker.isSelected; };
    std::size_t next = OverviewColumn::none;
    if (direction > 0) {
        const auto last = std::find_if(markers.rbegin(), markers.rend(), isSelected);
        next = last == markers.rend() ? m_sequence->after(std::numeric_limits<std::int64_t>::min())
                                      : m_sequence->after(last->start);
    } else {
        const auto first = std::find_if(markers.begin(), markers.end(), isSelected);
        next = first == markers.end() ? m_sequence->before(std::numeric_limits<std::int64_t>::max())
                                      : m_sequence->before(first->start);
    }
    if (next != OverviewColumn::none)
        Q_EMIT markerChosen(next, false);
}

void MarkerStrip::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        chooseNext(-1);
        break;
    case Qt::Key_Right:
        chooseNext(1);
        break;
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
    case Qt::Key_Escape:
        if (m_showsAll)
            Q_EMIT left();
        else
            showAll();
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

// Drawing

void MarkerStrip::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor base = palette().color(QPalette::Base);
    painter.fillRect(rect(), base);
    if (m_sequence) {
        if (m_clips && m_clips->duration > 0 && m_clips->duration < m_end) {
            const int end = int(view().x(double(m_clips->duration)));
            painter.fillRect(QRect(end, 0, width() - end, height()), palette().color(QPalette::Window));
        }
        paintRuler(painter);
        paintClips(painter);
        paintBars(painter);
        paintHeads(painter);
        paintPosition(painter);
    } else {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter, tr("No sequence"));
    }
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight)
                              : mixed(base, palette().color(QPalette::Text), 0.25));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void MarkerStrip::paintRuler(QPainter &painter) const
{
    const OverviewView shown = view();
    const SequenceTiming &timing = m_sequence->timing;
    const TimecodeRuler::Timing ruler{timing.timebase, timing.dropFrame, timing.startFrame};
    const double fps = timing.timebase > 0 ? double(timing.timebase) : 30;
    const int line = places().heads - 3;
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    painter.setFont(smallFont());
    const int label = painter.fontMetrics().horizontalAdvance(QStringLiteral("00:00:00:00"));
    const auto first = std::int64_t(std::max(shown.frameAt(-label), 0.0));
    const auto last = std::min(std::int64_t(shown.frameAt(width())), m_end);
    const std::int64_t step = TimecodeRuler::step(fps, m_scale, label + 24);
    painter.setPen(mixed(base, text, 0.3));
    painter.drawLine(0, line, width(), line);
    for (int between = 8; between < label; between += 4) {
        const std::int64_t small = TimecodeRuler::step(fps, m_scale, between);
        if (step % small != 0)
            continue;
        for (const std::int64_t frame : TimecodeRuler::ticks(ruler, first, last, small))
            painter.drawLine(QPoint(int(shown.x(double(frame))), line - 2),
                             QPoint(int(shown.x(double(frame))), line));
        break;
    }
    for (const std::int64_t frame : TimecodeRuler::ticks(ruler, first, last, step)) {
        const int x = int(shown.x(double(frame)));
        painter.setPen(mixed(base, text, 0.45));
        painter.drawLine(x, 3, x, line);
        if (x + 4 + label > width())
            continue;
        painter.setPen(mixed(base, text, 0.75));
        painter.drawText(QRect(x + 4, 1, label + 8, line - 3), Qt::AlignLeft | Qt::AlignVCenter,
                         timecode(frame));
    }
}

void MarkerStrip::paintClips(QPainter &painter) const
{
    if (!m_clips)
        return;
    const OverviewView shown = view();
    const Places at = places();
    const QColor base = palette().color(QPalette::Base);
    const QColor text = palette().color(QPalette::Text);
    const QColor fill = mixed(base, text, 0.17);
    const QColor dense = mixed(base, text, 0.3);
    const int height = at.bottom - at.clips;
    painter.setFont(smallFont());
    const std::vector<SequenceClips::Clip> &clips = m_clips->clips;
    auto clip = std::partition_point(clips.begin(), clips.end(), [&shown](const SequenceClips::Clip &one) {
        return shown.x(double(one.end)) <= 0;
    });
    while (clip != clips.end() && shown.x(double(clip->start)) < width()) {
        const int left = int(std::max(std::round(shown.x(double(clip->start))), -10.0));
        const int right = int(std::min(std::round(shown.x(double(clip->end))), width() + 10.0));
        if (right - left < leastClip) {
            // Clips that are too short to be told apart are one block; what ends within it is passed over.
            painter.fillRect(QRect(left, at.clips, leastClip - 1, height), dense);
            const double next = left + leastClip;
            clip = std::partition_point(clip, clips.end(), [&](const SequenceClips::Clip &one) {
                return shown.x(double(one.end)) < next;
            });
            continue;
        }
        const QRect block(left, at.clips, right - left - 1, height);
        painter.fillRect(block, fill);
        const QRect seen = block.intersected(rect()).adjusted(4, 0, -3, 0);
        if (seen.width() >= leastName) {
            painter.setPen(mixed(base, text, 0.8));
            const QString name = oneLine(QVXMLParser::nameForNode(clip->element).value_or(QString()));
            painter.drawText(seen, Qt::AlignLeft | Qt::AlignVCenter,
                             painter.fontMetrics().elidedText(name, Qt::ElideRight, seen.width()));
        }
        ++clip;
    }
}

void MarkerStrip::paintBars(QPainter &painter) const
{
    const Places at = places();
    const QColor base = palette().color(QPalette::Base);
    QColor band = palette().color(QPalette::Highlight);
    band.setAlpha(70);
    const std::vector<OverviewColumn> &all = columns();
    for (std::size_t first = 0; first < all.size();) {
        std::size_t end = first + 1;
        while (end < all.size() && all[end].bar == all[first].bar)
            ++end;
        if (all[first].bar != OverviewColumn::none) {
            const OverviewMarker &marker = m_sequence->markers[all[first].bar];
            const QRect bar(int(first), at.bars, int(end - first), barHeight);
            const QColor color = colorOf(marker, base);
            if (marker.isSelected)
                painter.fillRect(QRect(bar.left(), at.heads - 2, bar.width(), at.bottom - at.heads + 2),
                                 band);
            painter.fillRect(bar, marker.isShown ? mixed(base, color, 0.65) : color);
            if (bar.width() > 2) {
                painter.setPen(outlineOf(color, base));
                painter.drawRect(bar.adjusted(0, 0, -1, -1));
            }
        }
        first = end;
    }
}

void MarkerStrip::paintHeads(QPainter &painter) const
{
    const std::vector<OverviewColumn> &all = columns();
    std::vector<int> heads;
    int selected = 0;
    std::uint32_t most = 1;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].head == OverviewColumn::none)
            continue;
        heads.push_back(int(i));
        selected += m_sequence->markers[all[i].head].isSelected;
        most = std::max(most, all[i].count);
    }
    const auto rankOf = [](const OverviewMarker &marker) { return marker.isSelected ? 2 : marker.isShown; };
    for (const int rank : {0, 1, 2}) {
        for (std::size_t i = 0; i < heads.size(); ++i) {
            const OverviewColumn &column = all[std::size_t(heads[i])];
            const OverviewMarker &marker = m_sequence->markers[column.head];
            if (rankOf(marker) != rank)
                continue;
            int width = headWidth;
            if (i > 0)
                width = std::min(width, heads[i] - heads[i - 1]);
            if (i + 1 < heads.size())
                width = std::min(width, heads[i + 1] - heads[i]);
            if (marker.isSelected && selected <= mostOutlined)
                width = headWidth;
            // Where they are close together the higher ones stand for more of them.
            const double share = leastShare + (1 - leastShare) * column.count / most;
            const int height = width < leastHead ? int(std::lround(headHeight * share)) : headHeight;
            const int bottom = places().heads + headHeight;
            paintHead(painter, marker, {heads[i] - (width - 1) / 2, bottom - height, width, height});
        }
    }
}

void MarkerStrip::paintHead(QPainter &painter, const OverviewMarker &marker, const QRect &place) const
{
    const Places at = places();
    const QColor base = palette().color(QPalette::Base);
    const QColor color = colorOf(marker, base);
    const int x = place.left() + (place.width() - 1) / 2;
    const bool isNarrow = place.width() < leastHead;
    if (marker.isSelected) {
        QColor band = palette().color(QPalette::Highlight);
        band.setAlpha(90);
        const int wide = isNarrow ? place.width() : headWidth + 4;
        painter.fillRect(QRect(x - (wide - 1) / 2, at.heads - 2, wide, at.bottom - at.heads + 2), band);
    }
    if (isNarrow) {
        painter.fillRect(place, color);
        return;
    }
    if (marker.isShown) {
        QColor line = color;
        line.setAlpha(130);
        const int end = marker.isSelected ? at.bottom : at.clips - 1;
        painter.fillRect(QRect(x, at.heads + headHeight - 1, 1, end - at.heads - headHeight + 1), line);
    }
    const double middle = x + 0.5;
    const double half = headWidth / 2.0 - 0.5;
    const double shoulder = at.heads + headHeight * 0.55;
    QPainterPath head;
    head.moveTo(middle - half, at.heads + 0.5);
    head.lineTo(middle + half, at.heads + 0.5);
    head.lineTo(middle + half, shoulder);
    head.lineTo(middle, at.heads + headHeight);
    head.lineTo(middle - half, shoulder);
    head.closeSubpath();
    painter.setRenderHint(QPainter::Antialiasing);
    if (marker.isSelected) {
        const QColor ring = mixed(palette().color(QPalette::Highlight), palette().color(QPalette::Text), 0.5);
        painter.setPen(QPen(ring, 3.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.drawPath(head);
    }
    painter.setPen(QPen(outlineOf(color, base), 1));
    painter.setBrush(color);
    painter.drawPath(head);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
}

/// Which part of the sequence is in view.
void MarkerStrip::paintPosition(QPainter &painter) const
{
    if (m_showsAll)
        return;
    const double all = room();
    const double left = edge + all * m_first / double(m_end);
    const double length = std::max(all * (room() / m_scale) / double(m_end), 12.0);
    const int top = places().bottom + 2;
    const QColor color = mixed(palette().color(QPalette::Base), palette().color(QPalette::Text), 0.45);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double right = std::min(left + length, double(width() - edge));
    painter.drawRoundedRect(QRectF(right - length, top, length, positionHeight), 1.5, 1.5);
}

} // namespace vantrell
