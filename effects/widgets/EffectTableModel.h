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

protected:
    QIcon icon(const RowRecord &record, const Column &column) const override;
};

} // namespace vantrell
