#pragma once

#include "handover/Relinker.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <vector>

namespace vantrell
{

/// One search for missing files in folders, on a thread of its own that nobody waits for. Main thread.
class RelinkSearch final : public QObject
{
    Q_OBJECT

public:
    /// Starts at once.
    RelinkSearch(const std::vector<MissingFile> &missing, const QStringList &folders, QObject *parent);
    /// Cancels the search.
    ~RelinkSearch() override;

    struct Result {
        std::vector<RelinkMatch> matches; ///< one for each missing file, in their order
        QStringList unreadable;           ///< folders that cannot be listed
        QStringList unanswered;           ///< folders that gave no answer
    };

Q_SIGNALS:
    void progressed(const vantrell::FolderWalk::Progress &progress);
    /// Emitted once, unless the search is destroyed before.
    void ended(const vantrell::RelinkSearch::Result &result);

private:
    struct State;
    std::shared_ptr<State> m_state;
    QTimer m_timer;
};

} // namespace vantrell
