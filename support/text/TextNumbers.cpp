#include "support/text/TextNumbers.h"

#include <QRegularExpression>

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
    static const QRegularExpression number(
        QStringLiteral("^[-+]?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][-+]?\\d+)?"));
    return number.match(withoutLeadingSpace(text).toString()).capturedView().toDouble();
}

} // namespace vantrell
