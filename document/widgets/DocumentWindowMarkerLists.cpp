// The marker list panels of DocumentWindow.

#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/ProgressSheet.h"
#include "interchange/widgets/MarkerListImport.h"
#include "interchange/widgets/MarkerListPanels.h"
#include "markers/widgets/MarkersPane.h"
#include "support/files/CancellableWrite.h"
#include "support/threads/BackgroundWork.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QLocale>

#include <memory>

namespace vantrell
{

bool DocumentWindow::mayChangeMarkers()
{
    if (m_isBusy || refusesAfterFailedLoad())
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
    if (refusesAfterFailedLoad() || m_isBusy || m_closing || m_state != State::Ready)
        return;
    auto *const import =
        new MarkerListImport(m_workbench->document(), m_workbench->markerListImporter(), paths, format, this);
    connect(import, &MarkerListImport::progressed, this, [this](std::size_t done, std::size_t total) {
        m_progress->updateProgressLabel(tr("Adding markers…"));
        m_progress->setProgress(done, total);
        m_givesUpForClosing = false;
        setCancellable(false);
    });
    connect(import, &MarkerListImport::ended, this,
            [this, import, paths](std::size_t imported, std::size_t total) {
                import->deleteLater();
                endBusy();
                if (total > 0)
                    tellOfImport(imported, total, paths);
                Q_EMIT markersImported(imported);
            });
    const QString name = QFileInfo(paths.value(0)).fileName();
    beginBusy(paths.size() == 1 ? tr("Reading “%1”…").arg(name)
                                : tr("Reading %1 marker lists…").arg(paths.size()),
              [import] { import->cancel(); });
    m_givesUpForClosing = true;
    import->start();
}

void DocumentWindow::tellOfImport(std::size_t imported, std::size_t total, const QStringList &paths)
{
    const QLocale locale;
    const QString count = locale.toString(qulonglong(imported));
    const QString name = QFileInfo(paths.value(0)).fileName();
    const QString files = locale.toString(qlonglong(paths.size()));
    if (imported < total)
        tellInMarkers(tr("%1 of %2 markers imported").arg(count, locale.toString(qulonglong(total))));
    else if (paths.size() > 1)
        tellInMarkers(tr("%1 markers imported from %2 files").arg(count, files));
    else if (imported == 1)
        tellInMarkers(tr("1 marker imported from “%1”").arg(name));
    else
        tellInMarkers(tr("%1 markers imported from “%2”").arg(count, name));
}

void DocumentWindow::tellInMarkers(const QString &text)
{
    if (selectedTab() != Tab::Markers)
        toolbarMarkers();
    markersPane().showMessage(text);
}

void DocumentWindow::runSavePanel(const QString &format)
{
    commitEditing();
    if (m_isBusy || refusesAfterFailedLoad())
        return;
    if (const auto panel = m_workbench->markerListExporter().showMarkerListSaveDialog(format)) {
        runMarkerListSavePanel(*panel, this, folder(),
                               [this, format](const QString &path) { exportMarkerList(path, format); });
    }
}

void DocumentWindow::exportMarkerList(const QString &path, const QString &format)
{
    if (refusesAfterFailedLoad() || m_isBusy || !document())
        return;
    const QByteArray list = m_workbench->markerListExporter().textOfMarkerList(format).toUtf8();
    const std::size_t count = m_workbench->document().markerArray().size();
    const auto write = std::make_shared<CancellableWrite>();
    beginBusy(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), [this, write] {
        if (write->cancel())
            endBusy();
    });
    m_givesUpForClosing = true;
    const auto gate = m_workbench->document().mainThread();
    BackgroundWork::run([this, gate, write, path, format, count, list] {
        const Result<void> written = FileUtilities::writeAtomically(path, list, write->check());
        gate->post([this, write, path, format, count, written] {
            if (!write->isCancelled())
                exportEnded(path, format, count, written);
        });
    });
}

void DocumentWindow::exportEnded(const QString &path, const QString &format, std::size_t count,
                                 const Result<void> &written)
{
    endBusy();
    const QString name = QFileInfo(path).fileName();
    if (!written)
        m_workbench->markerListExporter().tellOfFailure(format, written.message());
    else if (count == 1)
        tellOfExport(tr("1 marker exported to “%1”").arg(name), format);
    else
        tellOfExport(tr("%1 markers exported to “%2”").arg(QLocale().toString(qulonglong(count)), name),
                     format);
    if (!m_closing)
        Q_EMIT markersExported(written.isOk());
}

void DocumentWindow::tellOfExport(const QString &text, const QString &format)
{
    const QString unreadable = m_workbench->markerListExporter().unreadableRowsText(format);
    tellInMarkers(unreadable.isEmpty() ? text : text + QStringLiteral("; ") + unreadable);
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
