#pragma once

#include <QByteArray>
#include <QString>

#include <string_view>

namespace vantrell
{

/// Text at the tree's edge: QString outside, UTF-8 inside.
namespace XmlText
{

/// The tree's text as a string, never null.
QString fromUtf8(std::string_view text);

/// The string as the tree takes it. Characters that XML forbids are dropped and logged; an unpaired
/// surrogate is one of them. Any thread.
QByteArray toUtf8(const QString &text);

/// The text with its percent escapes undone, each escaped byte read as ASCII. Null when an escape is
/// not whole or stands for a byte beyond ASCII.
QString removingPercentEscapes(const QString &text);

/// The path of a URL: its percent escapes decoded as UTF-8 (bytes that are none become U+FFFD), without
/// the trailing slash of a folder; "/" stays. Scheme and host are dropped. Null when the text is no
/// valid URL, that is when it holds a character that no URL may hold or an escape that is not whole.
QString pathOfUrl(const QString &url);

} // namespace XmlText
} // namespace vantrell
