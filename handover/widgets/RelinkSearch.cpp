#include "handover/widgets/RelinkSearch.h"

#include "media/MediaInventory.h"
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"

#include <QPointer>

#include <atomic>

namespace vantrell
{

namespace
{

constexpr int searchProgressMs = 100;

} // namespace

/// What the search shares with its thread.
struct RelinkSearch::State {
    std::atomic<bool> isWanted = true;
    std::atomic<std::uint64_t> folders = 0;
    std::atomic<std::uint64_t> entries = 0;
    std::atomic<std::uint64_t> found = 0;

    bool note(const FolderWalk::Progress &progress)
    {
        folders = progress.folders;
        entries = progress.entries;
        found = progress.found;
        return isWanted;
    }
};

RelinkSearch::RelinkSearch(const std::vector<MissingFile> &missing, const QStringList &folders,
                           QObject *parent)
    : QObject(parent)
    , m_state(std::make_shared<State>())
{
    connect(&m_timer, &QTimer::timeout, this, [this] {
        Q_EMIT progressed({m_state->folders, m_state->entries, m_state->found});
    });
    m_timer.start(searchProgressMs);
    BackgroundWork::run([state = m_state, search = QPointer(this), missing, folders] {
        const FolderWalk walk(folders, Relinker::namesOf(missing));
        auto found = walk.result([&state](const FolderWalk::Progress &now) { return state->note(now); },
                                 MediaInventory::patience);
        if (!found)
            return;
        const auto result = std::make_shared<Result>(
            Result{Relinker::matches(missing, found->files), found->unreadable, found->unanswered});
        for (RelinkMatch &match : result->matches) {
            for (RelinkCandidate &candidate : match.candidates) {
                if (!state->isWanted)
                    return;
                Relinker::readHeader(candidate);
            }
        }
        MainThread::post([search, result] {
            if (!search)
                return;
            search->m_timer.stop();
            Q_EMIT search->ended(*result);
        });
    });
}

RelinkSearch::~RelinkSearch()
{
    m_state->isWanted = false;
}

} // namespace vantrell
