#include "effects/widgets/EffectTableModel.h"

#include "effects/EffectKeys.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

EffectTableModel::EffectTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Effects, parent)
{
}

QIcon EffectTableModel::icon(const RowRecord &record, const Column &column) const
{
    const bool isOwner = column.key == EffectKey::clip || column.key == EffectKey::sequence;
    return isOwner && record.contains(column.key) ? TableIcons::named(column.identifier) : QIcon();
}

} // namespace vantrell
