#pragma once

#include "handover/Relinker.h"
#include "media/PathMapping.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace vantrell
{

/// What is to become of the matches of missing files: which of them are relinked, and to which candidate
/// each. At first those with a single candidate are relinked. Main thread.
class RelinkPlan
{
public:
    RelinkPlan() = default;
    explicit RelinkPlan(std::vector<RelinkMatch> matches);

    std::size_t size() const { return m_rows.size(); }
    const RelinkMatch &match(std::size_t row) const { return m_rows[row].match; }
    /// The candidate that is taken if the file is relinked; null while none is chosen.
    const RelinkCandidate *chosen(std::size_t row) const;
    bool isRelinked(std::size_t row) const { return m_rows[row].isRelinked; }

    /// Takes that candidate, and relinks the file; an index that does not exist is ignored.
    void choose(std::size_t row, std::size_t candidate);
    /// A file whose candidate is not chosen yet gets the one in the folders that are most alike, the first of
    /// several. One without candidates stays as it is.
    void setRelinked(std::size_t row, bool isRelinked);

    std::size_t foundCount() const;     ///< files with a single candidate
    std::size_t ambiguousCount() const; ///< files with several
    std::vector<RelinkChoice> choices() const;

    /// The one folder mapping that leads from every file that is relinked to its candidate; nothing when
    /// there is none, or no file.
    std::optional<PathMapping> mapping() const;

private:
    struct Row {
        RelinkMatch match;
        std::optional<std::size_t> chosen;
        bool isRelinked = false;
    };
    std::vector<Row> m_rows;
};

} // namespace vantrell
