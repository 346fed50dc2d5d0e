#include "rows/RowView.h"

#include "rows/RowSort.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

/// Fills the copy, which has room for them, with the rows. What they share with the earlier ones is moved,
/// for counting the references to a record touches it.
void fill(RowList &copy, const RowList &rows, RowList &earlier)
{
    auto next = earlier.begin();
    for (const RowRecordPtr &row : rows) {
        if (next != earlier.end() && *next == row)
            copy.push_back(std::move(*next++));
        else
            copy.push_back(row);
    }
}

RowList sortedByClick(RowList rows, std::vector<SortDescriptor> descriptors, const Columns &columns)
{
    const Column *const column =
        descriptors.empty() ? nullptr : findColumn(columns, descriptors.front().column);
    const bool isReversed = column && column->reversesWhole && descriptors.front().descending;
    if (isReversed)
        descriptors.front().descending = false;
    rows = sortedRows(std::move(rows), descriptors, columns);
    return isReversed ? reverseArray(rows) : rows;
}

} // namespace

/// What a rebuild is made of.
struct RowView::Snapshot {
    std::uint64_t rebuild = 0;
    Filter filter;
    std::vector<SortDescriptor> sortDescriptors;
    RowList rows;

    bool isWholeList() const { return !filter.passes && filter.order == Order::Document; }

    /// Takes the rows of the list that pass.
    void pick(const RowList &list)
    {
        if (!filter.passes) {
            rows = list;
            return;
        }
        for (const RowRecordPtr &row : list) {
            if (filter.passes(*row))
                rows.push_back(row);
        }
    }

    void sort(const Columns &columns)
    {
        if (filter.order == Order::Sorted)
            rows = sortedRows(std::move(rows), sortDescriptors, columns);
    }
};

void RowView::setFilter(const Columns &columns, FilterMaker maker)
{
    m_columns = &columns;
    m_makeFilter = std::move(maker);
}

const Columns &RowView::columns() const
{
    static const Columns none;
    return m_columns ? *m_columns : none;
}

void RowView::append(const RowRecordPtr &row)
{
    m_list.push_back(row);
    ++m_revision;
    if (!m_isVisible)
        return;
    m_waitingRows.push_back(row);
    if (m_updates == 0)
        showWaitingRows();
}

void RowView::remove(const RowList &rows)
{
    const auto removeFrom = [&rows](RowList &list) {
        // Rows in the order of the list take one comparison for each row of it.
        auto next = rows.begin();
        std::erase_if(list, [&](const RowRecordPtr &row) {
            const bool isNext = next != rows.end() && row == *next;
            next += isNext;
            return isNext;
        });
        const std::unordered_set<RowRecordPtr> others(next, rows.end());
        if (!others.empty())
            std::erase_if(list, [&others](const RowRecordPtr &row) { return others.contains(row); });
    };
    ++m_revision;
    removeFrom(m_list);
    removeFrom(m_visibleRows);
}

void RowView::insert(const RowList &rows, const std::vector<std::size_t> &indexes)
{
    RowList all;
    all.reserve(m_list.size() + rows.size());
    auto before = std::make_move_iterator(m_list.begin());
    const auto end = std::make_move_iterator(m_list.end());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const auto between =
            std::min(std::ptrdiff_t(indexes[i]) - std::ptrdiff_t(all.size()), std::ptrdiff_t(end - before));
        all.insert(all.end(), before, before + between);
        before += between;
        all.push_back(rows[i]);
    }
    all.insert(all.end(), before, end);
    m_list = std::move(all);
    ++m_revision;
}

RowList RowView::exchange(RowList rows, Order order)
{
    if (!m_isVisible)
        Q_EMIT willBecomeVisible();
    Q_EMIT willReload();
    m_isVisible = true;
    m_order = order;
    m_visibleRows.swap(rows);
    m_waitingRows.clear();
    Q_EMIT didReload();
    return rows;
}

void RowView::showList()
{
    if (!m_isVisible) {
        show(m_list, Order::Document);
        return;
    }
    const bool isChanged = m_visibleRows != m_list;
    RowList copy;
    if (isChanged)
        copy.reserve(m_list.size()); // nothing may fail between the signals
    Q_EMIT willReload();
    if (isChanged) {
        fill(copy, m_list, m_visibleRows);
        m_visibleRows.swap(copy);
    }
    m_order = Order::Document;
    m_waitingRows.clear();
    Q_EMIT didReload();
}

void RowView::sortBy(std::vector<SortDescriptor> descriptors)
{
    if (m_isVisible) {
        showWaitingRows();
        show(sortedByClick(m_visibleRows, descriptors, columns()));
    }
    m_sortDescriptors = std::move(descriptors);
}

void RowView::hide()
{
    if (!m_isVisible)
        return;
    Q_EMIT willReload();
    m_isVisible = false;
    m_visibleRows.clear();
    m_waitingRows.clear();
    Q_EMIT didReload();
}

void RowView::reload()
{
    ++m_revision;
    Q_EMIT willReload();
    Q_EMIT didReload();
}

RowView::Updates::~Updates()
{
    if (--m_view.m_updates == 0)
        m_view.showWaitingRows();
}

void RowView::showWaitingRows()
{
    if (m_waitingRows.empty())
        return;
    Q_EMIT willReload();
    m_visibleRows.insert(m_visibleRows.end(), m_waitingRows.begin(), m_waitingRows.end());
    m_waitingRows.clear();
    Q_EMIT didReload();
}

bool RowView::rebuild(MainThreadGate &mainThread, const std::function<bool()> &isWanted)
{
    Snapshot taken;
    RowList list; // a copy, for another thread
    const bool isWorker = !MainThread::isMainThread();
    if (!mainThread.runAndWait([&] {
            taken = snapshot();
            if (isWorker && !taken.isWholeList())
                list = m_list;
        }))
        return false;
    if (!taken.isWholeList()) {
        taken.pick(isWorker ? list : m_list);
        taken.sort(columns());
    }
    return mainThread.runAndWait([&] {
        const bool isOutdated = taken.rebuild != m_rebuilds || (isWorker && !isWanted());
        if (!isOutdated)
            commit(std::move(taken));
    });
}

RowView::Snapshot RowView::snapshot()
{
    Snapshot taken;
    taken.rebuild = ++m_rebuilds;
    if (m_makeFilter)
        taken.filter = m_makeFilter();
    taken.sortDescriptors = m_sortDescriptors;
    return taken;
}

void RowView::commit(Snapshot snapshot)
{
    // The user may have clicked a title since.
    if (snapshot.filter.order == Order::Sorted && snapshot.sortDescriptors != m_sortDescriptors)
        snapshot.rows = sortedByClick(std::move(snapshot.rows), m_sortDescriptors, columns());
    if (snapshot.isWholeList())
        showList();
    else
        show(std::move(snapshot.rows), snapshot.filter.order);
    if (snapshot.filter.shown)
        snapshot.filter.shown();
}

} // namespace vantrell
