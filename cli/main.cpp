#include "cli/Commands.h"
#include "support/alerts/HeadlessAlertPresenter.h"
#include "support/alerts/QVAlert.h"
#include "support/files/ProcessStart.h"
#include "support/files/UnfinishedFiles.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"

#include <QCoreApplication>

#include <clocale>
#include <memory>

namespace
{

using namespace vantrell;

int runProgram(int argc, char **argv)
{
    cli::CommandLine program("Media, effects and markers of an editing project", "vantrell-cli",
                             VANTRELL_VERSION);
    cli::addLoadCommand(program);
    cli::addInfoCommand(program);
    cli::addMediaCommand(program);
    cli::addEffectsCommand(program);
    cli::addMarkerListCommand(program);
    cli::addExportCommand(program);
    cli::addImportCommand(program);
    cli::addMarkersCommand(program);
    cli::addEditCommand(program);
    cli::addRelinkCommand(program);
    cli::addReportCommand(program);
    cli::addSendCommand(program);
    cli::addCompareCommand(program);
    cli::addCarryCommand(program);
    cli::addTimecodeCommand(program);
    return program.run({argv + 1, argv + argc});
}

} // namespace

int main(int argc, char **argv)
{
    vantrell::prepareProcess();
    vantrell::UnfinishedFiles::removeOnSignals();
    QCoreApplication application(argc, argv);
    std::setlocale(LC_MESSAGES, "C"); // all output is English, the reasons that the system gives as well
    QCoreApplication::setApplicationName(QStringLiteral("vantrell-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTRELL_VERSION));
    vantrell::UserDefaults::setStandardAccess(vantrell::UserDefaults::Access::ReadOnly);
    vantrell::QVLog::createNewLog(QStringLiteral("vantrell-cli"), true);
    vantrell::QVAlert::setPresenter(std::make_shared<vantrell::HeadlessAlertPresenter>(false));
    const int status = runProgram(argc, argv);
    vantrell::QVLog::willTerminate();
    return status;
}
