#include "WindowTest.h"

#include "app/AppController.h"
#include "app/ApplicationWatch.h"
#include "app/RecentFiles.h"
#include "app/StartWindow.h"
#include "bridge/widgets/QVFCPProjectLoader.h"
#include "document/MyDocument.h"
#include "document/widgets/ProgressSheet.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "tests/support/FcpHost.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"
#include "xml/XmlQuery.h"

#include <QListWidget>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

#include <vector>

using namespace vantrell;

namespace
{

constexpr int patience = 30000; // milliseconds

QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

QVFCPProjectLoader *visibleLoader()
{
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const loader = qobject_cast<QVFCPProjectLoader *>(widget);
        if (loader && loader->isVisible())
            return loader;
    }
    return nullptr;
}

} // namespace

/// The window with the stand-in for Final Cut Pro as a process of its own.
class TestSending : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(text("test.plist")));
        m_path = copySample(m_home->path(text("project")));
        QVERIFY(FcpHost::installBundle(m_home->path(text("apps"))));
        UserDefaults::standard().setValue(text("applicationsFolder"), m_home->path(text("apps")));
        AppController::startLog();
        m_controller = std::make_unique<AppController>(*m_defaults);
        m_controller->startWindow().show();
    }
    void cleanup()
    {
        m_host.reset();
        m_controller.reset();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void opensProjectsThatAreOpenInFinalCutPro()
    {
        const QString command = QString::fromUtf8("Open Final Cut Pro Project…");
        QSignalSpy looked(&m_controller->finalCutPro(), &ApplicationWatch::looked);
        QTRY_VERIFY(!looked.isEmpty());
        QVERIFY(!commandOf(m_controller->startWindow(), command)->isEnabled());
        const QString second = m_home->path(text("project/Second.fcp"));
        QVERIFY(QFile::copy(m_path, second));
        startHost({m_path, second});
        QAction *const open = commandOf(m_controller->startWindow(), command);
        Q_EMIT qobject_cast<QMenu *>(open->parent())->aboutToShow();
        QTRY_VERIFY(open->isEnabled());
        open->trigger();
        QTRY_VERIFY(visibleLoader() && !visibleLoader()->isReading());
        visibleLoader()->findChild<QListWidget *>()->selectAll();
        visibleLoader()->openProject();
        QVERIFY(!visibleLoader());

        const std::vector<DocumentWindow *> windows = m_controller->documentWindows();
        QCOMPARE(windows.size(), std::size_t(2));
        for (DocumentWindow *const window : windows) {
            QTRY_COMPARE_WITH_TIMEOUT(window->state(), DocumentWindow::State::Ready, patience);
            QVERIFY(window->document()->isFCPProject());
            QCOMPARE(window->document()->markerArray().size(), std::size_t(24));
        }
        QCOMPARE(windows.at(0)->path(), m_path);
        QCOMPARE(windows.at(1)->path(), second);

        // The file itself is another document; the recent files bring back what was opened last.
        QVERIFY(m_controller->recentFiles().isFCPProject(m_path));
        m_controller->openFiles({m_path});
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(3));
        DocumentWindow *const plain = m_controller->documentWindows().back();
        QTRY_COMPARE_WITH_TIMEOUT(plain->state(), DocumentWindow::State::Ready, patience);
        QVERIFY(!plain->document()->isFCPProject());
        QVERIFY(plain->windowTitle() != windows.at(0)->windowTitle());
        QVERIFY(!m_controller->recentFiles().isFCPProject(m_path));
        QVERIFY(m_controller->recentFiles().isFCPProject(second));
        windows.at(1)->close();
        m_controller->openRecentFile(second);
        DocumentWindow *const again = m_controller->documentWindows().back();
        QTRY_COMPARE_WITH_TIMEOUT(again->state(), DocumentWindow::State::Ready, patience);
        QVERIFY(again->document()->isFCPProject());
    }

    void commandsOfAProject()
    {
        openProject();
        for (const char *const title : {"Save", "Save As…", "Revert to Saved"}) {
            const QAction *const action = commandOf(*m_window, QString::fromUtf8(title), text("File"));
            QVERIFY(!action->isVisible());
            QVERIFY(!action->isEnabled());
        }
        QVERIFY(commandOf(*m_window, text("Save"))->shortcut().isEmpty());
        const QAction *const send = commandOf(*m_window, text("Send to Final Cut Pro"));
        QVERIFY(send->isVisible());
        QVERIFY(send->isEnabled());
        QCOMPARE(send->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_S));
    }

    void sendsChangesOnce()
    {
        openProject();
        change();
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window));
        QTest::keyClick(m_window, Qt::Key_S, Qt::ControlModifier);
        QVERIFY(m_window->isSending());
        QCOMPARE(answerAlert(), text("Changes successfully sent to Final Cut Pro"));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(saved.at(0).at(0).toBool());
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(!m_window->isSending());
        QVERIFY(m_window->mayEdit());
        QVERIFY(!m_window->findChild<ProgressSheet *>()->isVisible());
        QCOMPARE(importsInLog(), 1);

        // It waits while the project is being read.
        QVERIFY(m_window->document()->runInBackground([] { QThread::msleep(100); }, [] {}));
        m_window->sendToFCP();
        QVERIFY(!m_window->isSending());
        QCOMPARE(answerAlert(), text("No changes to send to Final Cut Pro"));
        QTRY_VERIFY(!m_window->isSending());
        QCOMPARE(importsInLog(), 1);

        // What Final Cut Pro now holds has the changed sequence once more, in a bin of its own.
        m_window->close();
        openAgain();
        static const XmlQuery sent(text("./xmeml/project/children/bin[name='Vantrell']/children/sequence"));
        QCOMPARE(sent.evaluate(m_window->document()->xmlNode()).nodes.size(), std::size_t(1));
    }

    void keepsChangesThatWereNotSent()
    {
        openProject({text("--fail"), text("iXML")});
        change();
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        m_window->save();
        QCOMPARE(answerAlert(), text("Unable to send to Final Cut Pro"));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(!saved.at(0).at(0).toBool());
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->mayEdit());
        QCOMPARE(m_window->document()->modifiedSequenceUUIDs()->size(), qsizetype(1));
    }

    void waitsForAHungApplication_data()
    {
        QTest::addColumn<bool>("hides"); // the progress sheet, before the window is closed
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::newRow("hide, don't save") << true << "Don’t Save" << true;
        QTest::newRow("don't save") << false << "Don’t Save" << true;
        QTest::newRow("send") << true << "Send" << true;
        QTest::newRow("cancel") << false << "Cancel" << false;
    }
    void waitsForAHungApplication()
    {
        QFETCH(bool, hides);
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        openProject();
        change();
        m_host->hang();
        const QPointer<DocumentWindow> window = m_window;
        auto *const sheet = window->findChild<ProgressSheet *>();
        QSignalSpy saved(window, &DocumentWindow::saved);
        QSignalSpy closed(window, &DocumentWindow::closed);
        window->sendToFCP();
        QTRY_VERIFY(sheet->isVisible());
        window->sendToFCP(); // refused
        window->save();
        QCOMPARE(saved.count(), 2);
        QVERIFY(!saved.at(0).at(0).toBool() && !saved.at(1).at(0).toBool());
        QVERIFY(!commandOf(*window, text("Send to Final Cut Pro"))->isEnabled());
        if (hides) {
            Q_EMIT sheet->cancelled();
            QVERIFY(!sheet->isVisible());
            QVERIFY(window->isSending());
            QVERIFY(window->message().contains(text("still being sent")));
        }

        QElapsedTimer time;
        time.start();
        window->close();
        QTRY_VERIFY(visibleBox());
        QVERIFY(!sheet->isVisible());
        QVERIFY(press(visibleBox(), answer));
        if (answer == QString::fromUtf8("Don’t Save")) {
            QCOMPARE(closed.count(), 1);
            QTRY_VERIFY(!window);
            QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(5)));
            QVERIFY2(time.elapsed() < 5000, qPrintable(QString::number(time.elapsed())));
            return;
        }
        QCOMPARE(closed.count(), 0);
        m_host->goOn();
        QCOMPARE(answerAlert(), text("Changes successfully sent to Final Cut Pro"));
        QTRY_COMPARE(saved.count(), 3);
        QVERIFY(saved.at(2).at(0).toBool());
        QTest::qWait(0);
        QCOMPARE(closed.count(), closes ? 1 : 0);
        QCOMPARE(importsInLog(), 1);
        if (!closes)
            QVERIFY(window->message().isEmpty() && window->mayEdit());
    }

    void changesMadeMeanwhileStayChanges()
    {
        openProject();
        change();
        m_host->hang();
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        m_window->sendToFCP();
        auto *const sheet = m_window->findChild<ProgressSheet *>();
        QTRY_VERIFY(sheet->isVisible() && m_window->document()->isSending());
        Q_EMIT sheet->cancelled();
        QTRY_VERIFY(m_window->mayEdit());
        QVERIFY(editCell(*m_window, Tab::Markers, rowOf(text("Renamed")), text("name"), text("Twice")));
        m_host->goOn();
        QCOMPARE(answerAlert(), text("Changes successfully sent to Final Cut Pro"));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(!saved.at(0).at(0).toBool());
        QVERIFY(m_window->isWindowModified());
        m_window->sendToFCP();
        QCOMPARE(answerAlert(), text("Changes successfully sent to Final Cut Pro"));
        QTRY_VERIFY(!m_window->isWindowModified());
        QCOMPARE(importsInLog(), 2);
    }

    void sendsTwoDocumentsAtOnce()
    {
        const QString second = m_home->path(text("project/Second.fcp"));
        QVERIFY(QFile::copy(m_path, second));
        startHost({m_path, second});
        std::vector<DocumentWindow *> windows;
        for (const QString &path : {m_path, second}) {
            openHeld(path);
            change();
            windows.push_back(m_window);
        }
        m_host->hang();
        for (DocumentWindow *const window : windows)
            window->sendToFCP();
        for (DocumentWindow *const window : windows)
            QTRY_VERIFY(window->findChild<ProgressSheet *>()->isVisible());
        m_host->goOn();
        for (std::size_t i = 0; i < windows.size(); ++i)
            QCOMPARE(answerAlert(), text("Changes successfully sent to Final Cut Pro"));
        for (DocumentWindow *const window : windows) {
            QTRY_VERIFY(!window->isSending());
            QVERIFY(!window->isWindowModified());
        }
        QCOMPARE(importsInLog(), 2);
        for (const QString &path : {m_path, second})
            QCOMPARE(contentOf(path).count("<name>Vantrell</name>"), 1);
    }

    void tellsThatFinalCutProDiedMeanwhile()
    {
        openProject();
        change();
        m_host->hang();
        m_window->sendToFCP();
        QTRY_VERIFY(m_window->findChild<ProgressSheet *>()->isVisible());
        m_host->kill();
        QCOMPARE(answerAlert(), text("Unable to send to Final Cut Pro"));
        QTRY_VERIFY(!m_window->isSending());
        QVERIFY(m_window->isWindowModified() && m_window->mayEdit());
        QVERIFY(!m_window->findChild<ProgressSheet *>()->isVisible());
    }

    void exportsChangedSequences()
    {
        m_controller->openFiles({m_path});
        m_window = m_controller->currentWindow();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, patience);
        const QString title = QString::fromUtf8("Export Changed Sequences…");
        QVERIFY(!commandOf(*m_window, title)->isEnabled());
        change();
        const QByteArray before =
            XmlDocument::textOfElement(m_window->document()->xmlDoc()->rootElement()).toUtf8();
        QVERIFY(trigger(*m_window, title));
        QVERIFY(visiblePanel());
        const QString path = m_home->path(text("project/out.xml"));
        QSignalSpy exported(m_window, &DocumentWindow::changedSequencesExported);
        choosePath(m_home->path(text("project/out")));
        QTRY_COMPARE(exported.count(), 1);
        QVERIFY(exported.at(0).at(0).toBool());
        const auto written = XmlDocument::fromFile(path, {false});
        QVERIFY(written);
        static const XmlQuery sequences(text("./xmeml/bin[name='Vantrell']/children/sequence/name"));
        const auto names = sequences.evaluate(written.value()->node()).nodes;
        QCOMPARE(names.size(), std::size_t(1));
        QVERIFY(names.front().stringValue().endsWith(text("-Processed")));
        QVERIFY(statusOf(*m_window).contains(QString::fromUtf8("Changed sequences exported to “out.xml”")));
        // The project stays as it was, with its changes to be saved.
        QVERIFY(m_window->isWindowModified() && !m_window->isBusy());
        QCOMPARE(XmlDocument::textOfElement(m_window->document()->xmlDoc()->rootElement()).toUtf8(), before);

        QVERIFY(QDir().mkpath(m_home->path(text("project/taken.xml/inside"))));
        m_window->exportChangedSequencesTo(m_home->path(text("project/taken.xml")));
        QTRY_COMPARE(exported.count(), 2);
        QVERIFY(!exported.at(1).at(0).toBool());
        QVERIFY(answerAlert().contains(text("taken.xml")));

        const QString own = m_window->path();
        const QByteArray file = contentOf(own);
        m_window->exportChangedSequencesTo(own);
        QTRY_COMPARE(exported.count(), 3);
        QVERIFY(!exported.at(2).at(0).toBool());
        QCOMPARE(answerAlert(), text("The changed sequences could not be exported."));
        QCOMPARE(contentOf(own), file);
    }

private:
    void startHost(const QStringList &arguments)
    {
        m_host = std::make_unique<FcpHost>(*m_home);
        QVERIFY(m_host->start(arguments));
    }
    /// Opens the sample in Final Cut Pro and from there.
    void openProject(const QStringList &arguments = {})
    {
        startHost(arguments + QStringList{m_path});
        openAgain();
    }
    void openAgain() { openHeld(m_path); }
    /// Opens a project that Final Cut Pro holds.
    void openHeld(const QString &path)
    {
        m_controller->recentFiles().add(path, true);
        m_controller->openRecentFile(path);
        m_window = m_controller->documentWindows().back();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, patience);
    }
    int rowOf(const QString &marker) const
    {
        return int(columnTexts(*m_window, Tab::Markers, text("name")).indexOf(marker));
    }
    /// Renames a marker of a sequence.
    void change()
    {
        m_window->toolbarMarkers();
        QVERIFY(editCell(*m_window, Tab::Markers, rowOf(text("Opening")), text("name"), text("Renamed")));
        QVERIFY(m_window->isWindowModified());
    }
    /// Waits for an alert and presses its button; gives what it said.
    QString answerAlert()
    {
        if (!QTest::qWaitFor([] { return visibleBox() != nullptr; }, patience))
            return QString();
        QMessageBox *const box = visibleBox();
        const QString said = box->text();
        press(box, text("OK"));
        return said;
    }
    int importsInLog() const { return int(m_host->allEvents().count(text("iXML"))); }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<FcpHost> m_host;
    std::unique_ptr<AppController> m_controller;
    QString m_path;
    QPointer<DocumentWindow> m_window;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestSending test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_sending.moc"
