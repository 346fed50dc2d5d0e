#pragma once

#include "document/DocumentInterface.h"
#include "report/PrintColumn.h"
#include "report/TextSink.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class QIODevice;

namespace vantrell
{

class MarkerPresets;
class MyDocument;
class ReportTable;
class UserDefaults;

/// The report of a document: a title and the chosen columns of one table, of its selected rows or of all rows
/// on show. Main thread.
///
/// To print: setPrintTable(), then generateHTMLForPrinting() or one of the functions that write. While the
/// report is shown, setBodyConsumer() has it made anew whenever the user changes what it depends on. A report
/// takes one pass over its rows.
class ReportGenerator
{
public:
    /// All of these outlive this object. The presets give the colours their labels. Of the defaults,
    /// "projectTitle" is the title (absent: the file's name without its extension) and "printColorLabels",
    /// when it is 1, puts the colour's label behind a marker's name; without defaults (null) both are absent.
    /// The folder holds the pictures; a file that is not there is left out.
    ReportGenerator(MyDocument &document, const MarkerPresets &presets, UserDefaults *defaults,
                    const QString &imageFolder);
    ReportGenerator(const ReportGenerator &) = delete;
    ReportGenerator &operator=(const ReportGenerator &) = delete;

    /// Makes this the printed table, with its columns in the order in which the table has them. Those without
    /// a title are left out, and the first three others are selected.
    void setPrintTable(Tab table, const Columns &columns);
    /// The last printed table; nothing before the first.
    std::optional<Tab> printTableRef() const { return m_printTableRef; }
    /// Its columns, as the column chooser shows them.
    const PrintColumns &printColumnArray() const { return m_printColumnArray; }
    /// The user ticked a column in the chooser, or took the tick away; the consumer gets the new body.
    /// Nothing happens for an index that is not there.
    void setColumnSelected(std::size_t index, bool selected);

    /// The whole report as HTML; null when the printed table has no rows.
    QString generateHTMLForPrinting() const { return generateHTMLForPrinting(true); }
    /// The same, or, with the flag off, only what the body of the document holds.
    QString generateHTMLForPrinting(bool wholeDocument) const;

    // The report in UTF-8, written to an open device in one pass. A Failure when there are no rows, and when
    // the device cannot be written.

    /// What generateHTMLForPrinting() gives.
    Result<void> writeHTML(QIODevice &device, bool wholeDocument) const;
    /// See ReportExport.
    Result<void> writeCSV(QIODevice &device) const;
    Result<void> writePage(QIODevice &device) const;

    /// From now on gets the body of the report (the flag off) after each change of the selected columns and
    /// of the two defaults, whoever made it, unless there are no rows; null for none. For
    /// ReportHTML::bodyScript().
    void setBodyConsumer(std::function<void(const QString &body)> consumer);

private:
    ReportTable table() const;
    Result<void> write(QIODevice &device,
                       const std::function<void(const ReportTable &, const TextSink &)> &writer) const;
    void updateBody() const;

    MyDocument &m_document;
    const MarkerPresets &m_presets;
    UserDefaults *m_defaults;
    QString m_imageFolder;
    std::optional<Tab> m_printTableRef;
    PrintColumns m_printColumnArray;
    std::function<void(const QString &)> m_bodyConsumer;
    QObject m_observer; ///< of the defaults; ends that before the members above go
};

} // namespace vantrell
