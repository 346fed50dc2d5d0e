#include "support/widgets/SymbolIcon.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>

#include <algorithm>

static void registerWindowIcons()
{
    Q_INIT_RESOURCE(window_icons);
}

namespace vantrell
{

namespace
{

class SymbolIconEngine final : public QIconEngine
{
public:
    SymbolIconEngine(const QString &path, QPalette::ColorRole role, const QColor &fill)
        : m_path(path)
        , m_role(role)
        , m_fill(fill)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    /// The size is in the pixels of the device.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        // On a page or in a list the text is dimmed as a whole, together with what the symbol is filled with.
        const bool isDimmed = mode == QIcon::Disabled && m_role == QPalette::Text;
        const QString color = colorOf(mode).name();
        const QString fill = m_fill.name();
        const QString key = QStringLiteral("symbol %1 %2 %3 %4 %5 %6")
                                .arg(m_path, color, fill)
                                .arg(isDimmed)
                                .arg(size.width())
                                .arg(size.height());
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        QFile file(m_path);
        if (!file.open(QIODevice::ReadOnly))
            return QPixmap();
        QByteArray svg = file.readAll();
        svg.replace("currentColor", color.toLatin1()).replace("context-fill", fill.toLatin1());
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        const int side = std::min(size.width(), size.height());
        reader.setScaledSize({side, side});
        pixmap = QPixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setOpacity(isDimmed ? 0.5 : 1);
        painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, reader.read());
        painter.end();
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    QIconEngine *clone() const override { return new SymbolIconEngine(*this); }

private:
    QColor colorOf(QIcon::Mode mode) const
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        const bool isGrey = mode == QIcon::Disabled && m_role != QPalette::Text;
        return palette.color(isGrey ? QPalette::Disabled : QPalette::Active, m_role);
    }

    QString m_path;
    QPalette::ColorRole m_role;
    QColor m_fill;
};

} // namespace

QIcon symbolIcon(const QString &path, QPalette::ColorRole role, const QColor &fill)
{
    registerWindowIcons();
    return QIcon(new SymbolIconEngine(path, role, fill));
}

QIcon themeIcon(const QStringList &names, const QString &symbolPath)
{
    for (const QString &name : names) {
        const QIcon icon = QIcon::fromTheme(name);
        if (!icon.isNull())
            return icon;
    }
    return symbolIcon(symbolPath);
}

SymbolView::SymbolView(const QIcon &icon, int side, QWidget *parent)
    : QWidget(parent)
    , m_icon(icon)
{
    setFixedSize(side, side);
}

void SymbolView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_icon.paint(&painter, rect());
}

} // namespace vantrell
