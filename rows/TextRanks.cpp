#include "rows/TextRanks.h"

#include "rows/TextBytes.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace vantrell
{

namespace
{

constexpr std::uint32_t noText = 0xffffffff;

struct RankedText {
    std::uint64_t beginning;
    std::uint32_t number;
    std::uint32_t length; // of the folded text, in bytes
    std::size_t begin;
};

/// The first eight bytes: of two different beginnings, the smaller is that of the text that comes first.
std::uint64_t beginningOf(std::string_view text)
{
    constexpr std::size_t size = sizeof(std::uint64_t);
    std::uint64_t beginning = 0;
    for (std::size_t i = 0; i < std::min(size, text.size()); ++i)
        beginning |= std::uint64_t(std::uint8_t(text[i])) << 8 * (size - 1 - i);
    return beginning;
}

} // namespace

std::uint32_t TextRanks::add(const QString &text)
{
    if (2 * m_texts.size() >= m_slots.size())
        grow();
    std::size_t slot = slotOf(text);
    for (; m_slots[slot] != noText; slot = (slot + 1) & (m_slots.size() - 1)) {
        const QString &known = m_texts[m_slots[slot]];
        if (known.constData() == text.constData() && known.size() == text.size())
            return m_slots[slot];
    }
    m_slots[slot] = std::uint32_t(m_texts.size());
    m_texts.push_back(text);
    return m_slots[slot];
}

std::vector<std::uint32_t> TextRanks::ranks() const
{
    std::string bytes; // of all texts, folded
    std::vector<RankedText> order;
    order.reserve(m_texts.size());
    for (const QString &text : m_texts) {
        const std::size_t begin = bytes.size();
        if (!TextBytes::appendSmallAscii(bytes, text))
            TextBytes::append(bytes, text.toCaseFolded());
        order.push_back({beginningOf(std::string_view(bytes).substr(begin)), std::uint32_t(order.size()),
                         std::uint32_t(bytes.size() - begin), begin});
    }
    std::sort(order.begin(), order.end(), [&](const RankedText &a, const RankedText &b) {
        if (a.beginning != b.beginning)
            return a.beginning < b.beginning;
        const std::string_view all(bytes);
        const int comparison = all.substr(a.begin, a.length).compare(all.substr(b.begin, b.length));
        return comparison != 0 ? comparison < 0 : m_texts[a.number] < m_texts[b.number];
    });
    std::vector<std::uint32_t> ranks(order.size());
    std::uint32_t rank = 0;
    const auto isEqual = [this](const RankedText &a, const RankedText &b) {
        return a.beginning == b.beginning && a.length == b.length && m_texts[a.number] == m_texts[b.number];
    };
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i > 0 && !isEqual(order[i - 1], order[i]))
            ++rank;
        ranks[order[i].number] = rank;
    }
    return ranks;
}

std::size_t TextRanks::slotOf(const QString &text) const
{
    constexpr std::uint64_t spread = 0x9e3779b97f4a7c15;
    return std::size_t(std::uint64_t(std::uintptr_t(text.constData())) * spread >> 32) & (m_slots.size() - 1);
}

void TextRanks::grow()
{
    constexpr std::size_t least = 64;
    m_slots.assign(std::max(2 * m_slots.size(), least), noText);
    for (std::size_t number = 0; number < m_texts.size(); ++number) {
        std::size_t slot = slotOf(m_texts[number]);
        while (m_slots[slot] != noText)
            slot = (slot + 1) & (m_slots.size() - 1);
        m_slots[slot] = std::uint32_t(number);
    }
}

} // namespace vantrell
