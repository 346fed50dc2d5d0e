#include "tests/interchange/RowText.h"

#include "interchange/QVFCPXMLParser.h"
#include "tests/support/TemporaryHome.h"

#include <QtTest>

#include <limits>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// A file with one project: attributes of its format and sequence, elements of its spine.
QByteArray fcpxml(const QByteArray &format, const QByteArray &sequence, const QByteArray &spine)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE fcpxml>\n<fcpxml version=\"1.8\">\n"
           "<resources><format id=\"r1\" " +
           format +
           "/><format id=\"r2\" frameDuration=\"1/60s\"/></resources>\n<library><event><project><sequence " +
           sequence + "><spine>\n" + spine + "\n</spine></sequence></project></event></library></fcpxml>\n";
}

QByteArray marker(const QByteArray &name, const QByteArray &start)
{
    return "<marker start=\"" + start + "\" duration=\"1/25s\" value=\"" + name + "\"/>";
}

const QByteArray at25("frameDuration=\"100/2500s\"");
const QByteArray fromOneHour("format=\"r1\" tcStart=\"3600s\" tcFormat=\"NDF\"");

/// An item from 10 s to 20 s of its media that stands at 100 s of the sequence.
QByteArray item(const QByteArray &content)
{
    return "<clip offset=\"100s\" start=\"10s\" duration=\"10s\">" + content + "</clip>";
}

QByteArray hundredBillionEntities()
{
    QByteArray declarations("<!ENTITY e0 \"x\">");
    for (int i = 1; i < 12; ++i) {
        const QByteArray smaller = "&e" + QByteArray::number(i - 1) + ';';
        declarations += "<!ENTITY e" + QByteArray::number(i) + " \"" + smaller.repeated(10) + "\">";
    }
    return fcpxml(at25, fromOneHour, item(marker("&e11;", "10s")))
        .replace("<!DOCTYPE fcpxml>", "<!DOCTYPE fcpxml [" + declarations + "]>");
}

} // namespace

class TestFcpxml : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rationalTimes();
    void timecodes_data();
    void timecodes();
    void storylinesAndDuplicates();
    void projectsOfALibrary();
    void relativeHours();
    void foreignFiles();
    void manyMarkers();

private:
    QStringList read(const QByteArray &xml, bool useTimecode = true, bool stripDuplicates = false,
                     bool mainStorylineOnly = true, qint64 relativeHour = -1)
    {
        return textsOf(QVFCPXMLParser::markersFromXMLFile(m_home.addFile(u"a.fcpxml"_s, xml), useTimecode,
                                                          stripDuplicates, mainStorylineOnly, relativeHour));
    }

    TemporaryHome m_home;
};

void TestFcpxml::rationalTimes()
{
    const struct {
        QString text;
        double seconds;
        double fps;
        quint64 multiplier;
        quint64 framesOf1001;
    } rows[] = {
        {u"3600s"_s, 3600, 3600, 3600, 3},
        {u"3600"_s, 3600, 3600, 3600, 3},
        {u"0.5s"_s, 0.5, 0.5, 0, 0},
        {u"1001/30000s"_s, 1001.0 / 30000, 30000.0 / 1001, 1001, 1},
        {u"3003/30000s"_s, 0.1001, 30000.0 / 3003, 3003, 3},
        {u"4003/30000"_s, 4003.0 / 30000, 30000.0 / 4003, 4003, 3},
        {u"100/2500s"_s, 0.04, 25, 100, 0},
        {u"2s"_s, 2, 2, 2, 0},
        {u"2ss"_s, 2, 2, 2, 0},
        {u"-3003/1s"_s, -3003, -1.0 / 3003, quint64(-3003), quint64(-3)},
        {QString(), 0, 0, 0, 0},
        {u""_s, 0, 0, 0, 0},
        {u"s"_s, 0, 0, 0, 0},
        {u"abc"_s, 0, 0, 0, 0},
        {u"/"_s, 0, 0, 0, 0},
        {u"1/0s"_s, 0, 0, 1, 0},
        {u"0/5s"_s, 0, 0, 0, 0},
        {u"1/2/3s"_s, 0, 0, 1, 0},
        {u"inf"_s, 0, 0, 0, 0},
        {u"1e999/2s"_s, 0, 0, 1, 0},
        {u"1e999s"_s, 0, 0, 1, 0},
        {u"1e30/1s"_s, 1e30, 1 / 1e30, 1, std::numeric_limits<quint64>::max()},
        {u"-1e30/1s"_s, -1e30, -1 / 1e30, quint64(-1), quint64(1) << 63},
    };
    for (const auto &row : rows) {
        const QByteArray text = row.text.toUtf8();
        QVERIFY2(QVFCPXMLParser::secondsFromTimeString(row.text) == row.seconds, text.constData());
        QVERIFY2(QVFCPXMLParser::fpsFromFrameDuration(row.text) == row.fps, text.constData());
        QVERIFY2(QVFCPXMLParser::multiplierFromFrameDuration(row.text) == row.multiplier, text.constData());
        QVERIFY2(QVFCPXMLParser::framesFromTimeString(row.text, 1001) == row.framesOf1001, text.constData());
        QVERIFY2(QVFCPXMLParser::framesFromTimeString(row.text, 0) == 0, text.constData());
    }
}

void TestFcpxml::timecodes_data()
{
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<QByteArray>("sequence");
    QTest::addColumn<QByteArray>("spine");
    QTest::addColumn<QStringList>("timecodes");
    QTest::addColumn<QStringList>("seconds");
    const auto row = [](const char *title, const QByteArray &format, const QByteArray &sequence,
                        const QByteArray &spine, const QStringList &timecodes, const QStringList &seconds) {
        QTest::newRow(title) << format << sequence << spine << timecodes << seconds;
    };

    row("both ends of the item, and a hair outside", at25, fromOneHour,
        item(marker("a", "10s") + marker("b", "20s") + marker("c", "9999/1000s") +
             marker("d", "20001/1000s")),
        {u"name=a|startTimecode=01:01:40:00"_s, u"name=b|startTimecode=01:01:50:00"_s},
        {u"name=a|seconds=100"_s, u"name=b|seconds=110"_s});
    // 0.5 s is frame 12.5 at 25 frames a second.
    row("truncated to frames", at25, "tcStart=\"0s\"", item(marker("a", "21/2s")),
        {u"name=a|startTimecode=00:01:40:12"_s}, {u"name=a|seconds=100.5"_s});
    // Frame 1800 shows as 1802; the count is taken a hair beyond it.
    row("drop frame", "frameDuration=\"1001/30000s\"", "tcStart=\"0s\" tcFormat=\"DF\"",
        "<gap offset=\"0s\" duration=\"100s\">" + marker("a", "6007/100s") + "</gap>",
        {u"name=a|startTimecode=00:01:00;02"_s}, {u"name=a|seconds=60.07"_s});
    row("only DF drops frames", "frameDuration=\"1001/30000s\"", "tcFormat=\"df\"",
        "<gap duration=\"100s\">" + marker("a", "6007/100s") + "</gap>",
        {u"name=a|startTimecode=00:01:00:00"_s}, {u"name=a|seconds=60.07"_s});
    // 23.976 counts as 24; the start is frame 86313.7, and 86314 = 3596 × 24 + 10.
    row("start rounded up", "frameDuration=\"1001/24000s\"", "tcStart=\"3600s\"",
        "<gap>" + marker("a", "0s") + "</gap>", {u"name=a|startTimecode=00:59:56:10"_s},
        {u"name=a|seconds=0"_s});
    row("the first format that has a frame duration", "name=\"FFVideoFormatRateUndefined\"", fromOneHour,
        item(marker("a", "10s")), {u"name=a|startTimecode=01:01:40:00"_s}, {u"name=a|seconds=100"_s});
    row("division by zero", "frameDuration=\"0/0s\"", "tcStart=\"5/0s\"",
        "<gap offset=\"7/0s\">" + marker("a", "1/0s") + "</gap>", {u"name=a|startTimecode=00:00:00:00"_s},
        {u"name=a|seconds=0"_s});
    // A second before the start wraps to 2^64 − 25, and with the start to frame 90000 − 25.
    row("before the start", at25, fromOneHour, "<gap offset=\"-1s\">" + marker("a", "0s") + "</gap>",
        {u"name=a|startTimecode=00:59:59:00"_s}, {u"name=a|seconds=-1"_s});
    row("beyond every number", at25, QByteArray(),
        "<gap offset=\"1e308s\" start=\"-1e308s\">" + marker("a", "-1e308s") +
            "</gap><gap offset=\"1e308s\" start=\"-1e308s\" duration=\"1e308s\">" + marker("b", "0s") +
            "</gap>",
        {u"name=a|startTimecode=00:00:00:00"_s, u"name=b|startTimecode=00:00:00:00"_s},
        {u"name=a|seconds=1e+308"_s, u"name=b|seconds=0"_s});
    row("without a name, and with an empty one", at25, fromOneHour,
        item("<marker start=\"10s\"/>" + marker("", "10s")),
        {QString(), u"name=|startTimecode=01:01:40:00"_s}, {QString(), u"name=|seconds=100"_s});
    row("every kind of item in document order", at25, "tcStart=\"0s\"",
        "<gap>" + marker("gap", "0s") + "</gap><clip>" + marker("clip", "0s") + "</clip><title>" +
            marker("title", "0s") + "</title><ref-clip>" + marker("ref", "0s") + "</ref-clip><mc-clip>" +
            marker("mc", "0s") + "</mc-clip><audio>" + marker("audio", "0s") + "</audio><video>" +
            marker("video", "0s") + "<chapter-marker start=\"0s\" value=\"chapter\"/></video><transition>" +
            marker("A &amp; \xc3\xa9", "0s") + "</transition>",
        QStringList(),
        {u"name=gap|seconds=0"_s, u"name=clip|seconds=0"_s, u"name=title|seconds=0"_s,
         u"name=ref|seconds=0"_s, u"name=mc|seconds=0"_s, u"name=video|seconds=0"_s,
         u"name=A & \u00e9|seconds=0"_s});
}

void TestFcpxml::timecodes()
{
    QFETCH(QByteArray, format);
    QFETCH(QByteArray, sequence);
    QFETCH(QByteArray, spine);
    QFETCH(QStringList, timecodes);
    QFETCH(QStringList, seconds);
    const QByteArray xml = fcpxml(format, sequence, spine);
    QCOMPARE(read(xml, false), seconds);
    if (!timecodes.isEmpty())
        QCOMPARE(read(xml), timecodes);
}

void TestFcpxml::storylinesAndDuplicates()
{
    const QByteArray xml = fcpxml(
        at25, fromOneHour,
        item(marker("a", "11s") + "<title offset=\"1s\" duration=\"9s\">" + marker("connected", "2s") +
             "</title>" + "<spine><clip offset=\"50s\" duration=\"9s\">" + marker("inside", "3s") +
             "</clip></spine>") +
            "<clip offset=\"101s\" duration=\"9s\">" + marker("b", "0s") + marker("c", "1s") + "</clip>");
    const QString a = u"name=a|seconds=101"_s;
    const QString b = u"name=b|seconds=101"_s;
    const QString c = u"name=c|seconds=102"_s;
    const QString connected = u"name=connected|seconds=3"_s;
    const QString inside = u"name=inside|seconds=53"_s;
    QCOMPARE(read(xml, false, false, true), (QStringList{a, b, c}));
    QCOMPARE(read(xml, false, true, true), (QStringList{a, c}));
    QCOMPARE(read(xml, false, false, false), (QStringList{a, connected, inside, b, c}));
    QCOMPARE(read(xml, false, true, false), (QStringList{a, connected, inside, c}));
    QCOMPARE(textsOf(QVFCPXMLParser::markersFromXMLFile(m_home.path(u"a.fcpxml"_s), false)),
             (QStringList{a, b, c}));
    QCOMPARE(textsOf(QVFCPXMLParser::markersFromXMLFile(m_home.path(u"a.fcpxml"_s), false, true, false)),
             (QStringList{a, connected, inside, c}));
}

void TestFcpxml::projectsOfALibrary()
{
    const auto project = [](const QByteArray &name, const QByteArray &sequence) {
        return "<project><sequence " + sequence + "><spine><gap>" + marker(name, "0s") +
               "</gap></spine></sequence></project>";
    };
    const QByteArray xml =
        "<fcpxml><resources><format frameDuration=\"1/25s\"/></resources><library><event>" +
        project("first", "tcStart=\"3600s\"") + project("second", QByteArray()) + "</event><event>" +
        project("third", "tcStart=\"7200s\"") + "</event></library></fcpxml>";
    // The first project of each event, counted as the first project's sequence is.
    QCOMPARE(read(xml), (QStringList{u"name=first|startTimecode=01:00:00:00"_s,
                                     u"name=third|startTimecode=01:00:00:00"_s}));
}

void TestFcpxml::relativeHours()
{
    const struct {
        QByteArray format;
        qint64 relativeHour;
        QStringList timecodes;
    } rows[] = {
        {"tcFormat=\"NDF\"", -1, {u"00:00:00:00"_s, u"01:00:00:00"_s, u"02:00:00:00"_s, u"11:00:00:00"_s}},
        {"tcFormat=\"NDF\"", 0, {u"00:00:00:00"_s, u"01:00:00:00"_s, u"02:00:00:00"_s, u"11:00:00:00"_s}},
        {"tcFormat=\"NDF\"", 1, {u"01:00:00:00"_s, u"00:00:00:00"_s, u"02:00:00:00"_s, u"11:00:00:00"_s}},
        {"tcFormat=\"NDF\"", 11, {u"11:00:00:00"_s, u"12:00:00:00"_s, u"13:00:00:00"_s, u"00:00:00:00"_s}},
        // The hour is written from its low 32 bits.
        {"tcFormat=\"NDF\"",
         (qint64(1) << 32) + 5,
         {u"5:00:00:00"_s, u"6:00:00:00"_s, u"7:00:00:00"_s, u"16:00:00:00"_s}},
        {"tcFormat=\"NDF\"",
         std::numeric_limits<qint64>::max(),
         {u"-1:00:00:00"_s, u"00:00:00:00"_s, u"01:00:00:00"_s, u"010:00:00:00"_s}},
        {"tcFormat=\"DF\"", -1, {u"00:00:00;00"_s, u"01:00:03;18"_s, u"02:00:07;06"_s, u"11:00:39;18"_s}},
        {"tcFormat=\"DF\"", 2, {u"02:00:00:00"_s, u"03:00:03:18"_s, u"00:00:07:06"_s, u"11:00:39:18"_s}},
    };
    for (const auto &row : rows) {
        const QByteArray spine = "<gap duration=\"99999s\">" + marker("a", "0s") + marker("a", "3600s") +
                                 marker("a", "7200s") + marker("a", "39600s") + "</gap>";
        QStringList expected;
        for (const QString &timecode : row.timecodes)
            expected.append(u"name=a|startTimecode="_s + timecode);
        QCOMPARE(
            read(fcpxml("frameDuration=\"1/30s\"", row.format, spine), true, false, true, row.relativeHour),
            expected);
    }
}

void TestFcpxml::foreignFiles()
{
    const QByteArray good = fcpxml(at25, fromOneHour, item(marker("a", "10s")));
    QCOMPARE(read(good).size(), 1);
    const QString secret = m_home.addFile(u"secret.txt"_s, "secret");
    const QByteArray external = "<!DOCTYPE fcpxml [<!ENTITY e SYSTEM \"file://" + secret.toUtf8() + "\">]>";
    const QByteArray rows[] = {
        QByteArray(),
        QByteArray("\0\xff\xfe", 3),
        good.chopped(20),
        QByteArray(good).replace("</spine>", ""),
        QByteArray(good).replace("library>", "folder>"),
        QByteArray(good).replace("fcpxml", "xmeml"),
        QByteArray(good).replace("value=\"a\"", "value=\"&undeclared;\""),
        QByteArray(good).replace("value=\"a\"", "value=\"&e;\"").replace("<!DOCTYPE fcpxml>", external),
        hundredBillionEntities(),
        "<fcpxml>" + QByteArray("<a>").repeated(100'000) + QByteArray("</a>").repeated(100'000) + "</fcpxml>",
    };
    for (const QByteArray &row : rows)
        QCOMPARE(read(row), QStringList());
    for (const QString &path : {QString(), m_home.path(), m_home.path(u"missing.fcpxml"_s)})
        QVERIFY(QVFCPXMLParser::markersFromXMLFile(path, true).empty());
}

void TestFcpxml::manyMarkers()
{
    QByteArray spine;
    for (int i = 0; i < 50'000; ++i)
        spine += "<gap offset=\"" + QByteArray::number(i) + "s\">" + marker("a", "0s") + "</gap>";
    const QStringList all = read(fcpxml(at25, fromOneHour, spine), false, true, false);
    QCOMPARE(all.size(), 50'000);
    QCOMPARE(all.last(), u"name=a|seconds=49999"_s);
}

QTEST_GUILESS_MAIN(TestFcpxml)
#include "tst_fcpxml.moc"
