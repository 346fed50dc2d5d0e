#pragma once

#include "table/widgets/TableModel.h"

#include <QStringList>

namespace vantrell
{

/// The table of the markers, with the columns of the custom fields behind its own.
class MarkerTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit MarkerTableModel(MyDocument &document, QObject *parent = nullptr);

    /// The labels of the colours, by colour index.
    const QStringList &colorLabels() const { return m_colorLabels; }
    void setColorLabels(const QStringList &labels);

    /// The sequence menu was exchanged.
    void sequenceMenuChanged();

    std::vector<PopUpItem> popUpItems(const QModelIndex &index) const override;
    /// A colour cell shows its swatch alone.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    int popUpIndex(const RowRecord &record, const Column &column) const override;
    QString text(const RowRecord &record, const Column &column) const override;
    QIcon icon(const RowRecord &record, const Column &column) const override;
    QString toolTip(const RowRecord &record, const Column &column) const override;

private:
    MenuPtr clipMenu(const RowRecord &record) const;
    /// The menu of a cell that shows a sequence or clip; null for none.
    MenuPtr ownerMenu(const RowRecord &record, const Column &column) const;

    QStringList m_colorLabels;
};

} // namespace vantrell
