#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Numbers.h"
#include "cli/ProjectSession.h"
#include "cli/RecordJson.h"
#include "cli/SortOption.h"
#include "cli/TextTable.h"
#include "media/MediaColumns.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <array>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct MediaOptions {
    std::string file;
    std::string kind;
    std::string drive;
    std::optional<std::string> sort;
    bool json = false;
};

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

int media(const MediaOptions &options)
{
    std::vector<SortDescriptor> sort;
    if (options.sort) {
        const std::optional<SortDescriptor> descriptor = readSortOption(*options.sort, mediaColumns);
        if (!descriptor)
            return refuseUsage(QStringLiteral("--sort: the media table has no such column."));
        sort.push_back(*descriptor);
    }
    ProjectSession session(Workbench::Inventories::All);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    session.document().rowView(Tab::Media).setSortDescriptors(sort);
    ViewState &view = session.document().viewState();
    view.selectedTab = Tab::Media;
    view.mediaKind = menuItemOfKind(options.kind);
    view.mediaDrive = driveOf(options.drive);
    session.workbench().mediaFilter().populateFilteredMediaData();
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
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.choice("--kind", options->kind, {"movie", "audio", "image"},
                   "Only files of this kind: movie, audio or image");
    command.value("--drive", options->drive,
                  "Only files below this folder; / stands for all that is on no mounted volume");
    command.value("--sort", options->sort, "Sort by a column, ID or ID:desc: " + sortChoices(mediaColumns));
    command.flag("--json", options->json, "Print one JSON document, with statistics and label texts");
    command.onRun([options] { return media(*options); });
}

} // namespace vantrell::cli
