#include "WindowTest.h"

#include "document/MyDocument.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/ProgressSheet.h"
#include "interchange/widgets/MarkerListImport.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/alerts/QVAlert.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/QVTableView.h"
#include "tests/support/LongSeries.h"
#include "tests/support/NoMemory.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QCheckBox>
#include <QDropEvent>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include <algorithm>
#include <future>

using namespace vantrell;

class TestDocumentWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(*m_defaults));
        QVLog::createNewLog(QStringLiteral("test"), true);
        m_path = copySample(m_home->path(QStringLiteral("project")));
    }
    void cleanup()
    {
        delete m_window;
        QVAlert::closeAll();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVAlert::setPresenter(nullptr);
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void showsOnePaneAtATime()
    {
        make();
        QVERIFY(m_window->open(m_path));
        QVERIFY(m_window->state() == DocumentWindow::State::Ready ||
                !m_window->pane(Tab::Markers).model().isEditingEnabled());
        QTRY_COMPARE(m_window->state(), DocumentWindow::State::Ready);
        QVERIFY(m_window->pane(Tab::Markers).model().isEditingEnabled());
        QCOMPARE(
            m_window->toolbarSelectableItemIdentifiers(),
            QStringList({QStringLiteral("media"), QStringLiteral("effects"), QStringLiteral("markers")}));
        struct Case {
            void (DocumentWindow::*action)();
            const char *identifier;
            std::array<int, 3> rows; // of the three tables
        };
        // Each table has rows only while its pane shows.
        for (const Case &step : {Case{&DocumentWindow::toolbarMarkers, "markers", {0, 0, 24}},
                                 Case{&DocumentWindow::toolbarEffects, "effects", {0, 15, 0}},
                                 Case{&DocumentWindow::toolbarMedia, "media", {11, 0, 0}}}) {
            (m_window->*step.action)();
            QCOMPARE(m_window->selectedToolbarItemIdentifier(), QLatin1String(step.identifier));
            for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
                const int rows = step.rows[std::size_t(tab)];
                QCOMPARE(m_window->pane(tab).model().rowCount(), rows);
                QCOMPARE(m_window->pane(tab).isVisible(), rows > 0);
            }
        }
    }

    void writesEditsIntoTheFile()
    {
        openSample();
        m_window->toolbarMarkers();
        MarkerEditor &editor = m_window->workbench().markerEditor();
        int row = rowOf(Tab::Markers, QStringLiteral("Check grade"));
        QVERIFY(
            editCell(*m_window, Tab::Markers, row, QStringLiteral("name"), QStringLiteral("Grade & <sky>")));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("in"), QStringLiteral("01:00:08:00")));
        // Sequence 3, clip 2: the first "Boat crossing #2"; and back to no clip.
        row = rowOf(Tab::Markers, QStringLiteral("Music in"));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("clip"), 2));
        QCOMPARE(cell(QStringLiteral("Music in"), QStringLiteral("clip")),
                 QStringLiteral("Boat crossing #2"));
        row = rowOf(Tab::Markers, QStringLiteral("Horn"));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("clip"), 3));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("clip"), 0));
        m_window->pane(Tab::Markers)
            .selectRows({std::size_t(rowOf(Tab::Markers, QStringLiteral("Opening")))});
        editor.offsetMarkers(QStringLiteral("30"));
        m_window->pane(Tab::Markers).selectRows({std::size_t(rowOf(Tab::Markers, QStringLiteral("Ende")))});
        pressLater(QStringLiteral("Remove"));
        m_window->removeSelection();
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), 23);
        QVERIFY(m_window->isWindowModified());
        QVERIFY(saves(*m_window));
        QVERIFY(!m_window->isWindowModified());

        reopen();
        m_window->toolbarMarkers();
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), 23);
        QCOMPARE(rowOf(Tab::Markers, QStringLiteral("Ende")), -1);
        const QString in = QStringLiteral("in");
        QCOMPARE(cell(QStringLiteral("Grade & <sky>"), in), QStringLiteral("01:00:08;00"));
        QCOMPARE(cell(QStringLiteral("Opening"), in), QStringLiteral("01:00:01;00"));
        QCOMPARE(cell(QStringLiteral("Music in"), QStringLiteral("clip")),
                 QStringLiteral("Boat crossing #2"));
        QCOMPARE(cell(QStringLiteral("Horn"), QStringLiteral("clip")), QStringLiteral("(none)"));

        m_window->workbench().markerEditor().addMarker();
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), 24);
        QVERIFY(m_window->isWindowModified());
        QVERIFY(saves(*m_window));
        QVERIFY(contentOf(m_path).contains("<name>Marker 1</name>"));
    }

    void switchesEffectsOffAndRemovesThem()
    {
        openSample();
        m_window->toolbarEffects();
        const QStringList states = enabledStates();
        QVERIFY(states.contains(QStringLiteral("Color Corrector 3-way 2")));
        const int row = rowOf(Tab::Effects, QStringLiteral("Color Corrector 3-way"));
        QVERIFY(editCell(*m_window, Tab::Effects, row, QStringLiteral("enabled"), Qt::Unchecked,
                         Qt::CheckStateRole));
        m_window->pane(Tab::Effects)
            .selectRows({std::size_t(rowOf(Tab::Effects, QStringLiteral("Outline Text")))});
        pressLater(QStringLiteral("Remove"));
        m_window->removeSelection();
        QVERIFY(saves(*m_window));
        reopen();
        m_window->toolbarEffects();
        QStringList expected = states;
        expected.removeAll(QStringLiteral("Outline Text 0"));
        expected[expected.indexOf(QStringLiteral("Color Corrector 3-way 2"))] =
            QStringLiteral("Color Corrector 3-way 0");
        QCOMPARE(enabledStates(), expected);
    }

    void keepsSortAndFilterOfATab()
    {
        openSample();
        m_window->toolbarEffects();
        auto *const search = m_window->pane(Tab::Effects).findChild<QLineEdit *>();
        QVERIFY(search);
        QTest::keyClicks(search, QStringLiteral("blur"));
        QTRY_COMPARE(m_window->pane(Tab::Effects).model().rowCount(), 3);
        // What was typed last counts on the next visit; it does not touch the other tab.
        QTest::keyClick(search, Qt::Key_Backspace);
        QTest::keyClicks(search, QStringLiteral("r"));
        m_window->toolbarMarkers();
        const int markers = m_window->pane(Tab::Markers).model().rowCount();
        QTest::qWait(300);
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), markers);
        m_window->toolbarEffects();
        QCOMPARE(m_window->pane(Tab::Effects).model().rowCount(), 3);
    }

    void asksBeforeChangesAreLost_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << "Save" << true << true;
        QTest::newRow("don't save") << "Don’t Save" << true << false;
        QTest::newRow("cancel") << "Cancel" << false << false;
    }
    void asksBeforeChangesAreLost()
    {
        QFETCH(QString, button);
        openSample();
        const QByteArray before = contentOf(m_path);
        m_window->toolbarMarkers();
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed")));
        QSignalSpy closed(m_window, &DocumentWindow::closed);
        QSignalSpy cancelled(m_window, &DocumentWindow::closeCancelled);
        m_window->close();
        QVERIFY(m_window->isVisible());
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), button));
        QTRY_COMPARE(closed.count() + cancelled.count(), 1);
        QTEST(closed.count() == 1, "closes");
        QTEST(contentOf(m_path).contains("Renamed"), "saves");
        QTEST(contentOf(m_path) != before, "saves");
        if (closed.count() == 1)
            QTRY_VERIFY(!m_window);
    }

    void saysWhyItIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("exists");
        QTest::newRow("no file") << QByteArray() << false;
        QTest::newRow("empty") << QByteArray() << true;
        QTest::newRow("no XML") << QByteArray("Just a note.\n") << true;
    }
    void saysWhyItIsEmpty()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, exists);
        const QString path = exists ? m_home->addFile(QStringLiteral("broken.xml"), content)
                                    : m_home->path(QStringLiteral("broken.xml"));
        make();
        m_window->open(path);
        QTRY_COMPARE(m_window->state(), DocumentWindow::State::Failed);
        const QStringList lines = m_window->message().split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QVERIFY(lines.value(0).contains(QStringLiteral("broken.xml")));
        QVERIFY2(lines.value(1).size() > 10, qPrintable(m_window->message()));
        QVERIFY(!saves(*m_window));
        QCOMPARE(QFile::exists(path), exists);
        m_window->close();
        QTRY_VERIFY(!m_window);
    }

    void refusesWithTheReasonAfterAFailedLoad_data()
    {
        QTest::addColumn<QString>("command");
        for (const char *const command :
             {"save", "save as", "import", "export", "export to", "sequences", "print", "report"})
            QTest::newRow(command) << QString::fromLatin1(command);
    }
    void refusesWithTheReasonAfterAFailedLoad()
    {
        QFETCH(QString, command);
        m_path = m_home->addFile(QStringLiteral("broken.xml"), "Just a note.\n");
        const QString list = m_home->addFile(QStringLiteral("list.txt"), "Cue\t01:00:20:00\tV1\tred\tNew\n");
        const QByteArray before = contentOf(list);
        make();
        m_window->open(m_path);
        QTRY_COMPARE(m_window->state(), DocumentWindow::State::Failed);
        const QHash<QString, std::function<void()>> commands{
            {QStringLiteral("save"), [this] { m_window->save(); }},
            {QStringLiteral("save as"), [this] { m_window->saveAs(); }},
            {QStringLiteral("import"), [this] { m_window->importAvidLocators(); }},
            {QStringLiteral("export"), [this] { m_window->exportFCPMarkers(); }},
            {QStringLiteral("export to"), [&] { m_window->exportMarkerList(list, MarkerListFormat::fcp); }},
            {QStringLiteral("sequences"), [this] { m_window->exportChangedSequences(); }},
            {QStringLiteral("print"), [this] { m_window->printDocument(); }},
            {QStringLiteral("report"), [this] { m_window->exportReport(); }}};
        commands[command]();
        QTRY_VERIFY(visibleBox());
        QVERIFY(!visiblePanel());
        const QString reason = visibleBox()->informativeText().remove(QChar(0x2060));
        QVERIFY2(m_window->message().contains(reason), qPrintable(reason));
        QVERIFY2(visibleBox()->informativeText().contains(QStringLiteral("XML")),
                 qPrintable(visibleBox()->informativeText()));
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QCOMPARE(contentOf(list), before);
        QCOMPARE(contentOf(m_path), QByteArray("Just a note.\n"));
        QVERIFY(m_window->workbench().document().isPopulating(Tab::Markers));
    }

    void aFileThatOthersChangedIsAskedAbout_data()
    {
        QTest::addColumn<QString>("button");
        for (const char *const button : {"Cancel", "Overwrite", "Reload", "Save As…"})
            QTest::newRow(button) << QString::fromUtf8(button);
    }
    void aFileThatOthersChangedIsAskedAbout()
    {
        QFETCH(QString, button);
        openSample();
        m_window->toolbarMarkers();
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Mine")));
        QByteArray theirs = contentOf(m_path);
        theirs.replace("<name>Opening</name>", "<name>Theirs</name>");
        m_home->addFile(QStringLiteral("project/Harbour Lights.xml"), theirs);
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        m_window->save();
        QTRY_VERIFY(visibleBox());
        QMessageBox *const box = visibleBox();
        QCOMPARE(box->windowModality(), Qt::WindowModal);
        QCOMPARE(box->defaultButton()->text().remove(QLatin1Char('&')), QStringLiteral("Cancel"));
        QCOMPARE(box->escapeButton(), box->defaultButton());
        QCOMPARE(contentOf(m_path), theirs);
        m_window->save(); // no second one
        QVERIFY(press(box, button));
        if (button == QStringLiteral("Save As…")) {
            QTRY_VERIFY(visiblePanel());
            choosePath(m_home->path(QStringLiteral("project/mine.xml")));
        }
        QTRY_COMPARE(saved.count(), 1);
        const bool isSaved = button == QStringLiteral("Overwrite") || button == QStringLiteral("Save As…");
        QCOMPARE(saved.at(0).at(0).toBool(), isSaved);
        QCOMPARE(contentOf(m_path) == theirs, button != QStringLiteral("Overwrite"));
        QVERIFY(contentOf(m_window->path()).contains(isSaved ? "<name>Mine</name>" : "<name>Theirs</name>"));
        if (button == QStringLiteral("Reload")) {
            QTRY_VERIFY(!m_window->isWindowModified());
            QTRY_COMPARE(m_window->state(), DocumentWindow::State::Ready);
            m_window->toolbarMarkers();
            QTRY_VERIFY(rowOf(Tab::Markers, QStringLiteral("Theirs")) >= 0);
        }
        QCOMPARE(m_window->isWindowModified(), button == QStringLiteral("Cancel"));
        if (button == QStringLiteral("Cancel"))
            return;
        // From now on the file is known as it is.
        m_window->toolbarMarkers();
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Again")));
        QVERIFY(saves(*m_window));
    }

    void aRemovalSaysWhyASaveKeepsIt_data()
    {
        QTest::addColumn<bool>("ofMarkers");
        QTest::newRow("markers") << true;
        QTest::newRow("effects") << false;
    }
    void aRemovalSaysWhyASaveKeepsIt()
    {
        QFETCH(bool, ofMarkers);
        openSample();
        ofMarkers ? m_window->toolbarMarkers() : m_window->toolbarEffects();
        const Tab tab = ofMarkers ? Tab::Markers : Tab::Effects;
        const int rows = m_window->pane(tab).model().rowCount();
        m_window->pane(tab).selectRows({0});
        std::promise<void> mayEnd;
        QString told;
        whenAsked(0, [&](QMessageBox *question) {
            m_window->document()->runInBackground([&mayEnd] { mayEnd.get_future().wait(); }, [] {});
            press(question, QStringLiteral("Remove"));
            whenAsked(0, [&](QMessageBox *box) {
                told = box->informativeText();
                press(box, QStringLiteral("OK"));
            });
        });
        m_window->removeSelection();
        QTRY_VERIFY(!told.isEmpty());
        QVERIFY(told.contains(QStringLiteral("saved")));
        QCOMPARE(m_window->pane(tab).model().rowCount(), rows);
        mayEnd.set_value();
        QTRY_VERIFY(!m_window->document()->isSaving());
        QVERIFY(!m_window->isWindowModified());
    }

    void tellsOfAFileThatIsNoProject_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("root");
        QTest::addColumn<bool>("hasNotes");
        QTest::newRow("drawing") << QByteArray("<svg><sequence/></svg>") << "svg" << false;
        QTest::newRow("fcpxml") << QByteArray("<fcpxml version=\"1.9\"/>") << "fcpxml" << true;
    }
    void tellsOfAFileThatIsNoProject()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, root);
        m_path = m_home->addFile(QStringLiteral("other.xml"), content);
        openSample();
        QVERIFY(m_window->message().contains(root));
        QTEST(m_window->message().contains(QStringLiteral("File ▸ Import Notes…")), "hasNotes");
        QCOMPARE(m_window->pane(Tab::Media).model().rowCount(), 0);
    }

    void tellsOfARepairedFile()
    {
        QByteArray damaged = contentOf(m_path);
        damaged.replace("<name>Opening</name>", "<name>Opening & rest</name>");
        m_path = m_home->addFile(QStringLiteral("damaged.xml"), damaged);
        openSample();
        QVERIFY(m_window->message().contains(QStringLiteral("repaired")));
        m_window->toolbarMarkers();
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed"));
        bool isSheetOnly = false;
        whenAsked(700, [&](QMessageBox *box) {
            isSheetOnly = !m_window->findChild<ProgressSheet *>()->isVisible();
            press(box, QStringLiteral("Cancel"));
        });
        QVERIFY(!saves(*m_window));
        QVERIFY(isSheetOnly);
        QCOMPARE(contentOf(m_path), damaged);
        QVERIFY(!visibleBox()); // the user knows
        pressLater(QStringLiteral("Save"));
        QVERIFY(saves(*m_window));
        QVERIFY(m_window->message().isEmpty());
        // From now on it is a file like any other.
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Again"));
        QVERIFY(saves(*m_window));
        QVERIFY(contentOf(m_path).contains("Again"));
    }

    void standsForTheFileItWasSavedTo()
    {
        openSample();
        const QByteArray before = contentOf(m_path);
        m_window->toolbarMarkers();
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed"));
        const QString other = m_home->path(QStringLiteral("other.xml"));
        QVERIFY(saves(*m_window, other));
        QCOMPARE(contentOf(m_path), before);
        QVERIFY(contentOf(other).contains("Renamed"));
        QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("other.xml")));
        const auto panel = m_window->workbench().markerListExporter().exportFCPMarkers();
        QCOMPARE(panel->proposedName, QStringLiteral("other Markers.txt"));
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Twice"));
        // Where nothing can be written the changes stay unsaved, and the user hears of it.
        QVERIFY(!saves(*m_window, m_home->path(QStringLiteral("missing/other.xml"))));
        QVERIFY(m_window->isWindowModified());
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Save As…")));
        QTRY_VERIFY(visiblePanel());
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        choosePath(m_home->path(QStringLiteral("third.xml")));
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(contentOf(m_home->path(QStringLiteral("third.xml"))).contains("Twice"));
        editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Thrice"));
        m_window->revert();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Revert")));
        QTRY_VERIFY(!m_window->isWindowModified());
        QTRY_COMPARE(m_window->state(), DocumentWindow::State::Ready);
        QTRY_COMPARE(m_window->selectedTab(), Tab::Markers);
        QVERIFY(
            columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).contains(QStringLiteral("Twice")));
    }

    void whatIsBeingTypedCounts_data()
    {
        QTest::addColumn<QString>("command");
        for (const char *const command : {"save", "close", "switch tabs", "new fields"})
            QTest::newRow(command) << QString::fromLatin1(command);
    }
    void whatIsBeingTypedCounts()
    {
        QFETCH(QString, command);
        openSample();
        m_window->toolbarMarkers();
        TabPane &pane = m_window->pane(Tab::Markers);
        pane.editCell(0, QStringLiteral("name"));
        auto *const editor = pane.table().findChild<QLineEdit *>();
        QVERIFY(editor);
        QTest::keyClicks(editor, QStringLiteral("Typed"));
        if (command == QStringLiteral("save")) {
            QVERIFY(saves(*m_window));
            QVERIFY(contentOf(m_path).contains("<name>Typed</name>"));
            QVERIFY(!pane.table().isEditing());
            return;
        }
        if (command == QStringLiteral("close")) {
            m_window->close();
            QTRY_VERIFY(visibleBox());
            QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
        } else if (command == QStringLiteral("switch tabs")) {
            m_window->toolbarMedia();
        } else {
            m_defaults->setValue(QStringLiteral("customMarkerFields"), QVariantList());
        }
        QVERIFY(m_window->isWindowModified());
        QCOMPARE(m_window->document()->markerArray().front()->get(MarkerKey::name), QStringLiteral("Typed"));
    }

    void savesBesideTheWindow_data()
    {
        QTest::addColumn<QString>("meanwhile");
        QTest::addColumn<bool>("isSaved");
        QTest::newRow("finish") << "wait" << true;
        QTest::newRow("give up") << "cancel" << false;
        QTest::newRow("close") << "close" << true;
    }
    void savesBesideTheWindow()
    {
        QFETCH(QString, meanwhile);
        QFETCH(bool, isSaved);
        m_path = largeProject(longWork(1500));
        openSample();
        m_window->toolbarMarkers();
        const QByteArray before = contentOf(m_path);
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed")));
        QSignalSpy saved(m_window, &DocumentWindow::saved);
        QSignalSpy closed(m_window, &DocumentWindow::closed);
        m_window->save();
        QVERIFY(m_window->isBusy());
        QVERIFY(!editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Too late")));
        m_window->revert();
        if (meanwhile == QStringLiteral("cancel")) {
            auto *const sheet = m_window->findChild<ProgressSheet *>();
            Q_EMIT sheet->cancelled();
            if (m_window->isBusy()) // the worker has not noticed yet
                QVERIFY(!sheet->findChild<QPushButton *>()->isEnabled());
        } else if (meanwhile == QStringLiteral("close")) {
            m_window->close();
            QCOMPARE(closed.count(), 0);
        }
        QTRY_COMPARE_WITH_TIMEOUT(saved.count(), 1, 30000);
        QCOMPARE(saved.at(0).at(0).toBool(), isSaved);
        QVERIFY(!visibleBox());
        QCOMPARE(contentOf(m_path).contains("<name>Renamed</name>"), isSaved);
        if (!isSaved) {
            QCOMPARE(contentOf(m_path), before);
            QVERIFY(m_window->isWindowModified());
        }
        if (meanwhile == QStringLiteral("close")) {
            QTRY_COMPARE(closed.count(), 1);
            return;
        }
        QVERIFY(!m_window->isBusy());
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Again")));
    }

    void importsBesideTheWindow()
    {
        openSample();
        m_window->toolbarMarkers();
        const TableModel &model = m_window->pane(Tab::Markers).model();
        const int count = longWork(30000);
        QByteArray rows;
        for (int i = 0; i < count; ++i)
            rows += "Cue " + QByteArray::number(i) + "\t01:00:20:00\tV1\tred\tNew\n";
        const QStringList lists{m_home->addFile(QStringLiteral("bad.txt"), "nothing\n"),
                                m_home->addFile(QStringLiteral("long.txt"), rows)};
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        auto *const sheet = m_window->findChild<ProgressSheet *>();

        m_window->importMarkerLists(lists, MarkerListFormat::avid);
        QVERIFY(m_window->isBusy());
        Q_EMIT sheet->cancelled(); // while it reads
        QCOMPARE(imported.count(), 1);
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QCoreApplication::processEvents();
        QCOMPARE(model.rowCount(), 24);
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(!m_window->isBusy());

        int ticks = 0;
        QTimer clock;
        connect(&clock, &QTimer::timeout, &clock, [&ticks] { ++ticks; });
        clock.start(1);
        m_window->importMarkerLists(lists, MarkerListFormat::avid);
        QTRY_COMPARE_WITH_TIMEOUT(imported.count(), 2, 40000);
        QVERIFY(ticks > 3); // the window was alive
        QCOMPARE(imported.at(1).at(0).value<std::size_t>(), std::size_t(count));
        QCOMPARE(model.rowCount(), 24 + count);
        QCOMPARE(statusOf(*m_window),
                 count == 30000 ? QStringLiteral("30,024 markers. 30,000 markers imported from 2 files.")
                                : QStringLiteral("3,024 markers. 3,000 markers imported from 2 files."));

        QString told;
        connect(&clock, &QTimer::timeout, &clock, [&told] {
            QMessageBox *const box = visibleBox();
            if (!box)
                return;
            told = box->text();
            press(box, QStringLiteral("OK"));
        });
        m_window->importMarkerLists(lists.mid(0, 1), MarkerListFormat::avid);
        QTRY_COMPARE(imported.count(), 3);
        QTRY_COMPARE(told, QStringLiteral("No markers to import"));
        QCOMPARE(model.rowCount(), 24 + count);
    }

    void anImportWithoutMemoryEnds()
    {
        openSample();
        const QString list = m_home->addFile(QStringLiteral("list.txt"), "Cue\t01:00:20:00\tV1\tred\tNew\n");
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        QString told;
        QTimer clock; // the alert runs in an event loop of its own
        connect(&clock, &QTimer::timeout, &clock, [&told] {
            if (QMessageBox *const box = visibleBox()) {
                told = box->text() + QLatin1Char('|') + box->informativeText();
                press(box, QStringLiteral("OK"));
            }
        });
        clock.start(10);
        {
            const NoMemory none(40);
            m_window->importMarkerLists({list}, MarkerListFormat::avid);
            QTRY_COMPARE(imported.count(), 1);
        }
        QCOMPARE(imported.at(0).at(0).value<std::size_t>(), std::size_t(0));
        QTRY_COMPARE(told, QStringLiteral("No markers to import|There is not enough memory to read the "
                                          "markers of the file."));
        QVERIFY(!m_window->isBusy() && !m_window->isWindowModified());
        m_window->importMarkerLists({list}, MarkerListFormat::avid);
        QTRY_COMPARE(imported.count(), 2);
        QCOMPARE(imported.at(1).at(0).value<std::size_t>(), std::size_t(1));
        // Nor does one hang when what follows it throws.
        m_window->importMarkerLists({list}, MarkerListFormat::avid);
        connect(m_window->findChild<MarkerListImport *>(), &MarkerListImport::progressed, m_window,
                [] { throw std::bad_alloc(); });
        QTRY_COMPARE(imported.count(), 3);
        QVERIFY(!m_window->isBusy());
    }

    void anImportIsAskedAboutBadRows()
    {
        openSample(); // its markers are not on show
        const QString list =
            m_home->addFile(QStringLiteral("list.txt"), "One\t01:00:20:00\tV1\tred\tNew\n"
                                                        "cut < 3s\t01:00:21:00\tV1\tred\tNew\n"
                                                        "Two\t01:00:22:00\tV1\tred\tNew\n");
        auto *const sheet = m_window->findChild<ProgressSheet *>();
        bool isSheetOver = true;
        QString told;
        whenAsked(900, [&](QMessageBox *box) {
            isSheetOver = sheet->isVisible();
            told = box->text();
            press(box, QStringLiteral("OK"));
        });
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        m_window->importMarkerLists({list}, MarkerListFormat::avid);
        QTRY_COMPARE(imported.count(), 1);
        QCOMPARE(told, QStringLiteral("1 of 3 rows could not be added"));
        QVERIFY(!isSheetOver);
        QCOMPARE(imported.at(0).at(0).value<std::size_t>(), std::size_t(2));
        QCOMPARE(m_window->selectedTab(), Tab::Markers);
        QCOMPARE(statusOf(*m_window), QStringLiteral("26 markers. 2 of 3 markers imported."));
        QVERIFY(!m_window->isBusy());
    }

    void listsMarkersUnderTheirOwnOwners()
    {
        m_path = m_home->addFile(QStringLiteral("owners.xml"),
                                 "<xmeml><sequence><media><video><track><clipitem><name>A</name><marker/>"
                                 "</clipitem><clipitem><name>B</name><marker/></clipitem></track></video>"
                                 "</media></sequence></xmeml>");
        openSample();
        m_window->toolbarMarkers();
        MyDocument &document = *m_window->document();
        const auto owners = [&document] {
            QStringList names;
            for (const RowRecordPtr &marker : document.markerArray())
                names.append(marker->get(MarkerKey::clipName));
            return names;
        };
        const auto notice = [this]() -> NoticeBar * {
            for (NoticeBar *bar : m_window->findChildren<NoticeBar *>()) {
                if (bar->notice().contains(QStringLiteral("than their own")))
                    return bar;
            }
            return nullptr;
        };
        const QStringList byPosition = owners();
        QVERIFY(notice());
        QVERIFY2(notice()->notice().startsWith(QStringLiteral("1 of 2 markers is listed")),
                 qPrintable(notice()->notice()));
        auto *const box = m_window->pane(Tab::Markers).findChild<QCheckBox *>();
        QVERIFY(!box->isChecked());
        QTest::mouseClick(notice()->findChild<QPushButton *>(), Qt::LeftButton);
        QTRY_VERIFY(!m_window->isBusy() && owners() != byPosition);
        QVERIFY(box->isChecked() && !notice());
        QCOMPARE(owners(), QStringList({QStringLiteral("A"), QStringLiteral("B")}));
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), 2);
        QVERIFY(!m_window->isWindowModified());
        // The next window lists the same way.
        DocumentWindow second(*m_defaults);
        QVERIFY(second.open(m_path));
        QTRY_COMPARE(second.state(), DocumentWindow::State::Ready);
        QStringList inSecond;
        for (const RowRecordPtr &marker : second.document()->markerArray())
            inSecond.append(marker->get(MarkerKey::clipName));
        QCOMPARE(inSecond, owners());
        m_window->pane(Tab::Markers).sortBy(QStringLiteral("name"));
        QTest::mouseClick(box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box->height() / 2));
        QTRY_VERIFY(!m_window->isBusy() && owners() == byPosition);
        QTRY_VERIFY(notice());
        QVERIFY(document.rowView(Tab::Markers).order() == RowView::Order::Sorted);
        QTRY_VERIFY(!second.isBusy());
        QCOMPARE(second.document()->markerArray().at(1)->get(MarkerKey::clipName), byPosition.at(1));
    }

    /// As edits change how many markers are listed under other owners, the notice follows.
    void theNoticeOfOwnersFollowsEdits()
    {
        m_path = m_home->addFile(QStringLiteral("owners.xml"),
                                 "<xmeml><sequence><uuid>U</uuid><name>S</name><media><video><track>"
                                 "<clipitem><name>A</name><marker/></clipitem><clipitem><name>B</name>"
                                 "<marker><name>b</name></marker></clipitem></track></video></media>"
                                 "</sequence></xmeml>");
        openSample();
        m_window->toolbarMarkers();
        const auto bars = m_window->findChildren<NoticeBar *>();
        const auto bar = std::find_if(bars.begin(), bars.end(), [](const NoticeBar *each) {
            return each->notice().contains(QStringLiteral("than their own"));
        });
        QVERIFY(bar != bars.end());
        const auto counts = [bar] { return (*bar)->notice().section(QStringLiteral(" markers"), 0, 0); };
        QCOMPARE(counts(), QStringLiteral("1 of 2"));
        m_window->pane(Tab::Markers).selectRows({1});
        m_window->duplicateSelection();
        QTRY_COMPARE(counts(), QStringLiteral("2 of 3"));
        m_window->undo();
        QTRY_COMPARE(counts(), QStringLiteral("1 of 2"));
        m_window->pane(Tab::Markers).selectRows({1});
        pressLater(QStringLiteral("Remove"));
        m_window->removeSelection();
        QTRY_COMPARE(counts(), QString());
        m_window->undo();
        QTRY_COMPARE(counts(), QStringLiteral("1 of 2"));

        // Dismissed, it comes back for more of them only.
        (*bar)->findChild<QToolButton *>()->click();
        QCOMPARE(counts(), QString());
        const MarkerInventory &inventory = m_window->workbench().markerInventory();
        QVERIFY(m_window->workbench().markerEditor().addMarkerAt(1, {.name = QStringLiteral("own")}));
        QTRY_VERIFY(inventory.listedUnderOthersText().startsWith(QStringLiteral("1 of 3 markers")));
        QCOMPARE(counts(), QString());
        m_window->pane(Tab::Markers).selectRows({1});
        m_window->duplicateSelection();
        m_window->duplicateSelection();
        QTRY_COMPARE(counts(), QStringLiteral("3 of 5"));
    }

    void sortsWhatAnImportHasAdded()
    {
        openSample();
        m_window->toolbarMarkers();
        MyDocument &document = *m_window->document();
        {
            const RowView::Updates updates(document.rowView(Tab::Markers));
            m_window->workbench().markerEditor().addMarkerWithName(QStringLiteral("AAA"), 7, -1, QString(),
                                                                   QStringLiteral("red"));
            m_window->pane(Tab::Markers).sortBy(QStringLiteral("name"));
        }
        QCOMPARE(columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).value(0),
                 QStringLiteral("AAA"));
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), 25);
    }

    void aRevertThatWaitsKeepsTheWindowBusy()
    {
        openSample();
        m_window->toolbarMarkers();
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Renamed")));
        DocumentWindow other(*m_defaults);
        other.show();
        other.open(copySample(m_home->path(QStringLiteral("other"))));
        QTRY_COMPARE(other.state(), DocumentWindow::State::Ready);
        other.toolbarMarkers();
        other.pane(Tab::Markers).selectRows({0});
        bool wasBusy = false;
        whenAsked(0, [&](QMessageBox *box) {
            m_window->revertWithoutQuestion();
            QTimer::singleShot(300, box, [&, box] {
                wasBusy =
                    m_window->isBusy() && m_window->isWindowModified() &&
                    !editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Lost"));
                press(box, QStringLiteral("Cancel"));
            });
        });
        other.removeSelection();
        QVERIFY(wasBusy);
        QTRY_VERIFY(!m_window->isBusy() && !m_window->isWindowModified());
        QTRY_VERIFY(m_window->mayEdit());
    }

    void closingGivesAnImportUp()
    {
        openSample();
        const QString list = m_home->addFile(QStringLiteral("list.txt"), "Cue\t01:00:20:00\tV1\tred\tNew\n");
        m_window->importMarkerLists({list}, MarkerListFormat::avid);
        m_window->close();
        QTRY_VERIFY(!m_window);
    }

    void revertsOnlyToWhatIsThere()
    {
        openSample();
        QVERIFY(QFile::remove(m_path));
        m_window->revert();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QCOMPARE(m_window->state(), DocumentWindow::State::Ready);
        QVERIFY(saves(*m_window));
        QVERIFY(QFile::exists(m_path));
    }

    void closesWhileItLoads_data()
    {
        QTest::addColumn<int>("after"); // milliseconds
        QTest::newRow("at once") << 0;
        QTest::newRow("while it is read") << 120;
        QTest::newRow("later") << 700;
    }
    void closesWhileItLoads()
    {
        QFETCH(int, after);
        make();
        m_window->open(largeProject());
        QTest::qWait(after);
        QElapsedTimer timer;
        timer.start();
        m_window->close();
        QVERIFY(!m_window->isVisible());
        QTRY_VERIFY_WITH_TIMEOUT(!m_window, 1000);
        QVERIFY2(timer.elapsed() < 1000, qPrintable(QString::number(timer.elapsed())));
    }

    void closesWhileItsLoaderAsks()
    {
        const QString project = m_home->addFile(QStringLiteral("Cut.fcp"), "KeyG");
        make();
        m_window->open(project);
        QTRY_VERIFY(visibleBox());
        QCOMPARE(visibleBox()->text(), QStringLiteral("Unable to load project"));
        m_window->close();
        QTRY_VERIFY(!m_window);
        QVERIFY(!visibleBox());
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(5)));
    }

    void closesWhileAnOperationAsks()
    {
        openSample();
        m_window->toolbarMarkers();
        m_window->pane(Tab::Markers).selectRows({0});
        QTimer::singleShot(150, m_window, &QWidget::close);
        m_window->removeSelection(); // returns when the window takes its question away
        QVERIFY(m_window && m_window->isClosing());
        QTRY_VERIFY(!m_window);
    }

    void handsOnDroppedFiles()
    {
        make();
        QSignalSpy dropped(m_window, &DocumentWindow::filesDropped);
        QMimeData data;
        data.setUrls(
            {QUrl::fromLocalFile(m_path), QUrl(QStringLiteral("https://www.orvandel.example/a.xml"))});
        // A source that moves would remove the files.
        QDropEvent moved(QPointF(5, 5), Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &moved);
        QVERIFY(!moved.isAccepted());
        const Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(QPoint(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_window, &enter);
        QVERIFY(enter.isAccepted());
        QDropEvent event(QPointF(5, 5), offered, &data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QCoreApplication::sendEvent(m_window, &event);
        QCOMPARE(event.dropAction(), Qt::CopyAction);
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(dropped.at(0).at(0).toStringList(), QStringList(m_path));
    }

    void remembersItsSize()
    {
        openSample();
        m_window->resize(700, 500);
        m_window->close();
        QTRY_VERIFY(!m_window);
        make();
        QCOMPARE(m_window->size(), QSize(700, 500));
    }

private:
    void make()
    {
        m_window = new DocumentWindow(*m_defaults);
        m_window->show();
    }
    void openSample()
    {
        make();
        m_window->open(m_path);
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
    }
    void reopen()
    {
        m_window->close();
        QTRY_VERIFY(!m_window);
        openSample();
    }

    int rowOf(Tab tab, const QString &name) const
    {
        return int(columnTexts(*m_window, tab, QStringLiteral("name")).indexOf(name));
    }
    QString cell(const QString &name, const QString &column) const
    {
        return columnTexts(*m_window, Tab::Markers, column).value(rowOf(Tab::Markers, name));
    }
    /// "name state" of each effect.
    QStringList enabledStates() const
    {
        const TableModel &model = m_window->pane(Tab::Effects).model();
        QStringList states;
        for (int row = 0; row < model.rowCount(); ++row) {
            const QString name = model.index(row, model.columnOf(QStringLiteral("name"))).data().toString();
            const int state =
                model.index(row, model.columnOf(QStringLiteral("enabled"))).data(Qt::CheckStateRole).toInt();
            states.append(QStringLiteral("%1 %2").arg(name).arg(state));
        }
        return states;
    }

    /// Large enough to take some seconds.
    QString largeProject(int sequences = 5000) const
    {
        QByteArray clip;
        for (int i = 0; i < 40; ++i) {
            clip += "<clipitem id=\"c\">\n  <name>Clip of some length</name>\n  <start>0</start>\n"
                    "  <marker>\n    <name>A marker</name>\n    <in>10</in>\n    <out>-1</out>\n  </marker>\n"
                    "</clipitem>\n";
        }
        QByteArray project = "<xmeml version=\"5\"><project><name>Large</name><children>";
        for (int i = 0; i < sequences; ++i)
            project += "<sequence><uuid>" + QByteArray::number(i) +
                       "</uuid><name>S</name><media><video><track>" + clip +
                       "</track></video></media></sequence>";
        return m_home->addFile(QStringLiteral("large.xml"), project + "</children></project></xmeml>");
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    QString m_path;
    QPointer<DocumentWindow> m_window;
};

QTEST_MAIN(TestDocumentWindow)
#include "tst_documentwindow.moc"
