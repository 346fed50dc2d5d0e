#pragma once

#include <QString>

#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace vantrell
{

/// The serial queue of the log: texts go in on any thread and come out, in their order and one at a
/// time, on one thread of the queue's own. That thread starts with the first text.
class LogQueue
{
public:
    /// Takes one text on the queue's thread; must not throw and must not make objects that Qt ties to
    /// a thread (QFile and every other QObject): the queue may outlive what Qt keeps about threads.
    using Handler = std::function<void(const QString &)>;

    explicit LogQueue(Handler handler);
    LogQueue(const LogQueue &) = delete;
    LogQueue &operator=(const LogQueue &) = delete;

    /// Stops as stop() does. Not on the queue's own thread.
    ~LogQueue();

    /// Adds a text; false when the queue has been stopped or has no thread.
    bool append(const QString &text);

    /// How many texts have been added and not been handled yet. Any thread.
    quint64 pendingCount() const;

    /// Returns when every text added before the call has been handled. On the queue's own thread it
    /// handles them itself, at once.
    void finish();

    /// Drops the texts that wait. The one being handled ends as usual.
    void cancelAll();

    /// Takes no text from now on, has those that wait handled and ends the thread. Not on the queue's
    /// own thread.
    void stop();

    bool isOwnThread() const;

private:
    void run();
    bool handleNext();

    const Handler m_handler;
    mutable std::mutex m_mutex; ///< guards the members down to m_thread
    std::condition_variable m_wake;
    std::condition_variable m_handled;
    std::vector<QString> m_incoming;
    quint64 m_appended = 0;
    bool m_stopped = false;
    std::thread m_thread;

    std::vector<QString> m_batch; ///< taken from m_incoming; the queue's thread alone
    std::size_t m_next = 0;       ///< into m_batch; the queue's thread alone

    std::atomic<quint64> m_done = 0;
    std::atomic<int> m_waiting = 0; ///< how many threads wait for m_handled
    std::atomic<bool> m_cancelled = false;
};

} // namespace vantrell
