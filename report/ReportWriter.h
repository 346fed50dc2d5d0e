#pragma once

#include <QString>

class QTextStream;

namespace vantrell
{

class ReportTable;

/// Reports in their formats, written row by row.
namespace ReportWriter
{

/// HTML for printing: the whole document, or only the content of its body. Text is not escaped, so markup in
/// it takes effect; pictures are referred to by file path.
void writeHTML(const ReportTable &table, bool wholeDocument, QTextStream &out);

/// The script that replaces the body of the page. Apostrophes are escaped by a backslash; line breaks and
/// tabs are dropped. Backslashes are not escaped, so one in the text affects the character that follows it.
QString bodyScript(const QString &body);

/// A table of comma-separated values (RFC 4180) with a byte-order mark and the column titles in its first
/// record. Text is not altered, even if a spreadsheet would take it for a formula; missing values are empty
/// fields.
void writeCSV(const ReportTable &table, QTextStream &out);

/// A self-contained HTML page with each picture embedded once. Markup in text is escaped, and line breaks are
/// kept.
void writePage(const ReportTable &table, QTextStream &out);

} // namespace ReportWriter
} // namespace vantrell
