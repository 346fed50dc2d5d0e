#include "ProgramTest.h"

#include "app/WindowTitles.h"
#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "markers/widgets/MarkerOverviewPanel.h"
#include "markers/widgets/MarkersPane.h"
#include "markers/widgets/OverviewPopUp.h"
#include "media/MediaKeys.h"
#include "table/widgets/ControlPopUp.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SearchBar.h"
#include "workbench/Workbench.h"

#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QLineEdit>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTest>

using namespace vantrell;

class FindingTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(openSample());
        QVERIFY(QTest::qWaitForWindowActive(m_window));
    }
    void cleanup() { QVERIFY(end()); }

    void everyTabHasASearchField_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("rows");
        QTest::addColumn<QString>("counts");
        QTest::newRow("media") << int(Tab::Media) << "HARBOUR M" << 1 << "1 of 11 files";
        QTest::newRow("effects") << int(Tab::Effects) << "blur" << 3 << "3 of 29 effects";
        QTest::newRow("markers") << int(Tab::Markers) << "quay" << 3 << "3 of 24 markers, 00:00:07:20";
    }
    void everyTabHasASearchField()
    {
        QFETCH(int, tab);
        QFETCH(QString, typed);
        QFETCH(int, rows);
        QFETCH(QString, counts);
        show(Tab(tab));
        TabPane &pane = m_window->pane(Tab(tab));
        const int all = pane.model().rowCount();
        QTest::keyClick(&pane.table(), Qt::Key_F, Qt::ControlModifier);
        QLineEdit &field = bar().field();
        QVERIFY(field.hasFocus());
        QTest::keyClicks(&field, typed);
        QTRY_COMPARE(pane.model().rowCount(), rows);
        QTRY_COMPARE(bar().counts(), counts);
        pane.table().selectAll();
        QTRY_VERIFY(bar().counts().contains(QStringLiteral("selected")));
        QCOMPARE(int(pane.selectedRows().size()), rows);

        // Escape clears the field, and in an empty one goes to the table.
        QTest::keyClick(&field, Qt::Key_Escape);
        QCOMPARE(pane.model().rowCount(), all);
        QVERIFY(field.hasFocus() && field.text().isEmpty());
        QTest::keyClick(&field, Qt::Key_Escape);
        QVERIFY(pane.table().hasFocus());

        // Each tab keeps its search; Return goes to what was found.
        QTest::keyClick(&pane.table(), Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(&field, typed);
        QTest::keyClick(&field, Qt::Key_Return);
        QVERIFY(pane.table().hasFocus());
        QCOMPARE(pane.model().rowCount(), rows);
        show(Tab(tab) == Tab::Markers ? Tab::Effects : Tab::Markers);
        QVERIFY(bar().text().isEmpty());
        show(Tab(tab));
        QCOMPARE(pane.model().rowCount(), rows);
        QTest::keyClicks(&field, QStringLiteral("#"));
        QTRY_COMPARE(pane.model().rowCount(), 0);
        QVERIFY(!pane.table().placeholder().isEmpty());
    }

    /// What was found and selected stays on the screen when all rows show again.
    void selectedRowsStayInPlace()
    {
        show(Tab::Markers);
        TabPane &pane = m_window->pane(Tab::Markers);
        m_window->resize(900, 420);
        QTest::keyClicks(&bar().field(), QStringLiteral("horn"));
        QTRY_COMPARE(pane.model().rowCount(), 2);
        pane.selectRows({1});
        const RowRecordPtr found = pane.model().recordAt(1);
        const int place = pane.table().rowViewportPosition(1);
        bar().clear();
        const std::size_t row = pane.selectedRows().at(0);
        QCOMPARE(pane.model().recordAt(int(row)), found);
        QVERIFY(row > 2);
        QCOMPARE(pane.table().rowViewportPosition(int(row)), place);
    }

    void popUpsNarrowFurther()
    {
        show(Tab::Markers);
        TabPane &markers = m_window->pane(Tab::Markers);
        choose(QStringLiteral("Flag of markers"), QStringLiteral("Chapter"));
        QCOMPARE(names().size(), 4);
        choose(QStringLiteral("Sequence of markers"), QStringLiteral("Harbour Lights – Reel 1"));
        QCOMPARE(names(), QStringList({QStringLiteral("Opening"), QStringLiteral("Café du Port"),
                                       QStringLiteral("Гавань ночью")}));
        choose(QStringLiteral("Color of markers"), QStringLiteral("Orange"));
        QCOMPARE(names(), QStringList({QStringLiteral("Café du Port")}));
        QVERIFY(bar().isNarrowing());
        bar().clear();
        QCOMPARE(names(), QStringList({QStringLiteral("Horn"), QStringLiteral("Café du Port")}));
        QCOMPARE(markers.model().view().list().size(), std::size_t(24));

        show(Tab::Media);
        TabPane &media = m_window->pane(Tab::Media);
        choose(QStringLiteral("State of files"), QStringLiteral("Missing"));
        QCOMPARE(media.model().rowCount(), 11);
        // Sizes beside the counts: of the files on show, and of all.
        for (const RowRecordPtr &file : media.model().view().list())
            file->set(MediaKey::filesize, std::int64_t(1024));
        choose(QStringLiteral("State of files"), QStringLiteral("Any State"));
        QTRY_COMPARE(bar().counts(), QStringLiteral("11 files, 11.00 KB"));
        QTest::keyClicks(&bar().field(), QStringLiteral("HARBOUR M"));
        QTRY_COMPARE(bar().counts(), QStringLiteral("1 of 11 files, 1.00 KB of 11.00 KB"));
        bar().clear();
        choose(QStringLiteral("State of files"), QStringLiteral("Unknown Kind"));
        QCOMPARE(media.model().rowCount(), 0);
        // Of the files that are listed each is used: what plays sound only, too.
        choose(QStringLiteral("State of files"), QStringLiteral("Unused"));
        QTRY_COMPARE(media.table().placeholder(), QStringLiteral("No media file matches the search."));
        QCOMPARE(media.model().rowCount(), 0);
    }

    void theRestFollowsTheSearch()
    {
        show(Tab::Markers);
        TabPane &markers = m_window->pane(Tab::Markers);
        bar().field().setText(QStringLiteral("horn"));
        QTRY_COMPARE(names(), QStringList({QStringLiteral("Horn"), QStringLiteral("Gull over the horn")}));
        QCOMPARE(m_window->workbench().document().tableArray().size(), std::size_t(2));

        // A marker that is added is shown and edited, whatever is searched for.
        QVERIFY(trigger(*m_window, QStringLiteral("Select All")));
        QCOMPARE(markers.selectedRows().size(), std::size_t(2));
        markers.table().setFocus();
        m_window->workbench().markerEditor().addMarker();
        QCOMPARE(names().size(), 3);
        QCOMPARE(markers.selectedRows(), std::vector<std::size_t>{2});
        QVERIFY(markers.table().isEditing());
        QTest::keyClick(markers.table().findChild<QLineEdit *>(), Qt::Key_Escape);
        QTRY_VERIFY(bar().counts().startsWith(QStringLiteral("3 of 25 markers")));
        QTest::keyClicks(&bar().field(), QStringLiteral("o"));
        QTRY_COMPARE(names().size(), 0);
        bar().clear();
        QCOMPARE(names().size(), 25);
        markers.table().setFocus();
        m_window->undo();
        QCOMPARE(names().size(), 24);
    }

    void goesToATimecode()
    {
        show(Tab::Markers);
        TabPane &markers = m_window->pane(Tab::Markers);
        markers.selectRows({15}); // Opening
        markers.scrollToRow(15);
        show(Tab::Effects);
        QTest::keyClick(&m_window->pane(Tab::Effects).table(), Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(m_window->selectedTab(), Tab::Markers);
        QDialog *const sheet = visibleSheet();
        QVERIFY(sheet);
        auto *const sequences = sheet->findChild<QComboBox *>();
        QCOMPARE(sequences->currentText(), QStringLiteral("Harbour Lights – Reel 1"));
        auto *const go = buttonOf(*sheet, QStringLiteral("Go"));
        QVERIFY(go && !go->isEnabled());
        QTest::keyClicks(sheet->findChild<QLineEdit *>(), QStringLiteral("12."));
        const auto labels = sheet->findChildren<QLabel *>();
        QVERIFY(std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
            return label->text() ==
                   QStringLiteral("Timecode 01:00:12;00. Nearest: “Applause” at 01:00:12;12.");
        }));
        QVERIFY(go->isEnabled());
        go->click();
        QCOMPARE(markers.selectedRows(), std::vector<std::size_t>{11});
        QCOMPARE(markers.table().currentIndex().row(), 11);
        QVERIFY(markers.table().hasFocus());

        // Without a marker to go to the window says so.
        bar().field().setText(QStringLiteral("#none"));
        QTRY_COMPARE(names().size(), 0);
        QVERIFY(trigger(*m_window, QStringLiteral("Go to Timecode…")));
        QVERIFY(statusOf(*m_window).contains(QStringLiteral("no marker to go to")));
    }

    /// Without a selected row sheets begin with the sequence that the overview shows.
    void sheetsBeginWithTheSequenceOfTheOverview()
    {
        show(Tab::Markers);
        auto &markers = static_cast<MarkersPane &>(m_window->pane(Tab::Markers));
        const QString reel = QStringLiteral("Harbour Lights – Reel 1");
        const QString opening = columnTexts(*m_window, Tab::Markers, QStringLiteral("in")).at(15);
        QTRY_VERIFY_WITH_TIMEOUT(!markers.overview().isOutdated(), 20000);
        const auto begin = [&](const QString &command, QString &sequence, QString &timecode) {
            QVERIFY(trigger(*m_window, command));
            QDialog *const sheet = visibleSheet();
            QVERIFY(sheet);
            sequence = sheet->findChild<QComboBox *>()->currentText();
            timecode = sheet->findChild<QLineEdit *>()->text();
            sheet->reject();
        };
        QString sequence;
        QString timecode;
        markers.selectRows({15}); // Opening, which the overview follows
        begin(QStringLiteral("Add Marker…"), sequence, timecode);
        QCOMPARE(sequence, reel);
        QCOMPARE(timecode, opening);
        markers.selectRows({});
        markers.scrollToRow(0); // in another sequence
        begin(QStringLiteral("Add Marker…"), sequence, timecode);
        QCOMPARE(sequence, reel);
        QCOMPARE(timecode, QStringLiteral("01:00:00;00"));
        begin(QStringLiteral("Go to Timecode…"), sequence, timecode);
        QCOMPARE(sequence, reel);
        m_defaults->setValue(MarkerOverviewPanel::shownDefault, false);
        begin(QStringLiteral("Add Marker…"), sequence, timecode);
        QVERIFY(sequence != reel);
    }

    /// Pop-ups are wide enough for their titles, and numbers go last when there is little place.
    void theSearchLineFits()
    {
        ControlPopUp popUp(nullptr);
        popUp.addItems({QStringLiteral("All Sequences"), QStringLiteral("Trailer selects")});
        popUp.setCurrentIndex(1);
        popUp.resize(popUp.sizeHint());
        QStyleOptionComboBox option;
        option.initFrom(&popUp);
        const QRect field =
            popUp.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &popUp);
        const QFontMetrics metrics = popUp.fontMetrics();
        QVERIFY(metrics.horizontalAdvance(popUp.currentText()) <= field.width() - metrics.averageCharWidth());

        show(Tab::Markers);
        m_window->resize(1280, 600);
        m_window->currentPane().table().selectAll();
        QTRY_VERIFY(bar().counts().contains(QStringLiteral("24 selected")));
        QTRY_COMPARE(bar().shownCounts(), bar().counts());
        m_window->resize(m_window->minimumSizeHint().expandedTo(m_window->minimumSize()));
        QTRY_COMPARE(bar().shownCounts(), QStringLiteral("24 markers · 24 selected"));
    }

    void sequencesOfOneNameAreToldApart()
    {
        QFile file(copySample(m_home->path(QStringLiteral("twins"))));
        QVERIFY(file.open(QIODevice::ReadWrite));
        const QByteArray xml = file.readAll();
        file.seek(0);
        const QString reel = QStringLiteral("Harbour Lights – Reel 1");
        file.write(QByteArray(xml).replace("Trailer%2025%20fps", reel.toUtf8()));
        file.close();
        m_controller->openFiles({file.fileName()});
        m_window = m_controller->documentWindows().back();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
        show(Tab::Markers);
        auto &markers = static_cast<MarkersPane &>(m_window->pane(Tab::Markers));
        QTRY_VERIFY_WITH_TIMEOUT(!markers.overview().isOutdated(), 20000);

        const QStringList titles{reel + QStringLiteral(" (01:00:00;00 – 01:01:06;02)"),
                                 reel + QStringLiteral(" (10:00:00:00 – 10:00:20:00)")};
        const auto twinsOfPopUps = [&](const QWidget &parent) {
            QList<QStringList> found;
            for (const QComboBox *const popUp : parent.findChildren<QComboBox *>()) {
                QStringList twins;
                for (int item = 0; item < popUp->count(); ++item) {
                    if (popUp->itemText(item).startsWith(reel))
                        twins.append(popUp->itemText(item));
                }
                twins.sort();
                if (!twins.isEmpty())
                    found.append(twins);
            }
            return found;
        };
        QCOMPARE(twinsOfPopUps(markers), QList<QStringList>(2, titles)); // the filter and the overview
        QCOMPARE(markers.overview().popUp().shownTitle(), reel);         // beside its range
        for (const char *const command : {"Go to Timecode…", "Add Marker…", "Export Notes…"}) {
            QVERIFY(trigger(*m_window, QString::fromUtf8(command)));
            QDialog *const sheet = visibleSheet();
            QVERIFY(sheet);
            QCOMPARE(twinsOfPopUps(*sheet), QList<QStringList>{titles});
            sheet->reject();
        }
    }

    void goesToTheNextMarkerOfTheColor()
    {
        show(Tab::Markers);
        TabPane &markers = m_window->pane(Tab::Markers);
        QTest::keyClick(&markers.table(), Qt::Key_Home, Qt::ControlModifier);
        const auto next = [&](Qt::Key key) {
            QTest::keyClick(&markers.table(), key, Qt::ControlModifier | Qt::ShiftModifier);
            const std::vector<std::size_t> rows = markers.selectedRows();
            return rows.size() == 1 ? names().value(qsizetype(rows.front())) : QString();
        };
        QCOMPARE(next(Qt::Key_Down), QStringLiteral("Applause")); // green as the first
        QCOMPARE(next(Qt::Key_Down), QStringLiteral("Carte du port"));
        QCOMPARE(next(Qt::Key_Down), QStringLiteral("Carte du port"));
        QVERIFY(statusOf(*m_window).contains(QStringLiteral("No further marker")));
        QCOMPARE(next(Qt::Key_Up), QStringLiteral("Applause"));
        // Among those that are shown
        bar().field().setText(QStringLiteral("note"));
        QTRY_COMPARE(names().size(), 2);
        markers.selectRows({1});
        markers.scrollToRow(1);
        QCOMPARE(next(Qt::Key_Up), QStringLiteral("Tide turns"));
        show(Tab::Effects);
        QVERIFY(!trigger(*m_window, QStringLiteral("Next of Same Color")));
    }

    void windowsAreListedAndToldApart()
    {
        const QString program = QCoreApplication::applicationName();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Harbour Lights.xml[*] — ") + program);
        const QPoint place = m_window->pos();
        const QString other = copySample(m_home->path(QStringLiteral("b/project2")));
        m_controller->openFiles({other});
        DocumentWindow *const second = m_controller->documentWindows().back();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Harbour Lights.xml[*] — project — ") + program);
        QCOMPARE(second->windowTitle(), QStringLiteral("Harbour Lights.xml[*] — project2 — ") + program);
        QVERIFY((second->pos() - place).manhattanLength() > 20);
        QVERIFY(second->screen()->availableGeometry().contains(second->geometry()));

        QMenu *const menu = windowMenu();
        QVERIFY(menu);
        Q_EMIT menu->aboutToShow();
        QAction *const own = commandOf(*m_window, QStringLiteral("1 Harbour Lights.xml — project"));
        QAction *const theirs = commandOf(*m_window, QStringLiteral("2 Harbour Lights.xml — project2"));
        QVERIFY(own && own->isChecked());
        QVERIFY(theirs && !theirs->isChecked());
        theirs->trigger();
        QTRY_COMPARE(QApplication::activeWindow(), static_cast<QWidget *>(second));

        QTRY_COMPARE_WITH_TIMEOUT(second->state(), DocumentWindow::State::Ready, 40000);
        const QPointer<DocumentWindow> closing(second);
        second->close();
        QCOMPARE(m_window->windowTitle(), QStringLiteral("Harbour Lights.xml[*] — ") + program);
        QTRY_VERIFY(!closing);
        QVERIFY(saves(*m_window, m_home->path(QStringLiteral("project/new.xml"))));
        QCOMPARE(m_window->windowTitle(), QStringLiteral("new.xml[*] — ") + program);
    }

    void foldersTellFilesApart_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QStringList>("folders");
        const auto add = [](const char *name, const char *paths, const char *folders) {
            QTest::newRow(name) << QString::fromLatin1(paths).split(QLatin1Char(' '))
                                << QString::fromLatin1(folders).split(QLatin1Char(' '));
        };
        add("none alike", "/x/a /x/b", " ");
        add("one folder", "/x/a /y/a /y/b", "x y ");
        add("two folders", "/1/x/a /2/x/a /2/y/a", "1/x 2/x y");
        add("one above the other", "/x/a /y/x/a", "x y/x");
        add("the same file", "/x/a /x/a", " ");
        add("at the root", "/a /x/a", " x");
    }
    void foldersTellFilesApart()
    {
        QFETCH(QStringList, paths);
        QTEST(foldersThatTellApart(paths), "folders");
    }

private:
    void show(Tab tab)
    {
        if (tab == Tab::Media)
            m_window->toolbarMedia();
        else if (tab == Tab::Effects)
            m_window->toolbarEffects();
        else
            m_window->toolbarMarkers();
    }
    SearchBar &bar() const { return *m_window->currentPane().findChild<SearchBar *>(); }
    QStringList names() const { return columnTexts(*m_window, Tab::Markers, QStringLiteral("name")); }
    void choose(const QString &popUp, const QString &item)
    {
        for (QComboBox *const box : m_window->currentPane().findChildren<QComboBox *>()) {
            if (box->accessibleName() != popUp)
                continue;
            box->setCurrentIndex(box->findText(item));
            Q_EMIT box->activated(box->currentIndex());
            return;
        }
        QFAIL(qPrintable(popUp));
    }
    QDialog *visibleSheet() const
    {
        for (QDialog *const dialog : m_window->findChildren<QDialog *>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }
    static QPushButton *buttonOf(const QDialog &sheet, const QString &title)
    {
        for (QPushButton *const button : sheet.findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == title)
                return button;
        }
        return nullptr;
    }
    QMenu *windowMenu() const
    {
        for (QMenu *const menu : m_window->menuBar()->findChildren<QMenu *>()) {
            if (menu->title().remove(QLatin1Char('&')) == QStringLiteral("Window"))
                return menu;
        }
        return nullptr;
    }
};

QTEST_MAIN(FindingTest)
#include "tst_finding.moc"
