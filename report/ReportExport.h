#pragma once

#include "report/TextSink.h"

namespace vantrell
{

class ReportTable;

/// The report as a file for other programs. Both hand on the text row by row.
namespace ReportExport
{

/// A table of comma-separated values (RFC 4180) with a byte-order mark and the titles in its first record.
/// Texts are exact, also those that a spreadsheet takes for formulas; what a record does not have is an empty
/// field.
void writeCSV(const ReportTable &table, const TextSink &sink);

/// A page that needs no other file: the pictures are in it, once each. Texts read as they are: markup in them
/// is shown, not obeyed, and line ends are kept.
void writePage(const ReportTable &table, const TextSink &sink);

} // namespace ReportExport
} // namespace vantrell
