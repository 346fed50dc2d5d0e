#include "cli/Numbers.h"

namespace vantrell::cli
{

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

} // namespace vantrell::cli
