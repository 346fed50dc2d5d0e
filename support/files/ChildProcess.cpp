#include "support/files/ChildProcess.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <mutex>
#include <spawn.h>
#include <system_error>
#include <thread>
#include <unistd.h>
#include <vector>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds EndPollInterval{2};

std::mutex s_abandonedMutex; // guards abandoned()

std::vector<pid_t> &abandoned()
{
    static auto *const processes = new std::vector<pid_t>; // still used while the program ends
    return *processes;
}

void freeAbandoned()
{
    const std::lock_guard lock(s_abandonedMutex);
    std::erase_if(abandoned(), [](pid_t process) { return ::waitpid(process, nullptr, WNOHANG) != 0; });
}

/// The descriptor, moved out of the way of the three standard streams.
Descriptor aboveStreams(int number)
{
    Descriptor descriptor(number);
    if (number < 0 || number > STDERR_FILENO)
        return descriptor;
    return Descriptor(::fcntl(number, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

/// The actions and attributes of a spawn.
class SpawnSettings
{
public:
    explicit SpawnSettings(const ChildProcess::Request &request)
    {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawnattr_init(&m_attributes);
        for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
            const int given = request.streams[static_cast<std::size_t>(stream)];
            if (given >= 0)
                ::posix_spawn_file_actions_adddup2(&m_actions, given, stream);
            else
                ::posix_spawn_file_actions_addopen(&m_actions, stream, "/dev/null", O_RDWR, 0);
        }
        if (!request.workingDirectory.isEmpty()) {
            ::posix_spawn_file_actions_addchdir_np(&m_actions,
                                                   QFile::encodeName(request.workingDirectory).constData());
        }
        // What this process blocks and ignores is its own affair.
        sigset_t signalSet;
        ::sigemptyset(&signalSet);
        ::posix_spawnattr_setsigmask(&m_attributes, &signalSet);
        ::sigaddset(&signalSet, SIGPIPE);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signalSet);
        const int family =
            request.family == ChildProcess::Family::Session ? POSIX_SPAWN_SETSID : POSIX_SPAWN_SETPGROUP;
        ::posix_spawnattr_setpgroup(&m_attributes, 0);
        ::posix_spawnattr_setflags(
            &m_attributes, static_cast<short>(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | family));
    }
    ~SpawnSettings()
    {
        ::posix_spawnattr_destroy(&m_attributes);
        ::posix_spawn_file_actions_destroy(&m_actions);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;

    const posix_spawn_file_actions_t *actions() const { return &m_actions; }
    const posix_spawnattr_t *attributes() const { return &m_attributes; }

private:
    posix_spawn_file_actions_t m_actions;
    posix_spawnattr_t m_attributes;
};

} // namespace

Pipe Pipe::make()
{
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return {};
    return {aboveStreams(ends[0]), aboveStreams(ends[1])};
}

Result<ChildProcess> ChildProcess::start(const Request &request)
{
    freeAbandoned();
    std::vector<QByteArray> texts{QFile::encodeName(request.program)};
    for (const QString &argument : request.arguments)
        texts.push_back(argument.toLocal8Bit());
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (QByteArray &argument : texts)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);

    const SpawnSettings settings(request);
    pid_t process = 0;
    const int error = ::posix_spawnp(&process, pointers.front(), settings.actions(), settings.attributes(),
                                     pointers.data(), environ);
    if (error != 0) {
        return Failure{
            QStringLiteral("%1 could not be started: %2")
                .arg(request.program, QString::fromStdString(std::generic_category().message(error)))};
    }
    return ChildProcess(process);
}

bool ChildProcess::hasEnded()
{
    if (m_hasEnded)
        return true;
    const pid_t result = ::waitpid(m_id, &m_status, WNOHANG);
    if (result == 0 || (result < 0 && errno == EINTR))
        return false;
    if (result < 0)
        m_status = SIGKILL; // somebody else has asked for its end: how it ended cannot be told any more
    m_hasEnded = true;
    return true;
}

bool ChildProcess::waitForEnd(int timeoutMs)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (!hasEnded()) {
        if (deadline.hasExpired())
            return false;
        std::this_thread::sleep_for(EndPollInterval);
    }
    return true;
}

void ChildProcess::killGroup() const
{
    if (!m_hasEnded) // afterwards the number may be another process's
        ::kill(-m_id, SIGKILL);
}

void ChildProcess::abandon() const
{
    freeAbandoned();
    if (m_hasEnded)
        return;
    const std::lock_guard lock(s_abandonedMutex);
    abandoned().push_back(m_id);
}

} // namespace vantrell
