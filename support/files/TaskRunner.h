#pragma once

#include "support/files/Result.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace vantrell
{

/// Runs helper processes. Stateless; any thread, no event loop needed.
class TaskRunner
{
public:
    TaskRunner() = delete;

    /// What a process that has ended left behind.
    struct Output {
        int exitCode = 0;
        QByteArray standardOutput;
        QByteArray standardError;
    };

    /// How long past its time-out run() may take to get rid of the process, in milliseconds.
    static constexpr int KillTimeMs = 1000;

    /// Runs `program` (a path, or a name looked up in PATH) with `input` on its standard input and waits
    /// for its end. After `timeoutMs` milliseconds (below 0 counts as 0) the process and those that it
    /// started are killed. A Failure when it cannot be started, was killed, or died of a signal; any exit
    /// code is a value. Processes that the program leaves running behind it are not waited for. The same
    /// happens as after the time-out once `isCancelled`, asked every few milliseconds, holds.
    static Result<Output> run(const QString &program, const QStringList &arguments, int timeoutMs,
                              const QByteArray &input = {}, const std::function<bool()> &isCancelled = {});

    /// Starts `program` in a session of its own and does not wait for it; it outlives the caller. It reads
    /// nothing, and what it writes is dropped. Gives its process id, or a Failure when it cannot be started.
    static Result<qint64> startDetached(const QString &program, const QStringList &arguments,
                                        const QString &workingDirectory = {});
};

} // namespace vantrell
