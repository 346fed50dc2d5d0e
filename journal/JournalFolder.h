#pragma once

#include "journal/JournalFile.h"
#include "support/files/Descriptor.h"

#include <QString>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace vantrell
{

/// A journal that this object has to itself: no other one, in this process or another, can take it until this
/// one is gone. Whoever writes a journal has taken it, so that a living process's is never found. Any thread.
class TakenJournal
{
public:
    /// Nothing when somebody else has it, or there is none.
    static std::optional<TakenJournal> take(const QString &path);
    /// Makes a new file, which is taken before it has its name; nothing when that cannot be done.
    static std::optional<TakenJournal> make(const QString &folder);

    const QString &path() const { return m_path; }
    int descriptor() const { return m_file.number(); }

    /// The whole file; nothing when it cannot be read.
    std::optional<std::string> read() const;
    /// Gives it another path in the folder, replacing what is there.
    bool rename(const QString &path);
    /// Its changes were given up by reverting, or brought back: meanwhile it is found by nobody.
    bool setGivenUp(bool isGivenUp);
    void remove();

private:
    TakenJournal(QString path, Descriptor file)
        : m_path(std::move(path))
        , m_file(std::move(file))
    {
    }

    QString m_path;
    Descriptor m_file;
};

/// A journal of a process that has ended without saving.
struct FoundJournal {
    QString path;
    JournalHeader header;
    std::uint32_t changes = 0;   ///< unsaved
    std::int64_t lastChange = 0; ///< milliseconds since 1970, UTC
    enum class Project { Unchanged, Changed, Missing };
    Project project = Project::Unchanged; ///< the file since the journal was begun, by its stamp
};

/// The folder of the journals. Any thread; what it reads takes time.
namespace JournalFolder
{

/// In the user's library folder.
QString standard();

/// The journals that nobody has taken, the latest first; with a path only those of that project. Those that
/// hold nothing are removed; damaged ones are renamed, and a line of the log tells it.
std::vector<FoundJournal> find(const QString &folder, const QString &projectPath = QString());

/// Takes a found journal to be restored; nothing when it is gone, taken or damaged by now.
struct Restorable {
    TakenJournal file;
    JournalContents contents;
};
std::optional<Restorable> take(const FoundJournal &journal);

/// Removes it for good; false when somebody has taken it.
bool discard(const FoundJournal &journal);

} // namespace JournalFolder
} // namespace vantrell
