#pragma once

#include "bridge/EventRecord.h"
#include "support/files/Result.h"

#include <QByteArray>
#include <QByteArrayView>

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
/// Reading trusts nothing: what is cut off, too long, nested too deeply or of an unknown version, type or
/// size is a failure, and memory is taken only as bytes arrive. Any thread.
namespace vantrell::EventWire
{

/// Bytes of a whole record.
inline constexpr qsizetype maximumSize = 0x7fffffff;
/// Lists and records may stand in one another this deep.
inline constexpr int maximumDepth = 16;
/// Values of a record, those in lists and records included.
inline constexpr int maximumValues = 65536;

/// Bytes of the record; a failure says why it cannot be written.
Result<qsizetype> size(const EventRecord &record);

/// The record in pieces to be written one after the other. Large texts are shared, not copied.
Result<std::vector<QByteArray>> pieces(const EventRecord &record);

/// The record in one piece.
Result<QByteArray> flatten(const EventRecord &record);

/// The record that the bytes are, to the last one.
Result<EventRecord> unflatten(QByteArrayView bytes);

/// Puts up to so many bytes (at least 1) into the buffer and gives their number; 0 at the end, -1 when
/// reading failed.
using Source = std::function<qsizetype(char *buffer, qsizetype maximum)>;

/// Reads one record and nothing beyond it.
Result<EventRecord> read(const Source &source);

} // namespace vantrell::EventWire
