#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QHash>
#include <QString>
#include <QStringList>

#include <concepts>
#include <variant>
#include <vector>

namespace vantrell
{

class PropertyListValue;

/// A dictionary that keeps its keys in the order in which they came. A value type like any other;
/// not to be changed by two threads at once.
class PropertyListDictionary
{
public:
    struct Entry;
    using Entries = std::vector<Entry>;

    PropertyListDictionary();
    PropertyListDictionary(std::initializer_list<Entry> entries);
    PropertyListDictionary(const PropertyListDictionary &);
    PropertyListDictionary(PropertyListDictionary &&) noexcept;
    PropertyListDictionary &operator=(const PropertyListDictionary &);
    PropertyListDictionary &operator=(PropertyListDictionary &&) noexcept;
    ~PropertyListDictionary();

    bool isEmpty() const;
    qsizetype size() const;
    bool contains(const QString &key) const;
    QStringList keys() const;

    /// The value of a key; a null value when the key is absent.
    const PropertyListValue &value(const QString &key) const;

    /// Replaces the value of a key in its place or appends the key. A null value removes the key.
    void insert(const QString &key, PropertyListValue value);

    /// Removes a key if it is there; takes a time that grows with the dictionary.
    void remove(const QString &key);

    Entries::const_iterator begin() const;
    Entries::const_iterator end() const;

    /// Equal when both hold the same keys with equal values, in whatever order.
    bool operator==(const PropertyListDictionary &other) const;

private:
    Entries m_entries;
    QHash<QString, qsizetype> m_indexes; ///< key -> index into m_entries
};

/// One value of a property list: nothing, a boolean, a whole number, a number, a text, a date, bytes,
/// an array or a dictionary. Nothing is the value of what is absent and has no written form.
class PropertyListValue
{
public:
    using Array = std::vector<PropertyListValue>;
    enum class Type { Null, Boolean, Integer, Real, String, Date, Data, Array, Dictionary };

    PropertyListValue() = default;
    template <typename T>
    requires std::same_as<T, bool> PropertyListValue(T value)
        : m_value(value)
    {
    }
    template <std::integral T>
    requires(!std::same_as<T, bool>) PropertyListValue(T value)
        : m_value(static_cast<qint64>(value))
    {
    }
    template <std::floating_point T>
    PropertyListValue(T value)
        : m_value(static_cast<double>(value))
    {
    }
    PropertyListValue(const QString &value)
        : m_value(value)
    {
    }
    PropertyListValue(const QDateTime &value)
        : m_value(value.toUTC())
    {
    }
    PropertyListValue(const QByteArray &value)
        : m_value(value)
    {
    }
    PropertyListValue(const QStringList &texts);
    PropertyListValue(Array value)
        : m_value(std::move(value))
    {
    }
    PropertyListValue(PropertyListDictionary value)
        : m_value(std::move(value))
    {
    }

    Type type() const { return static_cast<Type>(m_value.index()); }
    bool isNull() const { return type() == Type::Null; }
    bool isString() const { return type() == Type::String; }
    bool isNumber() const { return type() >= Type::Boolean && type() <= Type::Real; }

    /// A number other than 0; a text that starts, after white space, a sign and zeros, with a digit
    /// or with one of "YyTt". False for all else.
    bool toBoolean() const;

    /// The number without its decimals, within 64 bits; a text as integerValue() reads it. 0 for all
    /// else.
    qint64 toInteger() const;

    /// The number; a text as doubleValue() reads it. 0 for all else.
    double toReal() const;

    /// The text; a number as text ("1" and "0" for booleans). A null string for all else.
    QString toString() const;

    /// The date, in UTC; an invalid one for other types.
    QDateTime toDate() const;

    /// The bytes; none for other types.
    QByteArray toData() const;

    /// The array or dictionary itself; an empty one for other types.
    const Array &toArray() const;
    const PropertyListDictionary &toDictionary() const;

    /// The texts of an array; members that are no texts or numbers are left out.
    QStringList toStringList() const;

    bool operator==(const PropertyListValue &other) const { return m_value == other.m_value; }

private:
    // In the order of Type.
    std::variant<std::monostate, bool, qint64, double, QString, QDateTime, QByteArray, Array,
                 PropertyListDictionary>
        m_value;
};

struct PropertyListDictionary::Entry {
    QString key;
    PropertyListValue value;

    bool operator==(const Entry &other) const { return key == other.key && value == other.value; }
};

} // namespace vantrell
