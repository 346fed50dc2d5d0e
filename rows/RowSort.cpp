#include "rows/RowSort.h"

#include "rows/TextRanks.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <numeric>
#include <utility>

namespace vantrell
{

/// What orders a row, as numbers: first by kind, then by value, both ascending.
struct RowRank {
    enum class Kind : quint32 { Absent, Integer, Number, Text } kind = Kind::Absent;
    quint32 row = 0; // before sorting
    quint64 value = 0;
};

namespace
{

bool comesBefore(const RowRank &a, const RowRank &b)
{
    return a.kind != b.kind ? a.kind < b.kind : a.value < b.value;
}

constexpr quint64 signBit = quint64(1) << 63;

quint64 orderOf(std::int64_t integer)
{
    return quint64(integer) ^ signBit;
}

/// Bits that compare as the numbers do: those of a negative number are inverted.
quint64 orderOf(double number)
{
    const auto bits = std::bit_cast<quint64>(number + 0.0); // one zero only
    return bits & signBit ? ~bits : bits | signBit;
}

RowRank rankOf(const std::optional<RecordValue> &value, TextRanks &texts)
{
    RowRank rank;
    if (!value)
        return rank;
    if (const auto *text = std::get_if<QString>(&*value)) {
        rank.kind = RowRank::Kind::Text;
        rank.value = texts.add(*text);
    } else if (const auto *number = std::get_if<double>(&*value)) {
        rank.kind = RowRank::Kind::Number;
        rank.value = orderOf(*number);
    } else if (const auto *integer = std::get_if<std::int64_t>(&*value)) {
        rank.kind = RowRank::Kind::Integer;
        rank.value = orderOf(*integer);
    } else if (const auto *flag = std::get_if<bool>(&*value)) {
        rank.kind = RowRank::Kind::Integer;
        rank.value = orderOf(std::int64_t(*flag));
    } else if (const auto *date = std::get_if<QDateTime>(&*value)) {
        rank.kind = RowRank::Kind::Integer;
        rank.value = orderOf(std::int64_t(date->toMSecsSinceEpoch()));
    }
    return rank;
}

} // namespace

/// What is sorted by one descriptor.
struct RowSorter::Values {
    Column column;
    bool isDescending;
    std::vector<RowRank> ranks = {}; // of a text, its number
    TextRanks texts = {};
};

RowSorter::RowSorter(const std::vector<SortDescriptor> &descriptors, const Columns &columns)
{
    for (const SortDescriptor &descriptor : descriptors) {
        const Column *const known = findColumn(columns, descriptor.column);
        m_values.push_back({known ? *known : Column{descriptor.column}, descriptor.descending});
    }
}

RowSorter::RowSorter(RowSorter &&) noexcept = default;
RowSorter::~RowSorter() = default;

void RowSorter::add(const RowRecord &row)
{
    for (Values &values : m_values) {
        values.ranks.push_back(rankOf(values.column.sortValueOf(row), values.texts));
        values.ranks.back().row = quint32(m_size);
    }
    ++m_size;
}

std::vector<std::uint32_t> RowSorter::order()
{
    std::vector<std::uint32_t> order(m_size);
    std::iota(order.begin(), order.end(), 0);
    // The least important column first: each stable pass keeps the order of those before it.
    for (auto values = m_values.rbegin(); values != m_values.rend(); ++values) {
        const std::vector<std::uint32_t> textRanks = values->texts.ranks();
        for (RowRank &rank : values->ranks) {
            if (rank.kind == RowRank::Kind::Text)
                rank.value = textRanks[rank.value];
        }
        std::vector<RowRank> ranks;
        if (values == m_values.rbegin()) {
            ranks = std::move(values->ranks);
        } else {
            ranks.reserve(m_size);
            for (const std::uint32_t row : order)
                ranks.push_back(values->ranks[row]);
        }
        const bool isDescending = values->isDescending;
        std::stable_sort(ranks.begin(), ranks.end(), [isDescending](const RowRank &a, const RowRank &b) {
            return isDescending ? comesBefore(b, a) : comesBefore(a, b);
        });
        std::transform(ranks.begin(), ranks.end(), order.begin(),
                       [](const RowRank &rank) { return rank.row; });
    }
    m_values.clear(); // on this thread
    return order;
}

RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors, const Columns &columns)
{
    if (descriptors.empty())
        return rows;
    RowSorter sorter(descriptors, columns);
    for (const RowRecordPtr &row : rows)
        sorter.add(*row);
    RowList sorted;
    sorted.reserve(rows.size());
    for (const std::uint32_t row : sorter.order())
        sorted.push_back(std::move(rows[row]));
    return sorted;
}

RowList reverseArray(const RowList &rows)
{
    return RowList(rows.rbegin(), rows.rend());
}

} // namespace vantrell
