// Takes the pictures of the README: the start window and each tab of a project, light and dark.
//
// usage: vantrell-screenshots PROJECT FOLDER, with QT_QPA_PLATFORM=offscreen

#include "app/AppController.h"
#include "app/Application.h"
#include "app/RecentFiles.h"
#include "app/StartWindow.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/TabPane.h"
#include "support/UserDefaults.h"

#include <QEventLoop>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <cstdio>

using namespace vantrell;

namespace
{

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QPalette darkPalette()
{
    QPalette palette(QColor(53, 53, 56), QColor(45, 45, 48));
    palette.setColor(QPalette::Base, QColor(32, 32, 34));
    palette.setColor(QPalette::AlternateBase, QColor(39, 39, 42));
    palette.setColor(QPalette::Highlight, QColor(58, 110, 165));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(110, 170, 230));
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 155));
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, QColor(230, 230, 232));
        palette.setColor(QPalette::Disabled, role, QColor(125, 125, 130));
    }
    return palette;
}

bool take(QWidget &window, const QString &path)
{
    wait(300);
    if (window.grab().save(path))
        return true;
    std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
    return false;
}

bool takeAll(const QString &project, const QString &folder, const QString &theme)
{
    UserDefaults defaults(QString(), UserDefaults::Access::Volatile);
    AppController::startLog();
    AppController controller(defaults);
    controller.openFiles({project});
    DocumentWindow *const window = controller.currentWindow();
    window->resize(1180, 660);
    while (window->state() == DocumentWindow::State::Loading)
        wait(50);
    bool taken = window->state() == DocumentWindow::State::Ready;
    const auto picture = [&](const QString &name) {
        return QStringLiteral("%1/%2-%3.png").arg(folder, name, theme);
    };
    taken = taken && take(*window, picture(QStringLiteral("media")));
    window->toolbarEffects();
    taken = taken && take(*window, picture(QStringLiteral("effects")));
    window->toolbarMarkers();
    window->pane(Tab::Markers).selectRows({16});
    taken = taken && take(*window, picture(QStringLiteral("markers")));
    window->close();
    return taken && take(controller.startWindow(), picture(QStringLiteral("start")));
}

} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: vantrell-screenshots PROJECT FOLDER\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light = QApplication::style()->standardPalette();
    QApplication::setPalette(light);
    const bool taken = takeAll(arguments.at(1), arguments.at(2), QStringLiteral("light"));
    QApplication::setPalette(darkPalette());
    return taken && takeAll(arguments.at(1), arguments.at(2), QStringLiteral("dark")) ? 0 : 1;
}
