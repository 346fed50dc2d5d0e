#include "interchange/ImportedMarker.h"
#include "interchange/QVFCPXMLParser.h"
#include "tests/support/TemporaryHome.h"

#include <QTest>

#include <limits>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// A file with two formats and one project: attributes of the first format and of the sequence,
/// elements of the spine. @NAME=START stands for a marker.
QByteArray fcpxml(const char *format, const char *sequence, const char *spine)
{
    const QString content =
        QString::fromUtf8(spine).replace(QRegularExpression(u"@([^=]*)=(\\S+)"_s),
                                         u"<marker start=\"\\2\" duration=\"1/25s\" value=\"\\1\"/>"_s);
    return QByteArray("<!DOCTYPE fcpxml><fcpxml version=\"1.8\"><resources><format ") + format +
           "/><format frameDuration=\"1/60s\"/></resources><library><event><project><sequence " + sequence +
           "><spine>" + content.toUtf8() + "</spine></sequence></project></event></library></fcpxml>";
}

const char *const at25 = "frameDuration=\"100/2500s\"";
const char *const fromOneHour = "tcStart=\"3600s\" tcFormat=\"NDF\"";

/// "NAME=START", or "-" for a row without keys.
QString text(const RowList &rows)
{
    QStringList texts;
    for (const RowRecordPtr &row : rows) {
        const QString position = row->contains(ImportedMarkerKey::seconds)
                                     ? QString::number(row->get(ImportedMarkerKey::seconds), 'g', 17)
                                     : row->get(ImportedMarkerKey::startTimecode);
        texts.append(row->size() == 0 ? u"-"_s : row->get(ImportedMarkerKey::name) + u'=' + position);
    }
    return texts.join(u' ');
}

} // namespace

class TestFcpxml : public QObject
{
    Q_OBJECT

    TemporaryHome m_home;

    QString read(const QByteArray &xml, bool useTimecode = true, bool stripDuplicates = false,
                 bool mainStorylineOnly = true, qint64 relativeHour = -1)
    {
        return text(QVFCPXMLParser::markersFromXMLFile(m_home.addFile(u"a.fcpxml"_s, xml), useTimecode,
                                                       stripDuplicates, mainStorylineOnly, relativeHour));
    }

private Q_SLOTS:
    void rationalTimes()
    {
        const struct {
            QString text;
            double seconds;
            double fps;
            quint64 multiplier;
            quint64 framesOf1001;
        } rows[] = {
            {u"3600s"_s, 3600, 3600, 3600, 3},
            {u"0.5"_s, 0.5, 0.5, 0, 0},
            {u"1001/30000s"_s, 1001.0 / 30000, 30000.0 / 1001, 1001, 1},
            {u"4003/25"_s, 160.12, 25.0 / 4003, 4003, 3},
            {u"-3003/1s"_s, -3003, -1.0 / 3003, quint64(-3003), quint64(-3)},
            {u"1e30/1s"_s, 1e30, 1 / 1e30, 1, std::numeric_limits<quint64>::max()},
            {u"-1e30/1s"_s, -1e30, -1 / 1e30, quint64(-1), quint64(1) << 63},
            {QString(), 0, 0, 0, 0},
            {u"s"_s, 0, 0, 0, 0},
            {u"inf/"_s, 0, 0, 0, 0},
            {u"1/0s"_s, 0, 0, 1, 0},
            {u"0/5s"_s, 0, 0, 0, 0},
            {u"1/2/3s"_s, 0, 0, 1, 0},
            {u"1e999s"_s, 0, 0, 1, 0},
        };
        for (const auto &row : rows) {
            const QByteArray name = row.text.toUtf8();
            QVERIFY2(QVFCPXMLParser::secondsFromTimeString(row.text) == row.seconds, name.constData());
            QVERIFY2(QVFCPXMLParser::fpsFromFrameDuration(row.text) == row.fps, name.constData());
            QVERIFY2(QVFCPXMLParser::multiplierFromFrameDuration(row.text) == row.multiplier,
                     name.constData());
            QVERIFY2(QVFCPXMLParser::framesFromTimeString(row.text, 1001) == row.framesOf1001,
                     name.constData());
            QVERIFY2(QVFCPXMLParser::framesFromTimeString(row.text, 0) == 0, name.constData());
        }
    }

    void positions()
    {
        const struct {
            const char *format;
            const char *sequence;
            const char *spine;
            const char *timecodes;
            const char *seconds;
        } rows[] = {
            // The ends of the item, and just outside.
            {at25, fromOneHour,
             "<clip offset='100s' start='10s' duration='10s'>@a=10s @b=20s @c=9999/1000s @d=20001/1000s "
             "</clip>",
             "a=01:01:40:00 b=01:01:50:00", "a=100 b=110"},
            // Frame 12.5.
            {at25, "", "<gap duration='9s'>@a=1/2s </gap>", "a=00:00:00:12", "a=0.5"},
            // Frame 1800 and a bit, shown as 1802 only where frames are dropped.
            {"frameDuration='1001/30000s'", "tcFormat='DF'", "<gap duration='99s'>@a=6007/100s </gap>",
             "a=00:01:00;02", "a=60.07"},
            {"frameDuration='1001/30000s'", "tcFormat='df'", "<gap duration='99s'>@a=6007/100s </gap>",
             "a=00:01:00:00", "a=60.07"},
            // 23.976 counts as 24; the start is frame 86313.7, and 86314 = 3596 × 24 + 10.
            {"frameDuration='1001/24000s'", fromOneHour, "<gap>@a=0s </gap>", "a=00:59:56:10", "a=0"},
            // The second format is the first that has a frame duration.
            {"name='r1'", fromOneHour, "<gap duration='9s'>@a=1/2s </gap>", "a=01:00:00:30", "a=0.5"},
            {"frameDuration='0/0s'", "tcStart='5/0s'", "<gap offset='7/0s'>@a=1/0s </gap>", "a=00:00:00:00",
             "a=0"},
            // 2^63 frames a second.
            {"frameDuration='1/9223372036854775808s'", "", "<gap duration='9s'>@a=1s </gap>", "a=00:00:01:00",
             "a=1"},
            // Frame 90000 less 25.
            {at25, fromOneHour, "<gap offset='-1s'>@a=0s </gap>", "a=00:59:59:00", "a=-1"},
            {at25, "", "<gap offset='1e308s' start='-1e308s' duration='1e308s'>@a=-1e308s @b=0s </gap>",
             "a=00:00:00:00 b=00:00:00:00", "a=1e+308 b=0"},
            {at25, "", "<gap><marker start='0s'/>@=0s @&amp;\u0416=0s </gap>",
             "- =00:00:00:00 &\u0416=00:00:00:00", "- =0 &\u0416=0"},
            {at25, "",
             "<gap>@a=0s </gap><clip>@b=0s </clip><title>@c=0s </title><ref-clip>@d=0s </ref-clip>"
             "<audio>@x=0s </audio><mc-clip>@e=0s </mc-clip><video>@f=0s <chapter-marker value='x'/></video>"
             "<transition>@g=0s </transition>",
             nullptr, "a=0 b=0 c=0 d=0 e=0 f=0 g=0"},
        };
        for (const auto &row : rows) {
            const QByteArray xml = fcpxml(row.format, row.sequence, row.spine);
            QCOMPARE(read(xml, false), QString::fromUtf8(row.seconds));
            if (row.timecodes)
                QCOMPARE(read(xml), QString::fromUtf8(row.timecodes));
        }
    }

    void storylinesAndDuplicates()
    {
        const QByteArray xml =
            fcpxml(at25, fromOneHour,
                   "<clip offset='100s' duration='9s'>@a=1s <title offset='1s'>@t=0s </title>"
                   "<spine><clip offset='50s' duration='9s'>@s=3s </clip></spine></clip>"
                   "<clip offset='101s' duration='9s'>@b=0s @c=1s </clip>");
        QCOMPARE(read(xml, false, false, true), u"a=101 b=101 c=102"_s);
        QCOMPARE(read(xml, false, true, true), u"a=101 c=102"_s);
        QCOMPARE(read(xml, false, false, false), u"a=101 t=1 s=53 b=101 c=102"_s);
        QCOMPARE(read(xml, false, true, false), u"a=101 t=1 s=53 c=102"_s);
        const QString path = m_home.path(u"a.fcpxml"_s);
        QCOMPARE(text(QVFCPXMLParser::markersFromXMLFile(path, false)), u"a=101 b=101 c=102"_s);
        QCOMPARE(text(QVFCPXMLParser::markersFromXMLFile(path, false, true, false)),
                 u"a=101 t=1 s=53 c=102"_s);
    }

    void firstProjectOfEachEvent()
    {
        QByteArray xml = fcpxml(at25, fromOneHour, "<gap>@a=0s </gap>");
        const QByteArray others =
            "<project><sequence><spine><gap><marker value='b'/></gap></spine></sequence>"
            "</project></event><event><project><sequence tcStart='7200s'><spine><gap>"
            "<marker value='c'/></gap></spine></sequence></project></event>";
        QCOMPARE(read(xml.replace("</event>", others)), u"a=01:00:00:00 c=01:00:00:00"_s);
    }

    void relativeHours()
    {
        const struct {
            const char *sequence;
            qint64 relativeHour;
            const char *timecodes; // of 0, 1, 2 and 11 hours
        } rows[] = {
            {"", -1, "a=00:00:00:00 b=01:00:00:00 c=02:00:00:00 d=11:00:00:00"},
            {"", 0, "a=00:00:00:00 b=01:00:00:00 c=02:00:00:00 d=11:00:00:00"},
            {"", 1, "a=01:00:00:00 b=00:00:00:00 c=02:00:00:00 d=11:00:00:00"},
            {"", 11, "a=11:00:00:00 b=12:00:00:00 c=13:00:00:00 d=00:00:00:00"},
            // The hour is written from its low 32 bits, and wraps around beyond 64.
            {"", (qint64(1) << 32) + 5, "a=5:00:00:00 b=6:00:00:00 c=7:00:00:00 d=16:00:00:00"},
            {"", std::numeric_limits<qint64>::max(),
             "a=-1:00:00:00 b=00:00:00:00 c=01:00:00:00 d=010:00:00:00"},
            {"tcFormat='DF'", -1, "a=00:00:00;00 b=01:00:03;18 c=02:00:07;06 d=11:00:39;18"},
            {"tcFormat='DF'", 2, "a=02:00:00:00 b=03:00:03:18 c=00:00:07:06 d=11:00:39:18"},
        };
        for (const auto &row : rows) {
            const QByteArray xml = fcpxml("frameDuration='1/30s'", row.sequence,
                                          "<gap duration='99999s'>@a=0s @b=3600s @c=7200s @d=39600s </gap>");
            QCOMPARE(read(xml, true, false, true, row.relativeHour), QString::fromLatin1(row.timecodes));
        }
    }

    void foreignFiles()
    {
        const QByteArray good = fcpxml(at25, fromOneHour, "<gap>@a=0s </gap>");
        QCOMPARE(read(good), u"a=01:00:00:00"_s);
        QByteArray entities = "<!DOCTYPE fcpxml [<!ENTITY e SYSTEM \"a.fcpxml\"><!ENTITY e0 \"x\">";
        for (const char *number : {"01", "12", "23", "34", "45", "56", "67", "78", "89"})
            entities += QByteArray("<!ENTITY e") + number[1] + " \"" +
                        ("&e" + QByteArray(1, number[0]) + ';').repeated(20) + "\">";
        const auto with = [&good](const char *before, const QByteArray &after) {
            return QByteArray(good).replace(before, after);
        };
        const QByteArray rows[] = {
            QByteArray(),
            QByteArray("\0\xff\xfe", 3),
            good.chopped(20),
            with("</spine>", ""),
            with("library>", "folder>"),
            with("fcpxml", "xmeml"),
            with("value=\"a\"", "value=\"&e;\""),
            with("value=\"a\"", "value=\"&e;\"").replace("<!DOCTYPE fcpxml", entities + ']'),
            with("value=\"a\"", "value=\"&e9;\"").replace("<!DOCTYPE fcpxml", entities + ']'),
            with("<gap>", QByteArray("<gap>").repeated(100'000)),
        };
        for (const QByteArray &row : rows)
            QCOMPARE(read(row, true, false, false), QString());
        for (const QString &path : {QString(), m_home.path(), m_home.path(u"missing.fcpxml"_s)})
            QVERIFY(QVFCPXMLParser::markersFromXMLFile(path, true).empty());
    }

    void manyMarkers()
    {
        QByteArray xml = fcpxml(at25, "", "<gap offset='1s'>@a=0s </gap>");
        const qsizetype start = xml.indexOf("<gap");
        const QByteArray gap = xml.sliced(start, xml.indexOf("</spine>") - start);
        xml.insert(start, gap.repeated(50'000));
        QCOMPARE(read(xml, false, true, false), u"a=1"_s);
        QCOMPARE(QVFCPXMLParser::markersFromXMLFile(m_home.path(u"a.fcpxml"_s), true).size(),
                 std::size_t(50'001));
    }
};

QTEST_GUILESS_MAIN(TestFcpxml)
#include "tst_fcpxml.moc"
