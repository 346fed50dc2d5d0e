#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProjectOutput.h"
#include "cli/ProjectSession.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProgramArguments.h"

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
    if (!importer.showMarkerListOpenDialog(format))
        return Failed;
    const auto imported =
        importer.markerOpenDialogDidEnd(fromArguments(options.lists), MarkerListPanel::accepted, format);
    if (!imported || imported->next == 0)
        return Failed;
    for (const MarkerListImporter::Rejected &rejected : imported->rejected)
        complain(rejected.text());
    const bool isWritten =
        imported->added > 0 && writeProject(session.document(), fromArgument(options.output));
    if (isWritten || imported->added == 0)
        complain(QStringLiteral("%1 of %2 rows added").arg(imported->added).arg(imported->next));
    return isWritten ? Done : Failed;
}

} // namespace

void addImportCommand(CommandLine &program)
{
    auto options = std::make_shared<ImportOptions>();
    Subcommand command = program.add("import", "Add the markers of other systems' marker lists to a project");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.values("LIST", options->lists, "The marker lists", Subcommand::Need::Required);
    command.choice("--format", options->format, {"fcp", "avid", "fcpx"}, "fcp, avid or fcpx",
                   Subcommand::Need::Required);
    command.value("-o", options->output, "The project to write; \"-\" is standard output",
                  Subcommand::Need::Required);
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.onRun([options] { return importMarkers(*options); });
}

} // namespace vantrell::cli
