#include "table/widgets/SheetTableModel.h"

namespace vantrell
{

SheetTableModel::SheetTableModel(Columns columns, QObject *parent)
    : QAbstractTableModel(parent)
    , m_columns(std::move(columns))
{
}

int SheetTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : rows();
}

int SheetTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant SheetTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QVariant();
    if (role == Qt::DisplayRole)
        return m_columns[std::size_t(section)].title;
    return role == Qt::TextAlignmentRole ? QVariant(Qt::AlignLeft | Qt::AlignVCenter) : QVariant();
}

Qt::ItemFlags SheetTableModel::flags(const QModelIndex &index) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return Qt::NoItemFlags;
    const bool isText = icon(index.row(), m_columns[std::size_t(index.column())].identifier).isNull();
    const Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    return isText ? flags | Qt::ItemIsEditable : flags;
}

QVariant SheetTableModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return QVariant();
    const QString &column = m_columns[std::size_t(index.column())].identifier;
    const QIcon image = icon(index.row(), column);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return image.isNull() ? QVariant(text(index.row(), column)) : QVariant();
    case Qt::DecorationRole:
        return image.isNull() ? QVariant() : QVariant(image);
    case Qt::AccessibleTextRole:
        return text(index.row(), column);
    case Qt::AccessibleDescriptionRole:
        return description(index.row(), index.column());
    case Qt::ToolTipRole:
        return image.isNull() ? QVariant() : QVariant(text(index.row(), column));
    default:
        return QVariant();
    }
}

bool SheetTableModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    setText(index.row(), m_columns[std::size_t(index.column())].identifier, value.toString());
    Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), columnCount() - 1));
    return true;
}

QString SheetTableModel::description(int, int column) const
{
    return m_columns[std::size_t(column)].title;
}

} // namespace vantrell
