// Comparing two cuts in the window: what it lists and draws, and how markers are added.

#include "ProgramTest.h"

#include "compare/widgets/CarriedMarkerModel.h"
#include "compare/widgets/ChangeTableModel.h"
#include "compare/widgets/CompareChoiceSheet.h"
#include "compare/widgets/CompareWindow.h"
#include "compare/widgets/CutStrips.h"
#include "document/MyDocument.h"
#include "xml/XmlDocument.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QComboBox>
#include <QPointer>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QWheelEvent>

using namespace vantrell;

namespace
{

constexpr int longest = 40000; // milliseconds

QString textAt(const QAbstractItemModel &model, int row, int column)
{
    return model.index(row, column).data().toString();
}

/// The row whose first column begins with the text; -1 without one.
int rowOf(const QAbstractItemModel &model, const QString &text, int column = 0)
{
    for (int row = 0; row < model.rowCount(); ++row) {
        if (textAt(model, row, column).startsWith(text))
            return row;
    }
    return -1;
}

} // namespace

/// The program's window shows the recut.
class CompareWindowTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void comparesWithAFile();
    void sortsManyByName();
    void choosesAndZooms();
    void addsMarkersAsOneStep();
    void placesWhatIsGone();
    void followsChangesAndSwaps();
    void comparesOpenProjects();
    void comparesSequencesOfOneProject();
    void exportsWhatIsShown();
    void tellsOfABrokenFile();
    void closesMeanwhile();

private:
    CompareWindow *view() const { return m_window->comparison().view(); }
    template <typename Object>
    Object *part() const
    {
        return view()->findChild<Object *>();
    }
    QPushButton *button(const QString &title) const;
    QComboBox *box(const char *name) const;
    bool isCompared() const { return view() && view()->comparison() && box("Old sequence")->isEnabled(); }
    bool compareWithFile();
    CarriedMarkerModel &markers() const { return *part<CarriedMarkerModel>(); }
    ChangeTableModel &changes() const { return *part<ChangeTableModel>(); }

    QString m_old;
};

void CompareWindowTest::init()
{
    makeQuietProgram();
    m_controller->applicationDidFinishLaunching();
    m_old = copySample(m_home->path(QStringLiteral("project")));
    const QString recut = m_home->path(QStringLiteral("project/Recut.xml"));
    QVERIFY(QFile::copy(qEnvironmentVariable("VANTRELL_SOURCE_DIR") +
                            QStringLiteral("/samples/Harbour Lights Recut.xml"),
                        recut));
    m_controller->openFiles({recut});
    m_window = m_controller->currentWindow();
    QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, longest);
}

void CompareWindowTest::cleanup()
{
    QVERIFY(end());
}

QPushButton *CompareWindowTest::button(const QString &title) const
{
    for (QPushButton *const one : view()->findChildren<QPushButton *>()) {
        if (one->text().remove(QLatin1Char('&')) == title)
            return one;
    }
    return nullptr;
}

QComboBox *CompareWindowTest::box(const char *name) const
{
    for (QComboBox *const one : view()->findChildren<QComboBox *>()) {
        if (one->accessibleName() == QLatin1String(name))
            return one;
    }
    return nullptr;
}

bool CompareWindowTest::compareWithFile()
{
    m_window->comparison().compareWithFile(m_old);
    return QTest::qWaitFor([this] { return isCompared(); }, longest);
}

void CompareWindowTest::comparesWithAFile()
{
    QVERIFY(trigger(*m_window, QStringLiteral("Compare with…"), QStringLiteral("File")));
    auto *const sheet = m_window->findChild<CompareChoiceSheet *>();
    QVERIFY(sheet);
    QCOMPARE(sheet->with(), CompareChoiceSheet::With::File);
    sheet->accept();
    choosePath(m_old);
    QTRY_VERIFY_WITH_TIMEOUT(isCompared(), longest);
    QVERIFY(view()->isOwnNew());
    QCOMPARE(box("Old sequence")->currentText(), QStringLiteral("Harbour Lights – Reel 1"));
    QCOMPARE(box("New sequence")->currentText(), QStringLiteral("Harbour Lights – Reel 1"));

    const QAbstractItemModelTester tester(&changes(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QStringList texts;
    for (int row = 0; row < 3; ++row) {
        QStringList cells;
        for (int column = 0; column < changes().columnCount(); ++column)
            cells.append(textAt(changes(), row, column));
        texts.append(cells.join(QLatin1Char('|')));
    }
    QCOMPARE(texts, QStringList({QStringLiteral("Added|Quay camera A|V1||01:00:00;00|+00:00:01;00|"
                                                "Quay camera A.mov"),
                                 QStringLiteral("Trimmed|Harbour Wide|V1|01:00:00;00|01:00:01;00|"
                                                "head -00:00:01;00|Harbour Wide.avi"),
                                 QStringLiteral("Effects|Boat crossing #2|V1|01:00:05;00|01:00:05;00|"
                                                "Gaussian Blur on|Boat crossing #2.mov")}));
    // Every kind of change is in the sample.
    for (QCheckBox *const filter : view()->findChildren<QCheckBox *>())
        QVERIFY2(!filter->text().endsWith(QStringLiteral("(0)")), qPrintable(filter->text()));

    const int before = changes().rowCount();
    QCheckBox *unchanged = nullptr;
    for (QCheckBox *const filter : view()->findChildren<QCheckBox *>())
        unchanged = filter->text().startsWith(QStringLiteral("Unchanged")) ? filter : unchanged;
    QVERIFY(!unchanged->isChecked());
    unchanged->click();
    QCOMPARE(changes().rowCount(), int(view()->comparison()->changes.size()));
    QVERIFY(changes().rowCount() > before);
    changes().sort(ChangeTableModel::New, Qt::DescendingOrder);
    QCOMPARE(textAt(changes(), 0, ChangeTableModel::Kind), QStringLiteral("Removed")); // without a new place
    QCOMPARE(textAt(changes(), changes().rowCount() - 1, ChangeTableModel::New),
             QStringLiteral("01:00:00;00"));
    changes().sort(ChangeTableModel::Event, Qt::AscendingOrder);
    QStringList names;
    for (int row = 0; row < changes().rowCount(); ++row)
        names.append(textAt(changes(), row, ChangeTableModel::Event).toLower());
    QVERIFY(std::is_sorted(names.begin(), names.end()) && names.first() != names.last());
}

/// What orders the names of many changes is there some time after the changes.
void CompareWindowTest::sortsManyByName()
{
    constexpr int count = 2500;
    QByteArray clips;
    for (int i = 0; i < count; ++i)
        clips += "<clipitem><name>" + QByteArray::number(10000 + i * 7 % count) + "</name><start>" +
                 QByteArray::number(i) + "</start><end>" + QByteArray::number(i + 1) + "</end></clipitem>";
    const auto document = XmlDocument::fromData("<xmeml><sequence><name>S</name><media><video><track>" +
                                                    clips + "</track></video></media></sequence></xmeml>",
                                                {});
    const XmlNode sequence = document.value()->rootElement().childElement("sequence");
    ChangeTableModel model;
    model.setKinds(ChangeTableModel::Kinds().set());
    model.setComparison(std::make_shared<CutComparison>(CutComparison::of(sequence, sequence)));
    model.sort(ChangeTableModel::Event, Qt::DescendingOrder);
    QCOMPARE(model.rowCount(), count);
    QTRY_COMPARE(textAt(model, 0, ChangeTableModel::Event), QStringLiteral("12499"));
    QCOMPARE(textAt(model, count - 1, ChangeTableModel::Event), QStringLiteral("10000"));
    for (std::size_t change = 0; change < count; change += 100)
        QCOMPARE(model.changeAt(model.rowOf(change)), change);
}

void CompareWindowTest::choosesAndZooms()
{
    QVERIFY(compareWithFile());
    auto *const strips = part<CutStrips>();
    QTableView *table = nullptr;
    for (QTableView *const one : view()->findChildren<QTableView *>())
        table = one->model() == &changes() ? one : table;
    QVERIFY(QTest::qWaitForWindowExposed(view()));

    const int slipped = rowOf(changes(), QStringLiteral("Slipped"));
    const std::size_t change = changes().changeAt(slipped);
    QSignalSpy chosen(strips, &CutStrips::changeChosen);
    QTest::mouseClick(strips->viewport(), Qt::LeftButton, {},
                      strips->barOf(change, CutStrip::Which::New).center());
    QCOMPARE(chosen.size(), 1);
    QCOMPARE(table->selectionModel()->selectedRows().value(0).row(), slipped);

    // Zoomed in at the start, a row at the end is out of view until it is chosen.
    const QPointF left(60, 60);
    for (int i = 0; i < 12; ++i) {
        QWheelEvent wheel(left, strips->viewport()->mapToGlobal(left), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(strips->viewport(), &wheel);
    }
    const int track = rowOf(changes(), QStringLiteral("Track"));
    const std::size_t title = changes().changeAt(track);
    const QRect seen = strips->viewport()->rect();
    QVERIFY(!seen.intersects(strips->barOf(title, CutStrip::Which::Old)));
    table->selectRow(track);
    QVERIFY(seen.intersects(strips->barOf(title, CutStrip::Which::Old)));
    QVERIFY(seen.intersects(strips->barOf(title, CutStrip::Which::New)));

    const int place = strips->horizontalScrollBar()->value();
    const QPoint middle = seen.center();
    QTest::mousePress(strips->viewport(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(strips->viewport(), middle + QPoint(50, 0));
    QTest::mouseRelease(strips->viewport(), Qt::LeftButton, {}, middle + QPoint(50, 0));
    QCOMPARE(strips->horizontalScrollBar()->value(), place - 50);
    QCOMPARE(chosen.size(), 1); // panning chooses nothing
}

void CompareWindowTest::addsMarkersAsOneStep()
{
    QVERIFY(compareWithFile());
    const QAbstractItemModelTester tester(&markers(), QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(markers().rowCount(), 14);
    const auto ticks = [this] {
        std::size_t count = 0;
        for (int row = 0; row < markers().rowCount(); ++row)
            count += markers().index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return count;
    };
    QCOMPARE(markers().wantedCount(), std::size_t(8)); // five are there, one is gone
    QCOMPARE(ticks(), markers().wantedCount());
    const int nearest = rowOf(markers(), QStringLiteral("Music in"));
    QCOMPARE(textAt(markers(), nearest, CarriedMarkerModel::State), QStringLiteral("Nearest"));
    QCOMPARE(textAt(markers(), nearest, CarriedMarkerModel::Old), QStringLiteral("01:00:23;00"));
    QCOMPARE(textAt(markers(), nearest, CarriedMarkerModel::New), QStringLiteral("01:00:18;00"));
    QVERIFY(markers().setData(markers().index(nearest, 0), Qt::Unchecked, Qt::CheckStateRole));

    m_window->toolbarMarkers();
    const qsizetype before = m_window->document()->markerArray().size();
    button(QStringLiteral("Add to This Project"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(!m_window->isBusy() &&
                                 textAt(markers(), 4, CarriedMarkerModel::State) == QStringLiteral("Added"),
                             longest);
    QCOMPARE(qsizetype(m_window->document()->markerArray().size()), before + 7);
    QVERIFY(columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).contains(QStringLiteral("Ende")));
    const int band = int(columnTexts(*m_window, Tab::Markers, QStringLiteral("name"))
                             .indexOf(QStringLiteral("Brass band"))); // listed under the clip that holds it
    QVERIFY(columnTexts(*m_window, Tab::Markers, QStringLiteral("clip"))
                .at(band)
                .contains(QStringLiteral("Fête du port")));
    QVERIFY(!button(QStringLiteral("Compare Again"))->isVisible());
    QCOMPARE(ticks(), std::size_t(0));

    QVERIFY(trigger(*m_window, QStringLiteral("Undo Carry Markers")));
    QTRY_COMPARE_WITH_TIMEOUT(qsizetype(m_window->document()->markerArray().size()), before, longest);
    QVERIFY(!m_window->isWindowModified());
}

void CompareWindowTest::placesWhatIsGone()
{
    QVERIFY(compareWithFile());
    const int gone = rowOf(markers(), QStringLiteral("Carte du port"));
    const QModelIndex place = markers().index(gone, CarriedMarkerModel::New);
    QCOMPARE(place.data().toString(), QStringLiteral("no place left"));
    QVERIFY(markers().setData(markers().index(gone, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(place.data().toString(), QStringLiteral("01:00:13;00"));                // as in the old cut
    QVERIFY(!markers().setData(place, QStringLiteral("02:00:00;00"), Qt::EditRole)); // beyond the end
    QVERIFY(!markers().setData(place, QString(), Qt::EditRole));
    QVERIFY(markers().setData(place, QStringLiteral("01:00:02;00"), Qt::EditRole));
    QCOMPARE(place.data().toString(), QStringLiteral("01:00:02;00"));
    const QModelIndex carried = markers().index(rowOf(markers(), QStringLiteral("Ende")), 2);
    QVERIFY(!carried.flags().testFlag(Qt::ItemIsEditable));

    button(QStringLiteral("Tick None"))->click();
    QVERIFY(!button(QStringLiteral("Add to This Project"))->isEnabled());
    QVERIFY(markers().setData(markers().index(gone, 0), Qt::Checked, Qt::CheckStateRole));
    button(QStringLiteral("Add to This Project"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(m_window->isWindowModified() && !m_window->isBusy(), longest);
    const int row = int(columnTexts(*m_window, Tab::Markers, QStringLiteral("name"))
                            .indexOf(QStringLiteral("Carte du port")));
    QCOMPARE(columnTexts(*m_window, Tab::Markers, QStringLiteral("in")).value(row),
             QStringLiteral("01:00:02;00"));
    QCOMPARE(columnTexts(*m_window, Tab::Markers, QStringLiteral("out")).value(row),
             QStringLiteral("00:00:05;00"));
    QStringList labels;
    for (const auto *const label : view()->findChildren<QLabel *>())
        labels.append(label->text());
    QVERIFY2(!labels.filter(QStringLiteral("; 0 ticked, 1 added")).isEmpty(), qPrintable(labels.join(u'\n')));
}

void CompareWindowTest::followsChangesAndSwaps()
{
    QVERIFY(compareWithFile());
    m_window->toolbarMarkers();
    const int row = int(
        columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).indexOf(QStringLiteral("Check grade")));
    QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("name"), QStringLiteral("Graded")));
    QVERIFY(button(QStringLiteral("Compare Again"))->isVisible());
    QVERIFY(!button(QStringLiteral("Add to This Project"))->isEnabled());
    button(QStringLiteral("Compare Again"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(isCompared(), longest);
    QCOMPARE(markers().wantedCount(), std::size_t(9)); // it is no longer there

    button(QStringLiteral("Swap"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(isCompared(), longest);
    QVERIFY(!view()->isOwnNew());
    QVERIFY(!button(QStringLiteral("Add to This Project"))->isEnabled());
    QCOMPARE(textAt(changes(), 0, ChangeTableModel::Kind), QStringLiteral("Removed")); // the added shot
}

void CompareWindowTest::comparesOpenProjects()
{
    m_controller->openFiles({m_old});
    DocumentWindow *other = nullptr;
    for (QWidget *const widget : QApplication::topLevelWidgets()) {
        auto *const one = qobject_cast<DocumentWindow *>(widget);
        other = one && one != m_window ? one : other;
    }
    QVERIFY(other);
    QTRY_COMPARE_WITH_TIMEOUT(other->state(), DocumentWindow::State::Ready, longest);
    // What has not been saved counts.
    other->toolbarMarkers();
    const int row =
        int(columnTexts(*other, Tab::Markers, QStringLiteral("name")).indexOf(QStringLiteral("Ende")));
    QVERIFY(editCell(*other, Tab::Markers, row, QStringLiteral("name"), QStringLiteral("The end")));

    QVERIFY(trigger(*m_window, QStringLiteral("Compare with…")));
    auto *const sheet = m_window->findChild<CompareChoiceSheet *>();
    for (QRadioButton *const one : sheet->findChildren<QRadioButton *>()) {
        if (one->text().contains(QStringLiteral("open project")))
            one->click();
    }
    sheet->accept();
    QTRY_VERIFY_WITH_TIMEOUT(isCompared() && !other->isBusy(), longest);
    QVERIFY(rowOf(markers(), QStringLiteral("The end")) >= 0);
    QVERIFY(other->mayEdit());

    other->shutDown();
    QTRY_VERIFY_WITH_TIMEOUT(!box("Old sequence")->isEnabled(), longest);
    QVERIFY(!button(QStringLiteral("Add to This Project"))->isEnabled());
    QVERIFY(changes().rowCount() > 0); // what was compared can still be looked at
}

void CompareWindowTest::comparesSequencesOfOneProject()
{
    m_window->comparison().compareWithItself();
    QTRY_VERIFY_WITH_TIMEOUT(isCompared(), longest);
    QVERIFY(view()->isOwnNew());
    QVERIFY(view()->oldSequence() != view()->newSequence());
    // The same one twice: nothing has changed.
    box("Old sequence")->setCurrentIndex(box("New sequence")->currentIndex());
    Q_EMIT box("Old sequence")->activated(box("Old sequence")->currentIndex());
    QTRY_VERIFY_WITH_TIMEOUT(isCompared() && changes().rowCount() == 0, longest);
    QCOMPARE(markers().wantedCount(), std::size_t(0));
    button(QStringLiteral("Swap"))->click();
    QTRY_VERIFY_WITH_TIMEOUT(isCompared(), longest);
    QVERIFY(view()->isOwnNew());
}

void CompareWindowTest::exportsWhatIsShown()
{
    QVERIFY(compareWithFile());
    ChangeTableModel::Kinds kinds;
    kinds.set(std::size_t(EventChange::Kind::Slipped));
    changes().setKinds(kinds);
    const QString path = m_home->path(QStringLiteral("changes.csv"));
    QSignalSpy exported(view(), &CompareWindow::exported);
    view()->exportTo(path, ChangeListFormat::Csv);
    QVERIFY(exported.wait(longest));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArrayList lines = file.readAll().split('\n');
    QCOMPARE(lines.size(), 3); // titles, one change, and what follows the last line end
    QVERIFY(lines[1].startsWith("slipped,Quay concert,V1,01:00:23;00,"));

    view()->exportTo(m_home->path(QStringLiteral("missing/changes.csv")), ChangeListFormat::Csv);
    QVERIFY(exported.wait(longest));
    QCOMPARE(exported.last().at(0).toBool(), false);
    QTRY_VERIFY_WITH_TIMEOUT(visibleBox(), longest);
    QVERIFY(press(visibleBox(), QStringLiteral("OK")));
}

void CompareWindowTest::tellsOfABrokenFile()
{
    QString told;
    whenAsked(0, [&told](QMessageBox *alert) {
        told = alert->text();
        press(alert, QStringLiteral("OK"));
    });
    m_window->comparison().compareWithFile(m_home->path(QStringLiteral("nothing.xml")));
    QTRY_VERIFY_WITH_TIMEOUT(!told.isEmpty(), longest);
    QVERIFY2(told.contains(QStringLiteral("nothing.xml")), qPrintable(told));
    QVERIFY(!view());
    QVERIFY(m_window->mayEdit());
}

/// Windows that close while the cuts are being compared take nothing with them that is still needed.
void CompareWindowTest::closesMeanwhile()
{
    m_window->comparison().compareWithFile(m_old);
    QTRY_VERIFY_WITH_TIMEOUT(view(), longest);
    view()->close();
    QTRY_VERIFY_WITH_TIMEOUT(!view() && m_window->mayEdit(), longest);

    QVERIFY(compareWithFile());
    m_window->revertWithoutQuestion();
    QTRY_VERIFY_WITH_TIMEOUT(!view() && m_window->state() == DocumentWindow::State::Ready, longest);

    m_window->comparison().compareWithFile(m_old);
    QTRY_VERIFY_WITH_TIMEOUT(view(), longest);
    m_window->closeSettled();
    QTRY_VERIFY_WITH_TIMEOUT(!m_window, longest);
}

QTEST_MAIN(CompareWindowTest)
#include "tst_comparewindow.moc"
