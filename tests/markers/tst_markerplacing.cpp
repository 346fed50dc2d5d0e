#include "markers/MarkerOffset.h"
#include "markers/MenuTitles.h"
#include "markers/TimecodeEntry.h"
#include "tests/markers/MarkerProject.h"
#include "tests/support/TemporaryHome.h"

using namespace vantrell;

namespace
{

QByteArray clip(const char *name, int start, int end)
{
    return "<clipitem><name>" + QByteArray(name) + "</name><start>" + QByteArray::number(start) +
           "</start><end>" + QByteArray::number(end) + "</end></clipitem>";
}

QByteArray marker(const char *in, const char *out)
{
    return QByteArray("<marker><name>m</name><comment> &lt;CHAPTER&gt;c</comment><in>") + in + "</in><out>" +
           out + "</out></marker>";
}

/// Two sequences of the same name: the first one has 25 frames a second, starts at one hour and is 3:20 long;
/// the second one has drop-frame timecode and is a minute long.
QByteArray twoReels()
{
    return "<xmeml><project><children><sequence><uuid>A</uuid><name>Reel 1</name><duration>5000</duration>"
           "<timecode><rate><timebase>25</timebase></rate><frame>90000</frame></timecode><media><video>"
           "<track>" +
           clip("Wide", 0, 100) + clip("Wide", 100, 200) + clip("Night", -1, 300) + "</track><track>" +
           clip("Wide", 0, 100) + "</track></video></media>" + marker("100", "150") + marker("10", "-1") +
           "</sequence><sequence><uuid>B</uuid><name>Reel 1</name><duration>1800</duration><timecode><rate>"
           "<timebase>30</timebase><ntsc>TRUE</ntsc></rate><displayformat>DF</displayformat><frame>0</frame>"
           "</timecode>" +
           marker("0", "-1") + "</sequence></children></project></xmeml>";
}

/// The same with all its lists there, so that edits can be undone.
struct UndoableProject : MarkerProject {
    UndoableProject()
        : MarkerProject(twoReels())
    {
        for (const Tab tab : {Tab::Media, Tab::Effects})
            document.populate(tab, "none", [] {});
    }
};

} // namespace

class MarkerPlacingTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

    /// The warnings are those that begin so, one for each.
    static void compare(const TimecodeEntry::Reading &reading, const QString &text,
                        const QStringList &warnings)
    {
        QCOMPARE(reading.text, text);
        QVERIFY2(reading.warnings.size() == warnings.size(), qPrintable(reading.warnings.join(u'\n')));
        for (qsizetype i = 0; i < warnings.size(); ++i)
            QVERIFY2(reading.warnings[i].contains(warnings[i]), qPrintable(reading.warnings[i]));
    }

private Q_SLOTS:
    void readsInPoints_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("read");
        QTest::addColumn<QStringList>("warnings");
        const auto add = [](const char *typed, const char *read, const QStringList &warnings = {},
                            int row = 0) {
            QTest::newRow(typed) << row << QString::fromLatin1(typed) << QString::fromLatin1(read)
                                 << warnings;
        };
        const QString before = QStringLiteral("before the start of Reel 1 at 01:00:00:00");
        const QString behind = QStringLiteral("after the end of Reel 1 at 01:03:20:00");
        const QString digits = QStringLiteral("Only digits");
        add("1..", "01:01:00:00, frame 1500");
        add("5", "01:00:00:05, frame 5");
        add("123", "01:00:01:23, frame 48");
        add("1.2", "01:00:01:02, frame 27");
        add("01:03:19:24", "01:03:19:24, frame 4999");
        add("00:59:59:24", "00:59:59:24, frame -1", {before});
        add("4..", "01:04:00:00, frame 6000", {behind});
        add("1:2:3", "01:00:01:23, frame 48", {QStringLiteral("A digit is missing")});
        add("1..5", "01:00:01:05, frame 30", {QStringLiteral("Digits are missing")});
        add("01:00:61:30", "01:01:02:05, frame 1555",
            {QStringLiteral("Seconds cannot exceed 59"), QStringLiteral("Frames cannot exceed 24")});
        add("01:60:00:00", "02:00:00:00, frame 90000", {QStringLiteral("Minutes cannot exceed 59"), behind});
        add("1:00:00:000", "01:00:00:00, frame 0", {QStringLiteral("A digit is missing")});
        add("1....", "00:00:00:00, frame -90000", {QStringLiteral("last eight"), before});
        add("123456789", "23:46:10:14, frame 2049264", {QStringLiteral("last eight"), behind});
        add("abc", "01:00:00:00, frame 0", {digits});
        add("01;00;0x;00", "01:00:00:00, frame 0", {digits});
        add("1", "01:00:00;01, frame 107893", {QStringLiteral("after the end of Reel 1 at 00:01:00;02")}, 2);
        add("00:01:00;00", "00:00:59;28, frame 1798", {QStringLiteral("leaves this number out")}, 2);
        add("00:10:00;00", "00:10:00;02, frame 17982", {QStringLiteral("after the end")}, 2);
    }
    void readsInPoints()
    {
        QFETCH(int, row);
        QFETCH(QString, typed);
        QFETCH(QString, read);
        QFETCH(QStringList, warnings);
        MarkerProject p(twoReels());
        const RowRecordPtr record = p.marker(std::size_t(row));
        const TimecodeEntry::Reading reading = TimecodeEntry::ofInPoint(typed, *record);
        compare(reading, QStringLiteral("%1 is %2 of Reel 1").arg(typed, read), warnings);
        // It tells what is written.
        p.set({std::size_t(row)}, "in", typed);
        QCOMPARE(record->get(MarkerKey::in), QString::number(reading.frames));
    }

    void readsDurations_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("warnings");
        QTest::newRow("frames") << "10"
                                << "10 is 00:00:00:10, 10 frames, to 01:00:04:10" << QStringList();
        QTest::newRow("frame") << "1"
                               << "1 is 00:00:00:01, 1 frame, to 01:00:04:01" << QStringList();
        QTest::newRow("none") << "0"
                              << "0 is no duration" << QStringList();
        QTest::newRow("long") << "5.."
                              << "5.. is 00:05:00:00, 7500 frames, to 01:05:04:00"
                              << QStringList(QStringLiteral("after the end of Reel 1"));
        QTest::newRow("range") << "30"
                               << "30 is 00:00:01:05, 30 frames, to 01:00:05:05"
                               << QStringList(QStringLiteral("Frames cannot exceed 24"));
    }
    void readsDurations()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(QStringList, warnings);
        MarkerProject p(twoReels());
        const TimecodeEntry::Reading reading = TimecodeEntry::ofDuration(typed, *p.marker(0));
        compare(reading, text, warnings);
        p.set({0}, "out", typed);
        QCOMPARE(p.marker(0)->get(MarkerKey::out),
                 reading.frames > 0 ? QString::number(100 + reading.frames) : QStringLiteral("-1"));
    }

    void previewsOffsets_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("warnings");
        const auto moves = [](const char *count, const char *to) {
            return QStringLiteral("%1: “m” moves from 01:00:04:00 to %2.")
                .arg(QString::fromLatin1(count), QString::fromLatin1(to));
        };
        QTest::newRow("second") << "1." << moves("+25 frames", "01:00:05:00") << QStringList();
        QTest::newRow("back") << "-1:00" << moves("-25 frames", "01:00:03:00") << QStringList();
        QTest::newRow("frames") << "-12" << moves("-12 frames", "01:00:03:13") << QStringList();
        QTest::newRow("frame") << "1" << moves("+1 frame", "01:00:04:01") << QStringList();
        QTest::newRow("text") << "two" << moves("0 frames", "01:00:04:00")
                              << QStringList(QStringLiteral("whole number"));
        QTest::newRow("before") << "-101" << moves("-101 frames", "00:59:59:24")
                                << QStringList(QStringLiteral("before the start"));
    }
    void previewsOffsets()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QFETCH(QStringList, warnings);
        MarkerProject p(twoReels());
        const RowList table{p.marker(1), p.marker(0)};
        compare(MarkerOffset::preview(typed, {p.marker(0)}, table), text, warnings);
        p.editor.offset({p.marker(0)}, typed, table);
        const TimecodeEntry::Reading done = MarkerOffset::preview(QStringLiteral("0"), {p.marker(0)}, table);
        QCOMPARE(done.text.section(QStringLiteral(" to "), 1), text.section(QStringLiteral(" to "), 1));
    }

    void tellsTheRateOfOffsets()
    {
        MarkerProject p(twoReels());
        const auto rate = [](const RowList &table) {
            return MarkerOffset::rateText(table).section(QLatin1Char(' '), 3, 3);
        };
        QCOMPARE(rate({p.marker(0), p.marker(2)}), QStringLiteral("25"));
        QCOMPARE(rate({p.marker(2), p.marker(0)}), QStringLiteral("29.97"));
        QCOMPARE(rate({}), QStringLiteral("29.97"));
    }

    void tellsItemsOfTheSameNameApart()
    {
        MarkerProject p(twoReels());
        const MenuPtr sequences = p.document.sequenceMenu();
        QCOMPARE(MenuTitles::ofSequences(*sequences),
                 QStringList({QStringLiteral("(none)"), QStringLiteral("Reel 1 (01:00:00:00 – 01:03:20:00)"),
                              QStringLiteral("Reel 1 (00:00:00;00 – 00:01:00;02)")}));
        const XmlNode first = sequences->at(1).element;
        QCOMPARE(
            MenuTitles::ofClips(*p.document.clipMenuForSequence(first), first),
            QStringList({QStringLiteral("(none)"), QStringLiteral("Wide (01:00:00:00 – 01:00:04:00) (V1)"),
                         QStringLiteral("Wide (01:00:04:00 – 01:00:08:00)"), QStringLiteral("Night"),
                         QStringLiteral("Wide (01:00:00:00 – 01:00:04:00) (V2)")}));
        const Menu alike{{QStringLiteral("(none)"), {}, {}},
                         {QStringLiteral("x"), {}, first},
                         {QStringLiteral("x"), {}, first}};
        QCOMPARE(MenuTitles::ofSequences(alike).last(), QStringLiteral("x (01:00:00:00 – 01:03:20:00) #2"));
    }

    void movesInPointsWithTheirDurations()
    {
        UndoableProject p;
        const QString before = p.tree();
        p.editor.moveInPoints({p.marker(0), p.marker(1)}, QStringLiteral("8."));
        QCOMPARE(p.values(QStringLiteral("in out")), QStringLiteral("200|250\n200|-1\n0|-1"));
        QCOMPARE(p.document.modifiedSequenceUUIDs(), QStringList(QStringLiteral("A")));
        QCOMPARE(p.document.undoName(), QStringLiteral("Move Markers"));
        QVERIFY(p.document.undo());
        QCOMPARE(p.tree(), before);
        QVERIFY(!p.document.canUndo());
        QCOMPARE(p.values(QStringLiteral("in out")), QStringLiteral("100|150\n10|-1\n0|-1"));
    }

    void duplicates()
    {
        UndoableProject p;
        const QString before = p.tree();
        const RowList copies = p.editor.duplicate({p.marker(0), p.marker(2)});
        QCOMPARE(copies.size(), std::size_t(2));
        const QString keys = QStringLiteral("name comment chapter in out sequenceUUID");
        QCOMPARE(p.values(keys), QStringLiteral("m|c|1|100|150|A\nm|c|1|10|-1|A\nm|c|1|0|-1|B\n"
                                                "m|c|1|100|150|A\nm|c|1|0|-1|B"));
        // A copy is a marker of its own.
        p.set({3}, "comment", QStringLiteral("d"));
        QCOMPARE(p.marker(0)->get(MarkerKey::comment), QStringLiteral("c"));
        QVERIFY(p.tree().contains(QStringLiteral("<comment> &lt;CHAPTER&gt;c</comment>")));
        QVERIFY(p.document.undo());
        QCOMPARE(p.document.undoName(), QStringLiteral("Duplicate Markers"));
        QVERIFY(p.document.undo());
        QCOMPARE(p.tree(), before);
        QCOMPARE(p.document.markerArray().size(), std::size_t(3));
        QVERIFY(p.document.redo());
        QCOMPARE(p.document.markerArray().size(), std::size_t(5));
    }

    void addsWhereTheUserWants()
    {
        UndoableProject p;
        const QString before = p.tree();
        QVERIFY(!p.editor.addMarkerAt(3, {}));
        const RowRecordPtr record = p.editor.addMarkerAt(2, {.name = QStringLiteral("a & <b>"),
                                                             .inPoint = 30,
                                                             .outPoint = 60,
                                                             .comment = QStringLiteral("c"),
                                                             .color = 5});
        QVERIFY(record);
        QCOMPARE(MarkerProject::values(*record, QStringLiteral("name in out comment color sequenceIndex")),
                 QStringLiteral("a & <b>|30|60|c|5|2"));
        QCOMPARE(record->get(MarkerKey::markerElement).parent(), p.document.sequenceMenu()->at(2).element);
        QCOMPARE(p.document.modifiedSequenceUUIDs(), QStringList(QStringLiteral("B")));
        QVERIFY(p.document.undo());
        QCOMPARE(p.tree(), before);
        QVERIFY(p.document.redo());
        QCOMPARE(record->get(MarkerKey::sequenceIndex), 2);
    }
};

QTEST_GUILESS_MAIN(MarkerPlacingTest)
#include "tst_markerplacing.moc"
