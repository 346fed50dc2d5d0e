#include "document/widgets/DocumentDisposal.h"

#include "support/MainThread.h"
#include "support/QVException.h"
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
    }
};

} // namespace

void DocumentDisposal::dispose(std::unique_ptr<Workbench> workbench, std::shared_ptr<void> world)
{
    // From here on no worker waits for the main thread through the document's door.
    workbench->document().mainThread()->close();
    const auto disposed = std::make_shared<Disposed>(Disposed{std::move(workbench), std::move(world)});
    runBeside([disposed] { disposed->end(); });
}

void DocumentDisposal::runBeside(std::function<void()> work)
{
    ++s_running;
    const auto run = [work = std::move(work)] {
        guarded("DocumentDisposal::runBeside", work);
        --s_running;
        MainThread::wake();
    };
    try {
        std::thread(run).detach();
    } catch (const std::system_error &) {
        run(); // no thread to be had
    }
}

bool DocumentDisposal::waitForAll(std::chrono::milliseconds limit)
{
    const bool done = MainThread::drainUntil([] { return s_running == 0; }, limit);
    MainThread::drain();
    return done;
}

} // namespace vantrell
