#include "xml/SurrogateReferences.h"

#include <QChar>

#include <algorithm>
#include <string_view>

namespace vantrell
{

namespace
{

/// A character reference, or none when its end is 0.
struct Reference {
    std::size_t end = 0; ///< behind its semicolon
    char32_t value = 0;  ///< beyond Unicode for all that is too large
};

constexpr char32_t tooLarge = 0x110000;

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 16;
}

Reference referenceAt(std::string_view xml, std::size_t at)
{
    if (xml.substr(at, 2) != "&#")
        return {};
    at += 2;
    const bool hexadecimal = at < xml.size() && xml[at] == 'x';
    const int base = hexadecimal ? 16 : 10;
    at += hexadecimal ? 1 : 0;
    const std::size_t first = at;
    char32_t value = 0;
    for (; at < xml.size() && digitValue(xml[at]) < base; ++at)
        value = std::min<char32_t>(value * char32_t(base) + char32_t(digitValue(xml[at])), tooLarge);
    if (at == first || at >= xml.size() || xml[at] != ';')
        return {};
    return {at + 1, value};
}

/// Where the markup that begins at a "<" and holds no references ends; behind the "<" for all else.
std::size_t endOfOpaqueMarkup(std::string_view xml, std::size_t at)
{
    constexpr std::string_view delimiters[][2] = {{"<!--", "-->"}, {"<![CDATA[", "]]>"}, {"<?", "?>"}};
    for (const auto &[start, end] : delimiters) {
        if (!xml.substr(at).starts_with(start))
            continue;
        const std::size_t found = xml.find(end, at + start.size());
        return found == std::string_view::npos ? xml.size() : found + end.size();
    }
    return at + 1;
}

} // namespace

QByteArray joinSurrogateReferences(const QByteArray &xml)
{
    const std::string_view text(xml.constData(), std::size_t(xml.size()));
    QByteArray joined;
    std::size_t copied = 0;
    const auto copyTo = [&](std::size_t end) {
        joined.append(text.data() + copied, qsizetype(end - copied));
    };
    std::size_t at = 0;
    while ((at = text.find_first_of("<&", at)) != std::string_view::npos) {
        if (text[at] == '<') {
            at = endOfOpaqueMarkup(text, at);
            continue;
        }
        const Reference first = referenceAt(text, at);
        if (first.end == 0 || !QChar::isSurrogate(first.value)) {
            at = std::max(at + 1, first.end);
            continue;
        }
        const Reference second = referenceAt(text, first.end);
        const bool isPair = QChar::isHighSurrogate(first.value) && QChar::isLowSurrogate(second.value);
        copyTo(at);
        if (isPair) {
            const char32_t character = QChar::surrogateToUcs4(char16_t(first.value), char16_t(second.value));
            joined += "&#" + QByteArray::number(uint(character)) + ';';
        }
        at = copied = isPair ? second.end : first.end;
    }
    if (copied == 0)
        return xml;
    copyTo(text.size());
    return joined;
}

} // namespace vantrell
