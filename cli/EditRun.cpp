#include "cli/EditRun.h"

#include "cli/Console.h"

namespace vantrell::cli
{

/// Applies one operation; false when a row is out of range.
struct EditRun::Applier {
    EditRun &run;
    MyDocument &document = run.m_session.document();
    MarkerEditor &markers = run.m_session.workbench().markerEditor();
    EffectEditor &effects = run.m_session.workbench().effectEditor();

    bool operator()(const SetCell &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) {
            markers.setValue(records, operation.column, operation.value);
        });
    }

    bool operator()(const AddMarker &) const
    {
        markers.addMarker();
        return true;
    }

    bool operator()(const AddFrames &operation) const
    {
        markers.addMarkerWithName(operation.name, operation.in, operation.out, operation.comment,
                                  operation.color, operation.sequence);
        return true;
    }

    bool operator()(const AddTimecode &operation) const
    {
        markers.addMarkerWithName(operation.name, operation.start, operation.duration, operation.comment,
                                  operation.color, operation.sequence);
        return true;
    }

    bool operator()(const RemoveMarkers &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) { markers.remove(records); });
    }

    bool operator()(const OffsetMarkers &operation) const
    {
        return edit(Tab::Markers, operation.rows, [&](const RowList &records) {
            markers.offset(records, operation.text, document.markerArray());
        });
    }

    bool operator()(const SetEffect &operation) const
    {
        return edit(Tab::Effects, {operation.row}, [&](const RowList &records) {
            effects.updateXMLEffect(records.front(), operation.key, operation.value);
        });
    }

    bool operator()(const RemoveEffects &operation) const
    {
        return edit(Tab::Effects, operation.rows, [&](const RowList &records) { effects.remove(records); });
    }

    bool operator()(const Undo &) const
    {
        document.undo();
        return true;
    }

    bool operator()(const Redo &) const
    {
        document.redo();
        return true;
    }

private:
    template <typename Change>
    bool edit(Tab tab, const RowIndexes &rows, Change change) const
    {
        const RowList &list = document.rowView(tab).list();
        const bool isInRange =
            rows.empty() || (*rows.begin() >= 0 && std::size_t(*rows.rbegin()) < list.size());
        if (!isInRange)
            return false;
        RowList records;
        for (const std::int64_t row : rows)
            records.push_back(list[std::size_t(row)]);
        change(records);
        return true;
    }
};

EditRun::EditRun(ProjectSession &session, const HeadlessAlertPresenter &presenter)
    : m_session(session)
    , m_presenter(presenter)
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

} // namespace vantrell::cli
