#include "support/widgets/SymbolIcon.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QImageReader>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

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
    explicit SymbolIconEngine(const QString &path)
        : m_path(path)
    {
        QFile file(path);
        if (file.open(QIODevice::ReadOnly))
            m_svg = file.readAll();
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * ratio, mode, state));
    }

    /// The size is in the pixels of the device.
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        QByteArray svg = m_svg;
        svg.replace("currentColor", colorOf(mode).name().toLatin1());
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        const int side = std::min(size.width(), size.height());
        reader.setScaledSize({side, side});
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.drawImage((size.width() - side) / 2, (size.height() - side) / 2, reader.read());
        return pixmap;
    }

    QIconEngine *clone() const override { return new SymbolIconEngine(m_path); }

private:
    static QColor colorOf(QIcon::Mode mode)
    {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled)
            return palette.color(QPalette::Disabled, QPalette::ButtonText);
        if (mode == QIcon::Selected)
            return palette.color(QPalette::Active, QPalette::HighlightedText);
        return palette.color(QPalette::Active, QPalette::ButtonText);
    }

    QString m_path;
    QByteArray m_svg;
};

} // namespace

QIcon symbolIcon(const QString &path)
{
    registerWindowIcons();
    return QIcon(new SymbolIconEngine(path));
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

} // namespace vantrell
