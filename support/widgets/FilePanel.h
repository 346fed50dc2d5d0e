#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QDropEvent;
class QFileDialog;
class QMimeData;
class QWidget;

/// File panels, shown as a sheet on a window. Each function returns at once; `chosen` is called once the
/// panel has been hidden, so that an alert can be the window's only sheet. Main thread.
namespace vantrell::FilePanel
{

struct Request {
    QWidget *window = nullptr;
    QString title = {};
    QString folder = {};
    QString filter = {};
    QString extension = {};    ///< added to a name without one
    QString proposedName = {}; ///< of a file to be saved
    QString acceptLabel = {};  ///< null for the system's own
};

/// Lets the user choose existing files.
void runForOpening(const Request &request, const std::function<void(const QStringList &paths)> &chosen);

/// Lets the user choose a folder.
void runForFolder(const Request &request, const std::function<void(const QString &path)> &chosen);

/// Lets the user choose where a file is saved.
void runForSaving(const Request &request, const std::function<void(const QString &path)> &chosen,
                  const std::function<void()> &cancelled = {});

/// Makes the columns of a panel of the program's own as wide as their contents whenever it lists a folder,
/// and the panel itself when it is shown, as far as the screen allows. Before it is shown; done for the
/// panels above.
void fitColumns(QFileDialog &panel);

/// The paths of the local files among what is being dragged.
QStringList localFiles(const QMimeData *data);
/// Accepts a drag or a drop of local files as a copy or link, whatever the source proposes: after a move it
/// would remove them. False, and nothing is accepted, without such files or when it offers nothing else.
bool acceptFiles(QDropEvent &event);

} // namespace vantrell::FilePanel
