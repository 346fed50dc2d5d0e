#include "rows/RowChanges.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

bool isEqual(const RowRecord &a, const RowRecord &b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        const RecordValue *const other = b.find(a.keyAt(i));
        if (!other || *other != a.valueAt(i))
            return false;
    }
    return true;
}

} // namespace

bool RowChanges::leftAllEqual() const
{
    return m_lists.empty() && std::all_of(m_values.begin(), m_values.end(), [](const Value &value) {
               if (value.whole)
                   return isEqual(*value.whole, *value.row);
               const RecordValue *const now = value.row->find(value.key);
               return now ? value.other && *value.other == *now : !value.other;
           });
}

std::size_t RowChanges::size() const
{
    std::size_t count = m_values.size();
    for (const List &list : m_lists)
        count += list.rows.size();
    return count;
}

void RowChanges::willSet(const RowRecordPtr &row, const RecordKey &key)
{
    if (m_whole.contains(row.get()))
        return;
    const RecordValue *const value = row->find(key);
    m_values.push_back({row, key, value ? std::optional(*value) : std::nullopt, nullptr});
}

void RowChanges::willChange(const RowRecordPtr &row)
{
    if (m_whole.insert(row.get()).second)
        m_values.push_back({row, RecordKey(QString()), std::nullopt, std::make_unique<RowRecord>(*row)});
}

void RowChanges::append(RowView &view, const RowRecordPtr &row)
{
    const std::size_t index = view.list().size();
    const bool continues = !m_lists.empty() && m_lists.back().view == &view && m_lists.back().isAddition &&
                           m_lists.back().indexes.back() + 1 == index;
    if (!continues)
        m_lists.push_back({&view, true, {}, {}});
    m_lists.back().indexes.push_back(index);
    m_lists.back().rows.push_back(row);
    view.append(row);
}

void RowChanges::remove(RowView &view, const RowList &rows)
{
    List change{&view, false, {}, {}};
    const RowList &list = view.list();
    const auto note = [&](const auto &isRemoved) {
        for (std::size_t i = 0; i < list.size() && change.rows.size() < rows.size(); ++i) {
            if (!isRemoved(list[i]))
                continue;
            change.indexes.push_back(i);
            change.rows.push_back(list[i]);
        }
    };
    // Most rows come in the order of the list.
    note([&](const RowRecordPtr &row) { return row == rows[change.rows.size()]; });
    if (change.rows.size() < rows.size()) {
        const std::unordered_set<RowRecordPtr> removed(rows.begin(), rows.end());
        change = {&view, false, {}, {}};
        note([&](const RowRecordPtr &row) { return removed.contains(row); });
    }
    if (!change.rows.empty())
        m_lists.push_back(std::move(change));
    view.remove(rows);
}

void RowChanges::append(RowChanges &&later)
{
    m_values.insert(m_values.end(), std::move_iterator(later.m_values.begin()),
                    std::move_iterator(later.m_values.end()));
    m_lists.insert(m_lists.end(), std::move_iterator(later.m_lists.begin()),
                   std::move_iterator(later.m_lists.end()));
    m_whole.clear();
    later = RowChanges();
}

void RowChanges::undo(const Skips &skips)
{
    for (auto list = m_lists.rbegin(); list != m_lists.rend(); ++list) {
        if (!skips(*list->view))
            put(*list, !list->isAddition);
    }
    for (auto value = m_values.rbegin(); value != m_values.rend(); ++value)
        exchange(*value);
}

void RowChanges::redo(const Skips &skips)
{
    for (const List &list : m_lists) {
        if (!skips(*list.view))
            put(list, list.isAddition);
    }
    for (Value &value : m_values)
        exchange(value);
}

void RowChanges::exchange(Value &value)
{
    if (value.whole) {
        std::swap(*value.whole, *value.row);
        return;
    }
    const RecordValue *const known = value.row->find(value.key);
    std::optional<RecordValue> now = known ? std::optional(*known) : std::nullopt;
    if (value.other)
        value.row->set(value.key, std::move(*value.other));
    else
        value.row->remove(value.key);
    value.other = std::move(now);
}

/// Makes the rows part of the list, or takes them out of it.
void RowChanges::put(const List &list, bool isPresent)
{
    if (isPresent)
        list.view->insert(list.rows, list.indexes);
    else
        list.view->remove(list.rows);
}

RowList RowChanges::changedRows() const
{
    RowList rows;
    rows.reserve(m_values.size());
    for (const Value &value : m_values)
        rows.push_back(value.row);
    return rows;
}

RowList RowChanges::rowsOf(const RowView &view, bool isAddition) const
{
    RowList rows;
    for (const List &list : m_lists) {
        if (list.view == &view && list.isAddition == isAddition)
            rows.insert(rows.end(), list.rows.begin(), list.rows.end());
    }
    return rows;
}

} // namespace vantrell
