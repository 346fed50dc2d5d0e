#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/NoteCommands.h"
#include "cli/OptionValues.h"
#include "cli/TextTable.h"
#include "interchange/ImportedMarker.h"
#include "interchange/MarkerListImporter.h"
#include "interchange/QVFCPXMLParser.h"
#include "rows/RecordText.h"
#include "rows/json/RecordJson.h"
#include "support/files/ProgramArguments.h"

#include <QFileInfo>

#include <memory>

namespace vantrell::cli
{

namespace
{

struct MarkerListOptions {
    std::string file;
    std::string format;
    std::string relativeHour = "-1";
    bool seconds = false;
    bool stripDuplicates = false;
    bool allStorylines = false;
    bool json = false;
};

QByteArray listAsJson(const RowList &rows)
{
    XmlLocationPaths paths;
    return toBytes(recordsToJson(rows, paths));
}

std::vector<RecordKey> listColumns(const MarkerListOptions &options)
{
    using namespace ImportedMarkerKey;
    if (options.format == "fcp")
        return {name, comment, startTimecode, durationTimecode, color, parentName, parentType};
    if (options.format == "avid")
        return {name, comment, startTimecode, color};
    if (options.seconds)
        return {name, seconds};
    return {name, startTimecode};
}

QByteArray listAsTable(const RowList &rows, const std::vector<RecordKey> &columns)
{
    QStringList titles;
    for (const RecordKey &column : columns)
        titles.append(column.text());
    TextTable table(titles);
    for (const RowRecordPtr &row : rows) {
        QStringList cells;
        for (const RecordKey &column : columns) {
            const RecordValue *value = row->find(column);
            cells.append(value ? plainText(*value) : QString());
        }
        table.addRow(cells);
    }
    return table.toBytes();
}

/// The rows; nullopt, after a message, when the file cannot be read.
std::optional<RowList> read(const QString &path, const MarkerListOptions &options, qint64 relativeHour)
{
    std::optional<RowList> rows;
    if (options.format == "fcpx")
        rows = QVFCPXMLParser::markersFromXMLFile(path, !options.seconds, options.stripDuplicates,
                                                  !options.allStorylines, relativeHour);
    else
        rows = MarkerListImporter::rowsOfFile(path, fromArgument(options.format));
    if (rows && !rows->empty())
        return rows;
    const QFileInfo file(path);
    if (!file.exists()) {
        complain(QStringLiteral("The file \"%1\" does not exist.").arg(path));
    } else if (file.isDir()) {
        complain(QStringLiteral("\"%1\" is a folder, not a marker list.").arg(path));
    } else if (!file.isReadable()) {
        complain(QStringLiteral("The file \"%1\" may not be read.").arg(path));
    } else if (!rows) {
        complain(QStringLiteral("The file \"%1\" holds no text that could be a marker list.").arg(path));
    } else {
        return rows;
    }
    return std::nullopt;
}

int markerList(const MarkerListOptions &options, bool hasOptionsOfFcpx)
{
    if (hasOptionsOfFcpx && options.format != "fcpx")
        return refuseUsage(QStringLiteral("--seconds, --strip-duplicates, --all-storylines and "
                                          "--relative-hour go with --format fcpx only."));
    if (options.format == "auto")
        return listNotes(options.file, options.json);
    const QString hourText = fromArgument(options.relativeHour);
    const std::optional<quint64> hour = wholeNumber(hourText);
    if (!hour)
        return refuseUsage(QStringLiteral("--relative-hour: \"%1\" is no whole number.").arg(hourText));
    const std::optional<RowList> rows = read(fromArgument(options.file), options, qint64(*hour));
    if (!rows)
        return Failed;
    return print(options.json ? listAsJson(*rows) : listAsTable(*rows, listColumns(options))) ? Done : Failed;
}

} // namespace

void addMarkerListCommand(CommandLine &program)
{
    auto options = std::make_shared<MarkerListOptions>();
    Subcommand command = program.add("marker-list", "List the markers of another system's marker list file");
    command.value("LIST", options->file, "The marker list", Subcommand::Need::Required);
    command.choice("--format", options->format, {"auto", "fcp", "avid", "fcpx"},
                   "auto for notes in any known form; fcp, avid or fcpx", Subcommand::Need::Required);
    command.flag("--seconds", options->seconds, "Seconds in place of timecodes (fcpx)");
    command.flag("--strip-duplicates", options->stripDuplicates,
                 "Only the first of the markers at one place (fcpx)");
    command.flag("--all-storylines", options->allStorylines,
                 "Connected clips and secondary storylines too (fcpx)");
    command.value("--relative-hour", options->relativeHour,
                  "The hour that becomes 0; lower ones are raised by it (fcpx)");
    command.flag("--json", options->json, "Print one JSON document");
    command.onRun([options, command] {
        const bool hasOptionsOfFcpx = command.isGiven("--seconds") || command.isGiven("--strip-duplicates") ||
                                      command.isGiven("--all-storylines") ||
                                      command.isGiven("--relative-hour");
        return markerList(*options, hasOptionsOfFcpx);
    });
}

} // namespace vantrell::cli
