#include "document/RowSort.h"

#include <algorithm>
#include <cstdint>

namespace vantrell
{

namespace
{

/// A value made ready for many comparisons.
struct SortKey {
    enum class Kind { Absent, Integer, Number, Text } kind = Kind::Absent;
    std::int64_t integer = 0;
    double number = 0;
    QString folded;
    QString text;
};

SortKey keyOf(const std::optional<RecordValue> &value)
{
    SortKey key;
    if (!value)
        return key;
    if (const auto *integer = std::get_if<std::int64_t>(&*value)) {
        key.kind = SortKey::Kind::Integer;
        key.integer = *integer;
    } else if (const auto *flag = std::get_if<bool>(&*value)) {
        key.kind = SortKey::Kind::Integer;
        key.integer = *flag;
    } else if (const auto *date = std::get_if<QDateTime>(&*value)) {
        key.kind = SortKey::Kind::Integer;
        key.integer = date->toMSecsSinceEpoch();
    } else if (const auto *number = std::get_if<double>(&*value)) {
        key.kind = SortKey::Kind::Number;
        key.number = *number;
    } else if (const auto *text = std::get_if<QString>(&*value)) {
        key.kind = SortKey::Kind::Text;
        key.text = *text;
        key.folded = text->toCaseFolded();
    }
    return key;
}

template <typename Value>
int compareValues(const Value &a, const Value &b)
{
    return a < b ? -1 : b < a ? 1 : 0;
}

int compareKeys(const SortKey &a, const SortKey &b)
{
    if (a.kind != b.kind)
        return compareValues(a.kind, b.kind);
    switch (a.kind) {
    case SortKey::Kind::Absent:
        return 0;
    case SortKey::Kind::Integer:
        return compareValues(a.integer, b.integer);
    case SortKey::Kind::Number:
        return compareValues(a.number, b.number);
    case SortKey::Kind::Text:
        break;
    }
    const int folded = a.folded.compare(b.folded);
    return folded != 0 ? folded : a.text.compare(b.text);
}

} // namespace

SortValue recordValueOfColumn(const QString &column)
{
    const RecordKey key(column);
    return [key](const RowRecord &row) -> std::optional<RecordValue> {
        const RecordValue *value = row.find(key);
        return value ? std::optional<RecordValue>(*value) : std::nullopt;
    };
}

RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors,
                   const SortValueOfColumn &valueOfColumn)
{
    // The least important column first: each stable pass keeps the order of those before it.
    for (auto descriptor = descriptors.rbegin(); descriptor != descriptors.rend(); ++descriptor) {
        struct Item {
            SortKey key;
            RowRecordPtr row;
        };
        const SortValue valueOf = valueOfColumn(descriptor->column);
        std::vector<Item> items;
        items.reserve(rows.size());
        for (RowRecordPtr &row : rows)
            items.push_back({keyOf(valueOf(*row)), std::move(row)});
        std::vector<const Item *> order;
        order.reserve(items.size());
        for (const Item &item : items)
            order.push_back(&item);
        const bool descending = descriptor->descending;
        std::stable_sort(order.begin(), order.end(), [descending](const Item *a, const Item *b) {
            const int comparison = compareKeys(a->key, b->key);
            return descending ? comparison > 0 : comparison < 0;
        });
        std::transform(order.begin(), order.end(), rows.begin(), [](const Item *item) { return item->row; });
    }
    return rows;
}

RowList reverseArray(const RowList &rows)
{
    return RowList(rows.rbegin(), rows.rend());
}

} // namespace vantrell
