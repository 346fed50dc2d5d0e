#pragma once

#include "document/ChangeMarks.h"
#include "document/ClipMenus.h"
#include "document/DocumentInterface.h"
#include "document/EditHistory.h"
#include "document/KnownFile.h"
#include "document/Menu.h"
#include "document/Tab.h"
#include "rows/RowView.h"
#include "support/files/Result.h"
#include "support/threads/MainThread.h"
#include "xml/XmlDocument.h"

#include <QByteArray>
#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <array>
#include <atomic>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace vantrell
{

class DocumentJournal;
class XmlElementOrder;

/// Names of the document types that the program opens.
namespace DocumentType
{
inline const QString finalCutProProject = QStringLiteral("Final Cut Pro Project");
inline const QString finalCutProXMLFile = QStringLiteral("Final Cut Pro XML File");
inline const QString publicXML = QStringLiteral("public.xml");
} // namespace DocumentType

/// Keys of the timecode parameters that every record with a time carries.
namespace TimecodeKey
{
inline const TypedKey<bool> ntsc(u"ntsc");
inline const TypedKey<bool> dropFrame(u"dropFrame");
inline const TypedKey<std::int64_t> timebase(u"timebase");
inline const TypedKey<std::int64_t> startFrame(u"startFrame");
} // namespace TimecodeKey

/// Why loading failed, where the program must know it.
namespace LoadFailure
{
/// The editing application was asked and gave nothing.
inline const QString noProject = QStringLiteral("Final Cut Pro gave no XML of the project.");
} // namespace LoadFailure

/// What is told when an inventory has ended before its time.
inline const QString incompleteLists =
    QStringLiteral("Not all that the project holds could be listed; the log tells why.");

/// Why saving failed, where the program must know it.
namespace SaveFailure
{
/// The user did not want the damaged file to be replaced.
inline const QString notOverwritten = QStringLiteral("The repaired file was not overwritten.");
/// The user gave up a long save.
inline const QString cancelled = QStringLiteral("Saving was cancelled.");
/// Another program changed the file since it was read or written last.
inline const QString changedElsewhere =
    QStringLiteral("The file was changed by another program since it was opened. It was not overwritten.");
} // namespace SaveFailure

/// What the tabs show of their lists, as the user last chose it. Main thread.
struct ViewState {
    Tab selectedTab = Tab::Media;
    int markerFilter = 0; ///< 0 all, k the colour index k-1
    int mediaKind = 0;    ///< 0 all, 1 movies, 2 audio, 3 images
    QString mediaDrive;   ///< path of the chosen drive; null for all drives
    int effectType = 0;   ///< item of the type pop-up
    bool effectShowDefaults = false;
    QString effectSearch;
};

/// One open project: its tree, what the tabs show of it, and what the user changed in it.
///
/// Loading runs on threads of its own: the loader parses, builds the sequence menu and starts the
/// inventories side by side. Until all of them have ended the tree is only read; after that it belongs
/// to the main thread. Unless a member says otherwise it is for the main thread.
class MyDocument : public QObject
{
    Q_OBJECT

public:
    /// What the document needs of the folders above it.
    struct Services {
        /// Fills one list each; every one runs on a thread of its own and looks at isClosing() between
        /// units of work.
        std::vector<std::function<void(MyDocument &)>> inventoryBuilders;
        /// The XML of a project that the editing application holds, launching it when needed; nothing
        /// when there is none. Called on the loader thread.
        std::function<std::optional<QByteArray>(const QString &projectPath)> projectXMLData;
        /// Starts sending the document to the editing application. `ended` may be empty; it is called on
        /// the main thread when that is over, and not at all when the document is closed before. False
        /// when the document is being sent already.
        std::function<bool(MyDocument &, std::function<void()> ended)> sendToFCP;
        /// The document is being closed: ends what the two above wait for. Called once, by close(), on
        /// its thread.
        std::function<void()> closing = {};
    };

    MyDocument(DocumentInterface &interface, Services services);
    /// Closes first.
    ~MyDocument() override;

    // Loading and saving

    /// Checks the type name and starts the loader. False only for an unknown type name; whatever goes
    /// wrong afterwards leaves the document open and empty.
    bool readFromURL(const QUrl &url, const QString &typeName);
    /// The loader. On its own thread.
    void loadProjectWithSettings(const QString &typeName, const QUrl &url);
    /// Saves a plain XML document, pretty-printed, whole or not at all. A document of the editing
    /// application is sent instead, which counts as not saved; the call does not wait for its end.
    ///
    /// The document's file is replaced only while it is as it was read or written last (see KnownFile):
    /// when another program has changed it the user is asked first.
    Result<void> writeToURL(const QUrl &url, const QString &typeName);
    /// The same with the writing done on a thread of its own, while which the tree may be read but not
    /// changed. `done` is told the outcome, in the call itself when there is nothing to write, when a
    /// document that is sent has been sent or not, and not at all when the document is closed before.
    /// Refused while another one runs. Nobody is asked about a file that another program has changed: the
    /// failure is SaveFailure::changedElsewhere, and overwriteChangedFile() makes the next save replace it.
    void writeInBackground(const QUrl &url, const QString &typeName,
                           std::function<void(const Result<void> &)> done);
    /// What the last save found at the path of the document's file may be overwritten; what comes there
    /// later may not.
    void overwriteChangedFile();
    /// To be called before a save to that path that replaces the file of another document: asks what a save
    /// of that one would ask, now or, whether another program has changed the file, when it is replaced.
    Result<void> confirmReplacing(const MyDocument &other, const QString &path);
    /// Keeps the unsaved changes in a journal, and restores those that it was given; called before loading.
    /// Null ends that.
    void setJournal(std::shared_ptr<DocumentJournal> journal) { m_journal = std::move(journal); }
    /// Null without one.
    DocumentJournal *journal() const { return m_journal.get(); }
    /// The document's file as it was read or written last.
    const std::shared_ptr<KnownFile> &knownFile() const { return m_knownFile; }
    /// Gives up what writeInBackground() is writing, as far as it has not been written whole by then.
    void cancelWriting() { m_savingCancelled = true; }
    /// Runs `work` on a thread of its own, while which isSaving() holds, then `done` here; not when the
    /// document is closed before, which waits for the work. False, and nothing runs, while isSaving().
    bool runInBackground(std::function<void()> work, std::function<void()> done);
    /// Whether the tree may only be read, for it is being saved, or read to be sent.
    bool isSaving() const { return m_isSaving || m_isReadToBeSent; }
    /// The same, with an alert under that title which says that nothing was changed.
    bool refusesWhileSaving(const QString &alertTitle);

    /// Ends everything that runs for the document: waiting calls return, workers stop at their next unit
    /// of work. The document stays as it is. Called twice, nothing happens.
    void close();
    /// Any thread.
    bool isClosing() const { return m_closing; }
    /// The door to the main thread for the document's workers. Any thread.
    const std::shared_ptr<MainThreadGate> &mainThread() const { return m_mainThread; }

    // The project

    DocumentInterface &interface() { return m_interface; }
    /// Null when loading failed or has not ended. Any thread while loading.
    XmlDocument *xmlDoc() const { return m_xmlDoc.get(); }
    /// The document node for queries on the whole tree; null without a tree.
    XmlNode xmlNode() const { return m_xmlDoc ? m_xmlDoc->node() : XmlNode(); }
    /// 1 for a single exported sequence, 0 for a project.
    std::int64_t xmlType() const { return m_xmlType; }
    const QUrl &fileURL() const { return m_fileURL; }
    /// The document was saved there and stands for that file from now on.
    void setFileURL(const QUrl &url);
    bool isFCPProject() const { return m_isFCPProject; }
    bool isPremiereProject() const { return m_isPremiereProject; }
    void setPremiereProject(bool premiere) { m_isPremiereProject = premiere; }

    /// The object value of the first node that the query finds under the element; nothing when it finds
    /// none. Any thread.
    static std::optional<QString> valueForXPath(const QString &query, XmlNode parentNode);

    /// An inventory ended by an exception, such as for want of memory, so that its list is not whole. Any
    /// thread.
    void noteIncomplete() { m_isIncomplete = true; }
    /// Whether one did. Any thread.
    bool isIncomplete() const { return m_isIncomplete; }

    // Sequences and clips

    /// Rebuilds the sequence menu. Any thread while loading.
    void populateSequences();
    MenuPtr sequenceMenu() const;
    /// The clips of a sequence, video tracks first; "(none)" alone for a null element. Any thread.
    MenuPtr clipMenuForSequence(XmlNode sequence);
    /// The clip ids by the indexes of the clip menu; null for an element without a location. Any thread.
    std::shared_ptr<const QStringList> clipIDsForSequence(XmlNode sequence);

    // Timecode by a record's own parameters

    static QString timecodeFromFrameCount(std::int32_t frames, const RowRecord &object);
    static std::int64_t frameCountFromTimecode(const QString &timecode, const RowRecord &object);

    // Inventories

    const RowList &mediaArray() const { return rowView(Tab::Media).list(); }
    const RowList &effectArray() const { return rowView(Tab::Effects).list(); }
    const RowList &markerArray() const { return rowView(Tab::Markers).list(); }
    /// The lists, and what the tabs show of them. One of the views is visible.
    RowView &rowView(Tab tab) { return m_rowViews[std::size_t(tab)]; }
    const RowView &rowView(Tab tab) const { return m_rowViews[std::size_t(tab)]; }

    /// Makes a tab's list: runs `build`, between the two RowView::populatingChanged() that tell of it. What
    /// `build` throws is logged under the name of the operation, and noteIncomplete() is called. On the
    /// inventory's thread.
    void populate(Tab tab, const char *operation, const std::function<void()> &build);
    /// True from the start of a load until the tab's list is there. Any thread.
    bool isPopulating(Tab tab) const { return rowView(tab).isPopulating(); }
    /// Makes the visible rows of the tab anew, as RowView::rebuild() does; on another thread than the main
    /// one only while the tab is the selected one. Any thread.
    bool rebuildRows(Tab tab);
    /// Whether the tab is the selected one; false for a document that is closing. Any thread.
    bool isSelected(Tab tab);

    /// The visible rows, and the tab that they belong to; the tables of the other tabs have no rows.
    const RowList &tableArray() const { return rowsOnShow(m_tableTab); }
    Tab tableTab() const { return m_tableTab; }
    const RowList &rowsOnShow(Tab tab) const { return rowView(tab).visibleRows(); }
    /// The selected ones of the rows on show, in their order.
    RowList selectedRecords(Tab tab) const;

    /// The text that the label was given last; null before.
    QString label(Label label) const { return m_labels.value(label); }
    void setLabel(Label label, const QString &text);

    ViewState &viewState() { return m_viewState; }

    // Changes

    const std::optional<QStringList> &modifiedSequenceUUIDs() const { return m_marks.sequences(); }
    /// Appends without a check: the same UUID may stand several times.
    void addModifiedSequenceUUID(const QString &uuid);
    /// An edit changed the sequence with that UUID, or one without a UUID (null): adds the UUID unless it is
    /// in the list already, and counts the change.
    void markSequenceModified(const QString &uuid);
    /// Whether the UUID stands in the list; while the document is being sent, in what was added since
    /// that began. In constant time.
    bool isSequenceModified(const QString &uuid) const { return m_marks.contains(uuid); }
    /// Makes the list absent.
    void clearModifiedSequenceUUIDs();
    /// Marks one change done, or all changes cleared. What changes outside of an edit cannot be undone, nor
    /// what was done before.
    void updateChangeCount();
    void clearChangeCount();
    bool isEdited() const { return m_marks.isEdited(); }

    // Undo and redo

    /// What is changed between these two, which may be nested, is one step to undo: tree, rows, modified
    /// sequences. The outermost pair names it, and its group. DocumentEdit calls both.
    void beginEdit(Tab tab, const QString &name, EditGroup group = 0);
    void endEdit();
    /// A group of its own for edits that shall be one step.
    EditGroup newEditGroup() { return ++m_lastGroup; }

    // What an edit does to rows; see RowChanges

    void willSet(const RowRecordPtr &row, const RecordKey &key);
    void willChange(const RowRecordPtr &row);
    void appendRow(Tab tab, const RowRecordPtr &row);
    void removeRows(Tab tab, const RowList &rows);

    /// Rows that undoing or redoing a step has given other values, added to a list or removed from it.
    struct RestoredRows {
        RowList changed; ///< of all lists, some of them more than once
        RowList added;
        RowList removed;
    };
    /// What else follows a tab's list. Both functions may be empty.
    struct RowFollower {
        std::function<void(const RestoredRows &rows)> restored;
        /// Makes the list anew from the tree: it was replaced since the step.
        std::function<void()> relist;
    };
    void setRowFollower(Tab tab, RowFollower follower)
    {
        m_rowFollowers[std::size_t(tab)] = std::move(follower);
    }

    /// Whether there is a step, and the tree may be changed.
    bool canUndo() const { return m_history.canUndo() && mayRestore(); }
    bool canRedo() const { return m_history.canRedo() && mayRestore(); }
    /// The steps, and what counts as changed.
    const EditHistory &history() const { return m_history; }
    const ChangeMarks &marks() const { return m_marks; }
    /// The name of the step, such as "Rename Marker"; null without one.
    QString undoName() const { return m_history.canUndo() ? m_history.toUndo().name : QString(); }
    QString redoName() const { return m_history.canRedo() ? m_history.toRedo().name : QString(); }
    /// Restores tree, rows, modified sequences and edited mark as they were before the last step, or as the
    /// step left them, and shows and selects its rows on their tab. False when nothing was done.
    bool undo();
    bool redo();

    // Sending: what is changed while the changes so far are on their way still counts as changed after.

    /// The tree is about to be read to be sent as it is now.
    void beginSending();
    /// It has been read and may be changed again.
    void endReadingToSend();
    /// What became of the changes that were there when the sending began.
    enum class SendResult {
        Failed,        ///< nothing arrived: they count as before
        ProjectSent,   ///< they arrived with the whole project; the list of modified sequences stays
        SequencesSent, ///< they arrived, and are taken from the list
    };
    void endSending(SendResult result);
    bool isSending() const { return m_marks.isSending(); }

    /// Shows an alert with one button on the document's window and waits for its answer or for the
    /// closing of the document. Any thread.
    void showAlert(const QString &messageText, const QString &informativeText);

    // The progress sheet. Any thread; each waits for the main thread.

    void startProgress();
    void updateProgressLabel(const QString &text);
    void endProgress();
    /// Takes the sheet away; the work goes on.
    void cancelProgress();

Q_SIGNALS:
    // On the main thread, all of them.

    /// Loading ended: the project is there, or the message says why not. The notice is empty unless
    /// the user should know something about the file, such as that it had to be repaired.
    void loadFinished(bool loaded, const QString &message, const QString &notice);
    /// Every inventory of a loaded project has ended; from now on the tree belongs to the main thread.
    void inventoriesFinished();
    void sequenceMenuChanged();
    void labelChanged(Label label, const QString &text);
    /// What was done, or why nothing was, for the tab to show for a while; a clause without a full stop.
    void messageGiven(Tab tab, const QString &text);
    /// The tree is read to be sent and may not be edited, or may be edited again, also after work in the
    /// background; see isSaving().
    void editingAllowedChanged();
    /// Other steps than before can be undone or redone.
    void historyChanged();
    /// The document has changes that were not saved or sent, or has none any more.
    void editedChanged(bool isEdited);

private:
    bool loadTree(const QString &typeName, const QUrl &url);
    void failLoading(const QString &message);
    void setPopulating(Tab tab, bool populating);
    void reportLoad(bool loaded, const QString &message, const QString &notice);
    void runInventories();
    void adoptRestored();
    void endJournalIfClean();
    Result<void> prepareSaving(const QUrl &url);
    Result<void> startSending(std::function<void()> ended);
    Result<void> noteSaved(Result<void> saved);
    Result<void> tryWriting(const QString &path);
    bool isChangedElsewhere(const QString &path);
    Result<void> writeFile(const QString &path);
    template <typename Note>
    void noteChange(Note note);
    enum class Restoring { Undo, Redo };
    bool dropsEqual(EditStep &step);
    bool mayRestore() const;
    bool restoreNext(Restoring what);
    void restore(Restoring what);
    void showRestored(const EditStep &step, Tab tab, Restoring what);
    void selectRestored(const EditStep &step, Restoring what);
    bool confirmSavingRepaired(const QString &path) const;
    bool confirmOverwriting(const QString &path);

    DocumentInterface &m_interface;
    Services m_services;
    std::shared_ptr<MainThreadGate> m_mainThread;
    std::atomic<bool> m_closing = false;

    QUrl m_fileURL;
    QString m_damagedFile; ///< that was repaired while it was loaded and has not been replaced; null for none
    std::shared_ptr<KnownFile> m_knownFile = std::make_shared<KnownFile>();
    std::shared_ptr<KnownFile>
        m_replacedFile; ///< that of another document, which a save may replace; or null
    // The saver's while it runs
    struct {
        std::shared_ptr<KnownFile> file;
        std::optional<FileStamp> stamp;
    } m_changed; ///< what the last save found of it, if another program has changed it
    struct {
        QString path;
        std::optional<FileStamp> stamp;
        std::shared_ptr<const XmlElementOrder> order; ///< of the elements in it; null without a journal
    } m_written;                                      ///< by the last save that ended well
    std::unique_ptr<XmlDocument> m_xmlDoc;
    QString m_loadFailure; ///< null unless loading failed, empty when the user has been told why
    std::int64_t m_xmlType = 0;
    bool m_isFCPProject = false;
    bool m_isPremiereProject = false;

    mutable std::recursive_mutex m_lock; // guards the two below
    MenuPtr m_sequenceMenu;
    ClipMenus m_clipMenus;

    std::array<RowView, 3> m_rowViews; // by tab
    Tab m_tableTab = Tab::Media;
    QHash<Label, QString> m_labels;
    ViewState m_viewState;

    ChangeMarks m_marks;
    EditHistory m_history;
    std::shared_ptr<DocumentJournal> m_journal;
    std::optional<EditStep> m_edit; ///< that is being made
    int m_openEdits = 0;            ///< calls of beginEdit() without endEdit()
    EditGroup m_lastGroup = 0;
    std::array<RowFollower, 3> m_rowFollowers; // by tab
    bool m_isReadToBeSent = false;

    std::atomic<bool> m_loadIsReported = false;
    std::atomic<bool> m_isIncomplete = false;
    std::atomic<int> m_runningInventories = 0;
    std::thread m_loader;
    std::vector<std::thread> m_inventories; // made by the loader, joined after it
    std::thread m_saver;                    // what runs in the background
    bool m_isSaving = false;
    std::atomic<bool> m_savingCancelled = false;
};

} // namespace vantrell
