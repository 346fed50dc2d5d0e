#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <concepts>
#include <span>
#include <string_view>
#include <type_traits>
#include <variant>

namespace vantrell
{

/// One argument of a format: a text, a signed or unsigned whole number, a number, one UTF-16 unit,
/// or a list of texts.
using FormatArgument = std::variant<QString, qint64, quint64, double, char16_t, QStringList>;

/// Puts the arguments into a format. "%@" and "%s" stand for a text, "%i" and "%d" for a signed
/// and "%u" for an unsigned number of 32 bits (wider arguments lose their upper half), "%li", "%ld"
/// and "%lu" for one of 64 bits, "%x" and "%X" for a hexadecimal one, "%f" for a number with
/// decimals, "%C" for one UTF-16 unit, "%%" for a percent sign. Zero padding, width and precision
/// ("%0.2f", "%02li") work as they do in C. A list of texts reads "(first, second)".
///
/// A conversion that is not known or that has no argument left stays in the text as it is; an
/// argument of another type than the conversion's is written in the form natural to it. Arguments
/// that are left over are ignored. Any thread.
QString formatText(QStringView format, std::span<const FormatArgument> arguments);

/// Turns a C++ value into a format argument. Bytes and C strings are taken as UTF-8; a null pointer
/// reads "(null)", a null QString is empty.
template <typename T>
FormatArgument formatArgument(const T &value)
{
    using Value = std::decay_t<T>;
    if constexpr (std::same_as<Value, FormatArgument>) {
        return value;
    } else if constexpr (std::same_as<Value, QChar> || std::same_as<Value, char16_t>) {
        return FormatArgument(std::in_place_type<char16_t>, QChar(value).unicode());
    } else if constexpr (std::is_enum_v<Value>) {
        return formatArgument(static_cast<std::underlying_type_t<Value>>(value));
    } else if constexpr (std::floating_point<Value>) {
        return FormatArgument(std::in_place_type<double>, static_cast<double>(value));
    } else if constexpr (std::unsigned_integral<Value> && !std::same_as<Value, bool>) {
        return FormatArgument(std::in_place_type<quint64>, value);
    } else if constexpr (std::integral<Value>) {
        return FormatArgument(std::in_place_type<qint64>, static_cast<qint64>(value));
    } else if constexpr (std::same_as<Value, const char *> || std::same_as<Value, char *>) {
        const char *text = value;
        return text ? QString::fromUtf8(text) : QStringLiteral("(null)");
    } else if constexpr (std::convertible_to<const T &, QStringView>) {
        return QStringView(value).toString();
    } else if constexpr (std::same_as<Value, QByteArray>) {
        return QString::fromUtf8(value);
    } else if constexpr (std::convertible_to<const T &, std::string_view>) {
        const std::string_view text(value);
        return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    } else if constexpr (std::convertible_to<const T &, QStringList>) {
        return FormatArgument(std::in_place_type<QStringList>, value);
    } else {
        return QString(value);
    }
}

/// The same with the arguments given as C++ values.
template <typename... Args>
requires(sizeof...(Args) > 0 && !(... || std::convertible_to<Args, std::span<const FormatArgument>>)) QString
    formatText(QStringView format, const Args &...arguments)
{
    const std::array<FormatArgument, sizeof...(Args)> list{formatArgument(arguments)...};
    return formatText(format, std::span<const FormatArgument>(list));
}

} // namespace vantrell
