#include "document/DocumentJournal.h"

#include "document/UnsavedChanges.h"
#include "support/files/PackedBytes.h"
#include "support/log/QVException.h"
#include "support/log/QVLog.h"
#include "xml/XmlDocument.h"
#include "xml/XmlStepPlayer.h"

#include <QDateTime>
#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

namespace vantrell
{

namespace
{

/// A step as it is in a journal.
struct WrittenStep {
    DocumentJournal::Kind kind = DocumentJournal::Kind::Edit;
    Tab tab = Tab::Markers;
    EditGroup group = 0;
    ChangeMarks::State before = 0; ///< states of the project in the process that wrote it
    ChangeMarks::State after = 0;
    QString name;
    QStringList sequences;
    std::string_view tree;
};

/// Nothing when the bytes are no step.
std::optional<WrittenStep> readStep(std::string_view bytes)
{
    PackedReader in(bytes);
    WrittenStep step;
    const std::uint64_t kind = in.number();
    step.kind = DocumentJournal::Kind(kind);
    const std::uint64_t tab = in.number();
    step.tab = Tab(tab);
    step.group = in.number();
    step.before = in.number();
    step.after = in.number();
    step.name = in.text();
    const std::uint64_t count = in.number();
    for (std::uint64_t i = 0; i < count && in.isOk(); ++i)
        step.sequences.append(in.text());
    step.tree = in.rest();
    const bool isKnown = kind >= 1 && kind <= 3 && tab <= std::uint64_t(Tab::Markers);
    return in.isOk() && isKnown ? std::optional(step) : std::nullopt;
}

} // namespace

/// The document's history while it is made again.
struct DocumentJournal::Replay {
    struct Tally {
        std::size_t done = 0;
        std::size_t leftOut = 0;
        ChangeMarks::State before = 0; ///< as it was written
        ChangeMarks::State after = 0;
    };

    Restored restored;
    std::vector<Tally> tallies; ///< by step

    /// Whether the step that is undone or redone next is the one that was then.
    bool isNext(const WrittenStep &written) const
    {
        const EditHistory &history = restored.history;
        const bool isUndo = written.kind == Kind::Undo;
        if (written.kind == Kind::Edit || !(isUndo ? history.canUndo() : history.canRedo()))
            return false;
        const Tally &tally = tallies[isUndo ? history.done() - 1 : history.done()];
        return tally.before == written.before && tally.after == written.after;
    }

    /// Undoes or redoes that step in the tree; the changes that did it.
    XmlChanges restoreNext(Kind kind, XmlDocument &tree)
    {
        XmlChanges &step = (kind == Kind::Undo ? restored.history.toUndo() : restored.history.toRedo()).tree;
        tree.revert(step);
        return step;
    }

    /// Takes the step into the history after it was done again with these changes. Its share in the marks.
    ChangeMarks::Edit note(const WrittenStep &written, const XmlChanges &changes,
                           const XmlStepPlayer::Outcome &outcome)
    {
        EditHistory &history = restored.history;
        restored.lastGroup = std::max(restored.lastGroup, written.group);
        ChangeMarks::Edit marks;
        const bool isSame = isNext(written);
        if (isSame && written.kind == Kind::Undo) {
            restored.marks.undo(history.toUndo().marks);
            history.noteUndone();
            marks = history.toRedo().marks;
        } else if (isSame) {
            restored.marks.redo(history.toRedo().marks);
            history.noteRedone();
            marks = history.toUndo().marks;
        } else {
            EditStep step;
            // What was undone then is no step of the file's.
            step.name = written.kind == Kind::Undo ? QStringLiteral("Undo ") + written.name : written.name;
            step.tab = written.tab;
            step.group = written.kind == Kind::Edit ? written.group : 0;
            step.tree = changes;
            step.generations.fill(std::numeric_limits<std::uint64_t>::max());
            step.isRestored = true;
            restored.marks.beginEdit();
            const bool isLost = outcome.done == 0 && outcome.leftOut > 0;
            if (written.before != written.after && !isLost)
                mark(written.sequences);
            step.marks = restored.marks.takeEdit();
            marks = step.marks;
            tallies.resize(history.done());
            history.push(std::move(step));
            const bool isNew = tallies.size() < history.done();
            tallies.resize(history.done());
            Tally &tally = tallies.back();
            tally.before = isNew ? written.before : tally.before;
            tally.after = written.after;
            tally.done += outcome.done;
            tally.leftOut += outcome.leftOut;
        }
        return marks;
    }

    void mark(const QStringList &sequences)
    {
        restored.marks.noteChange();
        for (const QString &uuid : sequences)
            restored.marks.markSequence(uuid);
    }

    Outcome outcome() const
    {
        Outcome outcome;
        outcome.total = restored.history.done();
        for (std::size_t i = 0; i < outcome.total; ++i) {
            outcome.restored += tallies[i].leftOut == 0 ? 1 : 0;
            outcome.partly += tallies[i].leftOut > 0 && tallies[i].done > 0 ? 1 : 0;
        }
        return outcome;
    }
};

DocumentJournal::DocumentJournal(const QString &folder, std::chrono::milliseconds interval)
    : m_writer(folder, interval)
{
}

DocumentJournal::~DocumentJournal() = default;

void DocumentJournal::projectLoaded(const Project &project, XmlDocument &tree)
{
    m_project = project;
    std::optional<JournalFolder::Restorable> restorable = std::exchange(m_restorable, std::nullopt);
    if (!restorable) {
        guarded("DocumentJournal::projectLoaded", [&] { begin(XmlElementOrder::of(tree)); });
        return;
    }
    begin(XmlElementOrder::of(tree));
    if (!m_recorder)
        m_recorder.emplace(m_order); // what is restored is kept in any case
    restore(tree, *std::move(restorable));
}

/// From now on changes are those of the project as it is in its file.
void DocumentJournal::begin(std::shared_ptr<const XmlElementOrder> order)
{
    m_header.projectPath = QFileInfo(m_project.path).absoluteFilePath();
    m_header.typeName = m_project.typeName;
    m_header.file = order && m_project.file ? m_project.file->stamp() : std::nullopt;
    m_header.elements = order ? order->size() : 0;
    m_order = std::move(order);
    m_isBegun = true;
    m_isStopped = false;
    record();
    m_writer.begin(JournalFile::beginning(m_header));
}

/// Records what is changed from now on, if it is to be kept; the project has no unsaved changes.
void DocumentJournal::record()
{
    m_recorder.reset();
    m_hasDigest = false;
    if (m_isEnabled && !m_isStopped)
        m_recorder.emplace(m_order);
}

void DocumentJournal::setEnabled(bool isEnabled, bool hasUnsavedChanges)
{
    m_isEnabled = isEnabled;
    if (hasUnsavedChanges || !m_isBegun || isEnabled == isRecording())
        return;
    guarded("DocumentJournal::setEnabled", [this] {
        record();
        m_writer.remove();
    });
}

bool DocumentJournal::isSameFile(const JournalContents &contents)
{
    if (contents.header.elements != m_header.elements || !contents.header.file || !m_header.file)
        return false;
    if (contents.header.file == m_header.file)
        return true;
    return contents.header.file->size == m_header.file->size && !contents.digest.isEmpty() &&
           KnownFile::digestOf(m_header.projectPath, *m_header.file) == contents.digest;
}

void DocumentJournal::restore(XmlDocument &tree, JournalFolder::Restorable restorable)
{
    const JournalContents &contents = restorable.contents;
    const bool isSame = isSameFile(contents);
    XmlStepPlayer player(tree, isSame ? m_recorder->order() : nullptr);
    Replay replay;
    std::string records;
    for (const JournalStep &each : contents.steps) {
        const std::optional<WrittenStep> written = readStep(each.content);
        XmlChanges done;
        XmlStepPlayer::Outcome outcome{0, 0, false};
        if (written && replay.isNext(*written)) {
            outcome = player.pass(written->tree);
            done = replay.restoreNext(written->kind, tree);
        } else if (written) {
            tree.recordChanges(&done);
            const auto stopRecording = qScopeGuard([&tree] { tree.recordChanges(nullptr); });
            outcome = player.play(written->tree);
        }
        if (!outcome.isReadable) {
            QVLog::appendLog(u"A step in the journal %@ cannot be read; what follows it is lost.",
                             restorable.file.path());
            break;
        }
        EditStep step;
        step.marks = replay.note(*written, done, outcome);
        step.name = written->name;
        step.tab = written->tab;
        step.group = written->group;
        step.marks.sequences = written->sequences;
        const std::size_t unsaved = countUnsavedChanges(replay.restored.history, replay.restored.marks);
        records += recordOf(written->kind, step, tree, done, unsaved, each.time);
    }
    m_outcome = replay.outcome();
    m_outcome->isFileChanged = !isSame;
    if (!replay.restored.marks.isEdited() && !replay.restored.history.canRedo())
        return; // the journal stays as it is
    m_writer.append(std::move(records));
    m_writer.replace(std::move(restorable.file));
    replay.restored.history.dropEmpty();
    m_restored.emplace(std::move(replay.restored));
}

std::optional<DocumentJournal::Restored> DocumentJournal::takeRestored()
{
    return std::exchange(m_restored, std::nullopt);
}

std::string DocumentJournal::recordOf(Kind kind, const EditStep &step, XmlDocument &tree,
                                      const XmlChanges &done, std::size_t unsavedChanges, std::int64_t time)
{
    PackedWriter out;
    out.number(std::uint64_t(kind));
    out.number(std::uint64_t(step.tab));
    out.number(step.group);
    out.number(step.marks.before);
    out.number(step.marks.after);
    out.text(step.name);
    out.number(std::uint64_t(step.marks.sequences.size()));
    for (const QString &uuid : step.marks.sequences)
        out.text(uuid);
    return JournalFile::record(
        {time, std::uint32_t(unsavedChanges), out.take() + m_recorder->encode(tree, done)});
}

void DocumentJournal::noteStep(Kind kind, const EditStep &step, XmlDocument &tree, const XmlChanges &done,
                               std::size_t unsavedChanges)
{
    if (!m_recorder || (done.isEmpty() && step.marks.before == step.marks.after))
        return;
    const bool isNoted = guarded("DocumentJournal::noteStep", [&] {
        const std::int64_t now = QDateTime::currentMSecsSinceEpoch();
        std::string records = recordOf(kind, step, tree, done, unsavedChanges, now);
        const QByteArray digest = m_hasDigest || !m_header.file ? QByteArray() : m_project.file->digest();
        if (!digest.isEmpty()) {
            records += JournalFile::digestRecord(digest);
            m_hasDigest = true;
        }
        m_writer.append(std::move(records));
    });
    if (!isNoted)
        stop();
}

void DocumentJournal::noteClean()
{
    if (m_isStopped)
        return;
    guarded("DocumentJournal::noteClean", [this] {
        record();
        m_writer.remove();
    });
}

void DocumentJournal::willReplaceFile(const FileStamp &stamp)
{
    guarded("DocumentJournal::willReplaceFile", [&] {
        m_writer.appendIfThere(JournalFile::savedRecord(stamp));
        m_writer.finish();
    });
}

void DocumentJournal::noteSaved(const Project &project, std::shared_ptr<const XmlElementOrder> order)
{
    guarded("DocumentJournal::noteSaved", [&] {
        m_project = project;
        begin(std::move(order));
    });
}

void DocumentJournal::noteSent()
{
    guarded("DocumentJournal::noteSent", [this] { begin(nullptr); });
}

void DocumentJournal::setGivenUp(bool isGivenUp)
{
    guarded("DocumentJournal::setGivenUp", [&] { m_writer.setGivenUp(isGivenUp); });
}

void DocumentJournal::discard()
{
    stop();
    guarded("DocumentJournal::discard", [this] { m_writer.remove(); });
}

} // namespace vantrell
