#pragma once

#include <QByteArray>
#include <QString>

#include <compare>
#include <cstdint>
#include <optional>
#include <vector>

namespace vantrell
{

/// Four bytes that name a class, an event, a parameter or a type. A type of its own, so that no number or
/// text converts to it.
struct FourCharCode {
    std::uint32_t value = 0; ///< the first character is the highest byte

    constexpr FourCharCode() = default;
    constexpr explicit FourCharCode(std::uint32_t number)
        : value(number)
    {
    }
    /// Of a literal of four characters.
    consteval FourCharCode(const char (&text)[5])
    {
        for (int i = 0; i < 4; ++i)
            value = value << 8 | static_cast<unsigned char>(text[i]);
    }

    friend constexpr auto operator<=>(FourCharCode, FourCharCode) = default;

    /// The four characters, or the number in hexadecimal digits unless all four are printable ASCII.
    QString text() const;
};

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
    static EventDescriptor fromFileReference(QByteArray reference);
    static EventDescriptor fromList(std::vector<EventDescriptor> items);
    static EventDescriptor fromRecord(std::vector<EventParameter> fields);

    FourCharCode type() const { return m_type; }
    bool isNull() const;
    bool isList() const;
    bool isRecord() const;

    // Nothing when the value has another type or a size that is invalid for its type.
    std::optional<QByteArray> toUtf8() const;
    std::optional<QByteArray> toFileUrl() const;
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
    FourCharCode m_type;
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
