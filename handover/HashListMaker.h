#pragma once

#include "handover/ChecksumJournal.h"
#include "handover/HashList.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vantrell
{

/// Makes a media hash list of files, with MD5 and xxHash64 checksums. What a run for the same list has done
/// before it was cancelled or interrupted is taken over by the next one. One thread, which may wait for the
/// disk.
class HashListMaker
{
public:
    /// Each of the places once, in their order; empty ones are left out. The list is going to be at the
    /// absolute path \a target; when it is not \a isKept there, no checksums are kept for a later run either.
    HashListMaker(const QStringList &places, const QString &target, bool isKept = true);

    struct Made {
        HashList list; ///< of the files that could be read
        struct Problem {
            QString path;
            bool hasChanged = false; ///< while it was read; it cannot be read otherwise
        };
        std::vector<Problem> problems;
    };
    using GoesOn = std::function<bool(const ChecksumRun::Progress &)>;
    /// Reads the files. Nothing when \a goesOn says no, which is asked many times a second and told what is
    /// read in this run. A volume that has not answered for \a patience leaves its files unread.
    std::optional<Made> make(const GoesOn &goesOn, std::chrono::milliseconds patience);

    /// The list is written: nothing is kept any more.
    void forget();

private:
    HashList m_list;
    std::vector<QByteArray> m_paths; // of the entries
    std::unique_ptr<ChecksumJournal> m_journal;
};

} // namespace vantrell
