#include "support/threads/BackgroundWork.h"

#include "support/log/QVException.h"
#include "support/threads/MainThread.h"
#include "support/threads/Persistently.h"

#include <atomic>
#include <exception>
#include <thread>
#include <utility>

namespace vantrell
{

static std::atomic<int> s_running = 0;

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

void BackgroundWork::run(std::function<Result<void>()> work, std::shared_ptr<MainThreadGate> gate,
                         std::function<void(const Result<void> &)> done)
{
    const auto outcome =
        std::make_shared<Result<void>>(Failure{QStringLiteral("There is not enough memory.")});
    const auto end = [outcome, done = std::move(done)] { done(*outcome); };
    run([outcome, end, work = std::move(work), gate = std::move(gate)] {
        guarded("BackgroundWork::run", [&] { *outcome = work(); });
        persistently("BackgroundWork::run", [&] { gate->post(end); });
    });
}

bool BackgroundWork::waitForAll(std::chrono::milliseconds limit)
{
    const bool done = MainThread::drainUntil([] { return s_running == 0; }, limit);
    MainThread::drain();
    return done;
}

} // namespace vantrell
