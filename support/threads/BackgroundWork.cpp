#include "support/threads/BackgroundWork.h"

#include "support/log/QVException.h"
#include "support/threads/MainThread.h"

#include <atomic>
#include <exception>
#include <thread>
#include <utility>

namespace vantrell
{

namespace
{

std::atomic<int> s_running = 0;

} // namespace

void BackgroundWork::run(std::function<void()> work)
{
    ++s_running;
    auto run = [work = std::move(work)]() mutable {
        guarded("BackgroundWork::run", work);
        work = nullptr; // what it owns goes before it counts as over
        --s_running;
        MainThread::wake();
    };
    try {
        std::thread(run).detach();
    } catch (const std::exception &) {
        run(); // no thread to be had
    }
}

bool BackgroundWork::waitForAll(std::chrono::milliseconds limit)
{
    const bool done = MainThread::drainUntil([] { return s_running == 0; }, limit);
    MainThread::drain();
    return done;
}

} // namespace vantrell
