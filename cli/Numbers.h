#pragma once

#include <QString>

#include <optional>

namespace vantrell::cli
{

/// The bits of a signed or unsigned 64-bit integer; nullopt when the text is anything else.
std::optional<quint64> wholeNumber(const QString &text);

} // namespace vantrell::cli
