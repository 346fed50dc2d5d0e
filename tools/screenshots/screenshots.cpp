// Takes the pictures of the README: the start window, each tab of a project and the sheets of the Markers
// tab, light and dark.
//
// usage: vantrell-screenshots PROJECT FOLDER, with QT_QPA_PLATFORM=offscreen

#include "app/AppController.h"
#include "app/Application.h"
#include "app/RecentFiles.h"
#include "app/StartWindow.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/TabPane.h"
#include "support/UserDefaults.h"
#include "workbench/Workbench.h"

#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTimer>

#include <algorithm>
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

QDialog *visibleSheet(const QWidget &window)
{
    const auto dialogs = window.findChildren<QDialog *>();
    const auto found = std::find_if(dialogs.begin(), dialogs.end(),
                                    [](const QDialog *dialog) { return dialog->isVisible(); });
    if (found == dialogs.end())
        qFatal("The window has no sheet.");
    return *found;
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
    PropertyListValue::Array fields;
    for (const char *title : {"Take", "Camera"})
        fields.emplace_back(PropertyListDictionary{
            {QStringLiteral("identifier"), MarkerFields::formatMarkerFieldName(QLatin1String(title))},
            {QStringLiteral("title"), QString::fromLatin1(title)}});
    defaults.setValue(QStringLiteral("customMarkerFields"), fields);
    window->showMarkerFieldsDialog();
    QDialog *sheet = visibleSheet(*window);
    taken = taken && take(*sheet, picture(QStringLiteral("fields-sheet")));
    sheet->close();
    window->showMarkerPresetDialog();
    sheet = visibleSheet(*window);
    sheet->findChild<QLineEdit *>()->setText(QStringLiteral("Online"));
    MarkerPresets &presets = window->workbench().markerPresets();
    const QStringList labels{QStringLiteral("Fix Audio"), QStringLiteral("Effects"), QStringLiteral("Grade"),
                             QStringLiteral("Chapter")};
    for (int row = 0; row < labels.size(); ++row)
        presets.setObjectValue(labels.at(row), QStringLiteral("label"), std::size_t(row));
    taken = taken && take(*sheet, picture(QStringLiteral("preset-sheet")));
    sheet->close();
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
