#include "report/ReportTable.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "rows/RecordText.h"
#include "support/text/TextNumbers.h"

#include <algorithm>

namespace vantrell
{

namespace
{

const RecordKey parentType(u"parentType");

/// Frames between the points in 32-bit arithmetic that wraps around.
std::int32_t difference(std::int32_t out, std::int32_t in)
{
    return std::int32_t(quint32(out) - quint32(in));
}

std::size_t colorOf(const RowRecord &marker)
{
    const std::int64_t color = marker.get(MarkerKey::color);
    const bool isKnown = color > 0 && color < std::int64_t(MarkerColors::count);
    return isKnown ? std::size_t(color) : 0;
}

QString durationText(const RowRecord &marker)
{
    const std::int32_t out = intValue(marker.get(MarkerKey::out));
    if (out == -1)
        return QStringLiteral("00:00:00:00");
    // Converted like an in point: the sequence's start frame is added to the duration too.
    return MyDocument::timecodeFromFrameCount(difference(out, intValue(marker.get(MarkerKey::in))), marker);
}

} // namespace

ReportTable::ReportTable(MyDocument &document, std::optional<Tab> table, const PrintColumns &columns,
                         Options options)
    : m_table(table)
    , m_options(std::move(options))
    , m_images(m_options.imageFolder)
    , m_rows(table ? document.rowsOnShow(*table) : document.tableArray())
{
    for (const PrintColumn &column : columns) {
        if (column.selected != 1 || column.title.isEmpty())
            continue;
        m_columnTitles.append(column.title);
        m_columns.push_back(columnOf(column));
    }
    if (!table)
        return;
    m_selection = document.interface().selectedRows(*table);
    m_hasSelection = !m_selection.empty();
    std::sort(m_selection.begin(), m_selection.end());
    m_selection.erase(std::lower_bound(m_selection.begin(), m_selection.end(), m_rows.size()),
                      m_selection.end());
}

QString ReportTable::heading() const
{
    if (!m_table)
        return QString();
    switch (*m_table) {
    case Tab::Media:
        return QStringLiteral("Media");
    case Tab::Effects:
        return QStringLiteral("Effects");
    case Tab::Markers:
        return QStringLiteral("Markers");
    }
    return QString();
}

bool ReportTable::isEmpty() const
{
    return m_hasSelection ? m_selection.empty() : m_rows.empty();
}

void ReportTable::forEachRow(const std::function<void(const RowRecord &)> &use) const
{
    if (m_hasSelection) {
        for (const std::size_t row : m_selection)
            use(*m_rows[row]);
    } else {
        for (const RowRecordPtr &row : m_rows)
            use(*row);
    }
}

ReportTable::Column ReportTable::columnOf(const PrintColumn &printed) const
{
    Column column;
    if (!printed.id.isEmpty())
        column.key = RecordKey(printed.id);
    column.isCheckBox = printed.tableColumn.isCheckBox;
    if (column.key == MarkerKey::sequence)
        column.ownerName = MarkerKey::sequenceName;
    else if (column.key == MarkerKey::clip)
        column.ownerName = MarkerKey::clipName;
    if (m_table != Tab::Markers)
        return column;
    if (column.key == MarkerKey::name)
        column.kind = Kind::MarkerName;
    else if (column.key == MarkerKey::in)
        column.kind = Kind::MarkerIn;
    else if (column.key == MarkerKey::out)
        column.kind = Kind::MarkerOut;
    else if (printed.id == QStringLiteral("parent"))
        column.kind = Kind::MarkerParent;
    return column;
}

ReportCell ReportTable::valueCell(const RowRecord &row, const Column &column)
{
    const RecordValue *value = column.key ? row.find(*column.key) : nullptr;
    if (value && column.ownerName && std::holds_alternative<XmlNode>(*value))
        value = row.find(*column.ownerName);
    ReportCell cell;
    if (column.isCheckBox) {
        const bool isChecked = value && integerValue(plainText(*value)) == 1;
        cell.text = isChecked ? QStringLiteral("Yes") : QStringLiteral("No");
    } else if (value) {
        cell.text = plainText(*value);
    } else {
        cell.isMissing = true;
        cell.text = column.ownerName ? QStringLiteral("(null)") : QStringLiteral("Unknown");
    }
    return cell;
}

ReportCell ReportTable::cell(const RowRecord &row, std::size_t index) const
{
    const Column &column = m_columns[index];
    switch (column.kind) {
    case Kind::Value:
        break;
    case Kind::MarkerName: {
        const std::size_t color = colorOf(row);
        ReportCell cell = valueCell(row, column);
        cell.image = imageIfThere(color);
        cell.label = m_options.colorLabels[color];
        return cell;
    }
    case Kind::MarkerIn:
        return {MyDocument::timecodeFromFrameCount(intValue(row.get(MarkerKey::in)), row), {}, {}};
    case Kind::MarkerOut:
        return {durationText(row), {}, {}};
    case Kind::MarkerParent: {
        ReportCell cell = valueCell(row, column);
        const bool isClip = row.text(parentType) == QStringLiteral("clip");
        cell.image = imageIfThere(isClip ? ReportImages::clip : ReportImages::sequence);
        return cell;
    }
    }
    return valueCell(row, column);
}

std::optional<std::size_t> ReportTable::imageIfThere(std::size_t image) const
{
    return m_images.path(image).isEmpty() ? std::nullopt : std::optional(image);
}

} // namespace vantrell
