#include "support/log/LogQueue.h"

#include <exception>
#include <system_error>
#include <utility>

namespace vantrell
{

namespace
{

thread_local const LogQueue *queueOfThisThread = nullptr;

} // namespace

LogQueue::LogQueue(Handler handler)
    : m_handler(std::move(handler))
{
}

LogQueue::~LogQueue()
{
    stop();
}

bool LogQueue::append(const QString &text)
{
    bool wasEmpty = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopped)
            return false;
        if (!m_thread.joinable()) {
            try {
                m_thread = std::thread([this] { run(); });
            } catch (const std::system_error &) {
                return false;
            }
        }
        wasEmpty = m_incoming.empty();
        m_incoming.push_back(text);
        ++m_appended;
    }
    // The thread sleeps only while there is nothing at all.
    if (wasEmpty)
        m_wake.notify_one();
    return true;
}

quint64 LogQueue::pendingCount() const
{
    const std::lock_guard lock(m_mutex);
    return m_appended - m_done.load();
}

void LogQueue::finish()
{
    if (isOwnThread()) {
        std::size_t waiting = m_batch.size() - m_next;
        {
            const std::lock_guard lock(m_mutex);
            waiting += m_incoming.size();
        }
        while (waiting-- > 0 && handleNext()) {
        }
        return;
    }
    ++m_waiting;
    {
        std::unique_lock lock(m_mutex);
        const quint64 target = m_appended;
        m_handled.wait(lock, [this, target] { return m_done.load() >= target; });
    }
    --m_waiting;
}

void LogQueue::cancelAll()
{
    m_cancelled = true;
    finish();
    m_cancelled = false;
}

void LogQueue::stop()
{
    std::thread thread;
    {
        const std::lock_guard lock(m_mutex);
        m_stopped = true;
        thread.swap(m_thread);
    }
    m_wake.notify_one();
    if (thread.joinable())
        thread.join();
}

bool LogQueue::isOwnThread() const
{
    return queueOfThisThread == this;
}

void LogQueue::run()
{
    queueOfThisThread = this;
    for (;;) {
        {
            std::unique_lock lock(m_mutex);
            m_wake.wait(lock, [this] { return m_stopped || !m_incoming.empty(); });
            if (m_incoming.empty())
                return;
        }
        while (handleNext()) {
        }
    }
}

bool LogQueue::handleNext()
{
    if (m_next == m_batch.size()) {
        m_batch.clear();
        m_next = 0;
        const std::lock_guard lock(m_mutex);
        if (m_incoming.empty())
            return false;
        m_batch.swap(m_incoming);
    }
    const QString text = std::exchange(m_batch[m_next++], QString());
    try {
        if (!m_cancelled.load())
            m_handler(text);
    } catch (const std::exception &) {
        // The log cannot tell why it cannot be written.
    }
    ++m_done;
    if (m_waiting.load() > 0) {
        const std::lock_guard lock(m_mutex);
        m_handled.notify_all();
    }
    return true;
}

} // namespace vantrell
