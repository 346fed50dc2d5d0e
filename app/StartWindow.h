#pragma once

#include <QMainWindow>

class QLabel;
class QListWidget;

namespace vantrell
{

class RecentFiles;

/// The window that shows while no document is open: recent projects and an area to drop files on. Closing it
/// quits the program. Main thread.
class StartWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The list outlives the window.
    explicit StartWindow(RecentFiles &recentFiles);

Q_SIGNALS:
    void openRequested();
    /// The user has dropped files, or chosen a recent one.
    void filesChosen(const QStringList &paths);
    void recentFileChosen(const QString &path);
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *makeWelcome();
    QWidget *makeRecentList();
    void fillRecentList();

    RecentFiles &m_recentFiles;
    QListWidget *m_list = nullptr;
    QLabel *m_dropArea = nullptr;
};

} // namespace vantrell
