#pragma once

#include <QByteArray>
#include <QStringList>

namespace vantrell
{

/// One run of the command line program, ended.
struct CliRun {
    int status = -1; ///< -1 when it crashed or did not end in 40 seconds
    QByteArray output;
    QByteArray messages;
};

/// Runs vantrell-cli with the arguments and the standard input given.
CliRun runCli(const QStringList &arguments, const QByteArray &input = QByteArray());

/// The same with a copy of it at that path.
CliRun runProgram(const QString &program, const QStringList &arguments,
                  const QByteArray &input = QByteArray());

} // namespace vantrell
