#include "interchange/RationalTime.h"

#include "support/text/TextNumbers.h"

#include <cmath>
#include <limits>

namespace vantrell::RationalTime
{

namespace
{

constexpr double twoToThe63 = 9223372036854775808.0;
constexpr double twoToThe64 = 18446744073709551616.0;

} // namespace

Parts partsOf(const QString &time)
{
    QStringView text(time);
    if (text.endsWith(QLatin1Char('s')))
        text.chop(1);
    const qsizetype slash = text.indexOf(QLatin1Char('/'));
    const QStringView first = slash < 0 ? text : text.first(slash);
    const QStringView second = slash < 0 ? QStringView() : text.sliced(slash + 1);
    Parts parts;
    parts.first = doubleValue(first);
    parts.firstAsInteger = integerValue(first);
    parts.second = doubleValue(second);
    if (slash < 0)
        parts.count = text.isEmpty() ? 0 : 1;
    else
        parts.count = second.contains(QLatin1Char('/')) ? 0 : 2;
    return parts;
}

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0;
}

double quotient(double dividend, double divisor)
{
    return divisor == 0 ? 0 : finiteOrZero(dividend / divisor);
}

quint64 unsignedFromDouble(double value)
{
    if (value < 0)
        return quint64(signedFromDouble(value));
    if (!std::isfinite(value))
        return 0;
    return value < twoToThe64 ? quint64(value) : std::numeric_limits<quint64>::max();
}

qint64 signedFromDouble(double value)
{
    if (!std::isfinite(value))
        return 0;
    if (value >= twoToThe63)
        return std::numeric_limits<qint64>::max();
    return value > -twoToThe63 ? qint64(value) : std::numeric_limits<qint64>::min();
}

} // namespace vantrell::RationalTime
