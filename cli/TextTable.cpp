#include "cli/TextTable.h"

#include <algorithm>

namespace vantrell::cli
{

TextTable::TextTable(const RowList &rows, const Columns &columns)
{
    QStringList cells;
    for (const Column &column : columns)
        cells.append(column.name);
    addRow(cells);
    for (const RowRecordPtr &row : rows) {
        cells.clear();
        for (const Column &column : columns)
            cells.append(column.textOf(*row));
        addRow(cells);
    }
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList row = cells;
    for (QString &cell : row) {
        for (const char control : {'\t', '\n', '\r'})
            cell.replace(QLatin1Char(control), QLatin1Char(' '));
    }
    m_rows.push_back(std::move(row));
}

QByteArray TextTable::toBytes(bool aligned) const
{
    std::vector<qsizetype> widths(std::size_t(m_rows.front().size()), 0);
    if (aligned) {
        for (const QStringList &row : m_rows) {
            for (qsizetype i = 0; i < row.size(); ++i)
                widths[std::size_t(i)] = std::max(widths[std::size_t(i)], row.at(i).size());
        }
    }
    QString text;
    for (const QStringList &row : m_rows) {
        QString line;
        for (qsizetype i = 0; i < row.size(); ++i) {
            const bool last = i + 1 == row.size();
            line += aligned && !last ? row.at(i).leftJustified(widths[std::size_t(i)] + 2) : row.at(i);
            if (!aligned && !last)
                line += QLatin1Char('\t');
        }
        text += line + QLatin1Char('\n');
    }
    return text.toUtf8();
}

} // namespace vantrell::cli
