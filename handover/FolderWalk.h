#pragma once

#include "media/FileChecks.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vantrell
{

/// Looks for files of given names in folders and all that is below them. The looking is done by detached
/// threads that hold nothing but their share of the work: a volume that does not answer leaves them behind,
/// and nobody waits for them. Links to files and folders are followed; what they lead to is found once, by
/// its own path if that is below the folders. Main thread unless a member says otherwise.
class FolderWalk
{
public:
    /// What a folder holds.
    struct Listing {
        enum class Kind { File, LinkedFile, Folder, LinkedFolder };
        struct Entry {
            QByteArray name; ///< in the file system's encoding
            Kind kind = Kind::File;
        };
        bool isReadable = false;
        std::uint64_t device = 0;
        std::uint64_t number = 0; ///< of the folder on its device
        std::vector<Entry> entries;
    };
    /// Lists a folder. On the detached threads, so it may own nothing that can go away.
    using Lister = std::function<Listing(const QByteArray &folder)>;

    /// Starts at once. A file is found when the relaxed form of its name (FileNames::relaxed()) is among \a
    /// relaxedNames.
    FolderWalk(const QStringList &folders, QSet<QString> relaxedNames, const Lister &lister = list);
    /// Ends the looking and waits for nothing.
    ~FolderWalk();
    FolderWalk(const FolderWalk &) = delete;
    FolderWalk &operator=(const FolderWalk &) = delete;

    struct Progress {
        std::uint64_t folders = 0; ///< looked into
        std::uint64_t entries = 0; ///< seen in them
        std::uint64_t found = 0;
    };
    struct Found {
        QString path;
        FileFacts facts;
    };
    struct Result {
        std::vector<Found> files; ///< in the order of their paths
        QStringList unreadable;   ///< folders that cannot be listed
        QStringList unanswered;   ///< folders that gave no answer
    };

    /// Waits until all is looked at, or until nothing has been heard for \a patience: what has not been
    /// answered by then is left out. Nothing as soon as \a goesOn, which is asked many times a second, says
    /// no.
    std::optional<Result> result(const std::function<bool(const Progress &)> &goesOn,
                                 std::chrono::milliseconds patience) const;

    /// Lists a folder on the calling thread: regular files, folders, and links to these.
    static Listing list(const QByteArray &folder);

private:
    struct State;
    std::shared_ptr<State> m_state;
};

} // namespace vantrell
