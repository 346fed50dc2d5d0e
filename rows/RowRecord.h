#pragma once

#include "rows/RecordKey.h"
#include "xml/XmlNode.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <utility>
#include <variant>
#include <vector>

namespace vantrell
{

/// A value in a row record. Absent is no value at all: it is different from an empty text and from 0.
using RecordValue = std::variant<std::int64_t, double, bool, QString, QDateTime, XmlNode>;

/// One row of a table: values by key, in the order in which the keys were first set. Records with the
/// same keys in the same order share one description of them, in which all keys that are no constants are
/// alike. Equality of records is identity: they are handled through RowRecordPtr. A record belongs to one
/// thread at a time.
class RowRecord
{
public:
    RowRecord();
    RowRecord(const RowRecord &) = default;
    RowRecord &operator=(const RowRecord &) = default;

    std::size_t size() const { return m_values.size(); }
    bool contains(const RecordKey &key) const { return find(key) != nullptr; }

    /// The value; null when the key is absent.
    const RecordValue *find(const RecordKey &key) const;

    /// Replaces the key's value, whose index stays the same, or adds the key at the end.
    void set(const RecordKey &key, RecordValue value);
    template <typename Value>
    void set(const TypedKey<Value> &key, typename TypedKey<Value>::ValueType value)
    {
        set(static_cast<const RecordKey &>(key), RecordValue(std::move(value)));
    }

    /// The same where there is a value; nothing happens without one.
    template <typename Value>
    void setIfThere(const TypedKey<Value> &key, const std::optional<Value> &value)
    {
        if (value)
            set(key, *value);
    }

    /// Drops the key; nothing happens when it is absent.
    void remove(const RecordKey &key);

    /// Sets every value of the other record, in its order.
    void merge(const RowRecord &other);

    /// The value when the key is present with that type, else a default one (0, false, null).
    template <typename Value>
    Value get(const TypedKey<Value> &key) const
    {
        const RecordValue *value = find(key);
        const Value *typed = value ? std::get_if<Value>(value) : nullptr;
        return typed ? *typed : Value();
    }

    /// The text of the key; null when it is absent or no text.
    QString text(const RecordKey &key) const;

    /// Key and value at an index below size().
    RecordKey keyAt(std::size_t index) const;
    const RecordValue &valueAt(std::size_t index) const { return m_values[index]; }

private:
    class Layout;

    std::size_t slotOf(const RecordKey &key) const;

    const Layout *m_layout;
    std::vector<RecordValue> m_values;
    QStringList m_names; ///< of the keys that are no constants, in their order
};

using RowRecordPtr = std::shared_ptr<RowRecord>;
using RowList = std::vector<RowRecordPtr>;

} // namespace vantrell
