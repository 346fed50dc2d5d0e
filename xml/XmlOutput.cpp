#include "xml/XmlOutput.h"

#include <QIODevice>

#include <algorithm>
#include <cerrno>

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
{
    m_text.reserve(flushSize + 4096);
}

XmlOutput::~XmlOutput()
{
    if (m_converter != noConverter)
        iconv_close(m_converter);
}

bool XmlOutput::setEncoding(const QByteArray &name)
{
    const QByteArray upper = name.toUpper();
    if (upper == "UTF-8" || upper == "UTF8")
        return true;
    m_converter = iconv_open(name.constData(), "UTF-8");
    if (m_converter != noConverter && !upper.startsWith("UTF-16") && !keepsMarkup()) {
        iconv_close(m_converter);
        m_converter = noConverter;
    }
    return m_converter != noConverter;
}

/// Whether markup is encoded as in ASCII, so that a parser finds the declaration.
bool XmlOutput::keepsMarkup()
{
    std::string markup = "<?xml version=\"1.0\" encoding='AZaz09._-'?>\n<!DOCTYPE a:b[]><a/>&#38;";
    char *in = markup.data();
    std::size_t inLeft = markup.size();
    const bool isWhole = convertPart(in, inLeft);
    const bool isSame = isWhole && std::string_view(m_converted.data(), m_convertedSize) == markup;
    m_convertedSize = 0;
    return isSame;
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
    constexpr std::ptrdiff_t partSize = 128;
    char *in = m_text.data();
    const char *const end = in + m_text.size();
    while (in != end) {
        std::ptrdiff_t size = std::min(partSize, end - in);
        while (in + size != end && (in[size] & 0xC0) == 0x80)
            --size;
        auto inLeft = std::size_t(size);
        if (convertPart(in, inLeft) || errno == E2BIG)
            continue;
        if (m_cancelled && *m_cancelled) {
            m_failed = true;
            return;
        }
        std::size_t length = 0;
        std::string reference = "&#" + std::to_string(std::uint32_t(firstCharacter(in, length))) + ";";
        in += length;
        char *referenceIn = reference.data();
        std::size_t referenceLeft = reference.size();
        if (!convertPart(referenceIn, referenceLeft)) {
            m_failed = true; // an encoding without ASCII
            return;
        }
    }
}

/// False with errno set where it stopped early. There may be a character that the encoding lacks at every
/// step, so each needs no more room than the text in front of it.
bool XmlOutput::convertPart(char *&in, std::size_t &inLeft)
{
    constexpr std::size_t wanted = 4096; // bytes
    if (m_converted.size() < m_convertedSize + wanted)
        m_converted.resize(std::max(2 * m_converted.size(), m_convertedSize + wanted));
    char *out = m_converted.data() + m_convertedSize;
    std::size_t outLeft = m_converted.size() - m_convertedSize;
    const std::size_t result = iconv(m_converter, &in, &inLeft, &out, &outLeft);
    m_convertedSize = std::size_t(out - m_converted.data());
    return result != std::size_t(-1);
}

} // namespace vantrell
