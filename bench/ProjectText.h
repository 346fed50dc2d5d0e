#pragma once

#include <cstdint>
#include <string>

namespace vantrell::bench
{

/// Random numbers from a key: the same numbers in the same order on every machine. A clip's properties are
/// drawn again wherever they are needed instead of being stored.
class Draw
{
public:
    Draw(std::uint64_t seed, std::uint64_t kind, std::uint64_t first, std::uint64_t second = 0);

    std::uint64_t next();
    /// 0 to limit − 1; 0 when limit is 0.
    std::uint64_t below(std::uint64_t limit) { return limit ? next() % limit : 0; }
    /// From smallest to largest, both included.
    std::int64_t between(std::int64_t smallest, std::int64_t largest);
    bool chance(double share) { return double(next() >> 11) * 0x1p-53 < share; }
    /// A whole number with this mean: 2.25 gives 2, and 3 every fourth time.
    std::int64_t around(double mean);

private:
    std::uint64_t m_state;
};

/// A scene name of a few words.
std::string phrase(Draw &draw, int fewestWords, int mostWords);

/// The text of a marker's comment: mostly a sentence or two, now and then nothing, sometimes with tags or
/// a custom field.
std::string comment(Draw &draw);

/// A random identifier in the form of a UUID.
std::string uuid(Draw &draw);

/// Hours, minutes, seconds and frames of a count without drop frame, ":" between all.
std::string plainTimecode(std::int64_t frames, std::int64_t timebase);

/// A path for use in a URL: percent escapes for all bytes but letters, digits and -._~/
std::string percentEscaped(const std::string &path);

} // namespace vantrell::bench
