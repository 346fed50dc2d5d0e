#include "markers/MarkerSearch.h"

#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "rows/RowSort.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QElapsedTimer>
#include <QPointer>
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

/// Of a list, whose rows are sorted without those that are hidden.
constexpr std::size_t mostSortedShare = 4;
constexpr std::size_t rowsBetweenLooks = 64; // at the clock

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

    /// Those that are no text; empty when all markers pass.
    std::function<bool(const RowRecord &)> otherConditions() const
    {
        if (!conditions.sequence && !conditions.flag)
            return {};
        return [flag = conditions.flag, bySequence = conditions.sequence.has_value(),
                sequence = sequence](const RowRecord &marker) {
            return (!bySequence || marker.get(MarkerKey::sequence) == sequence) &&
                   (!flag || hasFlag(marker, *flag));
        };
    }

    /// Empty when all markers pass.
    std::function<bool(const RowRecord &)> condition() const
    {
        if (conditions.isEmpty())
            return {};
        const RowSearch::Condition holds = search.isEmpty() ? RowSearch::Condition() : search.condition();
        return [holds, others = otherConditions()](const RowRecord &marker) {
            return (!others || others(marker)) && (!holds || holds(marker));
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

/// What shows without conditions, while it is being sorted.
struct MarkerSearch::Sorting {
    RowList rows;
    std::shared_ptr<RowSorter> sorter;
    bool hasBegun = false; ///< in the background, which alone uses the sorter then
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
            forgetBase();
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
    const bool showedAll = !m_base && before.isEmpty();
    const QScopedValueRollback<bool> shows(m_shows, true);
    if (!m_base && !narrows && !showedAll) {
        RowList found = foundInList();
        if (found.size() < view.list().size() / mostSortedShare) {
            view.show(sortedAsView(std::move(found)), view.order());
            return;
        }
        m_base = sortedAsView(unsearchedRows());
        m_places.clear();
    }
    RowList rows;
    if (conditions.isEmpty())
        rows = std::move(*std::exchange(m_base, std::nullopt));
    else if (m_base || showedAll)
        rows = foundIn(m_base ? *m_base : view.visibleRows());
    else // these need not be sorted, nor those that do not hold the conditions
        rows = foundAmong(view.visibleRows());
    RowList hidden = view.exchange(std::move(rows), view.order());
    if (showedAll)
        m_base = std::move(hidden);
}

/// Of what shows without conditions, whose places are kept.
RowList MarkerSearch::foundIn(const RowList &base)
{
    const RowSearch &search = m_state->search;
    if (search.isEmpty())
        return foundAmong(base);
    if (m_places.size() != base.size())
        m_places = search.placesOf(base);
    const RowSearch::Hits &hits = search.hits();
    const RowSearch::Condition holds = search.condition(); // of rows that are not kept
    const auto others = m_state->otherConditions();
    RowList rows;
    for (std::size_t i = 0; i < base.size(); ++i) {
        const std::uint32_t place = m_places[i];
        const bool isHit = place == RowSearch::nowhere ? holds(*base[i]) : hits[place];
        if (isHit && (!others || others(*base[i])))
            rows.push_back(base[i]);
    }
    return rows;
}

RowList MarkerSearch::foundAmong(const RowList &some) const
{
    RowList rows;
    const auto passes = m_state->condition();
    for (const RowRecordPtr &row : some) {
        if (!passes || passes(*row))
            rows.push_back(row);
    }
    return rows;
}

/// In the order of the list, with what the colour filter leaves.
RowList MarkerSearch::foundInList() const
{
    RowList rows;
    const auto passes = m_state->filter(m_document.viewState()).passes;
    for (const RowRecordPtr &row : m_document.rowView(Tab::Markers).list()) {
        if (!passes || passes(*row))
            rows.push_back(row);
    }
    return rows;
}

/// What the colour filter leaves.
RowList MarkerSearch::unsearchedRows() const
{
    RowList rows = m_document.rowView(Tab::Markers).list();
    if (const auto passes = markerColorFilter(m_document.viewState()).passes)
        std::erase_if(rows, [&passes](const RowRecordPtr &row) { return !passes(*row); });
    return rows;
}

/// In the order in which the table is.
RowList MarkerSearch::sortedAsView(RowList rows) const
{
    const RowView &view = m_document.rowView(Tab::Markers);
    if (view.order() == RowView::Order::Sorted)
        return sortedRows(std::move(rows), view.sortDescriptors(), view.columns());
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
    if (view.isPopulating())
        return true;
    return m_state->search.prepare(view.list(), time) && prepareBase(time);
}

/// Reads what is sorted, from where the last call ended, and then sorts it in the background; true when that
/// has begun or is not needed.
bool MarkerSearch::prepareBase(std::chrono::milliseconds time)
{
    const RowView &view = m_document.rowView(Tab::Markers);
    if (m_base || m_state->conditions.isEmpty() || !view.isVisible() ||
        view.order() != RowView::Order::Sorted)
        return true;
    if (!m_sorting)
        m_sorting = std::make_unique<Sorting>(
            Sorting{unsearchedRows(), std::make_shared<RowSorter>(view.sortDescriptors(), view.columns())});
    const std::shared_ptr<RowSorter> sorter = m_sorting->sorter;
    const RowList &rows = m_sorting->rows;
    QElapsedTimer elapsed;
    elapsed.start();
    while (sorter->size() < rows.size()) {
        sorter->add(*rows[sorter->size()]);
        if (sorter->size() % rowsBetweenLooks == 0 && elapsed.hasExpired(time.count()))
            return false;
    }
    if (std::exchange(m_sorting->hasBegun, true))
        return true;
    BackgroundWork::run([this, sorter, context = QPointer(&m_context)] {
        MainThread::post([this, sorter, context, order = sorter->order()] {
            if (context && m_sorting && m_sorting->sorter == sorter)
                takeBase(order);
        });
    });
    return true;
}

void MarkerSearch::takeBase(const std::vector<std::uint32_t> &order)
{
    const std::unique_ptr<Sorting> sorting = std::move(m_sorting);
    if (m_base || m_state->conditions.isEmpty())
        return;
    m_places.clear();
    m_base.emplace();
    m_base->reserve(order.size());
    for (const std::uint32_t row : order)
        m_base->push_back(std::move(sorting->rows[row]));
}

void MarkerSearch::forget()
{
    m_state->search.forget();
    m_state->areKnown = false;
    forgetBase();
}

void MarkerSearch::forgetBase()
{
    m_base.reset();
    m_places.clear();
    m_sorting.reset();
}

void MarkerSearch::forgetOtherList()
{
    const std::uint64_t generation = m_document.rowView(Tab::Markers).generation();
    if (std::exchange(m_generation, generation) != generation)
        forget();
}

} // namespace vantrell
