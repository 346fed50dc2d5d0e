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

/// Where the text goes on behind what starts with "<" and holds no references, or behind the "<" itself.
std::size_t behindMarkup(std::string_view text, std::size_t at)
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
        return end == std::string_view::npos ? text.size() : end + span.end.size();
    }
    return at + 1;
}

/// A surrogate pair written as two references.
struct Pair {
    std::size_t at;
    std::size_t length; ///< 0: there is none any more
    char32_t character;
};

Pair nextPair(std::string_view text, std::size_t at)
{
    while (at < text.size()) {
        if (text[at] != '&' && text[at] != '<') {
            ++at;
            continue;
        }
        if (text[at] == '<') {
            at = behindMarkup(text, at);
            continue;
        }
        const Reference high = referenceAtStart(text.substr(at));
        if (high.length > 0 && QChar::isHighSurrogate(high.character)) {
            const Reference low = referenceAtStart(text.substr(at + high.length));
            if (low.length > 0 && QChar::isLowSurrogate(low.character))
                return {at, high.length + low.length,
                        QChar::surrogateToUcs4(char16_t(high.character), char16_t(low.character))};
        }
        at += std::max<std::size_t>(high.length, 1);
    }
    return {text.size(), 0, 0};
}

} // namespace

QByteArray joinedSurrogates(QByteArray xml)
{
    Pair pair = nextPair({xml.constData(), std::size_t(xml.size())}, 0);
    if (pair.length == 0)
        return xml;
    // What is joined is shorter than the pair, so the text moves towards its start.
    char *const bytes = xml.data();
    const std::string_view text(bytes, std::size_t(xml.size()));
    std::size_t to = pair.at;
    while (pair.length > 0) {
        const QByteArray joined = "&#" + QByteArray::number(uint(pair.character)) + ';';
        std::memcpy(bytes + to, joined.constData(), std::size_t(joined.size()));
        to += std::size_t(joined.size());
        const std::size_t from = pair.at + pair.length;
        pair = nextPair(text, from);
        std::memmove(bytes + to, bytes + from, pair.at - from);
        to += pair.at - from;
    }
    xml.truncate(qsizetype(to));
    return xml;
}

} // namespace vantrell::XmlReferences
