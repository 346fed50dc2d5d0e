#include "xml/WideEncoding.h"

#include <algorithm>
#include <bitset>

namespace vantrell
{

constexpr std::array<WideEncoding, 4> WideEncoding::all = {
    {{"UTF-32LE", 4, 0}, {"UTF-32BE", 4, 3}, {"UTF-16LE", 2, 0}, {"UTF-16BE", 2, 1}}};

const WideEncoding *WideEncoding::find(std::string_view name)
{
    const auto *const found = std::find_if(
        all.begin(), all.end(), [name](const WideEncoding &encoding) { return name == encoding.name; });
    return found == all.end() ? nullptr : found;
}

const WideEncoding *WideEncoding::ofStart(std::string_view bytes)
{
    for (const auto looksLike : {&WideEncoding::starts, &WideEncoding::prevails}) {
        const auto *const found = std::find_if(all.begin(), all.end(), [=](const WideEncoding &encoding) {
            return (encoding.*looksLike)(bytes);
        });
        if (found != all.end())
            return found;
    }
    return nullptr;
}

/// Whether the first three characters are ASCII.
bool WideEncoding::starts(std::string_view bytes) const
{
    return asciiRun(bytes, 3) == 3;
}

/// Whether most of the first characters are ASCII.
bool WideEncoding::prevails(std::string_view bytes) const
{
    const std::size_t looked = std::min<std::size_t>(32, bytes.size() / unit);
    std::size_t matching = 0;
    for (std::size_t i = 0; i < looked; ++i)
        matching += startsWithAscii(bytes.substr(i * unit));
    return matching * 2 > looked;
}

WideEncoding::Shift WideEncoding::nextShift(std::string_view bytes, std::size_t index, bool atEnd) const
{
    std::array<std::size_t, 4> runEnds = {}; // by the bytes skipped, of runs that are no markup
    for (; index + unit <= bytes.size(); index += unit) {
        if (startsWithAscii(bytes.substr(index)))
            continue;
        for (std::size_t skipped = 1; skipped < unit; ++skipped) {
            const std::size_t start = index + skipped;
            if (start < runEnds[skipped])
                continue;
            const Run run = runOfMarkup(bytes.substr(start), atEnd);
            if (run.isMarkup)
                return {index, skipped};
            if (run.needsMore)
                return {index, 0};
            runEnds[skipped] = start + run.size;
        }
    }
    return {bytes.size(), 0};
}

/// Reads as many ASCII characters from the start as it takes to tell whether they are markup: at least
/// sixteen, or all up to the end, of several kinds and with a bracket. Lines and blanks of other scripts,
/// such as those of box drawings, have neither.
WideEncoding::Run WideEncoding::runOfMarkup(std::string_view bytes, bool atEnd) const
{
    constexpr std::size_t shortest = 16;
    constexpr std::size_t longest = 1024;
    constexpr std::size_t fewestKinds = 4;
    std::bitset<128> kinds;
    Run run;
    for (std::size_t count = 1; count <= longest; ++count, run.size += unit) {
        const std::string_view rest = bytes.substr(run.size);
        const bool isEnd = rest.size() < unit;
        run.needsMore = isEnd && !atEnd;
        if (run.needsMore || (!isEnd && !startsWithAscii(rest)))
            break;
        const auto byte = isEnd ? 0U : static_cast<unsigned char>(rest[character]);
        const bool isText = (byte >= 0x20 && byte < 0x7F) || byte == '\t' || byte == '\n' || byte == '\r';
        if (isText)
            kinds.set(byte);
        else if (!isEnd)
            break;
        run.isMarkup = (isEnd || count >= shortest) && kinds.count() >= fewestKinds &&
                       (kinds.test('<') || kinds.test('>'));
        if (isEnd || run.isMarkup)
            break;
    }
    return run;
}

bool WideEncoding::startsWithAscii(std::string_view bytes) const
{
    if (bytes.size() < unit)
        return false;
    for (std::size_t i = 0; i < unit; ++i) {
        if ((bytes[i] != 0) != (i == character))
            return false;
    }
    return true;
}

/// How many characters, up to \a most, are ASCII one after the other from the start.
std::size_t WideEncoding::asciiRun(std::string_view bytes, std::size_t most) const
{
    std::size_t run = 0;
    while (run < most && startsWithAscii(bytes)) {
        bytes.remove_prefix(unit);
        ++run;
    }
    return run;
}

} // namespace vantrell
