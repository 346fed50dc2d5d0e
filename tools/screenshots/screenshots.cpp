// Takes a picture of each tab of a project, each sheet, the start window, a project that cannot be opened,
// the preferences, of the way to Final Cut Pro and back, and of the comparison with the project's recut
// beside it, light and dark. Those of the manual go to the folder manual/images beside the other one.
//
// usage: vantrell-screenshots PROJECT FOLDER, with QT_QPA_PLATFORM=offscreen, while fcp-host holds the
// project and takes a moment for each answer

#include "app/AppController.h"
#include "app/Application.h"
#include "app/PreferencesWindow.h"
#include "app/RecentFiles.h"
#include "app/StartWindow.h"
#include "app/Translations.h"
#include "bridge/widgets/QVFCPProjectLoader.h"
#include "compare/widgets/ChangeTableModel.h"
#include "compare/widgets/CompareWindow.h"
#include "document/widgets/DocumentWindow.h"
#include "document/widgets/ProgressSheet.h"
#include "markers/widgets/MarkersPane.h"
#include "report/widgets/PrintPanel.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/TableModel.h"
#include "workbench/Workbench.h"

#include <QAction>
#include <QDialog>
#include <QEventLoop>
#include <QLineEdit>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <string>

using namespace vantrell;

namespace
{

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

/// Waits for what is sure to come.
void waitFor(const char *what, const std::function<bool()> &isThere)
{
    constexpr int interval = 20;
    constexpr int longest = 60000;
    for (int waited = 0; !isThere(); waited += interval) {
        if (waited > longest)
            qFatal("There is no %s.", what);
        wait(interval);
    }
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

QDialog *visibleSheet(const QWidget &window)
{
    const auto dialogs = window.findChildren<QDialog *>();
    const auto found = std::find_if(dialogs.begin(), dialogs.end(),
                                    [](const QDialog *dialog) { return dialog->isVisible(); });
    return found == dialogs.end() ? nullptr : *found;
}

/// Takes one theme's pictures into a folder.
class Photographer
{
public:
    Photographer(const QString &folder, const QString &theme)
        : m_folder(folder)
        , m_theme(theme)
    {
    }

    bool takeAll(const QString &project)
    {
        m_controller.openFiles({project});
        DocumentWindow &window = *m_controller.currentWindow();
        window.resize(1180, 660);
        while (window.isLoading())
            wait(50);
        if (window.state() != DocumentWindow::State::Ready) {
            std::fprintf(stderr, "%s\n", qPrintable(window.message()));
            return false;
        }
        take(window, "media");
        window.toolbarEffects();
        take(window, "effects");
        window.toolbarMarkers();
        window.pane(Tab::Markers).selectRows({16});
        take(window, "markers");
        takePrintPanel(window);
        takeSheets(window);
        takeKeys(window);
        window.close();
        m_controller.openFiles({project + QStringLiteral(".missing")});
        take(*m_controller.currentWindow(), "failure");
        m_controller.currentWindow()->close();
        takeRoundTrip();
        takeComparison(project);
        take(m_controller.startWindow(), "start");
        if (m_theme == QStringLiteral("light")) {
            take(m_controller.startWindow(), "../manual/images/preferences-start");
            takePreferences();
        }
        return m_isTaken;
    }

private:
    void takePrintPanel(DocumentWindow &window)
    {
        window.pane(Tab::Markers).selectRows({});
        window.printDocument();
        auto *const panel = window.findChild<PrintPanel *>();
        if (!panel)
            qFatal("The print panel has not come up.");
        take(*panel, "print");
        panel->reject();
        wait(0);
    }

    void takeSheets(DocumentWindow &window)
    {
        QVariantList fields;
        for (const char *title : {"Take", "Camera"})
            fields.emplace_back(QVariantMap{
                {QStringLiteral("identifier"), MarkerFields::formatMarkerFieldName(QLatin1String(title))},
                {QStringLiteral("title"), QString::fromLatin1(title)}});
        m_defaults.setValue(QStringLiteral("customMarkerFields"), fields);
        window.showMarkerFieldsDialog();
        takeSheet(window, "fields-sheet");

        window.showMarkerPresetDialog();
        visibleSheet(window)->findChild<QLineEdit *>()->setText(QStringLiteral("Online"));
        const QStringList labels{QStringLiteral("Fix Audio"), QStringLiteral("Effects"),
                                 QStringLiteral("Grade"), QStringLiteral("Chapter")};
        for (int row = 0; row < labels.size(); ++row)
            window.workbench().markerPresets().setObjectValue(labels.at(row), QStringLiteral("label"),
                                                              std::size_t(row));
        takeSheet(window, "preset-sheet");

        window.pane(Tab::Markers).selectRows({3, 4});
        static_cast<MarkersPane &>(window.pane(Tab::Markers)).showMarkerOffsetWindow();
        visibleSheet(window)->findChild<QLineEdit *>()->setText(QStringLiteral("-1:00"));
        takeSheet(window, "offset-sheet");

        window.showMarkerAddDialog();
        visibleSheet(window)->findChildren<QLineEdit *>().constFirst()->setText(QStringLiteral("12.10"));
        takeSheet(window, "add-sheet");

        if (window.workbench().markerPresets().presetNames().isEmpty())
            window.workbench().markerPresets().addMarkerPreset(QStringLiteral("Online"));
        window.showMarkerPresetsDialog();
        takeSheet(window, "presets-sheet");
        window.workbench().markerPresets().changeMarkerPreset(0);

        QVTableView &table = window.pane(Tab::Markers).table();
        table.setCurrentIndex(table.model()->index(16, 3));
        table.edit(table.currentIndex());
        auto *const field = table.viewport()->findChild<QLineEdit *>();
        field->setText(QStringLiteral("1.61.10"));
        Q_EMIT field->textEdited(field->text());
        take(window, "typing");
        table.commitEditing();

        window.pane(Tab::Markers).selectRows({3, 4});
        QTimer::singleShot(0, &window, [&] { takeSheet(window, "question"); });
        window.removeSelection();

        auto *const progress = window.findChild<ProgressSheet *>();
        progress->updateProgressLabel(QStringLiteral("Adding markers…"));
        progress->startProgress();
        progress->setProgress(2, 3);
        take(*progress, "progress-sheet");
        progress->endProgress();
    }

    void takeKeys(DocumentWindow &window)
    {
        for (QAction *const action : window.findChildren<QAction *>()) {
            if (action->shortcuts().contains(QKeySequence(Qt::Key_Question)))
                action->trigger();
        }
        // The shortcuts of the commands depend on the platform, which is none that anybody uses.
        visibleSheet(window)->findChild<QLineEdit *>()->setText(QStringLiteral("table"));
        takeSheet(window, "../manual/images/keys");
    }

    /// A project is fetched from Final Cut Pro, changed and sent back.
    void takeRoundTrip()
    {
        m_controller.openFCPProject();
        QVFCPProjectLoader *loader = nullptr;
        for (QWidget *const widget : QApplication::topLevelWidgets())
            loader = loader ? loader : qobject_cast<QVFCPProjectLoader *>(widget);
        if (!loader)
            qFatal("The list of projects has not come up.");
        waitFor("list of projects", [loader] { return !loader->isReading(); });
        take(*loader, "fcp-projects");
        loader->openProject();
        DocumentWindow &window = *m_controller.currentWindow();
        waitFor("project", [&window] { return !window.isLoading(); });
        window.toolbarMarkers();
        TableModel &markers = window.pane(Tab::Markers).model();
        markers.setData(markers.index(16, markers.columnOf(QStringLiteral("name"))),
                        QStringLiteral("Regrade sky"));
        window.sendToFCP();
        const auto *const progress = window.findChild<ProgressSheet *>();
        waitFor("progress sheet", [progress] { return progress->isVisible(); });
        take(*window.findChild<ProgressSheet *>(), "sending");
        waitFor("alert", [&window, progress] { return visibleSheet(window) && !progress->isVisible(); });
        takeSheet(window, "sent");
        waitFor("end of the send", [&window] { return !window.isSending(); });
        window.close();
    }

    void takeComparison(const QString &project)
    {
        m_controller.openFiles(
            {QString(project).replace(QStringLiteral(".xml"), QStringLiteral(" Recut.xml"))});
        DocumentWindow &window = *m_controller.currentWindow();
        waitFor("recut", [&window] { return !window.isLoading(); });
        window.comparison().compareWithFile(project);
        waitFor("comparison",
                [&window] { return window.comparison().view() && window.comparison().view()->comparison(); });
        CompareWindow &view = *window.comparison().view();
        view.resize(1180, 860);
        for (QTableView *const table : view.findChildren<QTableView *>()) {
            if (table->model()->columnCount() == ChangeTableModel::columns)
                table->selectRow(6);
        }
        take(view, "../manual/images/compare");
        window.close();
    }

    void takePreferences()
    {
        m_controller.showPreferences();
        PreferencesWindow *preferences = nullptr;
        for (QWidget *const widget : QApplication::topLevelWidgets())
            preferences = preferences ? preferences : qobject_cast<PreferencesWindow *>(widget);
        auto *const pages = preferences ? preferences->findChild<QTabWidget *>() : nullptr;
        if (!pages)
            qFatal("The preferences have not come up.");
        const std::array<const char *, 3> names = {"preferences-general", "preferences-tables",
                                                   "preferences-help"};
        for (int page = 0; page < pages->count(); ++page) {
            pages->setCurrentIndex(page);
            take(*preferences, (std::string("../manual/images/") + names.at(std::size_t(page))).c_str());
        }
        preferences->close();
    }

    void takeSheet(const QWidget &window, const char *name)
    {
        QDialog *const sheet = visibleSheet(window);
        if (!sheet)
            qFatal("The window has no sheet.");
        take(*sheet, name);
        sheet->reject();
    }

    void take(QWidget &window, const char *name)
    {
        wait(300);
        const QString path = QStringLiteral("%1/%2-%3.png").arg(m_folder, QLatin1String(name), m_theme);
        if (window.grab().save(path))
            return;
        std::fprintf(stderr, "%s cannot be written.\n", qPrintable(path));
        m_isTaken = false;
    }

    const QString m_folder;
    const QString m_theme;
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
        std::fputs("usage: vantrell-screenshots PROJECT FOLDER\n", stderr);
        return 2;
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QPalette light = QApplication::style()->standardPalette();
    QApplication::setPalette(light);
    AppController::startLog();
    Translations::installChosen(application, UserDefaults::standard());
    const bool taken = Photographer(arguments.at(2), QStringLiteral("light")).takeAll(arguments.at(1));
    QApplication::setPalette(darkPalette());
    return taken && Photographer(arguments.at(2), QStringLiteral("dark")).takeAll(arguments.at(1)) ? 0 : 1;
}
