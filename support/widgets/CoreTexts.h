#pragma once

#include <span>

/// The texts of the core that windows show, in English, with %1 to %9 for what they are completed with. Each
/// list is a context of the translations: "Message", "Column" and so on. A text that is not here is shown in
/// English.
namespace vantrell::CoreTexts
{

/// What alerts, notices and footers say, and their parts.
std::span<const char *const> messages();
std::span<const char *const> columns();
/// What the program itself writes into cells and menus.
std::span<const char *const> values();
/// Units of sizes in bytes.
std::span<const char *const> units();
/// Names of steps that can be undone.
std::span<const char *const> edits();
std::span<const char *const> differences();

} // namespace vantrell::CoreTexts
