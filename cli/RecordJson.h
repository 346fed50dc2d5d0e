#pragma once

#include "cli/JsonText.h"
#include "rows/RowRecord.h"
#include "xml/XmlLocationPaths.h"

#include <QByteArray>

namespace vantrell::cli
{

/// The record with its keys in order: elements as location paths (null outside the tree), dates as ISO 8601
/// in UTC with seconds. The paths are valid until the tree is edited.
Json recordToJson(const RowRecord &record, XmlLocationPaths &paths);
Json recordsToJson(const RowList &records, XmlLocationPaths &paths);

/// The marker records as one JSON array, each with the texts of its In and Duration cells under "display".
QByteArray markersAsJson(const RowList &markers);

} // namespace vantrell::cli
