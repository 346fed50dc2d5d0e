#pragma once

#include "report/TextSink.h"

#include <QString>

namespace vantrell
{

class ReportTable;

/// The report as HTML for printing. Texts go in as they are, so that markup in them is markup; pictures are
/// named by the paths of their files.
namespace ReportHTML
{

/// Hands on the text row by row: a whole document, or what its body holds.
void write(const ReportTable &table, bool wholeDocument, const TextSink &sink);

/// The script that makes the text the body of the page that is shown: apostrophes get a backslash, line ends
/// and tabs are dropped. Backslashes stay as they are, so that one in the text acts on what follows it.
QString bodyScript(const QString &body);

} // namespace ReportHTML
} // namespace vantrell
