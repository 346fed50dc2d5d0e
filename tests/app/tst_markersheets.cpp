#include "WindowTest.h"

#include "markers/MarkerPresets.h"
#include "markers/widgets/MarkerFieldsSheet.h"
#include "markers/widgets/MarkerPresetPopUp.h"
#include "markers/widgets/MarkerPresetSheet.h"
#include "markers/widgets/MarkerPresetsSheet.h"
#include "support/alerts/QVAlert.h"
#include "support/files/PropertyList.h"
#include "support/log/QVLog.h"
#include "support/settings/UserDefaults.h"
#include "support/threads/BackgroundWork.h"
#include "support/widgets/WindowAlertPresenter.h"
#include "table/widgets/QVTableView.h"
#include "table/widgets/SheetTable.h"
#include "tests/support/TemporaryHome.h"
#include "workbench/Workbench.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTest>

#include <algorithm>

using namespace vantrell;

namespace
{

const QString take = QStringLiteral("QVCUSTOM_TAKE");
const QString lens = QStringLiteral("QVCUSTOM_LENS");
const QString crew = QStringLiteral("QVCUSTOM_CREW");
const QString definitionsKey = QStringLiteral("customMarkerFields");
const QString presetKey = QStringLiteral("selectedPreset");

/// The visible child of that class; null when there is none.
template <typename Child>
Child *shown(const QWidget *parent)
{
    const auto children = parent->findChildren<Child *>();
    const auto found =
        std::find_if(children.begin(), children.end(), [](const Child *child) { return child->isVisible(); });
    return found == children.end() ? nullptr : *found;
}

void click(QWidget *sheet, const QString &title)
{
    for (QPushButton *const button : sheet->findChildren<QPushButton *>()) {
        if (button->text().remove(QLatin1Char('&')) == title) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    qFatal("The sheet has no such button.");
}

SheetTable &tableOf(const QWidget *sheet)
{
    return *sheet->findChild<SheetTable *>();
}

/// The field in which a cell is being edited.
QLineEdit *editorOf(const QWidget *sheet)
{
    return shown<QLineEdit>(tableOf(sheet).viewport());
}

/// Edits a cell; what was typed stands in its editor until a key ends that.
void type(const QWidget *sheet, int row, int column, const QString &text)
{
    SheetTable &table = tableOf(sheet);
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_F2);
    QTest::keyClicks(editorOf(sheet), text);
}

QStringList rowsOf(const QWidget *sheet)
{
    const QAbstractItemModel &model = *tableOf(sheet).model();
    QStringList rows;
    for (int row = 0; row < model.rowCount(); ++row)
        rows.append(model.index(row, 0).data().toString() + QLatin1Char('=') +
                    model.index(row, 1).data().toString());
    return rows;
}

} // namespace

class TestMarkerSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_home = std::make_unique<TemporaryHome>();
        m_defaults = std::make_unique<UserDefaults>(m_home->path(QStringLiteral("test.plist")));
        QVAlert::setPresenter(std::make_shared<WindowAlertPresenter>(*m_defaults));
        QVLog::createNewLog(QStringLiteral("test"), true);
        m_window = open(QStringLiteral("a"));
    }
    void cleanup()
    {
        delete m_window;
        delete m_other;
        QVAlert::closeAll();
        QVERIFY(BackgroundWork::waitForAll(std::chrono::seconds(20)));
        QVAlert::setPresenter(nullptr);
        QVLog::willTerminate();
        m_defaults.reset();
        m_home.reset();
    }

    void definesFields()
    {
        MarkerFieldsSheet *sheet = openFields(m_window);
        click(sheet, QStringLiteral("Add"));
        QLineEdit *editor = editorOf(sheet);
        QVERIFY(editor);
        QCOMPARE(editor->selectedText(), QStringLiteral("Untitled"));
        QTest::keyClicks(editor, QStringLiteral("Take"));
        QTest::keyClick(editor, Qt::Key_Return);
        QTRY_VERIFY(!editorOf(sheet)); // and the sheet did not take the key for its own
        QCOMPARE(rowsOf(sheet), QStringList(QStringLiteral("Take=QVCUSTOM_TAKE")));
        click(sheet, QStringLiteral("Add"));
        QTest::keyClicks(editorOf(sheet), QStringLiteral("Lens"));
        QVERIFY(!columns().contains(take));
        click(sheet, QStringLiteral("Done"));
        QTRY_VERIFY(!shown<MarkerFieldsSheet>(m_window));
        QCOMPARE(columns().mid(10), QStringList({take, lens}));
        QCOMPARE(header(take), QStringLiteral("Take"));
        QVERIFY(editCell(*m_window, Tab::Markers, 0, take, QStringLiteral("3")));
        QVERIFY(saves(*m_window));

        // A field keeps the identifier of its first title, and its column the title it was made with.
        sheet = openFields(m_window);
        type(sheet, 0, 0, QStringLiteral("Slate"));
        QTest::keyClick(editorOf(sheet), Qt::Key_Tab);
        QVERIFY(editorOf(sheet)); // of the identifier, which is left as it is
        QTest::keyClick(editorOf(sheet), Qt::Key_Tab);
        QTest::keyClick(editorOf(sheet), Qt::Key_Escape);
        type(sheet, 1, 1, QStringLiteral("lens 2 b"));
        QTest::keyClick(editorOf(sheet), Qt::Key_Backtab);
        QTest::keyClick(editorOf(sheet), Qt::Key_Tab);
        QTest::keyClick(editorOf(sheet), Qt::Key_Tab);
        QCOMPARE(rowsOf(sheet), QStringList({QStringLiteral("Slate=QVCUSTOM_TAKE"),
                                             QStringLiteral("Lens=QVCUSTOM_LENS2 B")}));
        QTest::keyClick(sheet, Qt::Key_Escape);
        QCOMPARE(columns().mid(10), QStringList({take, QStringLiteral("QVCUSTOM_LENS2 B")}));
        QCOMPARE(header(take), QStringLiteral("Take"));
        reopen();
        QCOMPARE(header(take), QStringLiteral("Slate"));
        QCOMPARE(columnTexts(*m_window, Tab::Markers, take).first(), QStringLiteral("3"));

        sheet = openFields(m_window);
        tableOf(sheet).setCurrentIndex(tableOf(sheet).model()->index(0, 0));
        click(sheet, QStringLiteral("Remove"));
        sheet->close();
        QCOMPARE(columns().mid(10), QStringList(QStringLiteral("QVCUSTOM_LENS2 B")));
    }

    void storesWhatIsTypedWhenItCloses_data()
    {
        QTest::addColumn<bool>("withWindow");
        QTest::newRow("close box") << false;
        QTest::newRow("with its window") << true;
    }
    void storesWhatIsTypedWhenItCloses()
    {
        QFETCH(bool, withWindow);
        MarkerFieldsSheet *const sheet = openFields(m_window);
        click(sheet, QStringLiteral("Add"));
        QTest::keyClicks(editorOf(sheet), QStringLiteral("Crew"));
        if (withWindow)
            reopen();
        else
            sheet->close();
        QCOMPARE(columns().mid(10), QStringList(crew));
    }

    /// The sheet stays and tells why; what was typed is not lost with it.
    void refusesAnIdentifierThatAnotherFieldHas()
    {
        define({QStringLiteral("Take")});
        MarkerFieldsSheet *const sheet = openFields(m_window);
        const auto told = [sheet] {
            for (const QLabel *const label : sheet->findChildren<QLabel *>()) {
                if (label->isVisible() && label->text().contains(take))
                    return label->height() >= label->heightForWidth(label->width());
            }
            return false;
        };
        click(sheet, QStringLiteral("Add"));
        QTest::keyClicks(editorOf(sheet), QStringLiteral("take"));
        click(sheet, QStringLiteral("Done"));
        QVERIFY(sheet->isVisible());
        QVERIFY(told());
        QCOMPARE(rowsOf(sheet),
                 QStringList({QStringLiteral("Take=QVCUSTOM_TAKE"), QStringLiteral("Untitled=")}));
        type(sheet, 1, 0, QStringLiteral("Lens"));
        QTest::keyClick(editorOf(sheet), Qt::Key_Return);
        QTRY_VERIFY(!editorOf(sheet));
        QVERIFY(!told());
        click(sheet, QStringLiteral("Done"));
        QTRY_VERIFY(!shown<MarkerFieldsSheet>(m_window));
        QCOMPARE(columns().mid(10), QStringList({take, lens}));
    }

    void columnsStayWhereTheyWereMoved()
    {
        define({QStringLiteral("Take"), QStringLiteral("Lens"), QStringLiteral("Crew")});
        move(crew, 1);
        move(take, 3);
        move(lens, 0);
        move(QStringLiteral("comment"), 6);
        move(take, 2);
        const QStringList moved = columns();
        QCOMPARE(moved.mid(0, 4), QStringList({lens, QStringLiteral("color"), take, crew}));
        m_window->pane(Tab::Markers).showColumn(take, false);
        reopen();
        QCOMPARE(columns(), moved);
        QVERIFY(!m_window->pane(Tab::Markers).isColumnShown(take));
        m_other = open(QStringLiteral("b"));
        QCOMPARE(m_other->pane(Tab::Markers).columns(), moved);
        QVERIFY(!m_other->pane(Tab::Markers).isColumnShown(take));
        m_window->pane(Tab::Markers).showColumn(take, true);
        QVERIFY(m_other->pane(Tab::Markers).isColumnShown(take));
        openFields(m_window)->close();
        QCOMPARE(columns(), moved);
        // The other document follows, and does not undo it when it ends last.
        move(take, 7);
        move(QStringLiteral("in"), 0);
        const QStringList again = columns();
        QCOMPARE(again.indexOf(take), 7);
        QCOMPARE(m_other->pane(Tab::Markers).columns(), again);
        delete m_window;
        delete m_other;
        m_window = open(QStringLiteral("a"));
        QCOMPARE(columns(), again);
    }

    void fieldsOfOtherDocumentsFollow()
    {
        m_other = open(QStringLiteral("b"));
        define({QStringLiteral("Take")});
        QVERIFY(m_other->pane(Tab::Markers).columns().contains(take));
        // Whoever has the sheet open keeps its list, and stores it together with what came meanwhile.
        MarkerFieldsSheet *sheet = openFields(m_other);
        click(sheet, QStringLiteral("Add"));
        QTest::keyClicks(editorOf(sheet), QStringLiteral("Crew"));
        define({QStringLiteral("Lens")});
        QCOMPARE(columns().mid(10), QStringList({take, lens}));
        QVERIFY(editorOf(sheet));
        sheet->close();
        for (const DocumentWindow *const window : {m_window.data(), m_other.data()})
            QCOMPARE(window->pane(Tab::Markers).columns().mid(10), QStringList({take, lens, crew}));
        // What another window changed of a field stays, unless the sheet changed that as well.
        sheet = openFields(m_other);
        type(sheet, 0, 0, QStringLiteral("Slate"));
        MarkerFieldsSheet *const elsewhere = openFields(m_window);
        type(elsewhere, 0, 0, QStringLiteral("Clapper"));
        QTest::keyClick(editorOf(elsewhere), Qt::Key_Return);
        type(elsewhere, 1, 0, QStringLiteral("Staff"));
        elsewhere->close();
        sheet->close();
        sheet = openFields(m_window);
        QCOMPARE(rowsOf(sheet),
                 QStringList({QStringLiteral("Slate=QVCUSTOM_TAKE"), QStringLiteral("Staff=QVCUSTOM_CREW"),
                              QStringLiteral("Lens=QVCUSTOM_LENS")}));
        sheet->close();
    }

    void makesAndChoosesPresets()
    {
        m_other = open(QStringLiteral("b"));
        QCOMPARE(presets(m_window), QStringLiteral("None*||Create preset..."));
        MarkerPresetSheet *sheet = choosePresetSheet();
        QVERIFY(sheet);
        QCOMPARE(presets(m_window), QStringLiteral("None*||Create preset..."));
        type(sheet, 3, 1, QStringLiteral("Chapter"));
        QTest::keyClick(editorOf(sheet), Qt::Key_Tab);
        QTest::keyClick(editorOf(sheet), Qt::Key_Delete);
        // Without a name: an alert of its own, as the window carries a sheet already.
        pressOverSheet(sheet, QStringLiteral("OK"), QStringLiteral("No name specified"));
        auto *const name = sheet->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly);
        QTest::keyClicks(name, QStringLiteral("Cut"));
        QTest::keyClick(name, Qt::Key_Return);
        QTRY_VERIFY(!shown<MarkerPresetSheet>(m_window));
        for (const DocumentWindow *const window : {m_window.data(), m_other.data()}) {
            QTRY_COMPARE(presets(window), QStringLiteral("None|Cut*||Create preset..."));
            QCOMPARE(colors(window), QStringLiteral("Red Orange Yellow Chapter  Blue Purple Pink"));
        }

        // Anew under the same name.
        sheet = choosePresetSheet();
        QVERIFY(sheet);
        QTest::keyClicks(sheet->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly),
                         QStringLiteral("Cut"));
        type(sheet, 0, 1, QStringLiteral("Fix"));
        pressOverSheet(sheet, QStringLiteral("Cancel"), QStringLiteral("This preset already exists"));
        QCOMPARE(colors(m_window), QStringLiteral("Red Orange Yellow Chapter  Blue Purple Pink"));
        pressLater(QStringLiteral("Overwrite"));
        click(sheet, QStringLiteral("Save"));
        QVERIFY(!shown<MarkerPresetSheet>(m_window));
        for (const DocumentWindow *const window : {m_window.data(), m_other.data()})
            QTRY_COMPARE(colors(window),
                         QStringLiteral("Fix Orange Yellow Green Turquoise Blue Purple Pink"));

        // The other one chooses.
        popUp(m_other)->setCurrentIndex(0);
        Q_EMIT popUp(m_other)->activated(0);
        QCOMPARE(presets(m_window), QStringLiteral("None*|Cut||Create preset..."));
        QCOMPARE(colors(m_window), QStringLiteral("Red Orange Yellow Green Turquoise Blue Purple Pink"));
        QVERIFY(!m_window->workbench().markerPresets().markerLabelDict());

        // Gone from the folder, gone from the pop-ups.
        QVERIFY(QFile::remove(MarkerPresets::folder() + QStringLiteral("/Cut.markerpreset")));
        for (const DocumentWindow *const window : {m_window.data(), m_other.data()})
            QTRY_COMPARE(presets(window), QStringLiteral("None*||Create preset..."));
    }

    void theListOfPresetsTellsHowToMakeOne()
    {
        for (const bool hasPreset : {false, true}) {
            if (hasPreset) {
                MarkerPresetSheet *const made = choosePresetSheet();
                QVERIFY(made);
                QTest::keyClicks(made->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly),
                                 QStringLiteral("Cut"));
                click(made, QStringLiteral("Save"));
                QTRY_VERIFY(!shown<MarkerPresetSheet>(m_window));
            }
            m_window->showMarkerPresetsDialog();
            auto *const sheet = m_window->findChild<MarkerPresetsSheet *>();
            QTRY_VERIFY(sheet && sheet->isVisible());
            const auto labels = sheet->findChildren<QLabel *>();
            const bool isTold = std::any_of(labels.begin(), labels.end(), [](const QLabel *label) {
                return label->isVisible() && label->text().contains(QStringLiteral("Create Marker Preset…"));
            });
            QCOMPARE(isTold, !hasPreset);
            delete sheet;
        }
    }

    void aFailureLeavesThePresetSheet()
    {
        m_home->addFile(QStringLiteral(".local/share/Orvandel"), "in the way");
        MarkerPresetSheet *const sheet = choosePresetSheet();
        QVERIFY(sheet);
        QTest::keyClicks(sheet->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly),
                         QStringLiteral("Cut"));
        pressOverSheet(sheet, QStringLiteral("OK"), QStringLiteral("Unable to create preset"));
        QTest::keyClick(sheet, Qt::Key_Escape);
        QTRY_VERIFY(!shown<MarkerPresetSheet>(m_window));
        QCOMPARE(m_defaults->string(presetKey), QStringLiteral("None"));
        QVERIFY(choosePresetSheet());
    }

    void closesWhileThePresetSheetAsks()
    {
        MarkerPresetSheet *const sheet = choosePresetSheet();
        QVERIFY(sheet);
        QTimer::singleShot(100, m_window, &QWidget::close);
        click(sheet, QStringLiteral("Save")); // returns when the window takes its alert away
        QVERIFY(m_window && m_window->isClosing());
        QTRY_VERIFY(!m_window);
        QVERIFY(!visibleBox());
    }

    /// Neither the arrow keys nor the wheel run into the command at the end of the pop-up.
    void keysStopAtTheLastPreset()
    {
        m_home->addFile(QStringLiteral(".local/share/Orvandel/Halvex/Vantrell/Marker Presets/A.markerpreset"),
                        PropertyList::toBytes(QVariantMap(), PropertyList::Format::Xml).value());
        QTRY_COMPARE(presets(m_window), QStringLiteral("None*|A||Create preset..."));
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(popUp(m_window), Qt::Key_Down);
        QTest::keyClick(popUp(m_window), Qt::Key_C);
        QCOMPARE(presets(m_window), QStringLiteral("None|A*||Create preset..."));
        QCOMPARE(m_defaults->string(presetKey), QStringLiteral("A"));
        QVERIFY(!shown<MarkerPresetSheet>(m_window));
        // From the open list it is chosen like any item.
        popUp(m_window)->showPopup();
        QTest::keyClick(popUp(m_window)->view(), Qt::Key_End);
        QTest::keyClick(popUp(m_window)->view(), Qt::Key_Return);
        QTRY_VERIFY(shown<MarkerPresetSheet>(m_window));
        QCOMPARE(presets(m_window), QStringLiteral("None|A*||Create preset..."));
    }

private:
    /// A window on a copy of the sample in that folder, on its Markers tab.
    DocumentWindow *open(const QString &folder)
    {
        auto *const window = new DocumentWindow(*m_defaults);
        window->show();
        window->open(copySample(m_home->path(folder)));
        if (!QTest::qWaitFor([window] { return window->state() == DocumentWindow::State::Ready; }, 20000))
            qFatal("The sample could not be opened.");
        window->toolbarMarkers();
        return window;
    }
    /// Without changes that would be lost.
    void reopen()
    {
        m_window->close();
        if (!QTest::qWaitFor([this] { return !m_window; }))
            qFatal("The window does not close.");
        m_window = open(QStringLiteral("a"));
    }

    QStringList columns() const { return m_window->pane(Tab::Markers).columns(); }
    QString header(const QString &column) const
    {
        const TableModel &model = m_window->pane(Tab::Markers).model();
        return model.headerData(model.columnOf(column), Qt::Horizontal, Qt::DisplayRole).toString();
    }
    /// Moves a column as the user does with the mouse.
    void move(const QString &column, int index) const
    {
        const TabPane &pane = m_window->pane(Tab::Markers);
        QHeaderView *const header = pane.table().horizontalHeader();
        header->moveSection(header->visualIndex(pane.model().columnOf(column)), index);
    }

    static MarkerFieldsSheet *openFields(DocumentWindow *window)
    {
        window->showMarkerFieldsDialog();
        auto *const sheet = shown<MarkerFieldsSheet>(window);
        if (!sheet || sheet->windowModality() != Qt::WindowModal)
            qFatal("There is no sheet on the window.");
        return sheet;
    }
    void define(const QStringList &titles) const
    {
        MarkerFieldsSheet *const sheet = openFields(m_window);
        for (const QString &title : titles) {
            click(sheet, QStringLiteral("Add"));
            QTest::keyClicks(editorOf(sheet), title);
        }
        sheet->close();
    }

    static MarkerPresetPopUp *popUp(const DocumentWindow *window)
    {
        return window->findChild<MarkerPresetPopUp *>();
    }
    /// The items with a star behind the chosen one.
    static QString presets(const DocumentWindow *window)
    {
        const MarkerPresetPopUp &list = *popUp(window);
        QStringList items;
        for (int i = 0; i < list.count(); ++i)
            items.append(list.itemText(i) + (i == list.currentIndex() ? QStringLiteral("*") : QString()));
        return items.join(QLatin1Char('|'));
    }
    /// The labels of the colours, which the filter and the cells have in common.
    static QString colors(const DocumentWindow *window)
    {
        const auto *const filter = window->pane(Tab::Markers).findChild<QComboBox *>();
        QStringList labels;
        for (int i = 1; i < filter->count(); ++i)
            labels.append(filter->itemText(i));
        const TableModel &model = window->pane(Tab::Markers).model();
        QStringList cellLabels;
        for (const PopUpItem &item :
             model.popUpItems(model.index(0, model.columnOf(QStringLiteral("color")))))
            cellLabels.append(item.title);
        return labels == cellLabels ? labels.join(QLatin1Char(' '))
                                    : QStringLiteral("not those of the cells");
    }
    MarkerPresetSheet *choosePresetSheet() const
    {
        MarkerPresetPopUp *const list = popUp(m_window);
        list->setCurrentIndex(list->count() - 1);
        Q_EMIT list->activated(list->count() - 1);
        return shown<MarkerPresetSheet>(m_window);
    }
    /// Saves and answers the alert with that message, after which the sheet is there to be used.
    static void pressOverSheet(MarkerPresetSheet *sheet, const QString &button, const QString &message)
    {
        QString text;
        Qt::WindowModality modality = Qt::NonModal;
        QTimer timer;
        connect(&timer, &QTimer::timeout, sheet, [&] {
            if (QMessageBox *const box = visibleBox()) {
                text = box->text();
                modality = box->windowModality();
                press(box, button);
            }
        });
        timer.start(20);
        click(sheet, QStringLiteral("Save"));
        QCOMPARE(text, message);
        QCOMPARE(modality, Qt::ApplicationModal);
        QVERIFY(sheet->isVisible() && sheet->isEnabled());
        QVERIFY(!visibleBox());
    }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<UserDefaults> m_defaults;
    QPointer<DocumentWindow> m_window;
    QPointer<DocumentWindow> m_other;
};

QTEST_MAIN(TestMarkerSheets)
#include "tst_markersheets.moc"
