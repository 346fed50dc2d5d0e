#include "support/text/TextNumbers.h"

#include <QRegularExpression>

#include <limits>

namespace vantrell
{

bool isDigit(QChar character)
{
    return character >= QLatin1Char('0') && character <= QLatin1Char('9');
}

qint64 integerValue(QStringView text)
{
    text = text.trimmed();
    const bool negative = text.startsWith(QLatin1Char('-'));
    if (negative || text.startsWith(QLatin1Char('+')))
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
    return number.match(text.trimmed().toString()).capturedView().toDouble();
}

} // namespace vantrell
