#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vantrell
{

/// The order of texts, without regard to case and then exactly, as numbers: rows share many texts, and
/// numbers are compared faster than texts. One thread at a time.
class TextRanks
{
public:
    /// Gives the text a number, the same one to a text in the same memory.
    std::uint32_t add(const QString &text);

    /// The places of the texts by their numbers; equal texts have the same one.
    std::vector<std::uint32_t> ranks() const;

private:
    std::size_t slotOf(const QString &text) const;
    void grow();

    std::vector<std::uint32_t> m_slots; // numbers of texts, by where they are in memory
    std::vector<QString> m_texts;
};

} // namespace vantrell
