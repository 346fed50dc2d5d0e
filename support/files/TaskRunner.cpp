#include "support/files/TaskRunner.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <algorithm>
#include <csignal>
#include <memory>
#include <unistd.h>

namespace vantrell
{

namespace
{

/// How often the caller is asked whether it gives up, in milliseconds.
constexpr int GiveUpLookMs = 10;

Failure notStarted(const QString &program, const QProcess &process)
{
    // What stands before the last colon is the name of the system call.
    const QString reason = process.errorString().section(QStringLiteral(": "), -1);
    return Failure{QStringLiteral("%1 could not be started: %2").arg(program, reason)};
}

} // namespace

Result<TaskRunner::Output> TaskRunner::run(const QString &program, const QStringList &arguments,
                                           int timeoutMs, const QByteArray &input,
                                           const std::function<bool()> &isCancelled)
{
    const QDeadlineTimer deadline(std::max(timeoutMs, 0));
    auto process = std::make_unique<QProcess>();
    process->setChildProcessModifier([] { ::setpgid(0, 0); }); // so that its children can be killed with it
    process->start(program, arguments);
    if (!process->waitForStarted(-1))
        return notStarted(program, *process);
    process->write(input);
    process->closeWriteChannel();
    while (process->state() != QProcess::NotRunning) {
        const bool isGivenUp = isCancelled && isCancelled();
        if (!isGivenUp && !deadline.hasExpired()) {
            process->waitForFinished(std::min(GiveUpLookMs, static_cast<int>(deadline.remainingTime())));
            continue;
        }
        ::kill(static_cast<pid_t>(-process->processId()), SIGKILL);
        if (!process->waitForFinished(KillTimeMs)) [[maybe_unused]]
            const QProcess *hung = process.release(); // its destructor would wait
        if (isGivenUp)
            return Failure{QStringLiteral("%1 was given up.").arg(program)};
        return Failure{QStringLiteral("%1 did not finish within %2 seconds.")
                           .arg(program, QString::number(timeoutMs / 1000.0))};
    }
    if (process->exitStatus() != QProcess::NormalExit)
        return Failure{QStringLiteral("%1 ended unexpectedly.").arg(program)};
    return Output{process->exitCode(), process->readAllStandardOutput(), process->readAllStandardError()};
}

Result<qint64> TaskRunner::startDetached(const QString &program, const QStringList &arguments,
                                         const QString &workingDirectory)
{
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setWorkingDirectory(workingDirectory);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    qint64 id = 0;
    if (!process.startDetached(&id))
        return notStarted(program, process);
    return id;
}

} // namespace vantrell
