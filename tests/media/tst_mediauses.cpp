#include "media/MediaConditions.h"
#include "media/MediaUses.h"
#include "support/log/QVLog.h"
#include "tests/media/MediaProject.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

using namespace vantrell;

namespace
{

/// A file of 25 frames a second in full.
QByteArray file(const QByteArray &id, const QByteArray &path, const QByteArray &duration)
{
    return "<file id=\"" + id + "\"><pathurl>file://localhost" + path +
           "</pathurl><rate><timebase>25</timebase><ntsc>FALSE</ntsc></rate>" +
           (duration.isEmpty() ? QByteArray() : "<duration>" + duration + "</duration>") + "</file>";
}

QByteArray points(const QByteArray &in, const QByteArray &out)
{
    return "<in>" + in + "</in><out>" + out + "</out>";
}

QByteArray rate(const QByteArray &timebase, const QByteArray &ntsc = "FALSE")
{
    return "<rate><timebase>" + timebase + "</timebase><ntsc>" + ntsc + "</ntsc></rate>";
}

QByteArray item(const QByteArray &content)
{
    return "<clipitem>" + content + "</clipitem>";
}

QByteArray sequence(const QByteArray &name, const QByteArray &video, const QByteArray &audio = QByteArray())
{
    return "<sequence id=\"" + name + "\"><name>" + name + "</name><media><video><track>" + video +
           "</track></video><audio><track>" + audio + "</track></audio></media></sequence>";
}

QByteArray parameter(const QByteArray &id, const QByteArray &content)
{
    return "<parameter><parameterid>" + id + "</parameterid>" + content + "</parameter>";
}

QByteArray retimed(const QByteArray &parameters)
{
    return "<filter><effect><effectid>timeremap</effectid>" + parameters + "</effect></filter>";
}

QByteArray key(const QByteArray &when, const QByteArray &value)
{
    return "<keyframe><when>" + when + "</when><value>" + value + "</value></keyframe>";
}

/// "path uses used/length in-out… @sequences notes", one file a line.
QByteArray textOf(const std::vector<MediaUses::File> &files)
{
    QByteArrayList lines;
    for (const MediaUses::File &used : files) {
        QByteArrayList words{used.path.toUtf8(), QByteArray::number(qlonglong(used.uses)),
                             QByteArray::number(qlonglong(FrameRanges::total(used.ranges))) + '/' +
                                 (used.length ? QByteArray::number(qlonglong(*used.length)) : "?")};
        for (const FrameRange &range : used.ranges)
            words.append(QByteArray::number(qlonglong(range.in)) + '-' +
                         QByteArray::number(qlonglong(range.out)));
        QByteArray sequences = "@";
        for (const int index : used.sequences)
            sequences += QByteArray::number(index);
        words.append(sequences);
        if (used.isStill)
            words.append("still");
        if (used.isDuplicate)
            words.append("duplicate");
        lines.append(words.join(' '));
    }
    return lines.join('\n');
}

} // namespace

class MediaUsesTest : public QObject
{
    Q_OBJECT

    const TemporaryHome m_home;

private Q_SLOTS:
    void initTestCase() { QVLog::createNewLog(QStringLiteral("tests"), true); }

    void ranges_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("expected");

        const QByteArray a = file("a", "/a", "100");
        QTest::newRow("apart, overlapping, touching")
            << item(points("5", "10") + a) + item(points("0", "6") + "<file id=\"a\"/>") +
                   item(points("10", "12") + "<file id=\"a\"/>") +
                   item(points("50", "60") + "<file id=\"a\"/>")
            << QByteArray("/a 4 22/100 0-12 50-60 @1");
        QTest::newRow("without points") << item(a) << QByteArray("/a 1 100/100 0-100 @1");
        QTest::newRow("open points") << item("<duration>40</duration>" + points("-1", "-1") + a)
                                     << QByteArray("/a 1 40/100 0-40 @1");
        QTest::newRow("empty") << item(points("7", "7") + a) << QByteArray("/a 1 0/100 @1");
        QTest::newRow("decimals, no length")
            << item(points("1.0", "3.0") + file("a", "/a", "")) << QByteArray("/a 1 2/? 1-3 @1");
        // 10 to 21 at 50 frames a second are 5 to 10.5 at 25.
        QTest::newRow("other rate") << item(rate("50") + points("10", "21") + a)
                                    << QByteArray("/a 1 6/100 5-11 @1");
        // 24 frames at 23.976 a second take 1.001 s, in which 25.025 pass.
        QTest::newRow("NTSC") << item(rate("24", "TRUE") + points("0", "24") + a)
                              << QByteArray("/a 1 26/100 0-26 @1");
        QTest::newRow("faster") << item(points("10", "20") + a +
                                        retimed(parameter("speed", "<value>150</value>")))
                                << QByteArray("/a 1 15/100 15-30 @1");
        QTest::newRow("backwards") << item(points("10", "20") + a +
                                           retimed(parameter("speed", "<value>200</value>") +
                                                   parameter("reverse", "<value>TRUE</value>")))
                                   << QByteArray("/a 1 20/100 60-80 @1");
        // The key frames lead from 0 over 40 at the clip's frame 10 back to 30.
        QTest::newRow("key frames") << item(points("5", "20") + a +
                                            retimed(parameter("speed", "<value>300</value>") +
                                                    parameter("graphdict", key("0", "0") + key("10", "40") +
                                                                               key("20", "30"))))
                                    << QByteArray("/a 1 20/100 20-40 @1");
        QTest::newRow("still") << item(points("90000", "90010") + file("s", "/s.tif", ""))
                               << QByteArray("/s.tif 1 10/? 90000-90010 @1 still");
        QTest::newRow("no URL") << item(points("0", "1") +
                                        "<file id=\"x\"><pathurl>file:///a b</pathurl></file>")
                                << QByteArray("file:///a b 1 1/? 0-1 @1");
    }

    void ranges()
    {
        QFETCH(const QByteArray, content);
        MediaProject opened;
        QVERIFY(opened.load("<xmeml>" + sequence("S", content) + "</xmeml>"));
        QTEST(textOf(MediaUses(opened.document).files({})), "expected");
    }

    /// Two sequences use what a third one holds, which is nested in them: inline and by its id.
    void sequences()
    {
        const QByteArray a = file("a", "/m/a.mov", "100"), twin = file("b", "/n/a.mov", "100"),
                         unused = file("c", "/c.wav", "50");
        const QByteArray inner =
            sequence("Inner", "", item(points("10", "20") + a) + item(points("15", "30") + a));
        MediaProject opened;
        QVERIFY(opened.load(project(
            "<clip><media><video><track>" + item(unused) + item(twin) + "</track></video></media></clip>" +
            sequence("One", item(inner) + item(points("0", "1") + "<file id=\"b\"/>")) +
            sequence("Two", item("<sequence id=\"Inner\"/>"), item(points("0", "9") + "<file id=\"b\"/>")))));
        const MediaUses uses(opened.document);
        // The menu has the reference to the inner sequence, too: One, Inner, Two and that.
        QCOMPARE(textOf(uses.files({})), QByteArray("/c.wav 0 0/50 @\n"
                                                    "/n/a.mov 1 9/100 0-9 @13 duplicate\n"
                                                    "/m/a.mov 2 20/100 10-30 @123 duplicate"));
        QCOMPARE(textOf(uses.files({{3}, 12})), QByteArray("/c.wav 0 0/50 @\n"
                                                           "/n/a.mov 1 21/100 0-21 @3 duplicate\n"
                                                           "/m/a.mov 2 42/100 0-42 @3 duplicate"));
        QCOMPARE(textOf(uses.files({{2}, 80})), QByteArray("/c.wav 0 0/50 @\n"
                                                           "/n/a.mov 0 0/100 @ duplicate\n"
                                                           "/m/a.mov 2 100/100 0-100 @2 duplicate"));
    }

    void conditions_data()
    {
        QTest::addColumn<MediaConditions>("conditions");
        QTest::addColumn<QByteArray>("expected");
        QTest::newRow("none") << MediaConditions{} << QByteArray("a.mov b.wav \xC3\xA9.png");
        QTest::newRow("folder, case")
            << MediaConditions{QStringLiteral("FOOT"), false, false, {}} << QByteArray("a.mov");
        QTest::newRow("decomposed") << MediaConditions{QStringLiteral("E\u0301.P"), false, false, {}}
                                    << QByteArray("\xC3\xA9.png");
        QTest::newRow("missing") << MediaConditions{{}, true, false, {}} << QByteArray("b.wav \xC3\xA9.png");
        QTest::newRow("unused") << MediaConditions{{}, false, true, {}} << QByteArray("\xC3\xA9.png");
        QTest::newRow("of a sequence") << MediaConditions{{}, false, false, {2}} << QByteArray("b.wav");
        QTest::newRow("not of a sequence")
            << MediaConditions{{}, false, true, {2}} << QByteArray("a.mov \xC3\xA9.png");
    }

    void conditions()
    {
        QFETCH(const MediaConditions, conditions);
        const QByteArray existing = m_home.addFile(QStringLiteral("footage/a.mov"), "x").toUtf8();
        MediaProject opened;
        QVERIFY(opened.load(project(sequence("A", item(file("a", existing, ""))) +
                                    sequence("B", "", item(file("b", "/none/b.wav", ""))) + "<clip>" +
                                    item(file("c", "/none/%C3%A9.png", "")) + "</clip>")));
        opened.document.viewState().selectedTab = Tab::Media;
        opened.filter.setCondition(mediaCondition(conditions, std::make_shared<MediaUses>(opened.document)));
        opened.filter.populateFilteredMediaData();
        QByteArrayList names;
        for (const RowRecordPtr &row : opened.document.rowsOnShow(Tab::Media))
            names.append(row->get(MediaKey::filename).toUtf8());
        QTEST(names.join(' '), "expected");
    }
};

QTEST_GUILESS_MAIN(MediaUsesTest)
#include "tst_mediauses.moc"
