#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "effects/EffectColumns.h"
#include "rows/json/RecordJson.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct EffectsOptions {
    std::string file;
    std::string type = "all";
    std::string search;
    std::optional<std::string> sort;
    bool showDefaults = false;
    bool json = false;
};

/// Names of the items of the type menu, in order.
const std::vector<std::string> typeNames{"all",          "filter",    "video-filter",
                                         "audio-filter", "generator", "transition"};

QByteArray effectsAsJson(ProjectSession &session)
{
    XmlLocationPaths paths;
    return toBytes(Json{{"effects", recordsToJson(session.document().rowsOnShow(Tab::Effects), paths)},
                        {"status", jsonText(session.document().label(Label::EffectStatus))}});
}

int effects(const EffectsOptions &options)
{
    std::vector<SortDescriptor> sort;
    if (options.sort) {
        const std::optional<SortDescriptor> descriptor = readSortOption(*options.sort, effectColumns);
        if (!descriptor)
            return refuseUsage(QStringLiteral("--sort: the effects table has no such column."));
        sort.push_back(*descriptor);
    }
    ProjectSession session(Workbench::Inventories::All);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    session.document().rowView(Tab::Effects).setSortDescriptors(sort);
    ViewState &view = session.document().viewState();
    view.selectedTab = Tab::Effects;
    view.effectType = int(std::find(typeNames.begin(), typeNames.end(), options.type) - typeNames.begin());
    view.effectShowDefaults = options.showDefaults;
    view.effectSearch = fromArgument(options.search);
    session.workbench().effectInventory().populateFilteredEffectData();
    const QByteArray output =
        options.json ? effectsAsJson(session)
                     : TextTable(session.document().rowsOnShow(Tab::Effects), effectColumns).toBytes();
    return print(output) ? Done : Failed;
}

} // namespace

void addEffectsCommand(CommandLine &program)
{
    auto options = std::make_shared<EffectsOptions>();
    Subcommand command = program.add("effects", "List the filters and generators of a project");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.choice("--type", options->type, typeNames,
                   "Only these: all, filter, video-filter, audio-filter, generator or transition");
    command.value("--search", options->search, "Only effects with this text in their name");
    command.flag("--show-defaults", options->showDefaults,
                 "Also the effects that every clip has, such as Opacity");
    command.value("--sort", options->sort, "Sort by a column, ID or ID:desc: " + sortChoices(effectColumns));
    command.flag("--json", options->json, "Print one JSON document, with the status text");
    command.onRun([options] { return effects(*options); });
}

} // namespace vantrell::cli
