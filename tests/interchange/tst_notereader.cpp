#include "interchange/notes/NoteReader.h"
#include "tests/support/LongSeries.h"

#include <QElapsedTimer>
#include <QStringEncoder>
#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

QByteArray utf16(const QString &text, QStringConverter::Encoding encoding, bool marked)
{
    QStringEncoder encoder(encoding,
                           marked ? QStringConverter::Flag::WriteBom : QStringConverter::Flag::Default);
    return encoder.encode(text);
}

/// "line|time|name|comment|duration|color|user|track" of each row, with "-" for what is absent.
QString rowsOf(const NoteList &list)
{
    QStringList lines;
    for (const NoteRow &row : list.rows) {
        QStringList cells = {QString::number(row.line)};
        for (const QStringView value :
             {row.time, row.name, row.comment, row.duration, row.color, row.user, row.track})
            cells.append(value.isNull() ? u"-"_s : value.toString());
        lines.append(cells.join(u'|'));
    }
    return lines.join(u'\n');
}

QString columnsOf(const NoteList &list)
{
    QStringList texts;
    for (const NoteRole &role : list.columns)
        texts.append(role.text());
    return texts.join(u' ');
}

QByteArray avidXml()
{
    const auto attribute = [](const char *name, const char *kind, const char *value) {
        return QByteArray("<ListElem>\n<AvProp name=\"OMFI:ATTB:Kind\">1</AvProp>"
                          "<AvProp name=\"OMFI:ATTB:Name\">_ATN_CRM_") +
               name + "</AvProp><AvProp name=\"OMFI:ATTB:" + kind + "\">" + value + "</AvProp></ListElem>";
    };
    const QByteArray first =
        "<List>" + attribute("COLOR", "StringAttribute", "Cyan") +
        attribute("USER", "StringAttribute", "kim") + attribute("COM", "StringAttribute", "a &lt;b&gt;") +
        attribute("TC", "StringAttribute", "01:00:00:10") + attribute("LENGTH", "IntAttribute", "5") +
        attribute("TRK", "StringAttribute", "V2") + "</List>";
    const QByteArray second = "<List>" + attribute("TC", "StringAttribute", "01:00:02:00") + "</List>";
    return "<?xml version=\"1.0\"?>\n<Avid:StreamItems xmlns:Avid=\"x\">" + first + "\n" + second +
           "</Avid:StreamItems>";
}

/// 25 frames, from 01:00:00:00: a clip with a connected one, a clip within a clip, and a hidden marker.
QByteArray interchangeFile()
{
    return "<?xml version=\"1.0\"?><fcpxml><resources><format id=\"r1\" "
           "frameDuration=\"1/25s\"/></resources>\n"
           "<!-- <marker -->\n"
           "<library><event><clip><marker start=\"0s\" value=\"of the event\"/></clip>\n"
           "<project name=\"Cut\"><sequence format=\"r1\" tcStart=\"3600s\" tcFormat=\"NDF\"><spine>\n"
           "<asset-clip offset=\"3600s\" start=\"100s\" duration=\"10s\">\n"
           "<marker start=\"102s\" duration=\"2/25s\" value=\"A\" note=\"n\"/>\n"
           "<asset-clip lane=\"1\" offset=\"109s\" start=\"0s\" duration=\"4s\">\n"
           "<chapter-marker start=\"2s\" value=\"B\"/></asset-clip>\n"
           "<marker start=\"111s\" value=\"hidden\"/></asset-clip>\n"
           "<sync-clip offset=\"3610s\" start=\"5s\" duration=\"3s\"><spine>"
           "<clip offset=\"0s\" duration=\"20s\">\n"
           "<marker start=\"6s\" value=\"C\" completed=\"0\"/></clip></spine></sync-clip>\n"
           "</spine></sequence></project></event></library></fcpxml>";
}

} // namespace

class NoteReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapes_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("kind"); // shape, encoding, delimiter, rate
        QTest::addColumn<QString>("columns");
        QTest::addColumn<QString>("rows");

        QTest::newRow("avid text, five to eight fields and all line ends")
            << QByteArray("kim\t01:00:00:10\tV1\tred\t\"a\" note\r"
                          "lee\t01:00:01:00\tA2\tCyan\t\t12\r\n"
                          "\n"
                          "lee\t01:00:02:00\tTC1\tmagenta\tc\t1\tName\t#FF8000\n")
            << u"avid-text UTF-8 tab -"_s << u"user time track color comment duration name ignore"_s
            << u"1|01:00:00:10|-|\"a\" note|-|red|kim|V1\n2|01:00:01:00|-|-|12|Cyan|lee|A2\n"
               "4|01:00:02:00|Name|c|1|magenta|lee|TC1"_s;
        QTest::newRow("avid xml") << avidXml() << u"avid-xml UTF-8  -"_s
                                  << u"user time track color comment duration name"_s
                                  << u"3|01:00:00:10|-|a <b>|5|Cyan|kim|V2\n10|01:00:02:00|-|-|-|-|-|-"_s;
        const QString premiere = u"Markername\tBeschreibung\tIn\tOut\tDauer\tMarkertyp\n"
                                 "Ä\tx\t00;00;10;02\t00;00;11;00\t00;00;00;28\tKommentar\n"_s;
        const QString premiereColumns = u"name comment time end duration type"_s;
        const QString premiereRows = u"2|00;00;10;02|Ä|x|00;00;00;28|-|-|-"_s;
        QTest::newRow("premiere, UTF-16LE")
            << utf16(premiere, QStringConverter::Utf16LE, true) << u"premiere UTF-16LE tab 29.97df"_s
            << premiereColumns << premiereRows;
        QTest::newRow("premiere, UTF-16BE without a mark")
            << utf16(premiere, QStringConverter::Utf16BE, false) << u"premiere UTF-16BE tab 29.97df"_s
            << premiereColumns << premiereRows;
        QTest::newRow("premiere, commas, an unknown language")
            << QByteArray(
                   "Nimi,Kuvaus,Alku,Loppu,Kesto,Laji\nA,,00;00;10;40,00;00;11;00,00;00;00;20,Kommentti\n")
            << u"premiere UTF-8 comma 59.94df"_s << premiereColumns
            << u"2|00;00;10;40|A|-|00;00;00;20|-|-|-"_s;
        QTest::newRow("audition") << QByteArray("Name\tStart\tDuration\tTime Format\tType\tDescription\n"
                                                "M 1\t00:00:05;12\t00:00:00;00\t59.94 fps drop\tCue\tnote\n")
                                  << u"audition UTF-8 tab 59.94df"_s
                                  << u"name time duration ignore type comment"_s
                                  << u"2|00:00:05;12|M 1|note|00:00:00;00|-|-|-"_s;
        QTest::newRow("resolve")
            << QByteArray("TITLE: Cut\nFCM: NON-DROP FRAME\n\n"
                          "001  001      V     C        01:00:10:05 01:00:10:06 01:00:10:05 01:00:10:06  \n"
                          "see | this |C:ResolveColorBlue |M:Name: 1 |D:12\n")
            << u"resolve-edl UTF-8  -"_s << u"time color name duration comment"_s
            << u"5|01:00:10:05|Name: 1|see | this|12|ResolveColorBlue|-|-"_s;
        QTest::newRow("locators")
            << QByteArray("TITLE: Cut\r\nFCM: DROP FRAME\r\n"
                          "001  AX V C 00:00:00;00 00:00:05;00 01:00:00;00 01:00:05;00\r\n"
                          "* LOC: 01:00:10;05 RED     some text\r\n* LOC: 01:00:11;00 no colour\r\n")
            << u"edl-locators UTF-8  29.97df"_s << u"time color name"_s
            << u"4|01:00:10;05|some text|-|-|RED|-|-\n5|01:00:11;00|no colour|-|-|-|-|-"_s;
        QTest::newRow("pro tools, macintosh")
            << QByteArray(
                   "SESSION NAME:\tMix\rSAMPLE RATE:\t48000.000000\rSESSION START TIMECODE:\t01:00:00:00\r"
                   "TIMECODE FORMAT:\t23.976 Frame\r\r"
                   "M A R K E R S  L I S T I N G\r"
                   "#   \tLOCATION     \tTIME REFERENCE    \tUNITS    \tNAME     \tCOMMENTS\r"
                   "1   \t01:00:02:12  \t120120            \tSamples  \tCaf\x8e    \tA \xd2quote\xd3\r"
                   "2   \t3|1|000      \t96000             \tSamples  \tBar      \t\r")
            << u"pro-tools macintosh tab 23.976"_s << u"ignore time ignore ignore name comment"_s
            << u"8|01:00:02:12|Café|A “quote”|-|-|-|-\n9|96000/48000s|Bar|-|-|-|-|-"_s;
        QTest::newRow("review")
            << QByteArray("\xef\xbb\xbf\"Comment\",\"Commenter\",\"Timecode In\",\"Timecode "
                          "Out\",\"Frame\",\"Reply\"\n"
                          "\"She says \"\"no\"\", twice\nhere\",Kim,00:00:10:00,00:00:11:00,240,\n"
                          "\"\"\"All quoted\"\"\",Lee,,,,true\n")
            << u"review-csv UTF-8 comma -"_s << u"comment user time end field:Frame field:Reply"_s
            << u"2|00:00:10:00|-|She says \"no\", twice\nhere|-|-|Kim|-\n"
               "4|00:00:10:00|-|\"All quoted\"|-|-|Lee|-"_s;
        QTest::newRow("chapters") << QByteArray(
                                         "My film\n\n00:00 Intro\n1:02:03 - Title\n[12:30] Third\nThanks!\n")
                                  << u"chapters UTF-8  -"_s << u"time name"_s
                                  << u"3|00:00|Intro|-|-|-|-|-\n4|1:02:03|Title|-|-|-|-|-\n"
                                     "5|12:30|Third|-|-|-|-|-"_s;
        QTest::newRow("fcpxml") << interchangeFile() << u"fcpxml UTF-8  25"_s
                                << u"time duration name comment type"_s
                                << u"6|01:00:02:00|A|n|2/25s|-|-|-\n8|01:00:11:00|B|-|-|-|-|-\n"
                                   "11|01:00:11:00|C|-|-|-|-|-"_s;
        QTest::newRow("fcp") << QByteArray("Name\tType\tMarker Name\tComment\tStart\tDuration\tColor\n"
                                           "Edit\tSequence\tA\tnote\t00:00:02:00\t00:00:00:10\tPurple\n")
                             << u"fcp UTF-8 tab -"_s << u"field:Name type name comment time duration color"_s
                             << u"2|00:00:02:00|A|note|00:00:00:10|Purple|-|-"_s;
        QTest::newRow("windows-1252, semicolons, seconds")
            << QByteArray("Zeit (s);Kommentar\n12,5;\x84Sch\xf6n\x93 \x96 gut\n13;\n")
            << u"table windows-1252 semicolon -"_s << u"time comment"_s
            << u"2|12,5|-|„Schön“ – gut|-|-|-|-\n3|13|-|-|-|-|-|-"_s;
        QTest::newRow("without a header, by content")
            << QByteArray("kim,00:00:10:00,00:00:12:00,First shot,too dark,Green,V1\n"
                          "kim,00:00:20:00,00:00:22:00,Second shot,\"fine, so far\",Red,V1\n"
                          "lee,00:00:30:00,00:00:32:00,Third shot,ok now,Red,V2\n"
                          "lee,00:00:40:00,00:00:42:00,Fourth shot,good one,Red,V2\n")
            << u"table UTF-8 comma -"_s << u"user time end name comment color track"_s
            << u"1|00:00:10:00|First shot|too dark|-|Green|kim|V1\n"
               "2|00:00:20:00|Second shot|fine, so far|-|Red|kim|V1\n3|00:00:30:00|Third shot|ok "
               "now|-|Red|lee|V2\n"
               "4|00:00:40:00|Fourth shot|good one|-|Red|lee|V2"_s;
        QTest::newRow("an empty time column does not count")
            << QByteArray("#\tName\tFrame\tComments\tDuration\tStart\tEnd\tFrame Count Duration\tTape\n"
                          "1\tA_010\t\t\t00:00:09:21\t18:51:50:23\t18:52:00:21\t238\tB040\n")
            << u"table UTF-8 tab -"_s
            << u"ignore name field:Frame comment duration time end field:Frame Count Duration field:Tape"_s
            << u"2|18:51:50:23|A_010|-|00:00:09:21|-|-|-"_s;
        QTest::newRow("an empty comment column does not count")
            << QByteArray("Record In,Name,Comments,Color,Notes\n01:00:10:05,M 1,,Blue,note\n"
                          "01:00:20:05,M 2,,Mint,\"two, three\"\n")
            << u"table UTF-8 comma -"_s << u"time name field:Comments color comment"_s
            << u"2|01:00:10:05|M 1|note|-|Blue|-|-\n3|01:00:20:05|M 2|two, three|-|Mint|-|-"_s;
        QTest::newRow("replies with their text, titles in quotes")
            << QByteArray("\"\"\"Timecode\"\"\",\"\"\"Username\"\"\",\"\"\"Note\"\"\",Reply\n"
                          "00:00:10,Kim,first,\n,Lee,,I agree\n,Lee,,true\n")
            << u"review-csv UTF-8 comma -"_s << u"time user comment field:Reply"_s
            << u"2|00:00:10|-|first|-|-|Kim|-\n3|00:00:10|-|I agree|-|-|Lee|-\n"
               "4|00:00:10|-|-|-|-|Lee|-"_s;
        QTest::newRow("numbered lines with ends")
            << QByteArray("1. 00:10 - 00:20 Fix\n2) (00:30:00)–00:31:00: That\n3. 1:00:00 - 2 men\n")
            << u"chapters UTF-8  -"_s << u"time end name"_s
            << u"1|00:10|Fix|-|-|-|-|-\n2|00:30:00|That|-|-|-|-|-\n3|1:00:00|2 men|-|-|-|-|-"_s;
        QTest::newRow("subrip") << QByteArray("1\r\n00:00:10,000 --> 00:00:12,500\r\nHello\r\nthere\r\n\r\n"
                                              "2\r\n00:01:00,000 --> 00:01:01,000\r\nBye\r\n")
                                << u"chapters UTF-8  -"_s << u"time end name comment"_s
                                << u"2|00:00:10,000|Hello|there|-|-|-|-\n7|00:01:00,000|Bye|-|-|-|-|-"_s;
        QTest::newRow("a title without a column")
            << QByteArray("#\tName\tStatus\tDate\tDuration\tStart\tEnd\tFrame Count Duration\tTape\n"
                          "1\tA_010\t\t00:00:09:21\t18:51:50:23\t18:52:00:21\t238\tB040\n")
            << u"table UTF-8 tab -"_s
            << u"ignore name field:Status duration time end field:Frame Count Duration field:Tape"_s
            << u"2|18:51:50:23|A_010|-|00:00:09:21|-|-|-"_s;
    }
    void shapes()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, kind);
        QFETCH(QString, columns);
        QFETCH(QString, rows);
        const NoteList list = NoteReader::read(bytes);
        QCOMPARE(u"%1 %2 %3 %4"_s.arg(nameOf(list.shape), list.encoding, list.delimiter,
                                      list.rate ? list.rate->name() : u"-"_s),
                 kind);
        QCOMPARE(columnsOf(list), columns);
        QCOMPARE(rowsOf(list), rows);
        QCOMPARE(list.unreadable.size(), std::size_t(0));
    }

    void unreadableLines()
    {
        const NoteList list = NoteReader::read("Timecode,Comment\n01:00:00:00,\"open\n01:00:75:00,a\n,b\n");
        QCOMPARE(rowsOf(list), u"2|01:00:00:00|-|\"open|-|-|-|-"_s);
        QCOMPARE(list.unreadable.size(), std::size_t(2));
        QCOMPARE(list.unreadable[0].line, std::size_t(3));
        QCOMPARE(list.unreadable[0].reason, u"“01:00:75:00” is no time."_s);
        QCOMPARE(list.unreadable[1].line, std::size_t(4));
        // A few such lines do not hide which column has the times.
        const NoteList total = NoteReader::read("00:00:10:00\tFirst\n00:00:20:00\tSecond\nTotal 2\n");
        QCOMPARE(rowsOf(total), u"1|00:00:10:00|First|-|-|-|-|-\n2|00:00:20:00|Second|-|-|-|-|-"_s);
        QCOMPARE(total.unreadable.size(), std::size_t(1));
        QVERIFY(NoteReader::read("no list\nat all\n").rows.empty());
        QVERIFY(NoteReader::read({}).rows.empty());
    }

    void chosenColumns()
    {
        const QByteArray bytes("In,Shot,Note\n00:00:01:00,A,b\n");
        const NoteList byTitle = NoteReader::read(bytes, {{u"note"_s, {NoteRole::Name}}});
        QCOMPARE(columnsOf(byTitle), u"time ignore name"_s);
        const NoteList byNumber = NoteReader::read(bytes, {{u"2"_s, *NoteRole::fromText(u"field:Scene"_s)}});
        QCOMPARE(columnsOf(byNumber), u"time field:Scene comment"_s);
        const NoteList chapters = NoteReader::read("00:00 Intro\n", {{u"2"_s, {NoteRole::Comment}}});
        QCOMPARE(rowsOf(chapters), u"1|00:00|-|Intro|-|-|-|-"_s);
    }

    void readAgainWithOtherChoices()
    {
        const QByteArray frames("Seconds,Frame,Note,Drop\n10.5,250,\"a \"\"b\"\"\",01:00:00;02\nx,260,c,\n");
        const NoteList first = NoteReader::read(frames);
        QCOMPARE(rowsOf(first), u"2|10.5|-|a \"b\"|-|-|-|-"_s);
        QVERIFY(first.timeUnit == NoteUnit::Seconds && !first.rate);
        const NoteList byFrame = NoteReader::readAgain(first, frames, {{u"2"_s, {NoteRole::Time}}});
        QCOMPARE(rowsOf(byFrame), u"2|250|-|a \"b\"|-|-|-|-\n3|260|-|c|-|-|-|-"_s);
        QVERIFY(byFrame.timeUnit == NoteUnit::Frames); // the unit is that of the column
        QVERIFY(byFrame.unreadable.empty());
        const NoteList byDrop = NoteReader::readAgain(byFrame, frames, {{u"drop"_s, {NoteRole::Time}}});
        QCOMPARE(byDrop.rate->name(), u"29.97df"_s);
        const NoteList back = NoteReader::readAgain(byDrop, frames, {});
        QCOMPARE(rowsOf(back), rowsOf(first));
        QVERIFY(!back.rate && back.headers == first.headers && back.examples == first.examples);
        QCOMPARE(back.unreadable.size(), std::size_t(1));

        const QByteArray avid("kim\t01:00:10:00\tV1\tred\tnote\nbroken\n");
        const NoteList named =
            NoteReader::readAgain(NoteReader::read(avid), avid, {{u"5"_s, {NoteRole::Name}}});
        QCOMPARE(rowsOf(named), u"1|01:00:10:00|note|-|-|red|kim|V1"_s);
        QCOMPARE(named.unreadable.size(), std::size_t(1));
        const QByteArray markdown("| In | Note |\n| --- | --- |\n| 00:01 | a |\n");
        QCOMPARE(rowsOf(NoteReader::readAgain(NoteReader::read(markdown), markdown,
                                              {{u"note"_s, {NoteRole::Name}}})),
                 u"3|00:01|a|-|-|-|-|-"_s);
    }

    /// Work that grows with the square of these would not end, and memory with more than the file would
    /// not suffice.
    void hugeLists_data()
    {
        QTest::addColumn<QByteArray>("unit");
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("rows");
        const int line = seriesLength(200000000);
        const int records = seriesLength(1000000);
        QTest::newRow("a long line") << QByteArray("x") << line << 1;
        QTest::newRow("a long quoted cell") << QByteArray("\"\"") << line / 2 << 1;
        QTest::newRow("quotes alone") << QByteArray("\"") << line / 10 << 0;
        QTest::newRow("zeros") << QByteArray(1, '\0') << line / 10 << 0;
        QTest::newRow("brackets") << QByteArray("<") << line / 100 << 0;
        QTest::newRow("delimiters") << QByteArray(",") << line / 10 << 0;
        QTest::newRow("table") << QByteArray("01:00:00:00,\"\"\"x\"\"\"\n") << records << records;
        QTest::newRow("chapters") << QByteArray("00:00 Intro\n") << records << records;
        QTest::newRow("avid") << QByteArray("kim\t01:00:00:00\tV1\tred\tnote\t1\n") << records << records;
        QTest::newRow("locators") << QByteArray("* LOC: 01:00:10:05 RED     some text\n") << records
                                  << records;
    }
    void hugeLists()
    {
        QFETCH(QByteArray, unit);
        QFETCH(int, count);
        const QByteArray name(QTest::currentDataTag());
        QByteArray bytes(name == "a long line"          ? "Time,Name\n00:00:01:00,"
                         : name == "a long quoted cell" ? "Time,Name\n00:00:01:00,\""
                         : name == "table"              ? "Timecode,Comment\n"
                         : name == "brackets"           ? "<fcpxml>"
                         : name == "locators"           ? "TITLE: Cut\n"
                                                        : "");
        bytes.reserve(bytes.size() + unit.size() * count + 1);
        for (int i = 0; i < count; ++i)
            bytes += unit;
        if (name == "a long quoted cell")
            bytes += '"';
        QElapsedTimer timer;
        timer.start();
        const NoteList list = NoteReader::read(bytes);
        QTEST(int(list.rows.size()), "rows");
        QVERIFY2(timer.elapsed() < 40000, qPrintable(QString::number(timer.elapsed())));
    }
};

QTEST_GUILESS_MAIN(NoteReaderTest)
#include "tst_notereader.moc"
