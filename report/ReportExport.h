#pragma once

class QTextStream;

namespace vantrell
{

class ReportTable;

/// Reports as files for other programs, written row by row.
namespace ReportExport
{

/// A table of comma-separated values (RFC 4180) with a byte-order mark and the column titles in its first
/// record. Text is not altered, even if a spreadsheet would take it for a formula; missing values are empty
/// fields.
void writeCSV(const ReportTable &table, QTextStream &out);

/// A self-contained HTML page with each picture embedded once. Markup in text is escaped, and line breaks are
/// kept.
void writePage(const ReportTable &table, QTextStream &out);

} // namespace ReportExport
} // namespace vantrell
