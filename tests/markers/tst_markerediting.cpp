#include "markers/MarkerComment.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/LongSeries.h"
#include "tests/support/TemporaryHome.h"
#include "xml/QVXMLParser.h"

#include <QElapsedTimer>

using namespace vantrell;

namespace
{

/// Two sequences of 30 frames a second, the first drop frame and starting at one hour, with two clips on it.
QByteArray projectWith(const QByteArray &inFirst, const QByteArray &onClip = QByteArray())
{
    return "<xmeml><project><children><sequence id=\"s1\"><uuid>A</uuid><name>One</name><timecode><rate>"
           "<timebase>30</timebase><ntsc>true</ntsc></rate><displayformat>df</displayformat>"
           "<frame>107892</frame></timecode><media><video><track>"
           "<clipitem id=\"c%201\"><name>C1</name><start>100</start><end>200</end><in>7</in>" +
           onClip +
           "</clipitem><clipitem "
           "id=\"c2\"><name>C2</name><uuid>CU</uuid><start>-1</start><end>-1</end><in>9</in>"
           "</clipitem><generatoritem/></track></video></media>" +
           inFirst +
           "</sequence><sequence><uuid>B</uuid><timecode><rate><timebase>25</timebase></rate></timecode>"
           "</sequence></children></project></xmeml>";
}

QByteArray marker(const char *in, const char *out, const char *comment = "")
{
    return QByteArray("<marker><name>m</name><color/><comment>") + comment + "</comment><in>" + in +
           "</in><out>" + out + "</out></marker>";
}

const QString redXml =
    QStringLiteral("<color><alpha>0</alpha><red>255</red><green>0</green><blue>0</blue></color>");

} // namespace

class MarkerEditingTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    static QString text(const RowRecordPtr &record)
    {
        return XmlDocument::textOfElement(record->get(MarkerKey::markerElement));
    }

private Q_SLOTS:
    void addButton()
    {
        MarkerProject p(projectWith(marker("5", "-1") + marker("x", "-1")));
        p.document.viewState().markerFilter = 3;
        p.inventory.changeMarkerFilter(); // shows no row; what is added shows all the same
        for (int i = 0; i < 3; ++i)
            p.editor.addMarker();
        QCOMPARE(p.values(QStringLiteral("name in out comment color")),
                 QStringLiteral(
                     "m|5|-1|-|0\nm|x|-1|-|0\nMarker 1|10|-1||0\nMarker 2|15|-1||0\nMarker 3|20|-1||0"));
        QCOMPARE(p.document.rowsOnShow(Tab::Markers).size(), std::size_t(3));
        QCOMPARE(p.world.selectedRows(Tab::Markers), std::vector<std::size_t>{2});
        QCOMPARE(MarkerProject::whole(*p.marker(2)),
                 QStringLiteral("markerElement=/xmeml[1]/project[1]/children[1]/sequence[1]/marker[3]|"
                                "sequence=/xmeml[1]/project[1]/children[1]/sequence[1]|sequenceIndex=1|"
                                "sequenceUUID=A|sequenceName=One|ntsc=true|dropFrame=true|timebase=30|"
                                "startFrame=107892|name=Marker 1|comment=|color=0|in=10|out=-1"));
        QCOMPARE(text(p.marker(2)), QStringLiteral("<marker><name>Marker 1</name><comment/>") + redXml +
                                        QStringLiteral("<in>10</in><out>-1</out></marker>"));
        QCOMPARE(p.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("A")});
        QVERIFY(p.world.edited);

        // Names and in points become free again by every kind of edit.
        p.set({0}, "name", QStringLiteral("Marker 2"));
        p.set({1}, "name", QStringLiteral("Marker 02"));
        p.set({2}, "in", QStringLiteral("1:00:05;00"));
        p.editor.addMarker();
        QCOMPARE(MarkerProject::values(*p.marker(5), QStringLiteral("name in")),
                 QStringLiteral("Marker 1|20"));
    }

    void addingFreesAndTakes()
    {
        MarkerProject p(projectWith(""));
        for (int i = 0; i < 4; ++i)
            p.editor.addMarker();
        p.set({1}, "name", QStringLiteral("x"));
        p.set({2}, "sequence", QStringLiteral("2"));
        p.editor.addMarker();
        QCOMPARE(MarkerProject::values(*p.marker(4), QStringLiteral("name in")),
                 QStringLiteral("Marker 2|10"));
        p.alerts->queueAnswer(1);
        p.world.selectRows(Tab::Markers, {0, 3});
        p.editor.removeMarkers();
        p.editor.addMarker();
        p.editor.addMarker();
        QCOMPARE(p.values(QStringLiteral("name in sequenceIndex")),
                 QStringLiteral("x|5|1\nMarker 3|10|2\nMarker 2|10|1\nMarker 1|0|1\nMarker 4|15|1"));
    }

    void addingRefused()
    {
        MarkerProject empty("<xmeml><project><children/></project></xmeml>");
        empty.alerts->queueAnswer(1);
        empty.editor.addMarker();
        QCOMPARE(empty.alerts->shown().at(0).text(AlertKey::MessageText),
                 QStringLiteral("Unable to add marker"));
        QVERIFY(!empty.editor.addMarkerWithName(QStringLiteral("n"), 0, 0, QString(), QString()));

        MarkerProject p(projectWith(""));
        const QString before = p.tree();
        // What is no XML; elements, comments and CDATA sections; a name that ends the marker's.
        const QStringList refused = {QStringLiteral("a<b"),
                                     QStringLiteral("<b>x</b>"),
                                     QStringLiteral("<!-- x -->"),
                                     QStringLiteral("<![CDATA[x]]>"),
                                     QStringLiteral("<name>x</name>"),
                                     QStringLiteral("x</name><name>y"),
                                     QStringLiteral("</name><comment>c</comment><in>1</in><name>"),
                                     QStringLiteral("\U0001F3AC<a/>")};
        for (const QString &text : refused) {
            for (const bool isName : {true, false}) {
                p.alerts->queueAnswer(1);
                const QString other = QStringLiteral("x");
                QVERIFY2(!p.editor.addMarkerWithName(isName ? text : other, 0, 0, isName ? other : text,
                                                     QString()),
                         qPrintable(text));
                QCOMPARE(p.alerts->shown().back().text(AlertKey::MessageText),
                         QStringLiteral("Unable to create marker"));
                QVERIFY(!p.alerts->shown().back().text(AlertKey::InformativeText).isEmpty());
            }
        }
        QCOMPARE(p.alerts->shown().size(), std::size_t(2 * refused.size()));
        QVERIFY(!p.editor.addMarkerWithName(QStringLiteral("n"), 0, 0, QString(), QString(), 0));
        QCOMPARE(p.tree(), before);
        QVERIFY(p.document.markerArray().empty() && !p.world.edited);
    }

    void addingWithValues()
    {
        MarkerProject p(projectWith(""));
        const QString n = QStringLiteral("n");
        const RowRecordPtr nameless = p.editor.addMarkerWithName(QStringLiteral(""), n, n, n, n, 2);
        QVERIFY(!nameless->contains(MarkerKey::sequenceName));
        p.editor.addMarkerWithName(QStringLiteral("É&\tü&amp;"), 4294967297, -2, QString(),
                                   QStringLiteral("BLUE"), 2);
        p.editor.addMarkerWithName(n, QStringLiteral("01:00:01;00"), QStringLiteral("01:00:00;10"), n, n);
        p.editor.addMarkerWithName(n, QStringLiteral("x"), QStringLiteral("00:00:00:10"), n, n, 9);
        p.editor.addMarkerWithName(n, QStringLiteral("00:00:02:00"), QStringLiteral("00:00:00:10"), n, n, 2);
        QCOMPARE(
            p.values(QStringLiteral("name comment color in out sequenceUUID sequenceIndex timebase")),
            QStringLiteral(
                "|n|0|0|-1|B|1|25\nÉ&\tü&amp;|-|5|1|-2|B|1|25\n" // the second sequence, and still index 1
                "n|n|0|30|40|A|1|30\n"
                "n|n|0|0|-1|A|1|30\n" // durations are counted from the start frame, too
                "n|n|0|50|60|B|1|25"));
        QCOMPARE(
            text(p.marker(1)),
            QStringLiteral("<marker><name>É&amp;ü&amp;</name><comment/><color><alpha>0</alpha><red>0</red>"
                           "<green>128</green><blue>255</blue></color><in>1</in><out>-2</out></marker>"));
        // A sequence without a name goes by the first one in it, that of its first marker.
        QCOMPARE(p.marker(4)->get(MarkerKey::sequenceName), QStringLiteral("É&ü&"));
        p.set({1}, "name", QStringLiteral("new"));
        const RowRecordPtr third = p.editor.addMarkerWithName(n, 0, 0, n, n, 2);
        QCOMPARE(third->get(MarkerKey::sequenceName), QStringLiteral("new"));
        QCOMPARE(p.document.modifiedSequenceUUIDs(), (QStringList{QStringLiteral("B"), QStringLiteral("A")}));
    }

    void cells_data()
    {
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("record"); // the column's value
        QTest::addColumn<QString>("child");  // of the marker: name=text
        const auto add = [](const char *column, const char *typed, const char *record, const char *child) {
            QTest::addRow("%s %s", column, typed) << QString::fromLatin1(column) << QString::fromUtf8(typed)
                                                  << QString::fromUtf8(record) << QString::fromUtf8(child);
        };
        add("name", " <b> & é\r", " <b> & é\r", "name= <b> & é\r");
        add("comment", "", "", "comment= <CHAPTER><QVCUSTOM_T>3<_QVCUSTOM_T>");
        add("in", "1.", "30", "in=30"); // over 01:00:00:00
        add("in", "00:00:00;00", "-107892", "in=-107892");
        add("in", "no", "0", "in=0");
        add("out", "10", "110", "out=110");
        add("out", "0", "-1", "out=-1");
        add("out", "-1:00:00;00", "-1", "out=-1");
        add("color", "6", "6", "color=01270255");
        add("color", "12x", "12", "color=025500");
        add("chapter", "0", "0", "comment=Hello<QVCUSTOM_T>3<_QVCUSTOM_T>");
        add("scoring", "1", "1", "comment= <SCORING> <CHAPTER>Hello<QVCUSTOM_T>3<_QVCUSTOM_T>");
        add("compression", "yes", "0", "comment= <CHAPTER>Hello<QVCUSTOM_T>3<_QVCUSTOM_T>");
        add("QVCUSTOM_T", "", "", "comment= <CHAPTER>Hello");
        add("QVCUSTOM_U", "4", "4",
            "comment= <CHAPTER>Hello<QVCUSTOM_T>3<_QVCUSTOM_T><QVCUSTOM_U>4<_QVCUSTOM_U>");
    }
    void cells()
    {
        QFETCH(QString, column);
        QFETCH(QString, typed);
        QFETCH(QString, child);
        const char *comment = " &lt;CHAPTER&gt;Hello&lt;QVCUSTOM_T&gt;3&lt;_QVCUSTOM_T&gt;";
        MarkerProject p(projectWith(marker("100", "120", comment)));
        p.set({0}, column.toLatin1().constData(), typed);
        QTEST(MarkerProject::values(*p.marker(0), column), "record");
        const QString name = child.section(QLatin1Char('='), 0, 0);
        const XmlNode element = p.marker(0)->get(MarkerKey::markerElement).childElement(name.toStdString());
        QCOMPARE(name + QLatin1Char('=') + element.stringValue(), child);
        QCOMPARE(p.document.modifiedSequenceUUIDs(), QStringList{QStringLiteral("A")});
    }

    void severalRowsAndMissingChildren()
    {
        MarkerProject p(projectWith("<marker/><marker><in>99999999999999999999</in></marker>"));
        p.set({}, "name", QStringLiteral("nobody"));
        QVERIFY(!p.world.edited);
        p.set({0, 1, 7}, "color", QStringLiteral("1"));
        p.set({0, 1}, "out", QStringLiteral("00:00:00:05"));
        QCOMPARE(text(p.marker(0)),
                 QStringLiteral("<marker><color>1<alpha>0</alpha><red>255</red><green>127</green>"
                                "<blue>0</blue></color><out>5</out></marker>"));
        QCOMPARE(p.marker(1)->get(MarkerKey::out),
                 QStringLiteral("4")); // the low 32 bits of a sum that wraps
    }

    void whatWasRemovedIsNotEdited()
    {
        MarkerProject p(projectWith(marker("50", "-1") + marker("60", "-1"), marker("150", "-1")));
        const RowRecordPtr gone = p.marker(1);
        const RowRecordPtr kept = p.marker(2);
        p.editor.removeXMLMarker(gone);
        const XmlNode clip = p.marker(0)->get(MarkerKey::clip);
        p.document.xmlDoc()->remove(clip);
        const QString before = MarkerProject::whole(*gone) + MarkerProject::whole(*kept) + p.tree();
        p.document.clearModifiedSequenceUUIDs();
        p.document.clearChangeCount();
        std::size_t alerts = 0;
        const auto refuses = [&](const std::function<void()> &edit) {
            p.alerts->queueAnswer(1);
            edit();
            const QString now = MarkerProject::whole(*gone) + MarkerProject::whole(*kept) + p.tree();
            return p.alerts->shown().size() == ++alerts && now == before && !p.document.isEdited() &&
                   !p.document.modifiedSequenceUUIDs();
        };
        QVERIFY(refuses([&] { p.editor.removeXMLMarker(gone); }));
        for (const char *column : {"name", "comment", "in", "out", "color", "chapter", "QVCUSTOM_x"})
            QVERIFY(refuses([&] { p.set({1}, column, QStringLiteral("1")); }));
        QVERIFY(refuses([&] { p.set({1}, "sequence", QStringLiteral("1")); }));
        QVERIFY(refuses([&] { p.set({1}, "clip", QStringLiteral("2")); }));
        QVERIFY(refuses([&] { p.set({2}, "clip", QStringLiteral("1")); })); // the removed clip
        QVERIFY(refuses([&] { p.editor.setXMLMarkerSequence(XmlNode(), clip, kept); }));

        // The rows of markers that went with their owner go, too.
        p.document.rowView(Tab::Markers).show(p.document.markerArray());
        XmlNodeList removed = QVXMLParser::nodesForQuery(QStringLiteral("./marker"), clip).value();
        removed.push_back(gone->get(MarkerKey::markerElement));
        p.editor.dropRemovedMarkers(removed);
        QCOMPARE(p.document.markerArray(), RowList{kept});
        QCOMPARE(p.document.rowsOnShow(Tab::Markers), RowList{kept});
    }

    void moves()
    {
        const QByteArray onClip = marker("150", "-1");
        MarkerProject p(projectWith(onClip + marker("50", "-1") + marker("250", "-1"), onClip));
        const QString keys =
            QStringLiteral("in sequenceIndex sequenceUUID clipIndex clipID clipUUID clipName timebase");
        // 0: on the clip; 1 to 3: on the sequence, inside, before and after the clip.
        const QString start = p.values(keys);
        QCOMPARE(start.section(QLatin1Char('\n'), 0, 0), QStringLiteral("150|1|A|1|c 1|-|C1|30"));
        for (const std::size_t row : {1, 2, 3})
            p.set({row}, "clip", QStringLiteral("1"));
        QCOMPARE(p.values(QStringLiteral("in")), QStringLiteral("150\n57\n8\n106"));
        QCOMPARE(p.marker(1)->get(MarkerKey::markerElement).locationPath(),
                 QStringLiteral("/xmeml[1]/project[1]/children[1]/sequence[1]/media[1]/video[1]/track[1]/"
                                "clipitem[1]/marker[2]"));
        p.set({1, 2}, "clip", QStringLiteral("2")); // from clip to clip; only the first row moves
        QCOMPARE(p.values(keys).section(QLatin1Char('\n'), 1, 1), QStringLiteral("10|1|A|2|c2|CU|C2|30"));
        QCOMPARE(p.values(keys).section(QLatin1Char('\n'), 2, 2), QStringLiteral("8|1|A|1|c 1|-|C1|30"));
        p.set({1}, "clip", QStringLiteral("0")); // back onto the sequence, which has no start
        QCOMPARE(p.values(keys).section(QLatin1Char('\n'), 1, 1), QStringLiteral("10|1|A|-|-|-|-|30"));
        p.set({0}, "sequence", QStringLiteral("2"));
        // Without a name of its own the second sequence goes by the marker's.
        QCOMPARE(MarkerProject::values(*p.marker(0), keys + QStringLiteral(" sequenceName dropFrame")),
                 QStringLiteral("150|2|B|-|-|-|-|25|m|false"));
        QCOMPARE(p.document.modifiedSequenceUUIDs(), (QStringList{QStringLiteral("A"), QStringLiteral("B")}));
        const QString tree = p.tree();
        const int before = int(p.world.events.size());
        for (const char *item : {"0", "-1", "3", "99999999999999999999", ""})
            p.set({1}, "sequence", QString::fromLatin1(item));
        QCOMPARE(int(p.world.events.size()), before);
        p.set({1}, "clip", QStringLiteral("9"));
        QCOMPARE(int(p.world.events.size()), before + 2); // only the table reloads
        QCOMPARE(p.tree(), tree);
    }

    void inPoints_data()
    {
        QTest::addColumn<int>("clipIndex");
        QTest::addColumn<QString>("type");
        QTest::addColumn<QString>("range"); // start, end, in of the new parent
        QTest::addColumn<qint64>("in");
        QTest::addColumn<QString>("result");
        const auto add = [](int index, const char *type, const char *range, qint64 in, const char *result) {
            QTest::addRow("%d to %s %s, %lld", index, type, range, in)
                << index << QString::fromLatin1(type) << QString::fromLatin1(range) << in
                << QString::fromLatin1(result);
        };
        add(0, "clip", "100 200 7", 99, "8");
        add(0, "clip", "100 200 7", 100, "7");
        add(0, "clip", "100 200 7", 200, "107");
        add(0, "clip", "100 200 7", 201, "106");
        add(0, "clip", "-1 -1 9", 5, "8"); // after the end of nothing
        add(2, "clip", "100 200 7", 99, "8");
        add(2, "clip", "100 200 7", 201, "106");
        add(2, "clip", "-1 200 7", 150, "8");
        add(2, "clip", "100 -1 7", 900, "807");
        add(2, "sequence", "40 0 0", 5, "45");
        add(0, "sequence", "40 0 0", 5, "5");
        add(0, "sequence", "0 0 0", 4294967297, "1");
        add(0, "clip", "-9223372036854775808 9223372036854775807 1", 9223372036854775807, "0");
    }
    void inPoints()
    {
        QFETCH(int, clipIndex);
        QFETCH(QString, type);
        QFETCH(QString, range);
        QFETCH(qint64, in);
        const QStringList numbers = range.split(QLatin1Char(' '));
        const auto tree =
            XmlDocument::fromData(QStringLiteral("<c><start>%1</start><end>%2</end><in>%3</in></c>")
                                      .arg(numbers[0], numbers[1], numbers[2])
                                      .toLatin1(),
                                  {});
        RowRecord record;
        record.set(MarkerKey::in, QString::number(in));
        record.set(MarkerKey::clipIndex, clipIndex);
        QTEST(MarkerEditor::inPointForObject(record, tree.value()->rootElement(), type), "result");
    }

    void offsets_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("in");
        const auto add = [](const char *offset, const char *in) {
            QTest::newRow(offset) << QString::fromLatin1(offset) << QString::fromLatin1(in);
        };
        add("12", "112\n12\n-2147483648");
        add("-12", "88\n-12\n2147483624");
        add("-00:00:01:00", "70\n-30\n2147483606");
        add("-1:00", "70\n-30\n2147483606");
        add("1.", "130\n30\n-2147483630");
        add("nothing", "100\n0\n2147483636");
    }
    void offsets()
    {
        QFETCH(QString, text);
        MarkerProject p(projectWith(marker("100", "110") + "<marker/>" + marker("2147483636", "5")));
        p.world.selectRows(Tab::Markers, {0, 1, 2, 3}); // the last is no row
        p.editor.offsetMarkers(text);
        QTEST(p.values(QStringLiteral("in")), "in");
        QCOMPARE(p.marker(0)->get(MarkerKey::out), QStringLiteral("110"));
    }

    void removing()
    {
        MarkerProject p(projectWith(marker("1", "1") + marker("2", "2") + marker("3", "3")));
        p.world.selectRows(Tab::Markers, {});
        p.editor.removeMarkers();
        p.world.selectRows(Tab::Markers, {0, 2});
        p.alerts->queueAnswer(0);
        p.editor.removeMarkers();
        QCOMPARE(p.document.markerArray().size(), std::size_t(3));
        p.alerts->queueAnswer(1);
        p.editor.removeMarkers();
        QCOMPARE(p.values(QStringLiteral("in")), QStringLiteral("2"));
        QCOMPARE(p.document.tableArray(), p.document.markerArray());
        QCOMPARE(p.tree().count(QStringLiteral("<marker>")), qsizetype(1));
        QVERIFY(p.world.selectedRows(Tab::Markers).empty());
        p.world.selectRows(Tab::Markers, {0});
        p.alerts->queueAnswer(-1);
        p.editor.removeMarkers();
        QStringList questions;
        for (const ScriptedAlertPresenter::Shown &shown : p.alerts->shown())
            questions.append(shown.text(AlertKey::MessageText));
        QCOMPARE(questions.mid(1),
                 (QStringList{QStringLiteral("Are you sure you wish to remove these markers?"),
                              QStringLiteral("Are you sure you wish to remove this marker?")}));
    }

    void recordsThatAreNeitherSelectedNorOnShow()
    {
        MarkerProject p(projectWith(marker("1", "-1") + marker("2", "-1") + marker("3", "-1")));
        p.document.viewState().markerFilter = 3;
        p.inventory.changeMarkerFilter();
        p.world.selectRows(Tab::Markers, {0});
        p.editor.setValue({p.marker(2)}, QStringLiteral("name"), QStringLiteral("x"));
        p.editor.offset({p.marker(0), p.marker(2)}, QStringLiteral("00:00:01:00"), {p.marker(1)});
        p.editor.offset({p.marker(2)}, QStringLiteral("-00:00:00:01"), {});
        QVERIFY(!p.editor.remove({}));
        p.alerts->queueAnswer(1);
        QVERIFY(p.editor.remove({p.marker(1)}));
        QCOMPARE(p.values(QStringLiteral("name in")), QStringLiteral("m|31\nx|32"));
        QCOMPARE(p.world.selectedRows(Tab::Markers), std::vector<std::size_t>{0});
    }

    /// The markers are listed anew while the question shows.
    void removesRowsOfANewList()
    {
        MarkerProject p(projectWith(marker("1", "-1") + marker("2", "-1") + marker("3", "-1")));
        p.alerts->queueEvent([&p] {
            p.inventory.populateMarkerData();
            p.alerts->answerOpenAlert(AlertAnswer::Default);
        });
        QVERIFY(p.editor.remove({p.marker(0), p.marker(2)}));
        QCOMPARE(p.document.markerArray().size(), std::size_t(1));
        QCOMPARE(p.tree().count(QStringLiteral("<marker>")), 1);
        p.editor.setValue({p.marker(0)}, QStringLiteral("name"), QStringLiteral("left"));
        QVERIFY(p.tree().contains(QStringLiteral("left")));
    }

    void recordsWithoutElement()
    {
        MarkerProject p(projectWith(marker("1", "1") + marker("2", "2"), marker("2", "2")));
        const auto find = [&p](std::size_t row, const char *name) {
            const auto record = std::make_shared<RowRecord>(*p.marker(row));
            record->remove(MarkerKey::markerElement);
            if (row == 0) // the clip's id as it is written
                record->set(MarkerKey::clipID, QStringLiteral("c%201"));
            p.editor.updateXMLMarker(record, QStringLiteral("name"), QString::fromLatin1(name));
        };
        find(2, "second");
        find(0, "on clip");
        QVERIFY(p.tree().contains(QStringLiteral("<in>2</in>")));
        const auto nameOf = [&p](std::size_t row) {
            return p.marker(row)->get(MarkerKey::markerElement).childElement("name").stringValue();
        };
        QCOMPARE(nameOf(0) + nameOf(1) + nameOf(2), QStringLiteral("on clipmsecond"));
        const QString tree = p.tree();
        find(1, "none");
        find(1, "none"); // now nothing fits any more, and the sequence still counts as changed
        QCOMPARE(p.tree(), QString(tree).replace(QStringLiteral("<name>m<"), QStringLiteral("<name>none<")));
    }

    void withoutATree()
    {
        MarkerProject p("no project");
        const auto record = std::make_shared<RowRecord>();
        p.alerts->queueAnswer(1);
        p.alerts->queueAnswer(1);
        p.editor.updateXMLMarker(record, QStringLiteral("name"), QStringLiteral("n"));
        p.editor.removeXMLMarker(record);
        QCOMPARE(p.alerts->shown().at(0).text(AlertKey::MessageText),
                 QStringLiteral("Unable to change setting"));
        QCOMPARE(p.alerts->shown().at(1).text(AlertKey::MessageText),
                 QStringLiteral("Unable to remove marker"));
        QVERIFY(!p.world.edited && !record->contains(MarkerKey::name));
    }

    /// Each step takes a time that grows with the number of rows; were one to look through all rows for
    /// each row, it would take minutes.
    void manyRows()
    {
        MarkerProject p(projectWith(QByteArray(marker("1", "-1")).repeated(longWork(20000))));
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < longWork(5000); ++i) {
            p.editor.addMarker();
            p.editor.addMarkerWithName(QStringLiteral("n"), QString(), QString(), QString(), QString(), 2);
        }
        std::vector<std::size_t> rows(std::size_t(longWork(30000)));
        for (std::size_t i = 0; i < rows.size(); ++i)
            rows[i] = i;
        p.world.selectRows(Tab::Markers, rows);
        p.editor.offsetMarkers(QStringLiteral("5"));
        p.alerts->queueAnswer(1);
        p.editor.removeMarkers();
        QVERIFY(p.document.markerArray().empty());
        QVERIFY2(timer.elapsed() < 40000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_GUILESS_MAIN(MarkerEditingTest)
#include "tst_markerediting.moc"
