#include "rows/TextBytes.h"

#include <cstddef>

namespace vantrell::TextBytes
{

void append(std::string &bytes, QStringView text)
{
    for (const QChar c : text) {
        const char16_t unit = c.unicode();
        if (unit < 0x80) {
            bytes.push_back(char(unit));
        } else if (unit < 0x800) {
            bytes.push_back(char(0xc0 | unit >> 6));
            bytes.push_back(char(0x80 | (unit & 0x3f)));
        } else {
            bytes.push_back(char(0xe0 | unit >> 12));
            bytes.push_back(char(0x80 | (unit >> 6 & 0x3f)));
            bytes.push_back(char(0x80 | (unit & 0x3f)));
        }
    }
}

bool appendSmallAscii(std::string &bytes, QStringView text)
{
    const std::size_t begin = bytes.size();
    bytes.resize(begin + std::size_t(text.size()));
    char *byte = bytes.data() + begin;
    unsigned all = 0;
    for (const QChar c : text) {
        const unsigned unit = c.unicode();
        all |= unit;
        *byte++ = char(unit + (unit >= 'A' && unit <= 'Z' ? 'a' - 'A' : 0));
    }
    if (all < 0x80)
        return true;
    bytes.resize(begin);
    return false;
}

} // namespace vantrell::TextBytes
