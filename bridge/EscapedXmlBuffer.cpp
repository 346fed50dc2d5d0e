#include "bridge/EscapedXmlBuffer.h"

#include <QChar>

#include <algorithm>
#include <new>

namespace vantrell
{

namespace
{

constexpr char32_t firstEscaped = 160;

bool isCopied(char c)
{
    return static_cast<unsigned char>(c) < 0x80 && c != '\r';
}

/// How many bytes the character has that begins with this one; 1 when none does.
int lengthFrom(unsigned char first)
{
    if (first >= 0xC2 && first < 0xE0)
        return 2;
    if (first >= 0xE0 && first < 0xF0)
        return 3;
    return first >= 0xF0 && first < 0xF5 ? 4 : 1;
}

QByteArray reference(char32_t unit)
{
    return "&#" + QByteArray::number(uint(unit)) + ';';
}

} // namespace

EscapedXmlBuffer::EscapedXmlBuffer()
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

QByteArray EscapedXmlBuffer::take()
{
    return std::exchange(m_escaped, QByteArray());
}

qint64 EscapedXmlBuffer::writeData(const char *data, qint64 size)
{
    try {
        append(data, data + size);
        return size;
    } catch (const std::bad_alloc &) {
        setErrorString(QStringLiteral("There is not enough memory."));
        return -1;
    }
}

void EscapedXmlBuffer::append(const char *data, const char *end)
{
    while (data != end) {
        if (m_met > 0 && (static_cast<unsigned char>(*data) & 0xC0) == 0x80) {
            m_character[std::size_t(m_met++)] = *data++;
            if (m_met == m_length)
                appendCharacter();
            continue;
        }
        if (m_met > 0) // cut off: a character of its own that stands for what cannot be read
            appendCharacter();
        const char *const plain = data;
        data = std::find_if_not(data, end, isCopied);
        m_escaped.append(plain, data - plain);
        if (data == end)
            return;
        if (*data == '\r') {
            m_escaped += "&#13;";
        } else {
            m_character[0] = *data;
            m_met = 1;
            m_length = lengthFrom(static_cast<unsigned char>(*data));
            if (m_length == 1)
                appendCharacter();
        }
        ++data;
    }
}

void EscapedXmlBuffer::appendCharacter()
{
    char32_t character = QChar::ReplacementCharacter;
    if (m_met == m_length && m_length > 1) {
        character = static_cast<unsigned char>(m_character[0]) & (0xFFU >> (m_length + 1));
        for (int i = 1; i < m_length; ++i)
            character = character << 6 | (static_cast<unsigned char>(m_character[std::size_t(i)]) & 0x3FU);
    }
    if (character < firstEscaped)
        m_escaped.append(m_character.data(), m_length);
    else if (QChar::requiresSurrogates(character))
        m_escaped += reference(QChar::highSurrogate(character)) + reference(QChar::lowSurrogate(character));
    else
        m_escaped += reference(character);
    m_met = 0;
}

} // namespace vantrell
