#pragma once

#include "rows/Column.h"
#include "rows/RowRecord.h"
#include "rows/SortDescriptor.h"
#include "support/threads/MainThread.h"

#include <QObject>

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

namespace vantrell
{

/// The rows of one tab: its list, what the user wants to see of it and in which order, and the visible rows,
/// which its table shows. Only one tab's rows are visible at a time (see MyDocument::tableArray()); the view
/// of another tab has none. Main thread, unless a member says otherwise.
class RowView : public QObject
{
    Q_OBJECT

public:
    /// How the visible rows are ordered: as the list, or by the sort descriptors. Rows that were added
    /// since come last.
    enum class Order { Document, Sorted };

    /// What one rebuild of the visible rows takes from the list.
    struct Filter {
        /// Asked once for each row of the list, in its order, on the thread of the rebuild; empty for all
        /// rows.
        std::function<bool(const RowRecord &row)> passes = {};
        Order order = Order::Sorted;
        /// Called on the main thread when the rows have become the visible ones; may be empty.
        std::function<void()> shown = {};
    };
    /// Makes the filter of a rebuild from what the user has chosen. On the main thread.
    using FilterMaker = std::function<Filter()>;

    /// Without these two, all rows are visible and are sorted by their values. The columns outlive this
    /// object.
    void setFilter(const Columns &columns, FilterMaker maker);
    const Columns &columns() const;

    /// What the table is sorted by, most important first; empty for no sorting.
    const std::vector<SortDescriptor> &sortDescriptors() const { return m_sortDescriptors; }
    void setSortDescriptors(std::vector<SortDescriptor> descriptors)
    {
        m_sortDescriptors = std::move(descriptors);
    }

    // The list

    const RowList &list() const { return m_list; }
    /// Replaces the list by a new one; the visible rows stay.
    void setList(RowList rows)
    {
        m_list = std::move(rows);
        ++m_generation;
        ++m_revision;
    }
    /// Counts how often the list was replaced by a new one.
    std::uint64_t generation() const { return m_generation; }
    /// Counts the changes of the list, and how often records were reported to have changed.
    std::uint64_t revision() const { return m_revision; }
    /// Adds a row at the end of the list, and of the visible rows of a visible view.
    void append(const RowRecordPtr &row);
    /// Takes rows out of the list and out of the visible rows. Emits nothing.
    void remove(const RowList &rows);
    /// Puts rows into the list, each at the index that it has afterwards, ascending. The visible rows stay.
    void insert(const RowList &rows, const std::vector<std::size_t> &indexes);

    /// Whether the list is being made. Any thread.
    bool isPopulating() const { return m_isPopulating; }
    /// Emits nothing, for it may come on any thread.
    void setPopulating(bool populating) { m_isPopulating = populating; }
    /// How many rows the running inventory has found so far. Any thread.
    std::size_t foundSoFar() const { return m_foundSoFar.load(std::memory_order_relaxed); }
    void setFoundSoFar(std::size_t count) { m_foundSoFar.store(count, std::memory_order_relaxed); }

    // The visible rows

    bool isVisible() const { return m_isVisible; }
    const RowList &visibleRows() const { return m_visibleRows; }
    Order order() const { return m_order; }

    /// Makes these the visible rows, and returns those that were.
    RowList exchange(RowList rows, Order order = Order::Sorted);
    void show(RowList rows, Order order = Order::Sorted) { exchange(std::move(rows), order); }
    /// The same with the whole list, which costs next to nothing when it is visible already.
    void showList();
    /// Sorts the visible rows, if there are any, and sets the sort descriptors.
    void sortBy(std::vector<SortDescriptor> descriptors);
    /// Another tab's rows become visible.
    void hide();
    /// Reports that records of visible rows have changed.
    void reload();

    /// While one of these lives, appended rows wait, and the table reloads once for all of them. Those that
    /// wait when the visible rows are replaced are not added to them. The view outlives it.
    class Updates
    {
    public:
        explicit Updates(RowView &view)
            : m_view(view)
        {
            ++m_view.m_updates;
        }
        ~Updates();
        Updates(const Updates &) = delete;
        Updates &operator=(const Updates &) = delete;

    private:
        RowView &m_view;
    };
    /// Shows the rows that wait.
    void showWaitingRows();

    /// Rebuilds the visible rows from the list: takes a snapshot on the main thread, picks and sorts the
    /// rows on the calling one, with no lock, and shows them on the main thread, unless another rebuild was
    /// started meanwhile or, on another thread than the main one, `isWanted` no longer holds then. False when
    /// the document closes first. Any thread.
    bool rebuild(MainThreadGate &mainThread, const std::function<bool()> &isWanted);

Q_SIGNALS:
    /// The view is about to become the visible one.
    void willBecomeVisible();
    /// Around every change of the visible rows, always in pairs.
    void willReload();
    void didReload();
    /// An inventory of the list has started or ended.
    void populatingChanged(bool isPopulating);

private:
    struct Snapshot;

    Snapshot snapshot();
    void commit(Snapshot snapshot);

    const Columns *m_columns = nullptr;
    FilterMaker m_makeFilter;
    std::vector<SortDescriptor> m_sortDescriptors;

    RowList m_list;
    std::uint64_t m_generation = 0;
    std::uint64_t m_revision = 0;
    std::atomic<bool> m_isPopulating = false;
    std::atomic<std::size_t> m_foundSoFar = 0;

    RowList m_visibleRows;
    bool m_isVisible = false;
    Order m_order = Order::Document;
    int m_updates = 0; // alive
    RowList m_waitingRows;
    std::uint64_t m_rebuilds = 0; // started so far
};

} // namespace vantrell
