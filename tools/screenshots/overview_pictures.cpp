// Takes the pictures of the manual's page on the marker overview: a window with
// it, and its strip zoomed in.
//
// usage: vantrell-overview-pictures PROJECT FOLDER, with
// QT_QPA_PLATFORM=offscreen

#include "app/AppController.h"
#include "app/Application.h"
#include "app/Translations.h"
#include "document/widgets/DocumentWindow.h"
#include "markers/widgets/MarkerOverviewPanel.h"
#include "markers/widgets/MarkerStrip.h"
#include "markers/widgets/MarkersPane.h"
#include "support/settings/UserDefaults.h"

#include <QEventLoop>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>
#include <functional>

using namespace vantrell;

namespace
{

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

void take(QWidget &widget, const QString &folder, const char *name)
{
    pause(300);
    if (!widget.grab().save(QStringLiteral("%1/%2.png").arg(folder, QLatin1String(name))))
        qFatal("The picture %s cannot be written.", name);
}

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: vantrell-overview-pictures PROJECT FOLDER\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QApplication::style()->standardPalette());
    AppController::startLog();
    Translations::installChosen(application, UserDefaults::standard());
    UserDefaults defaults{QString(), UserDefaults::Access::Volatile};
    AppController controller{defaults};
    controller.openFiles({arguments.at(1)});
    DocumentWindow &window = *controller.currentWindow();
    window.resize(1180, 520);
    waitUntil("project", [&] { return window.state() == DocumentWindow::State::Ready; });
    window.toolbarMarkers();
    auto &pane = static_cast<MarkersPane &>(window.pane(Tab::Markers));
    waitUntil("overview", [&] { return !pane.overview().isOutdated(); });
    MarkerStrip &strip = pane.overview().strip();
    const auto chosen = [&strip] { return strip.sequence()->after(600); };
    Q_EMIT strip.markerChosen(chosen(), false);
    take(window, arguments.at(2), "overview");
    for (int i = 0; i < 4; ++i)
        strip.zoomIn();
    strip.reveal(chosen());
    take(pane.overview(), arguments.at(2), "overview-zoomed");
    window.closeSettled();
    return 0;
}
