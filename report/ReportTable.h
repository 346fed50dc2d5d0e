#pragma once

#include "document/DocumentInterface.h"
#include "markers/MarkerColors.h"
#include "rows/Column.h"

#include <QString>
#include <QStringList>

#include <array>
#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

class MyDocument;

/// The pictures that a report shows beside names: PNG files of the program for each marker colour, followed
/// by a clip and a sequence. Any thread.
class ReportImages
{
public:
    static constexpr std::size_t clip = MarkerColors::count; // after the colours
    static constexpr std::size_t sequence = clip + 1;
    static constexpr std::size_t count = sequence + 1;

    /// Checks once which of the files exist in the folder; none for an empty path.
    explicit ReportImages(const QString &folder);

    /// The folder of the program's own pictures: ../share/vantrell/report-images relative to the folder of
    /// the running program, in a build as well as installed.
    static QString standardFolder();

    /// The file's name without ".png".
    static QString name(std::size_t image);
    /// Empty without such a file.
    const QString &path(std::size_t image) const { return m_paths[image]; }

private:
    std::array<QString, count> m_paths;
};

/// A column of the printed table in the column chooser.
struct PrintColumn {
    QString title;      ///< the column's header title
    QString id;         ///< the key of the record values that it shows
    int selected = 0;   ///< 1 if the report includes it, else 0
    Column tableColumn; ///< the column itself
};
using PrintColumns = std::vector<PrintColumn>;

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

    /// How many rows the report includes, of how many on show.
    struct RowCounts {
        std::size_t included;
        std::size_t onShow;
    };
    RowCounts rowCounts() const
    {
        return {m_hasSelection ? m_selection.size() : m_rows.size(), m_rows.size()};
    }
    bool isEmpty() const { return m_hasSelection ? m_selection.empty() : m_rows.empty(); }
    /// Calls the function for each row of the report, in table order.
    void forEachRow(const std::function<void(const RowRecord &)> &use) const;

    /// The cell of the row in the column with that index in columnTitles().
    ReportCell cell(const RowRecord &row, std::size_t column) const;

private:
    static ReportCell valueCell(const RowRecord &row, const Column &column);
    std::optional<std::size_t> imageIfThere(std::size_t image) const
    {
        return m_images.path(image).isEmpty() ? std::nullopt : std::optional(image);
    }

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
