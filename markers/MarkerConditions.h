#pragma once

#include "rows/RowRecord.h"

#include <QStringList>

namespace vantrell
{

// What markers are picked by, in the window and in lists. Any thread.

enum class MarkerFlag { Chapter, Compression, Scoring };

/// Whether the marker's flag is set.
bool hasFlag(const RowRecord &marker, MarkerFlag flag);

/// Adds the marker's name and comment, the names of its sequence and clip, and its custom fields, as far as
/// there are any.
void appendMarkerTexts(const RowRecord &marker, QStringList &texts);

} // namespace vantrell
