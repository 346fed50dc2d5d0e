#include "document/TableSorting.h"

#include "document/MyDocument.h"
#include "rows/RowSort.h"
#include "support/log/QVException.h"
#include "support/settings/UserDefaults.h"
#include "support/text/TextFormat.h"

namespace vantrell
{

namespace
{

constexpr QStringView columnFormat = u"%@SortedColumn";
constexpr QStringView descendingFormat = u"%@SortedDescending";

} // namespace

TableSorting::TableSorting(MyDocument &document, UserDefaults &defaults, Tab tab, const Columns &columns)
    : m_document(document)
    , m_defaults(defaults)
    , m_tab(tab)
    , m_columns(columns)
{
    const QString column = m_defaults.string(key(columnFormat));
    if (!column.isEmpty())
        m_descriptors.push_back({column, m_defaults.boolean(key(descendingFormat))});
}

QString TableSorting::prefixOf(Tab tab)
{
    switch (tab) {
    case Tab::Media:
        return QStringLiteral("media");
    case Tab::Effects:
        return QStringLiteral("effect");
    case Tab::Markers:
        return QStringLiteral("marker");
    }
    return QString();
}

QString TableSorting::key(QStringView format) const
{
    return formatText(format, prefixOf(m_tab));
}

void TableSorting::tableViewDidClickTableColumn(const QString &column)
{
    guarded("-[MyDocument tableView:didClickTableColumn:]", [&] {
        const bool isSortedColumn = m_defaults.string(key(columnFormat)) == column;
        const bool newDescending = isSortedColumn && !m_defaults.boolean(key(descendingFormat));
        std::vector<SortDescriptor> descriptors{{column, newDescending}};
        if (m_document.tableTab() == m_tab) {
            m_document.showWaitingRows();
            const Column *known = findColumn(m_columns, column);
            const bool isReversed = newDescending && known && known->reversesWhole;
            RowList rows =
                sortedRows(m_document.tableArray(), {{column, newDescending && !isReversed}}, m_columns);
            if (isReversed)
                rows = reverseArray(rows);
            m_document.setTableArray(m_tab, std::move(rows));
        }
        m_descriptors = std::move(descriptors);
        PropertyListDictionary state;
        state.insert(key(descendingFormat), newDescending);
        state.insert(key(columnFormat), column);
        m_defaults.setValues(state);
    });
}

} // namespace vantrell
