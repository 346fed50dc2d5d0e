#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/MarkerChoices.h"
#include "cli/MarkerJson.h"
#include "cli/ProjectSession.h"
#include "cli/SortOption.h"
#include "cli/TextTable.h"
#include "markers/MarkerColors.h"
#include "markers/MarkerColumns.h"
#include "markers/MarkerTableValues.h"
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
    std::optional<std::string> sort;
    bool json = false;
    bool ownOwners = false;
};

QString yesOrEmpty(const RowRecord &marker, TypedKey<std::int64_t> flag)
{
    return marker.get(flag) == 1 ? QStringLiteral("yes") : QString();
}

QString markersCellText(const RowRecord &marker, RecordKey key)
{
    if (key == MarkerKey::color) {
        const std::int64_t color = marker.get(MarkerKey::color);
        const bool known = color >= 0 && color < std::int64_t(MarkerColors::count);
        return known ? MarkerColors::table()[std::size_t(color)].label : QString::number(color);
    }
    if (key == MarkerKey::in)
        return MarkerTableValues::inText(marker);
    if (key == MarkerKey::out)
        return MarkerTableValues::outText(marker);
    if (key == MarkerKey::sequence)
        return marker.get(MarkerKey::sequenceName);
    if (key == MarkerKey::clip)
        return marker.get(MarkerKey::clipName);
    for (const TypedKey<std::int64_t> &flag :
         {MarkerKey::chapter, MarkerKey::compression, MarkerKey::scoring}) {
        if (key == flag)
            return yesOrEmpty(marker, flag);
    }
    return marker.text(key);
}

/// The custom fields that the markers have, in the order in which they come.
QStringList customFieldsOf(const RowList &markers)
{
    QSet<QString> seen;
    QStringList fields;
    for (const RowRecordPtr &marker : markers) {
        for (std::size_t i = 0; i < marker->size(); ++i) {
            const RecordKey key = marker->keyAt(i);
            const QString text = key.isConstant() ? QString() : key.text();
            if (text.startsWith(MarkerKey::customPrefix) && !seen.contains(text)) {
                seen.insert(text);
                fields.append(text);
            }
        }
    }
    return fields;
}

QByteArray markersAsTable(const RowList &markers)
{
    std::vector<RecordKey> columns;
    QStringList titles;
    for (const TableColumn &column : markerColumns) {
        columns.emplace_back(column.identifier);
        titles.append(column.title.isEmpty() ? QStringLiteral("Color") : column.title);
    }
    for (const QString &field : customFieldsOf(markers)) {
        columns.emplace_back(field);
        titles.append(field);
    }
    TextTable table(titles);
    for (const RowRecordPtr &marker : markers) {
        QStringList cells;
        for (const RecordKey &column : columns)
            cells.append(markersCellText(*marker, column));
        table.addRow(cells);
    }
    return table.toBytes();
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
    session.setSortDescriptors(Tab::Markers, sort);
    ViewState &view = session.document().viewState();
    view.selectedTab = Tab::Markers;
    view.markerFilter = color ? *color + 1 : 0;
    session.workbench().markerInventory().populateFilteredMarkerData();
    const RowList &rows = session.document().rowsOnShow(Tab::Markers);
    return print(options.json ? markersAsJson(rows) : markersAsTable(rows)) ? Done : Failed;
}

} // namespace

void addMarkersCommand(CommandLine &program)
{
    auto options = std::make_shared<MarkersOptions>();
    Subcommand command = program.add("markers", "List the markers of a project");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.value("--color", options->color, colorHelp);
    command.value("--sort", options->sort,
                  "Sort the markers of one colour by a column, ID or ID:desc; without --color they "
                  "come in document order. Columns: " +
                      sortChoices(markerColumns) + ", QVCUSTOM_...");
    command.flag("--json", options->json, "Print one JSON document");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return markers(*options); });
}

} // namespace vantrell::cli
