#include "support/text/TextNumbers.h"

#include <limits>

namespace vantrell
{

namespace
{

bool isSign(QChar character)
{
    return character == QLatin1Char('-') || character == QLatin1Char('+');
}

QStringView withoutLeadingSpace(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace())
        ++start;
    return text.sliced(start);
}

/// The position of the first character from start on that is no digit.
qsizetype endOfDigits(QStringView text, qsizetype start)
{
    while (start < text.size() && isDigit(text[start]))
        ++start;
    return start;
}

} // namespace

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

qint64 integerValue(QStringView text)
{
    text = withoutLeadingSpace(text);
    const bool negative = text.startsWith(QLatin1Char('-'));
    if (!text.isEmpty() && isSign(text.front()))
        text = text.sliced(1);

    // The magnitude of the smallest value is one more than that of the largest.
    const quint64 limit = quint64(std::numeric_limits<qint64>::max()) + (negative ? 1 : 0);
    quint64 magnitude = 0;
    for (const QChar character : text) {
        if (!isDigit(character))
            break;
        const quint64 digit = character.unicode() - u'0';
        if (magnitude > (limit - digit) / 10) {
            magnitude = limit;
            break;
        }
        magnitude = magnitude * 10 + digit;
    }
    return qint64(negative ? 0 - magnitude : magnitude);
}

qint32 intValue(QStringView text)
{
    return qint32(quint32(quint64(integerValue(text))));
}

double doubleValue(QStringView text)
{
    text = withoutLeadingSpace(text);
    const qsizetype sign = !text.isEmpty() && isSign(text.front()) ? 1 : 0;
    qsizetype end = endOfDigits(text, sign);
    qsizetype digits = end - sign;
    if (end < text.size() && text[end] == QLatin1Char('.')) {
        const qsizetype fractionEnd = endOfDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0)
        return 0;

    if (end < text.size() && text[end].toLower() == QLatin1Char('e')) {
        qsizetype exponent = end + 1;
        if (exponent < text.size() && isSign(text[exponent]))
            ++exponent;
        const qsizetype exponentEnd = endOfDigits(text, exponent);
        if (exponentEnd > exponent)
            end = exponentEnd;
    }
    return text.first(end).toDouble();
}

} // namespace vantrell
