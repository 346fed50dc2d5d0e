#include "document/widgets/DocumentDisposal.h"

#include "support/MainThread.h"
#include "workbench/Workbench.h"

#include <atomic>
#include <system_error>
#include <thread>
#include <utility>

namespace vantrell
{

namespace
{

std::atomic<int> s_running = 0;

struct Disposed {
    std::unique_ptr<Workbench> workbench;
    std::shared_ptr<void> world;

    void end()
    {
        workbench->document().close();
        workbench.reset();
        MainThread::post([kept = std::exchange(world, nullptr)] {});
        --s_running;
        MainThread::wake();
    }
};

} // namespace

void DocumentDisposal::dispose(std::unique_ptr<Workbench> workbench, std::shared_ptr<void> world)
{
    // From here on no worker waits for the main thread through the document's door.
    workbench->document().mainThread()->close();
    ++s_running;
    const auto disposed = std::make_shared<Disposed>(Disposed{std::move(workbench), std::move(world)});
    try {
        std::thread([disposed] { disposed->end(); }).detach();
    } catch (const std::system_error &) {
        disposed->end(); // no thread to be had
    }
}

bool DocumentDisposal::waitForAll(std::chrono::milliseconds limit)
{
    const bool done = MainThread::drainUntil([] { return s_running == 0; }, limit);
    MainThread::drain();
    return done;
}

} // namespace vantrell
