#include "markers/MarkerNavigation.h"
#include "markers/MarkerSearch.h"
#include "markers/MarkerTotals.h"
#include "markers/TimecodeEntry.h"
#include "rows/RowSort.h"
#include "support/threads/BackgroundWork.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

#include <QRandomGenerator>

using namespace vantrell;

namespace
{

QByteArray marker(const QByteArray &name, const QByteArray &comment, const QByteArray &in,
                  const char *out = "-1", const char *color = "")
{
    return "<marker><name>" + name + "</name><comment>" + comment + "</comment><in>" + in + "</in><out>" +
           out + "</out>" + color + "</marker>";
}

const char *const blue = "<color><red>0</red><green>128</green><blue>255</blue></color>";

QByteArray sequence(const char *name, const char *timebase, const char *startFrame, const QByteArray &content)
{
    return QByteArray("<sequence><uuid>") + name + "</uuid><name>" + name +
           "</name><timecode><rate><timebase>" + timebase + "</timebase></rate><frame>" + startFrame +
           "</frame></timecode>" + content + "</sequence>";
}

/// Reel: a, b, c, d; Trailer: e, and f on the clip "Pier".
QByteArray twoSequences()
{
    return project(
        sequence("Reel", "25", "90000",
                 marker("a", "Fog horn", "300", "325") + marker("b", "&lt;CHAPTER&gt;", "100", "-1", blue) +
                     marker("c", "&lt;QVCUSTOM_TAKE&gt;Horn 3&lt;_QVCUSTOM_TAKE&gt;", "200", "210") +
                     marker("d", "&lt;CHAPTER&gt;&lt;SCORING&gt;", "400", "-1", blue)) +
        sequence("Trailer", "30", "0",
                 "<media><video><track><clipitem id=\"p\"><name>Pier</name>" + marker("f", "", "7", "37") +
                     "</clipitem></track></video></media>" + marker("e", "horn", "50", "-1", blue)));
}

QString names(const RowList &rows)
{
    QString names;
    for (const RowRecordPtr &row : rows)
        names += row->get(MarkerKey::name);
    return names;
}

struct SearchedMarkers : MarkerProject {
    SearchedMarkers()
        : MarkerProject(twoSequences())
    {
    }
    QString shown() const { return names(document.rowsOnShow(Tab::Markers)); }
    QString shown(const MarkerSearch::Conditions &conditions)
    {
        search.setConditions(conditions);
        return shown();
    }
    QString shown(const char *text) { return shown({.text = QString::fromUtf8(text)}); }

    MarkerSearch search{document};
};

} // namespace

class MarkerSearchTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void allConditionsHold_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("sequence");
        QTest::addColumn<int>("flag");
        QTest::addColumn<int>("filter"); // item of the colour pop-up
        QTest::addColumn<QString>("expected");
        const auto add = [](const char *name, const char *text, int sequence, int flag, int filter,
                            const char *expected) {
            QTest::newRow(name) << QString::fromUtf8(text) << sequence << flag << filter
                                << QString::fromUtf8(expected);
        };
        const int chapter = int(MarkerFlag::Chapter);
        const int scoring = int(MarkerFlag::Scoring);
        add("none", "", 0, -1, 0, "abcdfe");
        add("name", "B", 0, -1, 0, "b");
        add("comment and field", "HORN", 0, -1, 0, "ace");
        add("clip", "pier", 0, -1, 0, "f");
        add("sequence's name", "reel", 0, -1, 0, "abcd");
        add("no timecode", "01:00", 0, -1, 0, "");
        add("sequence", "", 2, -1, 0, "fe");
        add("sequence and text", "horn", 1, -1, 0, "ac");
        add("chapter", "", 0, chapter, 0, "bd");
        add("scoring", "", 0, scoring, 0, "d");
        add("colour, chapter and text", "reel", 0, chapter, 6, "bd");
        add("colour alone", "", 0, -1, 6, "bde");
    }
    void allConditionsHold()
    {
        QFETCH(QString, text);
        QFETCH(int, sequence);
        QFETCH(int, flag);
        QFETCH(int, filter);
        SearchedMarkers p;
        p.inventory.populateFilteredMarkerData();
        MarkerSearch::Conditions conditions{.text = text};
        if (sequence > 0)
            conditions.sequence = sequence;
        if (flag >= 0)
            conditions.flag = MarkerFlag(flag);
        p.document.viewState().markerFilter = filter;
        p.inventory.changeMarkerFilter();
        QTEST(p.shown(conditions), "expected");
        // They hold for what is shown for another reason, too.
        p.inventory.changeMarkerFilter();
        QTEST(p.shown(), "expected");
    }

    void keepsTheOrder()
    {
        SearchedMarkers p;
        p.inventory.populateFilteredMarkerData();
        QCOMPARE(p.shown("reel"), QStringLiteral("abcd"));
        p.document.rowView(Tab::Markers).sortBy({{QStringLiteral("in"), true}});
        QCOMPARE(p.shown(), QStringLiteral("dacb"));
        QCOMPARE(
            p.shown(MarkerSearch::Conditions{.text = QStringLiteral("reel"), .flag = MarkerFlag::Chapter}),
            QStringLiteral("db"));
        p.document.rowView(Tab::Markers).sortBy({{QStringLiteral("name"), true}});
        QCOMPARE(p.shown(), QStringLiteral("db"));
        QCOMPARE(
            p.shown(MarkerSearch::Conditions{.text = QStringLiteral("reel "), .flag = MarkerFlag::Chapter}),
            QString());
        p.document.rowView(Tab::Markers).sortBy({{QStringLiteral("in"), true}});
        QCOMPARE(p.shown("ree"), QStringLiteral("dacb"));
        QCOMPARE(p.shown(""), QStringLiteral("dacbef"));
        QVERIFY(p.document.rowView(Tab::Markers).order() == RowView::Order::Sorted);
    }

    /// Whatever was typed and sorted before, the table shows what a look at each marker of the list finds, in
    /// its order.
    void showsWhatASimpleSearchShows()
    {
        QRandomGenerator random(1);
        const auto letters = [&random](int count) {
            QByteArray text;
            for (; count > 0; --count)
                text += char('a' + random.bounded(4));
            return text;
        };
        QByteArray markers;
        for (int i = 0; i < 60; ++i) {
            const QByteArray comment = letters(2) + (i % 3 == 0 ? "&lt;CHAPTER&gt;" : "");
            const QByteArray number = QByteArray::number(i * 7 % 61);
            markers += marker(letters(3) + number, comment, number, "-1", i % 4 == 0 ? blue : "");
        }
        MarkerProject p(project(sequence("1", "25", "0", markers)));
        MarkerSearch search(p.document);
        p.inventory.populateFilteredMarkerData();
        RowView &view = p.document.rowView(Tab::Markers);
        MarkerSearch::Conditions conditions;
        for (int step = 0; step < 600; ++step) {
            switch (random.bounded(12)) {
            case 0:
                view.sortBy({{QLatin1String(random.bounded(2) ? "name" : "in"), random.bounded(2) == 1}});
                break;
            case 1:
                p.document.viewState().markerFilter = random.bounded(2) * 6; // blue
                p.inventory.changeMarkerFilter();
                break;
            case 2:
                conditions.flag = random.bounded(2) ? std::optional(MarkerFlag::Chapter) : std::nullopt;
                break;
            case 3:
                conditions = {};
                break;
            case 4:
            case 5:
            case 6:
                conditions.text.chop(1);
                break;
            default:
                conditions.text += QString::fromLatin1(letters(1));
            }
            if (random.bounded(2)) {
                search.prepare(std::chrono::hours(1));
                BackgroundWork::waitForAll(std::chrono::seconds(20));
            }
            search.setConditions(conditions);
            RowList expected;
            for (const RowRecordPtr &row : view.list()) {
                const bool isHit =
                    row->get(MarkerKey::name).contains(conditions.text) ||
                    row->get(MarkerKey::comment).contains(conditions.text, Qt::CaseInsensitive);
                const bool isBlue = row->get(MarkerKey::color) == 5;
                if (isHit && (!conditions.flag || hasFlag(*row, *conditions.flag)) &&
                    (p.document.viewState().markerFilter == 0 || isBlue))
                    expected.push_back(row);
            }
            if (view.order() == RowView::Order::Sorted)
                expected = sortedRows(expected, view.sortDescriptors(), view.columns());
            QCOMPARE(names(view.visibleRows()), names(expected));
        }
    }

    void findsWhatWasEdited()
    {
        SearchedMarkers p;
        p.inventory.populateFilteredMarkerData();
        QCOMPARE(p.shown("fog"), QStringLiteral("a"));
        p.set({0}, "comment", QStringLiteral("Storm"));
        QCOMPARE(p.shown(), QStringLiteral("a")); // it does not go away while it is edited
        QCOMPARE(p.shown("fog h"), QString());
        QCOMPARE(p.shown("sto"), QStringLiteral("a"));
        p.set({0}, "comment", QStringLiteral("Fog horn"));
        QCOMPARE(p.shown("stor"), QString());
        QCOMPARE(p.shown("fog"), QStringLiteral("a"));
    }

    void whatIsAddedStaysUntilTheSearchChanges()
    {
        SearchedMarkers p;
        p.inventory.populateFilteredMarkerData();
        QCOMPARE(p.shown("hor"), QStringLiteral("ace"));
        p.editor.addMarker();
        QCOMPARE(p.shown(), QStringLiteral("aceMarker 1"));
        QCOMPARE(p.world.selectedRows(Tab::Markers), std::vector<std::size_t>{3});
        QCOMPARE(p.shown("horn"), QStringLiteral("ace"));
        QCOMPARE(p.shown("MARKER"), QStringLiteral("Marker 1"));
        QCOMPARE(p.shown(""), QStringLiteral("abcdfeMarker 1"));
    }

    void waitsForItsTab()
    {
        SearchedMarkers p;
        p.document.rowView(Tab::Effects).show({});
        p.search.setConditions({.text = QStringLiteral("fog")});
        QVERIFY(p.document.rowsOnShow(Tab::Markers).empty());
        QVERIFY(p.search.prepare(std::chrono::hours(1)));
        p.inventory.populateFilteredMarkerData();
        QCOMPARE(p.shown(), QStringLiteral("a"));
        p.inventory.populateMarkerData(); // other records
        QCOMPARE(p.shown(), QStringLiteral("a"));
        QCOMPARE(p.shown("f"), QStringLiteral("af")); // f by its name
    }

    void endsWithTheObject()
    {
        MarkerProject p(twoSequences());
        {
            MarkerSearch search(p.document);
            search.setConditions({.text = QStringLiteral("fog")});
            p.inventory.populateFilteredMarkerData();
            QCOMPARE(names(p.document.rowsOnShow(Tab::Markers)), QStringLiteral("a"));
        }
        p.inventory.populateFilteredMarkerData();
        QCOMPARE(names(p.document.rowsOnShow(Tab::Markers)), QStringLiteral("abcdfe"));
    }

    void goesToTheNextOfAColor()
    {
        using enum MarkerNavigation::Direction;
        MarkerProject p(twoSequences());
        const RowList &rows = p.document.markerArray(); // a b c d f e
        const auto next = [&rows](std::size_t row, MarkerNavigation::Direction direction) {
            const auto found = MarkerNavigation::nextOfColor(rows, row, direction);
            return found ? rows[*found]->get(MarkerKey::name) : QString();
        };
        QCOMPARE(next(1, Down), QStringLiteral("d"));
        QCOMPARE(next(3, Down), QStringLiteral("e"));
        QCOMPARE(next(5, Down), QString());
        QCOMPARE(next(5, Up), QStringLiteral("d"));
        QCOMPARE(next(2, Up), QStringLiteral("a"));
        QCOMPARE(next(0, Up), QString());
        QVERIFY(!MarkerNavigation::nextOfColor({}, 0, Down));
    }

    void findsATimecode_data()
    {
        QTest::addColumn<int>("from"); // row whose sequence counts
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("timecode");
        QTest::addColumn<QString>("expected");
        const auto add = [](const char *name, int from, const char *typed, const char *timecode,
                            const char *expected) {
            QTest::newRow(name) << from << QString::fromLatin1(typed) << QString::fromLatin1(timecode)
                                << QString::fromLatin1(expected);
        };
        // In points from the start of the hour: b 4 s, c 8 s, a 12 s, d 16 s.
        add("exactly", 0, "01:00:08:00", "01:00:08:00", "c");
        add("digits", 0, "800", "01:00:08:00", "c");
        add("a full stop", 0, "15.", "01:00:15:00", "d");
        add("the first of two that are as near", 0, "1000", "01:00:10:00", "a");
        add("before all", 0, "00:59:00:00", "00:59:00:00", "b");
        add("beyond all", 3, "02:00:00:00", "02:00:00:00", "d");
        // At 30 frames a second from zero: f at frame 7, e at frame 50.
        add("in the other sequence", 5, "00:00:01:00", "00:00:01:00", "e");
        add("in it near the beginning", 5, "20", "00:00:00:20", "f");
    }
    void findsATimecode()
    {
        QFETCH(int, from);
        QFETCH(QString, typed);
        MarkerProject p(twoSequences());
        const RowList &rows = p.document.markerArray();
        const TimecodeEntry::Reading place = TimecodeEntry::ofPlace(typed, *rows[std::size_t(from)]);
        QTEST(place.timecode, "timecode");
        const auto row = MarkerNavigation::nearestRow(rows, *rows[std::size_t(from)], place.frames);
        QVERIFY(row);
        QTEST(rows[*row]->get(MarkerKey::name), "expected");
    }

    void addsDurations()
    {
        MarkerProject p(twoSequences());
        const RowList &rows = p.document.markerArray(); // a: 25, c: 10 frames at 25; f: 30 at 30
        QCOMPARE(totalDurationText({rows[0], rows[2]}), QStringLiteral("00:00:01:10"));
        QCOMPARE(totalDurationText(rows), QStringLiteral("00:00:02:10"));
        QCOMPARE(totalDurationText({rows[4], rows[2], rows[0]}), QStringLiteral("00:00:02:10"));
        QCOMPARE(totalDurationText({rows[4]}), QStringLiteral("00:00:01:00"));
        QCOMPARE(totalDurationText({rows[1], rows[3]}), QString());
        QCOMPARE(totalDurationText({}), QString());
        // 20 hours, twice.
        rows[0]->set(MarkerKey::out, QString::number(300 + 20 * 90000));
        QCOMPARE(totalDurationText({rows[0], rows[0]}), QStringLiteral("40:00:00:00"));
    }
};

QTEST_GUILESS_MAIN(MarkerSearchTest)
#include "tst_markersearch.moc"
