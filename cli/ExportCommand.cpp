#include "cli/Command.h"
#include "cli/ProjectSession.h"

#include <memory>

namespace vantrell::cli
{

namespace
{

struct ExportOptions {
    std::string file;
    std::string format;
    std::string output = "-";
};

int exportMarkers(const ExportOptions &options)
{
    ProjectSession session(Workbench::Inventories::Markers);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    const MarkerListExporter &exporter = session.workbench().markerListExporter();
    const QString format = fromArgument(options.format);
    if (!exporter.showMarkerListSaveDialog(format))
        return Failed;
    if (options.output == "-")
        return print(exporter.textOfMarkerList(format).toUtf8()) ? Done : Failed;
    const bool isWritten =
        exporter.markerSaveDialogDidEnd(fromArgument(options.output), MarkerListPanel::accepted, format);
    return isWritten ? Done : Failed;
}

} // namespace

void addExportCommand(CLI::App &program, int &status)
{
    auto options = std::make_shared<ExportOptions>();
    CLI::App *command =
        program.add_subcommand("export", "Write a project's markers as another system's marker list");
    command->add_option("FILE", options->file, "The project")->required();
    command->add_option("--format", options->format, "fcp or avid")
        ->required()
        ->check(CLI::IsMember({"fcp", "avid"}));
    command->add_option("-o", options->output, "The marker list; standard output unless given or for \"-\"");
    command->callback([options, &status] { status = exportMarkers(*options); });
}

} // namespace vantrell::cli
