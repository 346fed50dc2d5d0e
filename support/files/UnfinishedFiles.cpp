#include "support/files/UnfinishedFiles.h"

#include <array>
#include <atomic>
#include <cstring>
#include <mutex>

#include <csignal>
#include <unistd.h>

namespace vantrell::UnfinishedFiles
{

namespace
{

/// A file's path where a signal handler may read it. A file beyond the last entry, or with a longer path, is
/// written all the same and would outlive an interrupt.
struct Entry {
    std::atomic<bool> isUsed = false; ///< the path is whole
    std::array<char, 4096> path = {}; ///< ends with 0
};
static_assert(std::atomic<bool>::is_always_lock_free);

std::array<Entry, 16> entries;
std::mutex entriesMutex; // guards the paths against each other's changes

void removeAndEnd(int number)
{
    for (const Entry &entry : entries) {
        if (entry.isUsed)
            ::unlink(entry.path.data());
    }
    std::signal(number, SIG_DFL);
    std::raise(number);
}

} // namespace

void add(const QByteArray &path)
{
    const std::lock_guard lock(entriesMutex);
    for (Entry &entry : entries) {
        if (entry.isUsed || std::size_t(path.size()) >= entry.path.size())
            continue;
        std::memcpy(entry.path.data(), path.constData(), std::size_t(path.size()) + 1);
        entry.isUsed = true;
        return;
    }
}

void remove(const QByteArray &path)
{
    const std::lock_guard lock(entriesMutex);
    for (Entry &entry : entries) {
        if (entry.isUsed && path == entry.path.data()) {
            entry.isUsed = false;
            return;
        }
    }
}

void removeOnSignals()
{
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        // What the caller has the process ignore stays ignored.
        if (std::signal(number, removeAndEnd) == SIG_IGN)
            std::signal(number, SIG_IGN);
    }
}

} // namespace vantrell::UnfinishedFiles
