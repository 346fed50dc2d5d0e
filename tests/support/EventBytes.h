#pragma once

#include "bridge/EventWire.h"

#include <algorithm>

namespace vantrell::EventWire
{

/// The record in one piece.
inline Result<QByteArray> flatten(const EventRecord &record)
{
    const auto parts = pieces(record);
    if (!parts)
        return parts.failure();
    QByteArray bytes;
    for (const QByteArray &part : parts.value())
        bytes += part;
    return bytes;
}

/// The record that all of the bytes make up.
inline Result<EventRecord> unflatten(QByteArrayView bytes)
{
    Result<EventRecord> record = read([&bytes](char *buffer, qsizetype maximum) {
        const qsizetype count = std::min(maximum, bytes.size());
        std::copy_n(bytes.data(), count, buffer);
        bytes = bytes.sliced(count);
        return count;
    });
    if (record && !bytes.isEmpty())
        return Failure{QStringLiteral("The event is longer than it says.")};
    return record;
}

} // namespace vantrell::EventWire
