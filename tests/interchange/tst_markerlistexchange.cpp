#include "document/MyDocument.h"
#include "interchange/MarkerListExporter.h"
#include "interchange/MarkerListImporter.h"
#include "markers/MarkerEditor.h"
#include "markers/MarkerFields.h"
#include "markers/MarkerInventory.h"
#include "markers/MarkerKeys.h"
#include "support/QVAlert.h"
#include "support/QVLog.h"
#include "tests/support/ScriptedAlertPresenter.h"
#include "tests/support/ScriptedDocumentInterface.h"
#include "tests/support/TemporaryHome.h"

#include <QtTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

constexpr int accepted = MarkerListPanel::accepted;
const QByteArray fcpHeader("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n");

/// What stands in a marker's record before its place in the tree.
struct MarkerValues {
    const char *name;
    const char *comment; ///< null for none
    const char *in;
    const char *out;
    int color = 0;
    const char *clipName = nullptr;
    const char *sequenceName = "Edit";
    std::int64_t timebase = 30;
    bool dropFrame = false;
    std::int64_t startFrame = 0;
};

RowRecordPtr record(const MarkerValues &values)
{
    auto row = std::make_shared<RowRecord>();
    const auto setText = [&row](TypedKey<QString> key, const char *text) {
        if (text)
            row->set(key, QString::fromUtf8(text));
    };
    row->set(MarkerKey::color, values.color);
    setText(MarkerKey::name, values.name);
    setText(MarkerKey::comment, values.comment);
    setText(MarkerKey::in, values.in);
    setText(MarkerKey::out, values.out);
    setText(MarkerKey::sequenceName, values.sequenceName);
    row->set(TimecodeKey::timebase, values.timebase);
    row->set(TimecodeKey::dropFrame, values.dropFrame);
    row->set(TimecodeKey::startFrame, values.startFrame);
    setText(MarkerKey::clipName, values.clipName);
    return row;
}

/// One sequence, 25 frames a second, that holds a clip.
QByteArray projectXml(int startFrame, const QByteArray &sequenceMarkers, const QByteArray &clipMarkers)
{
    return "<xmeml version=\"5\"><sequence id=\"s\"><uuid>U</uuid><name>Edit</name><timecode><rate>"
           "<timebase>25</timebase><ntsc>FALSE</ntsc></rate><frame>" +
           QByteArray::number(startFrame) +
           "</frame><displayformat>NDF</displayformat></timecode><media><video><track><clipitem id=\"c\">"
           "<name>Reel</name>" +
           clipMarkers + "</clipitem></track></video></media>" + sequenceMarkers + "</sequence></xmeml>";
}

QByteArray markerXml(const QByteArray &name, const QByteArray &comment, int in, int out,
                     const QByteArray &color)
{
    return "<marker><name>" + name + "</name><comment>" + comment + "</comment><color>" + color +
           "</color><in>" + QByteArray::number(in) + "</in><out>" + QByteArray::number(out) +
           "</out></marker>";
}

/// A document with what works on its markers.
struct Project {
    ScriptedDocumentInterface world;
    MyDocument document;
    MarkerFields fields{document, nullptr};
    MarkerInventory inventory{document, fields};
    MarkerEditor editor{document, inventory};
    MarkerListImporter importer{document, editor};
    MarkerListExporter exporter{document};

    Project()
        : document(world, {{[this](MyDocument &) { inventory.populateMarkerData(); }}, {}, {}})
    {
    }
    ~Project() { document.close(); }
    Project(const Project &) = delete;
    Project &operator=(const Project &) = delete;

    bool load(const QString &path)
    {
        return document.readFromURL(QUrl::fromLocalFile(path), DocumentType::publicXML) &&
               MainThread::drainUntil([this] { return world.ended; }, std::chrono::seconds(60)) &&
               world.loaded;
    }

    /// Each marker as "name|comment|colour|in|out".
    QStringList markers() const
    {
        QStringList texts;
        for (const RowRecordPtr &marker : document.markerArray()) {
            texts.append(marker->get(MarkerKey::name) + u'|' + marker->get(MarkerKey::comment) + u'|' +
                         QString::number(marker->get(MarkerKey::color)) + u'|' + marker->get(MarkerKey::in) +
                         u'|' + marker->get(MarkerKey::out));
        }
        return texts;
    }
};

} // namespace

class TestMarkerListExchange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void exportedLines_data();
    void exportedLines();
    void importedRows_data();
    void importedRows();
    void roundTrip_data();
    void roundTrip();
    void panels();
    void nothingToImport();
    void importIsOneReload();
    void failedWrite();

private:
    QString alertTexts() const
    {
        QStringList texts;
        for (const ScriptedAlertPresenter::Shown &shown : m_alerts->shown())
            texts.append(shown.text(AlertKey::MessageText) + u": "_s + shown.text(AlertKey::InformativeText));
        return texts.join(u'\n');
    }

    TemporaryHome m_home;
    std::shared_ptr<ScriptedAlertPresenter> m_alerts;
};

void TestMarkerListExchange::init()
{
    QVLog::createNewLog(u"exchange"_s, true);
    m_alerts = std::make_shared<ScriptedAlertPresenter>(std::initializer_list<int>{1, 1, 1, 1});
    QVAlert::setPresenter(m_alerts);
}

void TestMarkerListExchange::exportedLines_data()
{
    QTest::addColumn<RowRecordPtr>("marker");
    QTest::addColumn<QByteArray>("fcp");
    QTest::addColumn<QByteArray>("avid");
    const auto row = [](const char *title, const MarkerValues &values, const QByteArray &fcp,
                        const QByteArray &avid) { QTest::newRow(title) << record(values) << fcp << avid; };

    row("on a sequence that starts at one hour",
        {"A", " \tnote\n", "30", "45", 1, nullptr, "Edit", 30, false, 108000},
        "Edit\tSequence\tA\tnote\t01:00:01:00\t00:00:00:15\tOrange\n", "A\t01:00:01:00\tV1\tred\tnote\n");
    row("on a clip, drop frame, no duration", {"B", nullptr, "1800", "-1", 7, "Reel", "Edit", 30, true},
        "Reel\tClip\tB\t\t00:01:00;02\t00:00:00:00\tPink\n", "B\t00:01:00;02\tV1\tred\t\n");
    row("no sequence name, no length", {"C", " \u00a0\r\n", "5", "5", 8, nullptr, nullptr, 30, true},
        "Sequence 1\tSequence\tC\t\t00:00:00;05\t00:00:00;00\tRed\n", "C\t00:00:00;05\tV1\tred\t\n");
    row("nothing known", {nullptr, nullptr, nullptr, nullptr, -1, nullptr, nullptr, 0},
        "Sequence 1\tSequence\t\t\t00:00:00:00\t00:00:00:00\tRed\n", "\t00:00:00:00\tV1\tred\t\n");
    row("texts that are no numbers", {"D", "a\tb\nc", "NaN", "NaN", 2},
        "Edit\tSequence\tD\ta\tb\nc\t00:00:00:00\t00:00:00:00\tYellow\n",
        "D\t00:00:00:00\tV1\tred\ta\tb\nc\n");
    // Frames below zero are counted from 2^64.
    row("before the start, and out before in", {"E", "\xc3\xa9", "-1", "-2", 6},
        "Edit\tSequence\tE\t\xc3\xa9\t09:01:52:00\t00:00:00:00\tPurple\n",
        "E\t09:01:52:00\tV1\tred\t\xc3\xa9\n");
    row("out before in", {"F", "", "10", "5", 5}, "Edit\tSequence\tF\t\t00:00:00:10\t09:01:52:00\tBlue\n",
        "F\t00:00:00:10\tV1\tred\t\n");
    // The in point counts modulo 2^32.
    row("beyond 32 bits", {"G", "", "4294967326", "-4294967296", 3},
        "Edit\tSequence\tG\t\t00:00:01:00\t00:00:00:00\tGreen\n", "G\t00:00:01:00\tV1\tred\t\n");
    row("empty names", {"", "", "0", "0", 4, "", ""}, "\tClip\t\t\t00:00:00:00\t00:00:00:00\tTurquoise\n",
        "\t00:00:00:00\tV1\tred\t\n");
}

void TestMarkerListExchange::exportedLines()
{
    QFETCH(RowRecordPtr, marker);
    QFETCH(QByteArray, fcp);
    QFETCH(QByteArray, avid);
    Project project;
    project.document.setListOf(Tab::Markers, {marker, marker});
    const auto exported = [&](const QString &format) {
        const QString path = m_home.addFile(u"list.txt"_s, "old");
        return project.exporter.markerSaveDialogDidEnd(path, accepted, format) ? contentOf(path) : "failed";
    };
    QCOMPARE(exported(u"fcp"_s), fcpHeader + fcp + fcp);
    QCOMPARE(exported(u"avid"_s), avid + avid);
    QCOMPARE(exported(u"other"_s), QByteArray());
}

void TestMarkerListExchange::importedRows_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QList<QByteArray>>("lists");
    QTest::addColumn<QStringList>("markers");
    QTest::newRow("fcp")
        << u"fcp"_s
        << QList<QByteArray>{fcpHeader + "Elsewhere\tClip\tA\tnote\t00:00:02:00\t00:00:00:10\tPurple",
                             QByteArray("\0\xff", 2),
                             fcpHeader + "Edit\tSequence\tB\t\t00:00:00:05\t\tGreen\r\n"}
        << QStringList{u"A|note|6|50|60"_s, u"B||0|5|-1"_s};
    QTest::newRow("avid") << u"avid"_s << QList<QByteArray>{"A\t00:00:02:00\tV3\tPink\t a  b \n"}
                          << QStringList{u"A| a  b |7|50|-1"_s};
    QTest::newRow("fcpx")
        << u"fcpx"_s
        << QList<QByteArray>{"<fcpxml><resources><format frameDuration=\"1/25s\"/></resources>"
                             "<library><project><sequence><spine><gap duration=\"9s\">"
                             "<marker start=\"2s\" value=\"A\"/><marker start=\"3s\"/>"
                             "</gap></spine></sequence></project></library></fcpxml>"}
        << QStringList{u"A||0|50|-1"_s, u"||0|0|-1"_s};
}

void TestMarkerListExchange::importedRows()
{
    QFETCH(QString, format);
    QFETCH(QList<QByteArray>, lists);
    Project project;
    QVERIFY(project.load(m_home.addFile(u"Edit.xml"_s, projectXml(0, QByteArray(), QByteArray()))));
    QStringList paths;
    for (const QByteArray &list : lists)
        paths.append(m_home.addFile(u"list %1"_s.arg(paths.size()), list));
    QVERIFY(project.importer.markerOpenDialogDidEnd(paths, accepted, format));
    QTEST(project.markers(), "markers");
    QCOMPARE(project.document.modifiedSequenceUUIDs(), QStringList{u"U"_s});
    QCOMPARE(alertTexts(), QString());
}

void TestMarkerListExchange::roundTrip_data()
{
    QTest::addColumn<int>("startFrame");
    QTest::addColumn<QByteArray>("onSequence");
    QTest::addColumn<QByteArray>("onClip");
    QTest::addColumn<QStringList>("markers");
    const QByteArray orange = "<alpha>0</alpha><red>255</red><green>127</green><blue>0</blue>";
    const QByteArray blue = "<alpha>0</alpha><red>0</red><green>128</green><blue>255</blue>";

    QTest::newRow("all that a list carries; clip markers come to the sequence")
        << 0 << markerXml("A", "note", 25, 50, orange) + markerXml("\xc3\xa9 &amp; \xd0\x96", "", 0, -1, blue)
        << markerXml("C", "x", 100, 101, QByteArray())
        << QStringList{u"C|x|0|100|101"_s, u"A|note|1|25|50"_s, u"\u00e9 & \u0416||5|0|-1"_s};
    QTest::newRow("a length of no frames is none")
        << 0 << markerXml("A", "", 25, 25, QByteArray()) << QByteArray() << QStringList{u"A||0|25|-1"_s};
    QTest::newRow("white space around a comment goes")
        << 0 << markerXml("A", "\n  two words ", 5, -1, QByteArray()) << QByteArray()
        << QStringList{u"A|two words|0|5|-1"_s};
    QTest::newRow("a tab or line feed in a field loses its row")
        << 0
        << markerXml("A", "a\tb", 5, -1, QByteArray()) + markerXml("B", "", 6, -1, QByteArray()) +
               markerXml("C", "a\nb", 7, -1, QByteArray())
        << QByteArray() << QStringList{u"B||0|6|-1"_s};
    // A duration is read as a timecode of the sequence, from its start frame on.
    QTest::newRow("a start frame takes its length off a duration")
        << 10 << markerXml("A", "", 25, 50, QByteArray()) + markerXml("B", "", 25, 30, QByteArray())
        << QByteArray() << QStringList{u"A||0|25|40"_s, u"B||0|25|-1"_s};
    QTest::newRow("a start of one hour leaves no duration")
        << 90000 << markerXml("A", "", 25, 50, QByteArray()) << QByteArray() << QStringList{u"A||0|25|-1"_s};
}

void TestMarkerListExchange::roundTrip()
{
    QFETCH(int, startFrame);
    QFETCH(QByteArray, onSequence);
    QFETCH(QByteArray, onClip);
    QFETCH(QStringList, markers);
    Project source;
    QVERIFY(source.load(m_home.addFile(u"source.xml"_s, projectXml(startFrame, onSequence, onClip))));
    const QString list = m_home.path(u"list.txt"_s);
    QVERIFY(source.exporter.markerSaveDialogDidEnd(list, accepted, u"fcp"_s));

    Project target;
    QVERIFY(target.load(m_home.addFile(u"target.xml"_s, projectXml(startFrame, QByteArray(), QByteArray()))));
    QVERIFY(target.importer.markerOpenDialogDidEnd({list}, accepted, u"fcp"_s));
    QCOMPARE(target.markers(), markers);
    target.inventory.populateMarkerData(); // what stands in the tree
    QCOMPARE(target.markers(), markers);
}

void TestMarkerListExchange::panels()
{
    Project project;
    QVERIFY(project.load(m_home.addFile(u"Edit.v2.xml"_s, projectXml(0, QByteArray(), QByteArray()))));
    QCOMPARE(project.importer.importFCPXMarkers()->extension, u"fcpxml"_s);
    QCOMPARE(project.importer.importAvidLocators()->extension, u"txt"_s);
    QCOMPARE(project.importer.importFCPMarkers()->format, u"fcp"_s);
    QCOMPARE(project.exporter.exportAvidLocators()->format, u"avid"_s);
    QCOMPARE(project.exporter.exportFCPMarkers()->proposedName, u"Edit.v2 Markers.txt"_s);

    const QString list = m_home.addFile(u"list.txt"_s, fcpHeader + "\t\t\t\t\t\t");
    QVERIFY(project.importer.markerOpenDialogDidEnd({list}, 0, u"fcp"_s));
    QVERIFY(project.exporter.markerSaveDialogDidEnd(list, 0, u"avid"_s));
    QVERIFY(project.markers().isEmpty() && !contentOf(list).isEmpty());

    project.document.setPopulating(Tab::Markers, true);
    QVERIFY(!project.importer.importFCPXMarkers() && !project.exporter.exportFCPMarkers());
    const QString loading = u"Markers are still loading: Please wait for markers to finish loading before "
                            "attempting this operation."_s;
    QCOMPARE(alertTexts(), loading + u'\n' + loading);
}

void TestMarkerListExchange::nothingToImport()
{
    Project project;
    QVERIFY(project.load(m_home.addFile(u"Edit.xml"_s, projectXml(0, QByteArray(), QByteArray()))));
    const QStringList paths = {m_home.path(u"missing"_s), m_home.path(),
                               m_home.addFile(u"empty"_s, QByteArray()),
                               m_home.addFile(u"header"_s, fcpHeader)};
    const QString alert =
        u"No markers to import: There were no markers in the file or it is an invalid format."_s;
    QStringList expected;
    for (const QString &format : {u"fcp"_s, u"avid"_s, u"fcpx"_s, u"other"_s}) {
        expected.append(alert);
        QVERIFY(!project.importer.markerOpenDialogDidEnd(paths, accepted, format));
        QCOMPARE(alertTexts(), expected.join(u'\n'));
    }
    QVERIFY(!project.document.isEdited());
}

void TestMarkerListExchange::importIsOneReload()
{
    Project project;
    QVERIFY(project.load(m_home.addFile(u"Edit.xml"_s, projectXml(0, QByteArray(), QByteArray()))));
    project.document.setTableArray(Tab::Markers, {});
    project.world.events.clear();
    const QByteArray row = "A\t00:00:00:01\tV1\tred\t\n";
    const QString list = m_home.addFile(u"list.txt"_s, row + "<\t00:00:00:02\tV1\tred\t\n" + row);
    QVERIFY(project.importer.markerOpenDialogDidEnd({list}, accepted, u"avid"_s));
    QVERIFY(alertTexts().startsWith(u"Unable to create marker: "_s) && !alertTexts().contains(u'\n'));
    QCOMPARE(project.world.events, (QStringList{u"will reload"_s, u"did reload"_s}));
    QCOMPARE(project.document.rowsOnShow(Tab::Markers), project.document.markerArray());
    QCOMPARE(project.markers(), (QStringList{u"A||0|1|-1"_s, u"A||0|1|-1"_s}));
}

void TestMarkerListExchange::failedWrite()
{
    Project project;
    const QString path = m_home.path(u"missing/list.txt"_s);
    QVERIFY(!project.exporter.markerSaveDialogDidEnd(path, accepted, u"avid"_s));
    QVERIFY(alertTexts().startsWith(u"Error saving marker list: "_s) && alertTexts().contains(path));
    QVLog::finishWriting();
    const QString reason = m_alerts->shown().front().text(AlertKey::InformativeText);
    QVERIFY(QString::fromUtf8(contentOf(QVLog::availableLogs().value(0)))
                .contains(u" - Error saving avid marker list: "_s + reason + u'\n'));
}

QTEST_GUILESS_MAIN(TestMarkerListExchange)
#include "tst_markerlistexchange.moc"
