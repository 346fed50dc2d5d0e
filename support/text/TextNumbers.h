#pragma once

#include <QStringView>

namespace vantrell
{

/// Whether the character is one of the digits 0 to 9. Any thread.
bool isDigit(QChar character);

/// The integer that a text begins with: leading white space, a sign, decimal digits (0 to 9); what
/// follows is ignored. 0 when there are no digits or no text; beyond 64 bits it stays at the
/// smallest or largest value. Any thread.
qint64 integerValue(QStringView text);

/// The low 32 bits of integerValue(), as a signed number. Any thread.
qint32 intValue(QStringView text);

/// The number that a text begins with: leading white space, a sign, digits with or without a
/// decimal point, an exponent when it is whole; what follows is ignored, and neither infinities nor
/// hexadecimal digits are known by name. 0 when there are no digits or no text; infinite when the
/// number is beyond a double. The user's language plays no part. Any thread.
double doubleValue(QStringView text);

} // namespace vantrell
