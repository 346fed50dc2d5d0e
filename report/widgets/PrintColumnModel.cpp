#include "report/widgets/PrintColumnModel.h"

#include "report/ReportGenerator.h"

namespace vantrell
{

PrintColumnModel::PrintColumnModel(ReportGenerator &report, QObject *parent)
    : QAbstractListModel(parent)
    , m_report(report)
{
}

int PrintColumnModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_report.printColumnArray().size());
}

Qt::ItemFlags PrintColumnModel::flags(const QModelIndex &) const
{
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
}

QVariant PrintColumnModel::data(const QModelIndex &index, int role) const
{
    const PrintColumns &columns = m_report.printColumnArray();
    if (std::size_t(index.row()) >= columns.size())
        return QVariant();
    const PrintColumn &column = columns[std::size_t(index.row())];
    if (role == Qt::DisplayRole)
        return column.title;
    if (role == Qt::CheckStateRole)
        return column.selected == 1 ? Qt::Checked : Qt::Unchecked;
    return QVariant();
}

bool PrintColumnModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !index.isValid())
        return false;
    m_report.setColumnSelected(std::size_t(index.row()), value.toInt() == Qt::Checked);
    Q_EMIT dataChanged(index, index, {role});
    return true;
}

} // namespace vantrell
