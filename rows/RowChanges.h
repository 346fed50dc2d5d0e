#pragma once

#include "rows/RowView.h"

#include <functional>
#include <memory>
#include <optional>
#include <unordered_set>

namespace vantrell
{

/// What edits did to rows, in order, so that it can be undone and redone: the values of records, and the rows
/// that were added to a list and removed from it. A row that comes back is the same record. The memory grows
/// with what was changed. Main thread; the views outlive it.
class RowChanges
{
public:
    bool isEmpty() const { return m_values.empty() && m_lists.empty(); }
    /// Whether all rows are as they were before: equal values were set, and no row was added or removed.
    bool leftAllEqual() const;
    /// How many values and rows were changed.
    std::size_t size() const;

    // Recording

    /// To be called before the key's value is set in a record, or removed as its last one.
    void willSet(const RowRecordPtr &row, const RecordKey &key);
    /// To be called before a record is changed in any other way. Remembers all its values, to which later
    /// changes of it belong.
    void willChange(const RowRecordPtr &row);
    /// Adds a row at the end of the view's list.
    void append(RowView &view, const RowRecordPtr &row);
    /// Removes rows from the view's list and its visible rows.
    void remove(RowView &view, const RowList &rows);
    /// Adds the later changes.
    void append(RowChanges &&later);

    // Changing back and forth, always in turns

    /// Views for which this is true are left as they are.
    using Skips = std::function<bool(const RowView &view)>;
    void undo(const Skips &skips);
    void redo(const Skips &skips);

    /// The records with changed values, in order, some of them more than once.
    RowList changedRows() const;
    /// The rows that were added to the view's list, or removed from it, when the changes were made.
    RowList addedRows(const RowView &view) const { return rowsOf(view, true); }
    RowList removedRows(const RowView &view) const { return rowsOf(view, false); }

private:
    struct Value {
        RowRecordPtr row;
        RecordKey key;
        std::optional<RecordValue> other; ///< what undoing or redoing sets; nothing: it removes the key
        std::unique_ptr<RowRecord> whole; ///< all that it sets, in place of the value
    };
    struct List {
        RowView *view;
        bool isAddition;
        std::vector<std::size_t> indexes; ///< of the rows in the list that has them, ascending
        RowList rows;
    };

    static void exchange(Value &value);
    static void put(const List &list, bool isPresent);
    RowList rowsOf(const RowView &view, bool isAddition) const;

    std::vector<Value> m_values;
    std::vector<List> m_lists;
    std::unordered_set<const RowRecord *> m_whole; // recorded with all their values since the last append()
};

} // namespace vantrell
