#pragma once

#include "bridge/EventCancel.h"
#include "support/files/Result.h"

#include <QDialog>
#include <QIcon>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QLabel;
class QListWidget;
class QProgressBar;
class QPushButton;
class QStackedWidget;

namespace vantrell
{

/// The dialog that lists the projects open in Final Cut Pro and opens the selected ones as documents. The
/// list is requested in the background, so that an unresponsive Final Cut Pro blocks no window.
/// Application-modal; deletes itself when closed. Main thread.
class QVFCPProjectLoader final : public QDialog
{
    Q_OBJECT

public:
    /// What the dialog needs from the program.
    struct Services {
        /// Opens the project at that path as a document and displays it; a failure is shown to the user.
        std::function<Result<void>(const QString &path)> openDocument;
        /// The icon of a file, derived from its name only.
        std::function<QIcon(const QString &path)> iconOfFile;
    };

    /// Shows the dialog over that window, which may be null. Returns null, after an alert, when it cannot be
    /// created.
    static QVFCPProjectLoader *showOpenDialog(const Services &services, QWidget *parent);
    ~QVFCPProjectLoader() override { m_cancel.cancel(); }

    /// Whether the list has been requested and has not arrived yet.
    bool isReading() const { return m_isReading; }
    /// The paths of the projects in the order of Final Cut Pro; empty until they have arrived.
    const QStringList &projects() const { return m_projects; }

public Q_SLOTS:
    /// Opens the selected projects from top to bottom and closes the dialog; does nothing without a
    /// selection.
    void openProject();
    void closeDialog() { reject(); }

Q_SIGNALS:
    /// The list has arrived, or the request has failed.
    void listRead();

private:
    QVFCPProjectLoader(const Services &services, QWidget *parent);

    void makeContent();
    QWidget *makeMessagePage();
    void readProjects();
    void projectsRead(const std::optional<QStringList> &projects, bool isRunning);
    void fillTable();
    void showMessage(const QString &text);

    const Services m_services;
    EventCancel m_cancel; // cancels the request, which may outlive the dialog
    bool m_isReading = false;
    QStringList m_projects;

    QStackedWidget *m_content = nullptr;
    QListWidget *m_table = nullptr;
    QLabel *m_message = nullptr;
    QProgressBar *m_busy = nullptr;
    QPushButton *m_open = nullptr;
};

} // namespace vantrell
