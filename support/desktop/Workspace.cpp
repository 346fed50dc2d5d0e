#include "support/desktop/Workspace.h"

#include "support/desktop/ApplicationBundle.h"
#include "support/desktop/FileBrowser.h"
#include "support/desktop/SocketAddress.h"
#include "support/desktop/UserProcess.h"
#include "support/files/StandardFolders.h"
#include "support/files/TaskRunner.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <mutex>
#include <sys/socket.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

std::mutex s_openProgramMutex; // guards openProgram()

QString &openProgram()
{
    static QString program;
    return program;
}

/// The applications that take events, with their signatures.
struct EventReceiver {
    QLatin1String bundleIdentifier;
    QLatin1String signature;
};
constexpr EventReceiver EventReceivers[] = {{QLatin1String("com.apple.FinalCutPro"), QLatin1String("KeyG")}};

/// Whether somebody listens on the socket. Never waits.
bool socketAnswers(const QString &path)
{
    const auto address = socketAddress(path);
    if (!address)
        return false;
    const int handle = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    if (handle < 0)
        return false;
    const int result = ::connect(handle, reinterpret_cast<const sockaddr *>(&*address), sizeof(*address));
    const bool isListening = result == 0 || errno == EAGAIN; // EAGAIN: it has many callers already
    ::close(handle);
    return isListening;
}

bool answersEvents(const QString &bundleIdentifier)
{
    return std::any_of(std::begin(EventReceivers), std::end(EventReceivers), [&](const EventReceiver &entry) {
        return entry.bundleIdentifier == bundleIdentifier &&
               socketAnswers(Workspace::eventSocketPath(entry.signature));
    });
}

std::vector<ApplicationBundle> installedBundles()
{
    return ApplicationBundle::inFolder(Workspace::applicationsFolder());
}

/// The process that stands for the application: its main executable's, else the first of its others.
const UserProcess *processOf(const ApplicationBundle &bundle, const std::vector<UserProcess> &processes,
                             QString &program)
{
    const QString mainExecutable = QFileInfo(bundle.executable).canonicalFilePath();
    const UserProcess *found = nullptr;
    for (const UserProcess &process : processes) {
        const QString candidate = process.programBelow(bundle.path + QStringLiteral("/Contents"));
        if (candidate.isEmpty() || (found && candidate != mainExecutable))
            continue;
        found = &process;
        program = candidate;
        if (candidate == mainExecutable)
            break;
    }
    return found;
}

bool start(const QString &program, const QStringList &arguments)
{
    const auto started = TaskRunner::startDetached(program, arguments);
    if (!started)
        QVLog::appendLog(u"%@", started.message());
    return started.isOk();
}

bool startBundle(const ApplicationBundle &bundle, const QStringList &arguments)
{
    if (!bundle.executable.isEmpty())
        return start(bundle.executable, arguments);
    QVLog::appendLog(u"%@ holds no executable.", bundle.path);
    return false;
}

QString folderSetting(const QString &key, const QString &fallback)
{
    const QString folder = UserDefaults::standard().string(key);
    return folder.isEmpty() ? fallback : folder;
}

} // namespace

QString Workspace::applicationsFolder()
{
    return folderSetting(QStringLiteral("applicationsFolder"), QStringLiteral("/opt"));
}

QString Workspace::adminApplicationsFolder()
{
    return folderSetting(QStringLiteral("adminApplicationsFolder"), QStringLiteral("/opt/Utilities"));
}

QString Workspace::applicationPathForBundleIdentifier(const QString &bundleIdentifier)
{
    for (const ApplicationBundle &bundle : installedBundles()) {
        if (bundle.identifier == bundleIdentifier)
            return bundle.path;
    }
    return {};
}

bool Workspace::isRunning(const QString &bundleIdentifier)
{
    if (answersEvents(bundleIdentifier))
        return true;
    std::vector<ApplicationBundle> bundles = installedBundles();
    std::erase_if(bundles, [&](const auto &bundle) { return bundle.identifier != bundleIdentifier; });
    if (bundles.empty())
        return false;
    const std::vector<UserProcess> processes = UserProcess::all();
    QString program;
    return std::any_of(bundles.begin(), bundles.end(),
                       [&](const auto &bundle) { return processOf(bundle, processes, program) != nullptr; });
}

std::vector<Workspace::RunningApplication> Workspace::runningApplications()
{
    std::vector<RunningApplication> applications;
    const auto isListed = [&](const QString &identifier) {
        return std::any_of(applications.begin(), applications.end(),
                           [&](const auto &entry) { return entry.bundleIdentifier == identifier; });
    };
    const std::vector<UserProcess> processes = UserProcess::all();
    const std::vector<ApplicationBundle> bundles = installedBundles();
    for (const ApplicationBundle &bundle : bundles) {
        QString program;
        if (const UserProcess *process = processOf(bundle, processes, program))
            applications.push_back({bundle.identifier, bundle.path, program, process->id});
    }
    for (const EventReceiver &receiver : EventReceivers) {
        const QString identifier = receiver.bundleIdentifier;
        if (isListed(identifier) || !answersEvents(identifier))
            continue;
        const auto bundle = std::find_if(bundles.begin(), bundles.end(),
                                         [&](const auto &entry) { return entry.identifier == identifier; });
        applications.push_back({identifier, bundle == bundles.end() ? QString() : bundle->path, {}, 0});
    }
    return applications;
}

QString Workspace::eventSocketPath(const QString &signature)
{
    const QString folder = StandardFolders::runtime();
    return folder.isEmpty() ? QString() : folder + QLatin1Char('/') + signature;
}

bool Workspace::revealFile(const QString &path)
{
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return false;
    return FileBrowser::showItem(file.absoluteFilePath()) || openFile(file.absolutePath());
}

bool Workspace::openFile(const QString &path)
{
    // An absolute path can be mistaken neither for an option nor for an address.
    const QFileInfo file(path);
    if (path.isEmpty() || !file.exists())
        return false;
    if (file.isDir() && ApplicationBundle::isBundlePath(file.absoluteFilePath())) {
        if (const auto bundle = ApplicationBundle::read(file.absoluteFilePath()))
            return startBundle(*bundle, {});
    }
    QString program;
    {
        const std::lock_guard lock(s_openProgramMutex);
        program = openProgram();
    }
    return start(program.isEmpty() ? QStringLiteral("xdg-open") : program, {file.absoluteFilePath()});
}

bool Workspace::openWithApplication(const QString &bundleIdentifier, const QString &path)
{
    for (const ApplicationBundle &bundle : installedBundles()) {
        if (bundle.identifier != bundleIdentifier)
            continue;
        return startBundle(bundle,
                           path.isEmpty() ? QStringList() : QStringList{QFileInfo(path).absoluteFilePath()});
    }
    QVLog::appendLog(u"%@ is not installed.", bundleIdentifier);
    return false;
}

void Workspace::setOpenProgram(const QString &program)
{
    const std::lock_guard lock(s_openProgramMutex);
    openProgram() = program;
}

} // namespace vantrell
