#include "document/widgets/WindowMarkerLists.h"

#include "document/widgets/DocumentWindow.h"
#include "document/widgets/WindowWork.h"
#include "interchange/widgets/MarkerListImport.h"
#include "interchange/widgets/MarkerListPanels.h"
#include "support/files/CancellableWrite.h"
#include "support/threads/BackgroundWork.h"
#include "table/widgets/TabPane.h"
#include "workbench/Workbench.h"

#include <QFileInfo>
#include <QLocale>

#include <memory>

namespace vantrell
{

bool WindowMarkerLists::mayChangeMarkers()
{
    if (m_state.isBusy() || m_window.refusesAfterFailedLoad())
        return false;
    // While markers are still being extracted the panel itself refuses.
    if (!m_window.isLoading() || m_window.workbench().document().isPopulating(Tab::Markers))
        return true;
    QVAlert::alertSheetWithMessageText(
        tr("The project is still loading"),
        tr("Please wait for the project to finish loading before attempting this operation."),
        m_window.alertParent());
    return false;
}

void WindowMarkerLists::runOpenPanel(const QString &format)
{
    m_window.commitEditing();
    if (!mayChangeMarkers() || m_state.isClosed())
        return;
    if (const auto panel = m_window.workbench().markerListImporter().showMarkerListOpenDialog(format))
        runMarkerListOpenPanel(
            *panel, &m_window, m_window.folder(), [this, format](const QStringList &paths) {
                m_window.whenIdle([this, paths, format] { importMarkerLists(paths, format); });
            });
}

void WindowMarkerLists::importMarkerLists(const QStringList &paths, const QString &format)
{
    if (m_window.refusesAfterFailedLoad() || m_state.isBusy() || m_state.stage() != WindowState::Stage::Ready)
        return;
    Workbench &workbench = m_window.workbench();
    auto *const import =
        new MarkerListImport(workbench.document(), workbench.markerListImporter(), paths, format, &m_window);
    QObject::connect(import, &MarkerListImport::progressed, &m_window,
                     [this](std::size_t done, std::size_t total) {
                         m_work.makeFixed(tr("Adding markers…"), done, total);
                     });
    QObject::connect(import, &MarkerListImport::ended, &m_window,
                     [this, import, paths](std::size_t count, std::size_t total) {
                         import->deleteLater();
                         m_work.end();
                         if (total > 0)
                             imported(count, total, paths);
                         Q_EMIT m_window.markersImported(count);
                     });
    const QString text = paths.size() == 1 ? tr("Reading “%1”…").arg(QFileInfo(paths.constFirst()).fileName())
                                           : tr("Reading %1 marker lists…").arg(paths.size());
    m_work.begin(text, WindowState::Work::Expendable, [import] { import->cancel(); });
    import->start();
}

void WindowMarkerLists::imported(std::size_t imported, std::size_t total, const QStringList &paths)
{
    const QLocale locale;
    const QString count = locale.toString(qulonglong(imported));
    const QString name = QFileInfo(paths.value(0)).fileName();
    const QString files = locale.toString(qlonglong(paths.size()));
    if (imported < total)
        showInMarkers(tr("%1 of %2 markers imported").arg(count, locale.toString(qulonglong(total))));
    else if (paths.size() > 1)
        showInMarkers(tr("%1 markers imported from %2 files").arg(count, files));
    else if (imported == 1)
        showInMarkers(tr("1 marker imported from “%1”").arg(name));
    else
        showInMarkers(tr("%1 markers imported from “%2”").arg(count, name));
}

void WindowMarkerLists::showInMarkers(const QString &text)
{
    if (m_window.selectedTab() != Tab::Markers)
        m_window.toolbarMarkers();
    m_window.pane(Tab::Markers).showMessage(text);
}

void WindowMarkerLists::runSavePanel(const QString &format)
{
    m_window.commitEditing();
    if (m_state.isBusy() || m_window.refusesAfterFailedLoad())
        return;
    if (const auto panel = m_window.workbench().markerListExporter().showMarkerListSaveDialog(format))
        runMarkerListSavePanel(*panel, &m_window, m_window.folder(), [this, format](const QString &path) {
            m_window.whenIdle([this, path, format] { exportMarkerList(path, format); });
        });
}

void WindowMarkerLists::exportMarkerList(const QString &path, const QString &format)
{
    const MyDocument *const document = m_window.document();
    if (m_window.refusesAfterFailedLoad() || m_state.isBusy() || !document)
        return;
    const QByteArray list = m_window.workbench().markerListExporter().textOfMarkerList(format).toUtf8();
    const std::size_t count = document->markerArray().size();
    const auto write = std::make_shared<CancellableWrite>();
    m_work.begin(tr("Writing “%1”…").arg(QFileInfo(path).fileName()), WindowState::Work::Expendable,
                 [this, write] {
                     if (write->cancel())
                         m_work.end();
                 });
    BackgroundWork::run(
        [write, path, list] { return FileUtilities::writeAtomically(path, list, write->check()); },
        document->mainThread(),
        [this, write, path, format, count](const Result<void> &written) {
            if (!write->isCancelled())
                exported(path, format, count, written);
        });
}

void WindowMarkerLists::exported(const QString &path, const QString &format, std::size_t count,
                                 const Result<void> &written)
{
    m_work.end();
    const MarkerListExporter &exporter = m_window.workbench().markerListExporter();
    if (!written) {
        exporter.tellOfFailure(format, written.message());
    } else {
        const QString name = QFileInfo(path).fileName();
        const QString text =
            count == 1 ? tr("1 marker exported to “%1”").arg(name)
                       : tr("%1 markers exported to “%2”").arg(QLocale().toString(qulonglong(count)), name);
        const QString unreadable = exporter.unreadableRowsText(format);
        showInMarkers(unreadable.isEmpty() ? text : text + QStringLiteral("; ") + unreadable);
    }
    if (!m_state.isClosed())
        Q_EMIT m_window.markersExported(written.isOk());
}

} // namespace vantrell
