#pragma once

#include <QString>

#include <vector>

namespace vantrell
{

/// A column of a table: its identifier, which is the record key that it shows, and its title.
struct TableColumn {
    QString identifier;
    QString title;
    bool isCheckBox = false; ///< its cells are check boxes
};

using TableColumns = std::vector<TableColumn>;

} // namespace vantrell
