#pragma once

#include "rows/RowRecord.h"

namespace vantrell
{

/// The date as ISO 8601 in UTC with whole seconds, "2026-11-21T02:14:00Z". Any thread.
QString isoText(const QDateTime &date);

/// A record's value as plain text: numbers in digits, booleans as "1" and "0", dates as isoText() has
/// them, elements as their location paths. Any thread.
QString plainText(const RecordValue &value);

} // namespace vantrell
