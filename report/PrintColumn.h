#pragma once

#include "rows/Column.h"

#include <QString>

#include <vector>

namespace vantrell
{

/// A column of the printed table in the column chooser.
struct PrintColumn {
    QString title;      ///< the column's header title
    QString id;         ///< the key of the record values that it shows
    int selected = 0;   ///< 1 if the report includes it, else 0
    Column tableColumn; ///< the column itself
};

using PrintColumns = std::vector<PrintColumn>;

} // namespace vantrell
