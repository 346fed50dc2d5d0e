#pragma once

#include <optional>
#include <string>

namespace vantrell::cli
{

/// The help text of --color.
inline constexpr char colorHelp[] =
    "Only markers of one colour: red, orange, yellow, green, turquoise, blue, purple, "
    "pink, or 0 to 7";

/// The colour index named by the value of --color; nothing for a value that names none.
std::optional<int> colorChoice(const std::string &value);

} // namespace vantrell::cli
