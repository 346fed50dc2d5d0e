#pragma once

#include <QString>

#include <compare>
#include <cstdint>

namespace vantrell
{

/// The key of a value in a row record: a text, kept once in the process and compared as a number. There
/// is no conversion from text without naming this type. The order of the numbers means nothing. Any
/// thread.
class RecordKey
{
public:
    explicit RecordKey(const QString &text);
    explicit RecordKey(const char16_t *text)
        : RecordKey(QString::fromUtf16(text))
    {
    }

    QString text() const;
    std::uint32_t number() const { return m_number; }

    friend bool operator==(RecordKey a, RecordKey b) { return a.m_number == b.m_number; }

private:
    std::uint32_t m_number;
};

/// A key together with the type of its values; for the constants that name a record's keys.
template <typename Value>
class TypedKey : public RecordKey
{
public:
    using RecordKey::RecordKey;
    using ValueType = Value;
};

} // namespace vantrell
