#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProjectSession.h"
#include "support/files/ProgramArguments.h"

#include <memory>

namespace vantrell::cli
{

namespace
{

struct ExportOptions {
    std::string file;
    std::string format;
    std::string output = "-";
    bool ownOwners = false;
};

int exportMarkers(const ExportOptions &options)
{
    ProjectSession session(Workbench::Inventories::Markers);
    session.setOwnOwners(options.ownOwners);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    const MarkerListExporter &exporter = session.workbench().markerListExporter();
    const QString format = fromArgument(options.format);
    if (!exporter.showMarkerListSaveDialog(format))
        return Failed;
    if (const QString told = exporter.unreadableRowsText(format); !told.isEmpty())
        complain(told + QLatin1Char('.'));
    if (options.output == "-")
        return print(exporter.textOfMarkerList(format).toUtf8()) ? Done : Failed;
    const bool isWritten =
        exporter.markerSaveDialogDidEnd(fromArgument(options.output), MarkerListPanel::accepted, format);
    return isWritten ? Done : Failed;
}

} // namespace

void addExportCommand(CommandLine &program)
{
    auto options = std::make_shared<ExportOptions>();
    Subcommand command = program.add("export", "Write a project's markers as another system's marker list");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.choice("--format", options->format, {"fcp", "avid"}, "fcp or avid", Subcommand::Need::Required);
    command.value("-o", options->output, "The marker list; standard output unless given or for \"-\"");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return exportMarkers(*options); });
}

} // namespace vantrell::cli
