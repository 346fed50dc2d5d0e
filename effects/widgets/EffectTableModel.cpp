#include "effects/widgets/EffectTableModel.h"

#include "effects/EffectColumns.h"
#include "effects/EffectKeys.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

namespace
{

/// The places of the columns in effectColumns; no others are ever added.
enum Column { Enabled, Name, Type, Media, Clip, Sequence };

} // namespace

EffectTableModel::EffectTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Effects, effectColumns, parent)
{
}

TableModel::Cell EffectTableModel::cellOf(int column) const
{
    return column == Enabled ? Cell::CheckBox : Cell::Text;
}

bool EffectTableModel::isEditable(int column) const
{
    return column == Enabled;
}

bool EffectTableModel::isChecked(const RowRecord &record, int) const
{
    return record.get(EffectKey::enabled) != 0;
}

QString EffectTableModel::text(const RowRecord &record, int column) const
{
    if (column == Enabled)
        return isChecked(record, column) ? tr("on") : tr("off");
    return TableModel::text(record, column);
}

QIcon EffectTableModel::icon(const RowRecord &record, int column) const
{
    if (column == Clip && record.contains(EffectKey::clip))
        return TableIcons::named(QStringLiteral("clip"));
    if (column == Sequence && record.contains(EffectKey::sequence))
        return TableIcons::named(QStringLiteral("sequence"));
    return QIcon();
}

QString EffectTableModel::toolTip(const RowRecord &record, int column) const
{
    return column == Enabled ? QString() : text(record, column);
}

Qt::Alignment EffectTableModel::alignment(int column) const
{
    return column == Enabled ? Qt::AlignCenter : Qt::AlignLeft | Qt::AlignVCenter;
}

} // namespace vantrell
