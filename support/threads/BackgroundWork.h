#pragma once

#include "support/files/Result.h"

#include <chrono>
#include <functional>
#include <memory>

namespace vantrell
{

class MainThreadGate;

/// Work on threads of its own that nobody waits for until the program ends: questions to a disk or to
/// another program, which may take as long as they like.
class BackgroundWork
{
public:
    BackgroundWork() = delete;

    /// Runs `work` on a thread of its own. It owns all that it uses, and what it hands to the main thread
    /// looks whether somebody still wants it. What it throws is logged. Any thread.
    static void run(std::function<void()> work);

    /// Runs `work` like run() and then, through the gate, passes its outcome to `done` on the main thread: a
    /// failure where the work throws. Any thread.
    static void run(std::function<Result<void>()> work, std::shared_ptr<MainThreadGate> gate,
                    std::function<void(const Result<void> &)> done);

    /// Waits, running what is handed to the main thread, until nothing is left of the work begun so far;
    /// false when that takes longer. Main thread.
    static bool waitForAll(std::chrono::milliseconds limit);
};

} // namespace vantrell
