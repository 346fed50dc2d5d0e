#pragma once

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// A whole number of 64 bits, signed or unsigned, as its bits; nothing when the text is anything else.
std::optional<quint64> wholeNumber(const QString &text);

/// Arguments such as "-12" and "-1.." are values, not options: in front of each a mark is put that the
/// option parser takes for text.
std::vector<std::string> markNegativeValues(const std::vector<std::string> &arguments);

/// The argument as it was typed.
QString withoutMark(const QString &argument);

} // namespace vantrell::cli
