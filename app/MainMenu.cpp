#include "app/MainMenu.h"

#include "app/AppController.h"
#include "app/ApplicationWatch.h"
#include "app/KeyboardHelp.h"
#include "app/RecentFiles.h"
#include "app/WindowTitles.h"
#include "document/MyDocument.h"
#include "document/widgets/CommandValidation.h"
#include "document/widgets/DocumentWindow.h"
#include "support/widgets/ShownText.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <QAction>
#include <QActionGroup>
#include <QFileInfo>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <optional>
#include <utility>

namespace vantrell
{

namespace
{

void apply(const CommandState &state, QAction *action)
{
    action->setVisible(state.isVisible);
    action->setEnabled(state.isEnabled);
    if (!state.title.isNull())
        action->setText(state.title);
    if (state.shortcut)
        action->setShortcut(*state.shortcut);
}

} // namespace

MainMenu::MainMenu(AppController &controller, QMainWindow &window, DocumentWindow *document)
    : QObject(&window)
    , m_controller(controller)
    , m_window(window)
    , m_document(document)
    , m_bar(window.menuBar())
{
    makeFileMenu();
    makeEditMenu();
    makeViewMenu();
    makeMediaMenu();
    makeWindowMenu();
    makeHelpMenu();
    connect(&m_controller.recentFiles(), &RecentFiles::changed, this, &MainMenu::fillRecentMenu);
    fillRecentMenu();
    ApplicationWatch *const finalCutPro = &m_controller.finalCutPro();
    connect(finalCutPro, &ApplicationWatch::looked, this, &MainMenu::validateOpenFCPProject);
    connect(m_fileMenu, &QMenu::aboutToShow, finalCutPro, &ApplicationWatch::look);
    finalCutPro->look();
    if (m_document)
        connect(m_document, &DocumentWindow::menusChanged, this, &MainMenu::validate);
    validate();
}

QMenu *MainMenu::addMenu(const QString &title)
{
    QMenu *const menu = m_bar->addMenu(title);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, &MainMenu::validate);
    return menu;
}

template <typename Receiver, typename Operation>
QAction *MainMenu::add(QMenu *menu, const QString &title, const QKeySequence &shortcut, Receiver *receiver,
                       Operation operation)
{
    QAction *const action = menu->addAction(title);
    action->setShortcut(shortcut);
    if (receiver)
        connect(action, &QAction::triggered, receiver, operation);
    return action;
}

void MainMenu::makeFileMenu()
{
    m_fileMenu = addMenu(tr("&File"));
    add(m_fileMenu, tr("&Open…"), QKeySequence::Open, &m_controller, &AppController::openFile);
    m_recentMenu = m_fileMenu->addMenu(tr("Open &Recent"));
    m_recentMenu->setToolTipsVisible(true);
    m_openFCPProject = add(m_fileMenu, tr("Open &Final Cut Pro Project…"), {}, &m_controller,
                           &AppController::openFCPProject);
    m_fileMenu->addSeparator();
    add(m_fileMenu, tr("&Close"), QKeySequence::Close, &m_window, &QWidget::close);
    m_save = add(m_fileMenu, tr("&Save"), QKeySequence::Save, m_document, &DocumentWindow::save);
    m_saveAs = add(m_fileMenu, tr("Save &As…"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), m_document,
                   &DocumentWindow::saveAs);
    m_revert = add(m_fileMenu, tr("Re&vert to Saved"), {}, m_document, &DocumentWindow::revert);
    m_fileMenu->addSeparator();
    makeMarkerListMenus();
    m_compare = add(m_fileMenu, tr("Co&mpare with…"), {}, m_document, &DocumentWindow::compareWith);
    m_exportSequences = add(m_fileMenu, tr("Export C&hanged Sequences…"), {}, m_document,
                            &DocumentWindow::exportChangedSequences);
    m_send = add(m_fileMenu, QString(), {}, m_document, &DocumentWindow::sendToFCP);
    m_fileMenu->addSeparator();
    m_reportActions << add(m_fileMenu, tr("Expor&t Report…"), {}, m_document, &DocumentWindow::exportReport)
                    << add(m_fileMenu, tr("&Print…"), QKeySequence::Print, m_document,
                           &DocumentWindow::printDocument);
    m_fileMenu->addSeparator();
    QAction *const quit =
        add(m_fileMenu, tr("&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q), &m_controller, &AppController::quit);
    quit->setMenuRole(QAction::QuitRole);
}

void MainMenu::makeMarkerListMenus()
{
    m_importMenu = m_fileMenu->addMenu(tr("&Import"));
    add(m_importMenu, tr("&Final Cut Pro Markers…"), {}, m_document, &DocumentWindow::importFCPMarkers);
    add(m_importMenu, tr("&Avid Locators…"), {}, m_document, &DocumentWindow::importAvidLocators);
    add(m_importMenu, tr("Final Cut Pro &X Markers…"), {}, m_document, &DocumentWindow::importFCPXMarkers);
    m_importNotes = add(m_fileMenu, tr("Import &Notes…"), {}, m_document, &DocumentWindow::importNotes);
    m_exportMenu = m_fileMenu->addMenu(tr("&Export"));
    add(m_exportMenu, tr("&Final Cut Pro Markers…"), {}, m_document, &DocumentWindow::exportFCPMarkers);
    add(m_exportMenu, tr("&Avid Locators…"), {}, m_document, &DocumentWindow::exportAvidLocators);
    m_exportNotes = add(m_fileMenu, tr("E&xport Notes…"), {}, m_document, &DocumentWindow::exportNotes);
}

void MainMenu::makeEditMenu()
{
    QMenu *const menu = addMenu(tr("&Edit"));
    m_undo = add(menu, tr("&Undo"), QKeySequence::Undo, m_document, &DocumentWindow::undo);
    m_redo = add(menu, tr("&Redo"), QKeySequence::Redo, m_document, &DocumentWindow::redo);
    menu->addSeparator();
    m_documentActions << add(menu, tr("&Copy"), QKeySequence::Copy, m_document,
                             &DocumentWindow::copySelection)
                      << add(menu, tr("Pa&ste"), QKeySequence::Paste, m_document, &DocumentWindow::paste)
                      << add(menu, tr("Select &All"), QKeySequence::SelectAll, m_document,
                             &DocumentWindow::selectAllRows);
    m_documentActions << add(menu, tr("&Find"), QKeySequence::Find, m_document, &DocumentWindow::find)
                      << add(menu, tr("&Go to Timecode…"), QKeySequence(Qt::CTRL | Qt::Key_G), m_document,
                             &DocumentWindow::goToTimecode);
    m_colorActions << add(menu, tr("Ne&xt of Same Color"), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Down),
                          m_document, &DocumentWindow::goToNextOfColor)
                   << add(menu, tr("Pre&vious of Same Color"),
                          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Up), m_document,
                          &DocumentWindow::goToPreviousOfColor);
    menu->addSeparator();
    m_markerActions << add(menu, tr("Add &Marker…"), QKeySequence(Qt::CTRL | Qt::Key_M), m_document,
                           &DocumentWindow::showMarkerAddDialog)
                    << add(menu, tr("&Duplicate"), QKeySequence(Qt::CTRL | Qt::Key_D), m_document,
                           &DocumentWindow::duplicateSelection)
                    << add(menu, tr("Move &In, Keep Duration"), QKeySequence(Qt::ALT | Qt::Key_Return),
                           m_document, &DocumentWindow::moveInPoint);
    m_offset = add(menu, tr("&Offset…"), {}, m_document, &DocumentWindow::offsetSelection);
    m_remove = add(menu, tr("R&emove…"), QKeySequence(Qt::CTRL | Qt::Key_Delete), m_document,
                   &DocumentWindow::removeSelection);
    menu->addSeparator();
    m_documentActions
        << add(menu, tr("Mar&ker Fields…"), {}, m_document, &DocumentWindow::showMarkerFieldsDialog)
        << add(menu, tr("Create Marker &Preset…"), {}, m_document, &DocumentWindow::showMarkerPresetDialog)
        << add(menu, tr("Manage Marker Prese&ts…"), {}, m_document, &DocumentWindow::showMarkerPresetsDialog);
    menu->addSeparator();
    QAction *const preferences = add(menu, tr("Prefere&nces…"), QKeySequence(Qt::CTRL | Qt::Key_Comma),
                                     &m_controller, &AppController::showPreferences);
    preferences->setMenuRole(QAction::PreferencesRole);
}

void MainMenu::makeViewMenu()
{
    QMenu *const menu = addMenu(tr("&View"));
    m_paneActions << add(menu, tr("&Media"), QKeySequence(Qt::CTRL | Qt::Key_1), m_document,
                         &DocumentWindow::toolbarMedia)
                  << add(menu, tr("&Effects"), QKeySequence(Qt::CTRL | Qt::Key_2), m_document,
                         &DocumentWindow::toolbarEffects)
                  << add(menu, tr("Mar&kers"), QKeySequence(Qt::CTRL | Qt::Key_3), m_document,
                         &DocumentWindow::toolbarMarkers);
    auto *const group = new QActionGroup(this);
    for (QAction *const action : m_paneActions) {
        action->setCheckable(true);
        group->addAction(action);
    }
    m_documentActions += m_paneActions;
    menu->addSeparator();
    m_sortMenu = menu->addMenu(tr("&Sort By"));
    connect(m_sortMenu, &QMenu::aboutToShow, this, &MainMenu::fillSortMenu);
    m_columnMenu = menu->addMenu(tr("&Columns"));
    connect(m_columnMenu, &QMenu::aboutToShow, this, [this] {
        m_columnMenu->clear();
        m_document->pane(m_document->selectedTab()).fillColumnMenu(*m_columnMenu);
    });
    menu->addSeparator();
    m_markerOverview = menu->addAction(tr("Marker &Overview"));
    m_markerOverview->setCheckable(true);
    m_documentActions << m_markerOverview;
    if (m_document)
        connect(m_markerOverview, &QAction::triggered, m_document, &DocumentWindow::showMarkerOverview);
    m_hiddenEffects =
        add(menu, tr("Show &Hidden Effects"), {}, m_document, &DocumentWindow::showHiddenEffects);
}

void MainMenu::makeMediaMenu()
{
    QMenu *const menu = addMenu(tr("&Media"));
    m_mediaActions << add(menu, tr("&Relink…"), {}, m_document, &DocumentWindow::relinkMedia)
                   << add(menu, tr("&Path Mappings…"), {}, m_document, &DocumentWindow::editPathMappings);
    menu->addSeparator();
    m_mediaActions << add(menu, tr("&Export List…"), {}, m_document, &DocumentWindow::exportMediaList)
                   << add(menu, tr("&Verify List…"), {}, m_document, &DocumentWindow::verifyMediaList);
    menu->addSeparator();
    m_mediaUses = menu->addAction(tr("Show &Uses"));
    m_mediaUses->setCheckable(true);
    m_documentActions << m_mediaUses;
    if (m_document)
        connect(m_mediaUses, &QAction::triggered, m_document, &DocumentWindow::showMediaUses);
}

void MainMenu::makeWindowMenu()
{
    m_windowMenu = addMenu(tr("&Window"));
    add(m_windowMenu, tr("&Minimize"), QKeySequence(), &m_window, &QWidget::showMinimized);
    m_windowMenu->addSeparator();
    connect(m_windowMenu, &QMenu::aboutToShow, this, &MainMenu::fillWindowMenu);
    fillWindowMenu();
}

/// Lists the projects in the order in which they were opened; the window's own is checked.
void MainMenu::fillWindowMenu()
{
    qDeleteAll(m_windowItems);
    m_windowItems.clear();
    for (DocumentWindow *const window : m_controller.documentWindows()) {
        const qsizetype number = m_windowItems.size() + 1;
        QString title = window->title();
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        constexpr qsizetype lastDigit = 9;
        QAction *const action =
            m_windowMenu->addAction(number <= lastDigit ? tr("&%1 %2").arg(number).arg(title) : title);
        action->setToolTip(window->path());
        action->setCheckable(true);
        action->setChecked(window == m_document);
        connect(action, &QAction::triggered, window, [window] { AppController::bringToFront(*window); });
        m_windowItems.append(action);
    }
    if (!m_windowItems.isEmpty())
        return;
    m_windowItems.append(m_windowMenu->addAction(tr("No Project Is Open")));
    m_windowItems.first()->setEnabled(false);
}

void MainMenu::makeHelpMenu()
{
    QMenu *const menu = addMenu(tr("&Help"));
    add(menu, tr("User &Manual"), QKeySequence::HelpContents, &m_controller, &AppController::helpUserManual);
    QAction *const keys =
        add(menu, tr("&Keyboard Shortcuts"), {}, this, [this] { KeyboardHelp::showFor(m_window); });
    keys->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Slash), QKeySequence(Qt::Key_Question)});
    menu->addSeparator();
    add(menu, tr("&Halvex Home Page"), {}, &m_controller, &AppController::helpHalvexHome);
    add(menu, tr("&Orvandel Home Page"), {}, &m_controller, &AppController::helpQVHome);
    add(menu, tr("&Support"), {}, &m_controller, &AppController::helpSupport);
    add(menu, tr("Report a &Bug"), {}, &m_controller, &AppController::helpReportBug);
    add(menu, tr("Suggest a &Feature"), {}, &m_controller, &AppController::helpSuggestFeature);
    menu->addSeparator();
    QMenu *const trouble = menu->addMenu(tr("&Troubleshooting"));
    add(trouble, tr("View &Log"), {}, &m_controller, &AppController::viewLog);
    add(trouble, tr("View &Task Log"), {}, &m_controller, &AppController::viewTaskLog);
    add(trouble, tr("&Gather Logs…"), {}, &m_controller, &AppController::gatherLogs);
    trouble->addSeparator();
    m_qcLogging = trouble->addAction(tr("Log &Quality Control"));
    m_qcLogging->setCheckable(true);
    connect(m_qcLogging, &QAction::triggered, &m_controller, &AppController::prefsToggleQCLogging);
    connect(trouble, &QMenu::aboutToShow, this,
            [this] { m_qcLogging->setChecked(AppController::isQCLogging()); });
    menu->addSeparator();
    QAction *const about =
        add(menu, tr("About &Vantrell"), {}, &m_controller, &AppController::showAboutDialog);
    about->setMenuRole(QAction::AboutRole);
}

/// Lists the columns of the current pane in their present order.
void MainMenu::fillSortMenu()
{
    m_sortMenu->clear();
    TabPane &pane = m_document->pane(m_document->selectedTab());
    const std::optional<SortDescriptor> sort = pane.shownSort();
    for (const QString &column : pane.columns()) {
        QString title = TableModel::shownName(pane.model().columnAt(pane.model().columnOf(column)));
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction *const action = m_sortMenu->addAction(title);
        action->setCheckable(true);
        action->setChecked(sort && sort->column == column);
        connect(action, &QAction::triggered, &pane, [&pane, column] { pane.sortBy(column); });
    }
}

void MainMenu::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList paths = m_controller.recentFiles().paths();
    const QStringList folders = foldersThatTellApart(paths);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString &path = paths[i];
        QString title = QFileInfo(path).fileName();
        if (!folders[i].isEmpty())
            title = tr("%1 — %2", "file and folder").arg(title, folders[i]);
        title.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction *const action = m_recentMenu->addAction(title);
        action->setToolTip(path);
        connect(action, &QAction::triggered, &m_controller,
                [this, path] { m_controller.openRecentFile(path); });
    }
    m_recentMenu->setEnabled(!paths.isEmpty());
    m_recentMenu->addSeparator();
    connect(m_recentMenu->addAction(tr("Clear Menu")), &QAction::triggered, &m_controller.recentFiles(),
            &RecentFiles::clear, Qt::QueuedConnection);
}

void MainMenu::validate()
{
    if (m_document && m_document->isClosing())
        return;
    validateFileMenu();
    for (QAction *const action : m_mediaActions)
        action->setEnabled(m_document && m_document->document() && m_document->mayEdit());
    const bool showsPanes = m_document && m_document->state() != DocumentWindow::State::Failed;
    for (QAction *const action : m_documentActions)
        action->setEnabled(showsPanes);
    for (QAction *const action : m_colorActions)
        action->setEnabled(showsPanes && m_document->selectedTab() == Tab::Markers);
    m_mediaUses->setChecked(showsPanes && m_document->showsMediaUses());
    m_markerOverview->setChecked(showsPanes && m_document->showsMarkerOverview());
    m_hiddenEffects->setEnabled(showsPanes && m_document->hidesEffects());
    m_sortMenu->setEnabled(showsPanes);
    m_columnMenu->setEnabled(showsPanes);
    for (qsizetype i = 0; i < m_markerActions.size(); ++i)
        m_markerActions[i]->setEnabled(showsPanes && m_document->mayEdit() &&
                                       (i == 0 || m_document->selectedTab() == Tab::Markers));
    validateUndo();
    m_offset->setEnabled(showsPanes && m_document->mayOffsetSelection());
    if (!showsPanes) {
        m_remove->setEnabled(false);
        return;
    }
    const Tab tab = m_document->selectedTab();
    m_paneActions.at(int(tab))->setChecked(true);
    m_remove->setEnabled(m_document->mayEdit() && tab != Tab::Media);
}

/// While a text is being edited, both are its own. The shortcuts stay enabled for when that ends.
void MainMenu::validateUndo()
{
    const MyDocument *const document = m_document ? m_document->document() : nullptr;
    const bool mayEdit = document && m_document->mayEdit();
    const auto *const field = qobject_cast<QLineEdit *>(m_window.focusWidget());
    const auto title = [](const QString &command, const QString &step) {
        return step.isEmpty() ? command : command + QLatin1Char(' ') + step;
    };
    const bool undoesRevert = m_document && m_document->mayUndoRevert();
    const QString undone = undoesRevert ? tr("Revert")
                           : document   ? shownEdit(document->undoName())
                                        : QString();
    m_undo->setText(title(tr("&Undo"), field ? QString() : undone));
    m_redo->setText(title(tr("&Redo"), document && !field ? shownEdit(document->redoName()) : QString()));
    m_undo->setEnabled((field && field->isUndoAvailable()) || (mayEdit && document->canUndo()) ||
                       (undoesRevert && !field));
    m_redo->setEnabled((field && field->isRedoAvailable()) || (mayEdit && document->canRedo()));
}

void MainMenu::validateFileMenu()
{
    const MyDocument *const document = m_document ? m_document->document() : nullptr;
    validateOpenFCPProject();
    const std::pair<DocumentCommand, QAction *> commands[] = {
        {DocumentCommand::Save, m_save},
        {DocumentCommand::SaveAs, m_saveAs},
        {DocumentCommand::Revert, m_revert},
        {DocumentCommand::Send, m_send},
        {DocumentCommand::ExportChangedSequences, m_exportSequences}};
    const bool isBusy = m_document && m_document->isBusy();
    for (const auto &[command, action] : commands) {
        apply(validateUserInterfaceItem(command, document, m_controller.finalCutPro().isRunning()), action);
        action->setEnabled(action->isEnabled() && !isBusy);
    }
    if (m_document && m_document->isSending()) {
        m_send->setEnabled(false);
        m_exportSequences->setEnabled(false);
    }
    m_exportSequences->setToolTip(m_exportSequences->isEnabled()
                                      ? QString()
                                      : tr("No sequence has been changed since the project was opened."));
    for (QAction *const action : m_reportActions)
        action->setEnabled(m_document && m_document->mayReport());
    m_compare->setEnabled(m_document && m_document->comparison().mayCompare());
    for (QAction *const action :
         {m_importMenu->menuAction(), m_importNotes, m_exportMenu->menuAction(), m_exportNotes})
        action->setEnabled(m_document && !isBusy);
}

void MainMenu::validateOpenFCPProject()
{
    apply(validateUserInterfaceItem(DocumentCommand::OpenFCPProject, nullptr,
                                    m_controller.finalCutPro().isRunning()),
          m_openFCPProject);
    m_openFCPProject->setToolTip(
        m_openFCPProject->isEnabled()
            ? tr("Choose from the projects that are open in Final Cut Pro")
            : tr("Final Cut Pro is not running. Start it and open a project in it first."));
}

} // namespace vantrell
