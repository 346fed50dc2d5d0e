#pragma once

#include "rows/RowSort.h"

#include <QString>

#include <compare>

namespace vantrell
{

/// What the marker table shows of its records, and how it is sorted. Any thread.
namespace MarkerTableValues
{

/// The timecode of the in point, counted from the start of the sequence's own.
QString inText(const RowRecord &record);
/// The duration as a timecode; "00:00:00:00" when the out point is negative.
QString outText(const RowRecord &record);

/// Compares in points ("in" as the key) or out points (any other), each counted from its record's start
/// frame, in frames.
std::strong_ordering compareIntegersFromString(const RowRecord &a, const RowRecord &b, const QString &key);
/// The same for texts: by the integers that they begin with.
std::strong_ordering compareIntegersFromString(const QString &a, const QString &b);

/// What the table is sorted by in a column: sequences and clips by their names, positions as
/// compareIntegersFromString() does, all else by the record's value.
SortValue sortValueOfColumn(const QString &column);

} // namespace MarkerTableValues
} // namespace vantrell
