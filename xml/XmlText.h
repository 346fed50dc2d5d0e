#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace vantrell
{

/// Conversion between QString and the UTF-8 of the tree.
namespace XmlText
{

/// Text of the tree as a string, never null.
QString fromUtf8(std::string_view text);

/// The string as UTF-8. Characters that XML forbids, such as unpaired surrogates, are dropped and logged. Any
/// thread.
QByteArray toUtf8(const QString &text);

/// Decodes percent escapes as ASCII. Null when an escape is incomplete or stands for a byte beyond ASCII.
QString removingPercentEscapes(const QString &text);

/// The path of a URL, percent-decoded as UTF-8 (invalid bytes become U+FFFD), without the trailing slash of a
/// folder; "/" stays. Null when the text is not a valid URL: it contains a character that URLs forbid or an
/// incomplete escape.
QString pathOfUrl(const QString &url);

} // namespace XmlText
} // namespace vantrell
