#include "app/AppController.h"

#include "app/AboutPanel.h"
#include "app/ApplicationWatch.h"
#include "app/MainMenu.h"
#include "app/PreferenceKeys.h"
#include "app/PreferencesWindow.h"
#include "app/QuitSequence.h"
#include "app/RecentFiles.h"
#include "app/Recovery.h"
#include "app/SampleProject.h"
#include "app/StartWindow.h"
#include "app/Troubleshooting.h"
#include "app/UserManual.h"
#include "app/WebPages.h"
#include "app/WindowTitles.h"
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
#include "support/threads/BackgroundWork.h"
#include "support/threads/MainThread.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/ShownText.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableFont.h"
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

const QString logQCKey = QStringLiteral("logQC");

constexpr int startupActionMs = 1000;
constexpr int cascadeStep = 28; // pixels

QString qcListPath()
{
    return StandardFolders::preferences() + QStringLiteral("/com.orvandel.qc.plist");
}

QString cleanPath(const QString &path)
{
    return QDir::cleanPath(QDir::current().absoluteFilePath(path));
}

bool goesUp(const QString &path)
{
    return path.contains(QStringLiteral("/../")) || path.startsWith(QStringLiteral("../"));
}

/// The absolute path without "." and ".."; where these follow a symbolic link, its target counts. Waits for
/// the disk.
QString absolutePath(const QString &path)
{
    const QFileInfo file(QDir::current().absoluteFilePath(path));
    const QString folder = goesUp(path) ? QFileInfo(file.path()).canonicalFilePath() : QString();
    return folder.isEmpty() ? cleanPath(path) : QDir(folder).filePath(file.fileName());
}

/// The path to open before the disk has said where it leads.
QString openedPath(const QString &path)
{
    return goesUp(path) ? QDir::current().absoluteFilePath(path) : cleanPath(path);
}

/// What the disk says of a path: where it leads, and which of the files is the same one, -1 for none.
struct FoundFile {
    QString path;
    qsizetype index = -1;
};

FoundFile findFile(const QString &path, const QStringList &files)
{
    const QString absolute = absolutePath(path);
    qsizetype index = files.indexOf(absolute);
    for (qsizetype i = 0; index < 0 && i < files.size(); ++i) {
        if (FileUtilities::isSameFile(absolute, files[i]))
            index = i;
    }
    return {absolute, index};
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
    registered.insert(PreferenceKey::showOpenDialog, 1);
    registered.insert(PreferenceKey::journal, true);
    m_defaults.registerDefaults(registered);
    TableFont::apply(m_defaults);
    connect(&m_defaults, &UserDefaults::changed, this, [this](const QString &key) {
        if (key == TableFont::familyKey || key == TableFont::sizeKey)
            TableFont::apply(m_defaults);
    });

    m_recentFiles = std::make_unique<RecentFiles>(m_defaults);
    m_finalCutPro = std::make_unique<ApplicationWatch>(QVAppleEvents::finalCutProIdentifier());
    m_startWindow = std::make_unique<StartWindow>(*m_recentFiles, m_defaults);
    new MainMenu(*this, *m_startWindow, nullptr);
    connect(m_startWindow.get(), &StartWindow::openRequested, this, &AppController::openFile);
    connect(m_startWindow.get(), &StartWindow::sampleRequested, this, &AppController::openSampleProject);
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
    delete m_preferences;
    for (const QPointer<DocumentWindow> &window : m_windows)
        delete window;
    QVAlert::setPresenter(nullptr);
}

void AppController::bringToFront(QWidget &window)
{
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    window.raise();
    window.activateWindow();
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
    if (m_defaults.integer(PreferenceKey::showOpenDialog) == 1)
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
    FilePanel::fitColumns(*m_openPanel);
    m_openPanel->setWindowModality(Qt::ApplicationModal);
    m_openPanel->show();
}

QString AppController::startFolder() const
{
    const QString last = m_recentFiles->paths().value(0);
    const QString folder = last.isEmpty() ? QString() : QFileInfo(last).path();
    // The panel would wait for a folder that does not answer.
    const auto look = [folder] { return QFileInfo::exists(folder); };
    return !folder.isEmpty() && answerWithin<bool>(mainThreadPatience, look).value_or(false)
               ? folder
               : StandardFolders::documentsOrHome();
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

void AppController::openSampleProject()
{
    BackgroundWork::run([self = QPointer(this), folder = SampleProject::folder()] {
        const Result<QString> sample = SampleProject::prepare(folder);
        MainThread::post([self, sample] {
            if (!self)
                return;
            if (sample)
                self->applicationOpenFile(sample.value());
            else
                self->tell(
                    tr("The sample project could not be copied: %1").arg(shownMessage(sample.message())));
        });
    });
}

void AppController::showPreferences()
{
    if (!m_preferences)
        m_preferences = new PreferencesWindow(m_defaults);
    bringToFront(*m_preferences);
}

/// In the window that commands apply to: below its table, or where it tells of its file.
void AppController::tell(const QString &text, const QString &path)
{
    DocumentWindow *const window = currentWindow();
    if (!window)
        m_startWindow->showMessage(text, path);
    else if (window->state() == DocumentWindow::State::Failed)
        window->setNotice(text + QLatin1Char('.'));
    else if (path.isEmpty())
        window->currentPane().showMessage(text);
    else
        window->currentPane().showMessage(text, path);
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
    const auto opened = std::make_shared<QPointer<DocumentWindow>>();
    const auto late = [this, opened](DocumentWindow *open) {
        if (open)
            closeDuplicate(*opened, *open);
    };
    const Place found = place(path, windowsOf(typeName), late).value_or(Place{openedPath(path)});
    if (found.window) {
        bringToFront(*found.window);
        return true;
    }
    DocumentWindow *const window = makeWindow();
    *opened = window;
    connect(
        window, &DocumentWindow::loaded, m_recovery.get(), [this, window] { m_recovery->offerFor(*window); },
        Qt::SingleShotConnection);
    return window->open(found.path, typeName);
}

/// Unless it has been edited since.
void AppController::closeDuplicate(DocumentWindow *duplicate, DocumentWindow &window)
{
    if (!duplicate || duplicate == &window || duplicate->isClosing() ||
        (duplicate->document() && duplicate->document()->isEdited()))
        return;
    duplicate->close();
    bringToFront(window);
}

/// Opens the project of a journal with its changes, in its own window if it is open already.
bool AppController::restoreChanges(JournalFolder::Restorable changes)
{
    const JournalHeader header = changes.contents.header;
    const std::optional<Place> found = place(header.projectPath, windowsOf(header.typeName));
    if (found && found->window) {
        bringToFront(*found->window);
        return found->window->restoreChanges(std::move(changes));
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
    connect(window, &QWidget::windowTitleChanged, this, &AppController::updateTitles);
    window->setFindOpen(
        [this, window](const QString &file, bool thisToo, const std::function<void(bool)> &found) {
            findOpen(file, thisToo ? nullptr : window, found);
        });
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

/// The windows in which a file of that type could be open.
std::vector<DocumentWindow *> AppController::windowsOf(const QString &typeName) const
{
    const bool isProject = typeName == DocumentType::finalCutProProject;
    std::vector<DocumentWindow *> windows = documentWindows();
    std::erase_if(windows, [isProject](const DocumentWindow *window) {
        const bool isOpenAsProject = window->typeName() == DocumentType::finalCutProProject;
        return isOpenAsProject != isProject || window->state() == DocumentWindow::State::Failed;
    });
    return windows;
}

/// A file that is being saved under that name is open, too. Nothing when the disk does not answer at once;
/// then `late` gets the window, or null, on the main thread when it does.
std::optional<AppController::Place> AppController::place(const QString &path,
                                                         const std::vector<DocumentWindow *> &windows,
                                                         const std::function<void(DocumentWindow *)> &late)
{
    QStringList files;
    std::vector<QPointer<DocumentWindow>> kept;
    for (DocumentWindow *const window : windows) {
        for (const QString &file : {window->path(), window->saveTarget()}) {
            if (file.isEmpty())
                continue;
            files.append(file);
            kept.emplace_back(window);
        }
    }
    const auto windowAt = [kept](qsizetype index) {
        DocumentWindow *const window = index < 0 ? nullptr : kept[std::size_t(index)].data();
        return window && !window->isClosing() ? window : nullptr;
    };
    if (!goesUp(path)) {
        const QString clean = cleanPath(path);
        const qsizetype index = files.indexOf(clean);
        if (index >= 0 || files.isEmpty())
            return Place{clean, windowAt(index)};
    }
    const auto find = [path, files] { return findFile(path, files); };
    const auto answerLate = [windowAt, late](const FoundFile &found) {
        MainThread::post([windowAt, late, index = found.index] {
            if (late)
                late(windowAt(index));
        });
    };
    const std::optional<FoundFile> found = answerWithin<FoundFile>(mainThreadPatience, find, answerLate);
    return found ? std::optional(Place{found->path, windowAt(found->index)}) : std::nullopt;
}

/// Whether a file is open in a window other than the exception, which may be null.
void AppController::findOpen(const QString &path, const DocumentWindow *except,
                             const std::function<void(bool)> &found) const
{
    std::vector<DocumentWindow *> others = documentWindows();
    std::erase_if(others, [except](const DocumentWindow *other) {
        return other == except || other->state() == DocumentWindow::State::Failed;
    });
    const auto late = [found](DocumentWindow *open) { found(open != nullptr); };
    if (const std::optional<Place> there = place(path, others, late))
        found(there->window != nullptr);
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

/// Gives each window the folder that tells its file from another one's of the same name.
void AppController::updateTitles()
{
    const std::vector<DocumentWindow *> windows = documentWindows();
    QStringList paths;
    for (const DocumentWindow *const window : windows)
        paths.append(window->path());
    const QStringList folders = foldersThatTellApart(paths);
    for (std::size_t i = 0; i < windows.size(); ++i)
        windows[i]->setTitleFolder(folders.value(qsizetype(i)));
}

/// Places the window diagonally below the current one, where it covers none exactly, and makes it fit on the
/// screen.
void AppController::cascade(DocumentWindow &window) const
{
    std::vector<const DocumentWindow *> others;
    for (const DocumentWindow *const other : documentWindows()) {
        if (other != &window && other->isVisible() && !other->isMinimized())
            others.push_back(other);
    }
    if (others.empty() || window.isMaximized() || window.isFullScreen())
        return;
    const DocumentWindow *const active = qobject_cast<DocumentWindow *>(QApplication::activeWindow());
    const bool hasActive = std::find(others.begin(), others.end(), active) != others.end();
    const DocumentWindow &before = hasActive ? *active : *others.back();
    const QRect screen = before.screen()->availableGeometry();
    const QSize frame = before.frameGeometry().size() - before.size();
    // The frame of a window takes a moment to appear, so places are compared roughly.
    const auto isTaken = [&others](QPoint place) {
        return std::any_of(others.begin(), others.end(), [place](const DocumentWindow *other) {
            return (other->pos() - place).manhattanLength() < cascadeStep;
        });
    };
    QPoint place = before.pos();
    for (std::size_t tries = 0; tries <= 2 * others.size() + 2 && isTaken(place); ++tries) {
        place += QPoint(cascadeStep, cascadeStep);
        // Down to a third of the screen, then from its corner again.
        if (place.x() > screen.x() + screen.width() / 3 || place.y() > screen.y() + screen.height() / 3)
            place = screen.topLeft();
    }
    window.resize(
        window.size().boundedTo(QSize(screen.right() - place.x(), screen.bottom() - place.y()) - frame));
    window.move(place);
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
    updateTitles();
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
    if (m_preferences)
        m_preferences->close(); // takes over what is being typed
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
    const QString sharedLibrary = StandardFolders::sharedLibrary();
    const QString programFolder = QCoreApplication::applicationDirPath();
    const Result<void> opened = UserManual::open(sharedLibrary, programFolder);
    if (!opened)
        tell(opened.message(), UserManual::file(sharedLibrary, programFolder));
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
    FilePanel::fitColumns(*panel);
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
