#include "support/text/TextFormat.h"

#include "support/text/TextNumbers.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace vantrell
{

namespace
{

/// Widths and precisions beyond this are cut, so that a stray number in a text costs no memory.
constexpr int maximumWidth = 500;

struct Conversion {
    bool zeroPadded = false;
    bool isLong = false;
    int width = 0;
    int precision = -1;
    char16_t letter = 0;
    qsizetype end = 0; ///< index behind the conversion
};

int readNumber(QStringView format, qsizetype &position)
{
    int number = 0;
    for (; position < format.size() && isDigit(format[position]); ++position)
        number = std::min(maximumWidth, number * 10 + (format[position].unicode() - u'0'));
    return number;
}

/// The conversion whose percent sign stands just before `position`; nothing for an unknown one.
std::optional<Conversion> readConversion(QStringView format, qsizetype position)
{
    Conversion conversion;
    if (position < format.size() && format[position] == u'0')
        conversion.zeroPadded = true;
    conversion.width = readNumber(format, position);
    if (position < format.size() && format[position] == u'.')
        conversion.precision = readNumber(format, ++position);
    for (; position < format.size() && QStringView(u"lqhzjt").contains(format[position]); ++position)
        conversion.isLong = conversion.isLong || format[position] != u'h';
    if (position == format.size() || !QStringView(u"@siduxXfC").contains(format[position]))
        return std::nullopt;
    conversion.letter = format[position].unicode();
    conversion.end = position + 1;
    return conversion;
}

/// As C's printf writes it, in the C locale: ties go to the even digit, unlike QString::number().
QString fixedText(double number, int decimals)
{
    std::array<char, maximumWidth + 320> text; // the largest double has 309 digits
    const std::to_chars_result end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals);
    return QString::fromLatin1(text.data(), end.ptr - text.data());
}

QString characterText(char16_t unit)
{
    return unit == 0 ? QString() : QString(QChar(unit));
}

/// An argument in the form that is natural to its own type.
QString plainText(const FormatArgument &argument)
{
    struct Visitor {
        QString operator()(const QString &text) const { return text; }
        QString operator()(qint64 number) const { return QString::number(number); }
        QString operator()(quint64 number) const { return QString::number(number); }
        QString operator()(double number) const
        {
            return QString::number(number, 'g', QLocale::FloatingPointShortest);
        }
        QString operator()(char16_t unit) const { return characterText(unit); }
        QString operator()(const QStringList &list) const
        {
            return QStringLiteral("(%1)").arg(list.join(QStringLiteral(", ")));
        }
    };
    return std::visit(Visitor(), argument);
}

/// The bits of a whole number or a UTF-16 unit; nothing for other types.
std::optional<quint64> integerBits(const FormatArgument &argument)
{
    if (const qint64 *number = std::get_if<qint64>(&argument))
        return static_cast<quint64>(*number);
    if (const quint64 *number = std::get_if<quint64>(&argument))
        return *number;
    if (const char16_t *unit = std::get_if<char16_t>(&argument))
        return *unit;
    return std::nullopt;
}

std::optional<double> realNumber(const FormatArgument &argument)
{
    if (const double *number = std::get_if<double>(&argument))
        return *number;
    if (const qint64 *number = std::get_if<qint64>(&argument))
        return static_cast<double>(*number);
    if (const quint64 *number = std::get_if<quint64>(&argument))
        return static_cast<double>(*number);
    return std::nullopt;
}

QString padded(QString text, const Conversion &conversion, bool isNumber)
{
    const qsizetype missing = conversion.width - text.size();
    if (missing <= 0)
        return text;
    if (!isNumber || !conversion.zeroPadded)
        return text.prepend(QString(missing, u' '));
    return text.insert(text.startsWith(u'-') ? 1 : 0, QString(missing, u'0'));
}

QString integerText(quint64 bits, const Conversion &conversion)
{
    if (!conversion.isLong)
        bits &= 0xffffffffU;
    switch (conversion.letter) {
    case u'u':
        return QString::number(bits);
    case u'x':
        return QString::number(bits, 16);
    case u'X':
        return QString::number(bits, 16).toUpper();
    default:
        return QString::number(conversion.isLong ? static_cast<qint64>(bits)
                                                 : static_cast<qint32>(static_cast<quint32>(bits)));
    }
}

QString convertedText(const FormatArgument &argument, const Conversion &conversion)
{
    switch (conversion.letter) {
    case u'f':
        if (const std::optional<double> number = realNumber(argument)) {
            const int decimals = conversion.precision < 0 ? 6 : conversion.precision;
            return padded(fixedText(*number, decimals), conversion, std::isfinite(*number));
        }
        break;
    case u'C':
        if (const std::optional<quint64> bits = integerBits(argument))
            return padded(characterText(static_cast<char16_t>(*bits)), conversion, false);
        break;
    case u'@':
    case u's': {
        const QString text = plainText(argument);
        return padded(conversion.precision < 0 ? text : text.left(conversion.precision), conversion, false);
    }
    default:
        if (const std::optional<quint64> bits = integerBits(argument))
            return padded(integerText(*bits, conversion), conversion, true);
        break;
    }
    return padded(plainText(argument), conversion, false);
}

} // namespace

QString formatText(QStringView format, std::span<const FormatArgument> arguments)
{
    QString result;
    result.reserve(format.size() + 16 * static_cast<qsizetype>(arguments.size()));
    std::size_t next = 0;
    qsizetype position = 0;
    for (;;) {
        const qsizetype percent = format.indexOf(u'%', position);
        if (percent < 0)
            return result.append(format.sliced(position));
        result.append(format.sliced(position, percent - position));
        position = percent + 1;
        if (position < format.size() && format[position] == u'%') {
            result.append(u'%');
            ++position;
            continue;
        }
        const std::optional<Conversion> conversion = readConversion(format, position);
        if (!conversion || next == arguments.size()) {
            result.append(u'%');
            continue;
        }
        result.append(convertedText(arguments[next++], *conversion));
        position = conversion->end;
    }
}

} // namespace vantrell
