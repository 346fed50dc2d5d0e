#pragma once

#include <QMainWindow>

class QCheckBox;
class QLabel;
class QListWidget;

namespace vantrell
{

class MessageLine;
class RecentFiles;
class UserDefaults;

/// The window that shows while no document is open: recent projects, the sample project, an area to drop
/// files on, and whether the open dialog shows at start-up. Closing it quits the program. Main thread.
class StartWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// Both outlive the window.
    StartWindow(RecentFiles &recentFiles, UserDefaults &defaults);

    /// Shows a message at the bottom until the window is shown anew, with a button that copies the path that
    /// it is about, if any.
    void showMessage(const QString &text, const QString &path = QString());

Q_SIGNALS:
    void openRequested();
    void sampleRequested();
    /// The user has dropped files, or chosen a recent one.
    void filesChosen(const QStringList &paths);
    void recentFileChosen(const QString &path);
    void closed();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *makeWelcome();
    QWidget *makeRecentList();
    void fillRecentList();
    void showSetting();

    RecentFiles &m_recentFiles;
    UserDefaults &m_defaults;
    QListWidget *m_list = nullptr;
    QLabel *m_dropArea = nullptr;
    QCheckBox *m_showsOpenDialog = nullptr;
    MessageLine *m_message = nullptr;
};

} // namespace vantrell
