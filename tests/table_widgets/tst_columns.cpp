#include "tests/table_widgets/PaneProject.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <QTranslator>

#include <memory>

using namespace Qt::StringLiterals;

namespace vantrell
{

/// The columns of the tabs' tables.
class TestColumns : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<PaneProject>();
        QVERIFY(m_project->load());
    }
    void cleanup() { m_project.reset(); }

    /// At a width that has room for all columns, and at one where they have to become narrower.
    void oneColumnTakesTheRest_data()
    {
        QTest::addColumn<int>("tab");
        QTest::addColumn<QString>("column");
        for (const int width : {1000, 1600, 2400}) {
            QTest::addRow("media %d", width) << int(Tab::Media) << u"directory"_s;
            QTest::addRow("effects %d", width) << int(Tab::Effects) << u"name"_s;
            QTest::addRow("markers %d", width) << int(Tab::Markers) << u"comment"_s;
        }
    }
    void oneColumnTakesTheRest()
    {
        QFETCH(const int, tab);
        QFETCH(const QString, column);
        const int width = QString::fromLatin1(QTest::currentDataTag()).section(u' ', 1).toInt();
        TabPane &pane = show(Tab(tab), width);
        QTRY_COMPARE(pane.width(), width);
        const QHeaderView &header = *pane.table().horizontalHeader();
        QTRY_COMPARE(header.length(), pane.table().viewport()->width());
        QVERIFY(!pane.table().horizontalScrollBar()->isVisible());
        // What a window gains goes to that column once all have their widths.
        const int before = widthOf(Tab(tab), column);
        const int others = header.length() - before;
        pane.resize(width + 1000, 600);
        QTRY_COMPARE(header.length(), pane.table().viewport()->width());
        QVERIFY(widthOf(Tab(tab), column) > before);
        if (width >= 2400)
            QCOMPARE(header.length() - widthOf(Tab(tab), column), others);
        for (int i = 0; i < pane.model().columnCount(); ++i)
            QVERIFY2(header.sectionSize(i) >= header.sectionSizeHint(i) ||
                         pane.model().columnAt(i).kind != Column::Kind::CheckBox,
                     qPrintable(pane.model().columnAt(i).identifier));
    }

    void smallestWidthsNeedAScrollBar()
    {
        TabPane &pane = show(Tab::Markers, 500);
        QTRY_VERIFY(pane.table().horizontalScrollBar()->isVisible());
        QVERIFY(timecodeFits());
        const int readable = widthOf(Tab::Markers, u"sequence"_s);
        pane.resize(1000, 600);
        QTRY_VERIFY(!pane.table().horizontalScrollBar()->isVisible());
        QVERIFY(timecodeFits());
        QVERIFY(widthOf(Tab::Markers, u"sequence"_s) < readable);
        // What the user widens stays so, until the window gets another size.
        pane.table().setColumnWidth(columnOf(Tab::Markers, u"name"_s), 900);
        QTRY_VERIFY(pane.table().horizontalScrollBar()->isVisible());
        m_project->bench.document().viewState().selectedTab = Tab::Effects;
        m_project->bench.effectInventory().populateFilteredEffectData();
        QTRY_VERIFY(!pane.table().verticalScrollBar()->isVisible());
        m_project->bench.document().viewState().selectedTab = Tab::Markers;
        m_project->bench.markerInventory().populateFilteredMarkerData();
        QTRY_VERIFY(pane.table().verticalScrollBar()->isVisible());
        QCOMPARE(widthOf(Tab::Markers, u"name"_s), 900);
        pane.resize(1001, 600);
        QTRY_VERIFY(!pane.table().horizontalScrollBar()->isVisible());
    }

    void widthsFollowTheFont()
    {
        show(Tab::Markers, 1600);
        const int usual = widthOf(Tab::Markers, u"in"_s);
        m_project->markers.fitColumn(u"sequence"_s);
        const QFont font = QApplication::font("QTableView");
        QFont large = font;
        large.setPointSizeF(font.pointSizeF() * 2);
        QApplication::setFont(large, "QTableView");
        QApplication::processEvents();
        QTRY_VERIFY(widthOf(Tab::Markers, u"in"_s) > usual * 3 / 2);
        QVERIFY(timecodeFits());
        // As wide in a new window, and back.
        m_project->markers.saveLayout();
        const int wide = widthOf(Tab::Markers, u"in"_s);
        MarkersPane next(m_project->bench, m_project->defaults);
        next.table().ensurePolished(); // takes the font, as when it is shown
        QApplication::processEvents();
        QCOMPARE(next.table().columnWidth(next.model().columnOf(u"in"_s)), wide);
        QApplication::setFont(font, "QTableView");
        QTRY_COMPARE(widthOf(Tab::Markers, u"in"_s), usual);
    }

    /// Widths that were not set give titles of another language their room.
    void usualWidthsFollowTheLanguage()
    {
        struct LongTitles : QTranslator {
            QString translate(const char *, const char *text, const char *, int) const override
            {
                return qstrcmp(text, "Chapter") == 0 ? u"Markierungen von Kapiteln"_s : QString();
            }
            bool isEmpty() const override { return false; }
        };
        TabPane &pane = show(Tab::Markers, 2400);
        const int name = widthOf(Tab::Markers, u"name"_s);
        pane.table().setColumnWidth(columnOf(Tab::Markers, u"name"_s), name + 50);
        pane.saveLayout();
        LongTitles titles;
        QCoreApplication::installTranslator(&titles);
        MarkersPane next(m_project->bench, m_project->defaults);
        QCoreApplication::removeTranslator(&titles);
        const int chapter = next.model().columnOf(u"chapter"_s);
        QVERIFY(next.table().columnWidth(chapter) > widthOf(Tab::Markers, u"chapter"_s));
        QVERIFY(next.table().columnWidth(chapter) >=
                next.table().horizontalHeader()->sectionSizeHint(chapter));
        QCOMPARE(next.table().columnWidth(next.model().columnOf(u"name"_s)), name + 50);
    }

    void dragsOfEdgesAreKept()
    {
        TabPane &pane = show(Tab::Markers, 2400);
        const int name = widthOf(Tab::Markers, u"name"_s);
        const int in = widthOf(Tab::Markers, u"in"_s);
        dragEdge(pane, u"name"_s, 40);
        QTRY_COMPARE(pane.table().horizontalHeader()->length(), pane.table().viewport()->width());
        QCOMPARE(widthOf(Tab::Markers, u"name"_s), name + 40);
        QCOMPARE(widthOf(Tab::Markers, u"in"_s), in);
        // The edge between the comment and the next column stays where it is let go.
        dragEdge(pane, u"comment"_s, -30);
        QTRY_COMPARE(widthOf(Tab::Markers, u"in"_s), in + 30);
        QCOMPARE(pane.table().horizontalHeader()->length(), pane.table().viewport()->width());
        const auto next = std::make_unique<MarkersPane>(m_project->bench, m_project->defaults);
        QCOMPARE(next->table().columnWidth(next->model().columnOf(u"name"_s)), name + 40);
        QCOMPARE(next->table().columnWidth(next->model().columnOf(u"in"_s)), in + 30);
    }

    void hidesColumns()
    {
        TabPane &pane = show(Tab::Markers, 1600);
        const QStringList all = pane.columns();
        const QString copied = (pane.selectRows({0}), pane.selectionText());
        choose(pane, u"Comment"_s);
        choose(pane, u"Scoring"_s);
        QVERIFY(pane.table().isColumnHidden(columnOf(Tab::Markers, u"comment"_s)));
        QCOMPARE(pane.table().horizontalHeader()->length(), pane.table().viewport()->width());
        // For everything else they are there.
        QCOMPARE(pane.columns(), all);
        QCOMPARE(pane.selectionText(), copied);
        // Also when the rows are filtered anew, in the next window, and in one that is open.
        m_project->bench.markerInventory().populateFilteredMarkerData();
        QVERIFY(pane.table().isColumnHidden(columnOf(Tab::Markers, u"comment"_s)));
        MarkersPane next(m_project->bench, m_project->defaults);
        QVERIFY(next.table().isColumnHidden(next.model().columnOf(u"scoring"_s)));
        next.showColumn(u"scoring"_s, true);
        pane.applyDefaultsChange(u"markerColumnLayout"_s);
        QVERIFY(!pane.table().isColumnHidden(columnOf(Tab::Markers, u"scoring"_s)));
        QVERIFY(pane.table().isColumnHidden(columnOf(Tab::Markers, u"comment"_s)));
    }

    void oneColumnStays()
    {
        TabPane &pane = show(Tab::Effects, 1200);
        pane.selectRows({0});
        pane.table().setCurrentIndex(m_project->cell(Tab::Effects, 0, u"sequence"_s));
        for (const QString &column : pane.columns())
            pane.showColumn(column, false);
        QMenu menu;
        pane.fillColumnMenu(menu);
        QStringList shown;
        for (const QAction *const action : menu.actions()) {
            if (action->isChecked()) {
                shown.append(action->text());
                QVERIFY(!action->isEnabled());
            }
        }
        QCOMPARE(shown, QStringList(u"Name"_s));
        QCOMPARE(widthOf(Tab::Effects, u"name"_s), pane.table().viewport()->width());
        QCOMPARE(pane.table().currentIndex().column(), columnOf(Tab::Effects, u"name"_s));
    }

    void resetsColumns()
    {
        TabPane &pane = show(Tab::Markers, 2400);
        const QStringList order = pane.columns();
        const int in = widthOf(Tab::Markers, u"in"_s);
        pane.table().horizontalHeader()->moveSection(3, 0);
        pane.table().setColumnWidth(columnOf(Tab::Markers, u"in"_s), in * 2);
        choose(pane, u"Chapter"_s);
        choose(pane, u"Reset Columns"_s);
        QCOMPARE(pane.columns(), order);
        QCOMPARE(widthOf(Tab::Markers, u"in"_s), in);
        MarkersPane next(m_project->bench, m_project->defaults);
        QCOMPARE(next.columns(), order);
        QVERIFY(!next.table().isColumnHidden(next.model().columnOf(u"chapter"_s)));
    }

    void fitsColumns()
    {
        TabPane &pane = show(Tab::Markers, 2400);
        pane.table().setColumnWidth(columnOf(Tab::Markers, u"name"_s), 60);
        pane.table().setCurrentIndex(m_project->cell(Tab::Markers, 0, u"name"_s));
        choose(pane, u"Fit Column"_s);
        QVERIFY(widthOf(Tab::Markers, u"name"_s) > 120);
        const QFontMetrics metrics = pane.table().fontMetrics();
        for (int row = 0; row < 5; ++row) {
            const QString name = m_project->text(Tab::Markers, row, u"name"_s);
            QVERIFY2(metrics.horizontalAdvance(name) < widthOf(Tab::Markers, u"name"_s), qPrintable(name));
        }
        const int chapter = widthOf(Tab::Markers, u"chapter"_s);
        pane.table().setColumnWidth(columnOf(Tab::Markers, u"chapter"_s), chapter * 3);
        choose(pane, u"Fit All Columns"_s);
        QVERIFY(widthOf(Tab::Markers, u"chapter"_s) <= chapter);
    }

    /// By a right click on a title, and by the keyboard.
    void headerHasAMenu()
    {
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            TabPane &pane = show(tab, 1200);
            Q_EMIT pane.table().horizontalHeader()->customContextMenuRequested({20, 5});
            QVERIFY(visibleMenu());
            visibleMenu()->close();
            QTRY_VERIFY(!visibleMenu());
            QContextMenuEvent key(QContextMenuEvent::Keyboard, {5, 5}, pane.table().mapToGlobal(QPoint(5, 5)),
                                  Qt::ControlModifier);
            QApplication::sendEvent(&pane.table(), &key);
            QVERIFY(visibleMenu());
            QStringList titles;
            for (const QAction *const action : visibleMenu()->actions())
                titles.append(action->text());
            QVERIFY(titles.contains(u"&Reset Columns"_s));
            QCOMPARE(titles.contains(u"Source Timecode"_s), tab == Tab::Media);
            QCOMPARE(titles.contains(u"Marker &Fields…"_s), tab == Tab::Markers);
            visibleMenu()->close();
            QTRY_VERIFY(!visibleMenu());
        }
    }

private:
    TabPane &show(Tab tab, int width)
    {
        m_project->show(tab);
        TabPane &pane = m_project->pane(tab);
        pane.resize(width, 600);
        QApplication::processEvents();
        return pane;
    }
    int columnOf(Tab tab, const QString &column) { return m_project->pane(tab).model().columnOf(column); }
    int widthOf(Tab tab, const QString &column)
    {
        return m_project->pane(tab).table().columnWidth(columnOf(tab, column));
    }
    bool timecodeFits()
    {
        const QFontMetrics metrics = m_project->markers.table().fontMetrics();
        return widthOf(Tab::Markers, u"in"_s) > metrics.horizontalAdvance(u"00:00:00:00"_s) &&
               widthOf(Tab::Markers, u"out"_s) > metrics.horizontalAdvance(u"00:00:00:00"_s);
    }
    /// The command of the menu of columns with that title.
    void choose(TabPane &pane, const QString &title)
    {
        QMenu menu;
        pane.fillColumnMenu(menu);
        for (QAction *const action : menu.actions()) {
            if (action->text().remove(u'&') == title && action->isEnabled()) {
                action->trigger();
                return;
            }
        }
        QFAIL(qPrintable(title));
    }
    static QMenu *visibleMenu() { return qobject_cast<QMenu *>(QApplication::activePopupWidget()); }
    static void dragEdge(TabPane &pane, const QString &column, int by)
    {
        const QHeaderView &header = *pane.table().horizontalHeader();
        const int section = pane.model().columnOf(column);
        const QPoint edge(header.sectionViewportPosition(section) + header.sectionSize(section) - 1, 5);
        QWidget *const widget = header.viewport();
        QTest::mousePress(widget, Qt::LeftButton, {}, edge);
        QMouseEvent move(QEvent::MouseMove, edge + QPoint(by, 0), widget->mapToGlobal(edge + QPoint(by, 0)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(widget, &move);
        QTest::mouseRelease(widget, Qt::LeftButton, {}, edge + QPoint(by, 0));
        QApplication::processEvents();
    }

    std::unique_ptr<PaneProject> m_project;
};

} // namespace vantrell

QTEST_MAIN(vantrell::TestColumns)
#include "tst_columns.moc"
