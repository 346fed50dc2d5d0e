#pragma once

#include "document/MyDocument.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// A sequence of each of two projects, as items of their sequence menus.
struct SequencePair {
    std::int64_t before = 0;
    std::int64_t after = 0;
};

/// The sequences that the values of --sequence name, each by menu index or else by name. Without values the
/// first of the old project, and of the new one that of the same name, else the first. Nothing, after a
/// message on standard error, when there is no such sequence.
std::optional<SequencePair> chooseSequences(const std::vector<std::string> &values, const MyDocument &before,
                                            const MyDocument &after);

} // namespace vantrell::cli
