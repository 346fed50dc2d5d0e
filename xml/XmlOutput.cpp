#include "xml/XmlOutput.h"

#include <QIODevice>

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
    const bool isSame = isWhole && m_converted == markup;
    m_converted.clear();
    return isSame;
}

bool XmlOutput::flush()
{
    if (m_cancelled && *m_cancelled)
        m_failed = true;
    if (m_converter != noConverter && !m_failed)
        convert();
    const std::string &bytes = m_converter != noConverter ? m_converted : m_text;
    if (!m_failed) {
        const auto size = qint64(bytes.size());
        m_failed = m_device.write(bytes.data(), size) != size;
    }
    m_text.clear();
    m_converted.clear();
    return !m_failed;
}

/// Text is passed on in whole characters only.
void XmlOutput::convert()
{
    char *in = m_text.data();
    std::size_t inLeft = m_text.size();
    while (inLeft > 0) {
        if (convertPart(in, inLeft))
            continue;
        if (errno == E2BIG)
            continue;
        std::size_t length = 0;
        std::string reference = "&#" + std::to_string(std::uint32_t(firstCharacter(in, length))) + ";";
        in += length;
        inLeft -= length;
        char *referenceIn = reference.data();
        std::size_t referenceLeft = reference.size();
        if (!convertPart(referenceIn, referenceLeft)) {
            m_failed = true; // an encoding without ASCII
            return;
        }
    }
}

/// False with errno set where it stopped early.
bool XmlOutput::convertPart(char *&in, std::size_t &inLeft)
{
    const std::size_t size = m_converted.size();
    m_converted.resize(size + inLeft * 4 + 64);
    char *out = m_converted.data() + size;
    std::size_t outLeft = m_converted.size() - size;
    const std::size_t result = iconv(m_converter, &in, &inLeft, &out, &outLeft);
    const int error = errno;
    m_converted.resize(m_converted.size() - outLeft);
    errno = error;
    return result != std::size_t(-1);
}

} // namespace vantrell
