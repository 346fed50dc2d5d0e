#include "ProgramTest.h"

#include "markers/MarkerKeys.h"
#include "markers/widgets/MarkerOverviewPanel.h"
#include "markers/widgets/MarkerStrip.h"
#include "markers/widgets/MarkersPane.h"
#include "markers/widgets/OverviewPopUp.h"
#include "table/widgets/QVTableView.h"
#include "tests/support/LongSeries.h"

#include <QComboBox>
#include <QTest>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using namespace vantrell;

namespace
{

const QString reel = QStringLiteral("Harbour Lights – Reel 1");
const QString trailer = QStringLiteral("Trailer 25 fps");

} // namespace

class OverviewStripTest : public QObject, private ProgramTest
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        makeQuietProgram();
        m_controller->applicationDidFinishLaunching();
        open(copySample(m_home->path(QStringLiteral("project"))));
    }
    void cleanup() { QVERIFY(end()); }

    void clickSelectsTheRow()
    {
        QCOMPARE(strip().sequence()->name, reel); // it has most markers
        m_window->activateWindow();
        pane().table().scrollToTop();
        m_window->resize(1000, 460);
        for (const QString &name : {QStringLiteral("Ende"), QStringLiteral("Opening")}) {
            const std::size_t marker = find(name);
            pane().focusSearch();
            click(strip().placeOf(marker));
            QCOMPARE(selectedNames(), QStringList(name));
            QVERIFY(strip().sequence()->markers[marker].isSelected);
            const QModelIndex cell = pane().model().index(int(pane().selectedRows().front()), 1);
            QVERIFY(pane().table().viewport()->rect().intersects(pane().table().visualRect(cell)));
            QVERIFY(!strip().hasFocus());
            QCOMPARE(m_window->focusWidget(), &pane().table());
        }
        click(strip().placeOf(find(QStringLiteral("Ende"))), Qt::ControlModifier);
        QCOMPARE(selectedNames(), QStringList({QStringLiteral("Opening"), QStringLiteral("Ende")}));
        click(strip().placeOf(find(QStringLiteral("Opening"))), Qt::ControlModifier);
        QCOMPARE(selectedNames(), QStringList(QStringLiteral("Ende")));
    }

    void repeatedClicksReachAllAtOnePlace()
    {
        const QString in = QStringLiteral("01:00:54;00"); // where the fireworks are
        QVERIFY(editCell(*m_window, Tab::Markers, rowOf(QStringLiteral("Ende")), QStringLiteral("in"), in));
        waitForStrip();
        const QPoint place = strip().placeOf(find(QStringLiteral("Ende")));
        QSet<QString> reached;
        for (int i = 0; i < 2; ++i) {
            click(place);
            reached += QSet<QString>{selectedNames().value(0)};
        }
        QCOMPARE(reached, QSet<QString>({QStringLiteral("Ende"), QStringLiteral("Feuerwerk 🎆")}));
    }

    void selectionIsHighlighted()
    {
        const std::size_t marker = find(QStringLiteral("Music in"));
        const QPoint place = strip().placeOf(marker);
        const auto pixels = [&] {
            return strip().grab(QRect(place - QPoint(6, 6), QSize(13, 13))).toImage();
        };
        const QImage before = pixels();
        pane().selectRows({std::size_t(rowOf(QStringLiteral("Music in")))});
        QVERIFY(strip().sequence()->markers[marker].isSelected);
        QVERIFY(pixels() != before);
        pane().selectRows({});
        QVERIFY(!strip().sequence()->markers[marker].isSelected);
        QCOMPARE(pixels(), before);
    }

    void followsTheRowUnlessOneIsChosen()
    {
        QCOMPARE(overview().popUp().shownTitle(), reel);
        pane().selectRows({std::size_t(rowOf(QStringLiteral("First light")))});
        QCOMPARE(strip().sequence()->name, trailer);
        QCOMPARE(overview().popUp().shownTitle(), trailer);
        pane().selectRows({std::size_t(rowOf(QStringLiteral("Tide turns")))}); // of a clip in a bin
        QCOMPARE(strip().sequence()->name, trailer);
        // The filter of sequences counts as well.
        const auto popUps = pane().findChildren<QComboBox *>();
        const auto found = std::find_if(popUps.begin(), popUps.end(), [](const QComboBox *box) {
            return box->accessibleName() == QStringLiteral("Sequence of markers");
        });
        QVERIFY(found != popUps.end());
        QComboBox *const filter = *found;
        filter->setCurrentIndex(filter->findText(reel));
        Q_EMIT filter->activated(filter->currentIndex());
        QTRY_COMPARE(strip().sequence()->name, reel);
        filter->setCurrentIndex(0);
        Q_EMIT filter->activated(0);
        pane().selectRows({std::size_t(rowOf(QStringLiteral("First light")))});
        QTRY_COMPARE(strip().sequence()->name, trailer);

        OverviewPopUp &popUp = overview().popUp();
        const auto choose = [&popUp](int item) {
            popUp.setCurrentIndex(item);
            Q_EMIT popUp.activated(item);
        };
        choose(popUp.findText(reel));
        QCOMPARE(strip().sequence()->name, reel);
        pane().selectRows({std::size_t(rowOf(QStringLiteral("First light")))});
        QCOMPARE(strip().sequence()->name, reel);
        choose(popUp.findText(QStringLiteral("Trailer selects"))); // it has no markers
        QVERIFY(strip().sequence()->markers.empty());
        choose(0);
        QCOMPARE(strip().sequence()->name, trailer);
        QCOMPARE(popUp.currentIndex(), 0);
    }

    void zooms()
    {
        const double whole = strip().pixelsPerFrame();
        QVERIFY(strip().showsAll());
        const double x = strip().width() * 0.7;
        const double frame = strip().frameAt(x);
        for (int i = 0; i < 4; ++i)
            turn(x, 120);
        QVERIFY(std::abs(strip().frameAt(x) - frame) < 0.01);
        QVERIFY(std::abs(strip().pixelsPerFrame() / whole - std::pow(1.25, 4)) < 0.001);
        const double scale = strip().pixelsPerFrame();
        turn(x, 120, Qt::ShiftModifier); // to the left by 120 pixels
        QVERIFY(std::abs((frame - strip().frameAt(x)) * scale - 120) < 0.01);
        QCOMPARE(strip().pixelsPerFrame(), scale);

        // A row beyond the edge is scrolled to.
        for (int i = 0; i < 20; ++i)
            turn(0, 120);
        const std::size_t last = find(QStringLiteral("Ende"));
        QVERIFY(strip().placeOf(last).x() > strip().width());
        pane().selectRows({std::size_t(rowOf(QStringLiteral("Ende")))});
        QVERIFY(strip().rect().contains(strip().placeOf(last)));

        QTest::mouseDClick(&strip(), Qt::LeftButton, {}, {5, 5});
        QCOMPARE(strip().pixelsPerFrame(), whole);
        turn(x, 120);
        turn(x, -240);
        QVERIFY(strip().showsAll());
    }

    void keys()
    {
        m_window->activateWindow();
        strip().setFocus();
        QTest::keyClick(&strip(), Qt::Key_Right);
        QCOMPARE(selectedNames(), QStringList(QStringLiteral("Opening")));
        QTest::keyClick(&strip(), Qt::Key_Right);
        QCOMPARE(selectedNames(), QStringList(QStringLiteral("Spelling")));
        QTest::keyClick(&strip(), Qt::Key_Left);
        QCOMPARE(selectedNames(), QStringList(QStringLiteral("Opening")));
        QTest::keyClick(&strip(), Qt::Key_Plus);
        QVERIFY(!strip().showsAll());
        QTest::keyClick(&strip(), Qt::Key_Escape);
        QVERIFY(strip().showsAll());
        QTest::keyClick(&strip(), Qt::Key_Escape);
        QCOMPARE(m_window->focusWidget(), &pane().table());
    }

    void theFilterMakesFaint()
    {
        const QPoint place = strip().placeOf(find(QStringLiteral("Opening"))); // red
        filter(4);                                                             // green
        const OverviewSequence &markers = *strip().sequence();
        QStringList shown;
        for (const OverviewMarker &marker : markers.markers) {
            if (marker.isShown)
                shown.append(marker.record->get(MarkerKey::name));
        }
        QCOMPARE(shown, QStringList({QStringLiteral("Applause"), QStringLiteral("Carte du port")}));
        QVERIFY(
            strip().textAt(place).startsWith(QStringLiteral("Opening\n01:00:00;00\nhidden by the filter")));
        click(place);
        QVERIFY(selectedNames().isEmpty());
        QVERIFY(statusOf(*m_window).contains(QStringLiteral("“Opening” is hidden by the filter")));
        QCoreApplication::processEvents();
        filter(0);
        QVERIFY(!statusOf(*m_window).contains(QStringLiteral("hidden")));
        QVERIFY(std::all_of(strip().sequence()->markers.begin(), strip().sequence()->markers.end(),
                            [](const OverviewMarker &marker) { return marker.isShown; }));
    }

    void editsShow()
    {
        const auto state = [this] {
            waitForStrip();
            const OverviewMarker &marker = strip().sequence()->markers[find(QStringLiteral("Music in"))];
            return QStringLiteral("%1 c%2 of %3")
                .arg(marker.start)
                .arg(marker.color)
                .arg(strip().sequence()->markers.size());
        };
        const int row = rowOf(QStringLiteral("Music in"));
        const QString before = state();
        QCOMPARE(before, QStringLiteral("690 c4 of 16"));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("color"), 0));
        QCOMPARE(state(), QStringLiteral("690 c0 of 16"));
        QVERIFY(editCell(*m_window, Tab::Markers, row, QStringLiteral("in"), QStringLiteral("01:00:01;00")));
        QCOMPARE(state(), QStringLiteral("30 c0 of 16"));
        pane().selectRows({std::size_t(rowOf(QStringLiteral("Ende")))});
        pressLater(QStringLiteral("Remove"));
        m_window->removeSelection();
        QCOMPARE(state(), QStringLiteral("30 c0 of 15"));
        for (int i = 0; i < 3; ++i)
            m_window->undo();
        QCOMPARE(state(), before);
    }

    void tellsWhatIsUnderThePointer()
    {
        const QPoint place = strip().placeOf(find(QStringLiteral("Café du Port")));
        QCOMPARE(strip().textAt(place), QStringLiteral("Café du Port\n01:00:02;00, duration 00:00:03;00"));
        const QString clip = strip().textAt({place.x(), strip().height() - 10});
        QVERIFY2(clip.contains(QStringLiteral(" – 01:00:")), qPrintable(clip));
        QVERIFY(strip().textAt({strip().width() - 1, 2}).isEmpty());
    }

    void isHiddenInAllWindows()
    {
        const int height = pane().table().height();
        const QString command = QStringLiteral("Marker Overview");
        QVERIFY(commandOf(*m_window, command)->isChecked());
        QVERIFY(trigger(*m_window, command));
        QVERIFY(!overview().isVisible());
        QTRY_VERIFY(pane().table().height() > height + strip().sizeHint().height());
        const DocumentWindow *const first = m_window;

        open(copySample(m_home->path(QStringLiteral("other"))));
        QVERIFY(m_window != first);
        QVERIFY(!overview().isVisible());
        QVERIFY(!commandOf(*m_window, command)->isChecked());
        QVERIFY(trigger(*m_window, command));
        QVERIFY(overview().isVisible());
        waitForStrip();
        QCOMPARE(strip().sequence()->name, reel);
        QVERIFY(static_cast<MarkersPane &>(first->pane(Tab::Markers)).overview().isVisibleTo(first));
        QCOMPARE(
            UserDefaults(m_home->path(QStringLiteral("test.plist"))).value(MarkerOverviewPanel::shownDefault),
            QVariant(true));
    }

    void drawsManyMarkers()
    {
        const int count = longWork(100000);
        QByteArray markers;
        for (int i = 0; i < count; ++i) {
            const QByteArray in = QByteArray::number(i * 7LL % (2 * count));
            markers += "<marker><name>M</name><in>" + in + "</in><out>" +
                       QByteArray::number(i * 7LL % (2 * count) + i % 500) + "</out></marker>\n";
        }
        open(m_home->addFile(
            QStringLiteral("many.xml"),
            "<?xml version=\"1.0\"?>\n<xmeml version=\"5\"><project><children><sequence>"
            "<uuid>U</uuid><name>S</name><timecode><rate><timebase>25</timebase></rate></timecode>" +
                markers + "</sequence></children></project></xmeml>"));
        QCOMPARE(strip().sequence()->markers.size(), std::size_t(count));
        pane().table().selectAll();
        QElapsedTimer time;
        time.start();
        constexpr int pictures = 10;
        for (int i = 0; i < pictures; ++i) {
            turn(300, 120); // or what was drawn before could do
            QVERIFY(!strip().grab().isNull());
        }
        qInfo("%lld ms for a picture", qlonglong(time.elapsed() / pictures));
        QVERIFY(time.elapsed() < pictures * 2000);
    }

private:
    void open(const QString &path)
    {
        m_controller->openFiles({path});
        m_window = m_controller->currentWindow();
        QTRY_COMPARE_WITH_TIMEOUT(m_window->path(), path, 20000);
        QTRY_COMPARE_WITH_TIMEOUT(m_window->state(), DocumentWindow::State::Ready, 40000);
        m_window->toolbarMarkers();
        if (overview().isVisible())
            waitForStrip();
    }
    MarkersPane &pane() const { return static_cast<MarkersPane &>(m_window->pane(Tab::Markers)); }
    MarkerOverviewPanel &overview() const { return pane().overview(); }
    MarkerStrip &strip() const { return overview().strip(); }
    void waitForStrip() const { QTRY_VERIFY_WITH_TIMEOUT(!overview().isOutdated(), 20000); }

    /// The index of the marker in the strip.
    std::size_t find(const QString &name) const
    {
        const std::vector<OverviewMarker> &markers = strip().sequence()->markers;
        const auto found =
            std::find_if(markers.begin(), markers.end(), [&name](const OverviewMarker &marker) {
                return marker.record->get(MarkerKey::name) == name;
            });
        if (found == markers.end())
            qFatal("The strip has no marker %s.", qPrintable(name));
        return std::size_t(found - markers.begin());
    }
    int rowOf(const QString &name) const
    {
        return int(columnTexts(*m_window, Tab::Markers, QStringLiteral("name")).indexOf(name));
    }
    QStringList selectedNames() const
    {
        QStringList names;
        for (const std::size_t row : pane().selectedRows())
            names.append(pane().model().recordAt(int(row))->get(MarkerKey::name));
        return names;
    }
    void click(const QPoint &place, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::mouseClick(&strip(), Qt::LeftButton, modifiers, place);
    }
    void turn(double x, int angle, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QPointF place(x, 20);
        QWheelEvent wheel(place, strip().mapToGlobal(place), {}, {0, angle}, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QApplication::sendEvent(&strip(), &wheel);
    }
    void filter(int item) const
    {
        auto *const popUp = pane().findChild<QComboBox *>();
        popUp->setCurrentIndex(item);
        Q_EMIT popUp->activated(item);
        waitForStrip();
    }
};

QTEST_MAIN(OverviewStripTest)
#include "tst_overviewstrip.moc"
