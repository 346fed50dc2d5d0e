#pragma once

#include "bridge/EventRecord.h"
#include "support/files/Result.h"

#include <QByteArray>

#include <functional>
#include <vector>

/// Events as bytes. All numbers are big-endian:
///
///   record      "vAev", version (4 bytes, 1), length of what follows (4), class (4), identifier (4),
///               return id (4), transaction (4), send mode (4), priority (4), time-out (4), address,
///               number of parameters (4), for each its keyword (4) and value
///   value       type (4), length of what follows (4), then its bytes; for a list the number of its values
///               (4) and the values; for a record the number of its fields (4), for each its keyword (4)
///               and value
///
/// The reader validates all input: truncated, oversized or too deeply nested data and unknown versions, types
/// or sizes are failures, and memory is allocated only as bytes arrive. Any thread.
namespace vantrell::EventWire
{

/// Bytes of a whole record.
inline constexpr qsizetype maximumSize = 0x7fffffff;
/// Nesting depth of lists and records.
inline constexpr int maximumDepth = 16;
/// Values of a record, including those in its lists and records.
inline constexpr int maximumValues = 65536;

/// The record in pieces to be written one after the other; large texts are shared, not copied. A failure
/// says why the record cannot be written.
Result<std::vector<QByteArray>> pieces(const EventRecord &record);

/// Stores up to `maximum` bytes (at least 1) in the buffer and returns their number; 0 at the end, -1 when
/// reading failed.
using Source = std::function<qsizetype(char *buffer, qsizetype maximum)>;

/// Reads one record and nothing beyond it.
Result<EventRecord> read(const Source &source);

} // namespace vantrell::EventWire
