#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace vantrell
{

/// An encoding in which all bytes of an ASCII character but one are zero. Any thread.
struct WideEncoding {
    const char *name;
    std::size_t unit;      ///< bytes
    std::size_t character; ///< the index of the byte that is not zero

    /// The encoding of that name; null when it is none of these.
    static const WideEncoding *find(std::string_view name);

    /// The encoding in which the first three characters are ASCII, or else most of the first ones; null when
    /// there is none. Single zero bytes in another encoding are no sign of it.
    static const WideEncoding *ofStart(std::string_view bytes);

    /// The next place at which a character does not begin where the one before ends, as a byte is missing or
    /// one too many.
    struct Shift {
        std::size_t index = 0;
        std::size_t skipped = 0; ///< bytes after which the characters go on; 0 when there is no such place
                                 ///< before the index, from where on more bytes are needed to tell
    };

    /// The first shift from the index on. It shows by markup between the characters that are read, as a
    /// shifted one is a valid character of another script.
    Shift nextShift(std::string_view bytes, std::size_t index, bool atEnd) const;

private:
    static const std::array<WideEncoding, 4> all;

    bool starts(std::string_view bytes) const;
    bool prevails(std::string_view bytes) const;
    /// ASCII characters one after the other.
    struct Run {
        std::size_t size = 0; ///< bytes
        bool isMarkup = false;
        bool needsMore = false; ///< bytes, to tell
    };

    bool startsWithAscii(std::string_view bytes) const;
    Run runOfMarkup(std::string_view bytes, bool atEnd) const;
    std::size_t asciiRun(std::string_view bytes, std::size_t most) const;
};

} // namespace vantrell
