#include "document/widgets/DocumentWindow.h"

#include "document/DocumentJournal.h"
#include "document/widgets/DocumentDisposal.h"
#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/OwnersNotice.h"
#include "document/widgets/ProgressSheet.h"
#include "document/widgets/UnseenRows.h"
#include "effects/widgets/EffectsPane.h"
#include "interchange/widgets/MarkerListImport.h"
#include "markers/widgets/MarkerOverviewPanel.h"
#include "markers/widgets/MarkersPane.h"
#include "media/AnswerWithin.h"
#include "media/widgets/MediaPane.h"
#include "support/files/FileUtilities.h"
#include "support/files/StandardFolders.h"
#include "support/log/QVException.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/AlertBox.h"
#include "support/widgets/FilePanel.h"
#include "support/widgets/NestedEvents.h"
#include "support/widgets/SelectableLabel.h"
#include "support/widgets/ShownText.h"
#include "support/widgets/SymbolIcon.h"
#include "table/widgets/QVTableView.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QActionGroup>
#include <QClipboard>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace vantrell
{

namespace
{

const QString geometryKey = QStringLiteral("documentWindowPlace");
const QString journalKey = QStringLiteral("journal");

constexpr int redrawMs = 50;
constexpr QSize smallestSize(680, 460);
constexpr int failureMargin = 60; // pixels beside the texts of the page

struct ToolBarItem {
    QString identifier;
    QString title;
    QString symbol;
    void (DocumentWindow::*action)();
};

/// By tab.
std::array<ToolBarItem, 3> toolBarItems()
{
    return {{{QStringLiteral("media"), DocumentWindow::tr("Media"), QStringLiteral(":/icons/media.svg"),
              &DocumentWindow::toolbarMedia},
             {QStringLiteral("effects"), DocumentWindow::tr("Effects"), QStringLiteral(":/icons/effects.svg"),
              &DocumentWindow::toolbarEffects},
             {QStringLiteral("markers"), DocumentWindow::tr("Markers"), QStringLiteral(":/icons/markers.svg"),
              &DocumentWindow::toolbarMarkers}}};
}

QIcon movieIcon(const QString &symbol)
{
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(QStringLiteral("movie.mov"), QMimeDatabase::MatchExtension);
    return themeIcon({type.iconName(), type.genericIconName()}, symbol);
}

/// Lets the window repaint itself; user input waits.
void letWindowRedraw()
{
    const NestedEvents nested;
    QEventLoop loop;
    QTimer::singleShot(redrawMs, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

DocumentWindow::DocumentWindow(UserDefaults &defaults)
    : m_defaults(defaults)
{
    setAcceptDrops(true);
    setUnifiedTitleAndToolBarOnMac(true);
    makeToolBar();
    makeContent();
    connect(&m_work.sheet(), &ProgressSheet::cancelled, this, &DocumentWindow::cancelProgress);
    connect(&m_work, &WindowWork::changed, this, [this] {
        updateEditing();
        Q_EMIT menusChanged();
    });
    connect(&m_work, &WindowWork::ended, this, &DocumentWindow::workEnded);
    connect(&m_defaults, &UserDefaults::changed, this, &DocumentWindow::applyDefaultsChange);
    setMinimumSize(smallestSize.boundedTo(screen()->availableSize()));
    if (!restoreGeometry(m_defaults.value(geometryKey).toByteArray()))
        resize(QSize(1180, 720).boundedTo(screen()->availableSize() * 0.9));
}

DocumentWindow::~DocumentWindow()
{
    m_state.close();
    endSession();
    forgetReverted();
}

void DocumentWindow::Reverted::dispose()
{
    if (DocumentJournal *const journal = workbench->document().journal())
        journal->discard();
    qDeleteAll(panes);
    DocumentDisposal::dispose(std::move(workbench), std::move(interface));
}

void DocumentWindow::makeToolBar()
{
    m_toolBar = addToolBar(tr("Tabs"));
    m_toolBar->setObjectName(QStringLiteral("tabs"));
    m_toolBar->setMovable(false);
    m_toolBar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    m_toolBar->setIconSize({24, 24});
    m_toolBarItems = new QActionGroup(this);
    for (const ToolBarItem &item : toolBarItems()) {
        const bool isMedia = item.action == &DocumentWindow::toolbarMedia;
        auto *const action =
            m_toolBar->addAction(isMedia ? movieIcon(item.symbol) : symbolIcon(item.symbol), item.title);
        action->setCheckable(true);
        action->setData(item.identifier);
        m_toolBarItems->addAction(action);
        connect(action, &QAction::triggered, this, item.action);
    }
}

void DocumentWindow::makeContent()
{
    auto *const central = new QWidget(this);
    m_notice = new NoticeBar(central);
    auto *const owners = new NoticeBar(central);
    owners->setAction(tr("Show Each Under Its Own"),
                      [this] { m_defaults.setValue(MarkerInventory::ownOwnersDefault, true); });
    m_ownersNotice = new OwnersNotice(*owners);
    for (const NoticeBar *const notice : {m_notice, owners}) {
        connect(notice, &NoticeBar::focusLeft, this, [this] {
            if (state() != State::Failed)
                currentPane().table().setFocus(); // not the next control
        });
    }
    m_content = new QStackedWidget(central);
    m_content->addWidget(makeFailurePage());
    auto *const layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(owners);
    layout->addWidget(m_content, 1);
    setCentralWidget(central);
}

/// The page that replaces the panes when the project could not be loaded.
QWidget *DocumentWindow::makeFailurePage()
{
    auto *const page = new QWidget(m_content);
    auto *const icon = new SymbolView(symbolIcon(QStringLiteral(":/icons/warning.svg")), 48, page);
    m_failure = new QLabel(page);
    QFont font = m_failure->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    m_failure->setFont(font);
    m_failureDetail = new QLabel(page);
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(failureMargin, 20, failureMargin, 20);
    layout->setSpacing(12);
    layout->addStretch(1);
    layout->addWidget(icon, 0, Qt::AlignHCenter);
    for (QLabel *const label : {m_failure, m_failureDetail}) {
        label->setAlignment(Qt::AlignCenter);
        layout->addWidget(label);
    }
    layout->addStretch(2);
    return page;
}

bool DocumentWindow::open(const QString &path, const QString &typeName)
{
    startSession(path, typeName.isNull() ? Workbench::typeNameForPath(path) : typeName);
    if (!m_workbench->open(path, m_typeName)) {
        showLoadFailure(tr("The file is of no type that can be opened."));
        return false;
    }
    const QPointer<DocumentWindow> self(this);
    toolbarMedia();
    if (self && m_workbench && !m_state.isClosed())
        m_workbench->markerPresets().populateMarkerPresets();
    return true;
}

bool DocumentWindow::openWithChanges(const QString &path, const QString &typeName,
                                     JournalFolder::Restorable changes)
{
    m_restorable.emplace(std::move(changes));
    return open(path, typeName);
}

bool DocumentWindow::restoreChanges(JournalFolder::Restorable changes)
{
    const MyDocument *const current = document();
    if (!current || m_isCovered || isBusy() || current->isSaving() || current->isEdited())
        return false;
    m_restorable.emplace(std::move(changes));
    reload();
    return true;
}

void DocumentWindow::startSession(const QString &path, const QString &typeName)
{
    m_interface = std::make_shared<DocumentWindowInterface>(this);
    m_workbench = std::make_unique<Workbench>(*m_interface, Workbench::Inventories::All, &m_defaults);
    m_media.start();
    auto *const media = new MediaPane(*m_workbench, m_defaults);
    connect(media, &MediaPane::relinkRequested, this, [this](const QString &url) { m_media.relink(url); });
    connect(media, &MediaPane::exportListRequested, this, &DocumentWindow::exportMediaList);
    m_panes = {media, new EffectsPane(*m_workbench, m_defaults), new MarkersPane(*m_workbench, m_defaults)};
    for (TabPane *const pane : m_panes) {
        m_content->addWidget(pane);
        pane->setWhenIdle([this](std::function<void()> answer) { whenIdle(std::move(answer)); });
    }
    fitMinimumWidth();
    const auto journal = std::make_shared<DocumentJournal>(JournalFolder::standard());
    if (m_restorable)
        journal->setRestorable(*std::exchange(m_restorable, std::nullopt));
    else
        journal->setEnabled(m_defaults.boolean(journalKey), false);
    m_workbench->document().setJournal(journal);
    connectSession();
    m_state.load();
    m_notice->setNotice(QString());
    m_toolBar->setEnabled(true);
    setWindowModified(false);
    updateEditing();
    setFile(path, typeName);
}

/// The controls of the panes are longer in some languages and fonts.
void DocumentWindow::fitMinimumWidth()
{
    const int needed = std::max(smallestSize.width(), m_content->minimumSizeHint().width());
    setMinimumWidth(std::min(needed, screen()->availableSize().width()));
}

void DocumentWindow::connectSession()
{
    m_saving.reset();
    m_interface->connectTo(m_panes, &m_work.sheet(), [this](Tab tab) {
        if (tab != selectedTab())
            (this->*toolBarItems()[std::size_t(tab)].action)();
    });
    const MyDocument *const document = &m_workbench->document();
    m_ownersNotice->follow(*m_workbench);
    connect(document, &MyDocument::loadFinished, this, &DocumentWindow::loadEnded);
    connect(document, &MyDocument::inventoriesFinished, this, &DocumentWindow::inventoriesEnded);
    connect(document, &MyDocument::editingAllowedChanged, this, [this] {
        updateEditing();
        Q_EMIT menusChanged();
        QMetaObject::invokeMethod(this, &DocumentWindow::applyOwnerListing, Qt::QueuedConnection);
    });
    connect(document, &MyDocument::historyChanged, this, &DocumentWindow::menusChanged);
    connect(document, &MyDocument::editedChanged, this, [this](bool edited) {
        setWindowModified(edited);
        // Once changes have been saved, no undo leads back to the reverted project.
        if (!edited && m_workbench->document().canUndo())
            forgetReverted();
        Q_EMIT menusChanged();
    });
}

/// Ends all that goes on between the window and its document.
void DocumentWindow::leaveSession()
{
    QVAlert::closeAlertsForParent(m_interface->alertParent());
    Q_EMIT sessionEnding();
    m_comparison.close();
    m_reports.close();
    m_media.close();
    m_workbench->document().disconnect(this);
    m_ownersNotice->leave();
    m_interface->disconnectFromWindow();
    qDeleteAll(findChildren<MarkerListImport *>());
    m_notes.close();
    m_answers.clear();
    m_work.reset();
    m_sending.reset();
    m_state.load();
    for (TabPane *const pane : m_panes)
        pane->saveLayout();
}

void DocumentWindow::endSession()
{
    if (!m_workbench)
        return;
    leaveSession();
    for (TabPane *&pane : m_panes) {
        delete pane;
        pane = nullptr;
    }
    DocumentDisposal::dispose(std::move(m_workbench), std::move(m_interface));
}

/// Keeps the document with its panes, as they are, for undoRevert() and in case the file cannot be read.
void DocumentWindow::keepSession()
{
    const bool isEdited = m_workbench->document().isEdited();
    const bool isListed = state() == State::Ready;
    leaveSession();
    if (DocumentJournal *const journal = m_workbench->document().journal())
        journal->setGivenUp(true);
    for (TabPane *const pane : m_panes)
        m_content->removeWidget(pane);
    m_reverted.push_back({m_path, m_typeName, std::move(m_interface), std::move(m_workbench), m_panes,
                          m_notice->notice(), m_notice->kind(), isEdited, isListed});
    m_panes = {};
}

void DocumentWindow::forgetReverted()
{
    for (Reverted &reverted : m_reverted)
        reverted.dispose();
    m_reverted.clear();
}

/// As each takes the memory of a project, there stay the last one with edits and, while the file lacks
/// something, the first one without, which may hold it.
void DocumentWindow::forgetOlderReverted(bool isFileWhole)
{
    std::deque<Reverted> kept;
    bool hasUnedited = false;
    for (std::size_t i = 0; i < m_reverted.size(); ++i) {
        Reverted &each = m_reverted[i];
        const bool isLast = i + 1 == m_reverted.size();
        const bool stays =
            each.isEdited ? isLast || !m_reverted.back().isEdited : !isFileWhole && !hasUnedited;
        if (!stays) {
            each.dispose();
            continue;
        }
        hasUnedited |= !each.isEdited;
        kept.push_back(std::move(each));
    }
    m_reverted = std::move(kept);
}

void DocumentWindow::undoRevert()
{
    const QString path = m_reverted.back().path;
    if (path == m_path) {
        showReverted();
        return;
    }
    const QString name = QFileInfo(path).fileName();
    m_saving.findOpen(path, false, tr("Waiting for the volume of “%1”…").arg(name),
                      [this, name](bool isOpen) {
                          if (isOpen)
                              showFailure(tr("“%1” cannot be shown as it was.").arg(name),
                                          tr("The file is open in another window. Close that window first."));
                          else
                              showReverted();
                      });
}

/// Shows what was reverted last in place of what is there now.
void DocumentWindow::showReverted()
{
    endSession();
    Reverted reverted = std::move(m_reverted.back());
    m_reverted.pop_back();
    m_interface = std::move(reverted.interface);
    m_workbench = std::move(reverted.workbench);
    m_panes = reverted.panes;
    m_interface->alertParent()->setOpen();
    MyDocument &document = m_workbench->document();
    if (DocumentJournal *const journal = document.journal())
        journal->setGivenUp(false);
    for (TabPane *const pane : m_panes)
        m_content->addWidget(pane);
    connectSession();
    m_state.treeLoaded();
    if (reverted.isListed)
        m_state.listsFilled();
    m_toolBar->setEnabled(true);
    m_notice->setNotice(reverted.notice, reverted.noticeKind);
    setFile(reverted.path, reverted.typeName);
    setWindowModified(document.isEdited());
    updateEditing();
    m_ownersNotice->showListed();
    m_media.resume();
    for (const QString &key : std::as_const(reverted.changedDefaults))
        applyDefaultsChange(key);
    showPane(document.viewState().selectedTab);
    applyOwnerListing();
    const bool isListing = document.isPopulating(Tab::Media) || document.isPopulating(Tab::Effects) ||
                           document.isPopulating(Tab::Markers);
    if (!reverted.isListed && !isListing)
        inventoriesEnded(); // while it was put aside
}

void DocumentWindow::loadEnded(bool loaded, const QString &message, const QString &loadNotice)
{
    if (!loaded) {
        showLoadFailure(message);
        return;
    }
    QString notice = loadNotice;
    m_state.treeLoaded();
    if (std::exchange(m_isReloading, false))
        forgetOlderReverted(notice.isEmpty());
    const XmlDocument *const tree = m_workbench->document().xmlDoc();
    const bool hasLoss = tree && !tree->loss().isEmpty();
    if (tree && tree->rootElement() && tree->rootElement().name() == QLatin1String("fcpxml"))
        notice += QLatin1Char('\n') + tr("File ▸ Import Notes… adds its markers to an open project.");
    m_notice->setNotice(notice, hasLoss ? NoticeBar::Kind::Lasting : NoticeBar::Kind::Dismissible);
    showOutcomeOfRestoring();
    applyJournalSetting();
    Q_EMIT this->loaded(m_path);
    Q_EMIT menusChanged();
}

/// Adds to the notice what has become of the changes that were to be restored.
void DocumentWindow::showOutcomeOfRestoring()
{
    const DocumentJournal *const journal = m_workbench->document().journal();
    if (!journal || !journal->outcome())
        return;
    const DocumentJournal::Outcome &outcome = *journal->outcome();
    const std::size_t done = outcome.restored + outcome.partly;
    QString text;
    if (done == 0)
        text = tr("None of the unsaved changes could be restored, as the project was changed since. They are "
                  "offered again the next time.");
    else if (outcome.restored == outcome.total)
        text = outcome.total == 1 ? tr("1 unsaved change was restored.")
                                  : tr("%1 unsaved changes were restored.").arg(outcome.total);
    else
        text = tr("%1 of %2 unsaved changes were restored; the project was changed where the others belong.")
                   .arg(done)
                   .arg(outcome.total);
    if (done > 0 && outcome.partly > 0)
        text += QLatin1Char(' ') + tr("Restored in part: %1.").arg(outcome.partly);
    if (done > 0)
        text += QLatin1Char(' ') + tr("The file is as it was until you save.");
    const QString before = m_notice->notice();
    m_notice->setNotice(before + (before.isEmpty() ? QString() : QStringLiteral("\n")) + text,
                        m_notice->kind());
}

void DocumentWindow::inventoriesEnded()
{
    m_state.listsFilled();
    if (m_workbench->document().isIncomplete()) {
        const QString before = m_notice->notice();
        m_notice->setNotice(before + (before.isEmpty() ? QString() : QStringLiteral("\n")) + incompleteLists,
                            NoticeBar::Kind::Lasting);
    }
    m_saving.rememberFile();
    updateEditing();
    m_ownersNotice->showListed();
    applyOwnerListing();
    m_media.applyMappings();
    Q_EMIT menusChanged();
}

void DocumentWindow::showLoadFailure(const QString &message)
{
    m_state.loadFailed();
    m_toolBar->setEnabled(false);
    m_failureText = tr("“%1” could not be opened.").arg(QFileInfo(m_path).fileName());
    // An empty message: an alert has said that there is no Final Cut Pro.
    m_failureReason = message.isEmpty() || message == LoadFailure::noProject
                          ? tr("Project files are read by way of Final Cut Pro 7, which gave "
                               "no project. An XML export of it opens without.")
                          : shownMessage(message);
    constexpr int width = smallestSize.width() - 2 * failureMargin;
    setTextWithPaths(*m_failure, m_failureText, width);
    setTextWithPaths(*m_failureDetail, m_failureReason, width);
    if (std::exchange(m_isReloading, false)) {
        // The document that failed is telling of it: it is replaced after that.
        m_hasReloadFailed = true;
        QMetaObject::invokeMethod(this, &DocumentWindow::returnFromFailedReload, Qt::QueuedConnection);
    } else {
        m_content->setCurrentWidget(m_failure->parentWidget());
    }
    Q_EMIT menusChanged();
    Q_EMIT loadFailed(m_path);
}

/// The project that the reload was to replace may be the only copy that is left.
void DocumentWindow::returnFromFailedReload()
{
    if (isClosing() || !std::exchange(m_hasReloadFailed, false))
        return;
    showReverted();
    showFailure(m_failureText, m_failureReason + QLatin1Char('\n') +
                                   tr("The project stays open as it is. You can save it to another place."));
}

bool DocumentWindow::mayEdit() const
{
    return state() == State::Ready && isIdle();
}

bool DocumentWindow::isIdle() const
{
    return !isBusy() && !m_workbench->document().isSaving();
}

/// Disabled controls lose the focus. It returns to them unless the user has moved it meanwhile.
void DocumentWindow::updateEditing()
{
    const bool isAllowed = mayEdit();
    QWidget *const focus = focusWidget();
    for (TabPane *const pane : m_panes)
        pane->setEditingEnabled(isAllowed);
    const bool wasAllowed = std::exchange(m_isEditingAllowed, isAllowed);
    if (wasAllowed && !isAllowed) {
        m_focusBefore = focus;
        m_focusMeanwhile = focusWidget();
    } else if (!wasAllowed && isAllowed && (!focus || focus == m_focusMeanwhile) && m_focusBefore &&
               m_focusBefore != focus && m_focusBefore->isVisible()) {
        m_focusBefore->setFocus();
    }
    if (!m_answers.empty())
        QMetaObject::invokeMethod(this, &DocumentWindow::applyAnswers, Qt::QueuedConnection);
}

void DocumentWindow::whenIdle(std::function<void()> answer)
{
    m_answers.push_back(std::move(answer));
    applyAnswers();
}

void DocumentWindow::applyAnswers()
{
    if (m_appliesAnswers)
        return; // one after the other
    const QScopedValueRollback applying(m_appliesAnswers, true);
    while (!m_answers.empty() && m_workbench && !isClosing() && state() != State::Loading && isIdle()) {
        const std::function<void()> answer = std::move(m_answers.front());
        m_answers.pop_front();
        answer();
    }
}

void DocumentWindow::commitEditing()
{
    for (TabPane *const pane : m_panes) {
        if (pane)
            pane->table().commitEditing();
    }
    applyAnswers();
    returnFromFailedReload();
}

/// What follows a long operation.
void DocumentWindow::workEnded(WindowState::Next next)
{
    // What ended the operation goes on first, and may begin another.
    if (next == WindowState::Next::Close)
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    else
        QMetaObject::invokeMethod(this, &DocumentWindow::applyOwnerListing, Qt::QueuedConnection);
}

void DocumentWindow::cancelProgress()
{
    if (isBusy())
        m_work.cancel();
    else
        m_sending.hide();
}

void DocumentWindow::setFile(const QString &path, const QString &typeName)
{
    m_path = path;
    m_typeName = typeName;
    setWindowFilePath(path);
    updateTitle();
}

void DocumentWindow::setTitleFolder(const QString &folder)
{
    if (m_titleFolder == folder)
        return;
    m_titleFolder = folder;
    updateTitle();
}

QString DocumentWindow::title() const
{
    const QString name = QFileInfo(m_path).fileName();
    // The file itself may be open in another window.
    const bool isFetched = m_typeName == DocumentType::finalCutProProject &&
                           Workbench::typeNameForPath(m_path) != DocumentType::finalCutProProject;
    const QString title = isFetched ? tr("%1 in Final Cut Pro").arg(name) : name;
    return m_titleFolder.isEmpty() ? title : tr("%1 — %2", "file and folder").arg(title, m_titleFolder);
}

void DocumentWindow::updateTitle()
{
    const QString name = QFileInfo(m_path).fileName();
    QString text = title();
    text.insert(text.indexOf(name) + name.size(), QStringLiteral("[*]")); // a star when there are changes
    setWindowTitle(tr("%1 — %2", "project and program").arg(text, QCoreApplication::applicationName()));
}

MyDocument *DocumentWindow::document() const
{
    // Until the tree is there, the document's kind is written by the loader thread.
    return m_state.hasTree() ? &m_workbench->document() : nullptr;
}

QString DocumentWindow::message() const
{
    if (state() == State::Failed)
        return (m_failureText + QLatin1Char('\n') + m_failureReason).trimmed();
    return m_notice->notice();
}

bool DocumentWindow::refusesAfterFailedLoad()
{
    if (state() != State::Failed)
        return false;
    showFailure(m_failureText, m_failureReason);
    return true;
}

void DocumentWindow::showFailure(const QString &title, const QString &reason)
{
    QVAlert::alertSheetWithMessageText(title, QString(), QString(), QString(), reason, alertParent(), false);
}

AlertParent *DocumentWindow::alertParent() const
{
    return m_interface->alertParent();
}

void DocumentWindow::setNotice(const QString &text)
{
    m_notice->setNotice(text);
}

Tab DocumentWindow::selectedTab() const
{
    return m_workbench ? m_workbench->document().viewState().selectedTab : Tab::Media;
}

QStringList DocumentWindow::toolbarSelectableItemIdentifiers() const
{
    QStringList identifiers;
    for (const QAction *const action : m_toolBar->actions())
        identifiers.append(action->data().toString());
    return identifiers;
}

void DocumentWindow::toolbarMedia()
{
    guarded("-[MyDocument toolbarMedia:]", [this] {
        pane(Tab::Media).prepareToShow();
        showPane(Tab::Media);
        const QPointer<DocumentWindow> self(this);
        letWindowRedraw();
        if (self && m_workbench && !isClosing() && selectedTab() == Tab::Media)
            m_workbench->mediaFilter().populateFilteredMediaData();
    });
}

void DocumentWindow::toolbarEffects()
{
    guarded("-[MyDocument toolbarEffects:]", [this] {
        m_workbench->effectInventory().populateFilteredEffectData();
        showPane(Tab::Effects);
    });
}

void DocumentWindow::toolbarMarkers()
{
    guarded("-[MyDocument toolbarMarkers:]", [this] {
        m_workbench->markerInventory().populateFilteredMarkerData();
        showPane(Tab::Markers);
    });
}

void DocumentWindow::showPane(Tab tab)
{
    if (state() != State::Failed) {
        m_content->setCurrentWidget(&pane(tab));
        pane(tab).table().setFocus();
    }
    m_workbench->document().viewState().selectedTab = tab;
    selectToolbarItem(tab);
    Q_EMIT menusChanged();
}

void DocumentWindow::selectToolbarItem(Tab tab)
{
    m_selectedToolbarItemIdentifier = toolBarItems()[std::size_t(tab)].identifier;
    m_toolBarItems->actions().at(int(tab))->setChecked(true);
}

void DocumentWindow::reload()
{
    const Tab tab = selectedTab();
    keepSession();
    m_isReloading = true;
    open(m_path, m_typeName);
    if (state() != State::Failed && !isClosing() && tab != Tab::Media)
        (this->*toolBarItems()[std::size_t(tab)].action)();
}

void DocumentWindow::applyDefaultsChange(const QString &key)
{
    for (TabPane *const pane : m_panes) {
        if (pane && !isClosing())
            pane->applyDefaultsChange(key);
    }
    for (Reverted &reverted : m_reverted)
        reverted.changedDefaults.insert(key);
    if (key == MarkerInventory::ownOwnersDefault)
        applyOwnerListing();
    if (key == journalKey)
        applyJournalSetting();
    if (key == PathMappings::defaultsKey)
        m_media.applyMappings();
}

/// The journal of a project with unsaved changes follows when these are saved or given up: what it holds is
/// not lost, and it never begins in the middle.
void DocumentWindow::applyJournalSetting()
{
    const MyDocument *const current = document();
    if (current && current->journal())
        current->journal()->setEnabled(m_defaults.boolean(journalKey), current->isEdited());
}

/// Lists the markers again when the user has changed which owners are listed, unless something else is going
/// on. A sheet or alert that waits for an answer may be about rows that are listed now.
void DocumentWindow::applyOwnerListing()
{
    if (!m_workbench || m_isCovered || !mayEdit())
        return;
    MarkerInventory &inventory = m_workbench->markerInventory();
    const auto wanted =
        m_defaults.boolean(MarkerInventory::ownOwnersDefault) ? OwnerListing::Own : OwnerListing::ByPosition;
    if (inventory.ownerListing() == wanted)
        return;
    commitEditing();
    if (!mayEdit())
        return; // what was answered meanwhile comes first
    inventory.setOwnerListing(wanted);
    listMarkersAgain();
}

void DocumentWindow::listMarkersAgain()
{
    if (!mayEdit())
        return;
    MarkerInventory &inventory = m_workbench->markerInventory();
    RowView &view = m_workbench->document().rowView(Tab::Markers);
    const bool wasSorted = view.isVisible() && view.order() == RowView::Order::Sorted;
    m_work.begin(tr("Listing markers…"), WindowState::Work::Fixed);
    m_workbench->document().runInBackground([&inventory] { inventory.populateMarkerData(); },
                                            [this, &view, wasSorted] {
                                                if (wasSorted && view.order() != RowView::Order::Sorted)
                                                    view.sortBy(view.sortDescriptors());
                                                m_work.end();
                                                m_ownersNotice->showListed();
                                            });
}

void DocumentWindow::beginReading(const std::function<void()> &cancel)
{
    m_work.begin(tr("Comparing…"), cancel ? WindowState::Work::Expendable : WindowState::Work::Fixed, cancel);
    m_work.hideSheet();
}

void DocumentWindow::showMarkerFieldsDialog()
{
    toolbarMarkers();
    static_cast<MarkersPane &>(pane(Tab::Markers)).showMarkerFieldsDialog();
}

void DocumentWindow::showMarkerPresetDialog()
{
    toolbarMarkers();
    static_cast<MarkersPane &>(pane(Tab::Markers)).showMarkerPresetDialog();
}

void DocumentWindow::showMarkerPresetsDialog()
{
    toolbarMarkers();
    static_cast<MarkersPane &>(pane(Tab::Markers)).showMarkerPresetsDialog();
}

void DocumentWindow::showMarkerAddDialog()
{
    if (selectedTab() != Tab::Markers)
        toolbarMarkers();
    static_cast<MarkersPane &>(pane(Tab::Markers)).showMarkerAddDialog();
}

void DocumentWindow::duplicateSelection()
{
    if (mayEdit() && selectedTab() == Tab::Markers)
        static_cast<MarkersPane &>(pane(Tab::Markers)).duplicateMarkers();
}

void DocumentWindow::offsetSelection()
{
    if (mayOffsetSelection())
        static_cast<MarkersPane &>(pane(Tab::Markers)).showMarkerOffsetWindow();
}

bool DocumentWindow::mayOffsetSelection() const
{
    return mayEdit() && selectedTab() == Tab::Markers &&
           pane(Tab::Markers).table().selectionModel()->hasSelection();
}

void DocumentWindow::moveInPoint()
{
    if (mayEdit() && selectedTab() == Tab::Markers)
        static_cast<MarkersPane &>(pane(Tab::Markers)).moveInPoint();
}

void DocumentWindow::showMediaUses(bool isShown)
{
    static_cast<MediaPane &>(pane(Tab::Media)).setShowsUses(isShown);
}

bool DocumentWindow::showsMediaUses() const
{
    return m_workbench && static_cast<MediaPane &>(pane(Tab::Media)).showsUses();
}

void DocumentWindow::showMarkerOverview(bool isShown)
{
    m_defaults.setValue(MarkerOverviewPanel::shownDefault, isShown);
}

bool DocumentWindow::showsMarkerOverview() const
{
    return MarkerOverviewPanel::isWanted(m_defaults);
}

QString DocumentWindow::folder() const
{
    const QString folder = QFileInfo(m_path).path();
    const auto look = [folder] { return QFileInfo::exists(folder); };
    return answerWithin<bool>(mainThreadPatience, look) ? folder : StandardFolders::documentsOrHome();
}

QString DocumentWindow::fileTitle() const
{
    return FileUtilities::deletingPathExtension(QFileInfo(m_path).fileName());
}

void DocumentWindow::showHiddenEffects()
{
    static_cast<EffectsPane &>(pane(Tab::Effects)).showHiddenEffects();
}

bool DocumentWindow::hidesEffects() const
{
    return m_workbench && selectedTab() == Tab::Effects &&
           static_cast<EffectsPane &>(pane(Tab::Effects)).hidesEffects();
}

void DocumentWindow::undo()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget()))
        field->undo();
    else if (mayUndoRevert())
        undoRevert();
    else if (mayEdit())
        restore(&MyDocument::undo);
}

void DocumentWindow::redo()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget()))
        field->redo();
    else if (mayEdit())
        restore(&MyDocument::redo);
}

bool DocumentWindow::mayUndoRevert() const
{
    if (m_reverted.empty() || isBusy() || isClosing())
        return false;
    const MyDocument *const current = document();
    return current && mayEdit() && !current->canUndo() && !current->isEdited();
}

void DocumentWindow::restore(bool (MyDocument::*step)())
{
    commitEditing();
    MyDocument &document = m_workbench->document();
    const EditHistory &history = document.history();
    const bool isUndo = step == &MyDocument::undo;
    if (isUndo ? !history.canUndo() : !history.canRedo())
        return;
    const EditStep &next = isUndo ? history.toUndo() : history.toRedo();
    const QString name = shownEdit(next.name);
    const UnseenRows unseen(document, next);
    if ((document.*step)() && unseen.remain(document))
        pane(unseen.tab()).showMessage((isUndo ? tr("Undone: %1") : tr("Redone: %1")).arg(name));
}

void DocumentWindow::copySelection()
{
    if (const auto *const field = qobject_cast<QLineEdit *>(focusWidget())) {
        field->copy();
        return;
    }
    if (const auto *const label = qobject_cast<QLabel *>(focusWidget()); label && label->hasSelectedText()) {
        QGuiApplication::clipboard()->setText(selectedTextOf(*label));
        return;
    }
    currentPane().copySelection();
}

void DocumentWindow::paste()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget()))
        field->paste();
    else
        m_notes.importClipboard();
}

void DocumentWindow::selectAllRows()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget())) {
        field->selectAll();
        return;
    }
    currentPane().table().selectAll();
}

void DocumentWindow::find()
{
    currentPane().focusSearch();
}

MarkersPane &DocumentWindow::showMarkers()
{
    if (selectedTab() != Tab::Markers)
        toolbarMarkers();
    return static_cast<MarkersPane &>(pane(Tab::Markers));
}

void DocumentWindow::goToTimecode()
{
    showMarkers().showGoToTimecode();
}

void DocumentWindow::goToNextOfColor()
{
    showMarkers().goToNextOfColor();
}

void DocumentWindow::goToPreviousOfColor()
{
    showMarkers().goToPreviousOfColor();
}

void DocumentWindow::removeSelection()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget())) {
        if (!field->hasSelectedText())
            field->cursorWordForward(true);
        field->del();
        return;
    }
    if (!mayEdit())
        return;
    if (selectedTab() == Tab::Effects)
        static_cast<EffectsPane &>(pane(Tab::Effects)).removeEffects();
    else if (selectedTab() == Tab::Markers)
        static_cast<MarkersPane &>(pane(Tab::Markers)).removeMarkers();
}

bool DocumentWindow::event(QEvent *event)
{
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowUnblocked) {
        m_isCovered = event->type() == QEvent::WindowBlocked;
        if (!m_isCovered)
            QMetaObject::invokeMethod(this, &DocumentWindow::applyOwnerListing, Qt::QueuedConnection);
    }
    return QMainWindow::event(event);
}

void DocumentWindow::closeEvent(QCloseEvent *event)
{
    const bool mayClose = isClosing() || m_saving.mayClose();
    event->setAccepted(mayClose);
    if (mayClose && !isClosing())
        shutDown();
}

void DocumentWindow::shutDown()
{
    const MyDocument *const current = document();
    m_state.close();
    m_defaults.setValue(geometryKey, saveGeometry());
    if (m_workbench) {
        QVAlert::closeAlertsForParent(alertParent());
        m_workbench->document().mainThread()->close();
    }
    // What is not saved by now was given up.
    if (current && current->journal())
        current->journal()->discard();
    for (const Reverted &reverted : m_reverted) {
        if (DocumentJournal *const journal = reverted.workbench->document().journal())
            journal->discard();
    }
    hide();
    Q_EMIT closed();
    NestedEvents::whenUnwound(this, [this] { deleteLater(); });
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent *event)
{
    FilePanel::acceptFiles(*event);
}

void DocumentWindow::dragMoveEvent(QDragMoveEvent *event)
{
    FilePanel::acceptFiles(*event);
}

void DocumentWindow::dropEvent(QDropEvent *event)
{
    if (!FilePanel::acceptFiles(*event))
        return;
    const QStringList paths = FilePanel::localFiles(event->mimeData());
    if (state() == State::Ready)
        m_notes.takeDropped(paths);
    else
        Q_EMIT filesDropped(paths);
}

} // namespace vantrell
