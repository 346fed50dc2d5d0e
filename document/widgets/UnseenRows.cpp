#include "document/widgets/UnseenRows.h"

#include "document/MyDocument.h"

#include <algorithm>

namespace vantrell
{

UnseenRows::UnseenRows(const MyDocument &document, const EditStep &step)
    : m_tab(step.tab)
{
    const RowView &view = document.rowView(m_tab);
    if (view.generation() != step.generations[std::size_t(m_tab)])
        return; // the list was made anew since
    for (const RowList &rows :
         {step.rows.changedRows(), step.rows.addedRows(view), step.rows.removedRows(view)})
        m_rows.insert(rows.begin(), rows.end());
    for (const RowRecordPtr &row : view.visibleRows())
        m_rows.erase(row);
}

bool UnseenRows::remain(const MyDocument &document) const
{
    const RowList &rows = document.rowsOnShow(m_tab);
    const auto seen = std::count_if(rows.begin(), rows.end(),
                                    [this](const RowRecordPtr &row) { return m_rows.contains(row); });
    return std::size_t(seen) < m_rows.size();
}

} // namespace vantrell
