#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace vantrell
{

/// Ways through the rows of the marker table. Any thread.
namespace MarkerNavigation
{

enum class Direction { Down, Up };

/// The nearest row in that direction whose colour is that of the row; nothing when there is none.
std::optional<std::size_t> nextOfColor(const RowList &rows, std::size_t row, Direction direction);

/// The row in the marker's sequence whose in point is nearest to the frame (from the sequence's first), the
/// first of several; nothing without a row of that sequence.
std::optional<std::size_t> nearestRow(const RowList &rows, const RowRecord &marker, std::int64_t frame);

} // namespace MarkerNavigation
} // namespace vantrell
