#include "document/widgets/DocumentWindow.h"

#include "document/widgets/DocumentDisposal.h"
#include "document/widgets/DocumentWindowInterface.h"
#include "document/widgets/EffectsPane.h"
#include "document/widgets/MarkerListPanels.h"
#include "document/widgets/MarkersPane.h"
#include "document/widgets/MediaPane.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/ProgressSheet.h"
#include "document/widgets/QVTableView.h"
#include "document/widgets/SymbolIcon.h"
#include "support/QVException.h"
#include "support/UserDefaults.h"
#include "support/widgets/NestedEvents.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileDialog>
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

namespace vantrell
{

namespace
{

const QString placeKey = QStringLiteral("documentWindowPlace");
const QString closeQuestion = QStringLiteral("closeQuestionDidEnd:returnCode:contextInfo:");
const QString revertQuestion = QStringLiteral("revertQuestionDidEnd:returnCode:contextInfo:");

constexpr int redrawMs = 50;

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
{
    setAcceptDrops(true);
    setUnifiedTitleAndToolBarOnMac(true);
    makeToolBar();
    makeContent();
    m_progress = new ProgressSheet(this);
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
    m_content = new QStackedWidget(central);
    m_content->addWidget(makeFailurePage());
    auto *const layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_notice);
    layout->addWidget(m_content, 1);
    setCentralWidget(central);
}

/// What stands in the place of the panes when there is nothing to show in them.
QWidget *DocumentWindow::makeFailurePage()
{
    auto *const page = new QWidget(m_content);
    auto *const icon = new QLabel(page);
    icon->setPixmap(symbolIcon(QStringLiteral(":/icons/warning.svg")).pixmap(48, 48));
    m_failure = new QLabel(page);
    QFont font = m_failure->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    m_failure->setFont(font);
    m_failureReason = new QLabel(page);
    auto *const layout = new QVBoxLayout(page);
    layout->setContentsMargins(60, 20, 60, 20);
    layout->setSpacing(12);
    layout->addStretch(1);
    for (QLabel *const label : {icon, m_failure, m_failureReason}) {
        label->setAlignment(Qt::AlignCenter);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        layout->addWidget(label);
    }
    layout->addStretch(2);
    return page;
}

bool DocumentWindow::open(const QString &path)
{
    startSession(path);
    if (!m_workbench->open(path)) {
        showFailure(tr("The file is of no type that can be opened."));
        return false;
    }
    const QPointer<DocumentWindow> self(this);
    toolbarMedia();
    if (self && m_workbench && !m_closing)
        m_workbench->markerPresets().populateMarkerPresets();
    return true;
}

void DocumentWindow::startSession(const QString &path)
{
    m_interface = std::make_shared<DocumentWindowInterface>(this);
    m_workbench = std::make_unique<Workbench>(*m_interface, Workbench::Inventories::All, &m_defaults);
    m_panes = {new MediaPane(*m_workbench, m_defaults), new EffectsPane(*m_workbench, m_defaults),
               new MarkersPane(*m_workbench, m_defaults)};
    for (TabPane *const pane : m_panes)
        m_content->addWidget(pane);
    m_interface->connectTo(m_panes, m_progress);
    connect(m_interface.get(), &DocumentWindowInterface::loadEnded, this, &DocumentWindow::loadEnded);
    connect(m_interface.get(), &DocumentWindowInterface::inventoriesEnded, this,
            &DocumentWindow::inventoriesEnded);
    connect(m_interface.get(), &DocumentWindowInterface::editedChanged, this, [this](bool edited) {
        setWindowModified(edited);
        Q_EMIT menusChanged();
    });
    connect(m_progress, &ProgressSheet::cancelled, m_interface.get(),
            [this] { m_workbench->document().cancelProgress(); });
    m_state = State::Loading;
    m_treeLoaded = false;
    m_notice->setNotice(QString());
    m_toolBar->setEnabled(true);
    setWindowModified(false);
    setEditingEnabled(false);
    setPath(path);
}

void DocumentWindow::endSession()
{
    if (!m_workbench)
        return;
    QVAlert::closeAlertsForParent(m_interface->alertParent());
    m_interface->disconnectFromWindow();
    m_progress->endProgress();
    m_progress->disconnect(m_interface.get());
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
    m_notice->setNotice(notice);
    Q_EMIT this->loaded(m_path);
    Q_EMIT menusChanged();
}

void DocumentWindow::inventoriesEnded()
{
    m_state = State::Ready;
    setEditingEnabled(true);
    Q_EMIT menusChanged();
}

void DocumentWindow::showFailure(const QString &message)
{
    m_state = State::Failed;
    m_toolBar->setEnabled(false);
    m_failure->setText(tr("“%1” could not be opened.").arg(QFileInfo(m_path).fileName()));
    m_failureReason->setText(message);
    m_content->setCurrentWidget(m_failure->parentWidget());
    Q_EMIT menusChanged();
}

void DocumentWindow::setEditingEnabled(bool enabled)
{
    for (TabPane *const pane : m_panes)
        pane->setEditingEnabled(enabled);
}

void DocumentWindow::setPath(const QString &path)
{
    m_path = path;
    setWindowFilePath(path);
    setWindowTitle(QFileInfo(path).fileName() + QStringLiteral("[*]"));
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
    if (m_panes[std::size_t(Tab::Markers)] && !m_closing)
        markersPane().applyDefaultsChange(key);
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

bool DocumentWindow::save()
{
    return saveTo(m_path);
}

bool DocumentWindow::saveTo(const QString &path)
{
    MyDocument *const loaded = document();
    if (!loaded)
        return false;
    const bool isProject = loaded->isFCPProject() || loaded->isPremiereProject();
    const QUrl url = QUrl::fromLocalFile(path);
    const Result<void> written = loaded->writeToURL(url, isProject ? DocumentType::finalCutProProject
                                                                   : DocumentType::finalCutProXMLFile);
    if (m_closing)
        return written.isOk();
    if (isProject) // sent instead, which clears the changes when it succeeds
        return !loaded->isEdited();
    if (!written) {
        if (written.message() != SaveFailure::notOverwritten)
            QVAlert::alertSheetWithMessageText(
                tr("The document “%1” could not be saved.").arg(QFileInfo(path).fileName()),
                written.message(), m_interface->alertParent());
        return false;
    }
    loaded->setFileURL(url);
    loaded->clearChangeCount();
    m_notice->setNotice(QString());
    setPath(path);
    Q_EMIT this->loaded(path);
    return true;
}

void DocumentWindow::saveAs()
{
    if (!document())
        return;
    auto *const dialog = new QFileDialog(this, tr("Save As"), folder(), tr("XML files (*.xml *.XML)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(QStringLiteral("xml"));
    dialog->selectFile(QFileInfo(m_path).fileName());
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this, [this, dialog] {
        dialog->hide(); // an alert then is the window's only sheet
        saveTo(dialog->selectedFiles().value(0));
    });
    dialog->open();
}

void DocumentWindow::revert()
{
    const MyDocument *const loaded = document();
    if (!loaded)
        return;
    if (!loaded->isEdited()) {
        revertWithoutQuestion();
        return;
    }
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to revert to the saved version of “%1”?").arg(QFileInfo(m_path).fileName()),
        tr("Revert"), tr("Cancel"), QString(), tr("Your changes since it was last saved will be lost."),
        m_interface->alertParent(), this, revertQuestion, false, nullptr);
}

void DocumentWindow::revertWithoutQuestion()
{
    NestedEvents::whenUnwound(this, [this] {
        if (m_closing || !m_workbench)
            return;
        const Tab tab = selectedTab();
        endSession();
        open(m_path);
        if (m_state != State::Failed && !m_closing && tab != Tab::Media)
            (this->*toolBarItems()[std::size_t(tab)].action)();
    });
}

void DocumentWindow::sendToFCP()
{
    if (MyDocument *const loaded = document()) {
        const Result<void> sent =
            loaded->writeToURL(QUrl::fromLocalFile(m_path), DocumentType::finalCutProProject);
        Q_UNUSED(sent) // which tells its outcome itself
    }
}

bool DocumentWindow::mayChangeMarkers()
{
    if (m_state != State::Loading || m_workbench->document().isPopulating(Tab::Markers))
        return true; // whoever is asked next looks at the markers themselves
    QVAlert::alertSheetWithMessageText(
        tr("The project is still loading"),
        tr("Please wait for the project to finish loading before attempting this operation."),
        m_interface->alertParent());
    return false;
}

void DocumentWindow::runOpenPanel(const QString &format)
{
    if (!mayChangeMarkers() || m_closing)
        return;
    const MarkerListImporter &importer = m_workbench->markerListImporter();
    if (const auto panel = importer.showMarkerListOpenDialog(format))
        runMarkerListOpenPanel(importer, *panel, this, folder());
}

void DocumentWindow::runSavePanel(const QString &format)
{
    const MarkerListExporter &exporter = m_workbench->markerListExporter();
    if (const auto panel = exporter.showMarkerListSaveDialog(format))
        runMarkerListSavePanel(exporter, *panel, this, folder());
}

void DocumentWindow::importFCPMarkers()
{
    runOpenPanel(MarkerListFormat::fcp);
}

void DocumentWindow::importAvidLocators()
{
    runOpenPanel(MarkerListFormat::avid);
}

void DocumentWindow::importFCPXMarkers()
{
    runOpenPanel(MarkerListFormat::fcpx);
}

void DocumentWindow::exportFCPMarkers()
{
    runSavePanel(MarkerListFormat::fcp);
}

void DocumentWindow::exportAvidLocators()
{
    runSavePanel(MarkerListFormat::avid);
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

void DocumentWindow::removeSelection()
{
    if (m_state != State::Ready)
        return;
    if (selectedTab() == Tab::Effects)
        static_cast<EffectsPane &>(pane(Tab::Effects)).removeEffects();
    else if (selectedTab() == Tab::Markers)
        markersPane().removeMarkers();
}

void DocumentWindow::closeEvent(QCloseEvent *event)
{
    const MyDocument *const loaded = document();
    if (m_closing) {
        event->accept();
    } else if (loaded && loaded->isEdited()) {
        event->ignore();
        askBeforeClosing();
    } else {
        event->accept();
        shutDown();
    }
}

void DocumentWindow::askBeforeClosing()
{
    if (m_asksBeforeClosing)
        return;
    m_asksBeforeClosing = true;
    const bool isProject = document()->isFCPProject() || document()->isPremiereProject();
    QVAlert::alertSheetWithMessageText(
        tr("Do you want to save the changes made to “%1”?").arg(QFileInfo(m_path).fileName()),
        isProject ? tr("Send") : tr("Save"), tr("Don’t Save"), tr("Cancel"),
        tr("Your changes will be lost if you don’t save them."), m_interface->alertParent(), this,
        closeQuestion, false, nullptr);
}

bool DocumentWindow::respondsTo(const QString &selector) const
{
    return selector == closeQuestion || selector == revertQuestion;
}

void DocumentWindow::perform(const QString &selector, QVAlert *, int code)
{
    if (m_closing)
        return;
    if (selector == closeQuestion)
        closeQuestionEnded(code);
    else if (code == AlertAnswer::Default)
        revertWithoutQuestion();
}

void DocumentWindow::closeQuestionEnded(int code)
{
    m_asksBeforeClosing = false;
    const bool mayClose = code == AlertAnswer::Alternate || (code == AlertAnswer::Default && save());
    if (m_closing)
        return;
    if (mayClose)
        shutDown();
    else
        Q_EMIT closeCancelled();
}

void DocumentWindow::shutDown()
{
    m_closing = true;
    storePlace();
    if (m_workbench) {
        QVAlert::closeAlertsForParent(m_interface->alertParent());
        m_workbench->document().mainThread()->close();
    }
    hide();
    Q_EMIT closed();
    NestedEvents::whenUnwound(this, [this] { deleteLater(); });
}

void DocumentWindow::restorePlace()
{
    if (restoreGeometry(m_defaults.value(placeKey).toData()))
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
