#pragma once

#include "support/files/FileUtilities.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QStringList>

#include <unistd.h>

namespace vantrell::cli
{

/// Writes to standard output; false, after a message, when that fails.
bool print(const QByteArray &bytes);
/// Writes "vantrell-cli: …" and a line end to standard error.
void complain(const QString &message);
/// The message on standard error and the status for wrong usage, and that for any other failure.
int refuseUsage(const QString &message);
int fail(const QString &message);

/// Has the writer write a file, atomically; "-" is standard output.
Result<void> writeOutput(const QString &path, const FileUtilities::Writer &writer);

/// The lines of standard input without their line ends.
QStringList readLines();

/// One line on standard error that tells how far a long operation has come; nothing where that is no
/// terminal.
class StatusLine
{
public:
    /// Replaces the line, a few times a second at most.
    void show(const QString &text);
    void clear();

private:
    const bool m_isTerminal = isatty(STDERR_FILENO) != 0;
    bool m_isShown = false;
    QElapsedTimer m_sinceShown;
};

} // namespace vantrell::cli
