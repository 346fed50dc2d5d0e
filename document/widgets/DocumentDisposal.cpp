#include "document/widgets/DocumentDisposal.h"

#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "workbench/Workbench.h"

#include <utility>

namespace vantrell
{

namespace
{

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
    // From here on no worker of the document waits for the main thread.
    workbench->document().mainThread()->close();
    const auto disposed = std::make_shared<Disposed>(Disposed{std::move(workbench), std::move(world)});
    BackgroundWork::run([disposed] { disposed->end(); });
}

} // namespace vantrell
