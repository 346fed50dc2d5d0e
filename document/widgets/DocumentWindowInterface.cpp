#include "document/widgets/DocumentWindowInterface.h"

#include "document/widgets/ProgressSheet.h"
#include "markers/MarkerColumns.h"
#include "table/widgets/TabPane.h"

namespace vantrell
{

void DocumentWindowInterface::connectTo(const Panes &panes, ProgressSheet *progress)
{
    m_panes = panes;
    m_progress = progress;
}

void DocumentWindowInterface::disconnectFromWindow()
{
    disconnect();
    m_panes = {};
    m_progress = nullptr;
}

template <typename Operation>
void DocumentWindowInterface::withPane(Tab tab, Operation operation)
{
    if (TabPane *const pane = m_panes[std::size_t(tab)])
        operation(*pane);
}

template <typename Operation>
void DocumentWindowInterface::withPanes(Operation operation)
{
    for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers})
        withPane(tab, operation);
}

void DocumentWindowInterface::startSpinner(Tab tab)
{
    withPane(tab, [](TabPane &pane) { pane.setSpinning(true); });
}

void DocumentWindowInterface::stopSpinner(Tab tab)
{
    withPane(tab, [](TabPane &pane) { pane.setSpinning(false); });
}

void DocumentWindowInterface::tableWillReload()
{
    withPanes([](TabPane &pane) { pane.tableWillReload(); });
}

void DocumentWindowInterface::tableDidReload()
{
    withPanes([](TabPane &pane) { pane.tableDidReload(); });
}

void DocumentWindowInterface::setLabel(Label label, const QString &text)
{
    withPanes([&](TabPane &pane) { pane.setLabel(label, text); });
}

void DocumentWindowInterface::showMessage(Tab tab, const QString &text)
{
    withPane(tab, [&](TabPane &pane) { pane.showMessage(text); });
}

void DocumentWindowInterface::setSequenceMenu(const MenuPtr &menu)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.setSequenceMenu(menu); });
}

std::vector<std::size_t> DocumentWindowInterface::selectedRows(Tab tab)
{
    std::vector<std::size_t> rows;
    withPane(tab, [&](TabPane &pane) { rows = pane.selectedRows(); });
    return rows;
}

void DocumentWindowInterface::selectRows(Tab tab, const std::vector<std::size_t> &rows)
{
    withPane(tab, [&](TabPane &pane) { pane.selectRows(rows); });
}

void DocumentWindowInterface::editCell(Tab tab, std::size_t row, const QString &column)
{
    withPane(tab, [&](TabPane &pane) { pane.editCell(row, column); });
}

std::vector<SortDescriptor> DocumentWindowInterface::sortDescriptors(Tab tab)
{
    std::vector<SortDescriptor> descriptors;
    withPane(tab, [&](TabPane &pane) { descriptors = pane.sortDescriptors(); });
    return descriptors;
}

QStringList DocumentWindowInterface::markerColumns()
{
    QStringList columns;
    withPane(Tab::Markers, [&](TabPane &pane) { columns = pane.columns(); });
    return columns;
}

void DocumentWindowInterface::addMarkerColumn(const QString &identifier, const QString &title)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.addColumn(markerFieldColumn(identifier, title)); });
}

void DocumentWindowInterface::removeMarkerColumn(const QString &identifier)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.removeColumn(identifier); });
}

void DocumentWindowInterface::moveMarkerColumn(const QString &identifier, int index)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.moveColumn(identifier, index); });
}

void DocumentWindowInterface::setMarkerPresetMenu(const QStringList &titles, int selected)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.setMarkerPresetMenu(titles, selected); });
}

void DocumentWindowInterface::setMarkerLabels(const QStringList &labels)
{
    withPane(Tab::Markers, [&](TabPane &pane) { pane.setMarkerLabels(labels); });
}

void DocumentWindowInterface::showMarkerPresetSheet()
{
    withPane(Tab::Markers, [](TabPane &pane) { pane.showMarkerPresetSheet(); });
}

void DocumentWindowInterface::hideMarkerPresetSheet()
{
    withPane(Tab::Markers, [](TabPane &pane) { pane.hideMarkerPresetSheet(); });
}

void DocumentWindowInterface::setMediaChart(const std::vector<double> &values)
{
    withPane(Tab::Media, [&](TabPane &pane) { pane.setMediaChart(values); });
}

void DocumentWindowInterface::startProgress()
{
    if (m_progress)
        m_progress->startProgress();
}

void DocumentWindowInterface::updateProgressLabel(const QString &text)
{
    if (m_progress)
        m_progress->updateProgressLabel(text);
}

void DocumentWindowInterface::endProgress()
{
    if (m_progress)
        m_progress->endProgress();
}

void DocumentWindowInterface::loadFinished(bool loaded, const QString &message, const QString &notice)
{
    Q_EMIT loadEnded(loaded, message, notice);
}

void DocumentWindowInterface::inventoriesFinished()
{
    Q_EMIT inventoriesEnded();
}

void DocumentWindowInterface::editingAllowedChanged()
{
    Q_EMIT mayEditChanged();
}

void DocumentWindowInterface::setEdited(bool edited)
{
    Q_EMIT editedChanged(edited);
}

} // namespace vantrell
