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

/// A file's path where a signal handler may read it. A file beyond the last place, or with a longer path, is
/// written all the same and would outlive an interrupt.
struct Place {
    std::atomic<bool> isTaken = false; ///< the path is whole
    std::array<char, 4096> path = {};  ///< ends with 0
};
static_assert(std::atomic<bool>::is_always_lock_free);

std::array<Place, 16> places;
std::mutex placesMutex; // guards the paths against each other's changes

void removeAndEnd(int number)
{
    for (const Place &place : places) {
        if (place.isTaken)
            ::unlink(place.path.data());
    }
    std::signal(number, SIG_DFL);
    std::raise(number);
}

} // namespace

void add(const QByteArray &path)
{
    const std::lock_guard lock(placesMutex);
    for (Place &place : places) {
        if (place.isTaken || std::size_t(path.size()) >= place.path.size())
            continue;
        std::memcpy(place.path.data(), path.constData(), std::size_t(path.size()) + 1);
        place.isTaken = true;
        return;
    }
}

void remove(const QByteArray &path)
{
    const std::lock_guard lock(placesMutex);
    for (Place &place : places) {
        if (place.isTaken && path == place.path.data()) {
            place.isTaken = false;
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
