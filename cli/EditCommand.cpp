#include "bridge/OutputDocument.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/EditScript.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "rows/json/RecordJson.h"
#include "support/alerts/QVAlert.h"
#include "support/files/FileUtilities.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFileInfo>

#include <memory>
#include <optional>

namespace vantrell::cli
{

namespace
{

struct EditOptions {
    std::string file;
    std::string script;
    std::optional<std::string> output;
    std::optional<std::string> outputBin;
    bool yes = false;
    bool quiet = false;
    bool ownOwners = false;
};

const QString standardStream = QStringLiteral("-");

/// Whether two paths lead to the same file, existing or not.
bool isSameFile(const QString &a, const QString &b)
{
    const auto target = [](const QString &path) {
        QFileInfo info(path);
        for (int links = 0; links < 40 && info.isSymLink(); ++links)
            info.setFile(info.symLinkTarget());
        const QString folder = info.dir().canonicalPath(); // empty when there is none
        return folder.isEmpty() ? info.absoluteFilePath() : folder + QLatin1Char('/') + info.fileName();
    };
    return target(a) == target(b) || FileUtilities::isSameFile(a, b);
}

QByteArray resultOf(MyDocument &document)
{
    XmlLocationPaths paths;
    Json uuids = Json::array();
    for (const QString &uuid : document.modifiedSequenceUUIDs().value_or(QStringList()))
        uuids.push_back(jsonText(uuid));
    return toBytes(Json{{"modifiedSequenceUUIDs", std::move(uuids)},
                        {"markers", recordsToJson(document.markerArray(), paths)},
                        {"effects", recordsToJson(document.effectArray(), paths)}});
}

bool writeBin(MyDocument &document, const QString &path)
{
    OutputDocument bin(document);
    if (path == standardStream)
        return print(bin.generateXMLOutput().toUtf8());
    const Result<void> written = bin.writeChangedSequences(path);
    if (!written)
        complain(written.message());
    return written.isOk();
}

int edit(const EditOptions &options)
{
    const QString file = fromArgument(options.file);
    const QString output = fromArgument(options.output.value_or(""));
    const QString outputBin = fromArgument(options.outputBin.value_or(""));
    const bool collides = !outputBin.isEmpty() && (isSameFile(outputBin, file) ||
                                                   (!output.isEmpty() && isSameFile(outputBin, output)));
    if (collides)
        return refuseUsage(QStringLiteral("--output-bin: the bin needs a place of its own."));
    const auto presenter = std::make_shared<HeadlessAlertPresenter>(options.yes);
    QVAlert::setPresenter(presenter);
    const Result<EditScript> script = readEditScript(fromArgument(options.script));
    if (!script)
        return fail(script.message());
    ProjectSession session(Workbench::Inventories::All);
    session.setOwnOwners(options.ownOwners);
    if (!session.open(file) || !applyScript(script.value(), session, *presenter))
        return Failed;
    if (options.output && !writeProject(session.document(), output))
        return Failed;
    if (options.outputBin && !writeBin(session.document(), outputBin))
        return Failed;
    const bool silent = options.quiet || output == standardStream || outputBin == standardStream;
    return silent || print(resultOf(session.document())) ? Done : Failed;
}

} // namespace

void addEditCommand(CommandLine &program)
{
    auto options = std::make_shared<EditOptions>();
    Subcommand command = program.add("edit", "Change the markers and effects of a project");
    command.value("FILE", options->file, "The project", Subcommand::Need::Required);
    command.value("--script", options->script, "The operations, a JSON file; \"-\" is standard input",
                  Subcommand::Need::Required);
    command.value("-o", options->output, "The project to write; \"-\" is standard output");
    command.value("--output-bin", options->outputBin,
                  "The document of the changed sequences to write; \"-\" is standard output");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.flag("--quiet", options->quiet, "Print no result");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return edit(*options); });
}

} // namespace vantrell::cli
