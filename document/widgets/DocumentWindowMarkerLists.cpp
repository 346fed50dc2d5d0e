// The marker list panels of DocumentWindow.

#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/MarkerListImport.h"
#include "document/widgets/MarkerListPanels.h"
#include "document/widgets/MarkersPane.h"
#include "document/widgets/ProgressSheet.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QLocale>

namespace vantrell
{

bool DocumentWindow::mayChangeMarkers()
{
    if (m_isBusy)
        return false;
    if (m_state != State::Loading || m_workbench->document().isPopulating(Tab::Markers))
        return true; // whoever is asked next looks at the markers themselves
    QVAlert::alertSheetWithMessageText(
        tr("The project is still loading"),
        tr("Please wait for the project to finish loading before attempting this operation."),
        m_interface->alertParent());
    return false;
}

void DocumentWindow::runOpenPanel(const QString &format)
{
    commitEditing();
    if (!mayChangeMarkers() || m_closing)
        return;
    if (const auto panel = m_workbench->markerListImporter().showMarkerListOpenDialog(format)) {
        runMarkerListOpenPanel(*panel, this, folder(), [this, format](const QStringList &paths) {
            importMarkerLists(paths, format);
        });
    }
}

void DocumentWindow::importMarkerLists(const QStringList &paths, const QString &format)
{
    if (m_isBusy || m_closing || m_state != State::Ready)
        return;
    auto *const import =
        new MarkerListImport(m_workbench->document(), m_workbench->markerListImporter(), paths, format, this);
    connect(import, &MarkerListImport::progressed, this, [this](std::size_t done, std::size_t total) {
        m_progress->updateProgressLabel(tr("Adding markers…"));
        m_progress->setProgress(done, total);
        m_givesUpForClosing = false;
        setCancellable(false);
    });
    connect(import, &MarkerListImport::ended, this, [this, import, paths](std::size_t imported) {
        import->deleteLater();
        endBusy();
        if (imported > 0)
            tellOfImport(imported, paths);
        Q_EMIT markersImported(imported);
    });
    const QString name = QFileInfo(paths.value(0)).fileName();
    beginBusy(paths.size() == 1 ? tr("Reading “%1”…").arg(name)
                                : tr("Reading %1 marker lists…").arg(paths.size()),
              [import] { import->cancel(); });
    m_givesUpForClosing = true;
    import->start();
}

void DocumentWindow::tellOfImport(std::size_t imported, const QStringList &paths)
{
    const QString source = paths.size() == 1 ? tr("from “%1”").arg(QFileInfo(paths.constFirst()).fileName())
                                             : tr("from %1 files").arg(paths.size());
    const QString count = imported == 1
                              ? tr("1 marker imported")
                              : tr("%1 markers imported").arg(QLocale().toString(qulonglong(imported)));
    markersPane().showMessage(count + QLatin1Char(' ') + source);
}

void DocumentWindow::runSavePanel(const QString &format)
{
    commitEditing();
    if (m_isBusy)
        return;
    if (const auto panel = m_workbench->markerListExporter().showMarkerListSaveDialog(format)) {
        runMarkerListSavePanel(*panel, this, folder(),
                               [this, format](const QString &path) { exportMarkerList(path, format); });
    }
}

void DocumentWindow::exportMarkerList(const QString &path, const QString &format)
{
    const MarkerListExporter &exporter = m_workbench->markerListExporter();
    const std::size_t count = m_workbench->document().markerArray().size();
    if (!exporter.markerSaveDialogDidEnd(path, MarkerListPanel::accepted, format) || m_closing)
        return;
    const QString name = QFileInfo(path).fileName();
    markersPane().showMessage(
        count == 1 ? tr("1 marker exported to “%1”").arg(name)
                   : tr("%1 markers exported to “%2”").arg(QLocale().toString(qulonglong(count)), name));
}

void DocumentWindow::importFCPMarkers()
{
    runOpenPanel(MarkerListFormat::fcp);
}

void DocumentWindow::importAvidLocators()
{
    runOpenPanel(MarkerListFormat::avid);
}

void DocumentWindow::importFCPXMarkers()
{
    runOpenPanel(MarkerListFormat::fcpx);
}

void DocumentWindow::exportFCPMarkers()
{
    runSavePanel(MarkerListFormat::fcp);
}

void DocumentWindow::exportAvidLocators()
{
    runSavePanel(MarkerListFormat::avid);
}

} // namespace vantrell
