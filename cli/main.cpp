#include "cli/Command.h"
#include "cli/Numbers.h"
#include "support/HeadlessAlertPresenter.h"
#include "support/QVAlert.h"
#include "support/QVLog.h"
#include "support/UnfinishedFiles.h"
#include "support/UserDefaults.h"

#include <QCoreApplication>

#include <algorithm>

namespace
{

using namespace vantrell;

int runProgram(int argc, char **argv)
{
    CLI::App program("Media, effects and markers of an editing project", "vantrell-cli");
    program.set_version_flag("--version", "vantrell-cli " VANTRELL_VERSION);
    program.require_subcommand(1);
    int status = cli::Done;
    cli::addLoadCommand(program, status);
    cli::addInfoCommand(program, status);
    cli::addMediaCommand(program, status);
    cli::addEffectsCommand(program, status);
    cli::addMarkerListCommand(program, status);
    cli::addExportCommand(program, status);
    cli::addImportCommand(program, status);
    cli::addMarkersCommand(program, status);
    cli::addEditCommand(program, status);
    cli::addSendCommand(program, status);
    cli::addTimecodeCommand(program, status);
    try {
        std::vector<std::string> arguments = cli::markNegativeValues({argv + 1, argv + argc});
        std::reverse(arguments.begin(), arguments.end()); // the parser takes them from the back
        program.parse(arguments);
    } catch (const CLI::ParseError &error) {
        return program.exit(error) == 0 ? cli::Done : cli::WrongUsage;
    } catch (const std::exception &error) {
        cli::complain(QString::fromLocal8Bit(error.what()));
        return cli::Failed;
    }
    return status;
}

} // namespace

int main(int argc, char **argv)
{
    vantrell::UnfinishedFiles::removeOnSignals();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("vantrell-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTRELL_VERSION));
    vantrell::UserDefaults::setStandardAccess(vantrell::UserDefaults::Access::ReadOnly);
    vantrell::QVLog::createNewLog(QStringLiteral("vantrell-cli"), true);
    vantrell::QVAlert::setPresenter(std::make_shared<vantrell::HeadlessAlertPresenter>(false));
    const int status = runProgram(argc, argv);
    vantrell::QVLog::willTerminate();
    return status;
}
