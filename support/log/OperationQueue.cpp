#include "support/log/OperationQueue.h"

#include "support/log/QVException.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <exception>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace vantrell
{

struct OperationQueue::State {
    using Operation = std::function<void()>;

    mutable std::mutex mutex; // guards everything below but width
    std::condition_variable arrived;
    std::condition_variable finished;
    std::deque<Operation> waiting;
    std::vector<std::thread> threads;
    std::size_t width = 1;
    std::size_t idle = 0;
    std::size_t running = 0;
    bool ending = false;

    /// Runs the first waiting operation with the lock released.
    void runFirst(std::unique_lock<std::mutex> &lock)
    {
        Operation operation = std::move(waiting.front());
        waiting.pop_front();
        ++running;
        lock.unlock();
        guarded("OperationQueue::runFirst", operation);
        operation = nullptr;
        lock.lock();
        --running;
        if (running == 0 && waiting.empty())
            finished.notify_all();
    }
};

/// The state of the queue whose operation runs on this thread, or null.
static thread_local const void *t_currentQueue = nullptr;

OperationQueue::OperationQueue(int width)
    : m_state(std::make_shared<State>())
{
    m_state->width = static_cast<std::size_t>(std::max(width, 1));
}

OperationQueue::~OperationQueue()
{
    std::vector<std::thread> threads;
    {
        const std::lock_guard lock(m_state->mutex);
        m_state->ending = true;
        threads.swap(m_state->threads);
    }
    cancelAllOperations();
    m_state->arrived.notify_all();
    for (std::thread &thread : threads) {
        if (thread.get_id() == std::this_thread::get_id())
            thread.detach(); // the queue's last owner was one of its own operations
        else
            thread.join();
    }
}

int OperationQueue::processorCount()
{
    return std::max(1, static_cast<int>(std::thread::hardware_concurrency()));
}

void OperationQueue::addOperation(std::function<void()> operation)
{
    if (!operation)
        return;
    std::unique_lock lock(m_state->mutex);
    if (m_state->ending)
        return;
    m_state->waiting.push_back(std::move(operation));
    if (m_state->idle >= m_state->waiting.size() || m_state->threads.size() >= m_state->width) {
        m_state->arrived.notify_one();
        return;
    }
    try {
        m_state->threads.emplace_back([state = m_state] {
            t_currentQueue = state.get();
            std::unique_lock threadLock(state->mutex);
            for (;;) {
                ++state->idle;
                state->arrived.wait(threadLock, [&] { return state->ending || !state->waiting.empty(); });
                --state->idle;
                if (state->waiting.empty())
                    return;
                state->runFirst(threadLock);
            }
        });
    } catch (const std::exception &) {
        // No further thread can be had. Those there are do the work, or the caller where there is none.
        if (m_state->threads.empty())
            m_state->runFirst(lock);
    }
}

void OperationQueue::cancelAllOperations()
{
    std::deque<State::Operation> dropped; // destroyed without the lock
    const std::lock_guard lock(m_state->mutex);
    dropped.swap(m_state->waiting);
    if (m_state->running == 0)
        m_state->finished.notify_all();
}

void OperationQueue::waitUntilAllOperationsAreFinished()
{
    std::unique_lock lock(m_state->mutex);
    if (isCallerOperation()) {
        while (!m_state->waiting.empty())
            m_state->runFirst(lock);
        return;
    }
    m_state->finished.wait(lock, [&] { return m_state->running == 0 && m_state->waiting.empty(); });
}

bool OperationQueue::isCallerOperation() const
{
    return t_currentQueue == m_state.get();
}

int OperationQueue::operationCount() const
{
    const std::lock_guard lock(m_state->mutex);
    return static_cast<int>(m_state->waiting.size() + m_state->running);
}

} // namespace vantrell
