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

    Cell cellOf(int column) const override;
    std::vector<PopUpItem> popUpItems(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// A colour cell shows its swatch alone.
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

protected:
    bool isEditable(int) const override { return true; }
    bool isChecked(const RowRecord &record, int column) const override;
    int popUpIndex(const RowRecord &record, int column) const override;
    QString text(const RowRecord &record, int column) const override;
    QIcon icon(const RowRecord &record, int column) const override;
    QString toolTip(const RowRecord &record, int column) const override;
    Qt::Alignment alignment(int column) const override;

private:
    MenuPtr clipMenu(const RowRecord &record) const;
    QString menuTitle(const MenuPtr &menu, std::int64_t item) const;

    QStringList m_colorLabels;
};

} // namespace vantrell
