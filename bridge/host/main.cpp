#include "bridge/QVAppleEvents.h"
#include "bridge/host/HostBundle.h"
#include "bridge/host/HostConnection.h"
#include "bridge/host/HostEvents.h"
#include "bridge/host/HostLog.h"
#include "bridge/host/HostMessages.h"
#include "bridge/host/HostOptions.h"
#include "bridge/host/HostServer.h"
#include "bridge/host/HostSocket.h"
#include "support/desktop/Workspace.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <atomic>
#include <cerrno>
#include <clocale>
#include <csignal>

namespace
{

using namespace vantrell;

enum ExitStatus { Done = 0, Failed = 1 };

std::atomic<EventCancel *> s_stop = nullptr; // for the signal handler
static_assert(std::atomic<EventCancel *>::is_always_lock_free);

void handleSignal(int)
{
    const int savedError = errno;
    if (EventCancel *const cancel = s_stop)
        cancel->cancel();
    errno = savedError;
}

/// Turns SIGINT, SIGTERM and SIGHUP into a cancellation. The second signal ends the process at once.
class StopSignals
{
public:
    StopSignals()
    {
        s_stop = &m_stop;
        struct sigaction action = {};
        action.sa_handler = handleSignal;
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
            struct sigaction present = {};
            // Signals that the process was started to ignore stay ignored.
            if (::sigaction(number, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
                ::sigaction(number, &action, nullptr);
        }
        std::signal(SIGPIPE, SIG_IGN);
    }
    ~StopSignals() { s_stop = nullptr; }
    StopSignals(const StopSignals &) = delete;
    StopSignals &operator=(const StopSignals &) = delete;

    const EventCancel &stop() const { return m_stop; }

private:
    EventCancel m_stop;
};

int fail(const QString &message)
{
    hostMessage(message);
    return Failed;
}

int installBundle(const HostOptions &options)
{
    const Result<QString> bundle =
        HostBundle::install(options.bundleFolder, options.version, QCoreApplication::applicationFilePath(),
                            options.bundleArguments());
    if (!bundle)
        return fail(bundle.message());
    hostMessage(QStringLiteral("wrote \"%1\"").arg(bundle.value()));
    return Done;
}

/// Opens the files, and registers those that stay closed.
Result<void> addProjects(const HostOptions &options, HostProjects &projects)
{
    for (const QString &file : options.files) {
        if (Result<void> opened = projects.open(file); !opened)
            return opened;
    }
    for (const QString &file : options.closedFiles) {
        if (!QFileInfo(file).isFile())
            return Failure{QStringLiteral("The file \"%1\" is not there.").arg(file)};
        projects.add(file);
    }
    return {};
}

/// Whether this process plays the application; otherwise `status` is its exit status.
bool claimSocket(const HostOptions &options, HostSocket &socket, const EventCancel &stop, int &status)
{
    if (options.handsOver) {
        const Result<HandOver> outcome = handOver(socket, options.files, stop);
        status = outcome ? Done : fail(outcome.message());
        return outcome && outcome.value() == HandOver::Nobody;
    }
    const Result<HostSocket::Claim> claim = socket.claim();
    if (!claim)
        status = fail(claim.message());
    else if (claim.value() == HostSocket::Claim::Taken)
        status = fail(QStringLiteral("another host listens on \"%1\" already.").arg(socket.path()));
    return claim && claim.value() == HostSocket::Claim::Own;
}

int run(const HostOptions &options)
{
    if (!options.bundleFolder.isEmpty())
        return installBundle(options);
    QString folder = options.socketFolder;
    if (folder.isEmpty())
        folder = QFileInfo(Workspace::eventSocketPath(QStringLiteral("KeyG"))).path();
    if (folder.isEmpty() || !folder.startsWith(QLatin1Char('/')))
        return fail(QStringLiteral("XDG_RUNTIME_DIR names no folder; give one with --socket-dir."));

    const StopSignals signals;
    HostSocket socket(folder);
    int status = Done;
    if (!claimSocket(options, socket, signals.stop(), status))
        return status;
    HostLog log;
    if (!options.logPath.isEmpty()) {
        Result<HostLog> opened = HostLog::open(options.logPath);
        if (!opened)
            return fail(opened.message());
        log = std::move(opened.value());
    }
    // It listens before it reads the files: early callers wait instead of failing.
    if (const Result<void> listening = socket.listen(); !listening)
        return fail(listening.message());
    HostProjects projects(folder);
    if (const Result<void> added = addProjects(options, projects); !added)
        return fail(added.message());
    HostEvents events(projects, QVAppleEvents::maximumXMEMLVersionOf(options.version));
    events.setFailingEvent(options.failingEvent);
    HostServer server(events, log, {options.delay, options.truncates}, signals.stop());
    hostMessage(QStringLiteral("listening on %1").arg(socket.path()));
    server.serve(socket.descriptor());
    return Done;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    std::setlocale(LC_MESSAGES, "C"); // all output is English, the reasons that the system gives as well
    QCoreApplication::setApplicationName(QStringLiteral("fcp-host"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VANTRELL_VERSION));
    vantrell::UserDefaults::setStandardAccess(vantrell::UserDefaults::Access::ReadOnly);
    int status = Done;
    const auto options = vantrell::HostOptions::read(argc, argv, status);
    if (!options)
        return status;
    vantrell::QVLog::createNewLog(QStringLiteral("fcp-host"), true);
    status = run(*options);
    vantrell::QVLog::willTerminate();
    return status;
}
