#pragma once

#include <functional>
#include <memory>

namespace vantrell
{

/// Runs operations in the background, so many at a time, in the order in which they were added.
/// The owner destroys it after the last use; its functions may be called from any thread. What an
/// operation throws is logged and goes no further.
class OperationQueue
{
public:
    /// `width`: how many operations run at a time, at least 1. Threads are started when first needed.
    explicit OperationQueue(int width);

    /// Cancels what has not begun and waits for what has, which can then add nothing any more.
    ~OperationQueue();
    OperationQueue(const OperationQueue &) = delete;
    OperationQueue &operator=(const OperationQueue &) = delete;

    /// As many as the machine has processors, at least 1.
    static int processorCount();

    void addOperation(std::function<void()> operation);
    /// Drops the operations that have not begun; those that have run on to their end.
    void cancelAllOperations();
    /// Returns when nothing waits and nothing runs. Called by one of the queue's own operations it runs the
    /// waiting ones on the spot and returns when none is left to begin.
    void waitUntilAllOperationsAreFinished();
    /// How many operations wait or run.
    int operationCount() const;
    /// Whether the caller is one of the queue's own operations.
    bool isCallerOperation() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
