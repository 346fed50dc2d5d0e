#pragma once

#include "document/MyDocument.h"

namespace vantrell::cli
{

/// Writes the project as plain XML, whole or not at all; "-" is standard output. False, with a message
/// on standard error, when it cannot be written or a question about it was refused.
bool writeProject(MyDocument &document, const QString &path);

} // namespace vantrell::cli
