#pragma once

#include <QString>

namespace vantrell::SystemLog
{

/// Writes one line to the system log, which is standard error. Any thread.
void write(const QString &line);

} // namespace vantrell::SystemLog
