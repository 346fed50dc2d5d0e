#include "cli/SortOption.h"

#include "cli/Console.h"
#include "support/files/ProgramArguments.h"

namespace vantrell::cli
{

std::optional<SortDescriptor> readSortOption(const std::string &value, const Columns &columns,
                                             const QString &customPrefix)
{
    SortDescriptor sort{fromArgument(value), false};
    const QString suffix = QStringLiteral(":desc");
    if (sort.column.endsWith(suffix)) {
        sort.column.chop(suffix.size());
        sort.descending = true;
    }
    const bool isCustom = !customPrefix.isNull() && sort.column.startsWith(customPrefix);
    return isCustom || findColumn(columns, sort.column) ? std::optional<SortDescriptor>(sort) : std::nullopt;
}

std::string sortChoices(const Columns &columns)
{
    QStringList identifiers;
    for (const Column &column : columns)
        identifiers.append(column.identifier);
    return identifiers.join(QStringLiteral(", ")).toStdString();
}

} // namespace vantrell::cli
