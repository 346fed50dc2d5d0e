#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "interchange/MarkerJson.h"
#include "interchange/NoteExporter.h"
#include "interchange/NoteImporter.h"
#include "support/files/FileUtilities.h"
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
    std::optional<std::string> color;
    std::optional<std::string> sequence;
    std::string search;
    bool ownOwners = false;
};

/// The markers that the options take, in a format that is not of MarkerListExporter.
int exportNotes(const ExportOptions &options, NoteExporter::Filter filter, ProjectSession &session)
{
    if (options.sequence) {
        const NoteImporter importer(session.document(), session.workbench().markerEditor());
        filter.sequence = importer.sequenceNamed(fromArgument(*options.sequence));
        if (!filter.sequence)
            return fail(QStringLiteral("There is no sequence \"%1\".").arg(fromArgument(*options.sequence)));
    }
    const NoteExporter exporter(session.document());
    const RowList markers = exporter.markers(filter);
    QByteArray content;
    if (options.format == "json") {
        content = MarkerJson(markers).text();
    } else {
        const NoteWriter::Written written = exporter.list(fromArgument(options.format), markers);
        for (const QString &change : written.changes)
            complain(change);
        content = written.text.toUtf8();
    }
    if (options.output == "-")
        return print(content) ? Done : Failed;
    const Result<void> saved = FileUtilities::writeAtomically(fromArgument(options.output), content);
    return saved ? Done : fail(saved.message());
}

int exportMarkers(const ExportOptions &options)
{
    NoteExporter::Filter filter;
    filter.search = fromArgument(options.search);
    if (options.color) {
        filter.color = colorChoice(*options.color);
        if (!filter.color)
            return refuseUsage(QStringLiteral("--color: there is no such colour."));
    }
    ProjectSession session(Workbench::Inventories::Markers);
    session.setOwnOwners(options.ownOwners);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    if (options.format != "fcp" && options.format != "avid")
        return exportNotes(options, filter, session);
    const MarkerListExporter &exporter = session.workbench().markerListExporter();
    const QString format = fromArgument(options.format);
    if (!exporter.showMarkerListSaveDialog(format))
        return Failed;
    if (const QString told = exporter.unreadableRowsText(format); !told.isEmpty())
        complain(told + QLatin1Char('.'));
    if (options.output == "-")
        return print(exporter.textOfMarkerList(format).toUtf8()) ? Done : Failed;
    return exporter.markerSaveDialogDidEnd(fromArgument(options.output), MarkerListPanel::accepted, format)
               ? Done
               : Failed;
}

} // namespace

void addExportCommand(CommandLine &program)
{
    auto options = std::make_shared<ExportOptions>();
    Subcommand command = program.add("export", "Write a project's markers as another system's marker list");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.choice("--format", options->format,
                   {"fcp", "avid", "avid6", "avid8", "resolve-edl", "edl", "csv", "tsv", "markdown",
                    "chapters", "webvtt", "json"},
                   "fcp, avid, avid6, avid8, resolve-edl, edl, csv, tsv, markdown, chapters, webvtt or json",
                   Subcommand::Need::Required);
    command.value("--color", options->color, colorHelp);
    command.value("--sequence", options->sequence, "Only markers of one sequence, by name or number");
    command.value("--search", options->search, "Only markers that hold this text");
    command.value("-o", options->output, "The marker list; standard output unless given or for \"-\"");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return exportMarkers(*options); });
}

} // namespace vantrell::cli
