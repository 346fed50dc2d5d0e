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

/// What one cell of a report says, without markup.
struct ReportCell {
    QString text;
    QString label;                    ///< of a marker's colour; it follows in brackets unless it is empty
    std::optional<std::size_t> image; ///< an index of ReportImages, of a file that is there
    bool isMissing = false;           ///< the record has no value: text is the column's for that
};

/// What a report shows, however it is written: title, columns and rows of the printed table, for as long as
/// nobody changes the document. Main thread.
class ReportTable
{
public:
    struct Options {
        QString title;
        /// A marker's label by its colour index; empty for none.
        std::array<QString, MarkerColors::count> colorLabels;
        /// The folder of the pictures; empty for a report without them.
        QString imageFolder;
    };

    /// The selected rows of the table, or all rows on show when none is selected; without a table (nothing)
    /// all rows on show. Of the columns those that are selected and have a title.
    ReportTable(MyDocument &document, std::optional<Tab> table, const PrintColumns &columns, Options options);

    const QString &title() const { return m_options.title; }
    /// Empty without a table.
    QString heading() const;
    const QStringList &columnTitles() const { return m_columnTitles; }
    const ReportImages &images() const { return m_images; }

    bool isEmpty() const;
    /// Calls with each row of the report, in the table's order.
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
    std::vector<std::size_t> m_selection; ///< indexes in m_rows, ascending
};

} // namespace vantrell
