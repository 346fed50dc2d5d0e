#include "app/AppController.h"

#include "app/AboutPanel.h"
#include "app/ApplicationWatch.h"
#include "app/MainMenu.h"
#include "app/QuitSequence.h"
#include "app/RecentFiles.h"
#include "app/Recovery.h"
#include "app/StartWindow.h"
#include "app/Troubleshooting.h"
#include "app/UserManual.h"
#include "app/WebPages.h"
#include "bridge/QVAppleEvents.h"
#include "bridge/widgets/QVFCPProjectLoader.h"
#include "document/widgets/DocumentWindow.h"
#include "media/AnswerWithin.h"
#include "support/alerts/QVAlert.h"
#include "support/desktop/Workspace.h"
#include "support/files/FileUtilities.h"
#include "support/files/PropertyList.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/TableIcons.h"
#include "workbench/Workbench.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QScreen>
#include <QTimer>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString showOpenDialogKey = QStringLiteral("showOpenDialogAtStartup");
const QString logQCKey = QStringLiteral("logQC");
const QString journalKey = QStringLiteral("journal");

constexpr int startupActionMs = 1000;
constexpr std::chrono::milliseconds volumeTimeout{500}; // an unmounted network volume may never answer
constexpr int cascadeStep = 28;                         // pixels

QString qcListPath()
{
    return StandardFolders::preferences() + QStringLiteral("/com.orvandel.qc.plist");
}

/// The absolute path without "." and ".."; where these follow a symbolic link, its target counts.
QString absolutePath(const QString &path)
{
    const QFileInfo file(QDir::current().absoluteFilePath(path));
    const bool goesUp = file.filePath().contains(QStringLiteral("/../"));
    const QString folder = goesUp ? QFileInfo(file.path()).canonicalFilePath() : QString();
    return folder.isEmpty() ? QDir::cleanPath(file.filePath()) : QDir(folder).filePath(file.fileName());
}

void bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
}

/// The window of the file at that path; null without one, or when a volume does not answer.
DocumentWindow *windowAt(const QString &path, const std::vector<DocumentWindow *> &windows)
{
    QStringList files;
    for (DocumentWindow *const window : windows) {
        if (window->path() == path)
            return window;
        files.append(window->path());
    }
    const auto find = [path, files] {
        qsizetype index = 0;
        while (index < files.size() && !FileUtilities::isSameFile(path, files[index]))
            ++index;
        return index;
    };
    const qsizetype index = answerWithin<qsizetype>(volumeTimeout, find).value_or(files.size());
    return index < files.size() ? windows[std::size_t(index)] : nullptr;
}

QVariantMap qcList()
{
    const Result<QVariant> list = PropertyList::fromFile(qcListPath());
    return list ? list.value().toMap() : QVariantMap();
}

} // namespace

void AppController::startLog()
{
    QVLog::createNewLog(programName);
}

AppController::AppController(UserDefaults &defaults)
    : m_defaults(defaults)
{
    QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(m_defaults));
    QVariantMap registered = defaultWebAddresses();
    registered.insert(showOpenDialogKey, 1);
    registered.insert(journalKey, true);
    m_defaults.registerDefaults(registered);

    m_recentFiles = std::make_unique<RecentFiles>(m_defaults);
    m_finalCutPro = std::make_unique<ApplicationWatch>(QVAppleEvents::finalCutProIdentifier());
    m_startWindow = std::make_unique<StartWindow>(*m_recentFiles);
    new MainMenu(*this, *m_startWindow, nullptr);
    connect(m_startWindow.get(), &StartWindow::openRequested, this, &AppController::openFile);
    connect(m_startWindow.get(), &StartWindow::filesChosen, this, &AppController::openFiles,
            Qt::QueuedConnection);
    connect(m_startWindow.get(), &StartWindow::recentFileChosen, this, &AppController::openRecentFile,
            Qt::QueuedConnection);
    connect(m_startWindow.get(), &StartWindow::closed, this, &AppController::quit);
    m_recovery = std::make_unique<Recovery>(
        [this] { return documentWindows(); },
        [this](JournalFolder::Restorable changes) { return restoreChanges(std::move(changes)); });
}

AppController::~AppController()
{
    QVAlert::closeAll();
    m_recovery.reset();
    for (const QPointer<DocumentWindow> &window : m_windows)
        delete window;
    QVAlert::setPresenter(nullptr);
}

void AppController::applicationDidFinishLaunching()
{
    if (documentWindows().empty())
        m_startWindow->show();
    m_recovery->offerAll();
    QTimer::singleShot(startupActionMs, this, [this] {
        const QWidget *const active = QApplication::activeWindow();
        const bool isInUse = !documentWindows().empty() || m_recovery->isOffering() ||
                             (active && active != m_startWindow.get());
        if (!isInUse && m_quitting == Quitting::No)
            performStartupAction();
    });
}

void AppController::performStartupAction()
{
    if (m_defaults.integer(showOpenDialogKey) == 1)
        openFile();
}

bool AppController::applicationShouldOpenUntitledFile()
{
    performStartupAction();
    return false;
}

void AppController::openFile()
{
    if (m_openPanel) {
        bringToFront(*m_openPanel);
        return;
    }
    m_openPanel = new QFileDialog(QApplication::activeWindow(),
                                  tr("Browse for a Final Cut Pro 7 project or XML file"), startFolder(),
                                  tr("Final Cut Pro 7 projects and XML files (*.fcp *.xml *.FCP *.XML)"));
    m_openPanel->setAttribute(Qt::WA_DeleteOnClose);
    m_openPanel->setFileMode(QFileDialog::ExistingFiles);
    m_openPanel->setOption(QFileDialog::ReadOnly); // without the button that makes folders
    connect(m_openPanel, &QFileDialog::filesSelected, this, &AppController::openFiles, Qt::QueuedConnection);
    m_openPanel->setWindowModality(Qt::ApplicationModal);
    m_openPanel->show();
}

QString AppController::startFolder() const
{
    const QString last = m_recentFiles->paths().value(0);
    return last.isEmpty() ? StandardFolders::documents() : QFileInfo(last).path();
}

void AppController::openFiles(const QStringList &paths)
{
    for (const QString &path : paths)
        applicationOpenFile(path);
}

void AppController::startedAgain(const QStringList &paths)
{
    openFiles(paths);
    if (!paths.isEmpty())
        return;
    if (DocumentWindow *const window = currentWindow())
        bringToFront(*window);
    else
        bringToFront(*m_startWindow);
}

void AppController::openRecentFile(const QString &path)
{
    if (m_recentFiles->isFCPProject(path))
        openDocument(path, DocumentType::finalCutProProject);
    else
        applicationOpenFile(path);
}

void AppController::openFCPProject()
{
    if (m_projectLoader) {
        bringToFront(*m_projectLoader);
        return;
    }
    const QVFCPProjectLoader::Services services{[this](const QString &path) { return openProject(path); },
                                                TableIcons::file};
    m_projectLoader = QVFCPProjectLoader::showOpenDialog(services, QApplication::activeWindow());
}

/// A file that is open in Final Cut Pro is a project, whatever its name.
Result<void> AppController::openProject(const QString &path)
{
    if (!openDocument(path, DocumentType::finalCutProProject))
        return Failure{tr("“%1” could not be opened.").arg(QFileInfo(path).fileName())};
    return {};
}

bool AppController::applicationOpenFile(const QString &path)
{
    return openDocument(path, Workbench::typeNameForPath(path));
}

/// A file may be open in two windows: as it is on disk, and as the project that Final Cut Pro has open.
bool AppController::openDocument(const QString &path, const QString &typeName)
{
    const QString absolute = absolutePath(path);
    if (DocumentWindow *const open = windowOf(absolute, typeName)) {
        bringToFront(*open);
        return true;
    }
    DocumentWindow *const window = makeWindow();
    connect(
        window, &DocumentWindow::loaded, m_recovery.get(), [this, window] { m_recovery->offerFor(*window); },
        Qt::SingleShotConnection);
    return window->open(absolute, typeName);
}

/// Opens the project of a journal with its changes, in its own window if it is open already.
bool AppController::restoreChanges(JournalFolder::Restorable changes)
{
    const JournalHeader header = changes.contents.header;
    if (DocumentWindow *const open = windowOf(header.projectPath, header.typeName)) {
        bringToFront(*open);
        return open->restoreChanges(std::move(changes));
    }
    return makeWindow()->openWithChanges(header.projectPath, header.typeName, std::move(changes));
}

/// Shows a window that is to open a document.
DocumentWindow *AppController::makeWindow()
{
    auto *const window = new DocumentWindow(m_defaults);
    m_windows.emplace_back(window);
    new MainMenu(*this, *window, window);
    connect(window, &DocumentWindow::loaded, this, [this, window] { noteLoaded(*window); });
    connect(window, &DocumentWindow::loadFailed, m_recentFiles.get(), &RecentFiles::forgetIfGone);
    connect(window, &DocumentWindow::filesDropped, this, &AppController::openFiles, Qt::QueuedConnection);
    connect(window, &DocumentWindow::closed, this, &AppController::windowClosed);
    connect(window, &DocumentWindow::closeCancelled, this, [this] {
        if (m_quitting == Quitting::Closing) // before that the window is asked about again
            m_quitting = Quitting::No;
    });
    window->setOpenElsewhere([this, window](const QString &file) { return isOpenElsewhere(file, *window); });
    window->setOtherWindows([this, window] { return windowsBeside(*window); });
    cascade(*window);
    window->show();
    m_startWindow->hide();
    return window;
}

void AppController::noteLoaded(DocumentWindow &window)
{
    m_recentFiles->add(window.path(), window.typeName() == DocumentType::finalCutProProject);
}

DocumentWindow *AppController::windowOf(const QString &path, const QString &typeName) const
{
    const bool isProject = typeName == DocumentType::finalCutProProject;
    std::vector<DocumentWindow *> windows;
    for (DocumentWindow *const window : documentWindows()) {
        const bool isOpenAsProject = window->typeName() == DocumentType::finalCutProProject;
        if (isOpenAsProject == isProject && window->state() != DocumentWindow::State::Failed)
            windows.push_back(window);
    }
    return windowAt(path, windows);
}

bool AppController::isOpenElsewhere(const QString &path, const DocumentWindow &window) const
{
    std::vector<DocumentWindow *> others;
    for (DocumentWindow *const other : documentWindows()) {
        if (other != &window && other->state() != DocumentWindow::State::Failed)
            others.push_back(other);
    }
    return windowAt(path, others) != nullptr;
}

/// The other windows whose projects are ready.
std::vector<DocumentWindow *> AppController::windowsBeside(const DocumentWindow &window) const
{
    std::vector<DocumentWindow *> others = documentWindows();
    std::erase_if(others, [&window](const DocumentWindow *other) {
        return other == &window || other->state() != DocumentWindow::State::Ready;
    });
    return others;
}

/// Moves the window diagonally until it covers no other one exactly.
void AppController::cascade(DocumentWindow &window) const
{
    if (window.isMaximized() || window.isFullScreen())
        return;
    const auto isTaken = [this, &window] {
        const auto windows = documentWindows();
        return std::any_of(windows.begin(), windows.end(), [&window](const DocumentWindow *other) {
            return other != &window && other->isVisible() && other->pos() == window.pos();
        });
    };
    const QRect screen = window.screen()->availableGeometry();
    const QPoint corner = screen.topLeft();
    for (std::size_t i = 0; i < m_windows.size() && isTaken(); ++i) {
        const QPoint next = window.pos() + QPoint(cascadeStep, cascadeStep);
        window.move(screen.contains(QRect(next, window.size())) ? next : corner);
    }
}

std::vector<DocumentWindow *> AppController::documentWindows() const
{
    std::vector<DocumentWindow *> open;
    for (const QPointer<DocumentWindow> &window : m_windows) {
        if (window && !window->isClosing())
            open.push_back(window);
    }
    return open;
}

DocumentWindow *AppController::currentWindow() const
{
    const std::vector<DocumentWindow *> open = documentWindows();
    auto *const active = qobject_cast<DocumentWindow *>(QApplication::activeWindow());
    if (active && !active->isClosing())
        return active;
    return open.empty() ? nullptr : open.back();
}

void AppController::windowClosed()
{
    std::erase_if(m_windows, [](const QPointer<DocumentWindow> &window) { return !window; });
    if (m_quitting == Quitting::Closing)
        closeNextWindow();
    else if (m_quitting == Quitting::Asking)
        return;
    else if (documentWindows().empty())
        m_startWindow->show();
}

void AppController::quit()
{
    if (m_quitting != Quitting::No)
        return;
    m_quitting = Quitting::Asking;
    m_quit = std::make_unique<QuitSequence>([this] { return documentWindows(); }, nullptr);
    const auto close = [this] {
        m_quitting = Quitting::Closing;
        closeNextWindow();
    };
    connect(m_quit.get(), &QuitSequence::settled, this, close, Qt::QueuedConnection);
    connect(m_quit.get(), &QuitSequence::cancelled, this, [this] { m_quitting = Quitting::No; });
    m_quit->start();
}

void AppController::closeNextWindow()
{
    const std::vector<DocumentWindow *> open = documentWindows();
    if (!open.empty()) {
        open.front()->closeSettled(); // windowClosed() goes on with the next one
        return;
    }
    QVAlert::closeAll();
    QCoreApplication::quit();
}

void AppController::sendToFCP()
{
    if (DocumentWindow *const window = currentWindow())
        window->sendToFCP();
}

bool AppController::isQCLogging()
{
    return PropertyList::boolean(qcList().value(logQCKey));
}

void AppController::prefsToggleQCLogging(bool on)
{
    QVariantMap list = qcList();
    list.insert(logQCKey, on);
    const Result<void> written = PropertyList::toFile(list, qcListPath());
    if (!written)
        QVLog::appendLog(u"Unable to write %@: %@", qcListPath(), written.message());
}

void AppController::helpUserManual()
{
    const Result<void> opened =
        UserManual::open(StandardFolders::sharedLibrary(), QCoreApplication::applicationDirPath());
    if (!opened)
        QVAlert::alertSheetWithMessageText(tr("The user manual cannot be shown"),
                                           opened.message() + QLatin1Char('.'), nullptr);
}

void AppController::showAboutDialog()
{
    if (!m_aboutPanel)
        m_aboutPanel = AboutPanel::load(QApplication::activeWindow());
    if (m_aboutPanel) {
        bringToFront(*m_aboutPanel);
        return;
    }
    QVLog::appendLog(u"Error: unable to load About dialog. Please report this error to Orvandel.");
    QVAlert::alertSheetWithMessageText(QStringLiteral("Error: unable to load About dialog."),
                                       QStringLiteral("Please report this error to Orvandel."), nullptr);
}

void AppController::gatherLogs()
{
    auto *const panel = new QFileDialog(QApplication::activeWindow(), tr("Choose a folder for the logs"),
                                        StandardFolders::desktop());
    panel->setAttribute(Qt::WA_DeleteOnClose);
    panel->setFileMode(QFileDialog::Directory);
    panel->setOption(QFileDialog::ShowDirsOnly);
    connect(panel, &QFileDialog::fileSelected, this, &AppController::gatherLogsInto);
    panel->setWindowModality(Qt::ApplicationModal);
    panel->show();
}

void AppController::gatherLogsInto(const QString &folder)
{
    Troubleshooting::gatherLogsForAppWithName(programName, folder, this, [](const Result<QString> &archive) {
        if (archive)
            QVAlert::alertSheetWithMessageText(tr("The logs were gathered"), archive.value(), nullptr);
        else
            QVAlert::alertSheetWithMessageText(tr("Unable to gather the logs"), archive.message(), nullptr);
    });
}

} // namespace vantrell
