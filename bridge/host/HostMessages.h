#pragma once

#include "support/log/SystemLog.h"

namespace vantrell
{

/// Writes a line that begins with "fcp-host: " to standard error with one call. Any thread.
inline void hostMessage(const QString &message)
{
    SystemLog::write(QStringLiteral("fcp-host: ") + message);
}

} // namespace vantrell
