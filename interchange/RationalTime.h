#pragma once

#include <QString>

namespace vantrell
{

/// The rational times of interchange files: "3600s", "1001/30000s". Any thread.
namespace RationalTime
{

/// Numerator and denominator of a time without its trailing "s", 0 if malformed.
struct Parts {
    int count = 0; ///< 1 for a plain number, 2 for a fraction, 0 for anything else
    double first = 0;
    double second = 0;
    qint64 firstAsInteger = 0;
};
Parts partsOf(const QString &time);

/// The number itself, 0 when it is not finite.
double finiteOrZero(double value);

/// The quotient, 0 when it is not finite.
double quotient(double dividend, double divisor);

/// Truncated toward zero; negative numbers go through a signed 64-bit integer. Saturates at the smallest
/// signed and the largest unsigned value; 0 when not finite.
quint64 unsignedFromDouble(double value);

/// Truncated toward zero, saturating; 0 when not finite.
qint64 signedFromDouble(double value);

} // namespace RationalTime
} // namespace vantrell
