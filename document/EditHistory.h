#pragma once

#include "document/ChangeMarks.h"
#include "document/Tab.h"
#include "rows/RowChanges.h"
#include "xml/XmlChanges.h"

#include <QString>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vantrell
{

/// Edits of the same group that follow one another are one step; 0 is none.
using EditGroup = std::uint64_t;

/// Selected rows of a tab: the records, or for a large selection where they are in the tab's list, which is
/// the same again once the edit is undone.
struct KeptSelection {
    /// One more than a selection may have to be kept as records.
    static constexpr std::size_t large = 1000;

    KeptSelection() = default;
    KeptSelection(RowList selected, const RowList &list);

    /// The selected rows of the list; nothing of a large selection when the list was replaced since.
    RowList rows(const RowList &list, bool isReplaced) const;

private:
    RowList m_rows;
    std::vector<std::pair<std::size_t, std::size_t>> m_ranges; ///< first index and count, ascending
};

/// One edit that the user can undo: what it did, or after undoing it what redoes it.
struct EditStep {
    QString name; ///< such as "Rename Marker", for the menu
    Tab tab = Tab::Markers;
    EditGroup group = 0;
    XmlChanges tree;
    RowChanges rows;
    ChangeMarks::Edit marks;
    std::array<std::uint64_t, 3> generations = {}; ///< of the lists that the rows belong to, by tab
    KeptSelection selection;                       ///< in the tab, before the edit
    bool wasSorted = false;                        ///< the tab's table, before the edit
    bool isRestored = false; ///< from a journal: no rows are known, so that all lists are made anew

    bool isEmpty() const { return tree.isEmpty() && rows.isEmpty() && marks.before == marks.after; }
};

/// The steps that can be undone and redone, as many as there were. Main thread.
class EditHistory
{
public:
    /// The step was done; what was undone before can no longer be redone.
    void push(EditStep step);
    void clear();
    /// Drops the steps that change nothing.
    void dropEmpty();

    bool canUndo() const { return m_done > 0; }
    bool canRedo() const { return m_done < m_steps.size(); }
    /// The step that comes next; there must be one.
    EditStep &toUndo() { return m_steps[m_done - 1]; }
    EditStep &toRedo() { return m_steps[m_done]; }
    const EditStep &toUndo() const { return m_steps[m_done - 1]; }
    const EditStep &toRedo() const { return m_steps[m_done]; }
    /// All steps in order, and how many of them are not undone.
    const std::vector<EditStep> &steps() const { return m_steps; }
    std::size_t done() const { return m_done; }
    /// It was undone or redone.
    void noteUndone() { --m_done; }
    void noteRedone() { ++m_done; }

private:
    std::vector<EditStep> m_steps;
    std::size_t m_done = 0; ///< how many of them are not undone
};

} // namespace vantrell
