#include "support/desktop/Workspace.h"

#include "support/desktop/ApplicationBundle.h"
#include "support/desktop/SocketAddress.h"
#include "support/desktop/UserProcess.h"
#include "support/files/StandardFolders.h"
#include "support/files/TaskRunner.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <future>
#include <memory>
#include <mutex>

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

bool answersEvents(const QString &bundleIdentifier)
{
    return std::any_of(std::begin(EventReceivers), std::end(EventReceivers), [&](const EventReceiver &entry) {
        // EAGAIN: it has many callers already.
        return entry.bundleIdentifier == bundleIdentifier &&
               (connectedSocket(Workspace::eventSocketPath(entry.signature)).isOpen() || errno == EAGAIN);
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

constexpr int timeoutMs = 2000;

/// Without this test the bus library would try to start a bus of its own.
bool hasSessionBus()
{
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        return true;
    const QString runtimeFolder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return !runtimeFolder.isEmpty() && QFileInfo::exists(runtimeFolder + QStringLiteral("/bus"));
}

bool callFileManager(const QString &uri)
{
    static std::atomic<int> calls{0};
    const QString name = QStringLiteral("vantrell-file-browser-%1").arg(++calls);
    bool isAnswered = false;
    {
        QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
        if (bus.isConnected()) {
            QDBusMessage message = QDBusMessage::createMethodCall(
                QStringLiteral("org.freedesktop.FileManager1"),
                QStringLiteral("/org/freedesktop/FileManager1"),
                QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
            message << QStringList{uri} << QString();
            isAnswered = bus.call(message, QDBus::Block, timeoutMs).type() == QDBusMessage::ReplyMessage;
        }
    }
    QDBusConnection::disconnectFromBus(name);
    return isAnswered;
}

/// Has the file browser of the user's session, reached over the session bus, show the item at the absolute
/// path selected in its folder. False without a session bus or a file browser, or without an answer in time.
bool showInFileBrowser(const QString &path)
{
    if (!QCoreApplication::instance() || !hasSessionBus())
        return false;
    const auto isAnswered = std::make_shared<std::promise<bool>>();
    const QString uri = QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded());
    std::future<bool> answer = isAnswered->get_future();
    // On a thread that can be left behind: connecting to a bus that hangs has no time-out.
    BackgroundWork::run([isAnswered, uri] {
        bool hasShown = false;
        guarded("showInFileBrowser", [&] { hasShown = callFileManager(uri); });
        isAnswered->set_value(hasShown);
    });
    const bool hasEnded = answer.wait_for(std::chrono::milliseconds(timeoutMs)) == std::future_status::ready;
    return hasEnded && answer.get();
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
    return showInFileBrowser(file.absoluteFilePath()) || openFile(file.absolutePath());
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
