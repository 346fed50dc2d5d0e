#include "rows/RowSort.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <unordered_map>
#include <utility>

namespace vantrell
{

namespace
{

/// What orders a row, as numbers: first by kind, then by value, both ascending.
struct Rank {
    enum class Kind : quint32 { Absent, Integer, Number, Text } kind = Kind::Absent;
    quint32 row = 0; // before sorting
    quint64 value = 0;
};

bool comesBefore(const Rank &a, const Rank &b)
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

/// The different texts of a column in their order. Many rows have the same text, and numbers are compared
/// faster than texts.
class TextRanks
{
public:
    /// Gives the text a number of its own.
    quint64 add(const QString &text)
    {
        const auto [entry, isNew] = m_numbers.try_emplace(text, quint32(m_texts.size()));
        if (isNew)
            m_texts.push_back({text, text.toCaseFolded()});
        return entry->second;
    }

    /// The ranks by the numbers of the texts.
    std::vector<quint64> ranks() const
    {
        std::vector<Order> order;
        order.reserve(m_texts.size());
        for (const Text &text : m_texts)
            order.push_back({beginningOf(text.folded), quint32(order.size())});
        std::sort(order.begin(), order.end(), [this](const Order &a, const Order &b) {
            return a.beginning != b.beginning ? a.beginning < b.beginning : comesBefore(a.number, b.number);
        });
        std::vector<quint64> ranks(order.size());
        for (std::size_t rank = 0; rank < order.size(); ++rank)
            ranks[order[rank].number] = rank;
        return ranks;
    }

private:
    struct Text {
        QString text;
        QString folded;
    };
    struct Order {
        quint64 beginning;
        quint32 number;
    };
    struct Hash {
        std::size_t operator()(const QString &text) const { return qHash(text); }
    };

    bool comesBefore(quint32 a, quint32 b) const
    {
        const int comparison = m_texts[a].folded.compare(m_texts[b].folded);
        return comparison != 0 ? comparison < 0 : m_texts[a].text < m_texts[b].text;
    }

    /// The first eight code units as bytes, the first one highest, up to the first above 0xfe, which counts
    /// as 0xff: of two different beginnings, the smaller is that of the text that comes first.
    static quint64 beginningOf(const QString &text)
    {
        constexpr int units = 8;
        constexpr quint64 large = 0xff;
        quint64 beginning = 0;
        int taken = 0;
        for (; taken < units && taken < text.size(); ++taken) {
            const quint64 unit = std::min<quint64>(text[taken].unicode(), large);
            beginning |= unit << 8 * (units - 1 - taken);
            if (unit == large)
                break;
        }
        return beginning;
    }

    std::unordered_map<QString, quint32, Hash> m_numbers;
    std::vector<Text> m_texts;
};

Rank rankOf(const std::optional<RecordValue> &value, TextRanks &texts)
{
    Rank rank;
    if (!value)
        return rank;
    if (const auto *text = std::get_if<QString>(&*value)) {
        rank.kind = Rank::Kind::Text;
        rank.value = texts.add(*text);
    } else if (const auto *number = std::get_if<double>(&*value)) {
        rank.kind = Rank::Kind::Number;
        rank.value = orderOf(*number);
    } else if (const auto *integer = std::get_if<std::int64_t>(&*value)) {
        rank.kind = Rank::Kind::Integer;
        rank.value = orderOf(*integer);
    } else if (const auto *flag = std::get_if<bool>(&*value)) {
        rank.kind = Rank::Kind::Integer;
        rank.value = orderOf(std::int64_t(*flag));
    } else if (const auto *date = std::get_if<QDateTime>(&*value)) {
        rank.kind = Rank::Kind::Integer;
        rank.value = orderOf(std::int64_t(date->toMSecsSinceEpoch()));
    }
    return rank;
}

std::vector<Rank> ranksOf(const RowList &rows, const Column &column)
{
    std::vector<Rank> ranks;
    ranks.reserve(rows.size());
    TextRanks texts;
    for (const RowRecordPtr &row : rows) {
        ranks.push_back(rankOf(column.sortValueOf(*row), texts));
        ranks.back().row = quint32(ranks.size() - 1);
    }
    const std::vector<quint64> textRanks = texts.ranks();
    for (Rank &rank : ranks) {
        if (rank.kind == Rank::Kind::Text)
            rank.value = textRanks[rank.value];
    }
    return ranks;
}

} // namespace

RowList sortedRows(RowList rows, const std::vector<SortDescriptor> &descriptors, const Columns &columns)
{
    // The least important column first: each stable pass keeps the order of those before it.
    for (auto descriptor = descriptors.rbegin(); descriptor != descriptors.rend(); ++descriptor) {
        const Column *known = findColumn(columns, descriptor->column);
        std::vector<Rank> ranks = ranksOf(rows, known ? *known : Column{descriptor->column});
        const bool descending = descriptor->descending;
        std::stable_sort(ranks.begin(), ranks.end(), [descending](const Rank &a, const Rank &b) {
            return descending ? comesBefore(b, a) : comesBefore(a, b);
        });
        RowList sorted;
        sorted.reserve(rows.size());
        for (const Rank &rank : ranks)
            sorted.push_back(std::move(rows[rank.row]));
        rows = std::move(sorted);
    }
    return rows;
}

RowList reverseArray(const RowList &rows)
{
    return RowList(rows.rbegin(), rows.rend());
}

} // namespace vantrell
