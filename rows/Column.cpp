#include "rows/Column.h"

#include "rows/RecordText.h"

#include <algorithm>

namespace vantrell
{

QString Column::textOf(const RowRecord &row) const
{
    if (text)
        return text(row);
    const RecordValue *value = row.find(nameKey ? *nameKey : key);
    return value ? plainText(*value) : QString();
}

std::optional<RecordValue> Column::sortValueOf(const RowRecord &row) const
{
    if (sortValue)
        return sortValue(row);
    const RecordValue *value = row.find(nameKey ? *nameKey : key);
    return value ? std::optional(*value) : std::nullopt;
}

const Column *findColumn(const Columns &columns, const QString &identifier)
{
    const auto found = std::find_if(columns.begin(), columns.end(), [&identifier](const Column &column) {
        return column.identifier == identifier;
    });
    return found == columns.end() ? nullptr : &*found;
}

} // namespace vantrell
