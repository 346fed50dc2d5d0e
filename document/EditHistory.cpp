#include "document/EditHistory.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vantrell
{

KeptSelection::KeptSelection(RowList selected, const RowList &list)
{
    if (selected.size() <= large) {
        m_rows = std::move(selected);
        return;
    }
    const std::unordered_set<RowRecordPtr> chosen(selected.begin(), selected.end());
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (!chosen.contains(list[i]))
            continue;
        const bool continues = !m_ranges.empty() && m_ranges.back().first + m_ranges.back().second == i;
        if (continues)
            ++m_ranges.back().second;
        else
            m_ranges.emplace_back(i, 1);
    }
}

RowList KeptSelection::rows(const RowList &list, bool isReplaced) const
{
    RowList found = m_rows;
    for (const auto &[first, count] : m_ranges) {
        if (!isReplaced && first + count <= list.size())
            found.insert(found.end(), list.begin() + std::ptrdiff_t(first),
                         list.begin() + std::ptrdiff_t(first + count));
    }
    return found;
}

void EditHistory::push(EditStep step)
{
    m_steps.resize(m_done);
    const bool continues = step.group != 0 && canUndo() && toUndo().group == step.group &&
                           toUndo().generations == step.generations &&
                           toUndo().marks.after == step.marks.before;
    if (continues) {
        EditStep &last = toUndo();
        last.tree.append(std::move(step.tree));
        last.rows.append(std::move(step.rows));
        last.marks.append(step.marks);
        return;
    }
    m_steps.push_back(std::move(step));
    ++m_done;
}

void EditHistory::dropEmpty()
{
    std::size_t done = 0;
    for (std::size_t i = 0; i < m_done; ++i)
        done += m_steps[i].isEmpty() ? 0 : 1;
    const auto isEmpty = [](const EditStep &step) { return step.isEmpty(); };
    m_steps.erase(std::remove_if(m_steps.begin(), m_steps.end(), isEmpty), m_steps.end());
    m_done = done;
}

void EditHistory::clear()
{
    m_steps.clear();
    m_done = 0;
}

} // namespace vantrell
