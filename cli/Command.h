#pragma once

#include <CLI/CLI.hpp>

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <string>
#include <vector>

namespace vantrell::cli
{

/// Exit statuses of the program.
enum ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

/// Adds the subcommands to the program. Each stores its exit status when it has run.
void addLoadCommand(CLI::App &program, int &status);
void addInfoCommand(CLI::App &program, int &status);
void addMediaCommand(CLI::App &program, int &status);
void addEffectsCommand(CLI::App &program, int &status);
void addMarkerListCommand(CLI::App &program, int &status);
void addExportCommand(CLI::App &program, int &status);
void addImportCommand(CLI::App &program, int &status);
void addMarkersCommand(CLI::App &program, int &status);
void addEditCommand(CLI::App &program, int &status);
void addSendCommand(CLI::App &program, int &status);
void addTimecodeCommand(CLI::App &program, int &status);

/// Writes to standard output; false, with a message, when it cannot be written.
bool print(const QByteArray &bytes);
/// Writes "vantrell-cli: …" and a line end to standard error.
void complain(const QString &message);
/// The message on standard error and the status for wrong usage.
int refuseUsage(const QString &message);

QString fromArgument(const std::string &argument);
QStringList fromArguments(const std::vector<std::string> &arguments);

/// The lines of standard input without their line ends.
QStringList readLines();

} // namespace vantrell::cli
