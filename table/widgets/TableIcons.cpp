#include "table/widgets/TableIcons.h"

#include "markers/MarkerColors.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/files/FileUtilities.h"

#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QMimeDatabase>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <array>

namespace vantrell
{

namespace
{

/// Draws in a square of 16 units with the pen of the text's colour.
using Drawing = void (*)(QPainter &painter, const QColor &ink, const QColor &fill);

/// An icon that is drawn at the size and in the colours of the moment.
class DrawnIcon : public QIconEngine
{
public:
    explicit DrawnIcon(Drawing drawing, const QColor &fill = QColor())
        : m_drawing(drawing)
        , m_fill(fill)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const double side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2);
        painter->scale(side / 16, side / 16);
        if (mode == QIcon::Disabled)
            painter->setOpacity(0.5);
        const QPalette palette = QGuiApplication::palette();
        const QColor ink =
            palette.color(mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::Text);
        painter->setPen(QPen(ink, 1.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        m_drawing(*painter, ink, m_fill);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new DrawnIcon(*this); }

private:
    Drawing m_drawing;
    QColor m_fill;
};

void drawMovie(QPainter &painter, const QColor &, const QColor &)
{
    painter.drawRoundedRect(QRectF(1.5, 3.5, 13, 9), 1.5, 1.5);
    for (const double x : {4.5, 11.5})
        painter.drawLine(QPointF(x, 3.5), QPointF(x, 12.5));
    for (const double y : {6.5, 9.5}) {
        painter.drawLine(QPointF(1.5, y), QPointF(4.5, y));
        painter.drawLine(QPointF(11.5, y), QPointF(14.5, y));
    }
}

void drawAudio(QPainter &painter, const QColor &, const QColor &)
{
    constexpr std::array<double, 6> heights{2, 5, 3, 6, 4, 1.5};
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const double x = 2 + 2.4 * double(i);
        painter.drawLine(QPointF(x, 8 - heights[i]), QPointF(x, 8 + heights[i]));
    }
}

void drawPicture(QPainter &painter, const QColor &ink, const QColor &)
{
    painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 11), 1.5, 1.5);
    painter.drawPolyline(QPolygonF({{2, 12}, {6, 8}, {8.5, 10.5}, {11, 7.5}, {14, 11}}));
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(5, 5.6), 0.7, 0.7);
}

void drawPage(QPainter &painter, const QColor &, const QColor &)
{
    painter.drawPolygon(QPolygonF({{3.5, 1.5}, {9.5, 1.5}, {12.5, 4.5}, {12.5, 14.5}, {3.5, 14.5}}));
    painter.drawPolyline(QPolygonF({{9.5, 1.5}, {9.5, 4.5}, {12.5, 4.5}}));
}

void drawVolume(QPainter &painter, const QColor &ink, const QColor &)
{
    painter.drawRoundedRect(QRectF(1.5, 4.5, 13, 7), 1.5, 1.5);
    painter.setBrush(ink);
    painter.drawEllipse(QPointF(12, 8), 0.5, 0.5);
    painter.drawLine(QPointF(4, 8), QPointF(8, 8));
}

void drawSequence(QPainter &painter, const QColor &, const QColor &)
{
    painter.drawRoundedRect(QRectF(1.5, 2.5, 8, 3), 0.8, 0.8);
    painter.drawRoundedRect(QRectF(5.5, 6.5, 9, 3), 0.8, 0.8);
    painter.drawRoundedRect(QRectF(3.5, 10.5, 7, 3), 0.8, 0.8);
}

void drawClip(QPainter &painter, const QColor &, const QColor &)
{
    painter.drawRoundedRect(QRectF(1.5, 4.5, 13, 7), 1.2, 1.2);
    painter.drawLine(QPointF(4.5, 4.5), QPointF(4.5, 11.5));
    painter.drawLine(QPointF(11.5, 4.5), QPointF(11.5, 11.5));
}

void drawMarker(QPainter &painter, const QColor &ink, const QColor &fill)
{
    QPainterPath path;
    path.moveTo(8, 14.5);
    path.lineTo(3, 9.5);
    path.lineTo(3, 3);
    path.quadTo(3, 1.5, 4.5, 1.5);
    path.lineTo(11.5, 1.5);
    path.quadTo(13, 1.5, 13, 3);
    path.lineTo(13, 9.5);
    path.closeSubpath();
    QColor edge = ink;
    edge.setAlphaF(0.45F);
    painter.setPen(QPen(edge, 1));
    painter.fillPath(path, fill);
    painter.drawPath(path);
}

QIcon drawn(Drawing drawing, const QColor &fill = QColor())
{
    return QIcon(new DrawnIcon(drawing, fill));
}

Drawing drawingOfFile(const QString &filename)
{
    const QString kind = MediaFile::fileTypeForPath(filename);
    return kind == MediaKind::movieClip   ? drawMovie
           : kind == MediaKind::audioClip ? drawAudio
           : kind == MediaKind::image     ? drawPicture
                                          : drawPage;
}

} // namespace

QIcon TableIcons::file(const QString &filename)
{
    static QHash<QString, QIcon> icons;
    const QString extension = FileUtilities::pathExtension(filename).toLower();
    QIcon &icon = icons[extension];
    if (icon.isNull()) {
        const QMimeType type = QMimeDatabase().mimeTypeForFile(filename, QMimeDatabase::MatchExtension);
        icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
        if (icon.isNull())
            icon = drawn(drawingOfFile(filename));
    }
    return icon;
}

QIcon TableIcons::volume(const QString &path)
{
    static const QIcon startUp = QIcon::fromTheme(QStringLiteral("drive-harddisk"), drawn(drawVolume));
    static const QIcon mounted = QIcon::fromTheme(QStringLiteral("drive-removable-media"), drawn(drawVolume));
    return path == QStringLiteral("/") ? startUp : mounted;
}

QIcon TableIcons::named(const QString &name)
{
    static const QIcon sequence = drawn(drawSequence);
    static const QIcon clip = drawn(drawClip);
    if (name == QStringLiteral("sequence"))
        return sequence;
    return name == QStringLiteral("clip") ? clip : QIcon();
}

QIcon TableIcons::marker(int colorIndex)
{
    static const std::array<QIcon, MarkerColors::count> icons = [] {
        std::array<QIcon, MarkerColors::count> made;
        for (std::size_t i = 0; i < made.size(); ++i) {
            const MarkerColor &color = MarkerColors::table()[i];
            made[i] = drawn(drawMarker, QColor(color.red, color.green, color.blue));
        }
        return made;
    }();
    const bool isKnown = colorIndex >= 0 && colorIndex < int(icons.size());
    return icons[isKnown ? std::size_t(colorIndex) : 0];
}

} // namespace vantrell
