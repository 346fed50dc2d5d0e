#include "interchange/widgets/MarkerListPanels.h"

#include "support/widgets/FilePanel.h"

#include <QCoreApplication>

namespace vantrell
{

namespace
{

struct MarkerListPanels {
    Q_DECLARE_TR_FUNCTIONS(MarkerListPanels)
};

QString filterOf(const MarkerListPanel &panel)
{
    const QString kind = panel.format == MarkerListFormat::fcpx
                             ? MarkerListPanels::tr("Final Cut Pro X XML files")
                             : MarkerListPanels::tr("Marker lists");
    const QString filter =
        QStringLiteral("%1 (*.%2 *.%3)").arg(kind, panel.extension, panel.extension.toUpper());
    // Text files may have any extension.
    return panel.typeIdentifier.isNull()
               ? filter
               : filter + QStringLiteral(";;") + MarkerListPanels::tr("All files (*)");
}

} // namespace

void runMarkerListOpenPanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QStringList &)> &chosen)
{
    FilePanel::runForOpening({.window = window,
                              .title = MarkerListPanels::tr("Import Markers"),
                              .folder = folder,
                              .filter = filterOf(panel),
                              .acceptLabel = MarkerListPanels::tr("Import")},
                             chosen);
}

void runMarkerListSavePanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            const std::function<void(const QString &)> &chosen)
{
    FilePanel::runForSaving({.window = window,
                             .title = MarkerListPanels::tr("Export Markers"),
                             .folder = folder,
                             .filter = filterOf(panel),
                             .extension = panel.extension,
                             .proposedName = panel.proposedName,
                             .acceptLabel = MarkerListPanels::tr("Export")},
                            chosen);
}

} // namespace vantrell
