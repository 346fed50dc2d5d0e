#include "bench/ProjectText.h"

#include <QUrl>

#include <array>
#include <cstdio>

namespace vantrell::bench
{

namespace
{

constexpr std::array kWords{
    "harbour", "night",  "the",    "crane",   "slow",    "wide",  "close",    "boat",   "crossing", "morning",
    "keeper",  "light",  "window", "street",  "train",   "after", "before",   "rain",   "market",   "bridge",
    "walks",   "turns",  "looks",  "answer",  "door",    "hand",  "over",     "under",  "second",   "first",
    "take",    "better", "check",  "grade",   "horizon", "sound", "music",    "ends",   "starts",   "here",
    "trim",    "two",    "frames", "hold",    "fade",    "out",   "keep",     "face",   "soft",     "focus",
    "été",     "café",   "Küste",  "größer",  "гавань",  "сцена", "interior", "garden", "winter",   "running",
    "line",    "missed", "ask",    "for",     "another", "angle", "of",       "room",   "quiet",    "voice",
    "R&B",     "shot",   "and",    "reaction"};

std::uint64_t mixed(std::uint64_t value)
{
    value = (value ^ (value >> 30)) * 0xbf58476d1ce4e5b9ULL;
    value = (value ^ (value >> 27)) * 0x94d049bb133111ebULL;
    return value ^ (value >> 31);
}

} // namespace

Draw::Draw(std::uint64_t seed, std::uint64_t kind, std::uint64_t first, std::uint64_t second)
    : m_state(mixed(mixed(mixed(mixed(seed) + kind) + first) + second))
{
}

std::uint64_t Draw::next()
{
    m_state += 0x9e3779b97f4a7c15ULL;
    return mixed(m_state);
}

std::int64_t Draw::between(std::int64_t smallest, std::int64_t largest)
{
    return smallest + std::int64_t(below(std::uint64_t(largest - smallest) + 1));
}

std::int64_t Draw::around(double mean)
{
    const std::int64_t whole = std::int64_t(mean);
    return whole + (chance(mean - double(whole)) ? 1 : 0);
}

std::string phrase(Draw &draw, int fewestWords, int mostWords)
{
    std::string text;
    for (std::int64_t words = draw.between(fewestWords, mostWords); words > 0; --words) {
        if (!text.empty())
            text += ' ';
        text += kWords[draw.below(kWords.size())];
    }
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z')
        text.front() = char(text.front() - 'a' + 'A');
    return text;
}

std::string comment(Draw &draw)
{
    if (draw.chance(0.2))
        return {};
    std::string text;
    if (draw.chance(0.06))
        text += " <COMPRESSION>";
    if (draw.chance(0.06))
        text += " <SCORING>";
    if (draw.chance(0.1))
        text += " <CHAPTER>";
    text += phrase(draw, 3, 20);
    if (draw.chance(0.1))
        text += "<QVCUSTOM_TAKE>" + std::to_string(draw.between(1, 14)) + "<_QVCUSTOM_TAKE>";
    return text;
}

std::string uuid(Draw &draw)
{
    const std::uint64_t high = draw.next();
    const std::uint64_t low = draw.next();
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%08X-%04X-4%03X-%04X-%012llX", unsigned(high >> 32),
                  unsigned(high >> 16 & 0xffff), unsigned(high & 0xfff), unsigned(0x8000 | (low >> 50)),
                  static_cast<unsigned long long>(low & 0xffffffffffffULL));
    return text.data();
}

std::string plainTimecode(std::int64_t frames, std::int64_t timebase)
{
    const std::int64_t seconds = frames / timebase;
    std::array<char, 64> text{};
    std::snprintf(text.data(), text.size(), "%02lld:%02lld:%02lld:%02lld",
                  static_cast<long long>(seconds / 3600), static_cast<long long>(seconds / 60 % 60),
                  static_cast<long long>(seconds % 60), static_cast<long long>(frames % timebase));
    return text.data();
}

std::string percentEscaped(const std::string &path)
{
    return QUrl::toPercentEncoding(QString::fromStdString(path), "/").toStdString();
}

} // namespace vantrell::bench
