#include "xml/XmlReferences.h"

#include <QChar>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vantrell::XmlReferences
{

namespace
{

struct Reference {
    std::size_t length = 0; ///< 0: there is none
    std::uint32_t character = 0;
};

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 99;
}

/// The character reference that the text starts with.
Reference referenceAtStart(std::string_view text)
{
    if (!text.starts_with("&#"))
        return {};
    const std::uint32_t base = text.substr(2).starts_with('x') ? 16 : 10;
    const std::size_t firstDigit = base == 16 ? 3 : 2;
    std::size_t at = firstDigit;
    std::uint32_t character = 0;
    for (; at < text.size() && std::uint32_t(digitValue(text[at])) < base; ++at)
        character = std::min(character * base + std::uint32_t(digitValue(text[at])), std::uint32_t(0x110000));
    if (at == firstDigit || at == text.size() || text[at] != ';')
        return {};
    return {at + 1, character};
}

/// The length of what starts at the place and holds no references, up to the text's end when it has none;
/// 0 when nothing such starts there.
std::size_t lengthWithoutReferences(std::string_view text, std::size_t at)
{
    struct Span {
        std::string_view start;
        std::string_view end;
    };
    static constexpr Span spans[] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    for (const Span &span : spans) {
        if (!text.substr(at).starts_with(span.start))
            continue;
        const std::size_t end = text.find(span.end, at + span.start.size());
        return end == std::string_view::npos ? text.size() - at : end + span.end.size() - at;
    }
    return 0;
}

/// A surrogate pair written as two references.
struct Pair {
    std::size_t at = 0;
    std::size_t length = 0; ///< 0: there is none any more
    char32_t character = 0;
};

/// Finds the pairs of a text one after the other. Most texts have none, so what holds no references is only
/// looked for before a pair. What lies before a pair that was found is not looked at again.
class PairFinder
{
public:
    explicit PairFinder(std::string_view text)
        : m_text(text)
    {
    }

    Pair next()
    {
        while ((m_at = m_text.find('&', m_at)) != std::string_view::npos) {
            const Reference high = referenceAtStart(m_text.substr(m_at));
            if (high.length == 0 || !QChar::isHighSurrogate(high.character)) {
                ++m_at;
                continue;
            }
            const Reference low = referenceAtStart(m_text.substr(m_at + high.length));
            if (low.length == 0 || !QChar::isLowSurrogate(low.character)) {
                m_at += high.length;
                continue;
            }
            if (const std::size_t end = endOfSpanAround(m_at); end > 0) {
                m_at = end;
                continue;
            }
            const Pair pair{m_at, high.length + low.length,
                            QChar::surrogateToUcs4(char16_t(high.character), char16_t(low.character))};
            m_at = m_checked = pair.at + pair.length;
            return pair;
        }
        m_at = m_text.size();
        return {m_at, 0, 0};
    }

private:
    /// Where what holds no references and has begun before the place ends; 0 when there is nothing such.
    std::size_t endOfSpanAround(std::size_t place)
    {
        while (m_checked < place) {
            const std::size_t markup = m_text.substr(0, place).find('<', m_checked);
            if (markup == std::string_view::npos)
                return 0;
            m_checked = markup + std::max<std::size_t>(lengthWithoutReferences(m_text, markup), 1);
        }
        return m_checked > place ? m_checked : 0;
    }

    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_checked = 0; ///< nothing that begins before it and holds no references goes on behind it
};

} // namespace

QByteArray joinedSurrogates(QByteArray xml)
{
    if (PairFinder({xml.constData(), std::size_t(xml.size())}).next().length == 0)
        return xml;
    // What is joined is shorter than the pair, so the text moves towards its start.
    char *const bytes = xml.data();
    PairFinder pairs({bytes, std::size_t(xml.size())});
    Pair pair = pairs.next();
    std::size_t to = pair.at;
    while (pair.length > 0) {
        const QByteArray joined = "&#" + QByteArray::number(uint(pair.character)) + ';';
        std::memcpy(bytes + to, joined.constData(), std::size_t(joined.size()));
        to += std::size_t(joined.size());
        const std::size_t from = pair.at + pair.length;
        pair = pairs.next();
        std::memmove(bytes + to, bytes + from, pair.at - from);
        to += pair.at - from;
    }
    xml.truncate(qsizetype(to));
    return xml;
}

} // namespace vantrell::XmlReferences
