#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace vantrell::cli
{

/// Writes to standard output; false, after a message, when that fails.
bool print(const QByteArray &bytes);
/// Writes "vantrell-cli: …" and a line end to standard error.
void complain(const QString &message);
/// The message on standard error and the status for wrong usage.
int refuseUsage(const QString &message);

/// The lines of standard input without their line ends.
QStringList readLines();

} // namespace vantrell::cli
