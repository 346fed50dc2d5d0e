#include "media/FileChecks.h"

#include "support/log/OperationQueue.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <limits>
#include <mutex>
#include <thread>

#include <sys/stat.h>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds cancelInterval{25};
constexpr std::size_t pathsPerThread = 32; // fewer are not worth another one

bool liesIn(const QByteArray &path, const QByteArray &folder)
{
    return path.startsWith(folder) &&
           (path.size() == folder.size() || folder.endsWith('/') || path.at(folder.size()) == '/');
}

/// A path in the system's list of mounts, which has blanks and the like as three octal digits.
QByteArray mountPath(const QByteArray &field)
{
    QByteArray path;
    for (qsizetype i = 0; i < field.size(); ++i) {
        bool isOctal = false;
        const int byte = field.at(i) == '\\' ? field.mid(i + 1, 3).toInt(&isOctal, 8) : 0;
        path += isOctal ? char(byte) : field.at(i);
        i += isOctal ? 3 : 0;
    }
    return path;
}

/// Tells the volume of a path by its text alone; the disk is not touched.
class Volumes
{
public:
    Volumes()
    {
        QFile mounts(QStringLiteral("/proc/self/mounts"));
        if (mounts.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : mounts.readAll().split('\n'))
                m_mounts.push_back(mountPath(line.split(' ').value(1)));
        }
        std::sort(m_mounts.begin(), m_mounts.end(),
                  [](const QByteArray &a, const QByteArray &b) { return a.size() > b.size(); });
    }

    QByteArray volumeOf(const QByteArray &path)
    {
        const QByteArray directory = path.left(path.lastIndexOf('/') + 1);
        const auto known = m_known.constFind(directory);
        if (known != m_known.constEnd())
            return *known;
        const QByteArray volume = find(path);
        m_known.insert(directory, volume);
        return volume;
    }

private:
    QByteArray find(const QByteArray &path) const
    {
        QByteArray volume;
        const auto mount = std::find_if(m_mounts.begin(), m_mounts.end(), [&path](const QByteArray &mounted) {
            return !mounted.isEmpty() && liesIn(path, mounted);
        });
        if (mount != m_mounts.end())
            volume = *mount;
        const QByteArray folder = "/Volumes/"; // for systems that do not list their mounts
        const qsizetype end = path.startsWith(folder) ? path.indexOf('/', folder.size()) : -1;
        return end > volume.size() ? path.left(end) : volume;
    }

    std::vector<QByteArray> m_mounts;      // the longest first
    QHash<QByteArray, QByteArray> m_known; // volumes by folder
};

} // namespace

/// What the threads share. It outlives the FileChecks for as long as one of them is stuck.
struct FileChecks::State {
    struct Volume {
        std::vector<std::size_t> paths;
        std::atomic<std::size_t> next = 0;
    };

    std::vector<QByteArray> paths;
    Check check;
    std::vector<std::unique_ptr<Volume>> volumes;
    std::atomic<bool> ended = false;

    std::mutex mutex; // guards the members below
    std::condition_variable answered;
    Answers answers;
    std::size_t open = 0; ///< paths without an answer
    std::chrono::steady_clock::time_point lastAnswer = std::chrono::steady_clock::now();

    void store(std::size_t path, const FileFacts &facts)
    {
        const std::lock_guard lock(mutex);
        answers[path] = facts;
        lastAnswer = std::chrono::steady_clock::now();
        if (--open == 0)
            answered.notify_all();
    }

    void work(Volume &volume)
    {
        for (;;) {
            const std::size_t next = volume.next++;
            if (next >= volume.paths.size() || ended)
                return;
            store(volume.paths[next], check(paths[volume.paths[next]]));
        }
    }
};

FileChecks::FileChecks(std::vector<QByteArray> paths, const Check &check)
    : m_state(std::make_shared<State>())
{
    State &state = *m_state;
    state.paths = std::move(paths);
    state.check = check;
    state.answers.resize(state.paths.size());
    state.open = state.paths.size();
    Volumes volumes;
    QHash<QByteArray, State::Volume *> byName;
    for (std::size_t i = 0; i < state.paths.size(); ++i) {
        if (state.paths[i].isEmpty()) {
            state.store(i, FileFacts());
            continue;
        }
        State::Volume *&volume = byName[volumes.volumeOf(state.paths[i])];
        if (!volume) {
            state.volumes.push_back(std::make_unique<State::Volume>());
            volume = state.volumes.back().get();
        }
        volume->paths.push_back(i);
    }
    const auto width = std::size_t(OperationQueue::processorCount());
    for (const auto &volume : state.volumes) {
        const std::size_t useful = (volume->paths.size() + pathsPerThread - 1) / pathsPerThread;
        std::size_t threads = 0;
        try {
            for (; threads < std::min(width, useful); ++threads) {
                std::thread([shared = m_state, own = volume.get()] {
                    guarded("FileChecks::State::work", [&] { shared->work(*own); });
                }).detach();
            }
        } catch (const std::exception &error) {
            QVLog::appendLog(u"Files are looked at without a thread: %@",
                             QString::fromLocal8Bit(error.what()));
        }
        if (threads == 0)
            guarded("FileChecks::State::work", [&] { state.work(*volume); });
    }
}

FileChecks::~FileChecks()
{
    m_state->ended = true;
}

std::optional<FileChecks::Answers> FileChecks::answers(const std::function<bool()> &isCancelled,
                                                       std::chrono::milliseconds patience) const
{
    std::unique_lock lock(m_state->mutex);
    while (m_state->open > 0) {
        if (isCancelled())
            return std::nullopt;
        if (std::chrono::steady_clock::now() - m_state->lastAnswer >= patience)
            break;
        m_state->answered.wait_for(lock, std::min(cancelInterval, patience));
    }
    return m_state->answers;
}

FileFacts FileChecks::lookUp(const QByteArray &path)
{
    FileFacts facts;
    struct stat status;
    facts.exists = !path.isEmpty() && !path.contains('\0') && ::stat(path.constData(), &status) == 0;
    if (!facts.exists)
        return facts;
    facts.isFolder = S_ISDIR(status.st_mode);
    facts.size = status.st_size;
    constexpr std::int64_t lastSecond = std::numeric_limits<std::int64_t>::max() / 1000 - 1;
    const std::int64_t seconds = status.st_mtim.tv_sec;
    if (seconds <= lastSecond && seconds >= -lastSecond)
        facts.modified = seconds * 1000 + status.st_mtim.tv_nsec / 1'000'000;
    return facts;
}

} // namespace vantrell
