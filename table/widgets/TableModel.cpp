#include "table/widgets/TableModel.h"

#include <QLocale>
#include <QTextDocument>

#include <algorithm>

namespace vantrell
{

namespace
{

QString textOf(const RecordValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    if (const auto *integer = std::get_if<std::int64_t>(&value))
        return QString::number(*integer);
    if (const auto *number = std::get_if<double>(&value))
        return QString::number(*number);
    if (const auto *date = std::get_if<QDateTime>(&value))
        return QLocale().toString(date->toLocalTime(), QLocale::ShortFormat);
    return QString();
}

} // namespace

TableModel::TableModel(MyDocument &document, Tab tab, TableColumns columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_document(document)
    , m_tab(tab)
    , m_columns(std::move(columns))
{
    for (const TableColumn &column : m_columns)
        m_keys.push_back(RecordKey(column.identifier));
}

int TableModel::columnOf(const QString &identifier) const
{
    const auto found =
        std::find_if(m_columns.begin(), m_columns.end(),
                     [&identifier](const TableColumn &column) { return column.identifier == identifier; });
    return found == m_columns.end() ? -1 : int(found - m_columns.begin());
}

QString TableModel::columnName(int column) const
{
    const QVariant name = headerData(column, Qt::Horizontal, Qt::AccessibleTextRole);
    return name.isValid() ? name.toString() : headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
}

void TableModel::addColumn(const QString &identifier, const QString &title)
{
    const int present = columnOf(identifier);
    if (present >= 0) {
        m_columns[std::size_t(present)].title = title;
        Q_EMIT headerDataChanged(Qt::Horizontal, present, present);
        return;
    }
    const int place = int(m_columns.size());
    beginInsertColumns(QModelIndex(), place, place);
    m_columns.push_back({identifier, title});
    m_keys.push_back(RecordKey(identifier));
    endInsertColumns();
}

void TableModel::removeColumn(const QString &identifier)
{
    const int place = columnOf(identifier);
    if (place < 0)
        return;
    beginRemoveColumns(QModelIndex(), place, place);
    m_columns.erase(m_columns.begin() + place);
    m_keys.erase(m_keys.begin() + place);
    endRemoveColumns();
}

const RowRecordPtr &TableModel::recordAt(int row) const
{
    return m_document.rowsOnShow(m_tab)[std::size_t(row)];
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
    if (cellOf(index.column()) == Cell::CheckBox)
        return isChecked(*recordAt(index.row()), index.column()) ? QStringLiteral("1") : QStringLiteral("0");
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
    return parent.isValid() ? 0 : int(m_document.rowsOnShow(m_tab).size());
}

int TableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QVariant();
    if (role == Qt::DisplayRole)
        return m_columns[std::size_t(section)].title;
    if (role == Qt::TextAlignmentRole)
        return QVariant(alignment(section));
    return QVariant();
}

Qt::ItemFlags TableModel::flags(const QModelIndex &index) const
{
    if (!contains(index))
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_editingEnabled && isEditable(index.column()))
        flags |= cellOf(index.column()) == Cell::CheckBox ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

QVariant TableModel::data(const QModelIndex &index, int role) const
{
    if (!contains(index))
        return QVariant();
    const RowRecord &record = *recordAt(index.row());
    const int column = index.column();
    const Cell cell = cellOf(column);
    switch (role) {
    case Qt::DisplayRole:
        return cell == Cell::CheckBox ? QVariant() : QVariant(text(record, column));
    case Qt::AccessibleTextRole:
        return text(record, column);
    case Qt::EditRole:
        if (cell == Cell::PopUp)
            return popUpIndex(record, column);
        return cell == Cell::CheckBox ? QVariant() : QVariant(text(record, column));
    case Qt::CheckStateRole:
        if (cell != Cell::CheckBox)
            return QVariant();
        return int(isChecked(record, column) ? Qt::Checked : Qt::Unchecked);
    case Qt::DecorationRole: {
        const QIcon image = icon(record, column);
        return image.isNull() ? QVariant() : QVariant(image);
    }
    case Qt::ToolTipRole: {
        // What the project holds is shown as it stands, whatever it looks like.
        const QString tip = toolTip(record, column);
        return tip.isEmpty() ? QVariant() : QVariant(Qt::convertFromPlainText(tip, Qt::WhiteSpaceNormal));
    }
    case Qt::TextAlignmentRole:
        return QVariant(alignment(column));
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
    const QString column = identifierOf(index.column());
    if (role == Qt::CheckStateRole && can.testFlag(Qt::ItemIsUserCheckable)) {
        const bool on = value.toInt() == Qt::Checked;
        m_edit(index.row(), column, on ? QStringLiteral("1") : QStringLiteral("0"));
        return true;
    }
    if (role == Qt::EditRole && can.testFlag(Qt::ItemIsEditable)) {
        m_edit(index.row(), column, value.toString());
        return true;
    }
    return false;
}

QString TableModel::text(const RowRecord &record, int column) const
{
    const RecordValue *value = record.find(m_keys[std::size_t(column)]);
    return value ? textOf(*value) : QString();
}

} // namespace vantrell
