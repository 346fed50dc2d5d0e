#include "tests/support/CapturedStandardError.h"
#include "tests/table_widgets/PaneProject.h"

#include "markers/widgets/MarkerTableModel.h"
#include "table/widgets/PopUpCell.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>

namespace vantrell
{

/// What a table's owner may watch keys with.
class Watcher : public QObject
{
    Q_OBJECT

public:
    int count = 0;

public Q_SLOTS:
    void note() { ++count; }
};

/// What of a widget is painted while this lives.
class PaintedRegion : public QObject
{
    Q_OBJECT

public:
    explicit PaintedRegion(QWidget &widget) { widget.installEventFilter(this); }

    const QRegion &region() const { return m_region; }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            m_region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }

private:
    QRegion m_region;
};

class TestTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sortByHeader();
    void sortingShowsTheSelectedRow();
    void keepSelection();
    void hideEffectsByKey();
    void watchKeys();
    void contextMenuSelectsOneRow();
    void editTexts_data();
    void editTexts();
    void editFlagOfAllSelected();
    void clickSelectsTheRowThatItEdits();
    void choosePopUps();
    void choosingWhatIsShownChangesNothing_data();
    void choosingWhatIsShownChangesNothing();
    void longTextsAreKeptWhole();
    void arrowTellsTheOrder();
    void editOnlyWhenEnabled();
    void popUpCellsOfAFormerRowAreRepainted();
    void copyRows();
    void moveColumns();
    void filterEffects();

private:
    int marker(const QString &name) { return project().rowOf(Tab::Markers, QStringLiteral("name"), name); }
    PaneProject &project() { return *m_project; }
    QString markerText(const QString &name, const QString &column)
    {
        return project().text(Tab::Markers, marker(name), column);
    }
    void clickHeader(Tab tab, const QString &column);
    void click(const QModelIndex &cell);
    void choose(const QModelIndex &cell, int item);

    std::unique_ptr<PaneProject> m_project;
};

void TestTables::init()
{
    m_project = std::make_unique<PaneProject>();
    QVERIFY(m_project->load());
}

void TestTables::cleanup()
{
    m_project.reset();
}

void TestTables::clickHeader(Tab tab, const QString &column)
{
    QHeaderView *header = project().pane(tab).table().horizontalHeader();
    const int section = project().pane(tab).model().columnOf(column);
    const QPoint point(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                       header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, point);
}

void TestTables::click(const QModelIndex &cell)
{
    QVTableView &table = project().markers.table();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, table.visualRect(cell).center());
}

/// Opens the pop-up cell and chooses.
void TestTables::choose(const QModelIndex &cell, int item)
{
    click(cell);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const QPointer<PopUpCell> list = project().markers.table().findChild<PopUpCell *>();
    QVERIFY(list);
    QTRY_VERIFY(!list || list->view()->isVisible());
    QVERIFY(list);
    list->view()->setCurrentIndex(list->model()->index(item, 0));
    QTest::keyClick(list->view(), Qt::Key_Return);
    QTRY_VERIFY(!project().markers.table().isEditing());
}

void TestTables::sortByHeader()
{
    project().show(Tab::Markers);
    const QString in = QStringLiteral("in");
    QHeaderView *header = project().markers.table().horizontalHeader();
    const auto texts = [&] {
        QStringList list;
        for (int row = 0; row < project().markers.model().rowCount(); ++row)
            list.append(project().text(Tab::Markers, row, in));
        return list;
    };
    clickHeader(Tab::Markers, in);
    QCOMPARE(header->sortIndicatorSection(), project().markers.model().columnOf(in));
    QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    // Those of the sequence that starts at ten hours stand last.
    QCOMPARE(texts().constFirst(), QStringLiteral("00:00:00:00"));
    QVERIFY(texts().constLast().startsWith(QStringLiteral("10:")));
    clickHeader(Tab::Markers, in);
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
    QCOMPARE(texts().constLast(), QStringLiteral("00:00:00:00"));

    clickHeader(Tab::Markers, QStringLiteral("name"));
    QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    QCOMPARE(project().text(Tab::Markers, 0, QStringLiteral("name")), QStringLiteral("Applause"));
    QCOMPARE(project().defaults.string(QStringLiteral("markerSortedColumn")), QStringLiteral("name"));
    const MarkersPane next(project().bench, project().defaults);
    QCOMPARE(next.table().horizontalHeader()->sortIndicatorSection(),
             project().markers.model().columnOf(QStringLiteral("name")));
}

/// A selected row that was in view stays there when it moves.
void TestTables::sortingShowsTheSelectedRow()
{
    project().show(Tab::Markers);
    QVTableView &table = project().markers.table();
    clickHeader(Tab::Markers, QStringLiteral("name"));
    table.resize(table.width(), table.horizontalHeader()->height() + 4 * table.rowHeight(0));
    project().markers.selectRows({0});
    table.setCurrentIndex(table.model()->index(0, 0));
    clickHeader(Tab::Markers, QStringLiteral("name"));
    const std::vector<std::size_t> selected = project().markers.selectedRows();
    QCOMPARE(selected, std::vector<std::size_t>{std::size_t(table.model()->rowCount()) - 1});
    const QRect cell = table.visualRect(table.model()->index(int(selected.front()), 0));
    QVERIFY(table.viewport()->rect().contains(QPoint(1, cell.center().y())));
}

void TestTables::keepSelection()
{
    project().show(Tab::Markers);
    const QStringList names{QStringLiteral("Horn"), QStringLiteral("Opening"), QStringLiteral("Ende")};
    std::vector<std::size_t> rows;
    for (const QString &name : names)
        rows.push_back(std::size_t(marker(name)));
    std::sort(rows.begin(), rows.end());
    project().markers.selectRows(rows);
    const auto selected = [&] {
        QStringList list;
        for (const std::size_t row : project().markers.selectedRows())
            list.append(project().text(Tab::Markers, int(row), QStringLiteral("name")));
        list.sort();
        return list;
    };
    const QStringList all = {names[2], names[0], names[1]};
    clickHeader(Tab::Markers, QStringLiteral("name"));
    QCOMPARE(selected(), all);
    QVERIFY(project().markers.selectedRows() != rows);
    project().show(Tab::Effects);
    QVERIFY(project().markers.selectedRows().empty());
    project().show(Tab::Markers);
    QCOMPARE(selected(), all);
    // Red alone leaves those two.
    project().bench.document().viewState().markerFilter = 1;
    project().bench.markerInventory().changeMarkerFilter();
    QCOMPARE(selected(), (QStringList{names[2], names[1]}));
}

void TestTables::hideEffectsByKey()
{
    project().show(Tab::Effects);
    QVTableView &table = project().effects.table();
    const int count = project().effects.model().rowCount();
    QTest::keyClick(&table, Qt::Key_Delete);
    QCOMPARE(project().effects.model().rowCount(), count);
    project().effects.selectRows({0, 2});
    QCOMPARE(project().bench.document().label(Label::EffectStatus),
             QStringLiteral("%1 items (2 selected)").arg(count));
    QTest::keyClick(&table, Qt::Key_Backspace);
    QCOMPARE(project().effects.model().rowCount(), count - 2);
    QVERIFY(project().effects.selectedRows().empty());
    QCOMPARE(project().bench.document().label(Label::EffectStatus),
             QStringLiteral("%1 items").arg(count - 2));
    QVERIFY(!project().edited);

    project().show(Tab::Markers);
    project().markers.selectRows({0});
    const int markers = project().markers.model().rowCount();
    QTest::keyClick(&project().markers.table(), Qt::Key_Delete);
    QCOMPARE(project().markers.model().rowCount(), markers);
}

void TestTables::watchKeys()
{
    QVTableView table;
    Watcher owner;
    table.setDelegateObject(&owner);
    table.addWatchKeys({u'x', u'y'}, "absent");
    table.addWatchKeys({u'x', 13}, "note");
    QCOMPARE(table.watchDelegate(), &owner);
    {
        CapturedStandardError console;
        QTest::keyClick(&table, Qt::Key_X, Qt::ControlModifier);
        QTRY_VERIFY(console.text().contains("Selector absent doesn't exist"));
    }
    QCOMPARE(owner.count, 1);
    QTest::keyClick(&table, Qt::Key_Return);
    QCOMPARE(owner.count, 2);
    QTest::keyClick(&table, Qt::Key_Y);
    QCOMPARE(owner.count, 2);

    // What the owner handles itself is watched all the same.
    table.setKeyDownHandler([](QVTableView &, QKeyEvent &) { return true; });
    QTest::keyClick(&table, Qt::Key_Return);
    QCOMPARE(owner.count, 3);
}

void TestTables::contextMenuSelectsOneRow()
{
    project().show(Tab::Markers);
    project().markers.selectRows({0, 1, 2});
    QVTableView &table = project().markers.table();
    const QModelIndex cell = project().cell(Tab::Markers, 1, QStringLiteral("name"));
    const QPoint point = table.visualRect(cell).center();
    QVERIFY(table.menuForEvent(point));
    QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{1});
    // There is none below the last row, for it would act on rows elsewhere.
    const QModelIndex last =
        project().cell(Tab::Markers, table.model()->rowCount() - 1, QStringLiteral("name"));
    QVERIFY(!table.menuForEvent(table.visualRect(last).bottomLeft() + QPoint(5, 5)));
    QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{1});
    // Also with a key held that otherwise takes the row out of the selection, or more into it.
    for (const auto key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        project().markers.selectRows({0, 1, 2});
        QTest::mouseClick(table.viewport(), Qt::RightButton, key, point);
        QTest::keyPress(&table, key == Qt::ControlModifier ? Qt::Key_Control : Qt::Key_Shift, key);
        QContextMenuEvent event(QContextMenuEvent::Mouse, point, table.viewport()->mapToGlobal(point), key);
        QCoreApplication::sendEvent(table.viewport(), &event);
        QTest::keyRelease(&table, key == Qt::ControlModifier ? Qt::Key_Control : Qt::Key_Shift);
        QVERIFY(table.menu()->isVisible());
        table.menu()->hide();
        QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{1});
    }
}

void TestTables::editTexts_data()
{
    QTest::addColumn<QString>("column");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::newRow("name") << "comment"
                          << "Terrace & bar"
                          << "Terrace & bar";
    QTest::newRow("in point") << "in"
                              << "01:00:04;00"
                              << "01:00:04;00";
    QTest::newRow("duration") << "out"
                              << "00:00:01;00"
                              << "00:00:01;00";
    QTest::newRow("no duration") << "out"
                                 << "00:00:00;00"
                                 << "00:00:00:00";
}

void TestTables::editTexts()
{
    QFETCH(const QString, column);
    QFETCH(const QString, typed);
    project().show(Tab::Markers);
    const QString name = QStringLiteral("Café du Port");
    const QModelIndex cell = project().cell(Tab::Markers, marker(name), column);
    QVTableView &table = project().markers.table();
    const QPoint point = table.visualRect(cell).center();
    QTest::mouseClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, point);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, Qt::NoModifier, point);
    auto *field = table.findChild<QLineEdit *>();
    QVERIFY(field);
    QCOMPARE(field->selectedText(), project().text(Tab::Markers, cell.row(), column));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!table.isEditing());
    QVERIFY(!project().edited);

    project().markers.editCell(std::size_t(cell.row()), column);
    field = table.findChildren<QLineEdit *>().constLast();
    QTest::keyClicks(field, typed);
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!table.isEditing());
    QCOMPARE(markerText(name, column), project().text(Tab::Markers, cell.row(), column));
    QTEST(markerText(name, column), "shown");
    QVERIFY(project().edited);
}

void TestTables::editFlagOfAllSelected()
{
    project().show(Tab::Markers);
    const QString scoring = QStringLiteral("scoring");
    const int first = marker(QStringLiteral("Opening"));
    const auto row = std::size_t(first);
    project().markers.selectRows({row, row + 1});
    click(project().cell(Tab::Markers, first, scoring));
    QCOMPARE(project().markers.selectedRows(), (std::vector<std::size_t>{row, row + 1}));
    QCOMPARE(project().text(Tab::Markers, first, scoring), QStringLiteral("1"));
    QCOMPARE(project().text(Tab::Markers, first + 1, scoring), QStringLiteral("1"));
    QTest::keyClick(&project().markers.table(), Qt::Key_Space);
    QCOMPARE(project().text(Tab::Markers, first + 1, scoring), QStringLiteral("0"));
}

void TestTables::clickSelectsTheRowThatItEdits()
{
    project().show(Tab::Markers);
    const int horn = marker(QStringLiteral("Horn"));
    project().markers.selectRows({std::size_t(marker(QStringLiteral("Opening")))});
    click(project().cell(Tab::Markers, horn, QStringLiteral("chapter")));
    QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{std::size_t(horn)});
    QCOMPARE(markerText(QStringLiteral("Horn"), QStringLiteral("chapter")), QStringLiteral("1"));
    // A model edit of a row that nobody selected must not change the selected one.
    const QModelIndex other = project().cell(Tab::Markers, 0, QStringLiteral("name"));
    QVERIFY(project().markers.model().setData(other, QStringLiteral("Ebb")));
    QCOMPARE(project().text(Tab::Markers, 0, QStringLiteral("name")), QStringLiteral("Ebb"));
    QVERIFY(marker(QStringLiteral("Horn")) >= 0);

    project().show(Tab::Effects);
    const QModelIndex enabled = project().cell(Tab::Effects, 1, QStringLiteral("enabled"));
    QVERIFY(project().effects.model().setData(enabled, int(Qt::Checked), Qt::CheckStateRole));
    QCOMPARE(project().text(Tab::Effects, 1, QStringLiteral("enabled")), QStringLiteral("1"));
}

void TestTables::choosePopUps()
{
    project().show(Tab::Markers);
    const QString name = QStringLiteral("First light");
    choose(project().cell(Tab::Markers, marker(name), QStringLiteral("color")), 5);
    QCOMPARE(markerText(name, QStringLiteral("color")), QStringLiteral("Blue"));
    choose(project().cell(Tab::Markers, marker(name), QStringLiteral("clip")), 2);
    QCOMPARE(markerText(name, QStringLiteral("clip")), QStringLiteral("Küste bei Nacht (still)"));
    choose(project().cell(Tab::Markers, marker(name), QStringLiteral("sequence")), 3);
    QCOMPARE(markerText(name, QStringLiteral("sequence")), QStringLiteral("Harbour Lights – Reel 1"));
    QCOMPARE(markerText(name, QStringLiteral("clip")), QStringLiteral("(none)"));
    QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{std::size_t(marker(name))});

    // Of several rows the one that was clicked moves.
    const int ende = marker(QStringLiteral("Ende"));
    project().markers.selectRows({0, std::size_t(ende)});
    choose(project().cell(Tab::Markers, ende, QStringLiteral("sequence")), 1);
    QCOMPARE(markerText(QStringLiteral("Ende"), QStringLiteral("sequence")),
             QStringLiteral("Trailer selects"));
    QCOMPARE(project().text(Tab::Markers, 0, QStringLiteral("sequence")), QStringLiteral("(none)"));

    // A marker without a sequence has no clips to choose from.
    click(project().cell(Tab::Markers, marker(QStringLiteral("Tide turns")), QStringLiteral("clip")));
    QVERIFY(!project().markers.table().isEditing());
}

void TestTables::choosingWhatIsShownChangesNothing_data()
{
    QTest::addColumn<QString>("column");
    for (const char *const column : {"color", "sequence", "clip"})
        QTest::newRow(column) << QString::fromLatin1(column);
}

/// A list that opens stands on the item that the cell shows: Return is no choice of another one.
void TestTables::choosingWhatIsShownChangesNothing()
{
    QFETCH(const QString, column);
    project().show(Tab::Markers);
    const QString name = QStringLiteral("First light"); // is on a clip
    const QString before = markerText(name, column);
    const QModelIndex cell = project().cell(Tab::Markers, marker(name), column);
    choose(cell, cell.data(Qt::EditRole).toInt());
    QCOMPARE(markerText(name, column), before);
    QVERIFY(!project().edited);
    if (column != QStringLiteral("color"))
        return;
    // Of several rows those that show another item change.
    const int horn = marker(QStringLiteral("Horn"));
    QVERIFY(markerText(QStringLiteral("Horn"), column) != before);
    std::vector<std::size_t> rows{std::size_t(cell.row()), std::size_t(horn)};
    std::sort(rows.begin(), rows.end());
    project().markers.selectRows(rows);
    choose(cell, cell.data(Qt::EditRole).toInt());
    QCOMPARE(markerText(QStringLiteral("Horn"), column), before);
    QVERIFY(project().edited);
}

void TestTables::longTextsAreKeptWhole()
{
    project().show(Tab::Markers);
    const QString comment = QStringLiteral("comment");
    const QString text = QString(70000, QLatin1Char('x'));
    const QModelIndex cell = project().cell(Tab::Markers, 0, comment);
    QVERIFY(project().markers.model().setData(cell, text));
    project().markers.editCell(0, comment);
    auto *const field = project().markers.table().findChild<QLineEdit *>();
    QVERIFY(field);
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClicks(field, QStringLiteral("y"));
    QTest::keyClick(field, Qt::Key_Return);
    QTRY_VERIFY(!project().markers.table().isEditing());
    QCOMPARE(project().text(Tab::Markers, 0, comment), text + QLatin1Char('y'));
}

/// The rule for all colours is the order of the project, whatever the table was sorted by before.
void TestTables::arrowTellsTheOrder()
{
    project().show(Tab::Markers);
    const QHeaderView *header = project().markers.table().horizontalHeader();
    const int name = project().markers.model().columnOf(QStringLiteral("name"));
    QCOMPARE(header->sortIndicatorSection(), -1);
    clickHeader(Tab::Markers, QStringLiteral("name"));
    QCOMPARE(header->sortIndicatorSection(), name);
    project().bench.markerInventory().populateFilteredMarkerData();
    QCOMPARE(header->sortIndicatorSection(), -1);
    project().bench.document().viewState().markerFilter = 1;
    project().bench.markerInventory().changeMarkerFilter();
    QCOMPARE(header->sortIndicatorSection(), name);
    QCOMPARE(header->sortIndicatorOrder(), Qt::AscendingOrder);
    project().bench.document().viewState().markerFilter = 0;
    project().bench.markerInventory().changeMarkerFilter();
    QCOMPARE(header->sortIndicatorSection(), -1);
    // A click still counts from the one before.
    clickHeader(Tab::Markers, QStringLiteral("name"));
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);

    project().show(Tab::Effects);
    clickHeader(Tab::Effects, QStringLiteral("name"));
    project().bench.effectInventory().populateFilteredEffectData();
    QVERIFY(project().effects.table().horizontalHeader()->sortIndicatorSection() >= 0);
}

void TestTables::editOnlyWhenEnabled()
{
    project().show(Tab::Markers);
    project().markers.setEditingEnabled(false);
    click(project().cell(Tab::Markers, 0, QStringLiteral("chapter")));
    click(project().cell(Tab::Markers, 0, QStringLiteral("color")));
    project().markers.editCell(0, QStringLiteral("name"));
    project().markers.addMarker();
    QVERIFY(!project().markers.table().isEditing());
    QVERIFY(!project().edited);
    project().markers.setEditingEnabled(true);
    const int count = project().markers.model().rowCount();
    project().markers.addMarker();
    QCOMPARE(project().markers.model().rowCount(), count + 1);
    QCOMPARE(project().markers.selectedRows(), std::vector<std::size_t>{std::size_t(count)});
    QVERIFY(project().markers.table().isEditing());
}

/// Their arrows show in the current row alone.
void TestTables::popUpCellsOfAFormerRowAreRepainted()
{
    project().show(Tab::Markers);
    QVTableView &table = project().markers.table();
    const auto setCurrent = [&table](int row) {
        table.selectionModel()->setCurrentIndex(table.model()->index(row, 1), QItemSelectionModel::NoUpdate);
    };
    setCurrent(0);
    QCoreApplication::processEvents();
    const int column = project().markers.model().columnOf(QStringLiteral("sequence"));
    const QRect cell = table.visualRect(table.model()->index(0, column));
    const QImage current = table.viewport()->grab(cell).toImage();
    PaintedRegion painted(*table.viewport());
    setCurrent(2);
    QTRY_VERIFY(painted.region().contains(cell));
    QVERIFY(table.viewport()->grab(cell).toImage() != current);
}

void TestTables::copyRows()
{
    project().show(Tab::Markers);
    project().markers.selectRows({std::size_t(marker(QStringLiteral("Café du Port")))});
    QTest::keyClick(&project().markers.table(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Orange\tCafé du Port\tTerrasse, été 1978\t01:00:02;00\t00:00:03;00\t"
                            "Harbour Lights – Reel 1\t(none)\t1\t0\t0\n"));
}

void TestTables::moveColumns()
{
    QVariantMap field;
    const QString take = QStringLiteral("QVCUSTOM_TAKE");
    field.insert(QStringLiteral("identifier"), take);
    field.insert(QStringLiteral("title"), QStringLiteral("Take"));
    const QString key = QStringLiteral("customMarkerFields");
    project().defaults.setValue(key, QVariantList{field});
    project().bench.markerFields().setupMarkerFields();
    project().show(Tab::Markers);
    QHeaderView *header = project().markers.table().horizontalHeader();
    QCOMPARE(project().markers.columns().constLast(), take);
    QCOMPARE(markerText(QStringLiteral("Tide turns"), take), QStringLiteral("3"));
    header->moveSection(1, 2);
    const auto stored = [&] {
        return project().defaults.value(key).toList().front().toMap().value(QStringLiteral("colIndex"));
    };
    QVERIFY(stored().isNull());
    header->moveSection(10, 3);
    QCOMPARE(stored().toLongLong(), 3);

    header->resizeSection(project().markers.model().columnOf(QStringLiteral("comment")), 333);
    project().markers.saveLayout();
    MarkersPane next(project().bench, project().defaults);
    next.addColumn(markerFieldColumn(take, QStringLiteral("Take")));
    QCOMPARE(next.columns(), project().markers.columns());
    QCOMPARE(next.table().columnWidth(next.model().columnOf(QStringLiteral("comment"))), 333);

    const QFont usual = QApplication::font();
    QFont large = usual;
    large.setPointSizeF(usual.pointSizeF() * 2);
    QApplication::setFont(large);
    const int inLarge = [&] {
        MarkersPane pane(project().bench, project().defaults);
        return pane.table().columnWidth(pane.model().columnOf(QStringLiteral("comment")));
    }();
    QApplication::setFont(usual);
    QVERIFY2(inLarge > 550 && inLarge < 780, qPrintable(QString::number(inLarge)));
}

void TestTables::filterEffects()
{
    project().show(Tab::Effects);
    auto *types = project().effects.findChild<QComboBox *>();
    types->setCurrentIndex(4);
    Q_EMIT types->activated(4);
    QCOMPARE(project().effects.model().rowCount(), 4);
    auto *search = project().effects.findChild<QLineEdit *>();
    QTest::keyClicks(search, QStringLiteral("OUTLINE"));
    QTRY_COMPARE(project().effects.model().rowCount(), 1);
    QTest::keyClicks(search, QStringLiteral("x"));
    QTRY_COMPARE(project().effects.model().rowCount(), 0);
    QVERIFY(project().effects.table().placeholder().contains(QStringLiteral("OUTLINEx")));
    search->clear();
    types->setCurrentIndex(0);
    Q_EMIT types->activated(0);
    QTRY_VERIFY(project().effects.model().rowCount() > 10);
    const int hidden = project().effects.model().rowCount();
    project().effects.findChild<QCheckBox *>()->click();
    QVERIFY(project().effects.model().rowCount() > hidden);
}

} // namespace vantrell

QTEST_MAIN(vantrell::TestTables)
#include "tst_tables.moc"
