#include "compare/widgets/ChangeColors.h"

#include "support/widgets/ShownText.h"

#include <QPainter>
#include <QPixmap>

namespace vantrell::ChangeColors
{

QColor of(EventChange::Kind kind, const QPalette &palette)
{
    using Kind = EventChange::Kind;
    switch (kind) {
    case Kind::Added:
        return {0x00, 0x9E, 0x73};
    case Kind::Removed:
        return {0xD5, 0x5E, 0x00};
    case Kind::Replaced:
        return {0xE6, 0x9F, 0x00};
    case Kind::Moved:
        return {0x56, 0xB4, 0xE9};
    case Kind::Trimmed:
        return {0x00, 0x72, 0xB2};
    case Kind::Slipped:
        return {0xCC, 0x79, 0xA7};
    case Kind::Speed:
        return {0xF0, 0xE4, 0x42};
    case Kind::Track:
        return palette.color(QPalette::WindowText);
    case Kind::Effects:
    case Kind::Unchanged:
        break;
    }
    const bool isDark = palette.color(QPalette::Base).lightness() < 128;
    return isDark ? QColor(0x6A, 0x6A, 0x6E) : QColor(0xC4, 0xC4, 0xC8);
}

QColor textOn(const QColor &color)
{
    return qGray(color.rgb()) > 125 ? QColor(Qt::black) : QColor(Qt::white);
}

QIcon swatch(EventChange::Kind kind, const QPalette &palette)
{
    constexpr int side = 12;
    constexpr int scale = 2; // for screens of high density
    QPixmap pixmap(side * scale, side * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    const QRectF square(0.5, 0.5, side - 1, side - 1);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.setBrush(of(kind, palette));
    painter.drawRect(square);
    if (isHatched(kind)) {
        painter.setBrush(QBrush(palette.color(QPalette::WindowText), Qt::BDiagPattern));
        painter.drawRect(square);
    }
    painter.end();
    return QIcon(pixmap);
}

QString title(EventChange::Kind kind)
{
    EventChange change;
    change.kind = kind;
    QString name = change.kindName();
    name[0] = name[0].toUpper();
    return shownValue(name);
}

} // namespace vantrell::ChangeColors
