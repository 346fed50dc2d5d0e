#pragma once

#include "support/files/Descriptor.h"
#include "support/files/Result.h"

#include <QString>
#include <QStringList>

#include <array>
#include <sys/types.h>
#include <sys/wait.h>

namespace vantrell
{

struct Pipe {
    Descriptor readEnd;
    Descriptor writeEnd;

    /// Both ends are closed in the processes that are started. Not open when there are no descriptors left.
    static Pipe make();
};

/// A process that this one started. QProcess would serve, but that the thread sanitizer loses sight of a
/// thread which has started one, as the child shares its memory until it runs the program. Spawned rather
/// than forked, so that starting it costs the same however large this process is, and disturbs none of its
/// threads. Owned by one thread at a time.
class ChildProcess
{
public:
    enum class Family {
        Group,  ///< the child and its children can be killed together
        Session ///< the child is on its own and survives this process
    };

    struct Request {
        QString program; ///< a path, or a name looked up in PATH
        QStringList arguments;
        QString workingDirectory; ///< empty: this process's
        Family family = Family::Group;
        /// What becomes the child's standard input, output and error; -1: the null device.
        std::array<int, 3> streams{-1, -1, -1};
    };

    /// Starts the process; a Failure says why it cannot be executed.
    static Result<ChildProcess> start(const Request &request);

    pid_t id() const { return m_id; }
    /// Whether it has ended; never waits.
    bool hasEnded();
    /// Waits at most so many milliseconds for its end; whether it has ended.
    bool waitForEnd(int timeoutMs);
    /// Whether it ended by itself, with exitCode(); false when a signal ended it. Once it has ended.
    bool hasExited() const { return m_hasEnded && WIFEXITED(m_status); }
    int exitCode() const { return WEXITSTATUS(m_status); }

    /// Kills the process and those of its group.
    void killGroup() const;
    /// Gives up waiting for it. Its entry in the process table is freed some time after its end, by the next
    /// call of this function or of start().
    void abandon() const;

private:
    explicit ChildProcess(pid_t id)
        : m_id(id)
    {
    }

    pid_t m_id;
    bool m_hasEnded = false;
    int m_status = 0;
};

} // namespace vantrell
