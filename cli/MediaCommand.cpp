#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/MediaOptions.h"
#include "cli/OptionValues.h"
#include "cli/TextTable.h"
#include "media/MediaColumns.h"
#include "media/MediaConditions.h"
#include "rows/json/RecordJson.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>
#include <memory>

namespace vantrell::cli
{

namespace
{

constexpr std::array labels{Label::MediaTotalSize,         Label::MediaTotalFiles,
                            Label::MediaFilteredTotalSize, Label::MediaFilteredTotalFiles,
                            Label::MediaLargestFile,       Label::MediaSmallestFile};

/// The item of the kind menu; 0 for no name.
int menuItemOfKind(const std::string &kind)
{
    return kind == "movie" ? 1 : kind == "audio" ? 2 : kind == "image" ? 3 : 0;
}

/// The path of the drive menu's item; null for all drives.
QString driveOf(const std::string &argument)
{
    QString drive = fromArgument(argument);
    while (drive.size() > 1 && drive.endsWith(QLatin1Char('/')))
        drive.chop(1);
    return drive.isEmpty() ? QString() : drive;
}

QByteArray mediaAsJson(ProjectSession &session)
{
    XmlLocationPaths paths;
    Json texts = Json::array();
    for (const Label label : labels)
        texts.push_back(jsonText(session.document().label(label)));
    return toBytes(Json{{"files", recordsToJson(session.document().rowsOnShow(Tab::Media), paths)},
                        {"statistics", recordToJson(session.workbench().mediaFilter().statistics(), paths)},
                        {"labels", std::move(texts)}});
}

std::optional<PathMappings> readMappings(const std::vector<std::string> &values)
{
    PathMappings mappings;
    for (const QString &value : fromArguments(values)) {
        const std::optional<PathMapping> mapping = PathMappings::parse(value);
        if (!mapping || !mappings.add(mapping->from, mapping->to))
            return std::nullopt;
    }
    return mappings;
}

std::optional<std::int64_t> readHandles(const std::optional<std::string> &value)
{
    if (!value)
        return 0;
    bool isNumber = false;
    const int frames = fromArgument(*value).toInt(&isNumber);
    return isNumber && frames >= 0 ? std::optional<std::int64_t>(frames) : std::nullopt;
}

int media(const MediaOptions &options)
{
    std::vector<SortDescriptor> sort;
    if (options.sort) {
        const std::optional<SortDescriptor> descriptor = readSortOption(*options.sort, mediaColumns);
        if (!descriptor)
            return refuseUsage(QStringLiteral("--sort: the media table has no such column."));
        sort.push_back(*descriptor);
    }
    std::optional<PathMappings> mappings = readMappings(options.mappings);
    if (!mappings)
        return refuseUsage(QStringLiteral("--map: a mapping is FROM=TO."));
    const std::optional<std::int64_t> handles = readHandles(options.handles);
    if (!handles)
        return refuseUsage(QStringLiteral("--handles: a number of frames is 0 or more."));
    const int modes =
        options.uses + options.check + (options.verify && !options.check) + !options.list.empty();
    if (modes > 1)
        return refuseUsage(
            QStringLiteral("Only one of --uses, --check, --verify and --list can be asked for."));
    if (!options.output.empty() && options.list.empty())
        return refuseUsage(QStringLiteral("-o: only --list writes a file."));
    if (options.file.empty()) {
        if (options.verify && !options.check)
            return verifyMedia(options, nullptr);
        std::fputs("FILE is required\nRun with --help for more information.\n", stderr);
        return WrongUsage;
    }
    ProjectSession session(Workbench::Inventories::All);
    session.workbench().mediaInventory().setPathMappings(std::move(*mappings));
    if (!session.open(fromArgument(options.file)))
        return Failed;
    std::optional<std::vector<int>> sequences = readSequenceOption(options.sequences, session.document());
    if (!sequences)
        return Failed;
    const MediaConditions conditions{fromArgument(options.search), options.missing, options.unused,
                                     *sequences};
    std::shared_ptr<const MediaUses> uses;
    if (options.uses || options.list == "csv" || conditions.needsUses())
        uses = std::make_shared<MediaUses>(session.document());
    session.document().rowView(Tab::Media).setSortDescriptors(sort);
    ViewState &view = session.document().viewState();
    view.selectedTab = Tab::Media;
    view.mediaKind = menuItemOfKind(options.kind);
    view.mediaDrive = driveOf(options.drive);
    MediaFilter &filter = session.workbench().mediaFilter();
    filter.setCondition(mediaCondition(conditions, uses));
    filter.populateFilteredMediaData();
    const MediaListing listing{session, uses.get(), {std::move(*sequences), *handles}};
    if (options.uses)
        return printMediaUses(options, listing);
    if (options.check)
        return printMediaCheck(options, listing);
    if (options.verify)
        return verifyMedia(options, &listing);
    if (!options.list.empty())
        return writeMediaList(options, listing);
    const QByteArray output =
        options.json ? mediaAsJson(session)
                     : TextTable(session.document().rowsOnShow(Tab::Media), mediaColumns).toBytes();
    return print(output) ? Done : Failed;
}

} // namespace

void addMediaCommand(CommandLine &program)
{
    auto options = std::make_shared<MediaOptions>();
    Subcommand command = program.add("media", "List the media files that the clips use");
    command.value("FILE", options->file, "The project; only --verify can do without");
    command.choice("--kind", options->kind, {"movie", "audio", "image"},
                   "Only files of this kind: movie, audio or image");
    command.value("--drive", options->drive,
                  "Only files below this folder; / stands for all that is on no mounted volume");
    command.repeated("--sequence", options->sequences,
                     "Only files that this sequence uses, by its number or name; may be repeated");
    command.value("--search", options->search, "Only files with this text in their path");
    command.flag("--missing", options->missing, "Only files that are missing");
    command.flag("--unused", options->unused, "Only files that no sequence uses");
    command.repeated("--map", options->mappings,
                     "FROM=TO: look for the files of the folder FROM in the folder TO; may be repeated");
    command.flag("--uses", options->uses, "List which frames of each file the sequences use, and where");
    command.value("--handles", options->handles, "With --uses, add this many frames to each end of a range");
    command.flag(
        "--check", options->check,
        "List the files that are missing or cannot be read and, with --verify, those whose size or date "
        "is not the one in that list; ends with status 3 when there is one");
    command.value(
        "--verify", options->verify,
        "A media hash list, whose files are read and compared with it; ends with status 3 unless all are "
        "the same");
    command.choice(
        "--list", options->list, {"csv", "rsync", "rsync0", "mhl"},
        "Write a list of the files: comma-separated values (csv), paths for rsync --files-from (rsync) and "
        "--from0 (rsync0), or a media hash list with checksums (mhl)");
    command.value("-o", options->output, "The list to write; \"-\" is standard output");
    command.value("--sort", options->sort, "Sort by a column, ID or ID:desc: " + sortChoices(mediaColumns));
    command.flag("--json", options->json, "Print one JSON document, with statistics and label texts");
    command.onRun([options] { return media(*options); });
}

} // namespace vantrell::cli
