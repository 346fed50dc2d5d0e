// Opens a large project in a window and measures how long the window does not respond: the longest time to
// handle any event while the project loads, and the times of sorting, filtering, scrolling, switching tabs
// and closing.
//
// usage: vantrell-window-bench PROJECT, on a display or with QT_QPA_PLATFORM=offscreen

#include "app/AppController.h"
#include "app/Application.h"
#include "document/widgets/DocumentWindow.h"
#include "support/settings/UserDefaults.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "table/widgets/TabPane.h"
#include "table/widgets/TableModel.h"

#include <QComboBox>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMetaEnum>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>

using namespace vantrell;

namespace
{

constexpr double patienceMs = 50;

/// Wall time and the processor time of the main thread, which tells more on a busy machine.
class Watch
{
public:
    double wallMs() const { return double(m_wall.nsecsElapsed()) / 1e6; }
    double processorMs() const { return processorNow() - m_processor; }

private:
    static double processorNow()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
    }
    static QElapsedTimer started()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    const QElapsedTimer m_wall = started();
    const double m_processor = processorNow();
};

void printLine(const QString &what, const Watch &watch)
{
    const double wall = watch.wallMs();
    std::printf("  %-40s %7.1f ms, of the processor %7.1f ms\n", qPrintable(what), wall, watch.processorMs());
}

/// Measures each event that is not handled inside another one.
class TimedApplication final : public Application
{
public:
    using Application::Application;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (m_depth > 0)
            return Application::notify(receiver, event);
        // Both may be gone afterwards.
        const int type = event->type();
        const QByteArray className = receiver->metaObject()->className();
        ++m_depth;
        const Watch watch;
        const bool isHandled = Application::notify(receiver, event);
        const double ms = watch.wallMs();
        --m_depth;
        ++m_events;
        m_longest = std::max(m_longest, ms);
        if (ms > patienceMs && m_isTold) {
            ++m_late;
            std::printf("  %.0f ms, of the processor %.0f ms: event %s (%d) of %s\n", ms, watch.processorMs(),
                        QMetaEnum::fromType<QEvent::Type>().valueToKey(type), type, className.constData());
        }
        return isHandled;
    }

    void startOver()
    {
        m_events = m_late = 0;
        m_longest = 0;
        m_isTold = true;
    }
    double longestMs() const { return m_longest; }
    void report(const char *what)
    {
        m_isTold = false;
        if (!what)
            return;
        std::printf("%s: %d events, the longest took %.1f ms, %d took more than %.0f ms\n", what, m_events,
                    m_longest, m_late, patienceMs);
    }

private:
    int m_depth = 0;
    int m_events = 0;
    int m_late = 0;
    double m_longest = 0;
    bool m_isTold = false; // whether slow events are printed
};

void settle(int ms = 0)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    QCoreApplication::sendPostedEvents();
}

/// Runs something, including the painting that follows.
template <typename Operation>
void measure(const QString &what, QWidget &window, Operation operation)
{
    const Watch watch;
    operation();
    QCoreApplication::sendPostedEvents();
    window.repaint();
    printLine(what, watch);
}

/// The longest event and all events until the table, what counts its rows and what draws them are at rest.
void measureKey(const QString &what, QWidget &window, const std::function<void()> &operation)
{
    measure(what, window, operation);
    constexpr int restMs = 120; // the rows are counted after a pause
    auto &application = static_cast<TimedApplication &>(*QCoreApplication::instance());
    application.startOver();
    const Watch watch;
    settle(restMs);
    std::printf("  %-40s %7.1f ms of the processor, the longest event %7.1f ms\n",
                "  and until all is at rest", watch.processorMs(), application.longestMs());
    application.report(nullptr);
}

void measureSearch(DocumentWindow &window, TabPane &pane)
{
    auto *const field = pane.findChild<SearchBar *>() ? &pane.findChild<SearchBar *>()->field() : nullptr;
    if (!field)
        return;
    constexpr int untilPreparedMs = 2500;
    settle(untilPreparedMs);
    const auto searchFor = [&](const char *text) {
        measureKey(QStringLiteral("search for \"%1\"").arg(QLatin1String(text)), window, [&] {
            field->setText(QString::fromLatin1(text));
            QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier); // applies it at once
            QCoreApplication::sendEvent(field, &key);
        });
    };
    for (const char *const text : {"e", "ed", "e", "blur", "#", "", "a"})
        searchFor(text);
    for (const int column : {1, 2}) {
        measure(QStringLiteral("sort what was found"), window,
                [&] { Q_EMIT pane.table().horizontalHeader()->sectionClicked(column); });
        settle(untilPreparedMs);
        for (const char *const text : {"an", "a", "", "a"})
            searchFor(text);
    }
    searchFor("");
}

void measureTable(DocumentWindow &window, Tab tab)
{
    TabPane &pane = window.pane(tab);
    std::printf("  %d rows\n", pane.model().rowCount());
    QScrollBar *const bar = pane.table().verticalScrollBar();
    measure(QStringLiteral("100 jumps of the scroll bar"), window, [&] {
        for (int step = 1; step <= 100; ++step) {
            bar->setValue(int(qint64(bar->maximum()) * step / 100));
            pane.table().viewport()->repaint();
        }
    });
    for (const QString &column : pane.columns()) {
        for (const char *const direction : {"up", "down"}) {
            measure(QStringLiteral("sort by %1, %2").arg(column, QLatin1String(direction)), window, [&] {
                Q_EMIT pane.table().horizontalHeader()->sectionClicked(pane.model().columnOf(column));
            });
        }
    }
    measure(QStringLiteral("select all"), window, [&] { pane.table().selectAll(); });
    measure(QStringLiteral("sort the selection"), window,
            [&] { Q_EMIT pane.table().horizontalHeader()->sectionClicked(1); });
    pane.table().clearSelection();
    for (QComboBox *const filter : pane.findChildren<QComboBox *>()) {
        for (const int item : {1, 0}) {
            if (item < filter->count()) {
                measure(QStringLiteral("%1, item %2").arg(filter->accessibleName()).arg(item), window, [&] {
                    filter->setCurrentIndex(item);
                    Q_EMIT filter->activated(item);
                });
            }
        }
    }
    measureSearch(window, pane);
}

void measureLoading(TimedApplication &application, AppController &controller, const QString &path)
{
    application.startOver();
    const Watch watch;
    controller.openFiles({path});
    DocumentWindow *const window = controller.currentWindow();
    while (window->isLoading())
        settle(20);
    std::printf("open: %.1f s\n", watch.wallMs() / 1000);
    application.report("while it loads");
}

void measureClosing(AppController &controller, const QString &path, int afterMs)
{
    controller.openFiles({path});
    settle(afterMs);
    const Watch watch;
    controller.currentWindow()->close();
    while (controller.currentWindow())
        settle(1);
    std::printf("closing after %d ms of loading: the window is gone after %.1f ms\n", afterMs,
                watch.wallMs());
}

} // namespace

int main(int argc, char **argv)
{
    TimedApplication application(argc, argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: vantrell-window-bench PROJECT\n", stderr);
        return 2;
    }
    UserDefaults defaults(QString(), UserDefaults::Access::Volatile);
    AppController::startLog();
    AppController controller(defaults);
    measureLoading(application, controller, arguments.at(1));
    DocumentWindow &window = *controller.currentWindow();
    const std::pair<Tab, void (DocumentWindow::*)()> tabs[] = {
        {Tab::Media, &DocumentWindow::toolbarMedia},
        {Tab::Effects, &DocumentWindow::toolbarEffects},
        {Tab::Markers, &DocumentWindow::toolbarMarkers},
    };
    for (const auto &[tab, show] : tabs) {
        std::printf("%s\n", qPrintable(window.toolbarSelectableItemIdentifiers().at(int(tab))));
        measure(QStringLiteral("show"), window, [&window, action = show] { (window.*action)(); });
        measureTable(window, tab);
    }
    application.startOver();
    QEventLoop saving;
    QObject::connect(&window, &DocumentWindow::saved, &saving, &QEventLoop::quit);
    const QTemporaryDir folder;
    const Watch watch;
    window.saveTo(folder.filePath(QStringLiteral("saved.xml")));
    saving.exec();
    std::printf("save: %.1f s\n", watch.wallMs() / 1000);
    application.report("while it saves");
    application.startOver();
    window.close();
    settle(50);
    for (const int afterMs : {100, 700, 2000})
        measureClosing(controller, arguments.at(1), afterMs);
    application.report("opening and closing");
    return 0;
}
