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

/// The dialog that lists the projects that are open in Final Cut Pro and opens the chosen ones as documents.
/// The list is asked for in the background, so that a Final Cut Pro that does not answer holds up no window.
/// The dialog takes the place of every other window while it shows, and deletes itself when it is closed.
/// Main thread.
class QVFCPProjectLoader final : public QDialog
{
    Q_OBJECT

public:
    /// What the dialog needs of the program.
    struct Services {
        /// Opens the project at that path as a document and displays it. The failure is shown to the user.
        std::function<Result<void>(const QString &path)> openDocument;
        /// The icon of a file, by its name alone.
        std::function<QIcon(const QString &path)> iconOfFile;
    };

    /// Shows the dialog over that window; null for none. Null when it cannot be made, which the user has
    /// been told then.
    static QVFCPProjectLoader *showOpenDialog(const Services &services, QWidget *parent);
    ~QVFCPProjectLoader() override;

    /// Whether the answer to the question for the projects is still out.
    bool isReading() const { return m_isReading; }
    /// The paths of the projects, as Final Cut Pro gave them; empty while they are read.
    const QStringList &projects() const { return m_projects; }

public Q_SLOTS:
    /// Opens the selected projects in their order and closes the dialog; nothing without a selection.
    void openProject();
    void closeDialog();

Q_SIGNALS:
    /// The list is there, or nothing came of the question.
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
    EventCancel m_cancel; // ends the question, which may outlive the dialog
    bool m_isReading = false;
    QStringList m_projects;

    QStackedWidget *m_content = nullptr;
    QListWidget *m_table = nullptr;
    QLabel *m_message = nullptr;
    QProgressBar *m_busy = nullptr;
    QPushButton *m_open = nullptr;
};

} // namespace vantrell
