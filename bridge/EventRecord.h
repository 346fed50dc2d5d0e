#pragma once

#include "bridge/EventCodes.h"

#include <QByteArray>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

struct EventParameter;

/// A typed value of an event: bytes, a list of values, or an ordered record of values with keywords. Bytes
/// are implicitly shared. A value type; one thread at a time.
class EventDescriptor
{
public:
    /// The empty value, of type `null`.
    EventDescriptor();
    /// A value of any type except `list` and `reco`; the bytes are not checked.
    EventDescriptor(FourCharCode type, QByteArray bytes);

    static EventDescriptor fromUtf8(QByteArray utf8);
    /// The text of a file URL, or of a path with percent escapes, as UTF-8.
    static EventDescriptor fromFileUrl(QByteArray url);
    static EventDescriptor fromBool(bool value);
    static EventDescriptor fromInteger(std::int32_t value);
    /// The signature of an application.
    static EventDescriptor fromSignature(FourCharCode signature);
    /// The 80 bytes of a file reference (bridge/FileReference.h).
    static EventDescriptor fromFileReference(QByteArray bytes);
    static EventDescriptor fromList(std::vector<EventDescriptor> items);
    static EventDescriptor fromRecord(std::vector<EventParameter> fields);

    FourCharCode type() const { return m_type; }
    bool isNull() const { return m_type == EventCode::Null; }
    bool isList() const { return m_type == EventCode::List; }
    bool isRecord() const { return m_type == EventCode::Record; }

    // Nothing when the value has another type or a size that is invalid for its type.
    std::optional<QByteArray> toUtf8() const { return bytesOf(EventCode::Utf8); }
    std::optional<QByteArray> toFileUrl() const { return bytesOf(EventCode::FileUrl); }
    std::optional<bool> toBool() const;
    std::optional<std::int32_t> toInteger() const;
    std::optional<FourCharCode> toSignature() const;
    std::optional<QByteArray> toFileReference() const;

    /// Empty for a list or record.
    const QByteArray &bytes() const { return m_bytes; }
    /// Empty unless it is a list.
    const std::vector<EventDescriptor> &items() const { return m_items; }
    /// Empty unless it is a record.
    const std::vector<EventParameter> &fields() const { return m_fields; }
    /// The first field with that keyword; null without one.
    const EventDescriptor *field(FourCharCode keyword) const;

    friend bool operator==(const EventDescriptor &a, const EventDescriptor &b);

private:
    std::optional<QByteArray> bytesOf(FourCharCode type) const
    {
        return m_type == type ? std::optional(m_bytes) : std::nullopt;
    }

    FourCharCode m_type = EventCode::Null;
    QByteArray m_bytes;
    std::vector<EventDescriptor> m_items;
    std::vector<EventParameter> m_fields;
};

struct EventParameter {
    FourCharCode keyword;
    EventDescriptor value;

    friend bool operator==(const EventParameter &a, const EventParameter &b) = default;
};

/// One event, or the reply to one. A value type; one thread at a time.
struct EventRecord {
    /// Time-outs that are not a number of ticks.
    static constexpr std::int32_t systemTimeout = -1; ///< one minute
    static constexpr std::int32_t noTimeout = -2;

    FourCharCode eventClass;
    FourCharCode identifier;
    EventDescriptor address;              ///< of the receiving application; null in a reply
    std::int32_t returnId = -1;           ///< -1: chosen automatically
    std::int32_t transaction = 0;         ///< 0: none
    std::int32_t sendMode = 3;            ///< 3: the sender waits for the reply
    std::int32_t priority = 1;            ///< 1: high
    std::int32_t timeout = systemTimeout; ///< ticks; 60 are a second
    std::vector<EventParameter> parameters;

    /// A reply without parameters: `aevt`, `ansr`.
    static EventRecord reply();
    /// A reply that reports an error: `errn`, a `long`.
    static EventRecord errorReply(std::int32_t number);

    /// The first parameter with that keyword; null when there is none.
    const EventDescriptor *parameter(FourCharCode keyword) const;
    /// Removes the parameter and returns its value; nothing when there is none.
    std::optional<EventDescriptor> takeParameter(FourCharCode keyword);
    /// Replaces the parameter, or appends it.
    void setParameter(FourCharCode keyword, EventDescriptor value);

    /// The number of the error that a reply reports; 0 for none.
    std::int32_t errorNumber() const;

    friend bool operator==(const EventRecord &a, const EventRecord &b) = default;
};

} // namespace vantrell
