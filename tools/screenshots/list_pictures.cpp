// Takes the manual's pictures of importing and exporting notes.
//
// usage: vantrell-list-pictures PROJECT FOLDER [LIST], with QT_QPA_PLATFORM=offscreen. Without a list one of
// review notes for the sample is imported.

#include "app/AppController.h"
#include "app/Application.h"
#include "app/Translations.h"
#include "document/widgets/DocumentWindow.h"
#include "interchange/NotePreview.h"
#include "interchange/widgets/ExportNotesSheet.h"
#include "interchange/widgets/NotePreviewSheet.h"
#include "interchange/widgets/NoteStrip.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/TabPane.h"

#include <QComboBox>
#include <QEventLoop>
#include <QFile>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace vantrell;

namespace
{

const QByteArray reviewNotes("Comment,Commenter,Timecode In,Timecode Out,Color,Scene\r\n"
                             "Sky clips a little,Kim,01:00:07;00,,yellow,3\r\n"
                             "\"Say \"\"Hafen\"\" again, louder\",Lee,01:00:11;10,01:00:13;00,red,4\r\n"
                             "Horn too early,Kim,01:00:04;20,01:00:06;00,blue,2\r\n"
                             "Logo one frame longer,Kim,01:01:02;00,,blue,9\r\n"
                             "Hold the last frame,Lee,01:01:40;00,,green,9\r\n"
                             "Who owns this photo?,Noor,later,,,5\r\n"
                             "Fireworks: try the wide shot,Noor,01:00:55;02,01:01:00;00,green,8\r\n");

void wait(const std::function<bool()> &isThere)
{
    for (int waited = 0; !isThere(); waited += 20) {
        if (waited > 60000)
            qFatal("What the picture shows has not come up.");
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
}

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(300, &loop, &QEventLoop::quit);
    loop.exec();
}

void take(QWidget &sheet, const QString &folder, const char *name)
{
    settle();
    if (!sheet.grab().save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name))))
        qFatal("The picture %s cannot be written.", name);
}

void takePreview(DocumentWindow &window, const QString &list, const QString &folder)
{
    window.importNoteFiles({list});
    wait([&] { return window.findChild<NotePreviewSheet *>() != nullptr; });
    auto *const sheet = window.findChild<NotePreviewSheet *>();
    wait([&] { return !sheet->preview().isPlanning(); });
    sheet->resize(1120, 600);
    const std::vector<QComboBox *> &columns = sheet->findChild<NoteColumnStrip *>()->popUps();
    const int field = columns.back()->findText(NoteColumnStrip::tr("Custom field"));
    columns.back()->setCurrentIndex(field);
    Q_EMIT columns.back()->activated(field);
    wait([&] { return !sheet->preview().isPlanning(); });
    std::printf("%s\n%s\n", qPrintable(sheet->preview().description()),
                qPrintable(sheet->preview().summary()));
    take(*sheet, folder, "lists-preview");
    sheet->reject();
    settle();
}

void takeExport(DocumentWindow &window, const QString &folder)
{
    window.exportNotes();
    auto *const sheet = window.findChild<ExportNotesSheet *>();
    if (!sheet)
        qFatal("The export sheet has not come up.");
    take(*sheet, folder, "lists-export");
    sheet->reject();
}

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 3 || arguments.size() > 4) {
        std::fputs("usage: vantrell-list-pictures PROJECT FOLDER [LIST]\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    AppController::startLog();
    Translations::installChosen(application, UserDefaults::standard());
    const QTemporaryDir scratch;
    QFile notes(scratch.filePath(QStringLiteral("Harbour Lights – Reel 1 review.csv")));
    if (!notes.open(QIODevice::WriteOnly) || notes.write(reviewNotes) < 0)
        return 1;
    notes.close();
    UserDefaults defaults{QString(), UserDefaults::Access::Volatile};
    AppController controller{defaults};
    controller.openFiles({arguments.at(1)});
    DocumentWindow &window = *controller.currentWindow();
    wait([&] { return window.state() == DocumentWindow::State::Ready; });
    window.toolbarMarkers();
    takePreview(window, arguments.value(3, notes.fileName()), arguments.at(2));
    takeExport(window, arguments.at(2));
    return 0;
}
