#pragma once

#include <QString>

namespace vantrell
{

/// Writes "fcp-host: …" and a line end to standard error, in one step. Any thread.
void hostMessage(const QString &message);

} // namespace vantrell
