#include "xml/XmlInput.h"

#include "xml/WideEncoding.h"

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
    {"\xEF\xBB\xBF"sv, "UTF-8", 1, 3, false},    {"\xFF\xFE"sv, "UTF-16LE", 2, 2, false},
    {"\xFE\xFF"sv, "UTF-16BE", 2, 2, false},     {"\x4C\x6F\xA7\x94"sv, "IBM037", 1, 0, true},
};

/// What the first bytes tell; none when they tell nothing.
std::optional<Signature> signatureOf(std::string_view bytes)
{
    for (const Signature &mark : signatures) {
        // A mark of UTF-16 and a zero character look like one of UTF-32.
        if (!bytes.starts_with(mark.bytes))
            continue;
        const std::string_view rest = bytes.substr(mark.skipped);
        if (mark.unit < 4 || WideEncoding::ofStart(rest) == WideEncoding::find(mark.encoding))
            return mark;
    }
    if (const WideEncoding *const encoding = WideEncoding::ofStart(bytes))
        return Signature{{}, encoding->name, int(encoding->unit), 0, false};
    return std::nullopt;
}

bool isXmlSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

/// The text without the white space that it starts with.
std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && isXmlSpace(text.front()))
        text.remove_prefix(1);
    return text;
}

constexpr std::string_view declarationStart = "<?xml";

/// The encoding named by the text's XML declaration, which may follow white space; empty when it names none.
QByteArray declaredEncodingOf(std::string_view text)
{
    constexpr std::string_view start = declarationStart, label = "encoding";
    text = withoutBlanks(text);
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

/// The first byte that needs a look; the end when none does.
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
        , m_wide(WideEncoding::find(encoding))
        , m_part(inputBlockSize / 4)
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

    /// Converts what it can of the bytes from the offset on, which is 0 for other bytes than before, and
    /// moves the offset behind that. False at bytes that stand for nothing, which it passes over.
    bool convert(std::vector<char> &bytes, std::size_t &offset, std::vector<char> &text, bool atEnd)
    {
        if (offset == 0)
            findShift(bytes, 0, atEnd);
        while (offset < bytes.size()) {
            if (offset == m_shift.index) {
                if (m_shift.skipped == 0)
                    return true; // what follows tells how to go on
                offset += m_shift.skipped;
                findShift(bytes, offset, atEnd);
                return false;
            }
            char *in = bytes.data() + offset;
            std::size_t inLeft = m_shift.index - offset;
            char *out = m_part.data();
            std::size_t outLeft = m_part.size();
            const std::size_t result = iconv(m_handle, &in, &inLeft, &out, &outLeft);
            const int error = errno;
            text.insert(text.end(), m_part.data(), out);
            offset = m_shift.index - inLeft;
            if (result != std::size_t(-1) || error == E2BIG)
                continue;
            if (error == EINVAL && !atEnd && m_shift.skipped == 0)
                return true; // the rest of the character is to come
            offset += std::min(m_unit, inLeft);
            return false;
        }
        return true;
    }

private:
    void findShift(const std::vector<char> &bytes, std::size_t offset, bool atEnd)
    {
        const std::string_view all(bytes.data(), bytes.size());
        m_shift = m_wide ? m_wide->nextShift(all, offset, atEnd) : WideEncoding::Shift{all.size(), 0};
    }

    iconv_t m_handle;
    std::size_t m_unit;
    const WideEncoding *m_wide; // null for another encoding
    WideEncoding::Shift m_shift;
    std::vector<char> m_part; // what comes out, of a fixed size: there may be a fault at every byte
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
    // Nothing may be left of many blocks.
    do {
        if (isCancelled())
            return 0;
    } while (m_handedOut == m_block.text.size() && fill());
    const std::size_t count = std::min(std::size_t(length), m_block.text.size() - m_handedOut);
    std::copy_n(m_block.text.data() + m_handedOut, count, buffer);
    m_handedOut += count;
    return int(count);
}

bool XmlInput::isCancelled()
{
    m_cancelled = m_cancelled || (m_cancel && m_cancel->load(std::memory_order_relaxed));
    return m_cancelled;
}

/// Makes the next block of the text, which may be empty. False at the end.
bool XmlInput::fill()
{
    if (m_ended || m_unreadable)
        return false;
    if (!m_block.text.empty())
        std::swap(m_block, m_lastBlock);
    m_block.start = m_lastBlock.end();
    m_blockStarts.push_back({m_block.start, m_blockSourceEnd});
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
    if (m_isAtStart)
        skipMarks();
    m_blockSourceEnd = m_sourceEnd - std::int64_t(m_raw.size() + m_rest.size());
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
    const std::optional<Signature> known = signatureOf({m_raw.data(), m_raw.size()});
    m_raw.erase(m_raw.begin(), m_raw.begin() + std::ptrdiff_t(known ? known->skipped : 0));
    const std::vector<char> start =
        known ? startOfText(known->encoding, known->unit) : startOfText("UTF-8", 1);
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
    const QString found = m_encodingName;
    const std::vector<char> declaredStart = startOfText(declared.toStdString(), 1);
    if (m_unreadable ||
        withoutBlanks({declaredStart.data(), declaredStart.size()}).starts_with(declarationStart))
        return;
    // One in which what was just read would be something else.
    setDecoder(found.toStdString(), 1);
    m_declared.clear();
    addFault({}, QStringLiteral("Document labelled %1 but has %2 content")
                     .arg(QString::fromLatin1(declared), m_encodingName));
}

/// \a unit: bytes that the smallest part of a character has. False, and the text cannot be read, when the
/// encoding is not known.
bool XmlInput::setDecoder(const std::string &encoding, int unit)
{
    m_encodingName = QString::fromStdString(encoding);
    m_decoder.reset();
    if (encoding == "UTF-8")
        return true;
    m_decoder = std::make_unique<Decoder>(encoding, std::size_t(unit));
    m_unreadable = !m_decoder->isOpen();
    if (m_unreadable)
        addFault({}, QStringLiteral("Unsupported encoding %1").arg(m_encodingName));
    return !m_unreadable;
}

/// Turns to the encoding, and returns the ASCII characters at the start of the text in it that XML allows.
std::vector<char> XmlInput::startOfText(const std::string &encoding, int unit)
{
    const std::size_t size = std::min(m_raw.size(), declarationSize * std::size_t(unit));
    std::vector<char> start(m_raw.begin(), m_raw.begin() + std::ptrdiff_t(size));
    if (!setDecoder(encoding, unit) || !m_decoder) {
        start.erase(std::remove_if(start.begin(), start.end(), needsLook), start.end());
        return start;
    }
    std::vector<char> text;
    std::size_t offset = 0;
    while (!m_decoder->convert(start, offset, text, false)) {
    }
    setDecoder(encoding, unit); // without what it remembers
    text.erase(std::remove_if(text.begin(), text.end(), needsLook), text.end());
    return text;
}

/// Drops byte-order marks at the start of the text, of which parsers pass over no more than one.
void XmlInput::skipMarks()
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::vector<char> &text = m_block.text;
    std::string_view rest(text.data(), text.size());
    while (rest.starts_with(mark))
        rest.remove_prefix(mark.size());
    m_isAtStart = rest.empty();
    text.erase(text.begin(), text.end() - std::ptrdiff_t(rest.size()));
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
    std::size_t offset = 0;
    while (!m_decoder->convert(m_raw, offset, m_block.text, atEnd)) {
        if (m_fault.isEmpty())
            addFault({m_block.text.data(), m_block.text.size()},
                     QStringLiteral("bytes that are no %1").arg(m_encodingName));
        if (m_ended)
            break;
    }
    m_raw.erase(m_raw.begin(), m_raw.begin() + std::ptrdiff_t(offset));
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
    const auto keepUpTo = [&](const char *limit) {
        if (to != kept)
            std::memmove(to, kept, std::size_t(limit - kept));
        to += limit - kept;
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
            if (m_fault.isEmpty()) {
                const QString what =
                    character.isValid
                        ? QStringLiteral("the character U+%1, which XML forbids")
                              .arg(hexadecimal(character.code, 4))
                        : QStringLiteral("the byte 0x%1, which is no %2")
                              .arg(hexadecimal(static_cast<unsigned char>(*at), 2), m_encodingName);
                addFault({begin, std::size_t(to - begin)}, what);
            }
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
    const auto isBefore = [](std::int64_t offset, const BlockStart &start) { return offset < start.text; };
    const auto next = std::upper_bound(m_blockStarts.begin(), m_blockStarts.end(), textOffset, isBefore);
    if (next == m_blockStarts.begin())
        return 0;
    const BlockStart start = *(next - 1);
    const BlockStart end = next == m_blockStarts.end() ? BlockStart{m_block.end(), m_blockSourceEnd} : *next;
    const std::int64_t size = end.text - start.text;
    const std::int64_t sourceSize = end.source - start.source;
    const std::int64_t inBlock = std::clamp<std::int64_t>(textOffset - start.text, 0, size);
    // From the nearer end: what was left out, or a mark, shifts the other.
    if (size == 0 || inBlock * 2 >= size)
        return end.source - (size == 0 ? 0 : (size - inBlock) * sourceSize / size);
    return start.source + inBlock * sourceSize / size;
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

XmlInput::Rest XmlInput::restFrom(std::int64_t textOffset)
{
    Rest rest;
    bool isInTag = false;
    char previous = 0;
    const auto look = [&](const Block &block) {
        const std::int64_t from = std::max<std::int64_t>(textOffset - block.start, 0);
        for (auto i = std::size_t(from); i < block.text.size(); ++i) {
            const char character = block.text[i];
            const bool isFirst = previous == '<';
            rest.startTags += isFirst && startsXmlName(character);
            isInTag = character == '<' || (isInTag && previous != '>');
            const bool isSpace = std::string_view(" \t\r\n").find(character) != std::string_view::npos;
            rest.hasText =
                rest.hasText || (!isInTag && !isSpace) || (isFirst && (character == '!' || character == '?'));
            previous = character;
        }
    };
    look(m_lastBlock);
    do
        look(m_block);
    while (!isCancelled() && fill());
    return rest;
}

} // namespace vantrell
