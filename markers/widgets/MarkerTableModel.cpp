#include "markers/widgets/MarkerTableModel.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

MarkerTableModel::MarkerTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Markers, parent)
{
    for (const MarkerColor &color : MarkerColors::table())
        m_colorLabels.append(color.label);
}

void MarkerTableModel::setColorLabels(const QStringList &labels)
{
    m_colorLabels = labels;
    rowsChanged(0, rowCount() - 1);
}

void MarkerTableModel::sequenceMenuChanged()
{
    rowsChanged(0, rowCount() - 1);
}

/// The clips of the record's sequence; null when it has none.
MenuPtr MarkerTableModel::clipMenu(const RowRecord &record) const
{
    const MenuPtr sequences = document().sequenceMenu();
    const std::int64_t item = record.get(MarkerKey::sequenceIndex);
    if (item < 0 || item >= std::int64_t(sequences->size()))
        return nullptr;
    const XmlNode sequence = (*sequences)[std::size_t(item)].element;
    return sequence ? document().clipMenuForSequence(sequence) : nullptr;
}

MenuPtr MarkerTableModel::ownerMenu(const RowRecord &record, const Column &column) const
{
    return column.key == MarkerKey::sequence ? document().sequenceMenu() : clipMenu(record);
}

std::vector<PopUpItem> MarkerTableModel::popUpItems(const QModelIndex &index) const
{
    std::vector<PopUpItem> items;
    const Column &column = columnAt(index.column());
    if (column.key == MarkerKey::color) {
        for (int i = 0; i < m_colorLabels.size(); ++i)
            items.push_back({m_colorLabels[i], TableIcons::marker(i), true});
        return items;
    }
    const MenuPtr menu = ownerMenu(*recordAt(index.row()), column);
    if (!menu)
        return items;
    for (const MenuItem &item : *menu)
        items.push_back(
            {item.title, TableIcons::named(item.image), !item.element || item.element.isAttached()});
    return items;
}

QVariant MarkerTableModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole && index.isValid() && columnAt(index.column()).key == MarkerKey::color)
        return QVariant();
    return TableModel::data(index, role);
}

int MarkerTableModel::popUpIndex(const RowRecord &record, const Column &column) const
{
    if (column.key == MarkerKey::color)
        return int(record.get(MarkerKey::color));
    return int(
        record.get(column.key == MarkerKey::sequence ? MarkerKey::sequenceIndex : MarkerKey::clipIndex));
}

QString MarkerTableModel::text(const RowRecord &record, const Column &column) const
{
    if (column.kind != Column::Kind::PopUp)
        return TableModel::text(record, column);
    const int item = popUpIndex(record, column);
    if (column.key == MarkerKey::color)
        return m_colorLabels.value(item);
    const MenuPtr menu = ownerMenu(record, column);
    return menu && item >= 0 && item < int(menu->size()) ? (*menu)[std::size_t(item)].title : QString();
}

QIcon MarkerTableModel::icon(const RowRecord &record, const Column &column) const
{
    if (column.kind != Column::Kind::PopUp)
        return QIcon();
    const int item = popUpIndex(record, column);
    if (column.key == MarkerKey::color)
        return TableIcons::marker(item);
    return item > 0 ? TableIcons::named(column.identifier) : QIcon();
}

QString MarkerTableModel::toolTip(const RowRecord &record, const Column &column) const
{
    return column.key == MarkerKey::color ? text(record, column) : TableModel::toolTip(record, column);
}

} // namespace vantrell
