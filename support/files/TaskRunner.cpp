#include "support/files/TaskRunner.h"

#include "support/files/ChildProcess.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

/// How often the end of a process is looked for that keeps its streams open, in milliseconds.
constexpr int EndLookMs = 10;
constexpr std::size_t ChunkBytes = 65536;

/// Keeps a write to a reader that has gone from ending this process, on the calling thread.
class BlockedPipeSignal
{
public:
    BlockedPipeSignal()
    {
        ::sigemptyset(&m_pipeSignal);
        ::sigaddset(&m_pipeSignal, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &m_pipeSignal, &m_before);
    }
    ~BlockedPipeSignal()
    {
        const timespec atOnce{};
        while (::sigtimedwait(&m_pipeSignal, nullptr, &atOnce) >= 0 || errno == EINTR) {
        }
        ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    BlockedPipeSignal(const BlockedPipeSignal &) = delete;
    BlockedPipeSignal &operator=(const BlockedPipeSignal &) = delete;

private:
    sigset_t m_pipeSignal;
    sigset_t m_before;
};

/// This process's ends of a child's three streams.
class Streams
{
public:
    Streams(Descriptor inputEnd, Descriptor outputEnd, Descriptor errorEnd, const QByteArray &input)
        : m_input(std::move(inputEnd))
        , m_output(std::move(outputEnd))
        , m_error(std::move(errorEnd))
        , m_pending(input)
    {
        for (const Descriptor *end : {&m_input, &m_output, &m_error})
            ::fcntl(end->number(), F_SETFL, ::fcntl(end->number(), F_GETFL) | O_NONBLOCK);
        if (m_pending.isEmpty())
            m_input.close();
    }

    bool isAnyOpen() const { return m_input.isOpen() || m_output.isOpen() || m_error.isOpen(); }

    /// Waits at most so many milliseconds, then moves what can be moved.
    void exchange(int timeoutMs)
    {
        std::array<pollfd, 3> ends{pollfd{m_input.number(), POLLOUT, 0}, pollfd{m_output.number(), POLLIN, 0},
                                   pollfd{m_error.number(), POLLIN, 0}}; // closed ends are passed over
        if (::poll(ends.data(), ends.size(), timeoutMs) <= 0)
            return;
        if (ends[0].revents != 0)
            writeInput();
        if (ends[1].revents != 0)
            read(m_output, output, 1);
        if (ends[2].revents != 0)
            read(m_error, error, 1);
    }

    /// Takes what an ended process left in its streams, without waiting for others that hold them.
    void takeRest()
    {
        constexpr int MostChunks = 1024; // a process left behind may go on writing
        read(m_output, output, MostChunks);
        read(m_error, error, MostChunks);
    }

    QByteArray output;
    QByteArray error;

private:
    void writeInput()
    {
        const auto size = static_cast<std::size_t>(m_pending.size() - m_written);
        const ssize_t count = ::write(m_input.number(), m_pending.constData() + m_written, size);
        if (count > 0)
            m_written += count;
        if (m_written == m_pending.size() || (count < 0 && errno != EAGAIN && errno != EINTR))
            m_input.close();
    }

    static void read(Descriptor &end, QByteArray &into, int mostChunks)
    {
        std::array<char, ChunkBytes> chunk;
        for (int i = 0; i < mostChunks && end.isOpen(); ++i) {
            const ssize_t count = ::read(end.number(), chunk.data(), chunk.size());
            if (count > 0)
                into.append(chunk.data(), count);
            else if (count < 0 && (errno == EAGAIN || errno == EINTR))
                return;
            else
                end.close();
        }
    }

    Descriptor m_input;
    Descriptor m_output;
    Descriptor m_error;
    QByteArray m_pending;
    qsizetype m_written = 0;
};

} // namespace

Result<TaskRunner::Output> TaskRunner::run(const QString &program, const QStringList &arguments,
                                           int timeoutMs, const QByteArray &input,
                                           const std::function<bool()> &isCancelled)
{
    const auto givesUp = [&isCancelled] { return isCancelled && isCancelled(); };
    const QDeadlineTimer deadline(std::max(timeoutMs, 0));
    const BlockedPipeSignal blocked;
    Pipe toChild = Pipe::make();
    Pipe fromChild = Pipe::make();
    Pipe errorsFromChild = Pipe::make();
    if (!toChild.readEnd.isOpen() || !fromChild.readEnd.isOpen() || !errorsFromChild.readEnd.isOpen())
        return Failure{QStringLiteral("%1 could not be started: too many open files").arg(program)};
    Result<ChildProcess> started =
        ChildProcess::start({.program = program,
                             .arguments = arguments,
                             .workingDirectory = {},
                             .streams = {toChild.readEnd.number(), fromChild.writeEnd.number(),
                                         errorsFromChild.writeEnd.number()}});
    if (!started)
        return started.failure();
    ChildProcess &process = started.value();
    toChild.readEnd.close();
    fromChild.writeEnd.close();
    errorsFromChild.writeEnd.close();

    Streams streams(std::move(toChild.writeEnd), std::move(fromChild.readEnd),
                    std::move(errorsFromChild.readEnd), input);
    while (!process.hasEnded() && !deadline.hasExpired() && !givesUp()) {
        const int waitMs = int(std::clamp<qint64>(deadline.remainingTime(), 0, EndLookMs));
        if (streams.isAnyOpen())
            streams.exchange(waitMs);
        else
            process.waitForEnd(waitMs);
    }
    if (!process.hasEnded()) {
        process.killGroup();
        if (!process.waitForEnd(KillTimeMs))
            process.abandon(); // it hangs in the kernel
        if (!deadline.hasExpired())
            return Failure{QStringLiteral("%1 was given up.").arg(program)};
        return Failure{QStringLiteral("%1 did not finish within %2 seconds.")
                           .arg(program, QString::number(timeoutMs / 1000.0))};
    }
    if (!process.hasExited())
        return Failure{QStringLiteral("%1 ended unexpectedly.").arg(program)};
    streams.takeRest();
    return Output{process.exitCode(), streams.output, streams.error};
}

Result<qint64> TaskRunner::startDetached(const QString &program, const QStringList &arguments,
                                         const QString &workingDirectory)
{
    const Result<ChildProcess> started = ChildProcess::start({.program = program,
                                                              .arguments = arguments,
                                                              .workingDirectory = workingDirectory,
                                                              .family = ChildProcess::Family::Session});
    if (!started)
        return started.failure();
    started.value().abandon();
    return started.value().id();
}

} // namespace vantrell
