// The undo side of MyDocument.

#include "document/MyDocument.h"

#include "document/DocumentJournal.h"
#include "document/UnsavedChanges.h"
#include "support/log/QVException.h"
#include "xml/XmlStepRecorder.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace vantrell
{

namespace
{

constexpr std::array allTabs{Tab::Media, Tab::Effects, Tab::Markers};

/// Tells the table that the visible rows change while it lives.
class Reload
{
public:
    explicit Reload(RowView &view)
        : m_view(view)
    {
        Q_EMIT m_view.willReload();
    }
    ~Reload() { Q_EMIT m_view.didReload(); }
    Reload(const Reload &) = delete;
    Reload &operator=(const Reload &) = delete;

private:
    RowView &m_view;
};

} // namespace

void MyDocument::beginEdit(Tab tab, const QString &name, EditGroup group)
{
    if (++m_openEdits > 1)
        return;
    m_edit.emplace();
    guarded("MyDocument::beginEdit", [&] {
        const RowView &view = rowView(tab);
        m_edit->name = name;
        m_edit->tab = tab;
        m_edit->group = group;
        for (const Tab each : allTabs)
            m_edit->generations[std::size_t(each)] = rowView(each).generation();
        m_edit->wasSorted = view.isVisible() && view.order() == RowView::Order::Sorted;
        m_edit->selection = KeptSelection(selectedRecords(tab), view.list());
    });
    m_marks.beginEdit();
    if (m_xmlDoc)
        m_xmlDoc->recordChanges(&m_edit->tree);
}

void MyDocument::endEdit()
{
    if (--m_openEdits > 0)
        return;
    if (m_xmlDoc)
        m_xmlDoc->recordChanges(nullptr);
    EditStep step = std::move(*m_edit);
    m_edit.reset();
    step.marks = m_marks.takeEdit();
    if (step.isEmpty() || dropsEqual(step))
        return;
    EditStep noted;
    const bool isNoted = !m_journal || guarded("MyDocument::endEdit", [&] {
        noted.name = step.name;
        noted.tab = step.tab;
        noted.group = step.group;
        noted.marks = step.marks;
        noted.tree = step.tree;
    });
    if (!guarded("MyDocument::endEdit", [&] { m_history.push(std::move(step)); }))
        m_history.clear(); // what came before cannot be undone without it
    if (m_journal && isNoted)
        m_journal->noteStep(DocumentJournal::Kind::Edit, noted, *m_xmlDoc, noted.tree,
                            countUnsavedChanges(m_history, m_marks));
    else if (m_journal)
        m_journal->stop();
    Q_EMIT historyChanged();
}

/// Takes back a step that has set nothing but equal values, if it has made no sequence or project count as
/// changed that did not before.
bool MyDocument::dropsEqual(EditStep &step)
{
    const bool marksNothing = step.marks.before != m_marks.cleanState() && !isSending() &&
                              (!step.marks.added || step.marks.added->sequences.isEmpty());
    if (!marksNothing || !m_xmlDoc)
        return false;
    bool isEqual = false;
    guarded("MyDocument::dropsEqual", [&] {
        isEqual = step.rows.leftAllEqual() && XmlStepRecorder::leftAllEqual(*m_xmlDoc, step.tree);
        if (isEqual)
            m_xmlDoc->revert(step.tree);
    });
    if (!isEqual)
        return false;
    step.rows.undo([](const RowView &) { return false; });
    m_marks.undo(step.marks);
    return true;
}

void MyDocument::willSet(const RowRecordPtr &row, const RecordKey &key)
{
    if (m_edit)
        m_edit->rows.willSet(row, key);
}

void MyDocument::willChange(const RowRecordPtr &row)
{
    if (m_edit)
        m_edit->rows.willChange(row);
}

void MyDocument::appendRow(Tab tab, const RowRecordPtr &row)
{
    if (m_edit)
        m_edit->rows.append(rowView(tab), row);
    else
        rowView(tab).append(row);
}

void MyDocument::removeRows(Tab tab, const RowList &rows)
{
    if (m_edit)
        m_edit->rows.remove(rowView(tab), rows);
    else
        rowView(tab).remove(rows);
}

bool MyDocument::mayRestore() const
{
    return m_xmlDoc && !m_edit && !isSaving() &&
           std::none_of(allTabs.begin(), allTabs.end(), [this](Tab tab) { return isPopulating(tab); });
}

bool MyDocument::undo()
{
    return restoreNext(Restoring::Undo);
}

bool MyDocument::redo()
{
    return restoreNext(Restoring::Redo);
}

bool MyDocument::restoreNext(Restoring what)
{
    const auto isPossible = [&] { return what == Restoring::Undo ? canUndo() : canRedo(); };
    if (!isPossible())
        return false;
    bool isDone = false;
    const bool isWhole = guarded("MyDocument::restoreNext", [&] {
        {
            const Reload reload(rowView(m_tableTab));
            if (!isPossible()) // what was being typed became another step
                return;
            restore(what);
        }
        isDone = true;
        selectRestored(what == Restoring::Undo ? m_history.toRedo() : m_history.toUndo(), what);
    });
    if (!isWhole && !isDone) { // without memory the step may have been restored in part
        m_history.clear();
        if (m_journal)
            m_journal->stop();
        for (const RowFollower &follower : m_rowFollowers) {
            if (follower.relist)
                follower.relist();
        }
    }
    Q_EMIT historyChanged();
    return isDone;
}

void MyDocument::restore(Restoring what)
{
    const bool isUndo = what == Restoring::Undo;
    EditStep &step = isUndo ? m_history.toUndo() : m_history.toRedo();
    const bool wasEdited = isEdited();
    for (const Tab tab : allTabs)
        rowView(tab).showWaitingRows();
    m_xmlDoc->revert(step.tree);
    const auto isReplaced = [&](const RowView &view) {
        return view.generation() != step.generations[std::size_t(&view - m_rowViews.data())];
    };
    if (isUndo) {
        step.rows.undo(isReplaced);
        m_marks.undo(step.marks);
        m_history.noteUndone();
    } else {
        step.rows.redo(isReplaced);
        m_marks.redo(step.marks);
        m_history.noteRedone();
    }
    if (m_journal) {
        const EditStep &restored = isUndo ? m_history.toRedo() : m_history.toUndo();
        m_journal->noteStep(isUndo ? DocumentJournal::Kind::Undo : DocumentJournal::Kind::Redo, restored,
                            *m_xmlDoc, restored.tree, countUnsavedChanges(m_history, m_marks));
    }
    endJournalIfClean();
    if (isEdited() != wasEdited)
        Q_EMIT editedChanged(isEdited());
    for (const Tab tab : allTabs)
        showRestored(step, tab, what);
}

/// Brings the tab's rows in line with the tree, and what is made from them.
void MyDocument::showRestored(const EditStep &step, Tab tab, Restoring what)
{
    RowView &view = rowView(tab);
    const RowFollower &follower = m_rowFollowers[std::size_t(tab)];
    RowList added = step.rows.addedRows(view);
    RowList removed = step.rows.removedRows(view);
    if (what == Restoring::Undo)
        std::swap(added, removed);
    const bool isConcerned = tab == step.tab || (step.isRestored && tab != Tab::Media);
    if (added.empty() && removed.empty() && !isConcerned)
        return;
    const bool wasSorted = view.order() == RowView::Order::Sorted;
    if (view.generation() != step.generations[std::size_t(tab)]) {
        if (follower.relist)
            follower.relist();
        if (wasSorted && view.order() != RowView::Order::Sorted)
            view.sortBy(view.sortDescriptors());
        return;
    }
    if (follower.restored)
        follower.restored({step.rows.changedRows(), added, removed});
    if (!view.isVisible() || added.empty())
        return;
    const bool isSorted = wasSorted || (what == Restoring::Undo && step.wasSorted);
    rebuildRows(tab);
    if (isSorted && view.order() != RowView::Order::Sorted)
        view.sortBy(view.sortDescriptors());
}

/// Selects what was selected before the edit, or the rows that it changed.
void MyDocument::selectRestored(const EditStep &step, Restoring what)
{
    const bool isUndo = what == Restoring::Undo;
    const RowView &view = rowView(step.tab);
    RowList changed = step.rows.changedRows();
    const RowList back = isUndo ? step.rows.removedRows(view) : step.rows.addedRows(view);
    changed.insert(changed.end(), back.begin(), back.end());
    const bool isReplaced = view.generation() != step.generations[std::size_t(step.tab)];
    const RowList before = isUndo ? step.selection.rows(view.list(), isReplaced) : RowList();
    const bool wasSelected =
        changed.empty() || std::find(before.begin(), before.end(), changed.front()) != before.end();
    const RowList &chosen = isUndo && wasSelected ? before : changed;

    m_interface.showTab(step.tab);
    const std::unordered_set<RowRecordPtr> selected(chosen.begin(), chosen.end());
    std::vector<std::size_t> indexes;
    const RowList &rows = view.visibleRows();
    for (std::size_t i = 0; i < rows.size() && indexes.size() < selected.size(); ++i) {
        if (selected.contains(rows[i]))
            indexes.push_back(i);
    }
    m_interface.selectRows(step.tab, indexes);
    if (!indexes.empty())
        m_interface.scrollToRow(step.tab, indexes.front());
}

} // namespace vantrell
