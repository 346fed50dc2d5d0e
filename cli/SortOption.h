#pragma once

#include "rows/Column.h"
#include "rows/SortDescriptor.h"

#include <optional>
#include <string>

namespace vantrell::cli
{

/// Reads the value of --sort, "ID" or "ID:desc"; nothing unless ID is one of the columns or begins with
/// the prefix of columns that users add (null for none).
std::optional<SortDescriptor> readSortOption(const std::string &value, const Columns &columns,
                                             const QString &customPrefix = QString());

/// The columns' identifiers for a help text, joined by commas.
std::string sortChoices(const Columns &columns);

} // namespace vantrell::cli
