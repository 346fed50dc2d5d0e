#include "interchange/notes/NoteText.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace vantrell
{

namespace
{

/// The characters of the bytes from 0x80 on.
using CodePage = std::array<char16_t, 128>;

constexpr CodePage macintosh = {
    u'\u00c4', u'\u00c5', u'\u00c7', u'\u00c9', u'\u00d1', u'\u00d6', u'\u00dc', u'\u00e1', // 80
    u'\u00e0', u'\u00e2', u'\u00e4', u'\u00e3', u'\u00e5', u'\u00e7', u'\u00e9', u'\u00e8', // 88
    u'\u00ea', u'\u00eb', u'\u00ed', u'\u00ec', u'\u00ee', u'\u00ef', u'\u00f1', u'\u00f3', // 90
    u'\u00f2', u'\u00f4', u'\u00f6', u'\u00f5', u'\u00fa', u'\u00f9', u'\u00fb', u'\u00fc', // 98
    u'\u2020', u'\u00b0', u'\u00a2', u'\u00a3', u'\u00a7', u'\u2022', u'\u00b6', u'\u00df', // a0
    u'\u00ae', u'\u00a9', u'\u2122', u'\u00b4', u'\u00a8', u'\u2260', u'\u00c6', u'\u00d8', // a8
    u'\u221e', u'\u00b1', u'\u2264', u'\u2265', u'\u00a5', u'\u00b5', u'\u2202', u'\u2211', // b0
    u'\u220f', u'\u03c0', u'\u222b', u'\u00aa', u'\u00ba', u'\u03a9', u'\u00e6', u'\u00f8', // b8
    u'\u00bf', u'\u00a1', u'\u00ac', u'\u221a', u'\u0192', u'\u2248', u'\u2206', u'\u00ab', // c0
    u'\u00bb', u'\u2026', u'\u00a0', u'\u00c0', u'\u00c3', u'\u00d5', u'\u0152', u'\u0153', // c8
    u'\u2013', u'\u2014', u'\u201c', u'\u201d', u'\u2018', u'\u2019', u'\u00f7', u'\u25ca', // d0
    u'\u00ff', u'\u0178', u'\u2044', u'\u20ac', u'\u2039', u'\u203a', u'\ufb01', u'\ufb02', // d8
    u'\u2021', u'\u00b7', u'\u201a', u'\u201e', u'\u2030', u'\u00c2', u'\u00ca', u'\u00c1', // e0
    u'\u00cb', u'\u00c8', u'\u00cd', u'\u00ce', u'\u00cf', u'\u00cc', u'\u00d3', u'\u00d4', // e8
    u'\uf8ff', u'\u00d2', u'\u00da', u'\u00db', u'\u00d9', u'\u0131', u'\u02c6', u'\u02dc', // f0
    u'\u00af', u'\u02d8', u'\u02d9', u'\u02da', u'\u00b8', u'\u02dd', u'\u02db', u'\u02c7', // f8
};

/// The bytes 0x80 to 0x9f; from there on the characters are those of Unicode. Bytes without a character
/// stand for the control characters of the same number.
constexpr std::array<char16_t, 32> windowsPunctuation = {
    u'\u20ac', 0x81,      u'\u201a', u'\u0192', u'\u201e', u'\u2026', u'\u2020', u'\u2021', // 80
    u'\u02c6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x8d,      u'\u017d', 0x8f,      // 88
    0x90,      u'\u2018', u'\u2019', u'\u201c', u'\u201d', u'\u2022', u'\u2013', u'\u2014', // 90
    u'\u02dc', u'\u2122', u'\u0161', u'\u203a', u'\u0153', 0x9d,      u'\u017e', u'\u0178', // 98
};

CodePage windowsPage()
{
    CodePage page;
    for (std::size_t i = 0; i < page.size(); ++i)
        page[i] = i < windowsPunctuation.size() ? windowsPunctuation[i] : char16_t(0x80 + i);
    return page;
}

QString decodedBy(const CodePage &page, const QByteArray &bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (const char byte : bytes) {
        const auto code = uchar(byte);
        *out++ = QChar(code < 0x80 ? char16_t(code) : page[code - 0x80u]);
    }
    return text;
}

/// How well the character suits its neighbours: above 0 where it is usual, below where it is not.
int suitability(QChar before, QChar character, QChar after)
{
    const char16_t code = character.unicode();
    if ((code >= 0x80 && code < 0xa0) || code == 0xf8ff)
        return -10;
    const bool letterBefore = before.isLetter();
    const bool letterAfter = after.isLetter();
    if (character.isLower())
        return letterBefore || letterAfter ? 3 : 0;
    if (character.isUpper()) {
        if (before.isLower())
            return -3; // capitals begin words
        return letterBefore || letterAfter ? 2 : 0;
    }
    switch (code) {
    case 0x201c: // opening quotes, the first of which closes in German
        if (letterBefore && !letterAfter)
            return 2;
        return letterAfter ? 3 : -1;
    case 0x2018:
    case 0x201a:
    case 0x201e:
    case 0xab:
        return !letterBefore && letterAfter ? 3 : -1;
    case 0x201d: // closing ones
    case 0xbb:
        return !letterAfter && !after.isSpace() && !after.isNull() && !after.isPunct() ? -1 : 3;
    case 0x2019: // also an apostrophe
        return letterBefore ? 4 : 0;
    case 0x2013:
    case 0x2014:
    case 0x2026:
    case 0x2022:
    case 0xa0:
    case 0x20ac:
    case 0xb0:
    case 0xbf:
    case 0xa1:
    case 0xa9:
    case 0xae:
    case 0x2122:
    case 0xa3:
    case 0xa7:
        return letterBefore && letterAfter ? -2 : 2;
    default:
        return letterBefore && letterAfter ? -3 : -1;
    }
}

/// Of all characters beyond ASCII, of which the first million is enough to decide.
qint64 suitabilityOf(const QString &text)
{
    qint64 sum = 0;
    int seen = 0;
    for (qsizetype i = 0; i < text.size() && seen < 1000000; ++i) {
        if (text.at(i).unicode() < 0x80)
            continue;
        ++seen;
        sum += suitability(i > 0 ? text.at(i - 1) : QChar(), text.at(i),
                           i + 1 < text.size() ? text.at(i + 1) : QChar());
    }
    return sum;
}

NoteText decodeBytes(const QByteArray &bytes)
{
    static const CodePage windows = windowsPage();
    QString asWindows = decodedBy(windows, bytes);
    QString asMacintosh = decodedBy(macintosh, bytes);
    const bool returnsOnly = bytes.contains('\r') && !bytes.contains('\n');
    const qint64 ofWindows = suitabilityOf(asWindows);
    const qint64 ofMacintosh = suitabilityOf(asMacintosh) + (returnsOnly ? 4 : 0);
    if (ofMacintosh > ofWindows)
        return {asMacintosh, QStringLiteral("macintosh")};
    return {asWindows, QStringLiteral("windows-1252")};
}

NoteText decodeUtf16(const QByteArray &bytes, qsizetype skipped, bool bigEndian)
{
    QString text((bytes.size() - skipped) / 2, Qt::Uninitialized);
    const char *source = bytes.constData() + skipped;
    if (bigEndian)
        qFromBigEndian<char16_t>(source, text.size(), text.data());
    else
        qFromLittleEndian<char16_t>(source, text.size(), text.data());
    return {text, bigEndian ? QStringLiteral("UTF-16BE") : QStringLiteral("UTF-16LE")};
}

/// How many of the first bytes are zero, in even and in odd places.
struct Zeros {
    qsizetype even = 0;
    qsizetype odd = 0;
};

Zeros zerosOf(const QByteArray &bytes)
{
    Zeros zeros;
    const qsizetype end = std::min<qsizetype>(bytes.size(), 65536);
    for (qsizetype i = 0; i < end; ++i) {
        if (bytes.at(i) == '\0')
            ++(i % 2 ? zeros.odd : zeros.even);
    }
    return zeros;
}

} // namespace

NoteText NoteText::decode(const QByteArray &bytes)
{
    if (bytes.startsWith("\xff\xfe"))
        return decodeUtf16(bytes, 2, false);
    if (bytes.startsWith("\xfe\xff"))
        return decodeUtf16(bytes, 2, true);
    if (bytes.startsWith("\xef\xbb\xbf"))
        return {QString::fromUtf8(QByteArrayView(bytes).sliced(3)), QStringLiteral("UTF-8")};
    const Zeros zeros = zerosOf(bytes);
    if (zeros.even + zeros.odd > 0 && zeros.even != zeros.odd)
        return decodeUtf16(bytes, 0, zeros.even > zeros.odd);
    if (QByteArrayView(bytes).isValidUtf8())
        return {QString::fromUtf8(bytes), QStringLiteral("UTF-8")};
    return decodeBytes(bytes);
}

bool NoteLines::next(QStringView &line)
{
    if (m_position >= m_text.size())
        return false;
    ++m_number;
    const char16_t *const begin = m_text.utf16() + m_position;
    const char16_t *const end = m_text.utf16() + m_text.size();
    const char16_t *at = begin;
    while (at != end && *at != u'\n' && *at != u'\r')
        ++at;
    line = QStringView(begin, at - begin);
    if (at != end)
        at += *at == u'\r' && at + 1 != end && at[1] == u'\n' ? 2 : 1;
    m_position = at - m_text.utf16();
    return true;
}

} // namespace vantrell
