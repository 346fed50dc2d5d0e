#pragma once

#include "document/DocumentInterface.h"
#include "report/PrintColumn.h"
#include "report/ReportImages.h"
#include "rows/RowRecord.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

class MyDocument;

/// The content of one cell of a report, without markup.
struct ReportCell {
    QString text;
    QString label;                    ///< of a marker's colour, appended in parentheses; may be empty
    std::optional<std::size_t> image; ///< index into ReportImages, of an existing file
    bool isMissing = false;           ///< without a value; the text is the column's for that
};

/// The content of a report in any format: title, columns and rows of the printed table. Valid until the
/// document changes. Main thread.
class ReportTable
{
public:
    struct Options {
        QString title;
        /// The labels of marker colours by index; may be empty.
        std::array<QString, MarkerColors::count> colorLabels;
        /// The folder of the pictures; empty for none.
        QString imageFolder;
    };

    /// Takes the selected rows of the table, or all visible rows if none is selected or there is no table,
    /// and those columns that are selected and have a title.
    ReportTable(MyDocument &document, std::optional<Tab> table, const PrintColumns &columns, Options options);

    const QString &title() const { return m_options.title; }
    /// Empty without a table.
    QString heading() const;
    const QStringList &columnTitles() const { return m_columnTitles; }
    const ReportImages &images() const { return m_images; }

    bool isEmpty() const;
    /// Calls the function for each row of the report, in table order.
    void forEachRow(const std::function<void(const RowRecord &)> &use) const;

    /// The cell of the row in the column with that index in columnTitles().
    ReportCell cell(const RowRecord &row, std::size_t column) const;

private:
    static ReportCell valueCell(const RowRecord &row, const Column &column);
    std::optional<std::size_t> imageIfThere(std::size_t image) const;

    std::optional<Tab> m_table;
    Options m_options;
    ReportImages m_images;
    QStringList m_columnTitles;
    Columns m_columns;
    const RowList &m_rows;
    bool m_hasSelection = false;
    std::vector<std::size_t> m_selection; ///< indices into m_rows, ascending
};

} // namespace vantrell
