#pragma once

#include "table/widgets/TableModel.h"

namespace vantrell
{

/// The table of the effects.
class EffectTableModel : public TableModel
{
    Q_OBJECT

public:
    explicit EffectTableModel(MyDocument &document, QObject *parent = nullptr);

    Cell cellOf(int column) const override;

protected:
    bool isEditable(int column) const override;
    bool isChecked(const RowRecord &record, int column) const override;
    QString text(const RowRecord &record, int column) const override;
    QIcon icon(const RowRecord &record, int column) const override;
    QString toolTip(const RowRecord &record, int column) const override;
    Qt::Alignment alignment(int column) const override;
};

} // namespace vantrell
