#include "support/widgets/FilePanel.h"

#include "support/widgets/ReplaceQuestion.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace vantrell::FilePanel
{

namespace
{

QFileDialog *makeDialog(const Request &request, QFileDialog::AcceptMode mode,
                        const std::function<void(const QStringList &)> &chosen)
{
    auto *const dialog = new QFileDialog(request.window, request.title, request.folder, request.filter);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    dialog->setAcceptMode(mode);
    if (!request.acceptLabel.isNull())
        dialog->setLabelText(QFileDialog::Accept, request.acceptLabel);
    QObject::connect(dialog, &QDialog::accepted, request.window, [dialog, chosen] {
        dialog->hide();
        chosen(dialog->selectedFiles());
    });
    return dialog;
}

} // namespace

void runForOpening(const Request &request, const std::function<void(const QStringList &)> &chosen)
{
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptOpen, chosen);
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOption(QFileDialog::ReadOnly); // without the button that makes folders
    dialog->open();
}

void runForFolder(const Request &request, const std::function<void(const QString &)> &chosen)
{
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptOpen,
                                           [chosen](const QStringList &paths) { chosen(paths.value(0)); });
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->open();
}

void runForSaving(const Request &request, const std::function<void(const QString &)> &chosen,
                  const std::function<void()> &cancelled)
{
    // Panels of the platform ask about the name as it was typed. QFileDialog would add the extension after
    // that.
    const auto complete = [request, chosen, cancelled](const QStringList &paths) {
        const QFileInfo typed(paths.value(0));
        if (request.extension.isEmpty() || typed.fileName().contains(QLatin1Char('.'))) {
            chosen(typed.filePath());
            return;
        }
        const QString path = typed.filePath() + QLatin1Char('.') + request.extension;
        if (!QFileInfo::exists(path)) {
            chosen(path);
            return;
        }
        askToReplace(path, request.window, [request, chosen, cancelled, path](bool replaces) {
            if (replaces) {
                chosen(path);
                return;
            }
            Request again = request;
            again.folder = QFileInfo(path).path();
            again.proposedName = QFileInfo(path).fileName();
            runForSaving(again, chosen, cancelled);
        });
    };
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptSave, complete);
    dialog->selectFile(request.proposedName);
    if (cancelled)
        QObject::connect(dialog, &QDialog::rejected, request.window, cancelled);
    dialog->open();
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

} // namespace vantrell::FilePanel
