#pragma once

// For use inside xml/ only.

#include <QByteArray>

#include <cstddef>
#include <string_view>

namespace vantrell
{

/// Views of bytes of other types. The bytes must outlive the view.
inline std::string_view viewOf(const QByteArray &text)
{
    return {text.constData(), std::size_t(text.size())};
}

/// Zero-terminated; empty for null.
inline std::string_view viewOf(const unsigned char *text)
{
    return text ? std::string_view(reinterpret_cast<const char *>(text)) : std::string_view();
}

inline std::string_view viewOf(const unsigned char *text, std::ptrdiff_t length)
{
    return {reinterpret_cast<const char *>(text), std::size_t(length)};
}

} // namespace vantrell
