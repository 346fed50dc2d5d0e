#pragma once

#include <QByteArray>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vantrell
{

/// What the disk says about a path.
struct FileFacts {
    bool exists = false; ///< something is there, of whatever kind; links are followed
    bool isFolder = false;
    std::optional<std::int64_t> size;     ///< bytes
    std::optional<std::int64_t> modified; ///< milliseconds since 1970-01-01 UTC
};

/// Looks at many paths on disk. The looking is done by detached threads that hold nothing but the paths
/// and the list of the answers: a volume that does not answer leaves them behind, and nobody waits for
/// them. Each volume has threads of its own, so that one that hangs does not hold up the others.
class FileChecks
{
public:
    /// Runs on the detached threads, so it may own nothing that can go away.
    using Check = std::function<FileFacts(const QByteArray &path)>;

    /// Starts at once; where there is no thread, looks at the paths itself. Paths are in the file system's
    /// encoding; nothing exists at an empty one.
    explicit FileChecks(std::vector<QByteArray> paths, const Check &check = lookUp);
    /// Ends what has not begun, waits for nothing.
    ~FileChecks();
    FileChecks(const FileChecks &) = delete;
    FileChecks &operator=(const FileChecks &) = delete;

    /// One per path, in their order; nothing for a path without an answer.
    using Answers = std::vector<std::optional<FileFacts>>;

    /// Waits until every path is answered or no further answer has come for \a patience; what is then
    /// open stays without one. Nothing as soon as \a isCancelled holds, which is asked many times a second.
    std::optional<Answers> answers(const std::function<bool()> &isCancelled,
                                   std::chrono::milliseconds patience) const;

    /// Looks at one path on the calling thread.
    static FileFacts lookUp(const QByteArray &path);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
