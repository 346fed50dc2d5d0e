#include "xml/XmlInput.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <optional>

#include <iconv.h>

namespace vantrell
{

namespace
{

constexpr std::size_t inputBlockSize = std::size_t(1) << 18;
constexpr std::size_t declarationSize = 4096; // bytes searched for the declaration, at least

/// What the first bytes tell about the encoding.
struct Signature {
    std::string_view bytes;
    const char *encoding;
    int unit;            ///< bytes
    std::size_t skipped; ///< bytes of the byte-order mark
    bool isOfMany;       ///< whether it tells only a family of encodings, which the declaration narrows down
};

using namespace std::string_view_literals;

constexpr Signature signatures[] = {
    {"\xFF\xFE\0\0"sv, "UTF-32LE", 4, 4, false}, {"\0\0\xFE\xFF"sv, "UTF-32BE", 4, 4, false},
    {"<\0\0\0"sv, "UTF-32LE", 4, 0, false},      {"\0\0\0<"sv, "UTF-32BE", 4, 0, false},
    {"\xEF\xBB\xBF"sv, "UTF-8", 1, 3, false},    {"\xFF\xFE"sv, "UTF-16LE", 2, 2, false},
    {"\xFE\xFF"sv, "UTF-16BE", 2, 2, false},     {"<\0"sv, "UTF-16LE", 2, 0, false},
    {"\0<"sv, "UTF-16BE", 2, 0, false},          {"\x4C\x6F\xA7\x94"sv, "IBM037", 1, 0, true},
};

bool isXmlSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool startsName(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// The encoding that the text's XML declaration names; empty when it names none.
QByteArray declaredEncodingOf(std::string_view text)
{
    constexpr std::string_view start = "<?xml", label = "encoding";
    if (!text.starts_with(start) || text.size() == start.size() || !isXmlSpace(text[start.size()]))
        return {};
    text = text.substr(0, text.find("?>"));
    const auto skipSpace = [&text](std::size_t at) {
        while (at < text.size() && isXmlSpace(text[at]))
            ++at;
        return at;
    };
    std::size_t at = start.size();
    while ((at = text.find(label, at)) != std::string_view::npos) {
        const bool isWord = isXmlSpace(text[at - 1]) || text[at - 1] == '"' || text[at - 1] == '\'';
        at += label.size();
        std::size_t value = skipSpace(at);
        if (!isWord || value == text.size() || text[value] != '=')
            continue;
        value = skipSpace(value + 1);
        if (value == text.size() || (text[value] != '"' && text[value] != '\''))
            continue;
        const std::size_t end = text.find(text[value], value + 1);
        if (end == std::string_view::npos)
            return {};
        const std::string_view name = text.substr(value + 1, end - value - 1);
        const bool isName =
            !name.empty() && isalpha(static_cast<unsigned char>(name[0])) &&
            std::all_of(name.begin(), name.end(), [](char c) {
                return isalnum(static_cast<unsigned char>(c)) || c == '.' || c == '_' || c == '-';
            });
        return isName ? QByteArray(name.data(), qsizetype(name.size())) : QByteArray();
    }
    return {};
}

/// The size of a code unit of the encoding, in bytes.
int unitOf(const QByteArray &upperName)
{
    if (upperName.contains("UTF-16") || upperName.contains("UTF16") || upperName.contains("UCS-2"))
        return 2;
    return upperName.contains("UTF-32") || upperName.contains("UTF32") || upperName.contains("UCS-4") ? 4 : 1;
}

/// Whether the byte belongs to a character beyond ASCII or is a control character. Free of branches, so that
/// the compiler can vectorise it.
unsigned char needsLook(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    return static_cast<unsigned char>((byte >= 0x80) |
                                      ((byte < 0x20) & (byte != '\t') & (byte != '\n') & (byte != '\r')));
}

/// The place of the first byte that needs a look.
const char *firstToLookAt(const char *at, const char *end)
{
    constexpr std::ptrdiff_t group = 64;
    while (end - at >= group) {
        unsigned char found = 0;
        for (std::ptrdiff_t i = 0; i < group; ++i)
            found |= needsLook(at[i]);
        if (found)
            break;
        at += group;
    }
    while (at != end && !needsLook(*at))
        ++at;
    return at;
}

/// Counts line ends, in groups whose count fits into a byte, so that the compiler can vectorise it.
std::int64_t lineEnds(std::string_view text)
{
    constexpr std::size_t group = 128;
    std::int64_t count = 0;
    for (; text.size() >= group; text.remove_prefix(group)) {
        unsigned char inGroup = 0;
        for (std::size_t i = 0; i < group; ++i)
            inGroup = static_cast<unsigned char>(inGroup + (text[i] == '\n'));
        count += inGroup;
    }
    return count + std::count(text.begin(), text.end(), '\n');
}

struct Character {
    std::size_t length = 1; ///< bytes
    char32_t code = 0;
    bool isValid = false;  ///< whether the bytes encode a character
    bool isCutOff = false; ///< whether more bytes are needed to tell
};

/// The character at the start of the bytes, of which there is at least one. An invalid one is one byte long.
Character characterAt(std::string_view bytes)
{
    const auto byte = [&bytes](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned char first = byte(0);
    if (first < 0x80)
        return {1, first, true, false};
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4)
        return {};
    char32_t code = first & (0xFFu >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if (i == bytes.size())
            return {1, 0, false, true};
        if ((byte(i) & 0xC0) != 0x80)
            return {};
        code = code << 6 | (byte(i) & 0x3Fu);
    }
    const bool isOverlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
    if (isOverlong || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF)
        return {};
    return {length, code, true, false};
}

bool isXmlCharacter(char32_t code)
{
    return (code >= 0x20 && code != 0xFFFE && code != 0xFFFF) || code == '\t' || code == '\n' || code == '\r';
}

QString hexadecimal(char32_t number, int digits)
{
    return QStringLiteral("%1").arg(uint(number), digits, 16, QLatin1Char('0')).toUpper();
}

} // namespace

/// A conversion to UTF-8.
class XmlInput::Decoder
{
public:
    Decoder(const std::string &encoding, std::size_t unit)
        : m_handle(iconv_open("UTF-8", encoding.c_str()))
        , m_unit(unit)
    {
    }
    ~Decoder()
    {
        if (isOpen())
            iconv_close(m_handle);
    }
    Decoder(const Decoder &) = delete;
    Decoder &operator=(const Decoder &) = delete;

    bool isOpen() const { return m_handle != iconv_t(-1); }

    /// Converts what it can of the bytes from the place on, and moves the place behind that. False at bytes
    /// that stand for nothing, which it passes over.
    bool convert(std::vector<char> &bytes, std::size_t &place, std::vector<char> &text, bool atEnd)
    {
        while (place < bytes.size()) {
            char *in = bytes.data() + place;
            std::size_t inLeft = bytes.size() - place;
            const std::size_t size = text.size();
            text.resize(size + std::max<std::size_t>(inLeft * 2, 64));
            char *out = text.data() + size;
            std::size_t outLeft = text.size() - size;
            const std::size_t result = iconv(m_handle, &in, &inLeft, &out, &outLeft);
            const int error = errno;
            text.resize(text.size() - outLeft);
            place = bytes.size() - inLeft;
            if (result != std::size_t(-1) || error == E2BIG)
                continue;
            if (error == EINVAL && !atEnd)
                return true; // the rest of the character is to come
            place += std::min(m_unit, inLeft);
            return false;
        }
        return true;
    }

private:
    iconv_t m_handle;
    std::size_t m_unit;
};

XmlInput::XmlInput(const XmlSource &source, bool stopsAtFaults, const std::atomic<bool> *cancelled)
    : m_source(source)
    , m_stopsAtFaults(stopsAtFaults)
    , m_cancel(cancelled)
    , m_encodingName(QStringLiteral("UTF-8"))
{
}

XmlInput::~XmlInput() = default;

int XmlInput::read(char *buffer, int length)
{
    if (m_cancel && m_cancel->load(std::memory_order_relaxed)) {
        m_cancelled = true;
        return 0;
    }
    while (m_handedOut == m_block.text.size()) {
        if (!fill())
            return 0;
    }
    const std::size_t count = std::min(std::size_t(length), m_block.text.size() - m_handedOut);
    std::memcpy(buffer, m_block.text.data() + m_handedOut, count);
    m_handedOut += count;
    return int(count);
}

/// Makes the next block of the text, which may be empty. False at the end.
bool XmlInput::fill()
{
    if (m_ended || m_unreadable)
        return false;
    std::swap(m_block, m_lastBlock);
    m_block.start = m_lastBlock.end();
    m_block.sourceStart = m_lastBlock.sourceEnd;
    m_block.text.assign(m_rest.begin(), m_rest.end());
    m_rest.clear();
    m_handedOut = 0;
    // A small text needs no large block.
    const std::size_t size =
        m_source.size < 0 ? inputBlockSize : std::min(inputBlockSize, std::size_t(m_source.size) + 1);
    const std::size_t missing = size - std::min(size, m_raw.size());
    const bool atEnd = readSource(std::max<std::size_t>(missing, 1)) == 0;
    if (!m_started)
        chooseEncoding();
    m_started = true;
    if (m_unreadable)
        m_block.text.clear();
    else
        decode(atEnd);
    m_block.sourceEnd = m_sourceEnd - std::int64_t(m_raw.size() + m_rest.size());
    m_ended = m_ended || atEnd;
    return !m_unreadable;
}

/// Reads about that many bytes, the first time more than the start of the text. Their number; 0 at the end.
std::size_t XmlInput::readSource(std::size_t wanted)
{
    const std::size_t before = m_raw.size();
    m_raw.resize(before + wanted);
    std::size_t count = 0;
    while (count < wanted) {
        const int got = m_source.read(m_raw.data() + before + count, int(wanted - count));
        m_failed = m_failed || got < 0;
        if (got <= 0)
            break;
        count += std::size_t(got);
        if (m_started || count >= declarationSize)
            break;
    }
    m_raw.resize(before + count);
    m_sourceEnd += std::int64_t(count);
    return count;
}

void XmlInput::chooseEncoding()
{
    const std::string_view raw(m_raw.data(), m_raw.size());
    const Signature *known = nullptr;
    for (const Signature &signature : signatures) {
        if (!known && raw.starts_with(signature.bytes))
            known = &signature;
    }
    std::vector<char> start(m_raw.begin() + std::ptrdiff_t(known ? known->skipped : 0), m_raw.end());
    if (known) {
        m_raw = start;
        setDecoder(known->encoding, known->unit);
        if (m_decoder) {
            start.resize(std::min(start.size(), declarationSize * std::size_t(known->unit)));
            std::vector<char> text;
            std::size_t place = 0;
            m_decoder->convert(start, place, text, false);
            start = text;
            setDecoder(known->encoding, known->unit); // without what it remembers
        }
    }
    const QByteArray declared = declaredEncodingOf({start.data(), start.size()});
    const QByteArray upper = declared.toUpper();
    const bool isUtf8 = upper == "UTF-8" || upper == "UTF8";
    if (declared.isEmpty())
        return;
    const bool isOfMany = !known || known->isOfMany;
    if (!isUtf8 && (isOfMany ? unitOf(upper) > 1 : unitOf(upper) != known->unit || known->unit == 1)) {
        addFault({}, QStringLiteral("Document labelled %1 but has %2 content")
                         .arg(QString::fromLatin1(declared), m_encodingName));
        m_declared = unitOf(upper) > 1 ? declared : QByteArray(); // others may lack some of the characters
        return;
    }
    m_declared = declared;
    if (isUtf8 || !isOfMany)
        return;
    setDecoder(declared.toStdString(), 1);
    if (!m_decoder->isOpen()) {
        m_unreadable = true;
        addFault({}, QStringLiteral("Unsupported encoding %1").arg(QString::fromLatin1(declared)));
    }
}

/// \a unit: bytes that the smallest part of a character has.
void XmlInput::setDecoder(const std::string &encoding, int unit)
{
    m_encodingName = QString::fromStdString(encoding);
    m_decoder.reset();
    if (encoding != "UTF-8")
        m_decoder = std::make_unique<Decoder>(encoding, std::size_t(unit));
}

/// Moves the whole characters that were read to the block.
void XmlInput::decode(bool atEnd)
{
    if (!m_decoder) {
        if (m_block.text.empty())
            m_block.text.swap(m_raw);
        else
            m_block.text.insert(m_block.text.end(), m_raw.begin(), m_raw.end());
        m_raw.clear();
        keepValid(atEnd);
        return;
    }
    std::size_t place = 0;
    while (!m_decoder->convert(m_raw, place, m_block.text, atEnd)) {
        addFault({m_block.text.data(), m_block.text.size()},
                 QStringLiteral("bytes that are no %1").arg(m_encodingName));
        if (m_ended)
            break;
    }
    m_raw.erase(m_raw.begin(), m_raw.begin() + std::ptrdiff_t(place));
    keepValid(atEnd);
}

/// Drops from the block invalid bytes and characters that XML forbids. An incomplete character at its end is
/// kept for the next block.
void XmlInput::keepValid(bool atEnd)
{
    std::vector<char> &text = m_block.text;
    const char *const begin = text.data();
    const char *const end = begin + text.size();
    char *to = text.data();
    const char *kept = begin; // from here on nothing was moved yet
    const auto keepUpTo = [&](const char *place) {
        if (to != kept)
            std::memmove(to, kept, std::size_t(place - kept));
        to += place - kept;
    };
    const char *at = firstToLookAt(begin, end);
    while (at != end) {
        const Character character = characterAt({at, std::size_t(end - at)});
        if (character.isCutOff && !atEnd)
            break;
        if (character.isValid && isXmlCharacter(character.code)) {
            at += character.length;
        } else {
            keepUpTo(at);
            const QString what =
                character.isValid ? QStringLiteral("the character U+%1, which XML forbids")
                                        .arg(hexadecimal(character.code, 4))
                                  : QStringLiteral("the byte 0x%1, which is no %2")
                                        .arg(hexadecimal(static_cast<unsigned char>(*at), 2), m_encodingName);
            addFault({begin, std::size_t(to - begin)}, what);
            at += character.length;
            kept = at;
            if (m_ended)
                break;
        }
        if (at != end && !needsLook(*at))
            at = firstToLookAt(at, end);
    }
    keepUpTo(at);
    if (!m_ended)
        m_rest.assign(at, end);
    text.resize(std::size_t(to - begin));
    m_line += lineEnds({text.data(), text.size()});
}

/// Only the first fault is kept. \a before: the part of the block before the fault.
void XmlInput::addFault(std::string_view before, const QString &text)
{
    if (m_fault.isEmpty()) {
        m_faultLine = m_line + lineEnds(before);
        m_fault = QStringLiteral("line %1: %2").arg(m_faultLine).arg(text);
    }
    m_ended = m_ended || m_stopsAtFaults;
}

std::int64_t XmlInput::sourceOffset(std::int64_t textOffset) const
{
    const Block &block = textOffset >= m_block.start ? m_block : m_lastBlock;
    const std::int64_t size = block.end() - block.start;
    const std::int64_t sourceSize = block.sourceEnd - block.sourceStart;
    const std::int64_t inBlock = std::clamp<std::int64_t>(textOffset - block.start, 0, size);
    // From the nearer end: what was left out, or a mark, shifts the other.
    if (size == 0 || inBlock * 2 >= size)
        return block.sourceEnd - (size == 0 ? 0 : (size - inBlock) * sourceSize / size);
    return block.sourceStart + inBlock * sourceSize / size;
}

bool XmlInput::endsWith(std::string_view end) const
{
    std::string text;
    for (const Block *block : {&m_lastBlock, &m_block}) {
        const std::size_t wanted = std::min(block->text.size(), end.size() + 256);
        text.append(block->text.end() - std::ptrdiff_t(wanted), block->text.end());
    }
    while (!text.empty() && isXmlSpace(text.back()))
        text.pop_back();
    return m_ended && text.ends_with(end);
}

std::int64_t XmlInput::startTagsFrom(std::int64_t textOffset)
{
    std::int64_t count = 0;
    char previous = 0;
    const auto look = [&](const Block &block) {
        const std::int64_t from = std::max<std::int64_t>(textOffset - block.start, 0);
        for (auto i = std::size_t(from); i < block.text.size(); ++i) {
            count += previous == '<' && startsName(block.text[i]);
            previous = block.text[i];
        }
    };
    look(m_lastBlock);
    do
        look(m_block);
    while (!(m_cancel && m_cancel->load(std::memory_order_relaxed)) && fill());
    return count;
}

} // namespace vantrell
