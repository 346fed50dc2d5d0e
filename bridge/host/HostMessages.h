#pragma once

#include <QString>

namespace vantrell
{

/// Writes a line that begins with "fcp-host: " to standard error with one call. Any thread.
void hostMessage(const QString &message);

} // namespace vantrell
