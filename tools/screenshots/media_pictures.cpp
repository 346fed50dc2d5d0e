// Takes the pictures of the manual's page on media: relinking the sample project after its media have moved
// and their names have changed case, path mappings, the uses, and a list of media with its verification.
//
// usage: vantrell-media-pictures SAMPLES FOLDER, with QT_QPA_PLATFORM=offscreen

#include "app/AppController.h"
#include "app/Application.h"
#include "app/Translations.h"
#include "document/widgets/DocumentWindow.h"
#include "handover/widgets/PathMappingsSheet.h"
#include "handover/widgets/RelinkSheet.h"
#include "handover/widgets/RelinkTableModel.h"
#include "handover/widgets/VerificationSheet.h"
#include "media/PathMapping.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TabPane.h"

#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QPixmap>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace vantrell;

namespace
{

const QString drive = QStringLiteral("/tmp/Sound House"); // as it is seen in the pictures

void pause(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void waitUntil(const char *what, const std::function<bool()> &isThere)
{
    for (int i = 0; !isThere(); ++i) {
        if (i > 3000)
            qFatal("There is no %s.", what);
        pause(20);
    }
}

/// The sample's media on a drive with another idea of case, one of them twice; gives the project's path.
QString moveSample(const QDir &samples)
{
    QDir(drive).removeRecursively();
    const QDir media(samples.filePath(QStringLiteral("Media")));
    const QString folder = drive + QStringLiteral("/HARBOUR/MEDIA");
    if (!QDir().mkpath(folder) || !QDir().mkpath(drive + QStringLiteral("/HARBOUR/OLD")))
        qFatal("The folder cannot be made.");
    for (const QString &name : media.entryList(QDir::Files))
        QFile::copy(media.filePath(name), folder + QLatin1Char('/') + name.toUpper());
    QFile::copy(media.filePath(QStringLiteral("Narration.wav")),
                drive + QStringLiteral("/HARBOUR/OLD/NARRATION.WAV"));
    const QString project = drive + QStringLiteral("/Harbour Lights.xml");
    QFile::copy(samples.filePath(QStringLiteral("Harbour Lights.xml")), project);
    QFile::setPermissions(project, QFile::ReadOwner | QFile::WriteOwner);
    return project;
}

template <typename Sheet>
Sheet &sheetOf(const DocumentWindow &window)
{
    const auto isThere = [&window] {
        const auto *const sheet = window.findChild<Sheet *>();
        return sheet && sheet->isVisible();
    };
    waitUntil("sheet", isThere);
    return *window.findChild<Sheet *>();
}

QDialog &visibleDialog(const DocumentWindow &window)
{
    for (QDialog *const dialog : window.findChildren<QDialog *>()) {
        if (dialog->isVisible())
            return *dialog;
    }
    qFatal("The window has no sheet.");
}

class MediaPictures
{
public:
    explicit MediaPictures(const QString &folder)
        : m_folder(folder)
    {
    }

    bool takeAll(const QString &project)
    {
        m_controller.openFiles({project});
        DocumentWindow &window = *m_controller.currentWindow();
        window.resize(1180, 660);
        waitUntil("project", [&window] { return window.state() == DocumentWindow::State::Ready; });
        take(window, "media-missing");

        window.relinkMedia();
        auto &relink = sheetOf<RelinkSheet>(window);
        relink.search();
        waitUntil("result", [&relink] { return !relink.isSearching(); });
        take(relink, "media-relink");
        RelinkTableModel &found = relink.model();
        for (int row = 0; row < found.rowCount(); ++row)
            found.setData(found.index(row, RelinkTableModel::FoundIn), 0);
        bool isRelinked = false;
        QObject::connect(&window, &DocumentWindow::mediaRelinked, [&isRelinked] { isRelinked = true; });
        for (QPushButton *const button : relink.findChildren<QPushButton *>()) {
            if (button->text() == QStringLiteral("&Relink"))
                button->click();
        }
        waitUntil("relinked project", [&isRelinked] { return isRelinked; });
        window.showMediaUses(true);
        pause(300);
        QScrollBar *const bar = window.pane(Tab::Media).table().horizontalScrollBar();
        bar->setValue(bar->maximum());
        take(window, "media-uses");
        window.showMediaUses(false);

        PathMappings mappings;
        mappings.add(QStringLiteral("/Volumes/Harbour"), QStringLiteral("/mnt/harbour"));
        mappings.add(QStringLiteral("S:\\Show"), QStringLiteral("/mnt/raid/show"));
        mappings.store(m_defaults);
        window.editPathMappings();
        takeSheet(sheetOf<PathMappingsSheet>(window), "media-mappings");

        window.exportMediaList();
        QDialog &sheet = visibleDialog(window);
        sheet.findChild<QComboBox *>()->setCurrentIndex(3);
        takeSheet(sheet, "media-export");
        bool isDone = false;
        QObject::connect(&window, &DocumentWindow::mediaListExported, [&isDone] { isDone = true; });
        const QString list = drive + QStringLiteral("/HARBOUR/harbour.mhl");
        window.exportMediaListTo(list, MediaListFormat::Checksums, {});
        waitUntil("list", [&isDone] { return isDone; });
        QFile::remove(drive + QStringLiteral("/HARBOUR/MEDIA/HARBOUR MAP.JPG"));
        window.verifyMediaListAt(list);
        takeSheet(sheetOf<VerificationSheet>(window), "media-verify");
        window.closeSettled();
        return m_isTaken;
    }

private:
    void takeSheet(QDialog &sheet, const char *name)
    {
        take(sheet, name);
        sheet.reject();
        pause(0);
    }

    void take(QWidget &window, const char *name)
    {
        pause(300);
        const QString path = QStringLiteral("%1/%2.png").arg(m_folder, QLatin1String(name));
        if (window.grab().save(path))
            return;
        std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
        m_isTaken = false;
    }

    const QString m_folder;
    bool m_isTaken = true;
    UserDefaults m_defaults{QString(), UserDefaults::Access::Volatile};
    AppController m_controller{m_defaults};
};

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: vantrell-media-pictures SAMPLES FOLDER\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    AppController::startLog();
    Translations::installChosen(application, UserDefaults::standard());
    const QString project = moveSample(QDir(arguments.at(1)));
    const bool isTaken = MediaPictures(arguments.at(2)).takeAll(project);
    QDir(drive).removeRecursively();
    return isTaken ? 0 : 1;
}
