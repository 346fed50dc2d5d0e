#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "interchange/MarkerJson.h"
#include "interchange/NoteExporter.h"
#include "interchange/NoteImporter.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerKeys.h"
#include "support/files/ProgramArguments.h"

#include <QSet>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct MarkersOptions {
    std::string file;
    std::optional<std::string> color;
    std::optional<std::string> sequence;
    std::string search;
    std::optional<std::string> sort;
    bool json = false;
    bool ownOwners = false;
};

/// The custom fields that the markers have, in the order in which they come.
QStringList customFieldsOf(const RowList &markers)
{
    QSet<QString> seen;
    QStringList fields;
    for (const RowRecordPtr &marker : markers) {
        for (std::size_t i = 0; i < marker->size(); ++i) {
            const RecordKey key = marker->keyAt(i);
            const QString text = key.isConstant() ? QString() : key.text();
            if (isMarkerField(text) && !seen.contains(text)) {
                seen.insert(text);
                fields.append(text);
            }
        }
    }
    return fields;
}

QByteArray markersAsTable(const RowList &markers)
{
    Columns columns = markerColumns;
    for (const QString &field : customFieldsOf(markers))
        columns.push_back(markerFieldColumn(field, field));
    return TextTable(markers, columns).toBytes();
}

int markers(const MarkersOptions &options)
{
    std::optional<int> color;
    if (options.color) {
        color = colorChoice(*options.color);
        if (!color)
            return refuseUsage(QStringLiteral("--color: there is no such colour."));
    }
    std::vector<SortDescriptor> sort;
    if (options.sort) {
        const std::optional<SortDescriptor> descriptor =
            readSortOption(*options.sort, markerColumns, MarkerKey::customPrefix);
        if (!descriptor)
            return refuseUsage(QStringLiteral("--sort: the marker table has no such column."));
        sort.push_back(*descriptor);
    }
    ProjectSession session(Workbench::Inventories::Markers);
    session.setOwnOwners(options.ownOwners);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    session.document().rowView(Tab::Markers).setSortDescriptors(sort);
    ViewState &view = session.document().viewState();
    view.selectedTab = Tab::Markers;
    view.markerFilter = color ? *color + 1 : 0;
    session.workbench().markerInventory().populateFilteredMarkerData();
    NoteExporter::Filter filter;
    filter.search = fromArgument(options.search);
    if (options.sequence) {
        const NoteImporter importer(session.document(), session.workbench().markerEditor());
        filter.sequence = importer.sequenceNamed(fromArgument(*options.sequence));
        if (!filter.sequence) {
            complain(QStringLiteral("There is no sequence \"%1\".").arg(fromArgument(*options.sequence)));
            return Failed;
        }
    }
    const RowList rows =
        NoteExporter(session.document()).markers(session.document().rowsOnShow(Tab::Markers), filter);
    return print(options.json ? MarkerJson(rows).text() : markersAsTable(rows)) ? Done : Failed;
}

} // namespace

void addMarkersCommand(CommandLine &program)
{
    auto options = std::make_shared<MarkersOptions>();
    Subcommand command = program.add("markers", "List the markers of a project");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.value("--color", options->color, colorHelp);
    command.value("--sequence", options->sequence, "Only markers of one sequence, by name or number");
    command.value("--search", options->search, "Only markers that hold this text");
    command.value("--sort", options->sort,
                  "Sort the markers of one colour by a column, ID or ID:desc; without --color they "
                  "come in document order. Columns: " +
                      sortChoices(markerColumns) + ", QVCUSTOM_...");
    command.flag("--json", options->json, "Print one JSON document");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return markers(*options); });
}

} // namespace vantrell::cli
