#pragma once

#include "rows/RowRecord.h"

#include <QString>

namespace vantrell
{

/// The sum of the markers' durations as a timecode, whose hours may exceed 23; empty when none has a
/// duration. It is at the rate of most of these markers; those at others count in real time. Any thread.
QString totalDurationText(const RowList &markers);

} // namespace vantrell
