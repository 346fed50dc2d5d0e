#pragma once

#include <QByteArray>
#include <QDateTime>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

namespace vantrell
{

/// Which digests of a file are wanted.
struct ChecksumKinds {
    bool md5 = false;
    bool sha1 = false;
    bool xxhash64 = false;
};

/// Digests as lower-case hexadecimal digits, the most significant first; empty when they were not wanted.
struct Checksums {
    QByteArray md5;
    QByteArray sha1;
    QByteArray xxhash64;

    friend bool operator==(const Checksums &, const Checksums &) = default;
};

/// What became of reading one file.
struct ChecksumResult {
    enum class State {
        Done,
        Missing,
        Unreadable, ///< also what is no regular file, and a file whose volume gave no answer
        Changed,    ///< while it was read
    };
    State state = State::Unreadable;
    Checksums checksums;       ///< when done
    std::int64_t size = 0;     ///< bytes
    std::int64_t modified = 0; ///< milliseconds since 1970-01-01 UTC
    QDateTime made;            ///< when the file had been read, in UTC
};

/// Computes the checksums of many files, several at a time, each read once whatever is wanted of it. The
/// work is done by threads that hold nothing but their share of it, and are left behind when a volume does
/// not answer. Main thread unless a member says otherwise.
class ChecksumRun
{
public:
    struct Task {
        QByteArray path; ///< in the file system's encoding
        ChecksumKinds kinds;
        std::int64_t expectedSize = 0; ///< bytes, for the progress
    };
    /// Is told how many bytes more have been read, and whether to go on.
    using Advance = std::function<bool(std::int64_t bytes)>;
    /// Reads one file. On these threads, so it may own nothing that can go away.
    using Reader = std::function<ChecksumResult(const Task &task, const Advance &advance)>;

    /// Starts at once; \a width files are read at a time, as many as there are processors for 0.
    explicit ChecksumRun(std::vector<Task> tasks, int width = 0, const Reader &reader = read);
    /// Ends the reading. Waits for the threads, as the cryptographic library keeps what it has for a thread
    /// until that ends; half a second at most, then those that hang are left behind.
    ~ChecksumRun();
    ChecksumRun(const ChecksumRun &) = delete;
    ChecksumRun &operator=(const ChecksumRun &) = delete;

    struct Progress {
        std::int64_t bytes = 0; ///< read so far
        std::int64_t totalBytes = 0;
        std::size_t files = 0;        ///< done
        std::chrono::seconds left{0}; ///< at the speed so far; 0 when that is not known yet
    };
    using Results = std::vector<ChecksumResult>;

    /// Waits until all files are read, or until nothing has been read for \a patience: the rest then counts
    /// as unreadable. Nothing as soon as \a goesOn, which is asked many times a second, says no. \a finished
    /// (may be empty) is told the index and the result of each file, in no particular order. Both run here.
    std::optional<Results> results(const std::function<bool(const Progress &)> &goesOn,
                                   const std::function<void(std::size_t, const ChecksumResult &)> &finished,
                                   std::chrono::milliseconds patience);

    /// Reads one file on the calling thread.
    static ChecksumResult read(const Task &task, const Advance &advance);

private:
    struct State;
    std::shared_ptr<State> m_state;
    std::vector<std::thread> m_threads;
};

} // namespace vantrell
