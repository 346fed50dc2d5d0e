#pragma once

#include "rows/Column.h"

#include <QByteArray>
#include <QStringList>

#include <unistd.h>
#include <vector>

namespace vantrell::cli
{

/// A table for people: aligned columns on a terminal, tab-separated otherwise. Line breaks and tabs in cells
/// become spaces.
class TextTable
{
public:
    explicit TextTable(const QStringList &titles) { addRow(titles); }
    /// What the columns list of the rows, under the names of the columns.
    TextTable(const RowList &rows, const Columns &columns);

    /// As many cells as there are titles.
    void addRow(const QStringList &cells);

    /// The table, by default in the form that suits standard output.
    QByteArray toBytes(bool aligned = isatty(STDOUT_FILENO) != 0) const;

private:
    std::vector<QStringList> m_rows;
};

} // namespace vantrell::cli
