#include "interchange/widgets/MarkerListPanels.h"

#include "support/widgets/FilePanel.h"

#include <QCoreApplication>

namespace vantrell
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("MarkerListPanels", source);
}

QString filterOf(const MarkerListPanel &panel)
{
    const QString kind =
        panel.format == MarkerListFormat::fcpx ? text("Final Cut Pro X XML files") : text("Marker lists");
    const QString filter =
        QStringLiteral("%1 (*.%2 *.%3)").arg(kind, panel.extension, panel.extension.toUpper());
    // Text files may have any extension.
    return panel.typeIdentifier.isNull() ? filter : filter + QStringLiteral(";;") + text("All files (*)");
}

} // namespace

void runMarkerListOpenPanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QStringList &)> &chosen)
{
    FilePanel::runForOpening({.window = window,
                              .title = text("Import Markers"),
                              .folder = folder,
                              .filter = filterOf(panel),
                              .acceptLabel = text("Import")},
                             chosen);
}

void runMarkerListSavePanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QString &)> &chosen)
{
    FilePanel::runForSaving({.window = window,
                             .title = text("Export Markers"),
                             .folder = folder,
                             .filter = filterOf(panel),
                             .extension = panel.extension,
                             .proposedName = panel.proposedName,
                             .acceptLabel = text("Export")},
                            chosen);
}

} // namespace vantrell
