#pragma once

#include <cstdint>
#include <string_view>

namespace vantrell
{

/// Estimates what the values of the attribute lists in a document type cost: the XML library compares each
/// value of an enumeration with all others. Whatever looks like the start of a list counts as one, so that no
/// damage hides a list from this class that the library reads.
class XmlEnumerations
{
public:
    /// The text comes in parts of any size.
    void note(std::string_view text)
    {
        for (const char character : text)
            note(character);
    }

    /// Comparisons.
    std::int64_t cost() const { return m_cost; }

private:
    static constexpr std::string_view start = "<!ATTLIST";

    void note(char character)
    {
        if (character == '<') {
            m_matched = 1;
            m_quote = 0;
        } else if (m_matched < start.size()) {
            m_matched = m_matched > 0 && character == start[m_matched] ? m_matched + 1 : 0;
            m_values = 0;
        } else if (m_quote != 0) {
            m_quote = character == m_quote ? '\0' : m_quote;
        } else if (character == '"' || character == '\'') {
            m_quote = character;
        } else if (character == '|') {
            m_cost += ++m_values;
        } else if (character == '(') {
            m_values = 0;
        } else if (character == '>') {
            m_matched = 0;
        }
    }

    std::size_t m_matched = 0; // characters of the start; all of them inside of a list
    char m_quote = 0;          // of the default value being read; 0 outside of one
    std::int64_t m_values = 0; // of the enumeration being read
    std::int64_t m_cost = 0;
};

} // namespace vantrell
