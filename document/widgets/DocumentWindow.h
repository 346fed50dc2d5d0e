#pragma once

#include "document/DocumentInterface.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/WindowComparison.h"
#include "document/widgets/WindowMarkerLists.h"
#include "document/widgets/WindowMedia.h"
#include "document/widgets/WindowNotes.h"
#include "document/widgets/WindowReports.h"
#include "document/widgets/WindowSaving.h"
#include "document/widgets/WindowSending.h"
#include "document/widgets/WindowState.h"
#include "document/widgets/WindowWork.h"
#include "interchange/MarkerListPanel.h"
#include "journal/JournalFolder.h"

#include <QMainWindow>
#include <QPointer>
#include <QSet>
#include <QVariantMap>

#include <array>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QActionGroup;
class QLabel;
class QStackedWidget;
class QToolBar;

namespace vantrell
{

class AlertParent;
class DocumentWindowInterface;
class MyDocument;
class MarkersPane;
class OwnersNotice;
class PrintOperation;

class TabPane;
class UserDefaults;
class Workbench;
enum class ReportFormat;

/// The window of one document, which it owns: a toolbar, and the pane of one of the three tabs. Saving,
/// sending, marker lists and reports have classes of their own, whose operations the window offers as slots.
/// The window deletes itself once it is closed, after asking about unsaved changes. Main thread.
class DocumentWindow final : public QMainWindow
{
    Q_OBJECT

public:
    using State = WindowState::Stage;
    using Settling = WindowSaving::Settling;

    /// The defaults outlive the window and its document.
    explicit DocumentWindow(UserDefaults &defaults);
    ~DocumentWindow() override;

    /// Starts loading the file and shows the media pane; called once. A null type name is derived from the
    /// file's name. False, with the reason in the window, when the type is unknown.
    bool open(const QString &path, const QString &typeName = QString());

    /// The same, with the unsaved changes of a journal restored.
    bool openWithChanges(const QString &path, const QString &typeName, JournalFolder::Restorable changes);
    /// Loads the file again with these changes restored; false when the project was edited, is in use or has
    /// a question of its own.
    bool restoreChanges(JournalFolder::Restorable changes);

    /// The window's file, and the document type it was last opened or saved as.
    QString path() const { return m_path; }
    QString typeName() const { return m_typeName; }
    /// The path that the project is being saved to under another name; null for none.
    QString saveTarget() const { return m_saving.target(); }
    State state() const { return m_state.stage(); }
    bool isLoading() const { return state() == State::Loading || state() == State::Listing; }
    /// Whether a long operation has the project to itself; nobody may edit it meanwhile.
    bool isBusy() const { return m_state.isBusy(); }
    /// Whether the changes are being sent to the editing application. The project may be edited meanwhile,
    /// but neither saved nor sent.
    bool isSending() const { return m_state.isSending(); }
    /// Whether the user may edit the project now.
    bool mayEdit() const;
    /// Whether the window is being closed; its document must not be used any more.
    bool isClosing() const { return m_state.isClosed(); }
    /// Null until the project has been read, and once the window is closing.
    MyDocument *document() const;
    /// After open().
    Workbench &workbench() const { return *m_workbench; }
    TabPane &pane(Tab tab) const { return *m_panes[std::size_t(tab)]; }
    Tab selectedTab() const;
    TabPane &currentPane() const { return pane(selectedTab()); }

    /// The identifiers of all toolbar items, in toolbar order, and that of the current pane's item.
    QStringList toolbarSelectableItemIdentifiers() const;
    QString selectedToolbarItemIdentifier() const { return m_selectedToolbarItemIdentifier; }

    /// What the window is called where all windows are listed: its file, and the folder if that is needed.
    QString title() const;
    /// The folder that tells the file from that of another window; empty for none.
    void setTitleFolder(const QString &folder);

    /// What the window says about its file: why it could not be loaded, or that it had to be repaired.
    QString message() const;

    /// Tells the window how to find out whether a file is open in another one.
    void setFindOpen(WindowSaving::FindOpen findOpen) { m_saving.setFindOpen(std::move(findOpen)); }

    /// Tells the window how to find the other windows whose projects are ready.
    void setOtherWindows(std::function<std::vector<DocumentWindow *>()> otherWindows)
    {
        m_comparison.setOtherWindows(std::move(otherWindows));
    }

    // Quitting: the changes of all windows are settled before any of them closes.

    /// Asks about the changes, or saves them, and leaves the window open; changesSettled() reports the
    /// result.
    void settleChanges(Settling settling) { m_saving.settleChanges(settling); }
    /// Whether the project has changes but those that the user has given up.
    bool hasUnsettledChanges() { return m_saving.hasUnsettledChanges(); }
    /// They are asked about again.
    void forgetGivenUpChanges() { m_saving.forgetGivenUpChanges(); }
    /// Closes the window without asking about changes that the user has given up.
    void closeSettled() { m_saving.closeSettled(); }
    /// Cancels the operation that closing the window would cancel.
    void giveUpForClosing() { m_work.cancelIfExpendable(); }

public Q_SLOTS:
    /// Each fills its pane and shows it.
    void toolbarMedia();
    void toolbarEffects();
    void toolbarMarkers();

    /// Writes the document to its file in the background, or sends it when it is a project of an editing
    /// application; saved() reports the result.
    void save() { m_saving.saveTo(m_path); }
    /// Asks for a file and saves to it; from then on it is the window's file.
    void saveAs() { m_saving.saveAs(); }
    void saveTo(const QString &path) { m_saving.saveTo(path); }
    /// Loads the file again, after a question if changes would be lost. Until changes are saved, another
    /// project with changes is reverted or the window is closed, undo() brings the project back as it was,
    /// once what was done since is undone.
    void revert() { m_saving.revert(); }
    void revertWithoutQuestion() { m_saving.revertWithoutQuestion(); }

    /// Sends the changes to the editing application in the background; saved() reports the result.
    void sendToFCP() { m_sending.sendToFCP(); }
    /// Asks for a file, and writes the changed sequences to it as the editing application would get them.
    void exportChangedSequences() { m_sending.exportChangedSequences(); }
    void exportChangedSequencesTo(const QString &path) { m_sending.exportChangedSequencesTo(path); }

    void importFCPMarkers() { m_markerLists.runOpenPanel(MarkerListFormat::fcp); }
    void importAvidLocators() { m_markerLists.runOpenPanel(MarkerListFormat::avid); }
    void importFCPXMarkers() { m_markerLists.runOpenPanel(MarkerListFormat::fcpx); }
    void exportFCPMarkers() { m_markerLists.runSavePanel(MarkerListFormat::fcp); }
    void exportAvidLocators() { m_markerLists.runSavePanel(MarkerListFormat::avid); }
    /// Adds the markers of the files in the background; markersImported() reports the result.
    void importMarkerLists(const QStringList &paths, const QString &format)
    {
        m_markerLists.importMarkerLists(paths, format);
    }
    void exportMarkerList(const QString &path, const QString &format)
    {
        m_markerLists.exportMarkerList(path, format);
    }

    /// Asks what the project is compared with, and shows the comparison of two cuts.
    void compareWith() { m_comparison.ask(); }
    /// Looks for missing media files in other folders, with a preview.
    void relinkMedia() { m_media.relink(QString()); }
    void editPathMappings() { m_media.editPathMappings(); }
    /// Asks for the form of a list of the media files and for its file, and writes it in the background;
    /// mediaListExported() reports the result.
    void exportMediaList() { m_media.exportList(); }
    void exportMediaListTo(const QString &path, vantrell::MediaListFormat format,
                           const vantrell::MediaListScope &scope)
    {
        m_media.exportListTo(path, format, scope);
    }
    /// Asks for a media hash list and compares the files with it in the background; mediaListVerified()
    /// reports whether that was possible.
    void verifyMediaList() { m_media.verifyList(); }
    /// Shows or hides the columns of the Media tab that tell what the sequences use.
    void showMediaUses(bool isShown);
    bool showsMediaUses() const;
    /// Shows or hides the overview above the marker table, in all windows.
    void showMarkerOverview(bool isShown);
    bool showsMarkerOverview() const;
    /// Lists the effects again that the Delete key has taken off the list.
    void showHiddenEffects();
    /// Whether there are such effects; false on the other tabs, which list them again.
    bool hidesEffects() const;
    void verifyMediaListAt(const QString &path) { m_media.verifyListAt(path); }
    /// Asks for lists of notes and shows what each of them would add; markersImported() reports what was.
    void importNotes() { m_notes.runOpenPanel(); }
    void importNoteFiles(const QStringList &paths) { m_notes.importFiles(paths); }
    /// Asks for the format and the markers of a list of notes, and then for its file; markersExported()
    /// reports the result.
    void exportNotes() { m_notes.exportNotes(); }

    /// Prints the selected rows of the current pane's table, or all of them. The print panel asks for the
    /// columns, and for paper or a PDF file.
    void printDocument() { m_reports.printDocument(); }
    /// Asks for the contents and the format of a report of that table.
    void exportReport() { m_reports.exportReport(); }
    void exportReportTo(const QString &path, vantrell::ReportFormat format)
    {
        m_reports.exportReportTo(path, format);
    }

    /// The sheets of the marker fields and of a new marker preset, over the Markers tab.
    void showMarkerFieldsDialog();
    void showMarkerPresetDialog();
    /// The sheet that renames and deletes marker presets, and the one that adds a marker, over the same tab.
    void showMarkerPresetsDialog();
    void showMarkerAddDialog();

    // The Edit menu. Undo, Redo and Paste are those of the text while one is being edited.
    void undo();
    void redo();
    /// Shows what a list of notes on the clipboard would add.
    void paste();
    /// Whether undo() would undo reverting.
    bool mayUndoRevert() const;
    // For the current pane
    void copySelection();
    void selectAllRows();
    void removeSelection();
    // For the Markers tab; nothing on the others
    void duplicateSelection();
    void offsetSelection();
    bool mayOffsetSelection() const;
    void moveInPoint();
    /// Moves the keyboard focus into its search field.
    void find();

    /// Each shows the markers.
    void goToTimecode();
    void goToNextOfColor();
    void goToPreviousOfColor();

public:
    /// Prints the shared web view's page with these settings (see PrintInfo), or as changed in the print
    /// panel; reports whether it was printed.
    void printDocumentWithSettings(const QVariantMap &settings, bool showPrintPanel,
                                   const std::function<void(bool didPrint)> &didPrint)
    {
        m_reports.printDocumentWithSettings(settings, showPrintPanel, didPrint);
    }
    /// Always null: printDocument() is the only way to print.
    PrintOperation *printOperationWithSettings(const QVariantMap &, QString *) { return nullptr; }
    bool mayReport() const { return m_reports.mayReport(); }
    WindowComparison &comparison() { return m_comparison; }
    const WindowComparison &comparison() const { return m_comparison; }

    // For the classes that the window consists of

    /// Settles what is pending: text that is being typed into a cell, the answers that whenIdle() keeps, and
    /// the return from a failed reload.
    void commitEditing();
    /// Applies what a sheet or panel was answered with: now, or once the long operation has ended that began
    /// while it was open. What waits when the document goes is dropped.
    void whenIdle(std::function<void()> answer);
    /// Tells whether any window has the file; see WindowSaving::findOpen().
    void findOpen(const QString &path, const QString &text, const std::function<void(bool isOpen)> &found)
    {
        m_saving.findOpen(path, true, text, found);
    }
    /// Whether the project could not be loaded; if so, an alert says why.
    bool refusesAfterFailedLoad();
    void showFailure(const QString &title, const QString &reason);
    AlertParent *alertParent() const;
    NoticeBar &notice() const { return *m_notice; }
    void setNotice(const QString &text);
    void setFile(const QString &path, const QString &typeName);
    /// That of the file, to begin choosing in; the user's documents while it does not answer.
    QString folder() const;
    /// The name of the file without its extension.
    QString fileTitle() const;
    void selectToolbarItem(Tab tab);
    void hideSending() { m_sending.hide(); }
    /// Lists the markers of the document anew, in the background.
    void listMarkersAgain();
    /// Another window reads the project in the background: nobody may edit it until endReading(). `cancel`
    /// asks for that; without it (empty) closing the window waits.
    void beginReading(const std::function<void()> &cancel);
    void endReading() { m_work.end(); }
    void finishSaving(bool isSaved) { m_saving.finish(isSaved); }
    void reload();
    /// Closes the window without asking.
    void shutDown();

Q_SIGNALS:
    /// Something that menu items depend on has changed.
    void menusChanged();
    void loaded(const QString &path);
    /// A save has ended; the user has been told about a failure. A send counts as a save, which succeeds when
    /// no changes are left.
    void saved(bool isSaved);
    /// An import has ended; 0 when it was cancelled or added no marker.
    void markersImported(std::size_t count);
    void markersExported(bool isWritten);
    void changedSequencesExported(bool isWritten);
    /// The project uses that many files from other places, and the rows tell about these.
    void mediaRelinked(std::size_t count);
    /// The media files were looked for again, as path mappings have changed.
    void mediaChecked();
    void mediaListExported(bool isWritten);
    void mediaListVerified(bool isVerified);
    /// The print panel has closed.
    void reportPrinted(bool isPrinted);
    void reportExported(bool isWritten);
    void loadFailed(const QString &path);
    /// The document is about to go, because the window closes or loads its file again.
    void sessionEnding();
    /// The user has dropped files to be opened: all but lists of notes, once the project is there.
    void filesDropped(const QStringList &paths);
    /// The window is hidden and will delete itself.
    void closed();
    /// The user has decided to keep the window open.
    void closeCancelled();
    /// True when the changes are saved or given up; false when the user cancelled or saving failed.
    void changesSettled(bool areSettled);

protected:
    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeToolBar();
    void makeContent();
    QWidget *makeFailurePage();
    void startSession(const QString &path, const QString &typeName);
    void fitMinimumWidth();
    void connectSession();
    void leaveSession();
    void endSession();
    void keepSession();
    void forgetReverted();
    void forgetOlderReverted(bool isFileWhole);
    void undoRevert();
    void showReverted();
    void returnFromFailedReload();
    void applyAnswers();
    bool isIdle() const;
    void showOutcomeOfRestoring();
    void showLoadFailure(const QString &message);
    void loadEnded(bool loaded, const QString &message, const QString &notice);
    void inventoriesEnded();
    void updateEditing();
    void workEnded(WindowState::Next next);
    void cancelProgress();
    void updateTitle();
    MarkersPane &showMarkers();
    void applyOwnerListing();
    void applyJournalSetting();
    void showPane(Tab tab);
    void restore(bool (MyDocument::*step)());
    void applyDefaultsChange(const QString &key);

    UserDefaults &m_defaults;
    QString m_path;
    QString m_typeName;
    QString m_titleFolder;

    WindowState m_state;
    WindowWork m_work{m_state, this};
    WindowSaving m_saving{{*this, m_state, m_work}};
    WindowSending m_sending{{*this, m_state, m_work}};
    WindowMarkerLists m_markerLists{{*this, m_state, m_work}};
    WindowComparison m_comparison{{*this, m_state, m_work}};
    WindowMedia m_media{{*this, m_state, m_work}, m_defaults};
    WindowNotes m_notes{{*this, m_state, m_work}, m_markerLists, m_defaults};
    WindowReports m_reports{{*this, m_state, m_work}, m_defaults};

    QToolBar *m_toolBar = nullptr;
    QActionGroup *m_toolBarItems = nullptr;
    QString m_selectedToolbarItemIdentifier;
    NoticeBar *m_notice = nullptr;
    OwnersNotice *m_ownersNotice = nullptr;
    QStackedWidget *m_content = nullptr;
    QLabel *m_failure = nullptr;
    QLabel *m_failureDetail = nullptr;
    QString m_failureText; // as a whole, as is the reason
    QString m_failureReason;

    // The document and its views, replaced together when the file is reloaded
    std::shared_ptr<DocumentWindowInterface> m_interface;
    std::unique_ptr<Workbench> m_workbench;
    std::array<TabPane *, 3> m_panes = {}; // by tab, children of m_content
    bool m_isEditingAllowed = false;
    QPointer<QWidget> m_focusBefore;                       // when editing was allowed last
    QPointer<QWidget> m_focusMeanwhile;                    // since then, by itself
    std::optional<JournalFolder::Restorable> m_restorable; ///< for the next session

    /// What reverting gave up.
    struct Reverted {
        QString path;
        QString typeName;
        std::shared_ptr<DocumentWindowInterface> interface;
        std::unique_ptr<Workbench> workbench;
        std::array<TabPane *, 3> panes;
        QString notice;
        NoticeBar::Kind noticeKind;
        bool isEdited = false;
        bool isListed = false;              ///< its rows had all been collected
        QSet<QString> changedDefaults = {}; ///< meanwhile

        void dispose();
    };
    std::deque<Reverted> m_reverted; ///< the last one at the end; at most two, and one more during a reload
    bool m_isReloading = false;      ///< until the file has been read; the last one is kept until then
    bool m_hasReloadFailed = false;  ///< and the last one is still to be shown again

    std::deque<std::function<void()>> m_answers; ///< see whenIdle()
    bool m_appliesAnswers = false;
    bool m_isCovered = false; ///< by a sheet, panel or alert that waits for an answer
};

} // namespace vantrell
