#pragma once

#include "report/ReportTable.h"
#include "support/files/Result.h"

#include <QObject>
#include <QString>

#include <functional>

class QIODevice;
class QTextStream;

namespace vantrell
{

class MarkerPresets;
class MyDocument;
class UserDefaults;

/// Generates the report of a document: a title and the chosen columns of one table, for its selected rows or
/// all visible ones. Main thread.
///
/// First call setPrintTable(), then generateHTMLForPrinting() or one of the write functions. While a preview
/// is shown, setBodyConsumer() has the report generated again after each relevant change. A report takes one
/// pass over its rows.
class ReportGenerator
{
public:
    /// The arguments outlive this object. The presets provide the labels of colours. The user default
    /// "projectTitle" is the title (by default the file's name without its extension); "printColorLabels", if
    /// 1, appends the colour's label to a marker's name. The defaults may be null. The folder holds the
    /// pictures; missing ones are left out.
    ReportGenerator(MyDocument &document, const MarkerPresets &presets, UserDefaults *defaults,
                    const QString &imageFolder);
    ReportGenerator(const ReportGenerator &) = delete;
    ReportGenerator &operator=(const ReportGenerator &) = delete;

    /// Sets the printed table and its columns in their present order. Columns without a title are left out;
    /// the first three others are selected.
    void setPrintTable(Tab table, const Columns &columns);
    /// The table printed last; nothing before the first print.
    std::optional<Tab> printTableRef() const { return m_printTableRef; }
    /// Its columns for the column chooser.
    const PrintColumns &printColumnArray() const { return m_printColumnArray; }
    /// Includes the column with that index in the report or removes it, and passes the new body to the
    /// consumer. An invalid index is ignored.
    void setColumnSelected(std::size_t index, bool selected);

    ReportTable::RowCounts rowCounts() const { return table().rowCounts(); }

    /// The whole report as HTML, or only the content of its body; null when the printed table has no rows.
    QString generateHTMLForPrinting(bool wholeDocument = true) const;

    // These write the report in UTF-8 to an open device, in one pass. They fail without rows and on write
    // errors.

    /// The result of generateHTMLForPrinting().
    Result<void> writeHTML(QIODevice &device, bool wholeDocument) const;
    /// See ReportWriter.
    Result<void> writeCSV(QIODevice &device) const;
    Result<void> writePage(QIODevice &device) const;

    /// Sets the function that gets the body of the report after each change of the selected columns or of the
    /// two user defaults, unless there are no rows; may be null. See ReportWriter::bodyScript().
    void setBodyConsumer(std::function<void(const QString &body)> consumer)
    {
        m_bodyConsumer = std::move(consumer);
    }

private:
    ReportTable table() const;
    Result<void> write(QIODevice &device,
                       const std::function<void(const ReportTable &, QTextStream &)> &writer) const;
    void updateBody() const;

    MyDocument &m_document;
    const MarkerPresets &m_presets;
    UserDefaults *m_defaults;
    QString m_imageFolder;
    std::optional<Tab> m_printTableRef;
    PrintColumns m_printColumnArray;
    std::function<void(const QString &)> m_bodyConsumer;
    QObject m_observer; ///< of the defaults; destroyed, and so disconnected, before the other members
};

} // namespace vantrell
