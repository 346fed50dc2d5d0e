#pragma once

#include "document/DocumentInterface.h"
#include "document/widgets/NoticeBar.h"
#include "support/alerts/QVAlert.h"
#include "support/files/Result.h"

#include <QMainWindow>
#include <QPointer>
#include <QVariantMap>

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

class QActionGroup;
class QLabel;
class QStackedWidget;
class QTimer;
class QToolBar;

namespace vantrell
{

class DocumentWindowInterface;
class MyDocument;
class MarkersPane;
class PrintOperation;
class PrintPanel;
class ProgressSheet;
class QVPrintViewController;
class TabPane;
class UserDefaults;
class Workbench;
enum class ReportFormat;

/// The window of one document, which it owns: the three panes behind a toolbar, of which one shows. It
/// ends with its document; closing it asks about changes first, and it deletes itself afterwards. Main
/// thread.
class DocumentWindow final : public QMainWindow, private AlertDelegate
{
    Q_OBJECT

public:
    /// Loading: the panes fill. Ready: the project may be changed. Failed: the window says why it is empty.
    enum class State { Loading, Ready, Failed };

    /// The defaults outlive the window and its document.
    explicit DocumentWindow(UserDefaults &defaults);
    ~DocumentWindow() override;

    /// Starts loading the file and shows the media pane; once. It is of that document type, or of the one
    /// that its name tells when that is null. False, with the reason in the window, when it cannot even be
    /// tried.
    bool open(const QString &path, const QString &typeName = QString());

    /// The file that the window stands for, and the document type as which it was opened or saved last.
    QString path() const { return m_path; }
    QString typeName() const { return m_typeName; }
    State state() const { return m_state; }
    /// Whether something long has the project to itself, which nobody may change meanwhile.
    bool isBusy() const { return m_isBusy; }
    /// Whether the changes are on their way to the editing application; the project may be changed
    /// meanwhile, and be neither saved nor sent.
    bool isSending() const { return m_isSending; }
    /// Whether the user may change the project now.
    bool mayEdit() const;
    /// Whether the window is on its way out: nothing of its document may be used any more.
    bool isClosing() const { return m_closing; }
    /// The document as far as menus go: null until it has loaded, and from the beginning of the end.
    MyDocument *document() const;
    /// After open().
    Workbench &workbench() const { return *m_workbench; }
    TabPane &pane(Tab tab) const { return *m_panes[std::size_t(tab)]; }
    Tab selectedTab() const;

    /// The items of the toolbar, all selectable, and the one whose pane shows.
    QStringList toolbarSelectableItemIdentifiers() const;
    QString selectedToolbarItemIdentifier() const { return m_selectedToolbarItemIdentifier; }

    /// What the window says about its file: why it could not be loaded, or that it had to be repaired.
    QString message() const;
    /// Whether the project could not be loaded; an alert then says so, with the reason. What needs a project
    /// asks this first.
    bool refusesAfterFailedLoad();

    /// How the window finds out whether a file that it is to be saved to is open in another one.
    void setOpenElsewhere(std::function<bool(const QString &path)> isOpenElsewhere)
    {
        m_isOpenElsewhere = std::move(isOpenElsewhere);
    }

    // Closing in two steps, for several windows to be asked about before one closes

    /// What becomes of changes: the user is asked as by closing, or they are saved.
    enum class Settling { Ask, Save };
    /// Settles the changes and leaves the window open; changesSettled() tells the end of it.
    void settleChanges(Settling settling);
    /// Closes the window. About changes that were settled nobody is asked again.
    void closeSettled();
    /// What runs and is given up when the window closes is given up.
    void giveUpForClosing();

public Q_SLOTS:
    /// The toolbar's actions: each fills its pane and shows it.
    void toolbarMedia();
    void toolbarEffects();
    void toolbarMarkers();

    /// Writes the document to its file, or sends it when it is a project of an editing application. This
    /// goes on beside the window; saved() tells the end of it.
    void save();
    /// Asks where to, then writes there; from then on the window stands for that file.
    void saveAs();
    void saveTo(const QString &path);
    /// Loads the file again, after a question when changes would be lost.
    void revert();
    void revertWithoutQuestion();

    /// Hands the changes to the editing application. This goes on beside the window; saved() tells the end
    /// of it.
    void sendToFCP();

    void importFCPMarkers();
    void importAvidLocators();
    void importFCPXMarkers();
    void exportFCPMarkers();
    void exportAvidLocators();
    /// Asks where to, then writes the changed sequences there as the editing application would get them.
    void exportChangedSequences();
    /// What the open panel ends with: adds the markers of the files, beside the window; markersImported()
    /// tells the end of it.
    void importMarkerLists(const QStringList &paths, const QString &format);
    /// What the save panel ends with.
    void exportMarkerList(const QString &path, const QString &format);
    void exportChangedSequencesTo(const QString &path);

    /// Prints the table of the pane that shows: its selected rows, or all of them. The print panel asks for
    /// the columns, and for paper or a PDF file.
    void printDocument();
    /// Asks what a report of that table shows and what it is written as.
    void exportReport();
    /// What the sheet ends with.
    void exportReportTo(const QString &path, vantrell::ReportFormat format);

    /// The sheets of the marker fields and of a new marker preset, over the Markers tab.
    void showMarkerFieldsDialog();
    void showMarkerPresetDialog();

    // The edit menu, for the pane that shows
    void copySelection();
    void selectAllRows();
    void removeSelection();
    /// Shows the effects with the keyboard in their search field.
    void findEffects();

public:
    /// Prints what the web view shows with the settings, see PrintInfo, as they are or as the print panel
    /// changes them; tells whether it was printed.
    void printDocumentWithSettings(const QVariantMap &settings, bool showPrintPanel,
                                   const std::function<void(bool didPrint)> &didPrint);
    /// There is no way to print the document but printDocument(): null.
    PrintOperation *printOperationWithSettings(const QVariantMap &settings, QString *error);
    /// Whether a report may be made now.
    bool mayReport() const;

Q_SIGNALS:
    /// What the menus depend on is another than before.
    void menusChanged();
    void loaded(const QString &path);
    /// A save is over; why it failed the user has been told. A send counts as one: it is over once the user
    /// has been told the outcome, and has saved when no changes are left.
    void saved(bool isSaved);
    /// An import is over; 0 when it was cancelled or no marker came of it.
    void markersImported(std::size_t count);
    void markersExported(bool isWritten);
    void changedSequencesExported(bool isWritten);
    /// The print panel is over.
    void reportPrinted(bool isPrinted);
    void reportExported(bool isWritten);
    void loadFailed(const QString &path);
    /// The user wants these files opened.
    void filesDropped(const QStringList &paths);
    /// The window is hidden and will delete itself.
    void closed();
    /// The user does not want the window to be closed, after all.
    void closeCancelled();
    /// The changes are saved or to be given up, or the user does not want to part with the window, or they
    /// could not be saved.
    void changesSettled(bool areSettled);

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void makeToolBar();
    void makeContent();
    QWidget *makeFailurePage();
    void startSession(const QString &path, const QString &typeName);
    void endSession();
    void showFailure(const QString &message);
    void loadEnded(bool loaded, const QString &message, const QString &notice);
    void inventoriesEnded();
    void updateEditing();
    void commitEditing();
    void toolbar(Tab tab);
    void beginBusy(const QString &text, std::function<void()> cancel);
    void endBusy();
    void forgetBusiness();
    void showProgress();
    void setCancellable(bool cancellable);
    void cancelProgress();
    void writeEnded(const QString &path, const Result<void> &written);
    void tellOfFailedSave(const QString &path, const QString &reason);
    void askAboutChangedFile(const QString &path);
    void saveEnded(const QString &path, bool isSaved);
    void rememberFile();
    void runProjectPanel(const std::function<void()> &whenCancelled = {});
    void closeAfterSave(bool isSaved);
    void changesEnded(bool areSettled);
    bool isProject() const;
    void hideSending();
    void sendEnded();
    void sequencesExported(const QString &path, const Result<void> &written, bool isCancelled);
    void tellOfImport(std::size_t imported, std::size_t total, const QStringList &paths);
    void exportEnded(const QString &path, const QString &format, std::size_t count,
                     const Result<void> &written);
    void tellOfExport(const QString &text, const QString &format);
    void tellInMarkers(const QString &text);
    void tellOwners();
    void applyOwnerListing();
    QString fileTitle() const;
    void tellOfReport(const QString &what, const QString &reason);
    void documentDidPrint(Tab printed, bool didPrint);
    void reportExportEnded(const QString &path, const Result<void> &written, bool isCancelled);
    void closePrintPanel();
    void setPath(const QString &path);
    void showPane(Tab tab);
    MarkersPane &markersPane() const;
    void applyDefaultsChange(const QString &key);

    bool respondsTo(const QString &selector) const override;
    void perform(const QString &selector, QVAlert *alert, int code) override;
    void askBeforeClosing();
    void closeQuestionEnded(int code);
    void shutDown();
    void restorePlace();
    void storePlace();

    bool mayChangeMarkers();
    void runOpenPanel(const QString &format);
    void runSavePanel(const QString &format);
    QString folder() const;

    UserDefaults &m_defaults;
    QString m_path;
    QString m_typeName;
    State m_state = State::Loading;
    bool m_treeLoaded = false;
    bool m_closing = false;
    bool m_asksBeforeClosing = false;
    bool m_closesWhenSaved = false;
    bool m_isSettling = false;     // closing ends with the changes
    bool m_givesUpChanges = false; // when it closes
    std::function<bool(const QString &path)> m_isOpenElsewhere;

    // Something long
    bool m_isBusy = false;
    bool m_isCancellable = false;
    bool m_givesUpForClosing = false; // when the window is closed
    bool m_closesWhenIdle = false;
    std::function<void()> m_cancelBusy;
    QTimer *m_progressDelay;
    QPointer<QWidget> m_focusBefore;
    QPointer<QWidget> m_focusMeanwhile;
    bool m_revertsWhenUnwound = false;

    bool m_isSending = false;
    std::optional<std::pair<QString, NoticeBar::Kind>>
        m_noticeBefore; // while the notice tells of a hidden send

    QToolBar *m_toolBar = nullptr;
    QActionGroup *m_toolBarItems = nullptr;
    QString m_selectedToolbarItemIdentifier;
    NoticeBar *m_notice = nullptr;
    NoticeBar *m_ownersNotice = nullptr;
    QStackedWidget *m_content = nullptr;
    QLabel *m_failure = nullptr;
    QLabel *m_failureReason = nullptr;
    ProgressSheet *m_progress = nullptr;

    QPointer<PrintPanel> m_printPanel;
    QPointer<QVPrintViewController> m_printViewController; // of what was printed last

    // The document and what shows it, exchanged together when the file is loaded again.
    std::shared_ptr<DocumentWindowInterface> m_interface;
    std::unique_ptr<Workbench> m_workbench;
    std::array<TabPane *, 3> m_panes = {}; // by tab, in m_content
};

} // namespace vantrell
