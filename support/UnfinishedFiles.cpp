#include "support/UnfinishedFiles.h"

#include <array>
#include <atomic>
#include <cstdlib>
#include <cstring>

#include <csignal>
#include <unistd.h>

namespace vantrell::UnfinishedFiles
{

namespace
{

// What a signal handler may read: paths as plain text behind lock-free pointers. A file beyond the last
// place is written all the same and would outlive an interrupt.
std::array<std::atomic<char *>, 16> paths = {};
static_assert(std::atomic<char *>::is_always_lock_free);

void removeAndEnd(int number)
{
    for (std::atomic<char *> &path : paths) {
        if (const char *text = path.load())
            ::unlink(text);
    }
    std::signal(number, SIG_DFL);
    std::raise(number);
}

} // namespace

void add(const QByteArray &path)
{
    char *copy = ::strdup(path.constData());
    for (std::atomic<char *> &place : paths) {
        char *none = nullptr;
        if (place.compare_exchange_strong(none, copy))
            return;
    }
    std::free(copy);
}

void remove(const QByteArray &path)
{
    for (std::atomic<char *> &place : paths) {
        char *text = place.load();
        if (text && path == text && place.compare_exchange_strong(text, nullptr)) {
            std::free(text);
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
