#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/NoteCommands.h"
#include "cli/ProjectSession.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProgramArguments.h"

#include <memory>

namespace vantrell::cli
{

namespace
{

struct ImportOptions : NoteImportOptions {
    std::string format;
    bool yes = false;
};

int importMarkers(const ImportOptions &options, bool hasOptionsOfAuto)
{
    if (hasOptionsOfAuto && options.format != "auto")
        return refuseUsage(QStringLiteral("--sequence, --time, --rate, --map, --preview and --json go with "
                                          "--format auto only."));
    if (options.format != "auto" && options.output.empty())
        return refuseUsage(QStringLiteral("-o is required."));
    if (options.yes)
        QVAlert::setPresenter(std::make_shared<HeadlessAlertPresenter>(true));
    if (options.format == "auto")
        return importNotes(options);
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
    command.choice("--format", options->format, {"auto", "fcp", "avid", "fcpx"},
                   "auto for notes in any known form; fcp, avid or fcpx", Subcommand::Need::Required);
    command.value(
        "--sequence", options->sequence,
        "The sequence to add to, by name or number; otherwise the one that the list's name holds, or the "
        "first (auto)");
    command.value("--time", options->time,
                  "What the times are: record, elapsed, offset=TC or first=TC (auto)");
    command.value(
        "--rate", options->rate,
        "The list's frame rate: 23.976, 24, 25, 29.97, 29.97df, 30, 50, 59.94, 59.94df or 60 (auto)");
    command.values(
        "--map", options->map,
        "COLUMN=ROLE, a column by its title or number: time, duration, end, name, comment, color, user, "
        "track, type, ignore or field:TITLE (auto)");
    command.flag("--preview", options->preview, "Only tell what would be added (auto)");
    command.flag("--json", options->json, "Print one JSON document (auto)");
    command.value("-o", options->output, "The project to write; \"-\" is standard output");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.onRun([options, command] {
        bool hasOptionsOfAuto = false;
        for (const char *name : {"--sequence", "--time", "--rate", "--map", "--preview", "--json"})
            hasOptionsOfAuto = hasOptionsOfAuto || command.isGiven(name);
        return importMarkers(*options, hasOptionsOfAuto);
    });
}

} // namespace vantrell::cli
