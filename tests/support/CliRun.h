#pragma once

#include <QByteArray>
#include <QStringList>

namespace vantrell
{

/// The result of a run of the command line program.
struct CliRun {
    int status = -1; ///< -1 when it crashed or did not end in 40 seconds
    QByteArray output;
    QByteArray messages;
};

/// Runs vantrell-cli with the arguments and the standard input given.
CliRun runCli(const QStringList &arguments, const QByteArray &input = QByteArray());

/// The same for a copy of the program at that path.
CliRun runProgram(const QString &program, const QStringList &arguments,
                  const QByteArray &input = QByteArray());

} // namespace vantrell
