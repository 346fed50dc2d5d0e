#include "app/Application.h"

#include "app/FramedCheckStyle.h"
#include "app/ThemeColors.h"
#include "support/log/QVException.h"
#include "support/widgets/DialogMnemonics.h"

#include <QFileOpenEvent>
#include <QIcon>
#include <QPalette>

#include <cstring>

static void registerResources()
{
    Q_INIT_RESOURCE(app_resources);
}

namespace vantrell
{

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    registerResources();
    setApplicationName(QStringLiteral("Vantrell"));
    setApplicationVersion(QStringLiteral(VANTRELL_VERSION));
    setOrganizationName(QStringLiteral("Orvandel"));
    setDesktopFileName(QStringLiteral("vantrell"));
    setWindowIcon(
        QIcon::fromTheme(QStringLiteral("vantrell"), QIcon(QStringLiteral(":/icons/vantrell.svg"))));
    FramedCheckStyle::install();
    mendPalette();
    DialogMnemonics::install(*this);
    setQuitOnLastWindowClosed(false); // the controller decides
}

bool Application::hasDisplay(int argc, char **argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "-platform") == 0 || std::strcmp(argv[i], "--platform") == 0)
            return true;
    }
    for (const char *const name : {"QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DISPLAY"}) {
        if (!qEnvironmentVariableIsEmpty(name))
            return true;
    }
#if defined(Q_OS_MACOS) || defined(Q_OS_WIN)
    return true;
#else
    return false;
#endif
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    bool isHandled = false;
    guarded("Application::notify", [&] { isHandled = QApplication::notify(receiver, event); });
    return isHandled;
}

void Application::mendPalette()
{
    const QPalette readable = withReadableTexts(palette());
    if (readable != palette())
        setPalette(readable);
}

bool Application::event(QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        Q_EMIT openFileRequested(static_cast<QFileOpenEvent *>(event)->file());
        return true;
    }
    if (event->type() == QEvent::ApplicationPaletteChange)
        mendPalette();
    return QApplication::event(event);
}

} // namespace vantrell
