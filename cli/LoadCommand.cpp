#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProjectSession.h"
#include "rows/json/JsonText.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <memory>

namespace vantrell::cli
{

namespace
{

struct LoadOptions {
    std::string file;
    bool noInventories = false;
};

int load(const LoadOptions &options)
{
    ProjectSession session(options.noInventories ? Workbench::Inventories::None
                                                 : Workbench::Inventories::All);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    MyDocument &document = session.document();
    Json counts;
    counts["xmlType"] = document.xmlType();
    counts["sequences"] = document.sequenceMenu()->size() - 1;
    if (!options.noInventories) {
        counts["media"] = document.mediaArray().size();
        counts["effects"] = document.effectArray().size();
        counts["markers"] = document.markerArray().size();
    }
    return print(toBytes(counts)) ? Done : Failed;
}

} // namespace

void addLoadCommand(CommandLine &program)
{
    auto options = std::make_shared<LoadOptions>();
    Subcommand command = program.add("load", "Load a project and print what it holds, in numbers");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.flag("--no-inventories", options->noInventories, "Only parse the file and list its sequences");
    command.onRun([options] { return load(*options); });
}

} // namespace vantrell::cli
