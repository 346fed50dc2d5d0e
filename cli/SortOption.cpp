#include "cli/SortOption.h"

#include "cli/Console.h"
#include "support/files/ProgramArguments.h"

#include <algorithm>

namespace vantrell::cli
{

std::optional<SortDescriptor> readSortOption(const std::string &value, const TableColumns &columns,
                                             const QString &customPrefix)
{
    SortDescriptor sort{fromArgument(value), false};
    const QString suffix = QStringLiteral(":desc");
    if (sort.column.endsWith(suffix)) {
        sort.column.chop(suffix.size());
        sort.descending = true;
    }
    const bool isColumn = std::any_of(columns.begin(), columns.end(), [&sort](const TableColumn &column) {
        return column.identifier == sort.column;
    });
    const bool isCustom = !customPrefix.isNull() && sort.column.startsWith(customPrefix);
    return isColumn || isCustom ? std::optional<SortDescriptor>(sort) : std::nullopt;
}

std::string sortChoices(const TableColumns &columns)
{
    QStringList identifiers;
    for (const TableColumn &column : columns)
        identifiers.append(column.identifier);
    return identifiers.join(QStringLiteral(", ")).toStdString();
}

} // namespace vantrell::cli
