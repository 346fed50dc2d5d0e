#pragma once

#include "support/files/Result.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

class QFileDialog;

namespace vantrell
{

class AboutPanel;
class ApplicationWatch;
class DocumentWindow;
class QVFCPProjectLoader;
class QuitSequence;
class RecentFiles;
class StartWindow;
class UserDefaults;

/// The program as a whole: its start, the windows of its documents, and the commands that belong to none
/// of them. Main thread.
class AppController final : public QObject
{
    Q_OBJECT

public:
    /// Starts the program's log. It comes before everything that may have something to write into it.
    static void startLog();

    /// Starts the alerts, and gives the defaults what they begin with. The defaults outlive the controller.
    explicit AppController(UserDefaults &defaults);
    ~AppController() override;

    /// Shows the start window unless a document is open, and has the start-up action performed a second
    /// later unless a window is in use by then.
    void applicationDidFinishLaunching();
    /// Shows the open panel if the default "showOpenDialogAtStartup" is 1.
    void performStartupAction();
    /// Opens the file in a window of its own, or brings the window to the front that has it. True when
    /// that could be tried; what is wrong with the file its window says.
    bool applicationOpenFile(const QString &path);
    void openFiles(const QStringList &paths);
    /// The program was started again: opens the files, or comes to the front when there are none.
    void startedAgain(const QStringList &paths);
    /// Opens a file of the list of recent ones as what it was opened as.
    void openRecentFile(const QString &path);
    /// Performs the start-up action; the program makes no untitled documents, so this is false.
    bool applicationShouldOpenUntitledFile();

    /// The windows of all documents that are open.
    std::vector<DocumentWindow *> documentWindows() const;
    /// The document that commands are for; null when none is open.
    DocumentWindow *currentWindow() const;
    StartWindow &startWindow() const { return *m_startWindow; }
    RecentFiles &recentFiles() const { return *m_recentFiles; }
    /// Whether Final Cut Pro runs.
    ApplicationWatch &finalCutPro() const { return *m_finalCutPro; }
    /// Whether quality-control logging is switched on.
    static bool isQCLogging();

public Q_SLOTS:
    /// The open panel.
    void openFile();
    /// The list of the projects that are open in Final Cut Pro.
    void openFCPProject();
    void sendToFCP();
    /// Asks about all changed projects, then closes every window and ends the program. When the user gives
    /// that up every window stays.
    void quit();

    void prefsToggleQCLogging(bool on);
    void helpUserManual();
    void helpHalvexHome();
    void helpSupport();
    void helpQVHome();
    void helpReportBug();
    void helpSuggestFeature();
    void showAboutDialog();
    void viewLog();
    void viewTaskLog();
    void gatherLogs();

private:
    bool openDocument(const QString &path, const QString &typeName);
    Result<void> openProject(const QString &path);
    void noteLoaded(DocumentWindow &window);
    DocumentWindow *windowOf(const QString &path, const QString &typeName) const;
    bool isOpenElsewhere(const QString &path, const DocumentWindow &window) const;
    void placeWindow(DocumentWindow &window) const;
    void windowClosed();
    void closeNextWindow();
    void stayOpen();
    void gatherLogsInto(const QString &folder);
    QString startFolder() const;

    UserDefaults &m_defaults;
    std::unique_ptr<RecentFiles> m_recentFiles;
    std::unique_ptr<ApplicationWatch> m_finalCutPro;
    std::unique_ptr<StartWindow> m_startWindow;
    std::vector<QPointer<DocumentWindow>> m_windows; // those that close among them
    QPointer<QFileDialog> m_openPanel;
    QPointer<AboutPanel> m_aboutPanel;
    QPointer<QVFCPProjectLoader> m_projectLoader;
    bool m_quitting = false;
    std::unique_ptr<QuitSequence> m_quit;
};

} // namespace vantrell
