#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "compare/SequenceComparison.h"
#include "rows/json/JsonText.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct CompareOptions : CutOptions {
    bool exitCode = false;
    bool json = false;
};

struct Compared : CutPair {
    std::vector<EventChange> changes;

    const TrackEvent *oldEvent(const EventChange &change) const
    {
        return change.before ? &before.events[*change.before] : nullptr;
    }
    const TrackEvent *newEvent(const EventChange &change) const
    {
        return change.after ? &after.events[*change.after] : nullptr;
    }
    /// As it is in the new sequence; as it was when it was removed.
    const TrackEvent &event(const EventChange &change) const
    {
        return change.after ? *newEvent(change) : *oldEvent(change);
    }
};

Json sequenceAsJson(const SequenceEvents &sequence)
{
    return {{"name", jsonText(sequence.name)},
            {"uuid", sequence.uuid ? Json(jsonText(*sequence.uuid)) : Json()},
            {"duration", sequence.duration}};
}

Json changeAsJson(const Compared &compared, const EventChange &change)
{
    const TrackEvent &event = compared.event(change);
    Json json = {{"kind", jsonText(change.kindName())},
                 {"track", jsonText(event.trackName())},
                 {"name", jsonText(event.name)}};
    if (event.kind == TrackEvent::Kind::Clip) {
        const SequenceEvents &sequence = change.after ? compared.after : compared.before;
        json["file"] = jsonText(sequence.sourceOf(event)->label());
    }
    if (const TrackEvent *old = compared.oldEvent(change))
        json["old"] = {old->start, old->end};
    if (const TrackEvent *now = compared.newEvent(change))
        json["new"] = {now->start, now->end};
    if (change.kind == EventChange::Kind::Moved)
        json["by"] = change.by;
    return json;
}

QByteArray comparisonAsJson(const Compared &compared)
{
    Json changes = Json::array();
    for (const EventChange &change : compared.changes)
        changes.push_back(changeAsJson(compared, change));
    return toBytes(Json{{"old", sequenceAsJson(compared.before)},
                        {"new", sequenceAsJson(compared.after)},
                        {"changes", std::move(changes)}});
}

QString rangeText(const TrackEvent *event)
{
    return event ? QStringLiteral("%1-%2").arg(event->start).arg(event->end) : QString();
}

/// What has changed, a row each; neighbours that moved together share one.
QByteArray comparisonAsTable(const Compared &compared)
{
    TextTable table({QStringLiteral("Change"), QStringLiteral("Track"), QStringLiteral("Name"),
                     QStringLiteral("Old"), QStringLiteral("New"), QStringLiteral("By")});
    const std::vector<EventChange> &changes = compared.changes;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const EventChange &change = changes[i];
        if (change.kind == EventChange::Kind::Unchanged)
            continue;
        const TrackEvent &event = compared.event(change);
        QString name = event.name;
        QString by;
        std::size_t last = i;
        if (change.kind == EventChange::Kind::Moved) {
            by = (change.by > 0 ? QStringLiteral("+%1") : QStringLiteral("%1")).arg(change.by);
            while (last + 1 < changes.size() && changes[last + 1].kind == change.kind &&
                   changes[last + 1].by == change.by &&
                   compared.event(changes[last + 1]).trackName() == event.trackName())
                ++last;
        }
        QString before = rangeText(compared.oldEvent(change));
        QString after = rangeText(compared.newEvent(change));
        if (last > i) {
            name += QStringLiteral(" and %1 more").arg(last - i);
            before = QStringLiteral("%1-%2")
                         .arg(compared.oldEvent(change)->start)
                         .arg(compared.oldEvent(changes[last])->end);
            after = QStringLiteral("%1-%2")
                        .arg(compared.newEvent(change)->start)
                        .arg(compared.newEvent(changes[last])->end);
        }
        table.addRow({change.kindName(), event.trackName(), name, before, after, by});
        i = last;
    }
    return table.toBytes();
}

int compare(const CompareOptions &options)
{
    ProjectSession before(Workbench::Inventories::None);
    ProjectSession after(Workbench::Inventories::None);
    std::optional<CutPair> cuts = openCuts(options, before, after);
    if (!cuts)
        return Failed;
    Compared compared{std::move(*cuts), {}};
    compared.changes =
        changesBetween(compared.before, compared.after, EventMatch(compared.before, compared.after));
    if (!print(options.json ? comparisonAsJson(compared) : comparisonAsTable(compared)))
        return Failed;
    const bool isChanged =
        std::any_of(compared.changes.begin(), compared.changes.end(),
                    [](const EventChange &change) { return change.kind != EventChange::Kind::Unchanged; });
    return isChanged && options.exitCode ? Differs : Done;
}

} // namespace

void addCompareCommand(CommandLine &program)
{
    auto options = std::make_shared<CompareOptions>();
    Subcommand command = program.add("compare", "Tell what changed from one cut to another");
    addCutOptions(command, *options, "The project with the old cut");
    command.flag("--exit-code", options->exitCode, "End with status 3 when anything has changed");
    command.flag("--json", options->json, "Print one JSON document");
    command.onRun([options] { return compare(*options); });
}

} // namespace vantrell::cli
