#pragma once

#include <QString>

class QTextStream;

namespace vantrell
{

class ReportTable;

/// The report as HTML for printing. Text is not escaped, so markup in it takes effect; pictures are referred
/// to by file path.
namespace ReportHTML
{

/// Writes row by row the whole document, or only the content of its body.
void write(const ReportTable &table, bool wholeDocument, QTextStream &out);

/// The script that replaces the body of the page. Apostrophes are escaped by a backslash; line breaks and
/// tabs are dropped. Backslashes are not escaped, so one in the text affects the character that follows it.
QString bodyScript(const QString &body);

} // namespace ReportHTML
} // namespace vantrell
