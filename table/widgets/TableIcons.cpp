#include "table/widgets/TableIcons.h"

#include "markers/MarkerColors.h"
#include "media/MediaFile.h"
#include "media/MediaKeys.h"
#include "support/files/FileUtilities.h"
#include "support/widgets/SymbolIcon.h"

#include <QHash>
#include <QMimeDatabase>
#include <QPalette>

#include <array>

static void registerTableIcons()
{
    Q_INIT_RESOURCE(table_icons);
}

namespace vantrell
{

namespace
{

QIcon tableSymbol(const QString &name, const QColor &fill = QColor())
{
    registerTableIcons();
    return symbolIcon(QStringLiteral(":/table-icons/%1.svg").arg(name), QPalette::Text, fill);
}

QString symbolOfFile(const QString &filename)
{
    const QString kind = MediaFile::fileTypeForPath(filename);
    return kind == MediaKind::movieClip   ? QStringLiteral("movie")
           : kind == MediaKind::audioClip ? QStringLiteral("audio")
           : kind == MediaKind::image     ? QStringLiteral("picture")
                                          : QStringLiteral("page");
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
            icon = tableSymbol(symbolOfFile(filename));
    }
    return icon;
}

QIcon TableIcons::missing()
{
    static const QIcon icon = tableSymbol(QStringLiteral("missing"), QColor(240, 160, 0));
    return icon;
}

QIcon TableIcons::volume(const QString &path)
{
    static const QIcon symbol = tableSymbol(QStringLiteral("volume"));
    static const QIcon startUp = QIcon::fromTheme(QStringLiteral("drive-harddisk"), symbol);
    static const QIcon mounted = QIcon::fromTheme(QStringLiteral("drive-removable-media"), symbol);
    return path == QStringLiteral("/") ? startUp : mounted;
}

QIcon TableIcons::named(const QString &name)
{
    static const QIcon sequence = tableSymbol(QStringLiteral("sequence"));
    static const QIcon clip = tableSymbol(QStringLiteral("clip"));
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
            made[i] = tableSymbol(QStringLiteral("marker"), QColor(color.red, color.green, color.blue));
        }
        return made;
    }();
    const bool isKnown = colorIndex >= 0 && colorIndex < int(icons.size());
    return icons[isKnown ? std::size_t(colorIndex) : 0];
}

} // namespace vantrell
