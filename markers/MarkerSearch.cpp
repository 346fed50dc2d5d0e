#include "markers/MarkerSearch.h"

#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "rows/RowSort.h"

#include <QScopedValueRollback>

#include <utility>

namespace vantrell
{

RowView::Filter markerColorFilter(const ViewState &state)
{
    RowView::Filter filter{.order = RowView::Order::Document};
    if (const int item = state.markerFilter; item != 0) {
        filter.passes = [item](const RowRecord &marker) { return marker.get(MarkerKey::color) == item - 1; };
        filter.order = RowView::Order::Sorted;
    }
    return filter;
}

namespace
{

/// Whether all markers that fulfil the conditions fulfil the others, too.
bool isNarrower(const MarkerSearch::Conditions &conditions, const MarkerSearch::Conditions &others)
{
    return RowSearch::folded(conditions.text).contains(RowSearch::folded(others.text)) &&
           (!others.sequence || others.sequence == conditions.sequence) &&
           (!others.flag || others.flag == conditions.flag);
}

} // namespace

struct MarkerSearch::State {
    Conditions conditions;
    XmlNode sequence; ///< that of the conditions
    RowSearch search{appendMarkerTexts};
    /// No row that is hidden has come to fulfil the conditions since they were set.
    bool areKnown = false;

    /// Empty when all markers pass.
    std::function<bool(const RowRecord &)> condition() const
    {
        if (conditions.isEmpty())
            return {};
        const RowSearch::Condition holds = search.isEmpty() ? RowSearch::Condition() : search.condition();
        return [holds, flag = conditions.flag, bySequence = conditions.sequence.has_value(),
                sequence = sequence](const RowRecord &marker) {
            return (!bySequence || marker.get(MarkerKey::sequence) == sequence) &&
                   (!flag || hasFlag(marker, *flag)) && (!holds || holds(marker));
        };
    }

    RowView::Filter filter(const ViewState &view) const
    {
        RowView::Filter filter = markerColorFilter(view);
        if (const auto further = condition()) {
            const auto first = std::move(filter.passes);
            filter.passes = [first, further](const RowRecord &marker) {
                return (!first || first(marker)) && further(marker);
            };
        }
        return filter;
    }
};

MarkerSearch::MarkerSearch(MyDocument &document)
    : m_document(document)
    , m_state(std::make_shared<State>())
{
    RowView &view = m_document.rowView(Tab::Markers);
    view.setFilter(markerColumns, [this, state = m_state] {
        prepareAll();
        return state->filter(m_document.viewState());
    });
    QObject::connect(&view, &RowView::didReload, &m_context, [this] {
        if (!m_shows)
            m_base.reset();
    });
    QObject::connect(&m_document, &MyDocument::historyChanged, &m_context, [this] { forget(); });
}

MarkerSearch::~MarkerSearch()
{
    m_document.rowView(Tab::Markers).setFilter(markerColumns, [document = &m_document] {
        return markerColorFilter(document->viewState());
    });
}

const MarkerSearch::Conditions &MarkerSearch::conditions() const
{
    return m_state->conditions;
}

void MarkerSearch::setConditions(const Conditions &conditions)
{
    if (conditions == m_state->conditions)
        return;
    const Conditions before = std::exchange(m_state->conditions, conditions);
    m_state->search.setText(conditions.text);
    const MenuPtr menu = m_document.sequenceMenu();
    const auto item = std::size_t(conditions.sequence.value_or(0));
    m_state->sequence = item < menu->size() ? (*menu)[item].element : XmlNode();

    RowView &view = m_document.rowView(Tab::Markers);
    if (!view.isVisible() || view.isPopulating())
        return; // showing the tab, or the end of the inventory, applies them
    prepareAll();
    const bool narrows = std::exchange(m_state->areKnown, true) && isNarrower(conditions, before);
    view.showWaitingRows();
    if (!m_base && before.isEmpty())
        m_base = view.visibleRows();
    else if (!m_base && !narrows) // otherwise they need not be sorted yet
        m_base = unsearchedRows();
    RowList rows;
    if (const auto passes = m_state->condition()) {
        for (const RowRecordPtr &row : m_base ? *m_base : view.visibleRows()) {
            if (passes(*row))
                rows.push_back(row);
        }
    } else {
        rows = *m_base;
    }
    const QScopedValueRollback<bool> shows(m_shows, true);
    view.show(std::move(rows), view.order());
}

/// What the colour filter leaves, in the order in which the table is.
RowList MarkerSearch::unsearchedRows() const
{
    const RowView &view = m_document.rowView(Tab::Markers);
    RowList rows = view.list();
    if (const auto passes = markerColorFilter(m_document.viewState()).passes)
        std::erase_if(rows, [&passes](const RowRecordPtr &row) { return !passes(*row); });
    if (view.order() == RowView::Order::Sorted)
        rows = sortedRows(std::move(rows), view.sortDescriptors(), view.columns());
    return rows;
}

/// Keeps the texts of all rows, if they are searched.
void MarkerSearch::prepareAll()
{
    forgetOtherList();
    const RowView &view = m_document.rowView(Tab::Markers);
    if (!m_state->search.isEmpty() && !view.isPopulating())
        m_state->search.prepare(view.list());
}

bool MarkerSearch::prepare(std::chrono::milliseconds time)
{
    forgetOtherList();
    const RowView &view = m_document.rowView(Tab::Markers);
    return view.isPopulating() || m_state->search.prepare(view.list(), time);
}

void MarkerSearch::forget()
{
    m_state->search.forget();
    m_state->areKnown = false;
    m_base.reset();
}

void MarkerSearch::forgetOtherList()
{
    const std::uint64_t generation = m_document.rowView(Tab::Markers).generation();
    if (std::exchange(m_generation, generation) != generation)
        forget();
}

} // namespace vantrell
