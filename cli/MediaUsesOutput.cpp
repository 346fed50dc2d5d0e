#include "cli/Console.h"
#include "cli/MediaOptions.h"
#include "cli/TextTable.h"
#include "media/MediaKeys.h"
#include "rows/json/JsonText.h"

#include <nlohmann/json.hpp>

#include <unordered_set>

namespace vantrell::cli
{

namespace
{

struct ListedUse {
    const MediaUses::File &file;
    QString state;
};

/// The files of the rows on show, each once.
std::vector<ListedUse> listedUses(const MediaListing &listing, const std::vector<MediaUses::File> &files)
{
    std::vector<ListedUse> listed;
    std::unordered_set<std::size_t> seen;
    auto withoutPath = listing.uses->indexesWithoutPath().begin();
    for (const RowRecordPtr &record : listing.session.document().rowsOnShow(Tab::Media)) {
        const bool hasPath = record->contains(MediaKey::rawpath);
        const auto index = hasPath ? listing.uses->indexOf(record->get(MediaKey::rawpath))
                           : withoutPath != listing.uses->indexesWithoutPath().end()
                               ? std::optional(*withoutPath++)
                               : std::nullopt;
        if (!index || !seen.insert(*index).second)
            continue;
        const MediaUses::File &file = files[*index];
        const char *const state = record->get(MediaKey::missing) ? "missing"
                                  : file.uses > 0                ? "used"
                                                                 : "unused";
        listed.push_back({file, QString::fromLatin1(state)});
    }
    return listed;
}

Json usesAsJson(const std::vector<ListedUse> &listed)
{
    Json list = Json::array();
    for (const ListedUse &use : listed) {
        Json ranges = Json::array();
        for (const FrameRange &range : use.file.ranges)
            ranges.push_back({range.in, range.out});
        Json json{{"path", jsonText(use.file.path)},
                  {"ranges", std::move(ranges)},
                  {"used", FrameRanges::total(use.file.ranges)}};
        if (use.file.length)
            json["length"] = *use.file.length;
        json["uses"] = use.file.uses;
        json["sequences"] = use.file.sequences;
        json["state"] = jsonText(use.state);
        list.push_back(std::move(json));
    }
    return Json{{"files", std::move(list)}};
}

QByteArray usesAsTable(const std::vector<ListedUse> &listed)
{
    TextTable table(
        QStringLiteral("File,State,Uses,Used,Length,Ranges,Sequences,Notes").split(QLatin1Char(',')));
    for (const auto &[file, state] : listed) {
        QStringList ranges;
        for (const FrameRange &range : file.ranges)
            ranges.append(QStringLiteral("%1-%2").arg(range.in).arg(range.out));
        QStringList sequences;
        for (const int index : file.sequences)
            sequences.append(QString::number(index));
        QStringList notes;
        if (file.isStill)
            notes.append(QStringLiteral("still"));
        if (file.isDuplicate)
            notes.append(QStringLiteral("duplicate"));
        table.addRow(
            {file.path, state, QString::number(file.uses), QString::number(FrameRanges::total(file.ranges)),
             file.length ? QString::number(*file.length) : QString(), ranges.join(QStringLiteral(", ")),
             sequences.join(QStringLiteral(", ")), notes.join(QStringLiteral(", "))});
    }
    return table.toBytes();
}

} // namespace

int printMediaUses(const MediaOptions &options, const MediaListing &listing)
{
    const std::vector<MediaUses::File> files = listing.uses->files(listing.choice);
    const std::vector<ListedUse> listed = listedUses(listing, files);
    return print(options.json ? toBytes(usesAsJson(listed)) : usesAsTable(listed)) ? Done : Failed;
}

} // namespace vantrell::cli
