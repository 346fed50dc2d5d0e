#pragma once

#include <QAbstractListModel>

namespace vantrell
{

class ReportGenerator;

/// The print column table: a row for each titled column of the printed table, with a box that is ticked for
/// those in the report. A tick goes to the report at once. Main thread; the generator outlives the model.
class PrintColumnModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    PrintColumnModel(ReportGenerator &report, QObject *parent);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

private:
    ReportGenerator &m_report;
};

} // namespace vantrell
