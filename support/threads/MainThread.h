#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace vantrell
{

/// The thread that owns the interface and the project tree, and the queue of work that the other
/// threads hand to it. The queue is a mutex and a condition variable; an event loop, when the main
/// thread runs one, is only woken to drain it. What the work throws is logged and goes no further.
class MainThread
{
public:
    MainThread() = delete;

    /// Makes the calling thread the main thread. Not needed where a QCoreApplication is made: the
    /// thread that makes it becomes the main thread. Before either it is the thread that started
    /// the program.
    static void adopt();

    /// Whether the caller is on the main thread. Any thread.
    static bool isMainThread();

    /// Runs `work` on the main thread and returns when it has ended; on the main thread at once.
    /// Any thread; the caller must hold no lock that the main thread could want.
    static void runAndWait(const std::function<void()> &work);

    /// Queues `work` for the main thread and returns at once, also on the main thread. Work runs in
    /// the order in which it was queued. Any thread.
    static void post(std::function<void()> work);

    /// Runs what is queued at the time of the call; what that work queues in turn waits for the next
    /// drain. Main thread only, elsewhere without effect.
    static void drain();

    /// For a main thread without an event loop: drains whenever work arrives until `predicate`, asked
    /// on the main thread, holds. It is asked after each piece of work, after wake(), and at least
    /// every 0.05 s. Main thread only, elsewhere without effect.
    static void drainUntil(const std::function<bool()> &predicate);

    /// The same, giving up after `timeout` (0 and less: one look; at most a day). Returns whether `predicate`
    /// held.
    static bool drainUntil(const std::function<bool()> &predicate, std::chrono::milliseconds timeout);

    /// Makes a waiting drainUntil() ask its predicate again. Any thread.
    static void wake();
};

/// A document's own door to the main thread. Once it is closed nothing gets through: callers that
/// wait return at once, and work that they or post() left in the queue is passed over. The document
/// and its workers share it; it may outlive the document.
class MainThreadGate
{
public:
    MainThreadGate();
    ~MainThreadGate();
    MainThreadGate(const MainThreadGate &) = delete;
    MainThreadGate &operator=(const MainThreadGate &) = delete;

    /// As MainThread::runAndWait(). Returns false, without having run `work`, when the gate is closed
    /// or is being closed while the caller waits; work that has begun by then is waited for. Any thread.
    bool runAndWait(const std::function<void()> &work);

    /// As MainThread::post(); no effect when the gate is closed before the work's turn. Any thread.
    void post(std::function<void()> work);

    /// Closes the gate for good. Main thread; from elsewhere it is done on the main thread, waiting.
    void close();

    /// Any thread.
    bool isClosed() const;

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
