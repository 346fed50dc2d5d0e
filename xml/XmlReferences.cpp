#include "xml/XmlReferences.h"

#include <QChar>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace vantrell::XmlReferences
{

namespace
{

struct Reference {
    std::size_t length = 0; ///< 0 without one
    std::uint32_t character = 0;
};

int digitValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    const char lower = char(c | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : 99;
}

/// The character reference at the start of the text.
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

/// The length of what starts there and holds no references, up to the text's end when it has none;
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

constexpr char32_t FirstWanted = 160;

/// A character written as a reference, or as two of a surrogate pair.
struct Written {
    std::size_t at = 0;
    std::size_t length = 0; ///< 0 when there are no more
    char32_t character = 0;
};

enum class Wanted { Pairs, AllFrom160 };

/// Finds the characters of a text that are written as references, one after the other. Most texts have none,
/// so CDATA sections and the like are searched for only before a reference. Nothing is scanned twice.
class ReferenceFinder
{
public:
    ReferenceFinder(std::string_view text, Wanted wanted)
        : m_text(text)
        , m_wanted(wanted)
    {
    }

    Written next()
    {
        while ((m_at = m_text.find('&', m_at)) != std::string_view::npos) {
            const Reference first = referenceAtStart(m_text.substr(m_at));
            const Written written = writtenWith(first);
            if (written.length == 0) {
                m_at += std::max<std::size_t>(first.length, 1);
                continue;
            }
            if (const std::size_t end = endOfSpanAround(m_at); end > 0) {
                m_at = end;
                continue;
            }
            m_at = m_checked = written.at + written.length;
            return written;
        }
        m_at = m_text.size();
        return {m_at, 0, 0};
    }

private:
    /// What is wanted and begins with the reference there.
    Written writtenWith(const Reference &first) const
    {
        if (first.length == 0 || first.character < FirstWanted)
            return {};
        if (!QChar::isSurrogate(first.character)) {
            const bool isCharacter = first.character <= QChar::LastValidCodePoint &&
                                     first.character != 0xFFFE && first.character != 0xFFFF;
            if (m_wanted == Wanted::Pairs || !isCharacter)
                return {};
            return {m_at, first.length, first.character};
        }
        if (!QChar::isHighSurrogate(first.character))
            return {};
        const Reference low = referenceAtStart(m_text.substr(m_at + first.length));
        if (low.length == 0 || !QChar::isLowSurrogate(low.character))
            return {};
        return {m_at, first.length + low.length,
                QChar::surrogateToUcs4(char16_t(first.character), char16_t(low.character))};
    }

    /// Where what holds no references and has begun before the offset ends; 0 when there is nothing such.
    std::size_t endOfSpanAround(std::size_t offset)
    {
        while (m_checked < offset) {
            const std::size_t markup = m_text.substr(0, offset).find('<', m_checked);
            if (markup == std::string_view::npos)
                return 0;
            m_checked = markup + std::max<std::size_t>(lengthWithoutReferences(m_text, markup), 1);
        }
        return m_checked > offset ? m_checked : 0;
    }

    std::string_view m_text;
    Wanted m_wanted;
    std::size_t m_at = 0;
    std::size_t m_checked = 0; ///< no such section that starts before it extends beyond it
};

QByteArray asReference(char32_t character)
{
    return "&#" + QByteArray::number(uint(character)) + ';';
}

QByteArray asUtf8(char32_t character)
{
    return QString::fromUcs4(&character, 1).toUtf8();
}

/// Puts something shorter instead of each character that is wanted and written as a reference.
QByteArray replaced(QByteArray xml, Wanted wanted, QByteArray (*replacement)(char32_t))
{
    if (ReferenceFinder({xml.constData(), std::size_t(xml.size())}, wanted).next().length == 0)
        return xml;
    // Edited where it is: the rest of the text moves towards its start.
    char *const bytes = xml.data();
    ReferenceFinder references({bytes, std::size_t(xml.size())}, wanted);
    Written found = references.next();
    std::size_t to = found.at;
    while (found.length > 0) {
        const QByteArray shorter = replacement(found.character);
        std::memcpy(bytes + to, shorter.constData(), std::size_t(shorter.size()));
        to += std::size_t(shorter.size());
        const std::size_t from = found.at + found.length;
        found = references.next();
        std::memmove(bytes + to, bytes + from, found.at - from);
        to += found.at - from;
    }
    xml.truncate(qsizetype(to));
    return xml;
}

} // namespace

QByteArray joinedSurrogates(QByteArray xml)
{
    return replaced(std::move(xml), Wanted::Pairs, asReference);
}

QByteArray asCharacters(QByteArray utf8)
{
    return replaced(std::move(utf8), Wanted::AllFrom160, asUtf8);
}

} // namespace vantrell::XmlReferences
