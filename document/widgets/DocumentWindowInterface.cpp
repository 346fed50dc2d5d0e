#include "document/widgets/DocumentWindowInterface.h"

#include "document/widgets/ProgressSheet.h"
#include "markers/MarkerColumns.h"
#include "table/widgets/TabPane.h"

#include <utility>

namespace vantrell
{

void DocumentWindowInterface::connectTo(const Panes &panes, ProgressSheet *progress,
                                        std::function<void(Tab)> showTab)
{
    m_showTab = std::move(showTab);
    m_panes = panes;
    m_progress = progress;
}

void DocumentWindowInterface::disconnectFromWindow()
{
    m_panes = {};
    m_progress = nullptr;
    m_showTab = {};
}

template <typename Operation>
void DocumentWindowInterface::withPane(Tab tab, Operation operation)
{
    if (TabPane *const pane = m_panes[std::size_t(tab)])
        operation(*pane);
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

void DocumentWindowInterface::scrollToRow(Tab tab, std::size_t row)
{
    withPane(tab, [&](TabPane &pane) { pane.scrollToRow(row); });
}

void DocumentWindowInterface::showTab(Tab tab)
{
    if (m_showTab)
        m_showTab(tab);
}

void DocumentWindowInterface::editCell(Tab tab, std::size_t row, const QString &column)
{
    withPane(tab, [&](TabPane &pane) { pane.editCell(row, column); });
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

} // namespace vantrell
