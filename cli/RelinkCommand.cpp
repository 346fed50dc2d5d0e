#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/ProjectSession.h"
#include "cli/TextTable.h"
#include "handover/Relinker.h"
#include "rows/json/JsonText.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProgramArguments.h"

#include <nlohmann/json.hpp>

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <iterator>
#include <memory>

namespace vantrell::cli
{

namespace
{

struct RelinkOptions {
    std::string file;
    std::vector<std::string> folders;
    std::string output;
    bool preview = false;
    bool json = false;
    bool yes = false;
};

const char *stateOf(const RelinkMatch &match)
{
    return match.candidates.empty() ? "missing" : match.candidates.size() == 1 ? "found" : "several";
}

QByteArray relinkAsJson(const std::vector<RelinkMatch> &matches, std::size_t relinked)
{
    Json files = Json::array();
    for (const RelinkMatch &match : matches) {
        Json json{{"old", jsonText(match.missing.url)}};
        if (match.candidates.size() == 1)
            json["new"] = jsonText(match.candidates.front().file.path);
        json["state"] = stateOf(match);
        if (match.candidates.size() > 1) {
            json["candidates"] = Json::array();
            for (const RelinkCandidate &candidate : match.candidates)
                json["candidates"].push_back(jsonText(candidate.file.path));
        }
        files.push_back(std::move(json));
    }
    return toBytes(Json{{"files", std::move(files)}, {"relinked", relinked}});
}

QByteArray relinkAsTable(const std::vector<RelinkMatch> &matches)
{
    TextTable table(
        {QStringLiteral("File"), QStringLiteral("State"), QStringLiteral("Found"), QStringLiteral("Match")});
    for (const RelinkMatch &match : matches) {
        const QString state = QString::fromLatin1(stateOf(match));
        if (match.candidates.empty())
            table.addRow({match.missing.url, state, QString(), QString()});
        for (const RelinkCandidate &candidate : match.candidates)
            table.addRow({match.missing.url, state, candidate.file.path, FileNames::textOf(candidate.name)});
    }
    return table.toBytes();
}

/// The folders as absolute paths; empty, after a message, when one of them is none.
QStringList searchFolders(const std::vector<std::string> &arguments)
{
    QStringList folders;
    for (const QString &folder : fromArguments(arguments)) {
        if (!QFileInfo(folder).isDir()) {
            complain(QStringLiteral("There is no folder \"%1\".").arg(folder));
            return QStringList();
        }
        folders.append(QDir::cleanPath(QFileInfo(folder).absoluteFilePath()));
    }
    return folders;
}

std::vector<FolderWalk::Found> search(const QStringList &folders, const std::vector<MissingFile> &missing)
{
    if (missing.empty())
        return {};
    const FolderWalk walk(folders, Relinker::namesOf(missing));
    StatusLine status;
    const auto found = walk.result(
        [&status](const FolderWalk::Progress &progress) {
            status.show(QStringLiteral("%1 files in %2 folders seen, %3 found")
                            .arg(progress.entries)
                            .arg(progress.folders)
                            .arg(progress.found));
            return true;
        },
        MediaInventory::patience);
    status.clear();
    for (const QString &folder : found->unreadable)
        complain(QStringLiteral("The folder \"%1\" cannot be read.").arg(folder));
    for (const QString &folder : found->unanswered)
        complain(QStringLiteral("The folder \"%1\" does not answer.").arg(folder));
    return found->files;
}

/// The project, which stands among the folders where it comes after them; empty when there is none.
std::string takeProject(RelinkOptions &options)
{
    if (!options.file.empty())
        return options.file;
    const auto isNoFolder = [](const std::string &value) { return !QFileInfo(fromArgument(value)).isDir(); };
    const auto last = std::find_if(options.folders.rbegin(), options.folders.rend(), isNoFolder);
    if (options.folders.size() < 2 || last == options.folders.rend())
        return std::string();
    std::string project = *last;
    options.folders.erase(std::next(last).base());
    return project;
}

int relink(RelinkOptions options)
{
    options.file = takeProject(options);
    if (options.file.empty())
        return refuseUsage(QStringLiteral("FILE is required."));
    if (options.output.empty() && !options.preview)
        return refuseUsage(QStringLiteral("-o: a project to write is needed, or --preview."));
    if (options.yes)
        QVAlert::setPresenter(std::make_shared<HeadlessAlertPresenter>(true));
    const QStringList folders = searchFolders(options.folders);
    if (folders.isEmpty())
        return Failed;
    ProjectSession session(Workbench::Inventories::All);
    if (!session.open(fromArgument(options.file)))
        return Failed;
    Relinker relinker(session.document());
    const std::vector<MissingFile> missing = relinker.missingFiles();
    const std::vector<RelinkMatch> matches = Relinker::matches(missing, search(folders, missing));
    std::size_t relinked = 0;
    const QString output = fromArgument(options.output);
    if (!options.preview) {
        std::vector<RelinkChoice> choices;
        for (const RelinkMatch &match : matches) {
            if (match.candidates.size() == 1)
                choices.push_back({match.missing.url, match.candidates.front().file});
        }
        relinked = relinker.relink(choices);
        if (!writeProject(session.document(), output))
            return Failed;
        if (output == QStringLiteral("-"))
            return Done;
    }
    return print(options.json ? relinkAsJson(matches, relinked) : relinkAsTable(matches)) ? Done : Failed;
}

} // namespace

void addRelinkCommand(CommandLine &program)
{
    auto options = std::make_shared<RelinkOptions>();
    Subcommand command = program.add("relink", "Find the missing media files of a project in other folders");
    command.value("FILE", options->file, "The project");
    command.values("--search", options->folders, "The folders to look in, with all that is below them",
                   Subcommand::Need::Required);
    command.value("-o", options->output, "The project to write; \"-\" is standard output");
    command.flag("--preview", options->preview, "Only tell what was found");
    command.flag("--json", options->json, "Print one JSON document");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.onRun([options] { return relink(*options); });
}

} // namespace vantrell::cli
