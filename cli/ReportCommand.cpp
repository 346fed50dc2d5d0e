#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "effects/EffectColumns.h"
#include "markers/MarkerColumns.h"
#include "media/MediaColumns.h"
#include "report/PrintHelper.h"
#include "report/ReportGenerator.h"
#include "report/ReportTable.h"
#include "support/files/ProgramArguments.h"
#include "support/settings/UserDefaults.h"

#include <algorithm>
#include <memory>
#include <set>

namespace vantrell::cli
{

namespace
{

struct ReportOptions {
    std::string file;
    std::string tab;
    std::optional<std::string> columns;
    std::optional<std::string> rows;
    std::optional<std::string> title;
    std::string output;
    bool colorLabels = false;
    bool body = false;
    bool ownOwners = false;
};

/// The table of the report, and its columns and rows.
struct ReportChoice {
    Tab tab = Tab::Media;
    Columns columns;                     ///< of the table
    std::optional<QStringList> selected; ///< identifiers; nothing for the first columns
    std::vector<std::size_t> rows;       ///< ascending; empty for all
};

ReportChoice choiceOf(const std::string &tab)
{
    if (tab == "markers")
        return {Tab::Markers, markerColumns, {}, {}};
    return tab == "media" ? ReportChoice{Tab::Media, mediaColumns, {}, {}}
                          : ReportChoice{Tab::Effects, effectColumns, {}, {}};
}

/// False for an unknown column. Custom fields become columns at the end of the table, in order of appearance.
bool setColumns(ReportChoice &choice, const QString &list)
{
    choice.selected = list.split(QLatin1Char(','));
    for (const QString &id : *choice.selected) {
        const Column *column = findColumn(choice.columns, id);
        if (column && !column->title.isEmpty())
            continue;
        if (choice.tab != Tab::Markers || !isMarkerField(id))
            return false;
        choice.columns.push_back(markerFieldColumn(id, id));
    }
    return true;
}

/// False unless all are whole numbers. Negative ones are out of range for every list.
bool setRows(ReportChoice &choice, const QString &list)
{
    std::set<quint64> rows;
    for (const QString &text : list.split(QLatin1Char(','))) {
        const std::optional<quint64> row = wholeNumber(text);
        if (!row)
            return false;
        rows.insert(*row);
    }
    choice.rows.assign(rows.begin(), rows.end());
    return true;
}

/// Shows the whole list of the tab, unsorted, with the chosen rows selected. False when one is out of range.
bool showRows(ProjectSession &session, const ReportChoice &choice)
{
    MyDocument &document = session.document();
    RowView &view = document.rowView(choice.tab);
    if (!choice.rows.empty() && choice.rows.back() >= view.list().size())
        return false;
    document.viewState().selectedTab = choice.tab;
    view.show(view.list());
    session.selectRows(choice.tab, choice.rows);
    return true;
}

void selectColumns(ReportGenerator &report, const ReportChoice &choice)
{
    report.setPrintTable(choice.tab, choice.columns);
    if (!choice.selected)
        return;
    const PrintColumns &columns = report.printColumnArray();
    for (std::size_t i = 0; i < columns.size(); ++i)
        report.setColumnSelected(i, choice.selected->contains(columns[i].id));
}

Result<void> writeReport(const ReportGenerator &report, bool wholeDocument, const QString &output,
                         const QString &printHelper)
{
    const auto writer = [&](QIODevice &device) { return report.writeHTML(device, wholeDocument); };
    if (!printHelper.isEmpty())
        return PrintHelper::writePDF(printHelper, writer, ReportImages::standardFolder(), output);
    return writeOutput(output, writer);
}

int report(const ReportOptions &options)
{
    ReportChoice choice = choiceOf(options.tab);
    if (options.columns && !setColumns(choice, fromArgument(*options.columns)))
        return refuseUsage(QStringLiteral("--columns: the report has no such column."));
    if (options.rows && !setRows(choice, fromArgument(*options.rows)))
        return refuseUsage(QStringLiteral("--rows: the rows are whole numbers, separated by commas."));
    const QString output = fromArgument(options.output);
    QString printHelper;
    if (output.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) {
        printHelper = PrintHelper::find();
        if (printHelper.isEmpty())
            return fail(PrintHelper::missingMessage());
    }

    ProjectSession session(choice.tab == Tab::Markers ? Workbench::Inventories::Markers
                                                      : Workbench::Inventories::All);
    if (choice.tab == Tab::Markers)
        session.setOwnOwners(options.ownOwners);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    if (!showRows(session, choice))
        return fail(QStringLiteral("--rows: there is no such row."));
    UserDefaults settings(QString(), UserDefaults::Access::Volatile);
    if (options.title)
        settings.setValue(QStringLiteral("projectTitle"), fromArgument(*options.title));
    settings.setValue(QStringLiteral("printColorLabels"), options.colorLabels ? 1 : 0);
    ReportGenerator generator(session.document(), session.workbench().markerPresets(), &settings,
                              ReportImages::standardFolder());
    selectColumns(generator, choice);
    const Result<void> written = writeReport(generator, !options.body, output, printHelper);
    return written ? Done : fail(written.message());
}

} // namespace

void addReportCommand(CommandLine &program)
{
    auto options = std::make_shared<ReportOptions>();
    Subcommand command = program.add("report", "Write a report of a project as HTML or PDF");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.choice("--tab", options->tab, {"media", "effects", "markers"},
                   "What to report: media, effects or markers", Subcommand::Need::Required);
    command.value("--columns", options->columns,
                  "The columns, ID,ID,...; they come in the table's order. The first three unless given");
    command.value("--rows", options->rows,
                  "The rows, N,N,..., counted from 0 in the list of all. All unless given");
    command.value("--title", options->title,
                  "The report's title; the file's name without its extension unless given");
    command.flag("--print-color-labels", options->colorLabels,
                 "The colour of each marker behind its name, in words");
    command.flag("--body", options->body, "Only what stands in the body of the document");
    command.value("-o", options->output,
                  "The report to write, a PDF when its name ends in .pdf; \"-\" is standard output",
                  Subcommand::Need::Required);
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return report(*options); });
}

} // namespace vantrell::cli
