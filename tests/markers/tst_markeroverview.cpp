#include "markers/MarkerOverview.h"
#include "markers/SequenceClips.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

using namespace vantrell;

namespace
{

QByteArray marker(const char *name, int in, int out, const char *more = "")
{
    return QByteArray("<marker><name>") + name + "</name><in>" + QByteArray::number(in) + "</in><out>" +
           QByteArray::number(out) + "</out>" + more + "</marker>";
}

QByteArray clip(const char *name, int start, int end, const QByteArray &more = {})
{
    return QByteArray("<clipitem><name>") + name + "</name>" + more + "<start>" + QByteArray::number(start) +
           "</start><end>" + QByteArray::number(end) + "</end></clipitem>";
}

QByteArray sequence(const char *name, const QByteArray &content)
{
    return QByteArray("<sequence><uuid>") + name + "</uuid><name>" + name +
           "</name><timecode><rate><timebase>25</timebase></rate><frame>90000</frame></timecode>" + content +
           "</sequence>";
}

const QByteArray green("<color><alpha>0</alpha><red>48</red><green>191</green><blue>72</blue></color>");

MarkerOverview overviewOf(const RowList &list, const RowList &visible, std::size_t rowsAtOnce = 1000)
{
    MarkerOverviewBuilder builder;
    while (!builder.work(list, rowsAtOnce)) {
    }
    MarkerOverview overview = builder.take();
    ShownMarkers shown;
    while (!shown.work(overview, list, visible, rowsAtOnce)) {
    }
    shown.apply(overview);
    return overview;
}

/// "name start-end", with the index of the colour, "?" if it is not in the table and "*" if selected.
QString textOf(const OverviewSequence &sequence)
{
    QStringList markers;
    for (const OverviewMarker &one : sequence.markers)
        markers.append(QStringLiteral("%1 %2-%3 c%4%5%6")
                           .arg(one.record->get(MarkerKey::name))
                           .arg(one.start)
                           .arg(one.end)
                           .arg(one.color)
                           .arg(one.isShown ? QString() : QStringLiteral("?"),
                                one.isSelected ? QStringLiteral("*") : QString()));
    return markers.join(QStringLiteral(", "));
}

/// Markers from words such as "30-60:3*": the range, the colour, "?" and "*" as above; by their start.
OverviewSequence sequenceOf(const QString &words)
{
    OverviewSequence sequence;
    for (const QString &word : words.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        OverviewMarker one;
        const QString range = word.section(QLatin1Char(':'), 0, 0);
        one.start = range.section(QLatin1Char('~'), 0, 0).toLongLong();
        one.end =
            range.contains(QLatin1Char('~')) ? range.section(QLatin1Char('~'), 1).toLongLong() : one.start;
        one.color = std::uint8_t(word.section(QLatin1Char(':'), 1).at(0).digitValue());
        one.isShown = !word.endsWith(QLatin1Char('?'));
        one.isSelected = word.endsWith(QLatin1Char('*'));
        sequence.markers.push_back(one);
    }
    return sequence;
}

/// The indexes of the markers, a character for each pixel.
QString pixels(const std::vector<OverviewColumn> &columns, std::size_t OverviewColumn::*what)
{
    QString text;
    for (const OverviewColumn &column : columns)
        text += column.*what == OverviewColumn::none ? QLatin1Char('.')
                                                     : QLatin1Char(char('0' + int(column.*what)));
    return text;
}

} // namespace

class MarkerOverviewTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void clips_data()
    {
        QTest::addColumn<QByteArray>("video");
        QTest::addColumn<QByteArray>("audio");
        QTest::addColumn<QString>("clips");
        QTest::addColumn<int>("duration");

        const auto transition = [](const char *alignment) {
            return QByteArray("<transitionitem><start>40</start><end>60</end><alignment>") + alignment +
                   "</alignment></transitionitem>";
        };
        const QByteArray two = "<track>" + clip("A", 0, 50) + clip("B", 50, 100) + "</track>";
        const QByteArray sound = "<track>" + clip("S", 10, 70) + "</track>";
        const QByteArray off = "<enabled>FALSE</enabled>";
        const QByteArray dissolve = transition("center");
        QTest::newRow("one track") << two << sound << "A 0-50, B 50-100" << 100;
        QTest::newRow("a title above the cut") << two + "<track>" + clip("T", 40, 60) + "</track>" << sound
                                               << "A 0-40, T 40-60, B 60-100" << 100;
        QTest::newRow("a clip that hides the cut")
            << two + "<track>" + clip("T", 0, 120) + "</track>" << sound << "T 0-120" << 120;
        QTest::newRow("a clip that is off")
            << two + "<track>" + clip("T", 40, 60, off) + "</track>" << sound << "A 0-50, B 50-100" << 100;
        QTest::newRow("a track that is off")
            << two + "<track>" + off + clip("T", 40, 60) + "</track>" << sound << "A 0-50, B 50-100" << 100;
        QTest::newRow("a gap") << QByteArray("<track>" + clip("A", 5, 20) + clip("B", 30, 40) + "</track>")
                               << sound << "A 5-20, B 30-40" << 40;
        QTest::newRow("dissolve") << QByteArray("<track>" + clip("A", 0, -1) + dissolve + clip("B", -1, 90) +
                                                "</track>")
                                  << sound << "A 0-50, B 50-90" << 90;
        QTest::newRow("fade at the start of the cut")
            << QByteArray("<track>" + clip("A", 0, -1) + transition("start-black") + clip("B", -1, 90) +
                          "</track>")
            << sound << "A 0-40, B 40-90" << 90;
        QTest::newRow("nested sequence")
            << QByteArray("<track>" +
                          clip("N", 0, 30, sequence("Inner", "<media><video>" + two + "</video></media>")) +
                          "</track>")
            << sound << "N 0-30" << 30;
        QTest::newRow("sound alone") << QByteArray("<track></track>")
                                     << sound + "<track>" + clip("R", 0, 80) + "</track>"
                                     << "R 0-10, S 10-70, R 70-80" << 80;
        QTest::newRow("nothing") << QByteArray() << QByteArray() << "" << 0;
    }
    void clips()
    {
        QFETCH(QByteArray, video);
        QFETCH(QByteArray, audio);
        const QByteArray media = "<media><video>" + video + "</video><audio>" + audio + "</audio></media>";
        MarkerProject p(project(sequence("One", media)));
        const XmlNode element = p.document.sequenceMenu()->at(1).element;
        const SequenceClips read = SequenceClips::read(element);
        QStringList clips;
        for (const SequenceClips::Clip &one : read.clips)
            clips.append(QStringLiteral("%1 %2-%3")
                             .arg(QVXMLParser::nameForNode(one.element).value_or(QString()))
                             .arg(one.start)
                             .arg(one.end));
        QTEST(clips.join(QStringLiteral(", ")), "clips");
        QTEST(int(read.duration), "duration");
    }

    void statedDuration()
    {
        MarkerProject p(project(sequence("One", "<duration>400</duration><media><video><track>" +
                                                    clip("A", 0, 50) + "</track></video></media>")));
        QCOMPARE(SequenceClips::read(p.document.sequenceMenu()->at(1).element).duration, std::int64_t(400));
        QVERIFY(SequenceClips::read(XmlNode()).clips.empty());
    }

    void builds()
    {
        MarkerProject p(project(
            sequence("One", marker("late", 70, 80) + marker("early", 10, -1, green.constData()) +
                                "<media><video><track>" + clip("A", 0, 50, marker("on clip", 30, -1)) +
                                "</track></video></media>") +
            sequence("Two", marker("alone", -5, 3)) + "<clip id=\"c\"><name>C</name>" +
            marker("in bin", 1, 2) + "</clip>"));
        const RowList &list = p.document.markerArray();
        QCOMPARE(list.size(), std::size_t(5));
        // However many rows are taken at once, and in whatever order the table has them.
        for (const std::size_t rowsAtOnce : {1, 2, 1000}) {
            MarkerOverview overview = overviewOf(list, list, rowsAtOnce);
            QCOMPARE(overview.sequences().size(), std::size_t(2));
            const OverviewSequence &one = *overview.largest();
            QCOMPARE(one.name, QStringLiteral("One"));
            QCOMPARE(one.timing.startFrame, std::int64_t(90000));
            QCOMPARE(textOf(one), QStringLiteral("early 10-10 c3, on clip 30-30 c0, late 70-80 c0"));
            QCOMPARE(textOf(overview.sequences()[1]), QStringLiteral("alone -5-3 c0"));
            QCOMPARE(overview.find(one.element), &one);
            QVERIFY(!overview.find(list[4]->get(MarkerKey::clip)));

            overview = overviewOf(list, {list[3], list[1]}, rowsAtOnce);
            overview.select({list[1]});
            QCOMPARE(textOf(*overview.largest()),
                     QStringLiteral("early 10-10 c3*, on clip 30-30 c0?, late 70-80 c0?"));
            overview.select({});
            QCOMPARE(textOf(overview.sequences()[1]), QStringLiteral("alone -5-3 c0"));
        }
        QVERIFY(!overviewOf({}, {}).largest());
    }

    void columns_data()
    {
        QTest::addColumn<QString>("markers");
        QTest::addColumn<double>("first");
        QTest::addColumn<QString>("heads");
        QTest::addColumn<QString>("bars");

        // Eleven pixels of ten frames each; 100 is the last frame.
        QTest::newRow("apart") << "0:1 25:2 99:3" << 0.0 << "0.1......2."
                               << "...........";
        QTest::newRow("the most frequent colour") << "0:1 5:2 6:2 40:4" << 0.0 << "1...3......"
                                                  << "...........";
        QTest::newRow("the table before others") << "0:1? 5:1? 6:2" << 0.0 << "2.........."
                                                 << "...........";
        QTest::newRow("the selected one first") << "0:1 5:1 6:2*" << 0.0 << "2.........."
                                                << "...........";
        QTest::newRow("a bar") << "30~60:3" << 0.0 << "...0......."
                               << "...000.....";
        QTest::newRow("part of a pixel") << "38~41:3" << 0.0 << "...0......."
                                         << "...00......";
        QTest::newRow("a bar over a bar") << "30~60:3 40~50:4" << 0.0 << "...01......"
                                          << "...010.....";
        QTest::newRow("a faint bar") << "30~60:3 40~70:4?" << 0.0 << "...01......"
                                     << "...0001....";
        QTest::newRow("a selected bar") << "30~60:3* 40~70:4" << 0.0 << "...01......"
                                        << "...0001....";
        QTest::newRow("outside the range") << "-20~15:1 500~600:2" << 0.0 << "0.........1"
                                           << "00.........";
        QTest::newRow("from beyond the edge") << "10~80:1 60:2" << 50.0 << ".1........."
                                              << "000........";
    }
    void columns()
    {
        QFETCH(QString, markers);
        QFETCH(double, first);
        const auto columns = sequenceOf(markers).columns({first, 0.1, 11, 100});
        QTEST(pixels(columns, &OverviewColumn::head), "heads");
        QTEST(pixels(columns, &OverviewColumn::bar), "bars");
    }

    void counts()
    {
        const auto columns =
            sequenceOf(QStringLiteral("0:1 5:2 6:2 7:3? 15:4? 16:4?")).columns({0, 0.1, 3, 30});
        QCOMPARE(columns[0].count, 3U);
        QCOMPARE(columns[1].count, 2U);
        QCOMPARE(columns[2].count, 0U);
    }

    void findsMarkers_data()
    {
        QTest::addColumn<QString>("markers");
        QTest::addColumn<double>("x");
        QTest::addColumn<QList<int>>("found");

        QTest::newRow("none") << "10:1 90:1" << 50.0 << QList<int>{};
        QTest::newRow("the nearest first") << "46:1 49:1 53:1 54:1 56:1" << 50.0 << QList<int>{1, 2, 0, 3};
        QTest::newRow("faint ones last") << "48:1 50:1? 53:1" << 50.0 << QList<int>{0, 2, 1};
        QTest::newRow("bars where none begins")
            << "10~60:1 20~80:1? 30~90:1 35~40:1" << 50.0 << QList<int>{2, 0, 1};
        QTest::newRow("at the edges of the range") << "-70:1 130:1" << 100.0 << QList<int>{1};
        QTest::newRow("before the first frame") << "-70:1 130:1" << 2.0 << QList<int>{0};
    }
    void findsMarkers()
    {
        QFETCH(QString, markers);
        QFETCH(double, x);
        QList<int> found;
        for (const std::size_t index : sequenceOf(markers).markersAt({0, 1, 100, 100}, x, 4))
            found.append(int(index));
        QTEST(found, "found");
    }

    void neighboursAndRange()
    {
        const OverviewSequence markers = sequenceOf(QStringLiteral("10:1 20:1? 30~90:1 30:1 40:1?"));
        QCOMPARE(markers.after(10), std::size_t(2));
        QCOMPARE(markers.after(30), OverviewColumn::none);
        QCOMPARE(markers.before(30), std::size_t(0));
        QCOMPARE(markers.before(10), OverviewColumn::none);

        QCOMPARE(markers.rangeEnd(200), std::int64_t(200));
        QCOMPARE(markers.rangeEnd(45), std::int64_t(90)); // as far as the bar
        QCOMPARE(markers.rangeEnd(25), std::int64_t(41)); // the bar is longer than that twice
        QCOMPARE(markers.rangeEnd(0), std::int64_t(90));
        QCOMPARE(OverviewSequence().rangeEnd(0), std::int64_t(1));
    }
};

QTEST_GUILESS_MAIN(MarkerOverviewTest)
#include "tst_markeroverview.moc"
