#pragma once

#include "handover/RelinkPlan.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace vantrell
{

/// The table of a RelinkPlan: missing files, what was found for each, and whether it is relinked. Main
/// thread.
class RelinkTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Name, Match, FoundIn, WasIn, ColumnCount };

    using QAbstractTableModel::QAbstractTableModel;

    /// Rows without a candidate say so once files were searched for.
    void setPlan(RelinkPlan plan, bool isSearched);
    const RelinkPlan &plan() const { return m_plan; }
    /// The row of the file with that URL; -1 for none.
    int rowOf(const QString &url) const;

    /// The paths of all files that were found for the row, in their order.
    QStringList candidatesOf(int row) const;
    /// The index of the one that is taken; -1 while none is chosen.
    int chosenOf(int row) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// The check box of the name; the index of the candidate in the column FoundIn.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /// What is relinked has changed.
    void planChanged();

private:
    QString text(int row, int column) const;
    QString matchText(int row) const;

    RelinkPlan m_plan;
    bool m_isSearched = false;
};

} // namespace vantrell
