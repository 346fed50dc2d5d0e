#include "document/TableSorting.h"

#include "document/MyDocument.h"
#include "support/log/QVException.h"
#include "support/settings/UserDefaults.h"
#include "support/text/TextFormat.h"

namespace vantrell
{

namespace
{

constexpr QStringView columnFormat = u"%@SortedColumn";
constexpr QStringView descendingFormat = u"%@SortedDescending";

/// Columns whose rows are sorted upwards and then turned round, equal ones as well.
bool isReversedWhole(const QString &column)
{
    return column == QStringLiteral("in") || column == QStringLiteral("out");
}

} // namespace

TableSorting::TableSorting(MyDocument &document, UserDefaults &defaults, Tab tab,
                           SortValueOfColumn valueOfColumn)
    : m_document(document)
    , m_defaults(defaults)
    , m_tab(tab)
    , m_valueOfColumn(std::move(valueOfColumn))
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
            RowList rows = m_document.tableArray();
            if (isReversedWhole(column)) {
                rows = sortedRows(std::move(rows), {{column, false}}, m_valueOfColumn);
                if (newDescending)
                    rows = reverseArray(rows);
            } else {
                rows = sortedRows(std::move(rows), descriptors, m_valueOfColumn);
            }
            m_document.setTableArray(m_tab, std::move(rows));
        }
        m_descriptors = std::move(descriptors);
        QVariantMap state;
        state.insert(key(descendingFormat), newDescending);
        state.insert(key(columnFormat), column);
        m_defaults.setValues(state);
    });
}

} // namespace vantrell
