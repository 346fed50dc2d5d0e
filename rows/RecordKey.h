#pragma once

#include <QString>

#include <compare>
#include <cstdint>

namespace vantrell
{

/// The key of a value in a row record. The constants that name keys are kept once in the process, for its
/// lifetime, and compared as numbers; a key with another text, such as the name of a field that a file makes
/// up, holds that text. There is no conversion from text without naming this type. Any thread.
class RecordKey
{
public:
    /// A constant's key if one has the text, else one that holds it.
    explicit RecordKey(const QString &text);
    /// A constant.
    explicit RecordKey(const char16_t *text);

    /// The constant of that number.
    explicit RecordKey(std::uint32_t number)
        : m_number(number)
    {
    }

    QString text() const;
    bool isConstant() const { return m_number != noNumber; }
    /// Of a constant; the order means nothing.
    std::uint32_t number() const { return m_number; }

    friend bool operator==(const RecordKey &a, const RecordKey &b)
    {
        return a.m_number == b.m_number && (a.isConstant() || a.m_text == b.m_text);
    }

    /// The number of all keys that are no constants.
    static constexpr std::uint32_t noNumber = 0xffffffff;

private:
    std::uint32_t m_number;
    QString m_text; ///< null for a constant
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
