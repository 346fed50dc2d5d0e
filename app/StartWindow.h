#pragma once

#include <QMainWindow>

class QLabel;
class QListWidget;

namespace vantrell
{

class RecentFiles;

/// What stands while no document is open: the projects that were opened last, and a place to drop a file.
/// Closing it ends the program. Main thread.
class StartWindow final : public QMainWindow
{
    Q_OBJECT

public:
    /// The list outlives the window.
    explicit StartWindow(RecentFiles &recentFiles);

Q_SIGNALS:
    void openRequested();
    /// The user dropped these files, or wants one of the recent ones again.
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
    QLabel *m_dropPlace = nullptr;
};

} // namespace vantrell
