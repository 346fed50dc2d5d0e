#pragma once

#include "rows/Column.h"

#include <QString>

#include <vector>

namespace vantrell
{

/// A column of the printed table, as the column chooser shows it.
struct PrintColumn {
    QString title;      ///< the column's header title
    QString id;         ///< the record key that it shows
    int selected = 0;   ///< 1 while the user wants it in the report
    Column tableColumn; ///< the column itself
};

using PrintColumns = std::vector<PrintColumn>;

} // namespace vantrell
