#include "ProgramTest.h"

#include "app/AboutPanel.h"
#include "app/SampleProject.h"
#include "app/StartWindow.h"
#include "document/MyDocument.h"
#include "document/widgets/NoticeBar.h"
#include "document/widgets/ProgressSheet.h"
#include "markers/MarkerInventory.h"
#include "markers/widgets/MarkerAddSheet.h"
#include "markers/widgets/MarkerOffsetSheet.h"
#include "markers/widgets/MarkersPane.h"
#include "support/desktop/Workspace.h"
#include "support/widgets/WrappedLabel.h"
#include "table/widgets/QVTableView.h"
#include "workbench/Workbench.h"

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

#include <algorithm>

using namespace vantrell;

/// What a window says where nothing happens, and what must not get lost or in the way.
class FeedbackTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        makeQuietProgram();
        Workspace::setOpenProgram(m_home->path(QStringLiteral("no such program")));
    }
    void cleanup()
    {
        QVERIFY(end());
        Workspace::setOpenProgram(QString());
    }

    void theFooterTellsWhyNothingHappens_data()
    {
        QTest::addColumn<QString>("action");
        QTest::addColumn<QString>("told");
        QTest::newRow("missing, double click") << "double-click Lighthouse"
                                               << "is missing from";
        QTest::newRow("missing, reveal") << "reveal Lighthouse"
                                         << "Media ▸ Relink… finds it";
        QTest::newRow("no program") << "double-click Narration"
                                    << "no program that could open the file";
        QTest::newRow("no file browser") << "reveal Narration"
                                         << "no file browser";
        QTest::newRow("nothing selected") << "open"
                                          << "No file is selected";
        QTest::newRow("nothing to copy") << "copy"
                                         << "no row is selected";
        QTest::newRow("an effect") << "double-click an effect"
                                   << "An effect has nothing to open";
        QTest::newRow("delete, media") << "press Delete in media"
                                       << "Files cannot be removed here";
        QTest::newRow("delete, effects") << "press Delete in effects"
                                         << "no row is selected";
        QTest::newRow("delete, markers") << "press Delete in markers"
                                         << "Ctrl+Delete";
        QTest::newRow("return, box") << "press Return in markers"
                                     << "The space bar";
        QTest::newRow("no clips") << "press F2 in markers"
                                  << "There is no clip to choose";
        QTest::newRow("a marker while busy") << "double-click a marker"
                                             << "until the operation";
        QTest::newRow("no manual") << "manual"
                                   << "There is no program that could show the manual";
    }
    void theFooterTellsWhyNothingHappens()
    {
        QFETCH(QString, action);
        QFETCH(QString, told);
        DocumentWindow &window = open();
        QVERIFY(!footerOf(window).contains(told));
        TabPane &media = window.pane(Tab::Media);
        if (action.startsWith(QStringLiteral("double-click "))) {
            const Tab tab = action.endsWith(QStringLiteral("effect"))   ? Tab::Effects
                            : action.endsWith(QStringLiteral("marker")) ? Tab::Markers
                                                                        : Tab::Media;
            if (tab == Tab::Effects)
                window.toolbarEffects();
            else if (tab == Tab::Markers)
                window.toolbarMarkers();
            if (tab == Tab::Markers)
                window.beginReading({});
            doubleClick(window.pane(tab), tab == Tab::Media ? rowOf(window, action.section(u' ', 1)) : 0,
                        tab == Tab::Media ? QStringLiteral("filename") : QStringLiteral("name"));
        } else if (action.startsWith(QStringLiteral("press "))) {
            if (action.endsWith(QStringLiteral("effects")))
                window.toolbarEffects();
            else if (action.endsWith(QStringLiteral("markers")))
                window.toolbarMarkers();
            TabPane &pane = window.currentPane();
            const QString key = action.section(u' ', 1, 1);
            const QString column =
                key == QStringLiteral("F2") ? QStringLiteral("clip") : QStringLiteral("chapter");
            if (key != QStringLiteral("Delete"))
                pane.table().setCurrentIndex(pane.model().index(0, pane.model().columnOf(column)));
            QTest::keySequence(&pane.table(), QKeySequence(key));
        } else if (action.startsWith(QStringLiteral("reveal "))) {
            media.selectRows({std::size_t(rowOf(window, action.section(u' ', 1)))});
            QVERIFY(triggerOf(media, QStringLiteral("Reveal in File Browser")));
        } else if (action == QStringLiteral("open")) {
            media.selectRows({});
            QVERIFY(triggerOf(media, QStringLiteral("Open")));
        } else if (action == QStringLiteral("copy")) {
            media.selectRows({});
            QVERIFY(trigger(window, QStringLiteral("Copy"), QStringLiteral("Edit")));
        } else {
            m_controller->helpUserManual();
        }
        QTRY_VERIFY2(footerOf(window).contains(told), qPrintable(footerOf(window)));
        if (window.isBusy())
            window.endReading();
    }

    void messagesGoWithTheNextChange_data()
    {
        QTest::addColumn<QString>("change");
        for (const char *const change : {"selection", "edit", "undo"})
            QTest::newRow(change) << QString::fromLatin1(change);
    }
    void messagesGoWithTheNextChange()
    {
        QFETCH(QString, change);
        DocumentWindow &window = open();
        window.toolbarMarkers();
        TabPane &markers = window.pane(Tab::Markers);
        TabPane &media = window.pane(Tab::Media);
        const auto tellsOfMedia = [&media] {
            const auto labels = media.findChildren<WrappedLabel *>();
            return std::any_of(labels.begin(), labels.end(), [](const WrappedLabel *label) {
                return label->whole().contains(QStringLiteral("Nothing was copied"));
            });
        };
        media.copySelection();
        QCoreApplication::processEvents();
        for (const char *command : {"Duplicate", "Remove…"}) {
            QVERIFY(trigger(window, QString::fromUtf8(command)));
            QVERIFY(statusOf(window).contains(QStringLiteral("no row is selected")));
        }
        markers.selectRows({0});
        QVERIFY(tellsOfMedia()); // that was another tab's
        QVERIFY(trigger(window, QStringLiteral("Duplicate")));
        QVERIFY(!tellsOfMedia());
        QCoreApplication::processEvents();
        QVERIFY(statusOf(window).contains(QStringLiteral("1 marker duplicated")));
        if (change == QStringLiteral("selection"))
            markers.selectRows({1});
        else if (change == QStringLiteral("undo"))
            window.undo();
        else
            QVERIFY(markers.model().setData(
                markers.model().index(markers.model().rowCount() - 1,
                                      markers.model().columnOf(QStringLiteral("comment"))),
                QStringLiteral("New"), Qt::EditRole));
        QVERIFY2(!statusOf(window).contains(QStringLiteral("duplicated")), qPrintable(statusOf(window)));
    }

    /// The rows would move away from under the mouse.
    void messagesStayWhileTheMouseIsPressed()
    {
        DocumentWindow &window = open();
        window.toolbarMarkers();
        TabPane &markers = window.pane(Tab::Markers);
        markers.selectRows({0});
        QVERIFY(trigger(window, QStringLiteral("Duplicate")));
        QCoreApplication::processEvents();
        markers.table().scrollToTop();
        const QRect cell = markers.table().visualRect(markers.model().index(2, 1));
        const QPoint place = markers.table().viewport()->mapTo(&window, cell.center());
        QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, place);
        QCOMPARE(markers.selectedRows(), std::vector<std::size_t>{2});
        QVERIFY(statusOf(window).contains(QStringLiteral("duplicated")));
        QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, place);
        QTRY_VERIFY(!statusOf(window).contains(QStringLiteral("duplicated")));
    }

    void theEditMenuOffsets()
    {
        DocumentWindow &window = open();
        window.toolbarMarkers();
        QAction *const offset = commandOf(window, QStringLiteral("Offset…"), QStringLiteral("Edit"));
        QVERIFY(offset);
        const auto isEnabled = [offset] {
            Q_EMIT qobject_cast<QMenu *>(offset->parent())->aboutToShow();
            return offset->isEnabled();
        };
        window.pane(Tab::Markers).selectRows({});
        QVERIFY(!isEnabled());
        window.pane(Tab::Markers).selectRows({2});
        QVERIFY(isEnabled());
        window.beginReading({});
        QVERIFY(!isEnabled());
        window.endReading();
        QVERIFY(isEnabled());
        offset->trigger();
        QVERIFY(window.findChild<MarkerOffsetSheet *>());
        window.findChild<MarkerOffsetSheet *>()->reject();
        window.toolbarEffects();
        QVERIFY(!isEnabled());
    }

    void aLongPathDoesNotWidenTheWindow_data()
    {
        QTest::addColumn<QString>("tab");
        for (const char *const tab : {"media", "effects", "markers"})
            QTest::newRow(tab) << QString::fromLatin1(tab);
    }
    void aLongPathDoesNotWidenTheWindow()
    {
        QFETCH(QString, tab);
        DocumentWindow &window = open();
        if (tab == QStringLiteral("effects"))
            window.toolbarEffects();
        else if (tab == QStringLiteral("markers"))
            window.toolbarMarkers();
        window.resize(640, 480);
        QTest::qWait(0);
        const int width = window.width();
        const QString path = QLatin1Char('/') + QString(300, QLatin1Char('x'));
        TabPane &pane = window.currentPane();
        pane.showMessage(QStringLiteral("“%1” is here").arg(path), path);
        QTest::qWait(0);
        QCOMPARE(window.width(), width);
        QVERIFY(window.minimumSizeHint().width() <= width);
        const auto labels = pane.findChildren<WrappedLabel *>();
        const auto shown = std::find_if(labels.begin(), labels.end(), [&](const WrappedLabel *label) {
            return label->isVisible() && label->whole().contains(path);
        });
        QVERIFY(shown != labels.end());
        QVERIFY((*shown)->text().contains(QStringLiteral("…")) && (*shown)->toolTip().contains(path));
        // Without a path of its own: where the pane shows all other messages.
        pane.showMessage(QStringLiteral("“%1” is here").arg(path));
        QTest::qWait(0);
        QVERIFY(window.width() == width && window.minimumSizeHint().width() <= width);
    }

    void thePathOfTheManualCanBeCopied()
    {
        DocumentWindow &window = open();
        m_controller->helpUserManual();
        for (auto *const button : window.currentPane().findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Copy Path") && button->isVisible())
                button->click();
        }
        const QString copied = QGuiApplication::clipboard()->text();
        QVERIFY2(QFileInfo(copied).isFile() && copied.endsWith(QStringLiteral("index.html")),
                 qPrintable(copied));
    }

    void filePanelsShowTheirColumnsWhole()
    {
        DocumentWindow &window = open();
        const QString folder = QFileInfo(window.path()).path();
        m_home->addFile(QStringLiteral("sample/A rather long name of a list.txt"), QByteArray(123456, 'x'));
        window.importFCPMarkers();
        QFileDialog *const panel = visiblePanel();
        QVERIFY(panel);
        panel->setDirectory(folder);
        auto *const list = panel->findChild<QTreeView *>(QStringLiteral("treeView"));
        QTRY_VERIFY(list->model()->rowCount(list->rootIndex()) > 0);
        const auto isWhole = [list] {
            int right = 0;
            for (int column = 0; column < 4; ++column) {
                if (list->columnWidth(column) <
                    static_cast<const QAbstractItemView *>(list)->sizeHintForColumn(column))
                    return false;
                right += list->columnWidth(column);
            }
            return right <= list->viewport()->width();
        };
        QTRY_VERIFY(isWhole());
        panel->close();
    }

    void theStartWindowTellsToo()
    {
        m_controller->startWindow().show();
        m_controller->helpUserManual();
        QString told;
        for (const QLabel *const label : m_controller->startWindow().findChildren<QLabel *>())
            told += label->isVisible() ? label->text() : QString();
        QVERIFY(told.contains(QStringLiteral("There is no program that could show the manual")));
    }

    /// Saving to another path asks the disk whether that file is open in another window.
    void aSaveWaitsForTheDiskBesideTheAboutPanel()
    {
        DocumentWindow &window = open();
        window.toolbarMarkers();
        QVERIFY(editCell(window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        std::function<void(bool)> answer;
        window.setFindOpen(
            [&answer](const QString &, bool, const std::function<void(bool)> &found) { answer = found; });
        window.activateWindow();
        m_controller->showAboutDialog();
        const QString path = m_home->path(QStringLiteral("other.xml"));
        QSignalSpy saved(&window, &DocumentWindow::saved);
        window.saveTo(path);
        QVERIFY(window.isBusy());
        auto *const sheet = window.findChild<ProgressSheet *>();
        QTRY_VERIFY(sheet->isVisible());
        Q_EMIT sheet->cancelled();
        QCOMPARE(saved.takeFirst().at(0).toBool(), false);
        answer(false); // too late
        QVERIFY(!window.isBusy());
        QVERIFY(!QFile::exists(path));

        window.saveTo(path);
        answer(true);
        QTRY_VERIFY(visibleBox());
        QVERIFY(visibleBox()->informativeText().contains(QStringLiteral("another window")));
        QVERIFY(press(visibleBox(), QStringLiteral("OK")));
        QVERIFY(!saved.takeFirst().at(0).toBool());
        window.saveTo(path);
        answer(false);
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(saved.takeFirst().at(0).toBool());
        QVERIFY(contentOf(path).contains("<name>New</name>"));
    }

    /// What was typed into a sheet or panel is not lost because another window began something meanwhile.
    void answersWaitForTheOperation_data()
    {
        QTest::addColumn<QString>("question");
        for (const char *const question : {"add", "offset", "save as", "export"})
            QTest::newRow(question) << QString::fromLatin1(question);
    }
    void answersWaitForTheOperation()
    {
        QFETCH(QString, question);
        DocumentWindow &window = open();
        window.toolbarMarkers();
        const std::size_t count = window.document()->markerArray().size();
        const QString in = columnTexts(window, Tab::Markers, QStringLiteral("in")).at(0);
        window.pane(Tab::Markers).selectRows({0});
        const QString path = m_home->path(QStringLiteral("other.txt"));
        if (question == QStringLiteral("add")) {
            window.showMarkerAddDialog();
        } else if (question == QStringLiteral("offset")) {
            static_cast<MarkersPane &>(window.pane(Tab::Markers)).showMarkerOffsetWindow();
        } else if (question == QStringLiteral("save as")) {
            window.saveAs();
        } else {
            window.exportFCPMarkers();
        }
        window.beginReading({});
        if (auto *const sheet = window.findChild<MarkerAddSheet *>()) {
            sheet->accept();
        } else if (auto *const offset = window.findChild<MarkerOffsetSheet *>()) {
            offset->findChild<QLineEdit *>()->setText(QStringLiteral("12"));
            offset->accept();
        } else {
            choosePath(path);
        }
        QTest::qWait(50);
        QVERIFY(!window.document()->isEdited() && !QFile::exists(path) && window.isBusy());
        window.endReading();
        if (question == QStringLiteral("add"))
            QTRY_COMPARE(window.document()->markerArray().size(), count + 1);
        else if (question == QStringLiteral("offset"))
            QTRY_VERIFY(columnTexts(window, Tab::Markers, QStringLiteral("in")).at(0) != in);
        else
            QTRY_VERIFY(!window.isBusy() &&
                        !QDir(m_home->path(QString())).entryList({QStringLiteral("other*")}).isEmpty());
        QVERIFY(!visibleBox());
    }

    /// The question that closing asks is answered while something else has begun.
    void aSaveForClosingWaitsForTheOperation()
    {
        const QPointer<DocumentWindow> window = &open();
        window->toolbarMarkers();
        QVERIFY(editCell(*window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        const QString path = window->path();
        window->close();
        QTRY_VERIFY(visibleBox());
        window->beginReading({});
        QVERIFY(press(visibleBox(), QStringLiteral("Save")));
        QTest::qWait(50);
        QVERIFY(window && window->isBusy() && window->document()->isEdited());
        window->endReading();
        QTRY_VERIFY(!window || !window->isVisible());
        QVERIFY(contentOf(path).contains("<name>New</name>"));
    }

    void answersAreAppliedOneAfterTheOther()
    {
        DocumentWindow &window = open();
        window.toolbarMarkers();
        const QString path = m_home->path(QStringLiteral("other.xml"));
        const QString list = m_home->path(QStringLiteral("other.txt"));
        QSignalSpy saved(&window, &DocumentWindow::saved);
        QSignalSpy exported(&window, &DocumentWindow::markersExported);
        window.beginReading({});
        window.whenIdle([&] { window.saveTo(path); });
        window.whenIdle([&] { window.exportMarkerList(list, MarkerListFormat::fcp); });
        window.endReading();
        QTRY_COMPARE(exported.count(), 1);
        QCOMPARE(saved.count(), 1);
        QVERIFY(saved.takeFirst().at(0).toBool() && exported.takeFirst().at(0).toBool());
        QVERIFY(QFile::exists(path) && QFile::exists(list));
    }

    /// Markers are not listed anew under a question, nor between the answer of the disk and the save.
    void listingWaitsForQuestionsAndSaves()
    {
        DocumentWindow &window = open();
        window.toolbarMarkers();
        QVERIFY(editCell(window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        std::function<void(bool)> answer;
        window.setFindOpen(
            [&answer](const QString &, bool, const std::function<void(bool)> &found) { answer = found; });
        const QString path = m_home->path(QStringLiteral("other.xml"));
        QSignalSpy saved(&window, &DocumentWindow::saved);
        window.saveTo(path);
        QVERIFY(window.isBusy());
        m_defaults->setValue(MarkerInventory::ownOwnersDefault, true);
        answer(false);
        QTRY_COMPARE(saved.count(), 1);
        QVERIFY(saved.takeFirst().at(0).toBool());
        const MarkerInventory &inventory = window.workbench().markerInventory();
        QTRY_VERIFY(inventory.ownerListing() == OwnerListing::Own && window.mayEdit());

        QVERIFY(editCell(window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("Newer")));
        window.close();
        QTRY_VERIFY(visibleBox());
        m_defaults->setValue(MarkerInventory::ownOwnersDefault, false);
        QVERIFY(!window.isBusy());
        QVERIFY(press(visibleBox(), QStringLiteral("Cancel")));
        QTRY_VERIFY(inventory.ownerListing() == OwnerListing::ByPosition && window.mayEdit());
    }

    void eachTabKeepsItsScrollPosition()
    {
        DocumentWindow &window = open();
        window.resize(640, 420);
        QTest::qWait(0);
        std::array<QPoint, 3> positions;
        const auto show = [&window](std::size_t tab) {
            if (tab == 0)
                window.toolbarMedia();
            else if (tab == 1)
                window.toolbarEffects();
            else
                window.toolbarMarkers();
        };
        for (std::size_t tab = 0; tab < 3; ++tab) {
            show(tab);
            const QVTableView &table = window.currentPane().table();
            QTRY_VERIFY(table.verticalScrollBar()->maximum() > 1);
            table.horizontalHeader()->resizeSection(1, 900);
            QTRY_VERIFY(table.horizontalScrollBar()->maximum() > 20);
            table.verticalScrollBar()->setValue(table.verticalScrollBar()->maximum() - 1);
            table.horizontalScrollBar()->setValue(17 + int(tab));
            positions[tab] = {table.horizontalScrollBar()->value(), table.verticalScrollBar()->value()};
        }
        for (std::size_t tab = 0; tab < 3; ++tab) {
            show(tab);
            const QVTableView &table = window.currentPane().table();
            QCOMPARE(QPoint(table.horizontalScrollBar()->value(), table.verticalScrollBar()->value()),
                     positions[tab]);
        }
    }

    void copyTakesTheSelectedTextOfALabel()
    {
        DocumentWindow &window = open();
        window.pane(Tab::Media).selectRows({0});
        window.setNotice(QStringLiteral("Sidecar"));
        auto *const notice = window.findChild<NoticeBar *>()->findChild<QLabel *>();
        QTest::mouseDClick(notice, Qt::LeftButton, {}, QPoint(8, notice->height() / 2));
        QCOMPARE(notice->selectedText(), QStringLiteral("Sidecar"));
        QVERIFY(trigger(window, QStringLiteral("Copy"), QStringLiteral("Edit")));
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Sidecar"));
        // The table has its turn again once it has the focus.
        window.pane(Tab::Media).table().setFocus(Qt::MouseFocusReason);
        QVERIFY(!notice->hasSelectedText());
        QVERIFY(trigger(window, QStringLiteral("Copy"), QStringLiteral("Edit")));
        QVERIFY(QGuiApplication::clipboard()->text().contains(QLatin1Char('\t')));
    }

private:
    DocumentWindow &open()
    {
        const Result<QString> path = SampleProject::prepare(m_home->path(QStringLiteral("sample")));
        if (!path || !m_controller->applicationOpenFile(path.value()))
            qFatal("The sample cannot be opened.");
        DocumentWindow &window = *m_controller->currentWindow();
        if (!QTest::qWaitFor([&window] { return window.state() == DocumentWindow::State::Ready; }, 30000))
            qFatal("The sample is not loaded.");
        return window;
    }
    /// The texts below the table.
    static QString footerOf(const DocumentWindow &window)
    {
        QString text;
        for (const QLabel *const label : window.currentPane().findChildren<QLabel *>())
            text += label->isVisible() ? label->text() + QLatin1Char('\n') : QString();
        return text;
    }
    static int rowOf(const DocumentWindow &window, const QString &name)
    {
        const QStringList names = columnTexts(window, Tab::Media, QStringLiteral("filename"));
        for (int row = 0; row < names.size(); ++row) {
            if (names[row].contains(name))
                return row;
        }
        return -1;
    }
    static void doubleClick(TabPane &pane, int row, const QString &column)
    {
        QVTableView &table = pane.table();
        const QModelIndex index = pane.model().index(row, pane.model().columnOf(column));
        table.scrollTo(index);
        const QPoint place = table.visualRect(index).center();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    }
    static bool triggerOf(const TabPane &pane, const QString &title)
    {
        for (QAction *const action : pane.table().menu()->actions()) {
            if (action->text() == title && action->isEnabled()) {
                action->trigger();
                return true;
            }
        }
        return false;
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    FeedbackTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_feedback.moc"
