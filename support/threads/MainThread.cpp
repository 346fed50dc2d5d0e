#include "support/threads/MainThread.h"

#include "support/files/Descriptor.h"
#include "support/log/QVException.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace vantrell
{

namespace
{

using Work = std::function<void()>;

constexpr std::chrono::milliseconds PredicateInterval{50};
constexpr std::chrono::milliseconds LongestWait = std::chrono::hours(24);

std::atomic<std::thread::id> s_mainThread{std::this_thread::get_id()};

/// The main thread's queue. A descriptor tells the event loop that something waits; it is used because,
/// unlike a posted event, it touches nothing of Qt's on the sender's thread.
class WorkQueue
{
public:
    void add(Work work)
    {
        {
            const std::lock_guard lock(m_mutex);
            m_entries.push_back({++m_lastNumber, std::move(work)});
            signalEventLoop();
        }
        m_changed.notify_all();
    }

    void wake()
    {
        {
            const std::lock_guard lock(m_mutex);
            ++m_wakes;
        }
        m_changed.notify_all();
    }

    std::uint64_t lastNumber()
    {
        const std::lock_guard lock(m_mutex);
        return m_lastNumber;
    }

    std::uint64_t wakes()
    {
        const std::lock_guard lock(m_mutex);
        return m_wakes;
    }

    /// Takes the first entry when its number is at most `limit`.
    bool take(std::uint64_t limit, Work &work)
    {
        const std::lock_guard lock(m_mutex);
        if (m_entries.empty() || m_entries.front().number > limit)
            return false;
        work = std::move(m_entries.front().work);
        m_entries.pop_front();
        return true;
    }

    /// Waits until there is work, wakes() has left `seenWakes`, or the time has come.
    void waitForChange(std::uint64_t seenWakes, std::chrono::steady_clock::time_point until)
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_until(lock, until, [&] { return !m_entries.empty() || m_wakes != seenWakes; });
    }

    /// Gives the queue a descriptor to wake the event loop through, and returns it; -1 on failure.
    int openWake()
    {
        const std::lock_guard lock(m_mutex);
        m_wake = Descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK));
        m_signalled = false;
        if (!m_entries.empty())
            signalEventLoop();
        return m_wake.number();
    }

    void closeWake()
    {
        const std::lock_guard lock(m_mutex);
        m_wake.close();
    }

    void clearWake()
    {
        const std::lock_guard lock(m_mutex);
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t size = ::read(m_wake.number(), &count, sizeof count);
        m_signalled = false;
    }

private:
    struct Entry {
        std::uint64_t number;
        Work work;
    };

    void signalEventLoop()
    {
        if (!m_wake.isOpen() || m_signalled)
            return;
        const std::uint64_t one = 1;
        m_signalled = ::write(m_wake.number(), &one, sizeof one) == sizeof one;
    }

    std::mutex m_mutex; // guards everything below
    std::condition_variable m_changed;
    std::deque<Entry> m_entries;
    std::uint64_t m_lastNumber = 0;
    std::uint64_t m_wakes = 0;
    Descriptor m_wake;
    bool m_signalled = false;
};

WorkQueue &workQueue()
{
    // Never destroyed: threads that were left behind may still hand in work while the program ends.
    static WorkQueue *const queue = new WorkQueue;
    return *queue;
}

QObject *s_drainer = nullptr; // calls MainThread::drain() from the event loop; main thread only

void leaveApplication()
{
    delete s_drainer;
    s_drainer = nullptr;
    workQueue().closeWake();
}

void joinApplication()
{
    MainThread::adopt();
    const int wake = workQueue().openWake();
    if (wake >= 0) {
        auto *const notifier = new QSocketNotifier(wake, QSocketNotifier::Read);
        QObject::connect(notifier, &QSocketNotifier::activated, notifier, [] {
            workQueue().clearWake();
            MainThread::drain();
        });
        s_drainer = notifier;
    } else { // no descriptor is left: the queue is looked at now and then
        auto *const timer = new QTimer;
        QObject::connect(timer, &QTimer::timeout, timer, &MainThread::drain);
        timer->start(PredicateInterval);
        s_drainer = timer;
    }
    qAddPostRoutine(leaveApplication);
}

Q_COREAPP_STARTUP_FUNCTION(joinApplication)

} // namespace

void MainThread::adopt()
{
    s_mainThread.store(std::this_thread::get_id());
}

bool MainThread::isMainThread()
{
    return s_mainThread.load() == std::this_thread::get_id();
}

void MainThread::runAndWait(const std::function<void()> &work)
{
    if (isMainThread()) {
        guarded("MainThread::runAndWait", work);
        return;
    }
    struct Ticket {
        std::mutex mutex; // guards ended
        std::condition_variable changed;
        bool ended = false;
    };
    const auto ticket = std::make_shared<Ticket>();
    workQueue().add([ticket, &work] {
        guarded("MainThread::runAndWait", work);
        const std::lock_guard lock(ticket->mutex);
        ticket->ended = true;
        ticket->changed.notify_all();
    });
    std::unique_lock lock(ticket->mutex);
    ticket->changed.wait(lock, [&] { return ticket->ended; });
}

void MainThread::post(std::function<void()> work)
{
    workQueue().add(std::move(work));
}

void MainThread::drain()
{
    if (!isMainThread())
        return;
    const std::uint64_t limit = workQueue().lastNumber();
    Work work;
    while (workQueue().take(limit, work)) {
        guarded("MainThread::drain", work);
        work = nullptr;
    }
}

void MainThread::drainUntil(const std::function<bool()> &predicate)
{
    while (!drainUntil(predicate, LongestWait) && isMainThread()) {
    }
}

bool MainThread::drainUntil(const std::function<bool()> &predicate, std::chrono::milliseconds timeout)
{
    if (!isMainThread())
        return false;
    const auto holds = [&predicate] {
        bool answer = true; // a predicate that throws cannot be waited for
        guarded("MainThread::drainUntil", [&] { answer = predicate(); });
        return answer;
    };
    const auto deadline = std::chrono::steady_clock::now() + std::min(timeout, LongestWait);
    for (;;) {
        const std::uint64_t wakes = workQueue().wakes();
        if (holds())
            return true;
        Work work;
        if (workQueue().take(workQueue().lastNumber(), work)) {
            guarded("MainThread::drainUntil", work);
            continue;
        }
        const auto now = std::chrono::steady_clock::now();
        if (now >= deadline)
            return false;
        workQueue().waitForChange(wakes, std::min(deadline, now + PredicateInterval));
    }
}

void MainThread::wake()
{
    workQueue().wake();
}

struct MainThreadGate::State {
    mutable std::mutex mutex; // guards closed and every call's progress
    std::condition_variable changed;
    bool closed = false;

    bool isClosed() const
    {
        const std::lock_guard lock(mutex);
        return closed;
    }
};

MainThreadGate::MainThreadGate()
    : m_state(std::make_shared<State>())
{
}

MainThreadGate::~MainThreadGate() = default;

bool MainThreadGate::runAndWait(const std::function<void()> &work)
{
    const std::shared_ptr<State> state = m_state;
    if (state->isClosed())
        return false;
    if (MainThread::isMainThread()) {
        guarded("MainThreadGate::runAndWait", work);
        return true;
    }
    enum class Progress { Waiting, Running, Ended };
    const auto progress = std::make_shared<Progress>(Progress::Waiting);
    // `work` belongs to the caller, who is gone once the gate is closed: looked at only after that test.
    MainThread::post([state, progress, &work] {
        {
            const std::lock_guard lock(state->mutex);
            if (state->closed)
                return;
            *progress = Progress::Running;
        }
        guarded("MainThreadGate::runAndWait", work);
        const std::lock_guard lock(state->mutex);
        *progress = Progress::Ended;
        state->changed.notify_all();
    });
    std::unique_lock lock(state->mutex);
    state->changed.wait(lock, [&] {
        return *progress == Progress::Ended || (state->closed && *progress == Progress::Waiting);
    });
    return *progress == Progress::Ended;
}

void MainThreadGate::post(std::function<void()> work)
{
    if (m_state->isClosed())
        return;
    MainThread::post([state = m_state, work = std::move(work)] {
        if (!state->isClosed())
            guarded("MainThreadGate::post", work);
    });
}

void MainThreadGate::close()
{
    MainThread::runAndWait([this] {
        const std::lock_guard lock(m_state->mutex);
        m_state->closed = true;
        m_state->changed.notify_all();
    });
}

bool MainThreadGate::isClosed() const
{
    return m_state->isClosed();
}

} // namespace vantrell
