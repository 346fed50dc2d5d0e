#include "interchange/notes/NoteTime.h"

#include "support/text/TextNumbers.h"

#include <array>

namespace vantrell
{

namespace
{

constexpr qsizetype maximumDigits = 15;
constexpr std::size_t maximumGroups = 6;

/// Groups of digits and what stands between them.
struct Groups {
    std::array<qint64, maximumGroups> values = {};
    std::array<qsizetype, maximumGroups> digits = {};
    std::array<char16_t, maximumGroups> separators = {}; ///< behind each group but the last
    std::size_t count = 0;
};

std::optional<Groups> groupsOf(QStringView text)
{
    Groups groups;
    qsizetype at = 0;
    while (at < text.size()) {
        if (groups.count == maximumGroups)
            return std::nullopt;
        const qsizetype start = at;
        while (at < text.size() && isDigit(text[at]))
            ++at;
        if (at == start || at - start > maximumDigits)
            return std::nullopt;
        const std::size_t index = groups.count++;
        groups.values[index] = integerValue(text.sliced(start, at - start));
        groups.digits[index] = at - start;
        if (at == text.size())
            return groups;
        groups.separators[index] = text[at].unicode();
        ++at;
    }
    return std::nullopt; // empty, or a separator at the end
}

bool isColon(char16_t separator)
{
    return separator == u':' || separator == u';';
}

bool isPoint(char16_t separator)
{
    return separator == u'.' || separator == u',';
}

/// Sets what follows the point as a fraction of at most six digits.
void setFraction(NoteTime &time, qint64 value, qsizetype digits)
{
    for (; digits > 6; --digits)
        value /= 10;
    time.numerator = value;
    time.denominator = 1;
    for (qsizetype i = 0; i < digits; ++i)
        time.denominator *= 10;
}

/// The number of "90,000"; nullopt for any other.
std::optional<qint64> numberInThousands(const Groups &groups)
{
    if (groups.count < 2 || groups.count > 4 || groups.digits[0] > 3 || groups.values[0] == 0)
        return std::nullopt;
    qint64 number = groups.values[0];
    for (std::size_t i = 1; i < groups.count; ++i) {
        if (groups.separators[i - 1] != u',' || groups.digits[i] != 3)
            return std::nullopt;
        number = number * 1000 + groups.values[i];
    }
    return number;
}

std::optional<NoteTime> numberTime(const Groups &groups, bool saysSeconds, NoteUnit unit)
{
    NoteTime time;
    if (groups.count == 2 && groups.separators[0] == u'/') {
        if (groups.values[1] == 0)
            return std::nullopt;
        time.kind = NoteTime::Kind::Seconds;
        time.seconds = groups.values[0] / groups.values[1];
        time.numerator = groups.values[0] % groups.values[1];
        time.denominator = groups.values[1];
        return time;
    }
    if (groups.count == 2 && groups.separators[0] == u'+') {
        time.kind = NoteTime::Kind::Frames;
        time.frames = groups.values[0] * 16 + groups.values[1];
        return time;
    }
    if (const auto frames = numberInThousands(groups); frames && !saysSeconds && unit == NoteUnit::Frames) {
        time.kind = NoteTime::Kind::Frames;
        time.frames = *frames;
        return time;
    }
    if (groups.count == 2 && isPoint(groups.separators[0]))
        setFraction(time, groups.values[1], groups.digits[1]);
    else if (groups.count != 1)
        return std::nullopt;
    time.kind = NoteTime::Kind::Seconds;
    time.seconds = groups.values[0];
    if (saysSeconds || unit == NoteUnit::Seconds)
        return time;
    if (unit == NoteUnit::Milliseconds) {
        time.seconds = groups.values[0] / 1000;
        time.numerator = groups.values[0] % 1000;
        time.denominator = 1000;
        return time;
    }
    time.kind = NoteTime::Kind::Frames;
    time.frames = groups.values[0];
    time.seconds = 0;
    return time;
}

} // namespace

std::optional<NoteTime> NoteTime::parse(QStringView text, NoteUnit unit)
{
    text = text.trimmed();
    bool saysSeconds = false;
    if (text.endsWith(u's')) {
        saysSeconds = true;
        text = text.chopped(1).trimmed();
    }
    const std::optional<Groups> groups = groupsOf(text);
    if (!groups)
        return std::nullopt;
    std::size_t fields = 1; // joined by colons, before any fraction
    while (fields < groups->count && isColon(groups->separators[fields - 1]))
        ++fields;
    if (fields == 1)
        return numberTime(*groups, saysSeconds, unit);
    const bool hasFraction = groups->count == fields + 1 && isPoint(groups->separators[fields - 1]);
    if (saysSeconds || fields > 4 || (groups->count != fields && !hasFraction))
        return std::nullopt;
    NoteTime time;
    time.kind = fields == 4 ? Kind::Timecode : Kind::Seconds;
    const std::size_t clock = fields == 4 ? 3 : fields; // fields of hours, minutes and seconds
    for (std::size_t i = 0; i < clock; ++i) {
        if (i > 0 && (groups->values[i] > 59 || groups->digits[i] > 2))
            return std::nullopt;
        if (groups->digits[i] > 9)
            return std::nullopt;
        time.seconds = time.seconds * 60 + groups->values[i];
    }
    if (fields == 4) {
        if (groups->digits[3] > 3)
            return std::nullopt;
        time.frames = groups->values[3];
    }
    for (std::size_t i = 0; i + 1 < fields; ++i)
        time.hasSemicolon = time.hasSemicolon || groups->separators[i] == u';';
    if (hasFraction)
        setFraction(time, groups->values[fields], groups->digits[fields]);
    return time;
}

bool NoteTime::fits(const NoteRate &rate) const
{
    return kind != Kind::Timecode || frames < rate.timebase;
}

NoteTime::Position NoteTime::framesFromZero(const NoteRate &rate) const
{
    if (kind == Kind::Seconds) {
        const WideInteger parts = WideInteger(seconds) * denominator + numerator;
        return {parts * rate.numerator(), WideInteger(denominator) * rate.denominator()};
    }
    const qint64 whole = kind == Kind::Frames ? frames : rate.framesAt(seconds, frames);
    return {WideInteger(whole) * denominator + numerator, denominator};
}

NoteTime::Position NoteTime::Position::minus(const Position &other) const
{
    if (denominator == other.denominator)
        return {numerator - other.numerator, denominator};
    return {numerator * other.denominator - other.numerator * denominator, denominator * other.denominator};
}

qint64 convertedFrames(const NoteTime::Position &frames, const NoteRate &from, const NoteRate &to)
{
    if (from.numerator() == to.numerator() && from.denominator() == to.denominator())
        return roundedQuotient(frames.numerator, frames.denominator);
    return roundedQuotient(frames.numerator * from.denominator() * to.numerator(),
                           frames.denominator * from.numerator() * to.denominator());
}

} // namespace vantrell
