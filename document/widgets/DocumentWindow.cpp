#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentDisposal.h"
#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/ProgressSheet.h"
#include "effects/widgets/EffectsPane.h"
#include "interchange/widgets/MarkerListImport.h"
#include "markers/widgets/MarkersPane.h"
#include "media/widgets/MediaPane.h"
#include "support/log/QVException.h"
#include "support/settings/UserDefaults.h"
#include "support/widgets/NestedEvents.h"
#include "support/widgets/SymbolIcon.h"
#include "support/widgets/SymbolView.h"
#include "table/widgets/QVTableView.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QActionGroup>
#include <QDialog>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMimeDatabase>
#include <QPointer>
#include <QScreen>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrell
{

namespace
{

const QString placeKey = QStringLiteral("documentWindowPlace");

constexpr int redrawMs = 50;
constexpr int progressDelayMs = 400; // what is over sooner shows no sheet

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

/// Lets the window draw itself, while the user can do nothing to it.
void letWindowRedraw()
{
    const NestedEvents nested;
    QEventLoop loop;
    QTimer::singleShot(redrawMs, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

QStringList localFiles(const QMimeData *data)
{
    QStringList paths;
    for (const QUrl &url : data->urls()) {
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    return paths;
}

} // namespace

DocumentWindow::DocumentWindow(UserDefaults &defaults)
    : m_defaults(defaults)
    , m_progressDelay(new QTimer(this))
{
    setAcceptDrops(true);
    setUnifiedTitleAndToolBarOnMac(true);
    makeToolBar();
    makeContent();
    m_progress = new ProgressSheet(this);
    m_progressDelay->setSingleShot(true);
    m_progressDelay->setInterval(progressDelayMs);
    connect(m_progressDelay, &QTimer::timeout, this, &DocumentWindow::showProgress);
    connect(m_progress, &ProgressSheet::cancelled, this, &DocumentWindow::cancelProgress);
    connect(&m_defaults, &UserDefaults::changed, this, &DocumentWindow::applyDefaultsChange);
    restorePlace();
}

DocumentWindow::~DocumentWindow()
{
    m_closing = true;
    endSession();
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
    m_ownersNotice = new NoticeBar(central);
    m_ownersNotice->setAction(tr("Show Each Under Its Own"),
                              [this] { m_defaults.setValue(MarkerInventory::ownOwnersDefault, true); });
    m_content = new QStackedWidget(central);
    m_content->addWidget(makeFailurePage());
    auto *const layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(m_ownersNotice);
    layout->addWidget(m_content, 1);
    setCentralWidget(central);
}

/// What stands in the place of the panes when there is nothing to show in them.
QWidget *DocumentWindow::makeFailurePage()
{
    auto *const page = new QWidget(m_content);
    auto *const icon = new SymbolView(symbolIcon(QStringLiteral(":/icons/warning.svg")), 48, page);
    m_failure = new QLabel(page);
    QFont font = m_failure->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    m_failure->setFont(font);
    m_failureReason = new QLabel(page);
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(60, 20, 60, 20);
    layout->setSpacing(12);
    layout->addStretch(1);
    layout->addWidget(icon, 0, Qt::AlignHCenter);
    for (QLabel *const label : {m_failure, m_failureReason}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(label);
    }
    layout->addStretch(2);
    return page;
}

bool DocumentWindow::open(const QString &path, const QString &typeName)
{
    startSession(path, typeName.isNull() ? Workbench::typeNameForPath(path) : typeName);
    if (!m_workbench->open(path, m_typeName)) {
        showFailure(tr("The file is of no type that can be opened."));
        return false;
    }
    const QPointer<DocumentWindow> self(this);
    toolbarMedia();
    if (self && m_workbench && !m_closing)
        m_workbench->markerPresets().populateMarkerPresets();
    return true;
}

void DocumentWindow::startSession(const QString &path, const QString &typeName)
{
    m_typeName = typeName;
    m_interface = std::make_shared<DocumentWindowInterface>(this);
    m_workbench = std::make_unique<Workbench>(*m_interface, Workbench::Inventories::All, &m_defaults);
    m_panes = {new MediaPane(*m_workbench, m_defaults), new EffectsPane(*m_workbench, m_defaults),
               new MarkersPane(*m_workbench, m_defaults)};
    for (TabPane *const pane : m_panes)
        m_content->addWidget(pane);
    m_interface->connectTo(m_panes, m_progress);
    const MyDocument *const document = &m_workbench->document();
    connect(document, &MyDocument::loadFinished, this, &DocumentWindow::loadEnded);
    connect(document, &MyDocument::inventoriesFinished, this, &DocumentWindow::inventoriesEnded);
    connect(document, &MyDocument::editingAllowedChanged, this, &DocumentWindow::updateEditing);
    connect(document, &MyDocument::editedChanged, this, [this](bool edited) {
        setWindowModified(edited);
        Q_EMIT menusChanged();
    });
    m_state = State::Loading;
    m_treeLoaded = false;
    m_notice->setNotice(QString());
    m_ownersNotice->setNotice(QString());
    m_toolBar->setEnabled(true);
    setWindowModified(false);
    updateEditing();
    setPath(path);
}

void DocumentWindow::endSession()
{
    if (!m_workbench)
        return;
    QVAlert::closeAlertsForParent(m_interface->alertParent());
    closePrintPanel();
    m_workbench->document().disconnect(this);
    m_interface->disconnectFromWindow();
    forgetBusiness();
    m_progress->endProgress();
    for (TabPane *&pane : m_panes) {
        pane->saveLayout();
        delete pane;
        pane = nullptr;
    }
    m_treeLoaded = false;
    DocumentDisposal::dispose(std::move(m_workbench), std::move(m_interface));
}

void DocumentWindow::loadEnded(bool loaded, const QString &message, const QString &notice)
{
    if (!loaded) {
        showFailure(message);
        return;
    }
    m_treeLoaded = true;
    const XmlDocument *const tree = m_workbench->document().xmlDoc();
    const bool hasLoss = tree && !tree->loss().isEmpty();
    m_notice->setNotice(notice, hasLoss ? NoticeBar::Kind::Lasting : NoticeBar::Kind::Dismissible);
    Q_EMIT this->loaded(m_path);
    Q_EMIT menusChanged();
}

void DocumentWindow::inventoriesEnded()
{
    m_state = State::Ready;
    if (m_workbench->document().isIncomplete()) {
        const QString before = m_notice->notice();
        m_notice->setNotice(before + (before.isEmpty() ? QString() : QStringLiteral("\n")) + incompleteLists,
                            NoticeBar::Kind::Lasting);
    }
    rememberFile();
    updateEditing();
    tellOwners();
    applyOwnerListing();
    Q_EMIT menusChanged();
}

void DocumentWindow::showFailure(const QString &message)
{
    m_state = State::Failed;
    m_toolBar->setEnabled(false);
    m_failure->setText(tr("“%1” could not be opened.").arg(QFileInfo(m_path).fileName()));
    // Without a message the user has been told that there is no Final Cut Pro.
    m_failureReason->setText(message.isEmpty() || message == LoadFailure::noProject
                                 ? tr("Project files are read by way of Final Cut Pro 7, which gave "
                                      "no project. An XML export of it opens without.")
                                 : message);
    m_content->setCurrentWidget(m_failure->parentWidget());
    Q_EMIT menusChanged();
    Q_EMIT loadFailed(m_path);
}

bool DocumentWindow::mayEdit() const
{
    return m_state == State::Ready && !m_isBusy && !m_workbench->document().isSaving();
}

void DocumentWindow::updateEditing()
{
    for (TabPane *const pane : m_panes)
        pane->setEditingEnabled(mayEdit());
}

/// What is being typed into a cell counts as typed.
void DocumentWindow::commitEditing()
{
    for (TabPane *const pane : m_panes) {
        if (pane)
            pane->table().commitEditing();
    }
}

void DocumentWindow::beginBusy(const QString &text, std::function<void()> cancel)
{
    m_isBusy = true;
    m_isCancellable = true;
    m_givesUpForClosing = false;
    m_cancelBusy = std::move(cancel);
    m_focusBefore = focusWidget();
    m_progress->setCancelTitle(QString());
    m_progress->updateProgressLabel(text);
    m_progressDelay->start();
    updateEditing();
    m_focusMeanwhile = focusWidget();
    Q_EMIT menusChanged();
}

void DocumentWindow::endBusy()
{
    m_progressDelay->stop();
    m_progress->endProgress();
    m_isBusy = false;
    m_cancelBusy = nullptr;
    updateEditing();
    // Controls that were out of use meanwhile lost the focus.
    const bool isUnmoved = !focusWidget() || focusWidget() == m_focusMeanwhile;
    if (isUnmoved && m_focusBefore && m_focusBefore != focusWidget() && m_focusBefore->isVisible())
        m_focusBefore->setFocus();
    Q_EMIT menusChanged();
    applyOwnerListing();
    if (std::exchange(m_closesWhenIdle, false))
        QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
}

/// What goes on ends with its document, without a word.
void DocumentWindow::forgetBusiness()
{
    qDeleteAll(findChildren<MarkerListImport *>());
    m_progressDelay->stop();
    m_isBusy = m_isSending = m_givesUpForClosing = false;
    m_closesWhenIdle = m_closesWhenSaved = m_revertsWhenUnwound = m_isSettling = false;
    m_noticeBefore.reset();
    m_cancelBusy = nullptr;
}

void DocumentWindow::showProgress()
{
    // Over an alert the sheet would keep the user from answering it.
    const auto dialogs = findChildren<QDialog *>();
    const bool carriesSheet = std::any_of(dialogs.begin(), dialogs.end(), [this](const QDialog *dialog) {
        return dialog != m_progress && dialog->isVisible();
    });
    if (carriesSheet) {
        m_progressDelay->start();
        return;
    }
    m_progress->startProgress();
    m_progress->setCancellable(m_isCancellable);
}

void DocumentWindow::setCancellable(bool cancellable)
{
    m_isCancellable = cancellable;
    m_progress->setCancellable(cancellable);
}

void DocumentWindow::cancelProgress()
{
    if (m_isBusy) {
        const auto cancel = m_cancelBusy;
        cancel();
    } else if (m_isSending) {
        hideSending();
    }
}

void DocumentWindow::setPath(const QString &path)
{
    m_path = path;
    setWindowFilePath(path);
    const QString name = QFileInfo(path).fileName();
    // The file itself may be open in another window.
    const bool isFetched = m_typeName == DocumentType::finalCutProProject &&
                           Workbench::typeNameForPath(path) != DocumentType::finalCutProProject;
    setWindowTitle(isFetched ? tr("%1[*] in Final Cut Pro").arg(name) : name + QStringLiteral("[*]"));
}

MyDocument *DocumentWindow::document() const
{
    // The kind of a document that is still loading belongs to its loader.
    return m_treeLoaded && !m_closing ? &m_workbench->document() : nullptr;
}

QString DocumentWindow::message() const
{
    if (m_state == State::Failed)
        return (m_failure->text() + QLatin1Char('\n') + m_failureReason->text()).trimmed();
    return m_notice->notice();
}

bool DocumentWindow::refusesAfterFailedLoad()
{
    if (m_state != State::Failed || m_closing)
        return false;
    QVAlert::alertSheetWithMessageText(m_failure->text(), QString(), QString(), QString(),
                                       m_failureReason->text(), m_interface->alertParent(), false);
    return true;
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
        if (self && m_workbench && !m_closing && selectedTab() == Tab::Media)
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

void DocumentWindow::toolbar(Tab tab)
{
    (this->*toolBarItems()[std::size_t(tab)].action)();
}

void DocumentWindow::showPane(Tab tab)
{
    if (m_state != State::Failed) {
        m_content->setCurrentWidget(&pane(tab));
        pane(tab).table().setFocus();
    }
    m_workbench->document().viewState().selectedTab = tab;
    m_selectedToolbarItemIdentifier = toolBarItems()[std::size_t(tab)].identifier;
    m_toolBarItems->actions().at(int(tab))->setChecked(true);
    Q_EMIT menusChanged();
}

void DocumentWindow::applyDefaultsChange(const QString &key)
{
    for (TabPane *const pane : m_panes) {
        if (pane && !m_closing)
            pane->applyDefaultsChange(key);
    }
    if (key == MarkerInventory::ownOwnersDefault)
        applyOwnerListing();
}

/// Says when markers are listed under other owners than their own.
void DocumentWindow::tellOwners()
{
    const QString text = m_workbench->markerInventory().listedUnderOthersText();
    m_ownersNotice->setNotice(text.isEmpty() ? text : text + QLatin1Char('.'));
}

/// Lists the markers anew when the user wants other owners listed; as soon as nothing else goes on.
void DocumentWindow::applyOwnerListing()
{
    if (m_closing || !m_workbench || !mayEdit() || m_closesWhenIdle)
        return;
    MarkerInventory &inventory = m_workbench->markerInventory();
    const auto wanted =
        m_defaults.boolean(MarkerInventory::ownOwnersDefault) ? OwnerListing::Own : OwnerListing::ByPosition;
    if (inventory.ownerListing() == wanted)
        return;
    commitEditing();
    inventory.setOwnerListing(wanted);
    beginBusy(tr("Listing markers…"), {});
    setCancellable(false);
    m_workbench->document().runInBackground([&inventory] { inventory.populateMarkerData(); },
                                            [this] {
                                                endBusy();
                                                tellOwners();
                                            });
}

MarkersPane &DocumentWindow::markersPane() const
{
    return static_cast<MarkersPane &>(pane(Tab::Markers));
}

void DocumentWindow::showMarkerFieldsDialog()
{
    toolbarMarkers();
    markersPane().showMarkerFieldsDialog();
}

void DocumentWindow::showMarkerPresetDialog()
{
    toolbarMarkers();
    markersPane().showMarkerPresetDialog();
}

QString DocumentWindow::folder() const
{
    return QFileInfo(m_path).path();
}

void DocumentWindow::copySelection()
{
    if (const auto *const field = qobject_cast<QLineEdit *>(focusWidget())) {
        field->copy();
        return;
    }
    pane(selectedTab()).copySelection();
}

void DocumentWindow::selectAllRows()
{
    if (auto *const field = qobject_cast<QLineEdit *>(focusWidget())) {
        field->selectAll();
        return;
    }
    pane(selectedTab()).table().selectAll();
}

void DocumentWindow::findEffects()
{
    if (selectedTab() != Tab::Effects)
        toolbarEffects();
    static_cast<EffectsPane &>(pane(Tab::Effects)).focusSearch();
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
        markersPane().removeMarkers();
}

void DocumentWindow::restorePlace()
{
    if (restoreGeometry(m_defaults.value(placeKey).toByteArray()))
        return;
    const QSize available = QGuiApplication::primaryScreen()->availableSize();
    resize(QSize(1180, 720).boundedTo(available * 0.9));
}

void DocumentWindow::storePlace()
{
    m_defaults.setValue(placeKey, saveGeometry());
}

void DocumentWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (!localFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void DocumentWindow::dropEvent(QDropEvent *event)
{
    const QStringList paths = localFiles(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    Q_EMIT filesDropped(paths);
}

} // namespace vantrell
