#include "WindowTest.h"

#include "app/AppController.h"
#include "app/Recovery.h"
#include "app/RecoveryPanel.h"
#include "app/StartWindow.h"
#include "document/DocumentJournal.h"
#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "media/PathMapping.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "table/widgets/QVTableView.h"
#include "tests/support/TemporaryHome.h"

#include <QPointer>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>

using namespace vantrell;

namespace
{

/// Whether the message is in bold, wide enough and can be selected.
bool showsAsAlert(const QWidget &window, const QString &message)
{
    const auto labels = window.findChildren<QLabel *>();
    return std::any_of(labels.begin(), labels.end(), [&message](const QLabel *label) {
        return label->text() == message && label->font().bold() && label->width() >= 380 &&
               label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse);
    });
}

} // namespace

/// What becomes of unsaved changes after a crash, and after Revert.
class RecoveryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
        m_defaults->setValue(QStringLiteral("showOpenDialogAtStartup"), 0);
        AppController::startLog();
        m_path = copySample(m_home->path(QStringLiteral("project")));
        start();
    }
    void cleanup()
    {
        end();
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void restoresAtTheNextStart()
    {
        crashAfterTwoEdits();
        start();
        QTRY_VERIFY(panel());
        QCOMPARE(panel()->journals().size(), std::size_t(1));
        QVERIFY(showsAsAlert(*panel(), QStringLiteral("The program ended before the changes to this project "
                                                      "were saved.")));
        const auto *const list = panel()->findChild<QTreeWidget *>();
        QCOMPARE(list->topLevelItem(0)->text(0), QStringLiteral("Harbour Lights.xml"));
        QCOMPARE(list->topLevelItem(0)->text(1), QStringLiteral("2"));
        QCOMPARE(list->topLevelItem(0)->text(3), QStringLiteral("As it was"));
        panel()->restoreSelected();
        QTRY_VERIFY(m_controller->currentWindow());
        ready();
        QVERIFY(!panel());
        QCOMPARE(names().mid(0, 2), (QStringList{QStringLiteral("First"), QStringLiteral("Second")}));
        QVERIFY(m_window->isWindowModified());
        QVERIFY(m_window->message().contains(QStringLiteral("2 unsaved changes were restored.")));
        QCOMPARE(m_window->document()->modifiedSequenceUUIDs(), m_modified);
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(names(), m_names);
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Rename Marker")));
        QVERIFY(saves(*m_window));
        QVERIFY(contentOf(m_path).contains("<name>First</name>"));
        m_window->document()->journal()->finish();
        QVERIFY(journals().isEmpty());
    }

    void offersWhenTheProjectIsOpened()
    {
        crashAfterTwoEdits();
        start({m_path});
        ready();
        QTRY_VERIFY(sheet());
        QCOMPARE(names(), m_names);
        sheet()->reject(); // later
        QTRY_VERIFY(!sheet());
        QVERIFY(!panel());
        QCOMPARE(journals().size(), 1);
        m_window->close();
        QTRY_VERIFY(!m_controller->currentWindow());

        m_controller->openFiles({m_path});
        ready();
        QTRY_VERIFY(sheet());
        sheet()->restoreSelected();
        QTRY_VERIFY(m_window->isWindowModified());
        ready();
        QCOMPARE(names().value(1), QStringLiteral("Second"));
    }

    void restoresOneOfTwo()
    {
        crashAfterTwoEdits();
        const QStringList both{QStringLiteral("left.journal"), QStringLiteral("older.journal")};
        const QDir folder(JournalFolder::standard());
        QVERIFY(QFile::copy(folder.filePath(both[0]), folder.filePath(both[1])));
        start({m_path});
        ready();
        QTRY_VERIFY(sheet());
        QCOMPARE(sheet()->journals().size(), both.size());
        auto *const list = sheet()->findChild<QTreeWidget *>();
        list->clearSelection();
        list->topLevelItem(1)->setSelected(true);
        sheet()->restoreSelected();
        QTRY_VERIFY(m_window->isWindowModified());
        ready();
        QCOMPARE(names().value(1), QStringLiteral("Second"));
        QVERIFY(!sheet() && !visibleBox());
        QVERIFY(journals().contains(both[0]) || journals().contains(both[1])); // offered again
    }

    void discards()
    {
        crashAfterTwoEdits();
        start({m_path});
        ready();
        QTRY_VERIFY(sheet());
        sheet()->discardSelected();
        QVERIFY(press(visibleBox(), QStringLiteral("Discard")));
        QTRY_VERIFY(!sheet());
        QTRY_VERIFY(journals().isEmpty());
        QVERIFY(!m_window->isWindowModified());
        QTRY_COMPARE(QApplication::activeWindow(), m_window);
    }

    void aMissingProjectKeepsItsChanges()
    {
        crashAfterTwoEdits();
        QVERIFY(QFile::rename(m_path, m_path + QStringLiteral(".away")));
        start();
        QTRY_VERIFY(panel());
        QCOMPARE(panel()->findChild<QTreeWidget *>()->topLevelItem(0)->text(3), QStringLiteral("Missing"));
        panel()->restoreSelected();
        QCOMPARE(panel()->journals().size(), std::size_t(1));
        panel()->reject();
        QCOMPARE(journals().size(), 1);
    }

    void keepsNoneWhenSwitchedOff()
    {
        m_defaults->setValue(QStringLiteral("journal"), false);
        open();
        edit(0, "First");
        QVERIFY(!m_window->document()->journal()->isRecording());
        m_window->document()->journal()->finish();
        QVERIFY(journals().isEmpty());
    }

    void closingWithoutSavingRemovesIt()
    {
        open();
        edit(0, "First");
        m_window->document()->journal()->finish();
        QCOMPARE(journals().size(), 1);
        m_window->close();
        QVERIFY(press(visibleBox(), QStringLiteral("Don’t Save")));
        QTRY_VERIFY(journals().isEmpty());
    }

    void revertTellsWhatIsLostAndCanBeUndone()
    {
        open();
        TabPane &markers = m_window->pane(Tab::Markers);
        markers.sortBy(QStringLiteral("name"));
        edit(0, "First");
        edit(1, "Second");
        edit(0, "Third");
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        markers.selectRows({1, 2});
        const QStringList before = names();
        const auto modified = m_window->document()->modifiedSequenceUUIDs();
        const QByteArray file = contentOf(m_path);

        m_window->revert();
        QVERIFY2(visibleBox()->informativeText().startsWith(
                     QStringLiteral("2 changes to 2 markers in 1 sequence will be lost.")) ||
                     visibleBox()->informativeText().startsWith(
                         QStringLiteral("2 changes to 2 markers in 2 sequences will be lost.")),
                 qPrintable(visibleBox()->informativeText()));
        QVERIFY(press(visibleBox(), QStringLiteral("Revert")));
        QTRY_VERIFY(!m_window->isWindowModified());
        ready();
        QVERIFY(!names().contains(QStringLiteral("First")));
        QTRY_VERIFY(journals().filter(QStringLiteral(".journal")).isEmpty());

        // What is done after that is undone first.
        edit(0, "Other");
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        // Another program saves the project.
        m_home->addFile(QStringLiteral("project/Harbour Lights.xml"), file + "\n");
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Revert")));
        QCOMPARE(names(), before);
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows(), (std::vector<std::size_t>{1, 2}));
        QCOMPARE(m_window->document()->modifiedSequenceUUIDs(), modified);
        QVERIFY(m_window->isWindowModified());
        QTRY_COMPARE(journals().filter(QStringLiteral(".journal")).size(), 1);
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Rename Marker")));
        QVERIFY(names().contains(QStringLiteral("Third")));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));

        // Saving notices the other program.
        m_window->save();
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->text().contains(QStringLiteral("was changed by another program")));
        QVERIFY(showsAsAlert(*visibleBox(), visibleBox()->text()));
        QVERIFY(press(visibleBox(), QStringLiteral("Overwrite")));
        QTRY_VERIFY(!m_window->isWindowModified());
        QVERIFY(contentOf(m_path).contains("<name>First</name>"));
        QTRY_VERIFY(journals().isEmpty());
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QVERIFY(!trigger(*m_window, QStringLiteral("Undo")));
    }

    /// The notice of what is missing comes back with the project. It does not while another window has the
    /// file.
    void undoesARevertOfADamagedProject()
    {
        QVERIFY(QFile::resize(m_path, QFileInfo(m_path).size() / 2));
        open();
        const QString notice = m_window->message();
        QVERIFY(notice.contains(QStringLiteral("missing")));
        edit(0, "First");
        m_window->revertWithoutQuestion();
        QTRY_VERIFY(!m_window->isWindowModified());
        ready();
        DocumentWindow *const reverted = m_window;
        reverted->saveTo(m_home->path(QStringLiteral("project/Copy.xml")));
        QTRY_VERIFY(reverted->message().isEmpty());
        m_controller->openFiles({m_path});
        QTRY_VERIFY(m_controller->documentWindows().size() == 2);
        ready();
        QVERIFY(m_window != reverted);
        reverted->undo();
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->informativeText().contains(QStringLiteral("open in another window")));
        QVERIFY(press(visibleBox(), QStringLiteral("OK")) && !reverted->isWindowModified());
        m_window->close();
        QTRY_VERIFY(m_controller->documentWindows().size() == 1);
        reverted->undo();
        QVERIFY(reverted->isWindowModified());
        QCOMPARE(reverted->message(), notice);
        QCOMPARE(reverted->path(), m_path);
        reverted->close();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
    }

    /// Each reverted project takes as much memory as the open one, so one is kept, and none once changes have
    /// been saved.
    void keepsTheLastRevertedProject()
    {
        open();
        const auto revert = [this] {
            QSignalSpy loaded(m_window, &DocumentWindow::loaded);
            m_window->revertWithoutQuestion();
            QTRY_COMPARE(loaded.count(), 1);
            ready();
        };
        edit(0, "First");
        QPointer<QWidget> first = &m_window->pane(Tab::Markers);
        revert();
        QVERIFY(first && m_window->mayUndoRevert());
        edit(0, "Second");
        QPointer<QWidget> second = &m_window->pane(Tab::Markers);
        revert();
        QVERIFY(!first && second && m_window->mayUndoRevert());
        QTRY_COMPARE(journals().size(), 1);
        edit(0, "Third");
        m_window->save();
        QTRY_VERIFY(!m_window->isWindowModified());
        QVERIFY(!second && !m_window->mayUndoRevert());
        QTRY_VERIFY(journals().isEmpty());
        QVERIFY(names().contains(QStringLiteral("Third")));
    }

    /// What was given up with the question stays when the file, damaged by then, is read again without one.
    void keepsRevertedChangesBesideAWholeProject()
    {
        open();
        edit(0, "First");
        const auto revert = [this] {
            QSignalSpy loaded(m_window, &DocumentWindow::loaded);
            m_window->revertWithoutQuestion();
            QTRY_COMPARE(loaded.count(), 1);
            ready();
        };
        revert();
        const QStringList whole = names();
        m_home->addFile(QStringLiteral("project/Harbour Lights.xml"), "<html/>");
        revert();
        revert(); // once more
        QVERIFY(names().isEmpty());
        m_window->undo();
        QVERIFY(!m_window->isWindowModified());
        QCOMPARE(names(), whole);
        m_window->undo();
        QVERIFY(m_window->isWindowModified() && names().contains(QStringLiteral("First")));
    }

    /// What the file has lost meanwhile can be had again, though the project was not edited.
    void undoesARevertToLess_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isLess");
        const QByteArray whole = contentOf(copySample(QDir::tempPath()));
        QTest::newRow("half") << whole.left(whole.size() / 2) << true;
        QTest::newRow("no project") << QByteArray("<html/>") << true;
        QTest::newRow("whole") << whole << false;
    }
    void undoesARevertToLess()
    {
        QFETCH(QByteArray, content);
        QFETCH(bool, isLess);
        open();
        const QStringList before = names();
        m_home->addFile(QStringLiteral("project/Harbour Lights.xml"), content);
        QSignalSpy loaded(m_window, &DocumentWindow::loaded);
        m_window->revertWithoutQuestion();
        QTRY_COMPARE(loaded.count(), 1);
        ready();
        QCOMPARE(m_window->mayUndoRevert(), isLess);
        if (isLess)
            m_window->undo();
        QCOMPARE(names(), before);
    }

    /// The open project may be the only copy when the file can no longer be read.
    void staysAfterARevertThatFails_data()
    {
        QTest::addColumn<bool>("isEdited");
        QTest::newRow("edited") << true;
        QTest::newRow("as it was in the file") << false;
    }
    void staysAfterARevertThatFails()
    {
        QFETCH(bool, isEdited);
        open();
        if (isEdited)
            edit(0, "First");
        const QStringList before = names();
        QTRY_COMPARE(journals().size(), isEdited ? 1 : 0);
        const QStringList kept = journals();
        m_home->addFile(QStringLiteral("project/Harbour Lights.xml"), "no project");
        m_window->revertWithoutQuestion();
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->text().contains(QStringLiteral("could not be opened")));
        QVERIFY(visibleBox()->informativeText().contains(QStringLiteral("stays open")));
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QCOMPARE(m_window->isWindowModified(), isEdited);
        QVERIFY(m_window->mayEdit() && !m_window->mayUndoRevert());
        QCOMPARE(names(), before);
        QTRY_COMPARE(journals(), kept);
        // Its files are looked for and its questions asked as before.
        QSignalSpy checked(m_window, &DocumentWindow::mediaChecked);
        PathMappings mappings = PathMappings::stored(*m_defaults);
        mappings.add(QStringLiteral("/from"), QStringLiteral("/to"));
        mappings.store(*m_defaults);
        QTRY_COMPARE(checked.count(), 1);
        edit(1, "Second");
        m_window->close();
        QTRY_VERIFY(visibleBox());
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
        const QString copy = m_home->path(QStringLiteral("project/Copy.xml"));
        m_window->saveTo(copy);
        QTRY_VERIFY(!m_window->isWindowModified());
        QVERIFY(contentOf(copy).contains("<name>Second</name>"));
    }

private:
    void start(const QStringList &paths = {})
    {
        m_controller = std::make_unique<AppController>(*m_defaults);
        m_controller->openFiles(paths);
        m_controller->applicationDidFinishLaunching();
    }
    void end()
    {
        m_controller.reset();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
    }
    void open()
    {
        m_controller->openFiles({m_path});
        ready();
        m_names = names();
    }
    /// Waits for the project, and shows its markers.
    void ready()
    {
        m_window = m_controller->currentWindow();
        QVERIFY(m_window);
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
        m_window->toolbarMarkers();
    }
    void edit(int row, const char *name)
    {
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("name"), QString::fromLatin1(name)));
    }
    /// Leaves a journal as a process does that is killed, and ends the program.
    void crashAfterTwoEdits()
    {
        open();
        edit(0, "First");
        edit(1, "Second");
        edit(m_window->pane(Tab::Markers).model().rowCount() - 1, "Last");
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        m_modified = m_window->document()->modifiedSequenceUUIDs();
        m_window->document()->journal()->finish();
        QCOMPARE(journals().size(), 1);
        const QString folder = JournalFolder::standard();
        const QString kept = m_home->path(QStringLiteral("kept"));
        QVERIFY(QFile::copy(folder + QLatin1Char('/') + journals().at(0), kept));
        end();
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QVERIFY(QFile::copy(kept, folder + QStringLiteral("/left.journal")));
    }

    static QStringList journals() { return QDir(JournalFolder::standard()).entryList(QDir::Files); }
    QStringList names() const { return columnTexts(*m_window, Tab::Markers, QStringLiteral("name")); }
    RecoveryPanel *panel() const { return m_controller->recovery().panel(); }
    /// The panel over the window, or null.
    RecoveryPanel *sheet() const
    {
        auto *const found = m_window->findChild<RecoveryPanel *>();
        return found && found->isVisible() ? found : nullptr;
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    std::unique_ptr<AppController> m_controller;
    DocumentWindow *m_window = nullptr;
    QString m_path;
    QStringList m_names;
    std::optional<QStringList> m_modified;
};

QTEST_MAIN(RecoveryTest)
#include "tst_recovery.moc"
