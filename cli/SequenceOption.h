#pragma once

#include "document/MyDocument.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrell::cli
{

/// Reads the values of --sequence, each a menu index or, where it is none, the title of menu items, of
/// which all that have it are meant; the indexes ascending. Nothing, after a message on standard error, when
/// there is no such sequence. After the load.
std::optional<std::vector<int>> readSequenceOption(const std::vector<std::string> &values,
                                                   MyDocument &document);

} // namespace vantrell::cli
