#include "markers/MarkerColors.h"
#include "markers/MarkerComment.h"
#include "markers/MarkerTableValues.h"
#include "markers/QVMarker.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

#include <compare>

using namespace vantrell;

namespace
{

QByteArray marker(const QByteArray &children)
{
    return "<marker>" + children + "</marker>";
}

QByteArray color(int alpha, int red, int green, int blue)
{
    return QStringLiteral("<color><alpha>%1</alpha><red>%2</red><green>%3</green><blue>%4</blue></color>")
        .arg(alpha)
        .arg(red)
        .arg(green)
        .arg(blue)
        .toLatin1();
}

QByteArray clip(const char *name, const QByteArray &content)
{
    return QByteArray("<clipitem id=\"") + name + "-id\"><name>" + name + "</name>" + content + "</clipitem>";
}

QByteArray angle(const QByteArray &state, const char *name)
{
    return "<angle>" + state + "<clip>" + marker(QByteArray("<name>") + name + "</name>") + "</clip></angle>";
}

} // namespace

class MarkerRecordsTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void wholeRecords()
    {
        const MarkerProject project(
            "<xmeml><project><children>"
            "<clip id=\"m\"><name>Master</name>" +
            marker("<out>-1</out><in> 7x</in>") +
            "</clip>"
            "<sequence id=\"q\"><uuid>A</uuid><name>First%20cut</name><timecode><rate><timebase>25</timebase>"
            "<ntsc>TRUE</ntsc></rate><displayformat>DF</displayformat><frame>90000</frame></timecode>"
            "<media><video><track>" +
            clip("C1", "<uuid>U1</uuid>" + marker("<name>on clip</name>")) + clip("C2", marker("")) +
            "</track><track>" + clip("C3", marker("")) + "</track></video></media>" +
            marker("<name>M</name><comment> &lt;SCORING&gt; &lt;CHAPTER&gt;Hi&lt;QVCUSTOM_T&gt;3&lt;"
                   "_QVCUSTOM_T&gt;!</comment><in>5</in><out>15</out>" +
                   color(0, 48, 191, 72)) +
            "</sequence></children></project></xmeml>");
        const QString in = QStringLiteral("/xmeml[1]/project[1]/children[1]/");
        const QString owner =
            in + QStringLiteral("sequence[1]|sequenceUUID=A|sequenceName=First cut|ntsc=true|"
                                "dropFrame=true|timebase=25|startFrame=90000|sequenceIndex=1");
        const QString track = in + QStringLiteral("sequence[1]/media[1]/video[1]/track[%1]/clipitem[%2]");
        const auto onClip = [&](int markerTrack, int item, const QString &name, const QString &clipKeys) {
            return QStringLiteral("color=0|markerElement=") + track.arg(markerTrack).arg(item) +
                   QStringLiteral("/marker[1]|") + name + QStringLiteral("sequence=") + owner +
                   QStringLiteral("|clip=") + track.arg(markerTrack).arg(1) + clipKeys;
        };
        const QString firstClip = QStringLiteral("|clipID=C1-id|clipUUID=U1|clipName=C1|clipIndex=1");
        const QStringList expected = {
            QStringLiteral("color=0|markerElement=") + in +
                QStringLiteral("clip[1]/marker[1]|in= 7x|out=-1|clip=") + in +
                QStringLiteral(
                    "clip[1]|clipID=m|clipName=Master|ntsc=false|dropFrame=false|timebase=0|startFrame=0"),
            onClip(1, 1, QStringLiteral("name=on clip|"), firstClip),
            onClip(1, 2, QString(), firstClip), // the track's first clip stands for all of it
            onClip(2, 1, QString(), QStringLiteral("|clipID=C3-id|clipName=C3|clipIndex=3")),
            QStringLiteral("color=3|markerElement=") + in +
                QStringLiteral(
                    "sequence[1]/marker[1]|name=M|chapter=1|scoring=1|QVCUSTOM_T=3|comment=Hi!|in=5|"
                    "out=15|sequence=") +
                owner,
        };
        QCOMPARE(int(project.document.markerArray().size()), 5);
        for (std::size_t i = 0; i < 5; ++i)
            QCOMPARE(MarkerProject::whole(*project.marker(i)), expected.at(qsizetype(i)));
        QCOMPARE(project.document.tableArray(), project.document.markerArray());
        QVERIFY(!project.document.isPopulating(Tab::Markers));

        const QVMarker typed(*project.marker(4));
        QCOMPARE(typed.inPos.value_or(0) + typed.outPos.value_or(0) + typed.color, 5 + 15 + 3);
        QCOMPARE(typed.customFields.value(QStringLiteral("QVCUSTOM_T")), QStringLiteral("3"));
        QVERIFY(typed.chapter && typed.scoring && !typed.compression && typed.dropFrame);
        QVERIFY(!QVMarker(*project.marker(1)).inPos);
    }

    void owners_data()
    {
        QTest::addColumn<QByteArray>("xml");
        QTest::addColumn<QString>("rows"); // name, sequence UUID, clip name
        const QByteArray named = marker("<name>n</name>");
        QTest::newRow("none at all") << QByteArray("<sequence/>") << QString();
        QTest::newRow("outside everything") << named << QStringLiteral("n|-|-");
        QTest::newRow("like steps share the first sequence")
            << "<bin><sequence><uuid>A</uuid>" + named + "</sequence></bin><bin><sequence><uuid>B</uuid>" +
                   named + "</sequence><sequence><uuid>C</uuid>" + named + "</sequence></bin>"
            << QStringLiteral("n|A|-\nn|A|-\nn|C|-");
        QTest::newRow("the outer step takes the innermost sequence")
            << "<sequence><uuid>A</uuid><x/><sequence><uuid>B</uuid>" + named + "</sequence>" + named +
                   "</sequence>"
            << QStringLiteral("n|B|-\nn|B|-");
        QTest::newRow("a step that only looks like a sequence")
            << "<sequencer>" + named + "</sequencer><sequence><uuid>A</uuid><sequencer>" + named +
                   "</sequencer></sequence>"
            << QStringLiteral("n|A|-");
        QTest::newRow("a nameless clip adds nothing")
            << "<sequence><uuid>A</uuid><clipitem><marker/></clipitem><clipper><clip><name>c</name>" + named +
                   "</clip></clipper></sequence>"
            << QStringLiteral("-|A|-\nn|A|c");
        QTest::newRow("marker in a marker")
            << QByteArray(
                   "<sequence><uuid>A</uuid><marker><marker><name>in</name></marker></marker></sequence>")
            << QStringLiteral("in|A|-\nin|A|-");
        QTest::newRow("angles")
            << "<multiclip>" + angle("<activevideoangle>TRUE</activevideoangle>", "video") +
                   angle("<activevideoangle>no</activevideoangle><activeaudioangle>true</activeaudioangle>",
                         "audio") +
                   angle("<activevideoangle>false</activevideoangle>", "off") + angle("", "bare") +
                   "</multiclip><triangle>" + named + "</triangle>"
            << QStringLiteral("video|-|video\naudio|-|audio");
    }
    void owners()
    {
        QFETCH(QByteArray, xml);
        const MarkerProject project("<xmeml><project><children>" + xml + "</children></project></xmeml>");
        QTEST(project.values(QStringLiteral("name sequenceUUID clipName")), "rows");
    }

    void colors()
    {
        struct Case {
            QByteArray element;
            int index;
        };
        const Case cases[] = {
            {color(0, 255, 127, 0), 1},
            {color(0, 0, 128, 255), 5},
            {color(255, 0, 128, 255), 0},
            {color(0, 0, 129, 255), 0},
            {"<color/>", 0},
            {"<color><red>0</red><red> 255 </red><x>1</x><green>255</green></color>", 2},
            {"", 0},
        };
        QByteArray markers;
        QStringList expected;
        for (const Case &one : cases) {
            markers += marker(one.element);
            expected.append(QString::number(one.index));
        }
        const MarkerProject project("<xmeml><sequence>" + markers + "</sequence></xmeml>");
        QCOMPARE(project.values(QStringLiteral("color")), expected.join(QLatin1Char('\n')));
        QCOMPARE(MarkerColors::indexOfName(QStringLiteral("PurPle")), 6);
        QCOMPARE(MarkerColors::indexOfName(QStringLiteral("Red")), 0);
        QCOMPARE(MarkerColors::table()[4].icon(), QStringLiteral("marker-turquoise"));

        const auto written = [](const QString &xml, std::int64_t index) {
            auto tree = XmlDocument::fromData(xml.toLatin1(), {});
            MarkerColors::setXMLMarkerColorIndex(index, tree.value()->rootElement());
            return XmlDocument::textOfElement(tree.value()->rootElement());
        };
        QCOMPARE(
            written(QStringLiteral("<color><red>1</red></color>"), 5),
            QStringLiteral("<color><red>0</red><alpha>0</alpha><green>128</green><blue>255</blue></color>"));
        QCOMPARE(written(QStringLiteral("<color><blue><a/></blue><blue/>x</color>"), 9),
                 QStringLiteral("<color><blue>0</blue><blue>0</blue>x<alpha>0</alpha><red>255</red>"
                                "<green>0</green></color>"));
    }

    void commentsRead_data()
    {
        QTest::addColumn<QString>("comment");
        QTest::addColumn<QString>("record");
        const auto add = [](const char *comment, const char *record) {
            QTest::newRow(comment) << QString::fromLatin1(comment) << QString::fromLatin1(record);
        };
        add("plain", "comment=plain");
        add(" <CHAPTER>Scene 4", "chapter=1|comment=Scene 4");
        add("<CHAPTER>Scene 4", "chapter=1|comment=<CHAPTER>Scene 4");
        add("a <SCORING> <COMPRESSION> <CHAPTER> <CHAPTER>b", "chapter=1|compression=1|scoring=1|comment=ab");
        add(" <chapter>", "comment= <chapter>");
        add("Note<QVCUSTOM_TAKE>3<_QVCUSTOM_TAKE>", "QVCUSTOM_TAKE=3|comment=Note");
        add("<QVCUSTOM_A>1<_QVCUSTOM_A><QVCUSTOM_B>2<_QVCUSTOM_B>",
            "QVCUSTOM_A=1|comment=<QVCUSTOM_B>2<_QVCUSTOM_B>");
        add("x<QVCUSTOM_A>1<_QVCUSTOM_Z>y", "QVCUSTOM_A=1|comment=xy"); // the names may differ
        add("<QVCUSTOM_><_QVCUSTOM_>", "QVCUSTOM_=|comment=");
        add("<QVCUSTOM_A>1", "comment=<QVCUSTOM_A>1");
        add("<QVCUSTOM_A>1<_QVCUSTOM_A", "comment=<QVCUSTOM_A>1<_QVCUSTOM_A");
        add("<QVCUSTOM_", "comment=<QVCUSTOM_");
        add("<_QVCUSTOM_A>1<QVCUSTOM_A>", "comment=<_QVCUSTOM_A>1<QVCUSTOM_A>");
        add("<QVCUSTOM_A<_QVCUSTOM_A>", "comment=<QVCUSTOM_A<_QVCUSTOM_A>");
    }
    void commentsRead()
    {
        QFETCH(QString, comment);
        RowRecord record;
        MarkerComment::read(comment, record);
        QTEST(MarkerProject::whole(record), "record");
    }

    void manyTagsDoNoHarm()
    {
        const QString tags = QStringLiteral(" <CHAPTER><QVCUSTOM_A>1<_QVCUSTOM_A>").repeated(20000);
        RowRecord record;
        MarkerComment::read(tags, record);
        QCOMPARE(record.get(MarkerKey::comment),
                 QStringLiteral("<QVCUSTOM_A>1<_QVCUSTOM_A>").repeated(19999));
    }

    void shownValues_data()
    {
        QTest::addColumn<QString>("in");
        QTest::addColumn<QString>("out");
        QTest::addColumn<QString>("shown");
        const auto add = [](const char *in, const char *out, const char *shown) {
            QTest::addRow("%s, %s", in, out)
                << QString::fromLatin1(in) << QString::fromLatin1(out) << QString::fromLatin1(shown);
        };
        add("10", "40", "01:00:00:10|00:00:01:00");
        add("10", "-1", "01:00:00:10|00:00:00:00");
        add("10", "10", "01:00:00:10|00:00:00:00");
        add("x", "", "01:00:00:00|00:00:00:00");
        add("4294967306", "-5", "01:00:00:10|00:00:00:00"); // only 32 bits of the in point are shown
        add("1", "0", "01:00:00:01|09:01:52:00");           // a duration below zero wraps around
    }
    void shownValues()
    {
        QFETCH(QString, in);
        QFETCH(QString, out);
        RowRecord record;
        record.set(TimecodeKey::timebase, 30);
        record.set(TimecodeKey::startFrame, 108000);
        record.set(MarkerKey::in, in);
        record.set(MarkerKey::out, out);
        QTEST(MarkerTableValues::inText(record) + QLatin1Char('|') + MarkerTableValues::outText(record),
              "shown");
    }

    void filteredView()
    {
        const auto orange = [](const char *name, int in) {
            return marker(QByteArray("<name>") + name + "</name><in>" + QByteArray::number(in) + "</in>" +
                          color(0, 255, 127, 0));
        };
        MarkerProject project("<xmeml><project><children><sequence><name>b</name><uuid>B</uuid><timecode>"
                              "<frame>100</frame></timecode>" +
                              orange("x", 3) + marker("<name>y</name>") + orange("Y", 1) +
                              "</sequence><sequence><name>a</name><uuid>A</uuid>" + orange("z", 102) +
                              "</sequence></children></project></xmeml>");
        const auto names = [&](int filter, const char *column, bool descending) {
            project.document.viewState().markerFilter = filter;
            project.document.rowView(Tab::Markers)
                .setSortDescriptors({{QString::fromLatin1(column), descending}});
            project.inventory.changeMarkerFilter();
            QString text;
            for (const RowRecordPtr &record : project.document.rowsOnShow(Tab::Markers))
                text += record->get(MarkerKey::name);
            return text;
        };
        QCOMPARE(names(0, "in", true), QStringLiteral("xyYz"));
        QCOMPARE(names(2, "in", false), QStringLiteral("Yzx"));
        QCOMPARE(names(2, "in", true), QStringLiteral("xzY"));
        QCOMPARE(names(2, "sequence", false), QStringLiteral("zxY"));
        QCOMPARE(names(2, "name", true), QStringLiteral("zYx"));
        QCOMPARE(names(1, "name", false), QStringLiteral("y"));
        QCOMPARE(names(8, "name", false), QString());
        using namespace MarkerTableValues;
        QVERIFY(std::is_gt(
            compareIntegersFromString(*project.marker(0), *project.marker(3), QStringLiteral("in"))));
        QVERIFY(std::is_eq(
            compareIntegersFromString(*project.marker(0), *project.marker(2), QStringLiteral("out"))));
        QVERIFY(std::is_gt(compareIntegersFromString(QStringLiteral("10"), QStringLiteral("9"))));
    }

    void closingWhileMarkersAreRead()
    {
        const QByteArray many = QByteArray(marker("<name>n</name>")).repeated(20000);
        MarkerProject project("<xmeml><sequence>" + many + "</sequence></xmeml>");
        QCOMPARE(project.document.markerArray().size(), std::size_t(20000));
        project.document.close();
        project.inventory.populateMarkerData();
        QCOMPARE(project.document.markerArray().size(), std::size_t(20000));
        QVERIFY(!project.document.isPopulating(Tab::Markers));
    }
};

QTEST_GUILESS_MAIN(MarkerRecordsTest)
#include "tst_markerrecords.moc"
