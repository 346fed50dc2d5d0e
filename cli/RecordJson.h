#pragma once

#include "cli/JsonText.h"
#include "rows/RowRecord.h"
#include "xml/XmlLocationPaths.h"

namespace vantrell::cli
{

/// The record with its keys in their order: elements as location paths (null for one that is out of the
/// tree), dates as ISO 8601 in UTC with seconds. The paths serve for as long as nobody edits the tree.
Json recordToJson(const RowRecord &record, XmlLocationPaths &paths);
Json recordsToJson(const RowList &records, XmlLocationPaths &paths);

} // namespace vantrell::cli
