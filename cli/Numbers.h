#pragma once

#include <QString>

#include <optional>

namespace vantrell::cli
{

/// A whole number of 64 bits, signed or unsigned, as its bits; nothing when the text is anything else.
std::optional<quint64> wholeNumber(const QString &text);

} // namespace vantrell::cli
