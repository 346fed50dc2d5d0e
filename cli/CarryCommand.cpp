#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/JsonText.h"
#include "cli/ProjectOutput.h"
#include "cli/ProjectSession.h"
#include "cli/SequenceChoice.h"
#include "cli/TextTable.h"
#include "compare/MarkerCarrier.h"
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

struct CarryOptions {
    std::string before;
    std::string after;
    std::vector<std::string> sequences;
    std::optional<std::string> output;
    bool preview = false;
    bool json = false;
    bool yes = false;
};

bool hasPlace(const CarriedMarker &marker)
{
    return marker.place.state != MarkerPlace::State::Gone;
}

QByteArray carriedAsJson(const std::vector<CarriedMarker> &markers)
{
    Json list = Json::array();
    for (const CarriedMarker &marker : markers) {
        Json json = {{"name", jsonText(marker.name)}, {"old", marker.place.oldFrame}};
        if (hasPlace(marker))
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
        const MarkerPlace &place = marker.place;
        table.addRow({marker.stateName(), marker.name, QString::number(place.oldFrame),
                      hasPlace(marker) ? QString::number(place.newFrame) : QString(), place.file,
                      place.sourceFrame ? QString::number(*place.sourceFrame) : QString()});
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
    if (!before.open(fromArgument(options.before)) || !after.open(fromArgument(options.after)))
        return Failed;
    const auto pair = chooseSequences(options.sequences, before.document(), after.document());
    if (!pair)
        return Failed;
    const auto eventsOf = [](const MyDocument &document, std::int64_t item) {
        return SequenceEvents::read((*document.sequenceMenu())[std::size_t(item)].element);
    };
    const SequenceEvents oldCut = eventsOf(before.document(), pair->before);
    const SequenceEvents newCut = eventsOf(after.document(), pair->after);
    std::vector<CarriedMarker> markers = MarkerCarrier::plan(oldCut, newCut);
    const bool ownsOutput = options.output == "-";
    if (!options.preview) {
        const std::size_t added = MarkerCarrier::carry(markers, newCut, after.document(),
                                                       after.workbench().markerEditor(), pair->after);
        if (!writeProject(after.document(), fromArgument(*options.output)))
            return Failed;
        complain(QStringLiteral("%1 of %2 markers added").arg(added).arg(markers.size()));
    }
    const bool isPrinted = !ownsOutput && (options.preview || options.json);
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
    command.value("OLD", options->before, "The project with the old cut and its markers",
                  Subcommand::Need::Required);
    command.value("NEW", options->after, "The project with the new cut, which may be the same",
                  Subcommand::Need::Required);
    command.pair("--sequence", options->sequences,
                 "The sequence of each, by menu index or name; the first of OLD, and that of the same name "
                 "or the first of NEW, when not given");
    command.value("-o", options->output, "The project to write; \"-\" is standard output");
    command.flag("--preview", options->preview, "Only tell where the markers would go");
    command.flag("--json", options->json, "Print one JSON document");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.onRun([options] { return carry(*options); });
}

} // namespace vantrell::cli
