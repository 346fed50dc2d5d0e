#include "markers/widgets/MarkerTableModel.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerTableValues.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

namespace
{

/// The places of the columns in markerColumns; those of custom fields follow.
enum MarkerColumn { Color, Name, Comment, In, Out, Sequence, Clip, Chapter, Compression, Scoring };

const TypedKey<std::int64_t> &flagKey(int column)
{
    return column == Chapter       ? MarkerKey::chapter
           : column == Compression ? MarkerKey::compression
                                   : MarkerKey::scoring;
}

bool isFlag(int column)
{
    return column == Chapter || column == Compression || column == Scoring;
}

} // namespace

MarkerTableModel::MarkerTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Markers, markerColumns, parent)
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

TableModel::Cell MarkerTableModel::cellOf(int column) const
{
    if (column == Color || column == Sequence || column == Clip)
        return Cell::PopUp;
    return isFlag(column) ? Cell::CheckBox : Cell::Text;
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

QString MarkerTableModel::menuTitle(const MenuPtr &menu, std::int64_t item) const
{
    return menu && item >= 0 && item < std::int64_t(menu->size()) ? (*menu)[std::size_t(item)].title
                                                                  : QString();
}

std::vector<PopUpItem> MarkerTableModel::popUpItems(const QModelIndex &index) const
{
    std::vector<PopUpItem> items;
    if (index.column() == Color) {
        for (int i = 0; i < m_colorLabels.size(); ++i)
            items.push_back({m_colorLabels[i], TableIcons::marker(i), true});
        return items;
    }
    const RowRecord &record = *recordAt(index.row());
    const MenuPtr menu = index.column() == Sequence ? document().sequenceMenu() : clipMenu(record);
    if (!menu)
        return items;
    for (const MenuItem &item : *menu)
        items.push_back(
            {item.title, TableIcons::named(item.image), !item.element || item.element.isAttached()});
    return items;
}

QVariant MarkerTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isColor = orientation == Qt::Horizontal && section == Color;
    if (isColor && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return tr("Color");
    return TableModel::headerData(section, orientation, role);
}

QVariant MarkerTableModel::data(const QModelIndex &index, int role) const
{
    if (role == Qt::DisplayRole && index.column() == Color)
        return QVariant();
    return TableModel::data(index, role);
}

bool MarkerTableModel::isChecked(const RowRecord &record, int column) const
{
    return record.get(flagKey(column)) == 1;
}

int MarkerTableModel::popUpIndex(const RowRecord &record, int column) const
{
    switch (column) {
    case Color:
        return int(record.get(MarkerKey::color));
    case Sequence:
        return int(record.get(MarkerKey::sequenceIndex));
    default:
        return int(record.get(MarkerKey::clipIndex));
    }
}

QString MarkerTableModel::text(const RowRecord &record, int column) const
{
    switch (column) {
    case Color:
        return m_colorLabels.value(popUpIndex(record, column));
    case In:
        return MarkerTableValues::inText(record);
    case Out:
        return MarkerTableValues::outText(record);
    case Sequence:
        return menuTitle(document().sequenceMenu(), record.get(MarkerKey::sequenceIndex));
    case Clip:
        return menuTitle(clipMenu(record), record.get(MarkerKey::clipIndex));
    case Chapter:
    case Compression:
    case Scoring:
        return isChecked(record, column) ? tr("on") : tr("off");
    default:
        return TableModel::text(record, column);
    }
}

QIcon MarkerTableModel::icon(const RowRecord &record, int column) const
{
    if (column == Color)
        return TableIcons::marker(int(record.get(MarkerKey::color)));
    if (column == Sequence && record.get(MarkerKey::sequenceIndex) > 0)
        return TableIcons::named(QStringLiteral("sequence"));
    if (column == Clip && record.get(MarkerKey::clipIndex) > 0)
        return TableIcons::named(QStringLiteral("clip"));
    return QIcon();
}

QString MarkerTableModel::toolTip(const RowRecord &record, int column) const
{
    switch (column) {
    case Color:
        return text(record, column);
    case Sequence:
        return record.get(MarkerKey::sequenceName);
    case Clip:
        return record.get(MarkerKey::clipName);
    case In:
    case Out:
    case Chapter:
    case Compression:
    case Scoring:
        return QString();
    default:
        return TableModel::text(record, column);
    }
}

Qt::Alignment MarkerTableModel::alignment(int column) const
{
    return isFlag(column) || column == Color ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace vantrell
