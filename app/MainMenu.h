#pragma once

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

namespace vantrell
{

class AppController;
class DocumentWindow;

/// The menu bar of one window, which owns it. Commands that do not apply to the window's document are hidden
/// or disabled; a tool tip says why where that is not obvious. Main thread.
class MainMenu final : public QObject
{
    Q_OBJECT

public:
    /// `document` is the window itself if it is a document window, else null. The controller outlives the
    /// window.
    MainMenu(AppController &controller, QMainWindow &window, DocumentWindow *document);

private:
    void makeFileMenu();
    void makeMarkerListMenus();
    void makeEditMenu();
    void makeViewMenu();
    void makeMediaMenu();
    void makeWindowMenu();
    void makeHelpMenu();
    QMenu *addMenu(const QString &title);
    template <typename Receiver, typename Operation>
    QAction *add(QMenu *menu, const QString &title, const QKeySequence &shortcut, Receiver *receiver,
                 Operation operation);

    void fillRecentMenu();
    void fillSortMenu();
    void fillWindowMenu();
    void validate();
    void validateUndo();
    void validateFileMenu();
    void validateOpenFCPProject();

    AppController &m_controller;
    QMainWindow &m_window;
    DocumentWindow *m_document;
    QMenuBar *m_bar;

    QMenu *m_fileMenu = nullptr;
    QMenu *m_recentMenu = nullptr;
    QMenu *m_importMenu = nullptr;
    QMenu *m_exportMenu = nullptr;
    QMenu *m_sortMenu = nullptr;
    QMenu *m_columnMenu = nullptr;
    QMenu *m_windowMenu = nullptr;
    QList<QAction *> m_windowItems; // of the projects
    QAction *m_openFCPProject = nullptr;
    QAction *m_save = nullptr;
    QAction *m_saveAs = nullptr;
    QAction *m_revert = nullptr;
    QAction *m_compare = nullptr;
    QAction *m_send = nullptr;
    QAction *m_exportSequences = nullptr;
    QAction *m_importNotes = nullptr;
    QAction *m_exportNotes = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_offset = nullptr;
    QAction *m_remove = nullptr;
    QList<QAction *> m_markerActions; // edit markers
    QAction *m_qcLogging = nullptr;
    QAction *m_mediaUses = nullptr;
    QAction *m_markerOverview = nullptr;
    QAction *m_hiddenEffects = nullptr;
    QList<QAction *> m_reportActions;   // print and export reports
    QList<QAction *> m_documentActions; // need a loaded document
    QList<QAction *> m_paneActions;     // by tab
    QList<QAction *> m_colorActions;    // need the Markers tab
    QList<QAction *> m_mediaActions;    // need a project that may be changed
};

} // namespace vantrell
