#include "cli/Command.h"
#include "cli/EditRun.h"
#include "cli/Numbers.h"
#include "cli/ProjectSession.h"
#include "support/QVAlert.h"

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
};

/// Sends as the window does and waits for the end of it. What the window would show stands on standard
/// error then.
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
        Result<EditScript> script = readEditScriptFile(withoutMark(fromArgument(options.script)));
        if (!script) {
            complain(script.message());
            return Failed;
        }
        operations = std::move(script.value());
    }
    const QString file = withoutMark(fromArgument(options.file));
    const auto inventories = operations.empty() ? Workbench::Inventories::None : Workbench::Inventories::All;
    ProjectSession session(inventories);
    if (!session.open(file, Workbench::typeNameToSend(file)))
        return Failed;
    if (options.toPremiere)
        session.document().setPremiereProject(true);
    if (!EditRun(session, *presenter).apply(operations))
        return Failed;
    return sendAndWait(session.workbench().projectSender()) ? Done : Failed;
}

} // namespace

void addSendCommand(CLI::App &program, int &status)
{
    auto options = std::make_shared<SendOptions>();
    CLI::App *command =
        program.add_subcommand("send", "Send the changes of a project to its editing application");
    command->add_option("FILE", options->file, "The project; it may be open in the application")->required();
    command->add_option("--script", options->script,
                        "Operations to apply first, a JSON file; \"-\" is standard input");
    command->add_flag("--premiere", options->toPremiere, "Send the whole project to Premiere Pro");
    command->add_flag("--yes", options->yes, "Answer questions with their default button");
    command->callback([options, &status] { status = send(*options); });
}

} // namespace vantrell::cli
