#include "DialogKeys.h"
#include "ProgramTest.h"

#include "app/Application.h"
#include "app/StartWindow.h"
#include "markers/MarkerKeys.h"
#include "markers/MarkerPresets.h"
#include "markers/widgets/MarkerFieldsSheet.h"
#include "support/alerts/QVAlert.h"
#include "support/files/PropertyList.h"
#include "table/widgets/EntryHint.h"
#include "table/widgets/PopUpCell.h"
#include "table/widgets/QVTableView.h"
#include "workbench/Workbench.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QToolButton>

using namespace vantrell;

class KeyboardTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(openSample());
        m_window->resize(1400, 700);
        m_window->toolbarMarkers();
        m_window->activateWindow();
    }
    void cleanup() { QVERIFY(end()); }

    void menusHaveEachKeyOnce()
    {
        for (const Tab tab : {Tab::Media, Tab::Effects, Tab::Markers}) {
            showTab(tab);
            QCOMPARE(keyFaults(*m_window->menuBar(), m_window->pane(tab), table().menu()).join(u'\n'),
                     QString());
        }
        const StartWindow &start = m_controller->startWindow();
        QCOMPARE(keyFaults(*start.menuBar(), *start.centralWidget(), nullptr).join(u'\n'), QString());
    }

    void sheetsHaveKeysAndNames_data()
    {
        QTest::addColumn<QString>("command");
        for (const char *const command :
             {"Add Marker…", "Marker Fields…", "Create Marker Preset…", "Manage Marker Presets…", "Remove…",
              "Compare with…", "Export Notes…", "Relink…", "Path Mappings…", "Export List…", "Export Report…",
              "Revert to Saved"})
            QTest::newRow(command) << QString::fromUtf8(command);
        QTest::newRow("offset") << QString();
    }
    void sheetsHaveKeysAndNames()
    {
        QFETCH(QString, command);
        select({3, 4});
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("x")));
        select({3, 4});
        bool isSeen = false;
        QStringList found;
        // Some commands wait for the answer.
        QTimer look;
        connect(&look, &QTimer::timeout, this, [&] {
            QDialog *const dialog = visibleDialog();
            if (!dialog || isSeen)
                return;
            isSeen = true;
            found = clashes(textsWithKeys(*dialog)) + buttonsWithoutKey(*dialog) + nameless(*dialog);
            dialog->reject();
        });
        look.start(20);
        if (command.isEmpty())
            QMetaObject::invokeMethod(&m_window->pane(Tab::Markers), "showMarkerOffsetWindow");
        else
            QVERIFY(trigger(*m_window, command));
        QTRY_VERIFY(isSeen);
        QCOMPARE(found.join(QStringLiteral(", ")), QString());
        QTRY_VERIFY(!visibleDialog());
    }

    void tabGoesFromCellToCell()
    {
        table().setFocus();
        const int last = table().model()->columnCount() - 1;
        table().setCurrentIndex(table().model()->index(0, 1));
        key(Qt::Key_Tab);
        QCOMPARE(where(), QPoint(2, 0));
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(where(), QPoint(0, 0));
        QVERIFY(table().hasFocus());
        table().setCurrentIndex(table().model()->index(0, last));
        key(Qt::Key_Tab);
        QCOMPARE(where(), QPoint(0, 1));
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows(), std::vector<std::size_t>{1});
        // As the columns stand.
        table().horizontalHeader()->moveSection(1, 3);
        table().setCurrentIndex(table().model()->index(0, 3));
        key(Qt::Key_Tab);
        QCOMPARE(where(), QPoint(1, 0));
        // Within rows that are selected together they stay so.
        select({0, 1});
        table().selectionModel()->setCurrentIndex(table().model()->index(0, 2),
                                                  QItemSelectionModel::NoUpdate);
        key(Qt::Key_Tab);
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows(), (std::vector<std::size_t>{0, 1}));
        // Out of the table: behind the last cell, before the first one, and from anywhere with Ctrl.
        table().setCurrentIndex(table().model()->index(table().model()->rowCount() - 1, last));
        key(Qt::Key_Tab);
        QVERIFY(!table().hasFocus());
        table().setFocus();
        table().setCurrentIndex(table().model()->index(0, 0));
        key(Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(!table().hasFocus());
        table().setFocus();
        table().setCurrentIndex(table().model()->index(1, 1));
        key(Qt::Key_Tab, Qt::ControlModifier);
        QVERIFY(!table().hasFocus());
        QCOMPARE(where(), QPoint(1, 1));
    }

    void keysEditCells()
    {
        const int name = column("name");
        table().setFocus();
        go(2, name);
        for (const auto begin : {Qt::Key_Return, Qt::Key_F2}) {
            key(begin);
            QVERIFY(table().isEditing());
            QTest::keyClicks(editor(), QStringLiteral("away"));
            QTest::keyClick(editor(), Qt::Key_Escape);
            QTRY_VERIFY(!table().isEditing());
            QVERIFY(table().hasFocus());
            QVERIFY(!m_window->isWindowModified());
        }
        key(Qt::Key_F2);
        QTest::keyClicks(editor(), QStringLiteral("one"));
        QTest::keyClick(editor(), Qt::Key_Tab);
        // On to the comment, which is a text as well.
        QVERIFY(table().isEditing());
        QCOMPARE(where(), QPoint(column("comment"), 2));
        QTest::keyClicks(editor(), QStringLiteral("two"));
        QTest::keyClick(editor(), Qt::Key_Backtab);
        QCOMPARE(where(), QPoint(name, 2));
        QTest::keyClick(editor(), Qt::Key_Backtab);
        // The colour is none: its list does not open.
        QVERIFY(!table().isEditing());
        QVERIFY(table().hasFocus());
        QCOMPARE(where(), QPoint(column("color"), 2));
        QCOMPARE(text(2, "name"), QStringLiteral("one"));
        QCOMPARE(text(2, "comment"), QStringLiteral("two"));
    }

    void theFocusStaysInTheTable_data()
    {
        QTest::addColumn<QString>("cell");
        for (const char *const cell : {"name", "in", "out", "color", "sequence", "clip", "chapter"})
            QTest::newRow(cell) << QString::fromLatin1(cell);
    }
    void theFocusStaysInTheTable()
    {
        QFETCH(QString, cell);
        const int row = rowNamed(QStringLiteral("First light"));
        table().setFocus();
        go(row, m_window->pane(Tab::Markers).model().columnOf(cell));
        if (cell == QStringLiteral("chapter")) {
            key(Qt::Key_Space);
        } else {
            key(Qt::Key_Return);
            if (const QPointer<PopUpCell> list = table().findChild<PopUpCell *>()) {
                QTRY_VERIFY(list && list->view()->isVisible());
                list->view()->setCurrentIndex(
                    list->model()->index(cell == QStringLiteral("sequence") ? 1 : 2, 0));
                QTest::keyClick(list->view(), Qt::Key_Return);
            } else {
                QTest::keyClicks(editor(), QStringLiteral("5"));
                QTest::keyClick(editor(), Qt::Key_Return);
            }
        }
        QTRY_VERIFY(!table().isEditing());
        QVERIFY(m_window->isWindowModified());
        QTRY_COMPARE(m_window->focusWidget(), &table());
        QCOMPARE(table().currentIndex().row(), row);
    }

    void theFocusReturnsFromClickedControls()
    {
        QPushButton *const remove = buttonTitled(QStringLiteral("Remove…"));
        QPushButton *const fields = buttonTitled(QStringLiteral("Fields…"));
        QVERIFY(remove && fields);
        table().setFocus();
        select({3});
        // By a sheet, and by a button that is disabled afterwards.
        QTest::mouseClick(fields, Qt::LeftButton);
        auto *const sheet = m_window->findChild<MarkerFieldsSheet *>();
        QVERIFY(sheet);
        QTRY_COMPARE(m_window->focusWidget(), &table());
        sheet->reject();
        pressLater(QStringLiteral("Remove"));
        QTest::mouseClick(remove, Qt::LeftButton);
        QTRY_VERIFY(!remove->isEnabled());
        QTRY_COMPARE(m_window->focusWidget(), &table());
        // A pop-up too, but not one that the keyboard opens.
        QComboBox *popUp = nullptr;
        for (QComboBox *const box : m_window->currentPane().findChildren<QComboBox *>()) {
            if (box->accessibleName() == QStringLiteral("Flag of markers"))
                popUp = box;
        }
        QVERIFY(popUp);
        const auto closeList = [popUp] {
            QTRY_VERIFY(popUp->view()->isVisible());
            QTest::keyClick(popUp->view(), Qt::Key_Escape);
            QTRY_VERIFY(!popUp->view()->isVisible());
        };
        popUp->setFocus(Qt::TabFocusReason);
        QTest::keyClick(popUp, Qt::Key_Down, Qt::AltModifier);
        closeList();
        QTest::qWait(20);
        QCOMPARE(m_window->focusWidget(), popUp);
        QTest::mousePress(popUp, Qt::LeftButton);
        closeList();
        QTRY_COMPARE(m_window->focusWidget(), &table());
    }

    void theFocusLeavesANoticeForTheTable()
    {
        showTab(Tab::Markers);
        m_window->setNotice(QStringLiteral("Something"));
        const auto buttons = m_window->findChildren<QToolButton *>();
        const auto dismiss = std::find_if(buttons.begin(), buttons.end(), [](const QToolButton *button) {
            return button->isVisible() && button->accessibleName() == QStringLiteral("Dismiss notice");
        });
        QVERIFY(dismiss != buttons.end());
        (*dismiss)->setFocus();
        QTest::keyClick(*dismiss, Qt::Key_Space);
        QVERIFY(!(*dismiss)->isVisible());
        QVERIFY(m_window->pane(Tab::Markers).table().hasFocus());
    }

    void aLineTellsWhatIsTyped()
    {
        table().setFocus();
        go(1, column("in"));
        key(Qt::Key_Return);
        auto *const hint = table().findChild<EntryHint *>();
        QVERIFY(hint && !hint->isVisible());
        QTest::keyClicks(editor(), QStringLiteral("1.."));
        QVERIFY(hint->isVisible());
        QVERIFY(shownIn(*hint).startsWith(QStringLiteral("1.. is 01:01:00")));
        QVERIFY(hint->geometry().top() > editor()->geometry().bottom());
        QVERIFY(table().viewport()->rect().contains(hint->geometry()));
        QTest::keyClicks(editor(), QStringLiteral("x"));
        QVERIFY(shownIn(*hint).contains(QStringLiteral("Only digits")));
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(table().findChildren<EntryHint *>().isEmpty());
        // It also tells how many rows are written.
        select({1, 2});
        table().edit(table().model()->index(1, column("in")));
        QTest::keyClicks(editor(), QStringLiteral("1.."));
        const QString told = shownIn(*table().findChild<EntryHint *>());
        QVERIFY2(told.contains(QStringLiteral(", in all 2 selected rows")), qPrintable(told));
        QTest::keyClick(editor(), Qt::Key_Escape);
        QTRY_VERIFY(table().findChildren<EntryHint *>().isEmpty());
        go(1, column("name"));
        key(Qt::Key_Return);
        QVERIFY(!table().findChild<EntryHint *>());
    }

    void altReturnKeepsTheDuration()
    {
        const int row = rowNamed(QStringLiteral("Café du Port"));
        const QString duration = text(row, "out");
        QVERIFY(duration != QStringLiteral("00:00:00:00"));
        table().setFocus();
        go(row, column("in"));
        // In the cell, by the menu while it is edited, and by the menu alone.
        for (int way = 0; way < 3; ++way) {
            const QString in = QStringLiteral("01:00:0%1;00").arg(4 + way);
            if (way < 2)
                key(Qt::Key_Return);
            else
                QVERIFY(trigger(*m_window, QStringLiteral("Move In, Keep Duration")));
            QTest::keyClicks(editor(), in);
            if (way == 0)
                QTest::keyClick(editor(), Qt::Key_Return, Qt::AltModifier);
            else if (way == 1)
                QVERIFY(trigger(*m_window, QStringLiteral("Move In, Keep Duration")));
            else
                QTest::keyClick(editor(), Qt::Key_Return);
            QTRY_VERIFY(!table().isEditing());
            QCOMPARE(text(row, "in"), in);
            QCOMPARE(text(row, "out"), duration);
        }
        Q_EMIT m_window->menusChanged(); // as an open menu sees it
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Move Marker")));
        QCOMPARE(text(row, "in"), QStringLiteral("01:00:05;00"));
        QCOMPARE(text(row, "out"), duration);
        // Return alone moves the in point only.
        key(Qt::Key_Return);
        QTest::keyClicks(editor(), QStringLiteral("01:00:05;01"));
        QTest::keyClick(editor(), Qt::Key_Return);
        QTRY_VERIFY(!table().isEditing());
        QVERIFY(text(row, "out") != duration);
    }

    /// The first arrow key in a table selects its first row, and Return says or does something in each.
    void firstKeysInEachTable_data()
    {
        QTest::addColumn<Tab>("tab");
        QTest::newRow("media") << Tab::Media;
        QTest::newRow("effects") << Tab::Effects;
        QTest::newRow("markers") << Tab::Markers;
    }
    void firstKeysInEachTable()
    {
        QFETCH(Tab, tab);
        showTab(tab);
        TabPane &pane = m_window->pane(tab);
        table().setFocus();
        QTRY_VERIFY(table().hasFocus());
        const auto message = [&pane] {
            QString texts;
            for (const QLabel *const label : pane.findChildren<QLabel *>())
                texts += label->isVisible() ? label->text() + QLatin1Char('\n') : QString();
            return texts;
        };
        key(Qt::Key_Down);
        QCOMPARE(pane.selectedRows(), std::vector<std::size_t>{0});
        key(Qt::Key_Down);
        QCOMPARE(pane.selectedRows(), std::vector<std::size_t>{1});
        pane.selectRows({});
        const QString before = message();
        key(Qt::Key_Return);
        QVERIFY(message() != before || table().isEditing());
    }

    void duplicatesAndAdds()
    {
        const int count = table().model()->rowCount();
        select({1, 2});
        QVERIFY(trigger(*m_window, QStringLiteral("Duplicate")));
        QCOMPARE(table().model()->rowCount(), count + 2);
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows(),
                 (std::vector<std::size_t>{std::size_t(count), std::size_t(count) + 1}));
        QCOMPARE(text(count, "name"), text(1, "name"));
        QCOMPARE(text(count + 1, "in"), text(2, "in"));

        QVERIFY(trigger(*m_window, QStringLiteral("Add Marker…")));
        QDialog *const sheet = visibleDialog();
        QVERIFY(sheet);
        const auto fields = sheet->findChildren<QLineEdit *>();
        auto *const sequence = sheet->findChildren<QComboBox *>().constFirst();
        sequence->setCurrentIndex(2); // Harbour Lights – Reel 1, from one hour
        QCOMPARE(fields.at(0)->text(), QStringLiteral("01:00:00;00"));
        // All warnings can be read.
        QTest::keyClicks(fields.at(0), QStringLiteral("10:00:99"));
        QCoreApplication::processEvents();
        int notes = 0;
        for (const QLabel *const label : sheet->findChildren<QLabel *>()) {
            if (!label->wordWrap())
                continue;
            ++notes;
            QVERIFY(label->height() >= label->heightForWidth(label->width()));
        }
        QCOMPARE(notes, 2);
        // Nothing is added for a text that is no timecode.
        for (const auto &[in, duration] : {std::pair{"five", ""}, {"..", ""}, {"", ""}, {"5.", "one"}}) {
            fields.at(0)->setText(QString::fromLatin1(in));
            fields.at(1)->setText(QString::fromLatin1(duration));
            QTest::keyClick(sheet, Qt::Key_Return);
            QVERIFY(sheet->isVisible());
        }
        fields.at(1)->clear();
        QTest::keyClicks(fields.at(1), QStringLiteral("1."));
        QTest::keyClick(sheet, Qt::Key_Return);
        QCOMPARE(table().model()->rowCount(), count + 3);
        QCOMPARE(text(count + 2, "sequence"), sequence->itemText(2));
        QCOMPARE(text(count + 2, "in"), QStringLiteral("01:00:05;00"));
        QCOMPARE(text(count + 2, "out"), QStringLiteral("00:00:01;00"));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Add Marker")));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Duplicate Markers")));
        QVERIFY(!m_window->isWindowModified());
    }

    void pastesRowsOfASpreadsheet()
    {
        const int count = table().model()->rowCount();
        QApplication::clipboard()->setText(QStringLiteral("00:00:01:00\tFix sky\tToo bright\tBlue\n"
                                                          "00:00:02:05\tCar\tRemove it\tGreen\n"));
        table().setFocus();
        QVERIFY(trigger(*m_window, QStringLiteral("Paste")));
        QTRY_VERIFY(visibleDialog() && visibleDialog()->inherits("vantrell::NotePreviewSheet"));
        QDialog *const sheet = visibleDialog();
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        QPushButton *add = nullptr;
        for (QPushButton *const button : sheet->findChildren<QPushButton *>())
            add = button->isDefault() ? button : add;
        QTRY_VERIFY(add && add->isEnabled());
        add->click();
        QTRY_COMPARE(imported.size(), 1);
        QCOMPARE(imported.at(0).at(0).toULongLong(), 2ULL);
        QStringList cells;
        for (const char *const column : {"name", "comment", "color"})
            cells.append(text(count, column));
        QCOMPARE(cells, QStringList({QStringLiteral("Fix sky"), QStringLiteral("Too bright"),
                                     QStringLiteral("Blue")}));
    }

    void managesPresets()
    {
        const QString folder = QStringLiteral(".local/share/Orvandel/Halvex/Vantrell/Marker Presets/");
        const QByteArray preset = PropertyList::toBytes(QVariantMap(), PropertyList::Format::Xml).value();
        for (const char *const name : {"A", "B"})
            m_home->addFile(folder + QString::fromLatin1(name) + QStringLiteral(".markerpreset"), preset);
        m_window->workbench().markerPresets().refreshMarkerPresets();
        QVERIFY(trigger(*m_window, QStringLiteral("Manage Marker Presets…")));
        QDialog *const sheet = visibleDialog();
        auto *const list = sheet->findChild<QListWidget *>();
        const auto names = [list] {
            QStringList all;
            for (int i = 0; i < list->count(); ++i)
                all.append(list->item(i)->text());
            return all.join(QLatin1Char(' '));
        };
        const auto rename = [list](const QString &name) {
            QTest::keyClick(list, Qt::Key_F2);
            auto *const field = list->findChild<QLineEdit *>();
            QTest::keyClicks(field, name);
            QTest::keyClick(field, Qt::Key_Return);
        };
        QCOMPARE(names(), QStringLiteral("A B"));
        list->setCurrentRow(0);
        rename(QStringLiteral("B"));
        const auto told = [sheet] {
            for (const QLabel *const label : sheet->findChildren<QLabel *>()) {
                if (label->isVisible())
                    return label->text();
            }
            return QString();
        };
        QTRY_VERIFY(told().contains(QStringLiteral("already")));
        QCOMPARE(names(), QStringLiteral("A B"));
        rename(QStringLiteral("C"));
        QTRY_COMPARE(names(), QStringLiteral("B C"));
        QVERIFY(told().isEmpty());
        QCOMPARE(list->currentItem()->text(), QStringLiteral("C"));
        pressLater(QStringLiteral("Delete"));
        for (QPushButton *const button : sheet->findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Delete…"))
                button->click();
        }
        QTRY_COMPARE(names(), QStringLiteral("B"));
        QVERIFY(!QFile::exists(m_home->path(folder + QStringLiteral("C.markerpreset"))));
        for (QPushButton *const button : sheet->findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == QStringLiteral("Edit Labels…"))
                button->click();
        }
        QTRY_VERIFY(visibleDialog() && visibleDialog() != sheet);
        QCOMPARE(visibleDialog()->windowTitle(), QStringLiteral("Edit Marker Preset"));
        QCOMPARE(visibleDialog()->findChild<QLineEdit *>()->text(), QStringLiteral("B"));
        visibleDialog()->reject();
        QTRY_VERIFY(visibleDialog() && visibleDialog()->findChild<QListWidget *>());
        QCOMPARE(visibleDialog()->findChild<QListWidget *>()->currentItem()->text(), QStringLiteral("B"));
        visibleDialog()->reject();
    }

    void switchesAllSelectedEffects()
    {
        m_window->toolbarEffects();
        TabPane &effects = m_window->pane(Tab::Effects);
        effects.selectRows({0, 1, 2});
        const QModelIndex first =
            effects.model().index(0, effects.model().columnOf(QStringLiteral("enabled")));
        const bool wasOn = first.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        effects.table().selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        effects.table().setFocus();
        QTest::keyClick(&effects.table(), Qt::Key_Space);
        for (int row = 0; row < 3; ++row)
            QCOMPARE(first.siblingAtRow(row).data(Qt::CheckStateRole).toInt() == Qt::Checked, !wasOn);
        QCOMPARE(effects.selectedRows().size(), std::size_t(3));
        QVERIFY(trigger(*m_window, wasOn ? QStringLiteral("Undo Switch Off Effects")
                                         : QStringLiteral("Undo Switch On Effects")));
        QVERIFY(!m_window->isWindowModified());
    }

private:
    void showTab(Tab tab)
    {
        if (tab == Tab::Media)
            m_window->toolbarMedia();
        else if (tab == Tab::Effects)
            m_window->toolbarEffects();
        else
            m_window->toolbarMarkers();
    }
    QPushButton *buttonTitled(const QString &title) const
    {
        for (QPushButton *const button : m_window->currentPane().findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == title)
                return button;
        }
        return nullptr;
    }
    QVTableView &table() const { return m_window->currentPane().table(); }
    void select(const std::vector<std::size_t> &rows) { m_window->pane(Tab::Markers).selectRows(rows); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(&table(), key, modifiers);
    }
    void go(int row, int column)
    {
        table().setCurrentIndex(table().model()->index(row, column));
        QCOMPARE(m_window->pane(Tab::Markers).selectedRows(), std::vector<std::size_t>{std::size_t(row)});
    }
    /// Column and row of the current cell.
    QPoint where() const { return {table().currentIndex().column(), table().currentIndex().row()}; }
    int column(const char *identifier) const
    {
        return m_window->pane(Tab::Markers).model().columnOf(QString::fromLatin1(identifier));
    }
    QString text(int row, const char *identifier) const
    {
        const TableModel &model = m_window->pane(Tab::Markers).model();
        return model.cellText(model.index(row, column(identifier)));
    }
    int rowNamed(const QString &name) const
    {
        return int(columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).indexOf(name));
    }
    QLineEdit *editor() const
    {
        for (QLineEdit *const field : table().viewport()->findChildren<QLineEdit *>()) {
            if (field->isVisible())
                return field;
        }
        return nullptr;
    }
    static QString shownIn(const QWidget &hint) { return hint.findChildren<QLabel *>().constLast()->text(); }
};

int main(int argc, char **argv)
{
    Application application(argc, argv);
    KeyboardTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_keyboard.moc"
