#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "compare/MarkerCarrier.h"
#include "rows/json/JsonText.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct CarryOptions : CutOptions {
    std::optional<std::string> output;
    bool preview = false;
    bool json = false;
    bool yes = false;
};

bool isCarried(const CarriedMarker &marker)
{
    return marker.place.state != MarkerPlace::State::Gone;
}

QByteArray carriedAsJson(const std::vector<CarriedMarker> &markers)
{
    Json list = Json::array();
    for (const CarriedMarker &marker : markers) {
        Json json = {{"name", jsonText(marker.name)}, {"old", marker.place.oldFrame}};
        if (isCarried(marker))
            json["new"] = marker.place.newFrame;
        json["state"] = jsonText(marker.stateName());
        if (!marker.place.file.isEmpty())
            json["file"] = jsonText(marker.place.file);
        if (marker.place.sourceFrame)
            json["sourceFrame"] = *marker.place.sourceFrame;
        list.push_back(std::move(json));
    }
    return toBytes(Json{{"markers", std::move(list)}});
}

QByteArray carriedAsTable(const std::vector<CarriedMarker> &markers)
{
    TextTable table({QStringLiteral("State"), QStringLiteral("Name"), QStringLiteral("Old"),
                     QStringLiteral("New"), QStringLiteral("File"), QStringLiteral("Source frame")});
    for (const CarriedMarker &marker : markers) {
        const MarkerPlace &target = marker.place;
        table.addRow({marker.stateName(), marker.name, QString::number(target.oldFrame),
                      isCarried(marker) ? QString::number(target.newFrame) : QString(), target.file,
                      target.sourceFrame ? QString::number(*target.sourceFrame) : QString()});
    }
    return table.toBytes();
}

int carry(const CarryOptions &options)
{
    if (options.preview && options.output)
        return refuseUsage(QStringLiteral("--preview writes no project: -o does not go with it."));
    if (!options.preview && !options.output)
        return refuseUsage(QStringLiteral("-o or --preview is required."));
    if (options.yes)
        QVAlert::setPresenter(std::make_shared<HeadlessAlertPresenter>(true));
    ProjectSession before(Workbench::Inventories::None);
    ProjectSession after(options.preview ? Workbench::Inventories::None : Workbench::Inventories::Markers);
    const std::optional<CutPair> cuts = openCuts(options, before, after);
    if (!cuts)
        return Failed;
    std::vector<CarriedMarker> markers = MarkerCarrier::plan(cuts->before, cuts->after);
    if (!options.preview) {
        const std::size_t added = MarkerCarrier::carry(markers, cuts->after, after.document(),
                                                       after.workbench().markerEditor(), cuts->afterItem);
        const QString output = fromArgument(*options.output);
        const bool replacesOld = output != QLatin1String("-") && !after.document().knownFile()->isAt(output);
        if (replacesOld) {
            const Result<void> may = after.document().confirmReplacing(before.document(), output);
            if (!may)
                return fail(may.message());
        }
        if (!writeProject(after.document(), output))
            return Failed;
        complain(QStringLiteral("%1 of %2 markers added").arg(added).arg(markers.size()));
    }
    const bool isPrinted = options.output != "-" && (options.preview || options.json);
    if (isPrinted && !print(options.json ? carriedAsJson(markers) : carriedAsTable(markers)))
        return Failed;
    return Done;
}

} // namespace

void addCarryCommand(CommandLine &program)
{
    auto options = std::make_shared<CarryOptions>();
    Subcommand command =
        program.add("carry", "Carry the markers of one cut to where their picture is in another");
    addCutOptions(command, *options, "The project with the old cut and its markers");
    command.value("-o", options->output, "The project to write; \"-\" is standard output");
    command.flag("--preview", options->preview, "Only tell where the markers would go");
    command.flag("--json", options->json, "Print one JSON document");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.onRun([options] { return carry(*options); });
}

} // namespace vantrell::cli
