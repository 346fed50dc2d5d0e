#include "interchange/MarkerListExporter.h"
#include "interchange/MarkerListImporter.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

constexpr int accepted = MarkerListPanel::accepted;
const QByteArray fcpHeader("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n");
const QString values = u"name comment color in out"_s;

/// One sequence, 25 frames a second, that holds a clip.
QByteArray projectXml(int startFrame, const QByteArray &sequenceMarkers = {},
                      const QByteArray &clipMarkers = {})
{
    return "<xmeml><sequence><uuid>U</uuid><name>Edit</name><timecode><rate><timebase>25</timebase></rate>"
           "<frame>" +
           QByteArray::number(startFrame) +
           "</frame></timecode><media><video><track><clipitem id=\"c\"><name>Reel</name>" + clipMarkers +
           "</clipitem></track></video></media>" + sequenceMarkers + "</sequence></xmeml>";
}

QByteArray markerXml(const char *name, const char *comment, const char *in, const char *out,
                     const char *color = "")
{
    const auto element = [](const char *tag, const char *content) {
        return QByteArray("<") + tag + '>' + content + "</" + tag + '>';
    };
    return "<marker>" + element("name", name) + element("comment", comment) + element("color", color) +
           element("in", in) + element("out", out) + "</marker>";
}

/// A project with its importer and exporter.
struct Project : MarkerProject {
    using MarkerProject::MarkerProject;

    MarkerListImporter importer{document, editor};
    MarkerListExporter exporter{document};
};

} // namespace

class TestMarkerListExchange : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

    static QStringList alertsOf(const Project &project)
    {
        QStringList texts;
        for (const ScriptedAlertPresenter::Shown &shown : project.alerts->shown())
            texts.append(shown.text(AlertKey::MessageText) + u": "_s + shown.text(AlertKey::InformativeText));
        return texts;
    }

private Q_SLOTS:
    void exportedLines()
    {
        const struct {
            const char *texts[6]; ///< name, comment, in, out, sequence name, clip name; null for none
            int color;
            int timebase;
            bool dropFrame;
            int startFrame;
            QByteArray fcp;
            QByteArray avid;
        } rows[] = {
            {{"A", " \tnote\n", "30", "45", "Edit"},
             1,
             30,
             false,
             108000,
             "Edit\tSequence\tA\tnote\t01:00:01:00\t00:00:00:15\tOrange\n",
             "A\t01:00:01:00\tV1\tred\tnote\n"},
            {{"B", nullptr, "1800", "-1", "Edit", "Reel"},
             7,
             30,
             true,
             0,
             "Reel\tClip\tB\t\t00:01:00;02\t00:00:00:00\tPink\n",
             "B\t00:01:00;02\tV1\tred\t\n"},
            {{"C", " \u00a0\r\n", "5", "5"},
             8,
             30,
             true,
             0,
             "Sequence 1\tSequence\tC\t\t00:00:00;05\t00:00:00;00\tRed\n",
             "C\t00:00:00;05\tV1\tred\t\n"},
            {{},
             -1,
             0,
             false,
             0,
             "Sequence 1\tSequence\t\t\t00:00:00:00\t00:00:00:00\tRed\n",
             "\t00:00:00:00\tV1\tred\t\n"},
            {{"", "a\tb\nc", "NaN", "NaN", "", ""},
             2,
             30,
             false,
             0,
             "\tClip\t\ta\tb\nc\t00:00:00:00\t00:00:00:00\tYellow\n",
             "\t00:00:00:00\tV1\tred\ta\tb\nc\n"},
            // Frames below zero are counted from 2^64, and an in point modulo 2^32.
            {{"E", "\xc3\xa9", "-1", "-2", "Edit"},
             0,
             30,
             false,
             0,
             "Edit\tSequence\tE\t\xc3\xa9\t09:01:52:00\t00:00:00:00\tRed\n",
             "E\t09:01:52:00\tV1\tred\t\xc3\xa9\n"},
            {{"F", "", "4294967306", "4294967336", "Edit"},
             6,
             30,
             false,
             0,
             "Edit\tSequence\tF\t\t00:00:00:10\t00:00:01:00\tPurple\n",
             "F\t00:00:00:10\tV1\tred\t\n"},
            {{"G", "", "1", "0", "Edit"},
             5,
             30,
             false,
             0,
             "Edit\tSequence\tG\t\t00:00:00:01\t09:01:52:00\tBlue\n",
             "G\t00:00:00:01\tV1\tred\t\n"},
        };
        const TypedKey<QString> keys[] = {MarkerKey::name, MarkerKey::comment,      MarkerKey::in,
                                          MarkerKey::out,  MarkerKey::sequenceName, MarkerKey::clipName};
        Project project(projectXml(0));
        const QString path = m_home.path(u"list.txt"_s);
        for (const auto &row : rows) {
            auto marker = std::make_shared<RowRecord>();
            for (std::size_t i = 0; i < std::size(keys); ++i) {
                if (row.texts[i])
                    marker->set(keys[i], QString::fromUtf8(row.texts[i]));
            }
            marker->set(MarkerKey::color, row.color);
            marker->set(TimecodeKey::timebase, row.timebase);
            marker->set(TimecodeKey::dropFrame, row.dropFrame);
            marker->set(TimecodeKey::startFrame, row.startFrame);
            project.document.rowView(Tab::Markers).setList({marker, marker});
            QVERIFY(project.exporter.markerSaveDialogDidEnd(path, accepted, u"fcp"_s));
            QCOMPARE(contentOf(path), fcpHeader + row.fcp + row.fcp);
            QVERIFY(project.exporter.markerSaveDialogDidEnd(path, accepted, u"avid"_s));
            QCOMPARE(contentOf(path), row.avid + row.avid);
        }
        QVERIFY(project.exporter.markerSaveDialogDidEnd(path, accepted, u"other"_s));
        QCOMPARE(contentOf(path), QByteArray());
    }

    void importedRows()
    {
        const struct {
            QString format;
            QList<QByteArray> lists;
            QString markers;
        } rows[] = {
            {u"fcp"_s,
             {fcpHeader + "Elsewhere\tClip\tA\tnote\t00:00:02:00\t00:00:00:10\tPurple", "\xff",
              fcpHeader + "Edit\tSequence\tB\t\t00:00:00:05\t\tGreen\r\n"},
             u"A|note|6|50|60\nB||0|5|-1"_s},
            {u"avid"_s, {"A\t00:00:02:00\tV3\tPink\t a  b \n"}, u"A| a  b |7|50|-1"_s},
            {u"fcpx"_s,
             {"<fcpxml><resources><format "
              "frameDuration=\"1/25s\"/></resources><library><project><sequence><spine>"
              "<gap duration=\"9s\"><marker start=\"2s\" value=\"A\"/><marker "
              "start=\"3s\"/></gap></spine></sequence>"
              "</project></library></fcpxml>"},
             u"A|-|0|50|-1\n-|-|0|0|-1"_s},
        };
        for (const auto &row : rows) {
            Project project(projectXml(0));
            project.world.events.clear();
            QStringList paths(m_home.path(u"missing"_s));
            for (const QByteArray &list : row.lists)
                paths.append(m_home.addFile(u"list %1"_s.arg(paths.size()), list));
            QVERIFY(project.importer.markerOpenDialogDidEnd(paths, accepted, row.format));
            QCOMPARE(project.values(values), row.markers);
            QCOMPARE(alertsOf(project), QStringList());
            QCOMPARE(project.document.modifiedSequenceUUIDs(), QStringList{u"U"_s});
            QCOMPARE(project.world.events, (QStringList{u"will reload"_s, u"did reload"_s}));
            QCOMPARE(project.document.rowsOnShow(Tab::Markers), project.document.markerArray());
        }
    }

    void roundTrip()
    {
        const char *orange = "<alpha>0</alpha><red>255</red><green>127</green><blue>0</blue>";
        const char *blue = "<alpha>0</alpha><red>0</red><green>128</green><blue>255</blue>";
        const struct {
            int startFrame;
            QByteArray onSequence;
            QByteArray onClip;
            QString markers;
        } rows[] = {
            // Markers of clips come to the sequence.
            {0,
             markerXml("A", "note", "25", "50", orange) +
                 markerXml("\u00e9 &amp; \u0416", "", "0", "-1", blue),
             markerXml("C", "x", "100", "101"), u"C|x|0|100|101\nA|note|1|25|50\n\u00e9 & \u0416||5|0|-1"_s},
            // A duration of 0 frames is none; white space around a comment is trimmed.
            {0, markerXml("A", "\n two words ", "25", "25"), {}, u"A|two words|0|25|-1"_s},
            // A tab or a line feed in a field makes its row unreadable.
            {0,
             markerXml("A", "a\tb", "5", "-1") + markerXml("B", "", "6", "-1") +
                 markerXml("C", "a\nb", "7", "-1"),
             {},
             u"B||0|6|-1"_s},
            // A duration is read as a timecode of the sequence, from its start frame on.
            {10,
             markerXml("A", "", "25", "50") + markerXml("B", "", "25", "30"),
             {},
             u"A||0|25|40\nB||0|25|-1"_s},
            {90000, markerXml("A", "", "25", "50"), {}, u"A||0|25|-1"_s},
        };
        const QString list = m_home.path(u"list.txt"_s);
        for (const auto &row : rows) {
            const Project source(projectXml(row.startFrame, row.onSequence, row.onClip));
            QVERIFY(source.exporter.markerSaveDialogDidEnd(list, accepted, u"fcp"_s));
            Project target(projectXml(row.startFrame));
            QVERIFY(target.importer.markerOpenDialogDidEnd({list}, accepted, u"fcp"_s));
            QCOMPARE(target.values(values), row.markers);
            target.inventory
                .populateMarkerData(); // what stands in the tree, where no comment is an empty one
            QCOMPARE(target.values(values).replace(u"|-|"_s, u"||"_s), row.markers);
        }
    }

    void panels()
    {
        Project project(projectXml(0));
        QCOMPARE(project.importer.importFCPXMarkers()->extension, u"fcpxml"_s);
        QCOMPARE(project.importer.importAvidLocators()->extension, u"txt"_s);
        QCOMPARE(project.exporter.exportFCPMarkers()->proposedName, u"project Markers.txt"_s);

        const QString list = m_home.addFile(u"list.txt"_s, "\n\t\t\t\t\t\t");
        QVERIFY(!project.importer.markerOpenDialogDidEnd({list}, 0, u"fcp"_s));
        QVERIFY(project.exporter.markerSaveDialogDidEnd(list, 0, u"avid"_s));
        QVERIFY(project.document.markerArray().empty() && !contentOf(list).isEmpty());
    }

    void refusals()
    {
        Project project(projectXml(0));
        for (int i = 0; i < 6; ++i)
            project.alerts->queueAnswer(AlertAnswer::Default);
        QStringList expected(
            u"No markers to import: There were no markers in the file or it is an invalid format."_s);
        const QStringList nothing = {m_home.path(u"missing"_s), m_home.addFile(u"empty"_s, {}),
                                     m_home.path()};
        QCOMPARE(project.importer.markerOpenDialogDidEnd(nothing, accepted, u"fcp"_s)->next, std::size_t(0));

        // Rejected rows are reported together, with their lines.
        const QByteArray row = "<\t00:00:00:02\tV1\tred\t\n";
        const QString broken = m_home.addFile(u"list.txt"_s, "Name\tTime\n" + row + " \n" + row +
                                                                 "ok \U0001F386\t00:00:00:02\tV1\tred\t\n" +
                                                                 row.repeated(20) + "cut\t00:00:00:02\r\n");
        const auto imported = project.importer.markerOpenDialogDidEnd({broken}, accepted, u"avid"_s);
        QCOMPARE(imported->added, std::size_t(1));
        QCOMPARE(imported->next, std::size_t(23));
        QCOMPARE(imported->rejected.size(), std::size_t(23));
        QCOMPARE(imported->rejected.at(1).source, u"line 4"_s);
        // Lines that are no rows are told, too, but for a header and blank ones.
        QCOMPARE(imported->rejected.back().text(), u"line 26: The line has 2 fields instead of 5."_s);
        QCOMPARE(project.document.markerArray().back()->text(MarkerKey::name), u"ok \U0001F386"_s);
        project.importer.tellOfRejected(*imported);
        expected.append(alertsOf(project).value(1));
        QVERIFY(expected.last().startsWith(u"23 of 24 rows could not be added: line 2, “<”: "_s));
        QVERIFY(expected.last().endsWith(u"\n… and 3 more"_s));
        project.importer.tellOfRejected({});

        const QString path = m_home.path(u"missing/list.txt"_s);
        QVERIFY(!project.exporter.markerSaveDialogDidEnd(path, accepted, u"avid"_s));
        expected.append(alertsOf(project).value(2));
        const QString reason = project.alerts->shown().back().text(AlertKey::InformativeText);
        QCOMPARE(expected.last(), u"Error saving marker list: "_s + reason);
        QVERIFY(reason.contains(path));
        QVLog::finishWriting();
        QVERIFY(contentOf(QVLog::availableLogs().value(0))
                    .contains(" - Error saving avid marker list: " + reason.toUtf8() + '\n'));

        project.document.rowView(Tab::Markers).setPopulating(true);
        QVERIFY(!project.importer.importFCPXMarkers() && !project.exporter.exportAvidLocators());
        expected +=
            QList<QString>(2, u"Markers are still loading: Please wait for markers to finish loading before "
                              "attempting this operation."_s);
        QCOMPARE(alertsOf(project), expected);
        QCOMPARE(project.document.markerArray().size(), std::size_t(1)); // the one that was imported
    }
};

QTEST_GUILESS_MAIN(TestMarkerListExchange)
#include "tst_markerlistexchange.moc"
