#include "report/web/WebEngine.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QLoggingCategory>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantrell::WebEngine
{

namespace
{

constexpr const char *flagsName = "QTWEBENGINE_CHROMIUM_FLAGS";
constexpr const char *noSandboxName = "QTWEBENGINE_DISABLE_SANDBOX";

std::optional<QByteArray> flagsBefore;
bool isPrepared = false;

/// Whether a process may create a user namespace, which the sandbox of the engine needs.
bool maySandbox()
{
    const pid_t child = fork();
    if (child == 0)
        _exit(unshare(CLONE_NEWUSER | CLONE_NEWPID | CLONE_NEWNET) == 0 ? 0 : 1);
    if (child < 0)
        return false;
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

Result<void> prepare()
{
    if (isPrepared)
        return {};
    QByteArray flags = qgetenv(flagsName);
    // No host name or address can be resolved. Shared memory may be scarce in containers.
    flags += " --disable-gpu --disable-dev-shm-usage --dns-prefetch-disable --disable-background-networking"
             " --host-resolver-rules=\"MAP * ~NOTFOUND\"";
    if (geteuid() == 0) {
        std::fprintf(stderr, "%s: the web engine works without its sandbox, as it always does for root.\n",
                     qPrintable(QCoreApplication::applicationName()));
        flags += " --no-sandbox";
    } else if (!qEnvironmentVariableIntValue(noSandboxName) && !maySandbox()) {
        return Failure{QCoreApplication::translate(
            "WebEngine", "This system keeps the web engine from locking up what it shows (it allows no user "
                         "name spaces), so nothing is printed.")};
    }
    if (qEnvironmentVariableIsSet(flagsName))
        flagsBefore = qgetenv(flagsName);
    qputenv(flagsName, flags);
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext=false")); // logs the command line
    isPrepared = true;
    return {};
}

void restoreEnvironment()
{
    if (flagsBefore)
        qputenv(flagsName, *flagsBefore);
    else
        qunsetenv(flagsName);
}

} // namespace vantrell::WebEngine
