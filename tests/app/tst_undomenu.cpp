#include "ProgramTest.h"

#include "document/MyDocument.h"
#include "markers/MarkerKeys.h"
#include "support/widgets/MessageLine.h"
#include "support/widgets/WrappedLabel.h"
#include "table/widgets/QVTableView.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

using namespace vantrell;

class UndoMenuTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QVERIFY(openSample());
        m_window->toolbarMarkers();
    }
    void cleanup() { QVERIFY(end()); }

    void namesTheStepAndShowsItsRow()
    {
        QVERIFY(!trigger(*m_window, QStringLiteral("Undo")));
        m_window->resize(m_window->width(), 300);
        TabPane &markers = m_window->pane(Tab::Markers);
        const int last = markers.model().rowCount() - 1;
        const QString name = nameAt(last);
        QVERIFY(editCell(*m_window, Tab::Markers, last, QStringLiteral("name"), QStringLiteral("New")));
        QVERIFY(m_window->isWindowModified());
        markers.selectRows({0});
        markers.table().scrollToTop();
        m_window->toolbarEffects();

        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QCOMPARE(m_window->selectedTab(), Tab::Markers);
        QCOMPARE(nameAt(last), name);
        QCOMPARE(markers.selectedRows(), std::vector{std::size_t(last)});
        const QRect cell = markers.table().visualRect(markers.model().index(last, 1));
        QVERIFY(markers.table().viewport()->rect().intersects(cell));
        QVERIFY(!m_window->isWindowModified());
        QVERIFY(commandOf(*m_window, QStringLiteral("Undo")));
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Rename Marker")));
        QCOMPARE(nameAt(last), QStringLiteral("New"));
        QVERIFY(m_window->isWindowModified());

        QVERIFY(saves(*m_window));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Rename Marker")));
        QVERIFY(m_window->isWindowModified());
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Rename Marker")));
        QVERIFY(!m_window->isWindowModified());
    }

    void removedRowsComeBack()
    {
        TabPane &markers = m_window->pane(Tab::Markers);
        markers.sortBy(QStringLiteral("name"));
        const QStringList names = columnTexts(*m_window, Tab::Markers, QStringLiteral("name"));
        const std::size_t last = std::size_t(names.size()) - 1;
        markers.selectRows({1, last - 1, last});
        pressLater(QStringLiteral("Remove"));
        m_window->removeSelection();
        QCOMPARE(markers.model().rowCount(), int(names.size()) - 3);
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Remove Markers")));
        QCOMPARE(columnTexts(*m_window, Tab::Markers, QStringLiteral("name")), names);
        QCOMPARE(markers.selectedRows(), (std::vector<std::size_t>{1, last - 1, last}));
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Remove Markers")));
        QCOMPARE(markers.model().rowCount(), int(names.size()) - 3);
        QVERIFY(markers.selectedRows().empty());
    }

    void anImportIsOneStep()
    {
        QByteArray list;
        for (int i = 0; i < 500; ++i)
            list += "Cue\t01:00:20:00\tV1\tred\tNew\n";
        const int before = m_window->pane(Tab::Markers).model().rowCount();
        QSignalSpy imported(m_window, &DocumentWindow::markersImported);
        m_window->importMarkerLists({m_home->addFile(QStringLiteral("list.txt"), list)},
                                    MarkerListFormat::avid);
        QTRY_COMPARE(imported.count(), 1);
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), before + 500);
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Import Markers")));
        QCOMPARE(m_window->pane(Tab::Markers).model().rowCount(), before);
        QVERIFY(!m_window->isWindowModified() && !m_window->document()->canUndo());
    }

    void stepsOfHiddenEffectsAreTold()
    {
        m_window->toolbarEffects();
        TabPane &effects = m_window->pane(Tab::Effects);
        const int all = effects.model().rowCount();
        const QString on = QStringLiteral("enabled");
        const TableModel &model = effects.model();
        const int row =
            int(model.match(model.index(0, model.columnOf(on)), Qt::CheckStateRole, int(Qt::Checked), 1)
                    .value(0)
                    .row());
        QVERIFY(editCell(*m_window, Tab::Effects, row, on, Qt::Unchecked, Qt::CheckStateRole));
        QVERIFY(trigger(*m_window, QStringLiteral("Undo Switch Off Effect")));
        QVERIFY(!message(effects).contains(QStringLiteral("Undone")));
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Switch Off Effect")));
        QVERIFY(!showsHidden());
        QTest::keyClick(&effects.table(), Qt::Key_Delete);
        QCOMPARE(effects.model().rowCount(), all - 1);

        QVERIFY(trigger(*m_window, QStringLiteral("Undo Switch Off Effect")));
        QCOMPARE(message(effects), QStringLiteral("Undone: Switch Off Effect."));
        QVERIFY(trigger(*m_window, QStringLiteral("Redo Switch Off Effect")));
        QCOMPARE(message(effects), QStringLiteral("Redone: Switch Off Effect."));
        QCOMPARE(effects.model().rowCount(), all - 1);
        QVERIFY(showsHidden());
        QCOMPARE(effects.model().rowCount(), all);
        QVERIFY(!showsHidden() && message(effects).isEmpty());
    }

    /// As long as they are hidden, a button and a command bring them back.
    void hiddenEffectsComeBack_data()
    {
        QTest::addColumn<QString>("by");
        for (const char *const way : {"button", "filter", "tab"})
            QTest::newRow(way) << QString::fromLatin1(way);
    }
    void hiddenEffectsComeBack()
    {
        QFETCH(QString, by);
        m_window->toolbarEffects();
        TabPane &effects = m_window->pane(Tab::Effects);
        const int all = effects.model().rowCount();
        const auto *const show = buttonOf(effects, QStringLiteral("Show Hidden Effects"));
        QVERIFY(show && !show->isVisible());
        effects.selectRows({1});
        QTest::keyClick(&effects.table(), Qt::Key_Delete);
        effects.table().selectAll();
        QTest::keyClick(&effects.table(), Qt::Key_Backspace);
        QCOMPARE(effects.model().rowCount(), 0);
        QVERIFY(effects.table().placeholder().contains(QStringLiteral("taken off this list")));
        effects.sortBy(QStringLiteral("name")); // shows the same rows in another order
        QVERIFY(show->isVisible());
        if (by == QStringLiteral("button")) {
            Q_EMIT buttonOf(effects, QStringLiteral("Show Hidden Effects"))->clicked();
        } else if (by == QStringLiteral("tab")) {
            m_window->toolbarMedia();
            QVERIFY(!showsHidden());
            m_window->toolbarEffects();
        } else {
            auto *const types = effects.findChild<QComboBox *>();
            types->setCurrentIndex(1);
            Q_EMIT types->activated(1);
            QVERIFY(effects.model().rowCount() > 0 && effects.model().rowCount() < all);
        }
        if (by != QStringLiteral("filter"))
            QCOMPARE(effects.model().rowCount(), all);
        QVERIFY(!show->isVisible() && !showsHidden());
        QVERIFY(!m_window->isWindowModified());
    }

    void aTextThatIsEditedHasItsOwn()
    {
        QVERIFY(editCell(*m_window, Tab::Markers, 0, QStringLiteral("name"), QStringLiteral("New")));
        TabPane &markers = m_window->pane(Tab::Markers);
        markers.editCell(1, QStringLiteral("name"));
        auto *const field = markers.table().findChild<QLineEdit *>();
        QVERIFY(field);
        const QString before = field->text();
        field->setFocus();
        QTest::keyClicks(field, QStringLiteral("typed"));
        QCOMPARE(field->text(), QStringLiteral("typed"));
        while (field->isUndoAvailable())
            m_window->undo();
        QCOMPARE(field->text(), before);
        QCOMPARE(nameAt(0), QStringLiteral("New"));
        while (field->isRedoAvailable())
            m_window->redo();
        QCOMPARE(field->text(), QStringLiteral("typed"));
        QTest::keyClick(field, Qt::Key_Escape);
        m_window->undo();
        QVERIFY(nameAt(0) != QStringLiteral("New"));
    }

private:
    /// Triggers the command as its menu offers it; false when it is disabled.
    bool showsHidden()
    {
        for (const QAction *const action : m_window->menuBar()->actions())
            Q_EMIT action->menu()->aboutToShow();
        return trigger(*m_window, QStringLiteral("Show Hidden Effects"));
    }
    static QPushButton *buttonOf(const TabPane &pane, const QString &title)
    {
        for (auto *const button : pane.findChildren<QPushButton *>()) {
            if (button->text().remove(QLatin1Char('&')) == title)
                return button;
        }
        return nullptr;
    }
    static QString message(const TabPane &pane)
    {
        return pane.findChild<MessageLine *>()->findChild<WrappedLabel *>()->whole();
    }
    QString nameAt(int row) const
    {
        return columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).value(row);
    }
};

QTEST_MAIN(UndoMenuTest)
#include "tst_undomenu.moc"
