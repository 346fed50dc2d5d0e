#include "cli/EditRun.h"

#include "cli/Console.h"

namespace vantrell::cli
{

/// Applies one operation; false when it named a row that is not there.
struct EditRun::Applier {
    EditRun &run;
    Workbench &workbench = run.m_session.workbench();
    MarkerEditor &markers = workbench.markerEditor();

    bool operator()(const SetCell &operation) const
    {
        if (!run.selectRows(Tab::Markers, operation.rows))
            return false;
        markers.setObjectValue(operation.value, operation.column);
        return true;
    }

    bool operator()(const AddMarker &) const
    {
        run.showMarkers();
        markers.addMarker();
        return true;
    }

    bool operator()(const AddFrames &operation) const
    {
        run.showMarkers();
        markers.addMarkerWithName(operation.name, operation.in, operation.out, operation.comment,
                                  operation.color, run.sequenceItem(operation.sequence));
        return true;
    }

    bool operator()(const AddTimecode &operation) const
    {
        run.showMarkers();
        markers.addMarkerWithName(operation.name, operation.start, operation.duration, operation.comment,
                                  operation.color, run.sequenceItem(operation.sequence));
        return true;
    }

    bool operator()(const RemoveMarkers &operation) const
    {
        if (!run.selectRows(Tab::Markers, operation.rows))
            return false;
        markers.removeMarkers();
        return true;
    }

    bool operator()(const OffsetMarkers &operation) const
    {
        if (!run.selectRows(Tab::Markers, operation.rows))
            return false;
        markers.offsetMarkers(operation.text);
        return true;
    }

    bool operator()(const SetEffect &operation) const
    {
        const RowList &effects = run.m_session.document().effectArray();
        if (operation.row < 0 || std::size_t(operation.row) >= effects.size())
            return false;
        workbench.effectEditor().updateXMLEffect(effects[std::size_t(operation.row)], operation.key,
                                                 operation.value);
        return true;
    }

    bool operator()(const RemoveEffects &operation) const
    {
        if (!run.selectRows(Tab::Effects, operation.rows))
            return false;
        workbench.effectEditor().removeEffects();
        return true;
    }
};

EditRun::EditRun(ProjectSession &session, const HeadlessAlertPresenter &presenter)
    : m_session(session)
    , m_presenter(presenter)
    , m_sequenceMenu(session.document().sequenceMenu())
{
}

bool EditRun::apply(const EditScript &script)
{
    std::size_t number = 0;
    const Applier applier{*this};
    for (const EditOperation &operation : script) {
        ++number;
        if (!std::visit(applier, operation)) {
            complain(QStringLiteral("Operation %1 of the script: there is no such row.").arg(number));
            return false;
        }
        if (m_presenter.questionRefused())
            return false;
    }
    return true;
}

bool EditRun::selectRows(Tab tab, const RowIndexes &rows)
{
    const std::size_t count = m_session.document().rowView(tab).list().size();
    const bool inRange = rows.empty() || (*rows.begin() >= 0 && std::size_t(*rows.rbegin()) < count);
    if (!inRange)
        return false;
    if (tab == Tab::Markers)
        showMarkers();
    else
        showEffects();
    m_session.selectRows(tab, std::vector<std::size_t>(rows.begin(), rows.end()));
    return true;
}

/// The rows on show then are the list, and every marker operation keeps them so.
void EditRun::showMarkers()
{
    MyDocument &document = m_session.document();
    if (document.tableTab() == Tab::Markers)
        return;
    document.viewState().selectedTab = Tab::Markers;
    document.viewState().markerFilter = 0;
    m_session.workbench().markerInventory().populateFilteredMarkerData();
}

void EditRun::showEffects()
{
    MyDocument &document = m_session.document();
    if (document.tableTab() == Tab::Effects)
        return;
    ViewState &view = document.viewState();
    view.selectedTab = Tab::Effects;
    view.effectType = 0;
    view.effectShowDefaults = true;
    view.effectSearch.clear();
    m_session.workbench().effectInventory().populateFilteredEffectData();
}

/// The menu's item; null for no index and for one that the menu does not have.
const MenuItem *EditRun::sequenceItem(std::optional<std::int64_t> index)
{
    const bool isItem = index && *index >= 0 && *index < std::int64_t(m_sequenceMenu->size());
    return isItem ? &(*m_sequenceMenu)[std::size_t(*index)] : nullptr;
}

} // namespace vantrell::cli
