#pragma once

#include "cli/CommandLine.h"

namespace vantrell::cli
{

// Each adds a subcommand with its arguments.
void addLoadCommand(CommandLine &program);
void addInfoCommand(CommandLine &program);
void addMediaCommand(CommandLine &program);
void addEffectsCommand(CommandLine &program);
void addMarkerListCommand(CommandLine &program);
void addExportCommand(CommandLine &program);
void addImportCommand(CommandLine &program);
void addMarkersCommand(CommandLine &program);
void addEditCommand(CommandLine &program);
void addRelinkCommand(CommandLine &program);
void addReportCommand(CommandLine &program);
void addSendCommand(CommandLine &program);
void addCompareCommand(CommandLine &program);
void addCarryCommand(CommandLine &program);
void addTimecodeCommand(CommandLine &program);

} // namespace vantrell::cli
