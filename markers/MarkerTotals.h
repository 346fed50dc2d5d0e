#pragma once

#include "rows/RowRecord.h"

#include <QString>

namespace vantrell
{

/// The sum of the markers' durations as a timecode, whose hours may exceed 23; empty when none has a
/// duration. Markers at another rate than the first one with a duration count in real time. Any thread.
QString totalDurationText(const RowList &markers);

} // namespace vantrell
