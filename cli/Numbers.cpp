#include "cli/Numbers.h"

namespace vantrell::cli
{

namespace
{

constexpr char mark = '\x01';

} // namespace

std::optional<quint64> wholeNumber(const QString &text)
{
    if (text.isEmpty() || text.front().isSpace() || text.back().isSpace())
        return std::nullopt;
    bool ok = false;
    const quint64 natural = text.toULongLong(&ok);
    if (ok)
        return natural;
    const qint64 integer = text.toLongLong(&ok);
    if (ok)
        return quint64(integer);
    return std::nullopt;
}

std::vector<std::string> markNegativeValues(const std::vector<std::string> &arguments)
{
    std::vector<std::string> marked = arguments;
    for (std::string &argument : marked) {
        if (argument == "--")
            break;
        const bool value = argument.size() > 1 && argument[0] == '-' &&
                           std::string("0123456789.,:;").find(argument[1]) != std::string::npos;
        if (value)
            argument.insert(argument.begin(), mark);
    }
    return marked;
}

QString withoutMark(const QString &argument)
{
    return argument.startsWith(QLatin1Char(mark)) ? argument.sliced(1) : argument;
}

} // namespace vantrell::cli
