#pragma once

#include "document/MyDocument.h"

namespace vantrell::cli
{

/// Writes the project as plain XML, atomically; "-" is standard output. False, after a message on standard
/// error, when writing fails or a question about it was refused.
bool writeProject(MyDocument &document, const QString &path);

} // namespace vantrell::cli
