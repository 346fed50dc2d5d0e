#pragma once

#include "handover/HashList.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace vantrell
{

/// Compares files with a media hash list. Main thread; the disk is asked by threads that may be left behind.
class Verification
{
public:
    enum class State {
        Same,
        Changed,
        Missing,
        Unreadable, ///< also an entry without a checksum that is known
    };
    struct File {
        QString file; ///< as it stands in the list
        State state = State::Unreadable;
    };

    /// The entries of a list in that folder.
    Verification(std::vector<HashListEntry> entries, const QString &listFolder);

    using GoesOn = std::function<bool(const ChecksumRun::Progress &)>;
    /// Reads every file whose size is the one in the list. Nothing when \a goesOn says no, which is asked
    /// many times a second. A volume that has not answered for \a patience leaves its files unreadable.
    std::optional<std::vector<File>> compare(const GoesOn &goesOn, std::chrono::milliseconds patience) const;

    /// The paths of the entries' files on this machine, in the file system's encoding.
    const std::vector<QByteArray> &places() const { return m_places; }

private:
    std::vector<HashListEntry> m_entries;
    std::vector<QByteArray> m_places;
};

} // namespace vantrell
