#include "app/AppController.h"
#include "app/Application.h"
#include "app/SingleInstance.h"
#include "app/Translations.h"
#include "support/files/ProcessStart.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"

#include <QDir>
#include <QStringList>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

constexpr std::chrono::milliseconds disposalTimeout{200};

/// Handles the options that need no window; false for any other.
bool answerOption(const char *option)
{
    if (std::strcmp(option, "--version") == 0) {
        std::puts("vantrell " VANTRELL_VERSION);
        return true;
    }
    if (std::strcmp(option, "--help") == 0 || std::strcmp(option, "-h") == 0) {
        std::puts("Usage: vantrell [OPTION...] [FILE...]\n\n"
                  "Shows the media, effects and markers of each project FILE.\n"
                  "Without a display use vantrell-cli.\n\nOptions:\n"
                  "  -h, --help      Print this help and exit\n"
                  "  --version       Print the version and exit\n"
                  "  -platform NAME  Show the windows through another platform plug-in of Qt\n"
                  "  -style NAME     Draw with another style");
        return true;
    }
    return false;
}

[[noreturn]] void endWithoutDisplay()
{
    std::fputs("vantrell: there is no display to show a window on. "
               "The command line vantrell-cli works without one.\n",
               stderr);
    std::fflush(stderr);
    std::_Exit(EXIT_FAILURE);
}

/// While the application object is created, the only fatal message is that no display is usable.
void endOnFatalMessage(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    if (type == QtFatalMsg)
        endWithoutDisplay();
}

/// The absolute paths of the files to open, valid in every process.
QStringList filesOf(const QStringList &arguments)
{
    QStringList paths;
    for (const QString &argument : arguments)
        paths.append(QDir::current().absoluteFilePath(argument));
    return paths;
}

int run(vantrell::Application &application, vantrell::SingleInstance &instance, const QStringList &paths)
{
    vantrell::AppController::startLog();
    vantrell::Translations::installChosen(application, vantrell::UserDefaults::standard());
    vantrell::AppController controller(vantrell::UserDefaults::standard());
    QObject::connect(&application, &vantrell::Application::openFileRequested, &controller,
                     &vantrell::AppController::applicationOpenFile);
    QObject::connect(&instance, &vantrell::SingleInstance::filesPassed, &controller,
                     &vantrell::AppController::startedAgain);
    QObject::connect(&application, &QGuiApplication::applicationStateChanged, &controller,
                     [&controller](Qt::ApplicationState state) {
                         const QWindowList windows = QGuiApplication::topLevelWindows();
                         const bool isBare =
                             std::none_of(windows.begin(), windows.end(),
                                          [](const QWindow *window) { return window->isVisible(); });
                         if (state == Qt::ApplicationActive && isBare)
                             controller.applicationShouldOpenUntitledFile();
                     });
    controller.openFiles(paths);
    controller.applicationDidFinishLaunching();
    return QCoreApplication::exec();
}

} // namespace

int main(int argc, char **argv)
{
    vantrell::prepareProcess();
    if (argc == 2 && answerOption(argv[1]))
        return EXIT_SUCCESS;
    if (!vantrell::Application::hasDisplay(argc, argv))
        endWithoutDisplay();
    const QtMessageHandler handler = qInstallMessageHandler(endOnFatalMessage);
    vantrell::Application application(argc, argv);
    qInstallMessageHandler(handler);

    const QStringList paths = filesOf(QCoreApplication::arguments().mid(1));
    vantrell::SingleInstance instance;
    if (instance.passOn(paths))
        return EXIT_SUCCESS;
    const int status = run(application, instance, paths);
    // Disposing of a large project is no reason to keep the process.
    if (!vantrell::BackgroundWork::waitForAll(disposalTimeout)) {
        vantrell::QVLog::willTerminate();
        std::_Exit(status);
    }
    return status;
}
