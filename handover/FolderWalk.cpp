#include "handover/FolderWalk.h"

#include "handover/FileNames.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"

#include <QFile>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <set>
#include <system_error>
#include <thread>
#include <utility>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vantrell
{

namespace
{

constexpr std::chrono::milliseconds walkLookInterval{25};
constexpr int walkThreads = 4; // they mostly wait for the disk

QByteArray pathIn(const QByteArray &folder, const QByteArray &name)
{
    return folder.endsWith('/') ? folder + name : folder + '/' + name;
}

} // namespace

/// What the threads share. It outlives the walk for as long as one of them is stuck.
struct FolderWalk::State {
    using Identity = std::pair<std::uint64_t, std::uint64_t>; // device and number

    QSet<QString> names;
    Lister lister;
    std::atomic<bool> ended = false;

    std::mutex mutex; // guards the members below
    std::condition_variable changed;
    std::deque<QByteArray> folders;
    std::deque<QByteArray> linkedFolders; ///< looked into when there is no other one left
    std::multiset<QByteArray> open;       ///< being listed
    std::set<Identity> seen;
    Progress progress;
    struct Candidate {
        Found found;
        bool isLink = false;
        Identity identity;
    };
    std::vector<Candidate> candidates;
    QStringList unreadable;
    std::chrono::steady_clock::time_point lastAnswer = std::chrono::steady_clock::now();

    /// The next folder to list; empty when the walk is over or has been ended.
    QByteArray next()
    {
        std::unique_lock lock(mutex);
        changed.wait(lock, [this] { return ended || !folders.empty() || open.empty(); });
        std::deque<QByteArray> &from = folders.empty() ? linkedFolders : folders;
        if (ended || from.empty())
            return QByteArray();
        QByteArray folder = from.front();
        from.pop_front();
        open.insert(folder);
        return folder;
    }

    void work()
    {
        for (;;) {
            const QByteArray folder = next();
            if (folder.isEmpty())
                return;
            const Listing listing = lister(folder);
            std::vector<QByteArray> below;
            std::vector<QByteArray> linked;
            std::vector<Candidate> found;
            if (isNew(listing))
                look(folder, listing, below, linked, found);
            const std::lock_guard lock(mutex);
            if (!listing.isReadable)
                unreadable.append(QFile::decodeName(folder));
            folders.insert(folders.end(), below.begin(), below.end());
            linkedFolders.insert(linkedFolders.end(), linked.begin(), linked.end());
            progress.folders += 1;
            progress.entries += listing.entries.size();
            progress.found += found.size();
            candidates.insert(candidates.end(), found.begin(), found.end());
            lastAnswer = std::chrono::steady_clock::now();
            open.erase(open.find(folder));
            changed.notify_all();
        }
    }

    bool isNew(const Listing &listing)
    {
        const std::lock_guard lock(mutex);
        return listing.isReadable && seen.insert({listing.device, listing.number}).second;
    }

    void look(const QByteArray &folder, const Listing &listing, std::vector<QByteArray> &below,
              std::vector<QByteArray> &linked, std::vector<Candidate> &found) const
    {
        for (const Listing::Entry &entry : listing.entries) {
            if (entry.kind == Listing::Kind::Folder)
                below.push_back(pathIn(folder, entry.name));
            else if (entry.kind == Listing::Kind::LinkedFolder)
                linked.push_back(pathIn(folder, entry.name));
            else if (names.contains(FileNames::relaxed(QFile::decodeName(entry.name)))) {
                const QByteArray path = pathIn(folder, entry.name);
                struct stat status;
                if (::stat(path.constData(), &status) != 0)
                    continue;
                found.push_back({{QFile::decodeName(path), FileChecks::lookUp(path)},
                                 entry.kind == Listing::Kind::LinkedFile,
                                 {status.st_dev, status.st_ino}});
            }
            if (ended)
                return;
        }
    }

    /// Each file once, by a path without a link at its end if there is one.
    static std::vector<Found> distinct(std::vector<Candidate> candidates)
    {
        std::sort(candidates.begin(), candidates.end(), [](const Candidate &a, const Candidate &b) {
            return a.isLink != b.isLink ? b.isLink : a.found.path < b.found.path;
        });
        std::set<Identity> known;
        std::vector<Found> files;
        for (Candidate &candidate : candidates) {
            if (known.insert(candidate.identity).second)
                files.push_back(std::move(candidate.found));
        }
        std::sort(files.begin(), files.end(), [](const Found &a, const Found &b) { return a.path < b.path; });
        return files;
    }

    bool isOver() const { return folders.empty() && linkedFolders.empty() && open.empty(); }
};

FolderWalk::FolderWalk(const QStringList &folders, QSet<QString> relaxedNames, const Lister &lister)
    : m_state(std::make_shared<State>())
{
    m_state->names = std::move(relaxedNames);
    m_state->lister = lister;
    for (const QString &folder : folders)
        m_state->folders.push_back(QFile::encodeName(folder));
    int threads = 0;
    try {
        for (; threads < walkThreads; ++threads) {
            std::thread([state = m_state] {
                guarded("FolderWalk::State::work", [&] { state->work(); });
            }).detach();
        }
    } catch (const std::system_error &error) {
        QVLog::appendLog(u"Folders are looked into without a thread: %@",
                         QString::fromLocal8Bit(error.what()));
    }
    if (threads == 0)
        guarded("FolderWalk::State::work", [&] { m_state->work(); });
}

FolderWalk::~FolderWalk()
{
    m_state->ended = true;
    const std::lock_guard lock(m_state->mutex);
    m_state->changed.notify_all();
}

std::optional<FolderWalk::Result> FolderWalk::result(const std::function<bool(const Progress &)> &goesOn,
                                                     std::chrono::milliseconds patience) const
{
    std::unique_lock lock(m_state->mutex);
    while (!m_state->isOver()) {
        const Progress progress = m_state->progress;
        lock.unlock();
        const bool isWanted = goesOn(progress);
        lock.lock();
        if (!isWanted)
            return std::nullopt;
        if (std::chrono::steady_clock::now() - m_state->lastAnswer >= patience)
            break;
        m_state->changed.wait_for(lock, std::min(walkLookInterval, patience));
    }
    Result result{{}, m_state->unreadable, {}};
    std::vector<State::Candidate> candidates = m_state->candidates;
    for (const QByteArray &folder : m_state->open)
        result.unanswered.append(QFile::decodeName(folder));
    for (const auto *waiting : {&m_state->folders, &m_state->linkedFolders}) {
        for (const QByteArray &folder : *waiting)
            result.unanswered.append(QFile::decodeName(folder));
    }
    lock.unlock();
    result.files = State::distinct(std::move(candidates));
    result.unreadable.sort();
    return result;
}

FolderWalk::Listing FolderWalk::list(const QByteArray &folder)
{
    Listing listing;
    DIR *const directory = ::opendir(folder.constData());
    if (!directory)
        return listing;
    struct stat own;
    if (::fstat(::dirfd(directory), &own) == 0) {
        listing.isReadable = true;
        listing.device = own.st_dev;
        listing.number = own.st_ino;
    }
    while (const dirent *entry = ::readdir(directory)) {
        const QByteArray name(entry->d_name);
        if (name == "." || name == "..")
            continue;
        struct stat status;
        unsigned char type = entry->d_type;
        if (type == DT_UNKNOWN &&
            ::fstatat(::dirfd(directory), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0)
            type = static_cast<unsigned char>(IFTODT(status.st_mode));
        if (type == DT_REG)
            listing.entries.push_back({name, Listing::Kind::File});
        else if (type == DT_DIR)
            listing.entries.push_back({name, Listing::Kind::Folder});
        else if (type == DT_LNK && ::fstatat(::dirfd(directory), entry->d_name, &status, 0) == 0) {
            if (S_ISREG(status.st_mode))
                listing.entries.push_back({name, Listing::Kind::LinkedFile});
            else if (S_ISDIR(status.st_mode))
                listing.entries.push_back({name, Listing::Kind::LinkedFolder});
        }
    }
    ::closedir(directory);
    return listing;
}

} // namespace vantrell
