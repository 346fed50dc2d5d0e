#pragma once

#include "rows/RowRecord.h"

#include <QString>

#include <compare>

namespace vantrell
{

/// The positions of marker records as the marker table and its reports show them. Any thread.
namespace MarkerTableValues
{

/// The timecode of the in point, counted from the start of the sequence's own.
QString inText(const RowRecord &record);
/// The duration as a timecode; "00:00:00:00" when the out point is negative.
QString outText(const RowRecord &record);
/// The duration as reports have it: the start frame of the sequence is added to it as to an in point, and it
/// is "00:00:00:00" when the out point is -1.
QString reportedOutText(const RowRecord &record);

enum class Point { In, Out };
/// The record's in or out point from the zero of timecode, in frames; it wraps around.
std::int64_t absolutePosition(const RowRecord &record, Point point);

/// Compares in points ("in" as the key) or out points (any other), each counted from its record's start
/// frame, in frames.
std::strong_ordering compareIntegersFromString(const RowRecord &a, const RowRecord &b, const QString &key);
/// The same for texts: by the integers that they begin with.
std::strong_ordering compareIntegersFromString(const QString &a, const QString &b);

} // namespace MarkerTableValues
} // namespace vantrell
