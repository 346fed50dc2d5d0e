#include "support/widgets/FilePanel.h"

#include <QFileDialog>
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
    QFileDialog *const dialog = makeDialog(request, QFileDialog::AcceptSave,
                                           [chosen](const QStringList &paths) { chosen(paths.value(0)); });
    dialog->setDefaultSuffix(request.extension);
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
