#include "markers/widgets/MarkerTableModel.h"

#include "markers/MarkerColors.h"
#include "markers/MarkerKeys.h"
#include "markers/MenuTitles.h"
#include "markers/TimecodeEntry.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TableIcons.h"

namespace vantrell
{

MarkerTableModel::MarkerTableModel(MyDocument &document, QObject *parent)
    : TableModel(document, Tab::Markers, parent)
{
    for (const MarkerColor &color : MarkerColors::table())
        m_colorLabels.append(color.label);
    m_shownLabels = shownLabels(m_colorLabels);
}

QStringList MarkerTableModel::shownLabels(const QStringList &labels)
{
    QStringList shown;
    for (qsizetype i = 0; i < labels.size(); ++i) {
        const bool isName =
            i < qsizetype(MarkerColors::count) && labels[i] == MarkerColors::table()[std::size_t(i)].label;
        shown.append(isName ? shownValue(labels[i]) : labels[i]);
    }
    return shown;
}

void MarkerTableModel::setColorLabels(const QStringList &labels)
{
    m_colorLabels = labels;
    m_shownLabels = shownLabels(labels);
    rowsChanged(0, rowCount() - 1);
}

void MarkerTableModel::sequenceMenuChanged()
{
    rowsChanged(0, rowCount() - 1);
}

XmlNode MarkerTableModel::sequenceOf(const RowRecord &record) const
{
    const MenuPtr sequences = document().sequenceMenu();
    const std::int64_t item = record.get(MarkerKey::sequenceIndex);
    return item >= 0 && item < std::int64_t(sequences->size()) ? (*sequences)[std::size_t(item)].element
                                                               : XmlNode();
}

/// The clips of the record's sequence; null when it has none.
MenuPtr MarkerTableModel::clipMenu(const RowRecord &record) const
{
    const XmlNode sequence = sequenceOf(record);
    return sequence ? document().clipMenuForSequence(sequence) : nullptr;
}

MenuPtr MarkerTableModel::ownerMenu(const RowRecord &record, const Column &column) const
{
    return column.key == MarkerKey::sequence ? document().sequenceMenu() : clipMenu(record);
}

std::vector<PopUpItem> MarkerTableModel::popUpItems(const QModelIndex &index) const
{
    std::vector<PopUpItem> items;
    const Column &column = columnAt(index.column());
    if (column.key == MarkerKey::color) {
        for (int i = 0; i < m_shownLabels.size(); ++i)
            items.push_back({m_shownLabels[i], TableIcons::marker(i), true});
        return items;
    }
    const RowRecord &record = *recordAt(index.row());
    const MenuPtr menu = ownerMenu(record, column);
    if (!menu)
        return items;
    const bool isClip = column.key == MarkerKey::clip;
    const QStringList titles =
        isClip ? MenuTitles::ofClips(*menu, sequenceOf(record)) : MenuTitles::ofSequences(*menu);
    const bool leavesClip = isClip && popUpIndex(record, column) > 0;
    for (std::size_t i = 0; i < menu->size(); ++i) {
        const MenuItem &item = (*menu)[i];
        const QString &title = titles[qsizetype(i)];
        items.push_back({i == 0 ? shownValue(title) : title, TableIcons::named(item.image),
                         item.element ? item.element.isAttached() : leavesClip});
    }
    return items;
}

std::optional<EntryNote> MarkerTableModel::entryNote(const QModelIndex &index, const QString &typed,
                                                     int role) const
{
    const Column &column = columnAt(index.column());
    const RowRecord &record = *recordAt(index.row());
    if (column.key != MarkerKey::in && column.key != MarkerKey::out)
        return std::nullopt;
    TimecodeEntry::Reading reading = column.key == MarkerKey::in ? TimecodeEntry::ofInPoint(typed, record)
                                                                 : TimecodeEntry::ofDuration(typed, record);
    if (role == AlongRole && column.key == MarkerKey::in)
        reading.text = tr("%1; the duration is kept").arg(reading.text);
    return EntryNote{reading.text, reading.warnings};
}

int MarkerTableModel::popUpIndex(const RowRecord &record, const Column &column) const
{
    if (column.key == MarkerKey::color)
        return int(record.get(MarkerKey::color));
    return int(
        record.get(column.key == MarkerKey::sequence ? MarkerKey::sequenceIndex : MarkerKey::clipIndex));
}

QString MarkerTableModel::text(const RowRecord &record, const Column &column) const
{
    if (column.kind != Column::Kind::PopUp)
        return TableModel::text(record, column);
    const int item = popUpIndex(record, column);
    if (column.key == MarkerKey::color)
        return m_shownLabels.value(item);
    if (isOnOtherClip(record, column))
        return record.get(MarkerKey::clipName);
    const MenuPtr menu = ownerMenu(record, column);
    if (!menu || item < 0 || item >= int(menu->size()))
        return QString();
    const QString &title = (*menu)[std::size_t(item)].title;
    return item == 0 ? shownValue(title) : title;
}

QIcon MarkerTableModel::icon(const RowRecord &record, const Column &column) const
{
    if (column.kind != Column::Kind::PopUp)
        return QIcon();
    const int item = popUpIndex(record, column);
    if (column.key == MarkerKey::color)
        return TableIcons::marker(item);
    return item > 0 || isOnOtherClip(record, column) ? TableIcons::named(column.identifier) : QIcon();
}

bool MarkerTableModel::isOnOtherClip(const RowRecord &record, const Column &column) const
{
    return column.key == MarkerKey::clip && popUpIndex(record, column) <= 0 &&
           !record.get(MarkerKey::clipName).isEmpty() && sequenceOf(record);
}

QString MarkerTableModel::toolTip(const RowRecord &record, const Column &column) const
{
    if (column.key == MarkerKey::color)
        return text(record, column);
    const QString tip = TableModel::toolTip(record, column);
    const bool isInBin = column.key == MarkerKey::clip && !tip.isEmpty() && !sequenceOf(record);
    return isInBin ? tr("On the clip “%1”, which is in no sequence").arg(tip) : tip;
}

} // namespace vantrell
