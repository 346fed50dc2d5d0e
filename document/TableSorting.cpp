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

} // namespace

TableSorting::TableSorting(MyDocument &document, UserDefaults &defaults, Tab tab)
    : m_view(document.rowView(tab))
    , m_defaults(defaults)
    , m_tab(tab)
{
    const QString column = m_defaults.string(key(columnFormat));
    if (!column.isEmpty())
        m_view.setSortDescriptors({{column, m_defaults.boolean(key(descendingFormat))}});
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
        m_view.sortBy({{column, newDescending}});
        QVariantMap state;
        state.insert(key(descendingFormat), newDescending);
        state.insert(key(columnFormat), column);
        m_defaults.setValues(state);
    });
}

} // namespace vantrell
