#include "document/widgets/MarkerListPanels.h"

#include "interchange/MarkerListExporter.h"
#include "interchange/MarkerListImporter.h"

#include <QCoreApplication>
#include <QFileDialog>

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
    return QStringLiteral("%1 (*.%2 *.%3)").arg(kind, panel.extension, panel.extension.toUpper());
}

QFileDialog *makeDialog(const MarkerListPanel &panel, QWidget *window, const QString &folder)
{
    auto *const dialog = new QFileDialog(window, QString(), folder, filterOf(panel));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowModality(Qt::WindowModal);
    return dialog;
}

} // namespace

void runMarkerListOpenPanel(const MarkerListImporter &importer, const MarkerListPanel &panel, QWidget *window,
                            const QString &folder)
{
    QFileDialog *const dialog = makeDialog(panel, window, folder);
    dialog->setWindowTitle(text("Import Markers"));
    dialog->setLabelText(QFileDialog::Accept, text("Import"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    QObject::connect(dialog, &QFileDialog::finished, window,
                     [dialog, &importer, format = panel.format](int code) {
                         dialog->hide(); // an alert then is the window's only sheet
                         importer.markerOpenDialogDidEnd(dialog->selectedFiles(), code, format);
                     });
    dialog->open();
}

void runMarkerListSavePanel(const MarkerListExporter &exporter, const MarkerListPanel &panel, QWidget *window,
                            const QString &folder)
{
    QFileDialog *const dialog = makeDialog(panel, window, folder);
    dialog->setWindowTitle(text("Export Markers"));
    dialog->setLabelText(QFileDialog::Accept, text("Export"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(panel.extension);
    dialog->selectFile(panel.proposedName);
    QObject::connect(dialog, &QFileDialog::finished, window,
                     [dialog, &exporter, format = panel.format](int code) {
                         dialog->hide();
                         exporter.markerSaveDialogDidEnd(dialog->selectedFiles().value(0), code, format);
                     });
    dialog->open();
}

} // namespace vantrell
