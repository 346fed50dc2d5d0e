#pragma once

#include "document/ChangeMarks.h"
#include "document/EditHistory.h"
#include "document/KnownFile.h"
#include "journal/JournalWriter.h"
#include "xml/XmlStepRecorder.h"

#include <QString>

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace vantrell
{

class XmlDocument;

/// Keeps the unsaved changes of one document in a journal, so that they survive a crash, and restores those
/// of another process while the document is loaded. The document tells it what happens. Main thread, or the
/// document's only thread at the time; a journal that cannot be kept costs nothing else.
class DocumentJournal
{
public:
    /// A change is on the disk after that long.
    static constexpr std::chrono::milliseconds usualInterval{5000};

    explicit DocumentJournal(const QString &folder, std::chrono::milliseconds interval = usualInterval);
    ~DocumentJournal();

    /// To be called before the document is loaded: restores these changes. The journal is replaced by this
    /// one when any of them could be restored, and stays as it is otherwise.
    void setRestorable(JournalFolder::Restorable restorable) { m_restorable.emplace(std::move(restorable)); }

    /// Whether unsaved changes are kept; at first they are. While there are any this takes effect once they
    /// are saved, given up or undone: what the journal holds stays, and none begins in the middle.
    void setEnabled(bool isEnabled, bool hasUnsavedChanges);
    /// Whether changes are being kept.
    bool isRecording() const { return m_recorder.has_value(); }

    /// What has become of the changes that were to be restored.
    struct Outcome {
        std::size_t total = 0;    ///< changes
        std::size_t restored = 0; ///< whole
        std::size_t partly = 0;
        bool isFileChanged = false; ///< since the journal was begun
    };
    /// Nothing when none were to be restored.
    const std::optional<Outcome> &outcome() const { return m_outcome; }

    // What the document tells

    /// A project, as it is in its file.
    struct Project {
        QString path;
        QString typeName;
        std::shared_ptr<KnownFile> file;
    };
    /// The project was read. Throws when changes are restored in part only, such as for want of memory.
    void projectLoaded(const Project &project, XmlDocument &tree);
    struct Restored {
        EditHistory history;
        ChangeMarks marks;
        EditGroup lastGroup = 0;
    };
    /// What projectLoaded() has restored, once.
    std::optional<Restored> takeRestored();

    enum class Kind : std::uint8_t { Edit = 1, Undo, Redo };
    /// The step was done, undone or redone, with these changes; the number of unsaved changes is that after
    /// it.
    void noteStep(Kind kind, const EditStep &step, XmlDocument &tree, const XmlChanges &done,
                  std::size_t unsavedChanges);
    /// Undone or redone: the project is as it was saved.
    void noteClean();
    /// The project is about to replace its file, by one with that stamp. Waits for the disk.
    void willReplaceFile(const FileStamp &stamp);
    /// It was saved, with its elements in that order.
    void noteSaved(const Project &project, std::shared_ptr<const XmlElementOrder> order);
    /// It was sent: no file holds it as it is now.
    void noteSent();
    /// What is changed from now on cannot be recorded; what was stays.
    void stop()
    {
        m_recorder.reset();
        m_isStopped = true;
    }

    /// Reverting has given the changes up, or was undone.
    void setGivenUp(bool isGivenUp);
    /// The changes were given up for good.
    void discard();
    /// Waits until all that was noted is on the disk.
    void finish() { m_writer.finish(); }

private:
    struct Replay;

    void begin(std::shared_ptr<const XmlElementOrder> order);
    void record();
    void restore(XmlDocument &tree, JournalFolder::Restorable restorable);
    bool isSameFile(const JournalContents &contents);
    std::string recordOf(Kind kind, const EditStep &step, XmlDocument &tree, const XmlChanges &done,
                         std::size_t unsavedChanges, std::int64_t time);

    JournalWriter m_writer;
    Project m_project;
    JournalHeader m_header;
    std::optional<XmlStepRecorder> m_recorder;      ///< nothing while no changes can be recorded
    std::shared_ptr<const XmlElementOrder> m_order; ///< of the elements in the file; null when there is none
    bool m_isBegun = false;                         ///< the project was read
    bool m_isEnabled = true;
    bool m_isStopped = false; ///< until the project is saved
    bool m_hasDigest = false; ///< the journal
    std::optional<JournalFolder::Restorable> m_restorable;
    std::optional<Outcome> m_outcome;
    std::optional<Restored> m_restored;
};

} // namespace vantrell
