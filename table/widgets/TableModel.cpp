#include "table/widgets/TableModel.h"

#include "markers/MarkerColumns.h"
#include "support/widgets/ShownText.h"

#include <QTextDocument>

namespace vantrell
{

TableModel::TableModel(MyDocument &document, Tab tab, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
    , m_tab(tab)
    , m_columns(view().columns())
{
}

QString TableModel::shownName(const Column &column)
{
    return isMarkerField(column.identifier) ? column.name : shownColumn(column.name);
}

int TableModel::columnOf(const QString &identifier) const
{
    const Column *found = findColumn(m_columns, identifier);
    return found ? int(found - m_columns.data()) : -1;
}

void TableModel::addColumn(const Column &column)
{
    const int present = columnOf(column.identifier);
    if (present >= 0) {
        m_columns[std::size_t(present)] = column;
        Q_EMIT headerDataChanged(Qt::Horizontal, present, present);
        return;
    }
    const int index = int(m_columns.size());
    beginInsertColumns(QModelIndex(), index, index);
    m_columns.push_back(column);
    endInsertColumns();
}

void TableModel::removeColumn(const QString &identifier)
{
    const int index = columnOf(identifier);
    if (index < 0)
        return;
    beginRemoveColumns(QModelIndex(), index, index);
    m_columns.erase(m_columns.begin() + index);
    endRemoveColumns();
}

const RowRecordPtr &TableModel::recordAt(int row) const
{
    return view().visibleRows()[std::size_t(row)];
}

void TableModel::willReload()
{
    beginResetModel();
}

void TableModel::didReload()
{
    endResetModel();
}

void TableModel::rowsChanged(int first, int last)
{
    if (first >= 0 && first <= last && last < rowCount())
        Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
}

QString TableModel::cellText(const QModelIndex &index) const
{
    const Column &column = columnAt(index.column());
    if (column.kind == Column::Kind::CheckBox)
        return isChecked(*recordAt(index.row()), column) ? QStringLiteral("1") : QStringLiteral("0");
    return data(index, Qt::AccessibleTextRole).toString();
}

void TableModel::setEditingEnabled(bool enabled)
{
    if (m_editingEnabled == enabled)
        return;
    m_editingEnabled = enabled;
    rowsChanged(0, rowCount() - 1);
}

bool TableModel::contains(const QModelIndex &index) const
{
    return index.isValid() && index.model() == this && index.row() < rowCount() &&
           index.column() < columnCount();
}

int TableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(view().visibleRows().size());
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QVariant();
    const Column &column = columnAt(section);
    if (role == Qt::DisplayRole)
        return column.title.isEmpty() ? QString() : shownName(column);
    if (column.title.isEmpty() && (role == Qt::ToolTipRole || role == Qt::AccessibleTextRole))
        return shownName(column);
    if (role == Qt::TextAlignmentRole)
        return QVariant(column.alignment | Qt::AlignVCenter);
    return QVariant();
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    if (!contains(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    const Column &column = columnAt(index.column());
    if (m_editingEnabled && column.edits != Column::Edits::Nothing)
        flags |= column.kind == Column::Kind::CheckBox ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!contains(index))
        return QVariant();
    const RowRecord &record = *recordAt(index.row());
    const Column &column = columnAt(index.column());
    const bool isCheckBox = column.kind == Column::Kind::CheckBox;
    switch (role) {
    case Qt::DisplayRole:
        return isCheckBox ? QVariant() : QVariant(text(record, column));
    case Qt::AccessibleTextRole:
        return text(record, column);
    case Qt::EditRole:
        if (column.kind == Column::Kind::PopUp)
            return popUpIndex(record, column);
        return isCheckBox ? QVariant() : QVariant(text(record, column));
    case Qt::CheckStateRole:
        if (!isCheckBox)
            return QVariant();
        return int(isChecked(record, column) ? Qt::Checked : Qt::Unchecked);
    case Qt::DecorationRole: {
        const QIcon image = icon(record, column);
        return image.isNull() ? QVariant() : QVariant(image);
    }
    case Qt::ToolTipRole: {
        // Texts of the project are shown literally, even those that look like markup.
        const QString tip = column.hasToolTip ? toolTip(record, column) : QString();
        return tip.isEmpty() ? QVariant() : QVariant(Qt::convertFromPlainText(tip, Qt::WhiteSpaceNormal));
    }
    case Qt::TextAlignmentRole:
        return QVariant(column.alignment | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

bool TableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!m_edit || !contains(index))
        return false;
    const Qt::ItemFlags can = flags(index);
    // The edit may remove the column or the row: nothing of the index is used after it.
    const QString column = columnAt(index.column()).identifier;
    if (role == Qt::CheckStateRole && can.testFlag(Qt::ItemIsUserCheckable)) {
        const bool on = value.toInt() == Qt::Checked;
        m_edit(index.row(), column, on ? QStringLiteral("1") : QStringLiteral("0"));
        return true;
    }
    if ((role == Qt::EditRole || role == AlongRole) && can.testFlag(Qt::ItemIsEditable)) {
        const Edit &edit = role == AlongRole && m_editAlong ? m_editAlong : m_edit;
        edit(index.row(), column, value.toString());
        return true;
    }
    return false;
}

bool TableModel::isChecked(const RowRecord &record, const Column &column)
{
    const RecordValue *value = record.find(column.key);
    return value && (*value == RecordValue(true) || *value == RecordValue(std::int64_t(1)));
}

QString TableModel::text(const RowRecord &record, const Column &column) const
{
    if (column.kind == Column::Kind::CheckBox)
        return isChecked(record, column) ? tr("on") : tr("off");
    const RecordValue *value = record.find(column.key);
    const auto *date = value ? std::get_if<QDateTime>(value) : nullptr;
    return date ? TableDates::text(*date, m_dateFormat) : column.textOf(record);
}

} // namespace vantrell
