#include "handover/Checksums.h"

#include "support/files/Descriptor.h"
#include "support/log/OperationQueue.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include <fcntl.h>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>
#include <xxhash.h>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds lookInterval{50};
constexpr std::chrono::milliseconds leavePatience{500};
constexpr std::size_t blockSize = 256 << 10; // bytes; fits into the caches of a core

/// A digest of the cryptographic library, if it is wanted.
class EvpDigest
{
public:
    EvpDigest(bool wanted, const EVP_MD *kind)
        : m_context(wanted ? EVP_MD_CTX_new() : nullptr, EVP_MD_CTX_free)
        , m_isSound(!wanted || (m_context && EVP_DigestInit_ex(m_context.get(), kind, nullptr) == 1))
    {
    }

    bool isSound() const { return m_isSound; }

    void add(const char *data, std::size_t size)
    {
        if (m_context && m_isSound)
            m_isSound = EVP_DigestUpdate(m_context.get(), data, size) == 1;
    }

    QByteArray hex()
    {
        if (!m_context || !m_isSound)
            return QByteArray();
        std::array<unsigned char, EVP_MAX_MD_SIZE> digest;
        unsigned size = 0;
        m_isSound = EVP_DigestFinal_ex(m_context.get(), digest.data(), &size) == 1;
        return QByteArray(reinterpret_cast<const char *>(digest.data()), qsizetype(size)).toHex();
    }

private:
    std::unique_ptr<EVP_MD_CTX, void (*)(EVP_MD_CTX *)> m_context;
    bool m_isSound;
};

class XxHash
{
public:
    explicit XxHash(bool wanted)
        : m_state(wanted ? XXH64_createState() : nullptr, XXH64_freeState)
        , m_isSound(!wanted || (m_state && XXH64_reset(m_state.get(), 0) == XXH_OK))
    {
    }

    bool isSound() const { return m_isSound; }

    void add(const char *data, std::size_t size)
    {
        if (m_state && m_isSound)
            m_isSound = XXH64_update(m_state.get(), data, size) == XXH_OK;
    }

    QByteArray hex() const
    {
        if (!m_state || !m_isSound)
            return QByteArray();
        return QByteArray::number(qulonglong(XXH64_digest(m_state.get())), 16).rightJustified(16, '0');
    }

private:
    std::unique_ptr<XXH64_state_t, XXH_errorcode (*)(XXH64_state_t *)> m_state;
    bool m_isSound;
};

std::int64_t millisecondsOf(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1000 + time.tv_nsec / 1'000'000;
}

bool isSameState(const struct stat &a, const struct stat &b)
{
    return a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
           a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

ChecksumResult failed(ChecksumResult::State state)
{
    ChecksumResult result;
    result.state = state;
    return result;
}

} // namespace

ChecksumResult ChecksumRun::read(const Task &task, const Advance &advance)
{
    using enum ChecksumResult::State;
    // Opening a pipe would wait for a writer.
    const Descriptor file(
        task.path.contains('\0') ? -1 : ::open(task.path.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!file.isOpen())
        return failed(errno == ENOENT || errno == ENOTDIR || task.path.contains('\0') ? Missing : Unreadable);
    struct stat before;
    if (::fstat(file.number(), &before) != 0 || !S_ISREG(before.st_mode))
        return failed(Unreadable);
    ::posix_fadvise(file.number(), 0, 0, POSIX_FADV_SEQUENTIAL);
    EvpDigest md5(task.kinds.md5, EVP_md5());
    EvpDigest sha1(task.kinds.sha1, EVP_sha1());
    XxHash xxhash64(task.kinds.xxhash64);
    std::vector<char> block(blockSize);
    std::int64_t total = 0;
    for (;;) {
        const ssize_t size = ::read(file.number(), block.data(), block.size());
        if (size < 0 && errno == EINTR)
            continue;
        if (size < 0)
            return failed(Unreadable);
        if (size == 0)
            break;
        md5.add(block.data(), std::size_t(size));
        sha1.add(block.data(), std::size_t(size));
        xxhash64.add(block.data(), std::size_t(size));
        total += size;
        if (!advance(size))
            return failed(Unreadable);
    }
    struct stat after;
    if (::fstat(file.number(), &after) != 0)
        return failed(Unreadable);
    if (!isSameState(before, after) || total != after.st_size)
        return failed(Changed);
    ChecksumResult result{Done,
                          {md5.hex(), sha1.hex(), xxhash64.hex()},
                          total,
                          millisecondsOf(after.st_mtim),
                          QDateTime::currentDateTimeUtc()};
    return md5.isSound() && sha1.isSound() && xxhash64.isSound() ? result : failed(Unreadable);
}

/// What the threads share. It outlives the run for as long as one of them hangs.
struct ChecksumRun::State {
    std::vector<Task> tasks;
    Reader reader;
    std::atomic<std::size_t> next = 0;
    std::atomic<std::int64_t> bytes = 0;
    std::atomic<bool> ended = false;
    std::chrono::steady_clock::time_point started = std::chrono::steady_clock::now();

    std::mutex mutex; // guards the members below
    std::condition_variable changed;
    Results results;
    std::vector<std::size_t> finished; ///< in the order in which they were
    std::size_t working = 0;           ///< threads

    void workOnThread()
    {
        guarded("ChecksumRun::State::work", [this] { work(); });
        const std::lock_guard lock(mutex);
        --working;
        changed.notify_all();
    }

    void work()
    {
        for (;;) {
            const std::size_t index = next++;
            if (index >= tasks.size() || ended)
                return;
            const ChecksumResult result = reader(tasks[index], [this](std::int64_t more) {
                bytes += more;
                return !ended;
            });
            const std::lock_guard lock(mutex);
            results[index] = result;
            finished.push_back(index);
            changed.notify_all();
        }
    }

    Progress progress(std::size_t files, std::int64_t total) const
    {
        Progress now{bytes, total, files, std::chrono::seconds(0)};
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - started;
        if (now.bytes > 0 && now.bytes < total)
            now.left = std::chrono::seconds(
                std::int64_t(taken.count() * double(total - now.bytes) / double(now.bytes)));
        return now;
    }
};

ChecksumRun::ChecksumRun(std::vector<Task> tasks, int width, const Reader &reader)
    : m_state(std::make_shared<State>())
{
    m_state->tasks = std::move(tasks);
    m_state->reader = reader;
    m_state->results.resize(m_state->tasks.size());
    const auto wanted = std::size_t(width > 0 ? width : OperationQueue::processorCount());
    const std::size_t count = std::min(wanted, m_state->tasks.size());
    m_threads.reserve(count);
    try {
        const std::lock_guard lock(m_state->mutex);
        for (; m_state->working < count; ++m_state->working)
            m_threads.emplace_back([state = m_state] { state->workOnThread(); });
    } catch (const std::system_error &error) {
        QVLog::appendLog(u"Files are read without a thread: %@", QString::fromLocal8Bit(error.what()));
    }
    if (m_threads.empty())
        guarded("ChecksumRun::State::work", [&] { m_state->work(); });
}

ChecksumRun::~ChecksumRun()
{
    m_state->ended = true;
    std::unique_lock lock(m_state->mutex);
    const bool haveLeft =
        m_state->changed.wait_for(lock, leavePatience, [this] { return m_state->working == 0; });
    lock.unlock();
    for (std::thread &thread : m_threads) {
        if (haveLeft)
            thread.join();
        else
            thread.detach();
    }
}

std::optional<ChecksumRun::Results>
ChecksumRun::results(const std::function<bool(const Progress &)> &goesOn,
                     const std::function<void(std::size_t, const ChecksumResult &)> &finished,
                     std::chrono::milliseconds patience)
{
    std::int64_t total = 0;
    for (const Task &task : m_state->tasks)
        total += task.expectedSize;
    std::size_t told = 0;
    std::int64_t lastBytes = -1;
    auto lastAnswer = std::chrono::steady_clock::now();
    std::unique_lock lock(m_state->mutex);
    for (;;) {
        const std::vector<std::size_t> fresh(m_state->finished.begin() + std::ptrdiff_t(told),
                                             m_state->finished.end());
        const Results results = [&] {
            Results some;
            for (const std::size_t index : fresh)
                some.push_back(m_state->results[index]);
            return some;
        }();
        lock.unlock();
        for (std::size_t i = 0; i < fresh.size() && finished; ++i)
            finished(fresh[i], results[i]);
        told += fresh.size();
        const Progress progress = m_state->progress(told, total);
        const bool isWanted = goesOn(progress);
        if (!fresh.empty() || progress.bytes != lastBytes)
            lastAnswer = std::chrono::steady_clock::now();
        lastBytes = progress.bytes;
        lock.lock();
        if (told == m_state->tasks.size())
            return m_state->results;
        if (!isWanted)
            return std::nullopt;
        if (std::chrono::steady_clock::now() - lastAnswer >= patience) {
            m_state->ended = true;
            return m_state->results; // what is not done counts as unreadable
        }
        if (m_state->finished.size() == told)
            m_state->changed.wait_for(lock, std::min(lookInterval, patience));
    }
}

} // namespace vantrell
