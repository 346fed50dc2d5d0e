#pragma once

#include "rows/RowRecord.h"
#include "rows/json/JsonText.h"
#include "xml/XmlLocationPaths.h"

#include <functional>

namespace vantrell
{

/// The location path of an element; null for one outside the tree.
using PathOfElement = std::function<QString(XmlNode)>;

/// The record with its keys in order: elements as location paths (null outside the tree), dates as ISO 8601
/// in UTC with seconds. Any thread that the record and the function may be used on.
Json recordToJson(const RowRecord &record, const PathOfElement &pathOf);

/// The same with the paths of a tree, which are valid until it is edited.
Json recordToJson(const RowRecord &record, XmlLocationPaths &paths);
Json recordsToJson(const RowList &records, XmlLocationPaths &paths);

} // namespace vantrell
