#pragma once

#include "app/Troubleshooting.h"
#include "app/WebPages.h"
#include "journal/JournalFolder.h"
#include "support/files/Result.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QFileDialog;

namespace vantrell
{

class AboutPanel;
class ApplicationWatch;
class DocumentWindow;
class PreferencesWindow;
class QVFCPProjectLoader;
class QuitSequence;
class RecentFiles;
class Recovery;
class StartWindow;
class UserDefaults;

/// The controller of the program: start-up, the document windows, and the commands that belong to no window.
/// Main thread.
class AppController final : public QObject
{
    Q_OBJECT

public:
    /// Starts the program's log; called before anything that may write to it.
    static void startLog();

    /// Sets up alerts and registers the initial defaults. The defaults outlive the controller.
    explicit AppController(UserDefaults &defaults);
    ~AppController() override;

    /// Shows the start window unless a document is open. Performs the start-up action a second later unless a
    /// window is in use by then.
    void applicationDidFinishLaunching();
    /// Shows the open panel if the default "showOpenDialogAtStartup" is 1.
    void performStartupAction();
    /// Opens the file in a new window, or brings the window to the front that has it open. False for a file
    /// of unknown type; its window reports any other error. When it turns out later that a slow volume's file
    /// is open already, under another name, the new window closes again.
    bool applicationOpenFile(const QString &path);
    void openFiles(const QStringList &paths);
    /// Another process was started: opens its files, or comes to the front if there are none.
    void startedAgain(const QStringList &paths);
    /// Opens a recent file as the type it was last opened as.
    void openRecentFile(const QString &path);
    /// Performs the start-up action and returns false: there are no untitled documents.
    bool applicationShouldOpenUntitledFile();

    /// The windows of all open documents.
    std::vector<DocumentWindow *> documentWindows() const;
    /// The window that commands apply to; null without one.
    DocumentWindow *currentWindow() const;
    StartWindow &startWindow() const { return *m_startWindow; }
    Recovery &recovery() const { return *m_recovery; }
    RecentFiles &recentFiles() const { return *m_recentFiles; }
    /// Shows the window above all others, ready for the keyboard.
    static void bringToFront(QWidget &window);
    /// Knows whether Final Cut Pro is running.
    ApplicationWatch &finalCutPro() const { return *m_finalCutPro; }
    /// Whether quality-control logging is enabled.
    static bool isQCLogging();

public Q_SLOTS:
    /// Shows the open panel.
    void openFile();
    /// Opens a copy of the sample project in the user's application support folder; an earlier copy is kept.
    void openSampleProject();
    /// Shows the list of the projects that are open in Final Cut Pro.
    void openFCPProject();
    void sendToFCP();
    /// Asks about all changed projects, then closes every window and quits. If the user cancels, all windows
    /// stay open.
    void quit();

    void showPreferences();
    void prefsToggleQCLogging(bool on);
    /// Opens the manual. Where its file does not exist, a line in the window tells that.
    void helpUserManual();
    void helpHalvexHome() { openWebPage(WebPage::HalvexHome, m_defaults); }
    void helpSupport() { openWebPage(WebPage::Support, m_defaults); }
    void helpQVHome() { openWebPage(WebPage::QVHome, m_defaults); }
    void helpReportBug() { openWebPage(WebPage::ReportBug, m_defaults); }
    void helpSuggestFeature() { openWebPage(WebPage::SuggestFeature, m_defaults); }
    void showAboutDialog();
    void viewLog() { Troubleshooting::viewLogForApp(programName); }
    void viewTaskLog() { Troubleshooting::viewTaskLogForApp(programName); }
    void gatherLogs();

private:
    inline static const QString programName = QStringLiteral("Vantrell");

    /// A file as it is among those of the windows.
    struct Place {
        QString path;                     ///< absolute, without "." and ".."
        DocumentWindow *window = nullptr; ///< that has it open; null for none
    };

    bool openDocument(const QString &path, const QString &typeName);
    void closeDuplicate(DocumentWindow *duplicate, DocumentWindow &window);
    void tell(const QString &text, const QString &path = QString());
    DocumentWindow *makeWindow();
    bool restoreChanges(JournalFolder::Restorable changes);
    Result<void> openProject(const QString &path);
    void noteLoaded(DocumentWindow &window);
    std::vector<DocumentWindow *> windowsOf(const QString &typeName) const;
    static std::optional<Place> place(const QString &path, const std::vector<DocumentWindow *> &windows,
                                      const std::function<void(DocumentWindow *)> &late = {});
    void findOpen(const QString &path, const DocumentWindow *except,
                  const std::function<void(bool)> &found) const;
    std::vector<DocumentWindow *> windowsBeside(const DocumentWindow &window) const;
    void cascade(DocumentWindow &window) const;
    void updateTitles();
    void windowClosed();
    void closeNextWindow();
    void gatherLogsInto(const QString &folder);
    QString startFolder() const;

    UserDefaults &m_defaults;
    std::unique_ptr<RecentFiles> m_recentFiles;
    std::unique_ptr<ApplicationWatch> m_finalCutPro;
    std::unique_ptr<StartWindow> m_startWindow;
    std::unique_ptr<Recovery> m_recovery;
    std::vector<QPointer<DocumentWindow>> m_windows; // including those that are closing
    QPointer<QFileDialog> m_openPanel;
    QPointer<AboutPanel> m_aboutPanel;
    QPointer<PreferencesWindow> m_preferences;
    QPointer<QVFCPProjectLoader> m_projectLoader;
    enum class Quitting { No, Asking, Closing };
    Quitting m_quitting = Quitting::No;
    std::unique_ptr<QuitSequence> m_quit;
};

} // namespace vantrell
