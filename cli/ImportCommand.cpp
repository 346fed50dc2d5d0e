#include "cli/Command.h"
#include "cli/ProjectOutput.h"
#include "cli/ProjectSession.h"
#include "support/HeadlessAlertPresenter.h"
#include "support/QVAlert.h"

#include <memory>

namespace vantrell::cli
{

namespace
{

struct ImportOptions {
    std::string file;
    std::vector<std::string> lists;
    std::string format;
    std::string output;
    bool yes = false;
};

int importMarkers(const ImportOptions &options)
{
    if (options.yes)
        QVAlert::setPresenter(std::make_shared<HeadlessAlertPresenter>(true));
    ProjectSession session(Workbench::Inventories::Markers);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    const MarkerListImporter &importer = session.workbench().markerListImporter();
    const QString format = fromArgument(options.format);
    const bool isImported =
        importer.showMarkerListOpenDialog(format) &&
        importer.markerOpenDialogDidEnd(fromArguments(options.lists), MarkerListPanel::accepted, format);
    if (!isImported)
        return Failed;
    return writeProject(session.document(), fromArgument(options.output)) ? Done : Failed;
}

} // namespace

void addImportCommand(CLI::App &program, int &status)
{
    auto options = std::make_shared<ImportOptions>();
    CLI::App *command =
        program.add_subcommand("import", "Add the markers of other systems' marker lists to a project");
    command->add_option("FILE", options->file, "The project")->required();
    command->add_option("LIST", options->lists, "The marker lists")->required();
    command->add_option("--format", options->format, "fcp, avid or fcpx")
        ->required()
        ->check(CLI::IsMember({"fcp", "avid", "fcpx"}));
    command->add_option("-o", options->output, "The project to write; \"-\" is standard output")->required();
    command->add_flag("--yes", options->yes, "Answer questions with their default button");
    command->callback([options, &status] { status = importMarkers(*options); });
}

} // namespace vantrell::cli
