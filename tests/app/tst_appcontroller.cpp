#include "ProgramTest.h"

#include "app/RecentFiles.h"
#include "app/SingleInstance.h"
#include "app/StartWindow.h"
#include "app/Troubleshooting.h"
#include "document/MyDocument.h"
#include "document/widgets/CommandValidation.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/files/PropertyList.h"
#include "support/files/TaskRunner.h"
#include "workbench/Workbench.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMenuBar>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>

using namespace vantrell;

namespace
{

const QString showOpenDialogKey = QStringLiteral("showOpenDialogAtStartup");

} // namespace

class TestAppController : public QObject, private ProgramTest
{
    Q_OBJECT

public Q_SLOTS:
    void noteAddress(const QUrl &url) { m_address = url.toString(); }

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        makeHome();
        m_path = copySample(m_home->path(QStringLiteral("project")));
    }
    void cleanup() { QVERIFY(end()); }

    void startWindowStandsWhileNothingIsOpen()
    {
        start();
        QVERIFY(m_controller->startWindow().isVisible());
        QVERIFY(m_controller->applicationOpenFile(m_path));
        QVERIFY(!m_controller->startWindow().isVisible());
        QTRY_COMPARE(m_controller->currentWindow()->state(), DocumentWindow::State::Ready);
        QCOMPARE(m_controller->recentFiles().paths(), QStringList(m_path));

        // The same file, said differently, has its window already.
        m_controller->openFiles({m_home->path(QStringLiteral("project/./Harbour Lights.xml"))});
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(1));
        m_controller->currentWindow()->close();
        QVERIFY(m_controller->startWindow().isVisible());
        QVERIFY(m_controller->documentWindows().empty());
    }

    void startupActionRunsUnlessSomethingIsOpen_data()
    {
        QTest::addColumn<int>("setting"); // -1: none is set
        QTest::addColumn<bool>("opensFile");
        QTest::addColumn<bool>("showsPanel");
        QTest::newRow("by default") << -1 << false << true;
        QTest::newRow("switched off") << 0 << false << false;
        QTest::newRow("neither off nor on") << 2 << false << false;
        QTest::newRow("a file came first") << 1 << true << false;
    }
    void startupActionRunsUnlessSomethingIsOpen()
    {
        QFETCH(int, setting);
        QFETCH(bool, opensFile);
        QFETCH(bool, showsPanel);
        if (setting >= 0)
            m_defaults->setValue(showOpenDialogKey, setting);
        m_controller = std::make_unique<AppController>(*m_defaults);
        if (opensFile)
            m_controller->openFiles({m_path});
        m_controller->applicationDidFinishLaunching();
        QTest::qWait(700);
        QVERIFY(!visiblePanel());
        if (showsPanel)
            QTRY_VERIFY(visiblePanel());
        else
            QTest::qWait(700); // longer than the panel would take
        QCOMPARE(visiblePanel() != nullptr, showsPanel);
        if (QFileDialog *const panel = visiblePanel()) {
            QCOMPARE(panel->windowTitle(),
                     QStringLiteral("Browse for a Final Cut Pro 7 project or XML file"));
            QCOMPARE(panel->fileMode(), QFileDialog::ExistingFiles);
            panel->close();
        }
    }

    void aDamagedDefaultsFileIsKeptAside()
    {
        const QString path = m_home->addFile(QStringLiteral("damaged.plist"), "<plist><dict><key>oops");
        m_defaults = std::make_unique<UserDefaults>(path);
        start();
        m_controller->performStartupAction(); // as the default says
        QVERIFY(visiblePanel());
        visiblePanel()->close();
        m_controller->recentFiles().add(m_path, false);
        QCOMPARE(contentOf(path + QStringLiteral(".damaged")), QByteArray("<plist><dict><key>oops"));
        QVERIFY(PropertyList::fromFile(path).isOk());
    }

    void recentFilesAreTheLatestFirst()
    {
        start();
        RecentFiles &recent = m_controller->recentFiles();
        for (int i = 0; i < 12; ++i)
            recent.add(QStringLiteral("/p/%1.xml").arg(i), i % 2 == 1);
        recent.add(QStringLiteral("/p/5.xml"), false);
        QStringList expected{QStringLiteral("/p/5.xml")};
        for (const int i : {11, 10, 9, 8, 7, 6, 4, 3, 2})
            expected.append(QStringLiteral("/p/%1.xml").arg(i));
        QCOMPARE(recent.paths(), expected);
        QCOMPARE(UserDefaults(m_home->path(QStringLiteral("test.plist")))
                     .value(QStringLiteral("recentFiles"))
                     .toStringList(),
                 expected);
        // Each is what it was last; those that have left the list are forgotten.
        QStringList projects;
        for (int i = 0; i < 12; ++i) {
            if (recent.isFCPProject(QStringLiteral("/p/%1.xml").arg(i)))
                projects.append(QString::number(i));
        }
        QCOMPARE(projects.join(QLatin1Char(' ')), QStringLiteral("3 7 9 11"));
        recent.add(QStringLiteral("/q/5.xml"), false);
        for (const char *const title : {"5.xml — q", "5.xml — p", "11.xml"})
            QVERIFY2(commandOf(m_controller->startWindow(), QString::fromUtf8(title)), title);
        recent.clear();
        QVERIFY(!recent.isFCPProject(QStringLiteral("/p/3.xml")));
    }

    void commandsFollowTheKindOfDocument_data()
    {
        QTest::addColumn<int>("kind"); // 0 none, 1 XML, 2 Premiere Pro
        QTest::addColumn<bool>("savesVisible");
        QTest::addColumn<bool>("savesEnabled");
        QTest::addColumn<bool>("sends");
        QTest::addColumn<QString>("title");
        QTest::newRow("no document") << 0 << true << false << false << "Send to Final Cut Pro";
        QTest::newRow("XML") << 1 << true << true << false << "Send to Final Cut Pro";
        QTest::newRow("Premiere Pro") << 2 << false << false << true << "Send to Premiere Pro";
    }
    void commandsFollowTheKindOfDocument()
    {
        QFETCH(int, kind);
        QFETCH(bool, savesVisible);
        QFETCH(bool, savesEnabled);
        QFETCH(bool, sends);
        start();
        const MyDocument *document = nullptr;
        if (kind > 0) {
            m_controller->applicationOpenFile(m_path);
            QTRY_COMPARE(m_controller->currentWindow()->state(), DocumentWindow::State::Ready);
            MyDocument *const loaded = m_controller->currentWindow()->document();
            loaded->setPremiereProject(kind == 2);
            document = loaded;
        }
        for (const DocumentCommand command :
             {DocumentCommand::Save, DocumentCommand::SaveAs, DocumentCommand::Revert}) {
            const CommandState state = validateUserInterfaceItem(command, document, false);
            QCOMPARE(state.isVisible, savesVisible);
            QCOMPARE(state.isEnabled, savesEnabled);
        }
        const CommandState save = validateUserInterfaceItem(DocumentCommand::Save, document, false);
        const CommandState send = validateUserInterfaceItem(DocumentCommand::Send, document, false);
        QCOMPARE(send.isVisible, sends);
        QCOMPARE(send.isEnabled, sends);
        QTEST(send.title, "title");
        const QKeySequence key(Qt::CTRL | Qt::Key_S);
        QCOMPARE(*save.shortcut, sends ? QKeySequence() : key);
        QCOMPARE(*send.shortcut, sends ? key : QKeySequence());
        for (const bool isRunning : {false, true}) {
            QCOMPARE(
                validateUserInterfaceItem(DocumentCommand::OpenFCPProject, document, isRunning).isEnabled,
                isRunning);
        }
    }

    void menuCommandsWork()
    {
        start();
        m_controller->applicationOpenFile(m_path);
        DocumentWindow *const window = m_controller->currentWindow();
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);
        QCOMPARE(trigger(*window, QStringLiteral("Markers")), true);
        QCOMPARE(window->selectedToolbarItemIdentifier(), QStringLiteral("markers"));
        QVERIFY(trigger(*window, QStringLiteral("Select All")));
        QCOMPARE(window->pane(Tab::Markers).selectedRows().size(), std::size_t(24));
        QVERIFY(trigger(*window, QStringLiteral("Media")));
        QVERIFY(!trigger(*window, QStringLiteral("Remove…")));
        for (QAction *const action : actionsOf(*window)) {
            if (!action->isEnabled() && action->isVisible() &&
                action->text().contains(QStringLiteral("Cut Pro Project")))
                QVERIFY(action->toolTip().size() > 30);
        }
    }

    /// In an alert of the program's own, once, also for a name without its extension.
    void savingAsksBeforeItReplaces_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("name") << QStringLiteral("project/cut2");
        QTest::newRow("name with extension") << QStringLiteral("project/cut2.xml");
    }
    void savingAsksBeforeItReplaces()
    {
        QFETCH(QString, typed);
        start();
        m_controller->applicationOpenFile(m_path);
        DocumentWindow *const window = m_controller->currentWindow();
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);
        const QString path = m_home->addFile(QStringLiteral("project/cut2.xml"), "other");
        QVERIFY(trigger(*window, QStringLiteral("Save As…")));
        choosePath(m_home->path(typed));
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->text().contains(QStringLiteral("“cut2.xml” already exists")));
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
        QTRY_VERIFY(visiblePanel());
        QCOMPARE(contentOf(path), QByteArray("other"));
        choosePath(m_home->path(typed));
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Replace")));
        QTRY_COMPARE(window->path(), path);
        QVERIFY(contentOf(path).contains("<xmeml"));
    }

    void importsAndExportsMarkerLists_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QByteArray>("exported"); // a line; empty where there is no export
        QTest::newRow("fcp") << "Final Cut Pro Markers…"
                             << QByteArray("Header\nA\tClip\tCue\tNew\t01:00:20:00\t00:00:00:00\tGreen\n")
                             << QByteArray("\tSequence\tCue\tNew\t01:00:20:00\t00:00:00:00\tGreen\n");
        QTest::newRow("avid") << "Avid Locators…" << QByteArray("Cue\t01:00:20:00\tV1\tred\tNew\n")
                              << QByteArray("Cue\t01:00:20:00\tV1\tred\tNew\n");
        QTest::newRow("fcpx")
            << "Final Cut Pro X Markers…"
            << QByteArray("<fcpxml><resources><format frameDuration='1/25s'/></resources><library><event>"
                          "<project><sequence tcStart='3600s' tcFormat='NDF'><spine>"
                          "<gap duration='40s'><marker start='20s' value='Cue'/></gap>"
                          "</spine></sequence></project></event></library></fcpxml>")
            << QByteArray();
    }
    void importsAndExportsMarkerLists()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, list);
        QFETCH(QByteArray, exported);
        start();
        m_controller->applicationOpenFile(m_path);
        DocumentWindow *const window = m_controller->currentWindow();
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);
        const QString suffix = exported.isEmpty() ? QStringLiteral("fcpxml") : QStringLiteral("txt");
        const QString path = m_home->addFile(QStringLiteral("project/list.") + suffix, list);
        QVERIFY(trigger(*window, format, QStringLiteral("Import")));
        QVERIFY(visiblePanel());
        QCOMPARE(visiblePanel()->fileMode(), QFileDialog::ExistingFiles);
        choosePath(path);
        QTRY_COMPARE(window->document()->markerArray().size(), std::size_t(25));
        QCOMPARE(window->document()->markerArray().back()->get(MarkerKey::name), QStringLiteral("Cue"));
        QVERIFY(window->isWindowModified());
        QTRY_VERIFY(!window->isBusy());
        QCOMPARE(trigger(*window, format, QStringLiteral("Export")), !exported.isEmpty());
        if (exported.isEmpty())
            return;
        QTRY_VERIFY(visiblePanel());
        choosePath(m_home->path(QStringLiteral("project/out")));
        QTRY_VERIFY(QFile::exists(m_home->path(QStringLiteral("project/out.txt"))));
        QVERIFY(contentOf(m_home->path(QStringLiteral("project/out.txt"))).endsWith(exported));
        // A folder stands in the file's place.
        QVERIFY(QDir().mkpath(m_home->path(QStringLiteral("project/taken.txt/inside"))));
        QString told;
        whenAsked(0, [&told](QMessageBox *box) {
            told = box->text();
            press(box, QStringLiteral("OK"));
        });
        QTRY_VERIFY(!window->isBusy());
        QSignalSpy ended(window, &DocumentWindow::markersExported);
        window->exportMarkerList(m_home->path(QStringLiteral("project/taken.txt")), MarkerListFormat::fcp);
        QTRY_COMPARE(ended.count(), 1);
        QCOMPARE(told, QStringLiteral("Error saving marker list"));
    }

    void quittingAsksAboutChanges()
    {
        start();
        QSignalSpy quits(qApp, &QCoreApplication::aboutToQuit);
        m_controller->applicationOpenFile(m_path);
        const QPointer<DocumentWindow> window = m_controller->currentWindow();
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);
        window->toolbarMarkers();
        QVERIFY(editCell(*window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed")));
        m_controller->quit();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
        QVERIFY(window->isVisible());
        m_controller->quit();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Don’t Save")));
        QTRY_VERIFY(!window);
        QVERIFY(!m_controller->startWindow().isVisible());
    }

    /// While Quit asks about one project, others are reverted and edited, or their windows closed.
    void quittingAsksAgainAboutWhatHappenedMeanwhile_data()
    {
        QTest::addColumn<bool>("revertsFirst");
        QTest::newRow("given up, then reverted and edited as often") << true;
        QTest::newRow("another window is closed, which is cancelled") << false;
    }

    void quittingAsksAgainAboutWhatHappenedMeanwhile()
    {
        QFETCH(bool, revertsFirst);
        start();
        std::vector<QPointer<DocumentWindow>> windows;
        for (const char *const name : {"a", "b", "unchanged"}) {
            m_controller->applicationOpenFile(copySample(m_home->path(QString::fromLatin1(name))));
            windows.emplace_back(m_controller->documentWindows().back());
            QTRY_COMPARE(windows.back()->state(), DocumentWindow::State::Ready);
            if (windows.size() > 2)
                break;
            windows.back()->toolbarMarkers();
            QVERIFY(
                editCell(*windows.back(), Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        }
        const QString lose = QStringLiteral("Don’t Save");
        m_controller->quit();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Review…")));
        const auto boxOf = [](const DocumentWindow *window) {
            for (QWidget *const widget : QApplication::topLevelWidgets()) {
                auto *const box = qobject_cast<QMessageBox *>(widget);
                if (box && box->isVisible() && box->parentWidget() == window)
                    return box;
            }
            return static_cast<QMessageBox *>(nullptr);
        };
        QTRY_VERIFY(boxOf(windows[0]));
        if (revertsFirst) {
            QVERIFY(press(boxOf(windows[0]), lose));
            QTRY_VERIFY(boxOf(windows[1]));
            windows[0]->revertWithoutQuestion();
            QTRY_VERIFY(windows[0]->state() == DocumentWindow::State::Ready &&
                        !windows[0]->document()->isEdited());
            windows[0]->toolbarMarkers();
            QVERIFY(editCell(*windows[0], Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Other")));
            QVERIFY(press(boxOf(windows[1]), lose));
            QTRY_VERIFY(boxOf(windows[0]));
            QVERIFY(press(boxOf(windows[0]), QStringLiteral("Cancel")));
            QVERIFY(windows[0] && windows[1] && windows[2]);
        } else {
            windows[2]->close();
            QTRY_VERIFY(!windows[2]);
            windows[1]->close();
            QTRY_VERIFY(boxOf(windows[1]));
            QVERIFY(press(boxOf(windows[1]), QStringLiteral("Cancel")));
            QVERIFY(press(boxOf(windows[0]), lose));
            QTRY_VERIFY(boxOf(windows[1]));
            QVERIFY(windows[0]->isVisible() && press(boxOf(windows[1]), lose));
            QTRY_VERIFY(!windows[0] && !windows[1]);
        }
    }

    void quittingAsksAboutAllBeforeOneCloses_data()
    {
        QTest::addColumn<QStringList>("answers"); // to the questions as they come
        QTest::addColumn<bool>("quits");
        QTest::addColumn<QString>("saved"); // the changed projects that are
        const QString review = QStringLiteral("Review…");
        const QString save = QStringLiteral("Save");
        const QString lose = QStringLiteral("Don’t Save");
        const QString cancel = QStringLiteral("Cancel");
        const QString edit = QStringLiteral("edit"); // the project asked about first
        QTest::newRow("cancel") << QStringList{cancel} << false << "";
        QTest::newRow("save all") << QStringList{QStringLiteral("Save All")} << true << "ab";
        const QString discard = QStringLiteral("Discard All");
        QTest::newRow("discard all") << QStringList{discard} << true << "";
        QTest::newRow("return") << QStringList{QStringLiteral("Return")} << true << "ab";
        QTest::newRow("escape") << QStringList{QStringLiteral("Escape")} << false << "";
        QTest::newRow("review") << QStringList{review, save, lose} << true << "a";
        QTest::newRow("review, then cancel") << QStringList{review, save, cancel} << false << "a";
        QTest::newRow("give up, then cancel") << QStringList{review, lose, cancel} << false << "";
        QTest::newRow("give up, edit") << QStringList{review, lose, edit, save, save} << true << "ab";
        QTest::newRow("save, edit") << QStringList{review, save, edit, lose, cancel} << false << "a";
    }
    void quittingAsksAboutAllBeforeOneCloses()
    {
        QFETCH(QStringList, answers);
        QFETCH(bool, quits);
        QFETCH(QString, saved);
        start();
        std::vector<QPointer<DocumentWindow>> windows;
        for (const char *const name : {"unchanged", "a", "b"}) {
            const QString path = copySample(m_home->path(QString::fromLatin1(name)));
            m_controller->applicationOpenFile(path);
            windows.emplace_back(m_controller->documentWindows().back());
            QTRY_COMPARE(windows.back()->state(), DocumentWindow::State::Ready);
            if (path.contains(QStringLiteral("unchanged")))
                continue;
            windows.back()->toolbarMarkers();
            QVERIFY(
                editCell(*windows.back(), Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        }
        m_controller->quit();
        for (const QString &answer : answers) {
            QTRY_VERIFY(visibleBox());
            for (const auto &window : windows)
                QVERIFY(window && window->isVisible());
            if (answer == QStringLiteral("Return"))
                QTest::keyClick(visibleBox(), Qt::Key_Return);
            else if (answer == QStringLiteral("Escape"))
                QTest::keyClick(visibleBox(), Qt::Key_Escape);
            else if (answer != QStringLiteral("edit"))
                QVERIFY(press(visibleBox(), answer));
            else
                QVERIFY(editCell(*windows[1], Tab::Markers, 0, QStringLiteral("comment"), answer));
        }
        for (const auto &window : windows) {
            if (quits)
                QTRY_VERIFY(!window);
            else
                QVERIFY(window && window->isVisible());
        }
        QString written;
        for (const char *const name : {"a", "b"}) {
            const QString folder = m_home->path(QString::fromLatin1(name));
            if (contentOf(folder + QStringLiteral("/Harbour Lights.xml")).contains("<name>New</name>"))
                written += QString::fromLatin1(name);
        }
        QCOMPARE(written, saved);
        QVERIFY(!visibleBox());
        if (quits)
            return;
        // Whatever was answered, what is still changed is asked about anew.
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(3));
        m_controller->quit();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
    }

    void aFileIsOneDocument()
    {
        start();
        QVERIFY(QDir().mkpath(m_home->path(QStringLiteral("elsewhere/deep"))));
        const QString fileLink = m_home->path(QStringLiteral("link.xml"));
        const QString folderLink = m_home->path(QStringLiteral("jump"));
        QVERIFY(QFile::link(m_path, fileLink));
        QVERIFY(QFile::link(m_home->path(QStringLiteral("elsewhere/deep")), folderLink));
        m_controller->openFiles({m_path});
        QTRY_COMPARE(m_controller->currentWindow()->state(), DocumentWindow::State::Ready);
        // The folder link leads elsewhere, and ".." from there.
        m_controller->openFiles(
            {fileLink, m_home->path(QStringLiteral("jump/../../project/Harbour Lights.xml"))});
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(1));
        const QString other = copySample(m_home->path(QStringLiteral("elsewhere")));
        m_controller->openFiles({m_home->path(QStringLiteral("jump/../Harbour Lights.xml"))});
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(2));
        DocumentWindow *const window = m_controller->documentWindows().back();
        QCOMPARE(QFileInfo(window->path()).canonicalFilePath(), QFileInfo(other).canonicalFilePath());
        QTRY_COMPARE(window->state(), DocumentWindow::State::Ready);

        // Nor is it overwritten from another window.
        const QByteArray before = contentOf(m_path);
        window->toolbarMarkers();
        QVERIFY(editCell(*window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        QVERIFY(!saves(*window, fileLink));
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->informativeText().contains(QStringLiteral("another window")));
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QCOMPARE(contentOf(m_path), before);
        QVERIFY(saves(*window, m_home->path(QStringLiteral("jump/../Harbour Lights.xml"))));
        // Two cannot be saved to one name at once.
        DocumentWindow *const first = m_controller->documentWindows().front();
        const QString same = m_home->path(QStringLiteral("project/Same.xml"));
        QSignalSpy saved(first, &DocumentWindow::saved);
        first->saveTo(same);
        QVERIFY(!saves(*window, same));
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(saved.at(0).at(0).toBool());
        QVERIFY(saves(*first, m_path) && QFile::remove(same) && saves(*window, same));
        QVERIFY(saves(*window, other));
        first->close();
        QTRY_COMPARE(m_controller->documentWindows().size(), std::size_t(1));
        QVERIFY(saves(*window, fileLink));
        QVERIFY(contentOf(m_path).contains("<name>New</name>"));
    }

    void aSecondStartPassesItsFilesOn()
    {
        SingleInstance first;
        QVERIFY(!first.passOn({}));
        start();
        connect(&first, &SingleInstance::filesPassed, m_controller.get(), &AppController::startedAgain);
        QSignalSpy passed(&first, &SingleInstance::filesPassed);
        connect(&first, &SingleInstance::filesPassed, this, [] { QTest::qWait(300); }); // as windows do
        QProcess second;
        second.setWorkingDirectory(m_home->path(QStringLiteral("project")));
        second.start(program(), {QStringLiteral("Harbour Lights.xml")});
        QTRY_COMPARE_WITH_TIMEOUT(passed.count(), 1, 40000);
        QTRY_COMPARE(second.state(), QProcess::NotRunning);
        QCOMPARE(second.exitCode(), 0);
        QCOMPARE(m_controller->documentWindows().size(), std::size_t(1));
        DocumentWindow *const window = m_controller->currentWindow();
        QCOMPARE(QFileInfo(window->path()).canonicalFilePath(), QFileInfo(m_path).canonicalFilePath());
        // Without files it brings the window to the front.
        window->showMinimized();
        second.start(program(), QStringList());
        QTRY_COMPARE_WITH_TIMEOUT(passed.count(), 2, 40000);
        QVERIFY(!window->isMinimized());
        QTRY_COMPARE(second.state(), QProcess::NotRunning);
        QVERIFY(
            !QFileInfo::exists(m_home->path(QStringLiteral(".local/state/Logs/Orvandel/Vantrell.2.log"))));
    }

    void whatADeadProcessLeftCountsForNothing()
    {
        QProcess first;
        first.start(program(), QStringList());
        const QDir folder(m_home->path(QStringLiteral("run/vantrell")));
        const auto left = [&folder] {
            return folder.entryList({QStringLiteral("*.socket"), QStringLiteral("*.lock")},
                                    QDir::Files | QDir::System);
        };
        QTRY_COMPARE_WITH_TIMEOUT(left().size(), 2, 40000);
        first.kill();
        QVERIFY(first.waitForFinished());
        QCOMPARE(left().size(), 2);
        SingleInstance next;
        QVERIFY(!next.passOn({m_path}));
        QSignalSpy passed(&next, &SingleInstance::filesPassed);
        first.start(program(), {m_path});
        QTRY_COMPARE_WITH_TIMEOUT(passed.count(), 1, 40000);
        QCOMPARE(passed.at(0).at(0).toStringList(), QStringList(m_path));
        QTRY_COMPARE(first.state(), QProcess::NotRunning);
    }

    void qualityControlLoggingKeepsOtherKeys()
    {
        start();
        const QString path = m_home->path(QStringLiteral(".config/com.orvandel.qc.plist"));
        QVERIFY(!AppController::isQCLogging());
        m_controller->prefsToggleQCLogging(true);
        QVERIFY(AppController::isQCLogging());
        QVERIFY(PropertyList::toFile(
            QVariantMap{{QStringLiteral("other"), 3}, {QStringLiteral("logQC"), true}}, path));
        m_controller->prefsToggleQCLogging(false);
        const QVariantMap list = PropertyList::fromFile(path).value().toMap();
        QCOMPARE(list.value(QStringLiteral("other")).toLongLong(), 3);
        QVERIFY(!list.value(QStringLiteral("logQC")).toBool());
    }

    void helpPagesHaveTheirAddresses()
    {
        m_defaults->setValue(QStringLiteral("supportAddress"), QStringLiteral("help:%@/contact"));
        start();
        QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "noteAddress");
        QDesktopServices::setUrlHandler(QStringLiteral("help"), this, "noteAddress");
        m_controller->helpReportBug();
        QVERIFY2(m_address.contains(QStringLiteral("app=halvex&subapp=vantrell")), qPrintable(m_address));
        m_controller->helpSupport(); // an address of the site's own
        QCOMPARE(m_address, QStringLiteral("help:halvex/contact"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
        QDesktopServices::unsetUrlHandler(QStringLiteral("help"));
    }

    void gathersTheLogs()
    {
        start();
        QVLog::appendLog(u"A line to be found");
        QString archive;
        QString failure;
        const auto note = [&](const Result<QString> &result) {
            (result ? archive : failure) = result ? result.value() : result.message();
        };
        Troubleshooting::gatherLogsForAppWithName(QStringLiteral("Vantrell"), m_home->path(), this, note);
        QTRY_VERIFY(!archive.isEmpty());
        const auto log = TaskRunner::run(QStringLiteral("tar"), {QStringLiteral("-xzOf"), archive}, 10000);
        QVERIFY(log && log.value().standardOutput.contains("A line to be found"));
        Troubleshooting::gatherLogsForAppWithName(QStringLiteral("Vantrell"),
                                                  m_home->path(QStringLiteral("no")), this, note);
        QTRY_VERIFY(!failure.isEmpty());
    }

    void withoutADisplayItSaysSo()
    {
        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *const name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(QLatin1String(name));
        for (const bool refuses : {false, true}) {
            if (refuses)
                environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9731"));
            program.setProcessEnvironment(environment);
            program.start(this->program(), {m_path});
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.exitStatus(), QProcess::NormalExit);
            QCOMPARE(program.exitCode(), 1);
            QVERIFY(program.readAllStandardError().contains("vantrell-cli"));
        }
    }

private:
    static QString program()
    {
        return qEnvironmentVariable("VANTRELL_BIN_DIR") + QStringLiteral("/vantrell");
    }
    void start()
    {
        makeProgram();
        if (m_defaults->value(showOpenDialogKey).toLongLong() == 1)
            m_controller->startWindow().show();
    }

    QString m_path;
    QString m_address;
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    TestAppController test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_appcontroller.moc"
