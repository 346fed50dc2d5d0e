#include "interchange/widgets/MarkerListPanels.h"

#include <QCoreApplication>
#include <QFileDialog>

#include <utility>

namespace vantrell
{

namespace
{

QString text(const char *source)
{
    return QCoreApplication::translate("MarkerListPanels", source);
}

QString filterOf(const MarkerListPanel &panel)
{
    const QString kind =
        panel.format == MarkerListFormat::fcpx ? text("Final Cut Pro X XML files") : text("Marker lists");
    const QString filter =
        QStringLiteral("%1 (*.%2 *.%3)").arg(kind, panel.extension, panel.extension.toUpper());
    // Text is text, whatever its name ends in.
    return panel.typeIdentifier.isNull() ? filter : filter + QStringLiteral(";;") + text("All files (*)");
}

QFileDialog *makeDialog(const MarkerListPanel &panel, QWidget *window, const QString &folder)
{
    auto *const dialog = new QFileDialog(window, QString(), folder, filterOf(panel));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    return dialog;
}

} // namespace

void runMarkerListOpenPanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            std::function<void(const QStringList &)> chosen)
{
    QFileDialog *const dialog = makeDialog(panel, window, folder);
    dialog->setWindowTitle(text("Import Markers"));
    dialog->setLabelText(QFileDialog::Accept, text("Import"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setOption(QFileDialog::ReadOnly); // makes no folders
    QObject::connect(dialog, &QFileDialog::accepted, window, [dialog, chosen = std::move(chosen)] {
        dialog->hide(); // an alert then is the window's only sheet
        chosen(dialog->selectedFiles());
    });
    dialog->open();
}

void runMarkerListSavePanel(const MarkerListPanel &panel, QWidget *window, const QString &folder,
                            std::function<void(const QString &)> chosen)
{
    QFileDialog *const dialog = makeDialog(panel, window, folder);
    dialog->setWindowTitle(text("Export Markers"));
    dialog->setLabelText(QFileDialog::Accept, text("Export"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(panel.extension);
    dialog->selectFile(panel.proposedName);
    QObject::connect(dialog, &QFileDialog::accepted, window, [dialog, chosen = std::move(chosen)] {
        dialog->hide();
        chosen(dialog->selectedFiles().value(0));
    });
    dialog->open();
}

} // namespace vantrell
