#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/EditScript.h"
#include "cli/OptionValues.h"
#include "cli/ProjectSession.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProgramArguments.h"

#include <QEventLoop>

#include <memory>

namespace vantrell::cli
{

namespace
{

struct SendOptions {
    std::string file;
    std::string script;
    bool toPremiere = false;
    bool yes = false;
    bool ownOwners = false;
};

/// Sends as the window does and waits. What the window would show goes to standard error.
bool sendAndWait(ProjectSender &sender)
{
    auto outcome = ProjectSender::Outcome::Failed;
    QEventLoop loop;
    const bool isStarted = sender.start([&](ProjectSender::Outcome reached) {
        outcome = reached;
        loop.quit();
    });
    if (isStarted)
        loop.exec();
    return outcome == ProjectSender::Outcome::Sent;
}

int send(const SendOptions &options)
{
    const auto presenter = std::make_shared<HeadlessAlertPresenter>(options.yes);
    QVAlert::setPresenter(presenter);
    EditScript operations;
    if (!options.script.empty()) {
        Result<EditScript> script = readEditScript(fromArgument(options.script));
        if (!script)
            return fail(script.message());
        operations = std::move(script.value());
    }
    const QString file = fromArgument(options.file);
    const auto inventories = operations.empty() ? Workbench::Inventories::None : Workbench::Inventories::All;
    ProjectSession session(inventories);
    session.setOwnOwners(options.ownOwners);
    if (!session.open(file, Workbench::typeNameToSend(file)))
        return Failed;
    if (options.toPremiere)
        session.document().setPremiereProject(true);
    if (!applyScript(operations, session, *presenter))
        return Failed;
    return sendAndWait(session.workbench().projectSender()) ? Done : Failed;
}

} // namespace

void addSendCommand(CommandLine &program)
{
    auto options = std::make_shared<SendOptions>();
    Subcommand command = program.add("send", "Send the changes of a project to its editing application");
    command.value("FILE", options->file, "The project; it may be open in the application",
                  Subcommand::Need::Required);
    command.value("--script", options->script,
                  "Operations to apply first, a JSON file; \"-\" is standard input");
    command.flag("--premiere", options->toPremiere, "Send the whole project to Premiere Pro");
    command.flag("--yes", options->yes, "Answer questions with the button that goes ahead");
    command.flag("--own-owners", options->ownOwners, ownOwnersHelp);
    command.onRun([options] { return send(*options); });
}

} // namespace vantrell::cli
