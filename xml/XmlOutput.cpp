#include "xml/XmlOutput.h"

#include <QIODevice>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

const iconv_t noConverter = iconv_t(-1);

/// The first character of valid UTF-8, and its length in bytes.
char32_t firstCharacter(const char *utf8, std::size_t &length)
{
    const auto first = static_cast<unsigned char>(*utf8);
    length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    char32_t character = length == 1 ? first : first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i)
        character = character << 6 | (static_cast<unsigned char>(utf8[i]) & 0x3Fu);
    return character;
}

} // namespace

XmlOutput::XmlOutput(QIODevice &device, const std::atomic<bool> *cancelled)
    : m_device(device)
    , m_cancelled(cancelled)
    , m_converter(noConverter)
    , m_reader(noConverter)
{
    m_text.reserve(flushSize + 4096);
}

XmlOutput::~XmlOutput()
{
    for (const iconv_t converter : {m_converter, m_reader}) {
        if (converter != noConverter)
            iconv_close(converter);
    }
}

bool XmlOutput::setEncoding(const QByteArray &name)
{
    const QByteArray upper = name.toUpper();
    if (upper == "UTF-8" || upper == "UTF8")
        return true;
    m_converter = iconv_open(name.constData(), "UTF-8");
    if (m_converter == noConverter || upper.startsWith("UTF-16"))
        return m_converter != noConverter;
    m_reader = iconv_open("UTF-8", name.constData());
    if (m_reader != noConverter && keepsText())
        return true;
    iconv_close(m_converter);
    m_converter = noConverter;
    return false;
}

/// Whether markup is encoded as in ASCII, so that a parser finds the declaration, and characters do not
/// depend on their neighbours: there are no shifts between sets of characters, and no accents that join
/// letters.
bool XmlOutput::keepsText()
{
    const auto isWhole = [this](std::string_view utf8) {
        m_convertedSize = 0;
        return appendConverted(utf8) && isReadBack(utf8, 0);
    };
    const auto isStateless = [this](std::string_view utf8) {
        m_convertedSize = 0;
        if (!appendConverted(utf8))
            return true; // lacking
        const std::string once(m_converted.data(), m_convertedSize);
        return !once.empty() && appendConverted(utf8) &&
               std::string_view(m_converted.data(), m_convertedSize) == once + once;
    };
    constexpr std::string_view markup =
        "<?xml version=\"1.0\" "
        "encoding='ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789._-'?>\n"
        "<!DOCTYPE a:b[]><a/>&#38;()|,*+%";
    bool answer = isWhole(markup) && std::string_view(m_converted.data(), m_convertedSize) == markup;
    for (const std::string_view letter : {"é", "Ê", "中", "か", "한", "я"})
        answer = answer && isStateless(letter);
    const std::pair<std::string, std::string> joined[] = {{"a", "\u0300"}, {"\u05D0", "\u05BC"}};
    for (const auto &[letter, accent] : joined) {
        if (answer && isWhole(letter) && isWhole(accent))
            answer = isWhole(letter + accent);
    }
    m_convertedSize = 0;
    return answer;
}

bool XmlOutput::flush()
{
    if (m_cancelled && *m_cancelled)
        m_failed = true;
    if (m_converter != noConverter && !m_failed)
        convert();
    const bool isConverted = m_converter != noConverter;
    if (!m_failed) {
        const auto size = qint64(isConverted ? m_convertedSize : m_text.size());
        m_failed = m_device.write(isConverted ? m_converted.data() : m_text.data(), size) != size;
    }
    m_text.clear();
    m_convertedSize = 0;
    return !m_failed;
}

/// In small parts of whole characters: at each one that the encoding lacks, iconv() goes through all of its
/// input again.
void XmlOutput::convert()
{
    constexpr std::size_t partSize = 128;
    for (std::string_view rest = m_text; !rest.empty() && !m_failed;) {
        std::size_t size = std::min(partSize, rest.size());
        while (size < rest.size() && (static_cast<unsigned char>(rest[size]) & 0xC0) == 0x80)
            --size;
        const std::size_t from = m_convertedSize;
        if (!appendConverted(rest.substr(0, size)) || !isReadBack(rest.substr(0, size), from)) {
            m_convertedSize = from;
            convertSingly(rest.substr(0, size));
        }
        rest.remove_prefix(size);
    }
}

void XmlOutput::convertSingly(std::string_view utf8)
{
    m_failed = m_failed || (m_cancelled && *m_cancelled);
    while (!utf8.empty() && !m_failed) {
        std::size_t length = 0;
        const char32_t character = firstCharacter(utf8.data(), length);
        const std::size_t from = m_convertedSize;
        if (!appendConverted(utf8.substr(0, length)) || !isReadBack(utf8.substr(0, length), from)) {
            m_convertedSize = from;
            m_failed = !appendConverted("&#" + std::to_string(std::uint32_t(character)) + ";");
        }
        utf8.remove_prefix(length);
    }
}

/// False where the encoding lacks a character. There may be one at every step, so each needs no more room
/// than the text in front of it.
bool XmlOutput::appendConverted(std::string_view utf8)
{
    constexpr std::size_t wanted = 4096; // bytes
    if (m_converted.size() < m_convertedSize + wanted)
        m_converted.resize(std::max(2 * m_converted.size(), m_convertedSize + wanted));
    char *in = const_cast<char *>(utf8.data()); // it is not written to
    std::size_t inLeft = utf8.size();
    char *out = m_converted.data() + m_convertedSize;
    std::size_t outLeft = m_converted.size() - m_convertedSize;
    const std::size_t result = iconv(m_converter, &in, &inLeft, &out, &outLeft);
    m_convertedSize = std::size_t(out - m_converted.data());
    return result != std::size_t(-1);
}

/// Whether what was converted, from that byte on, is this text. An encoding may write two characters alike.
bool XmlOutput::isReadBack(std::string_view utf8, std::size_t from)
{
    if (m_reader == noConverter)
        return true;
    m_readBack.resize(std::max(m_readBack.size(), utf8.size() + 16));
    char *in = m_converted.data() + from;
    std::size_t inLeft = m_convertedSize - from;
    char *out = m_readBack.data();
    std::size_t outLeft = m_readBack.size();
    iconv(m_reader, nullptr, nullptr, nullptr, nullptr);
    const bool isValid = iconv(m_reader, &in, &inLeft, &out, &outLeft) != std::size_t(-1) &&
                         iconv(m_reader, nullptr, nullptr, &out, &outLeft) != std::size_t(-1);
    return isValid && std::string_view(m_readBack.data(), std::size_t(out - m_readBack.data())) == utf8;
}

} // namespace vantrell
