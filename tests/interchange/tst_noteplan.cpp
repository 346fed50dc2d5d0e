#include "interchange/notes/NotePlan.h"
#include "interchange/notes/NoteReader.h"
#include "interchange/notes/NoteWriter.h"

#include <QTest>

using namespace vantrell;
using namespace Qt::StringLiterals;

namespace
{

/// From 01:00:00:00, ten minutes long.
NoteSequence sequenceAt(const NoteRate &rate)
{
    return {rate, rate.framesAt(3600, 0), rate.framesAt(600, 0)};
}

const NoteRate pal = {25, false, false};
const NoteRate film = {24, false, false};
const NoteRate ntscFilm = {24, true, false};
const NoteRate ntsc = {30, true, false};
const NoteRate dropFrame = {30, true, true};

/// "in+duration" of each row, with the state where it is not "add".
QString placesOf(const std::vector<PlannedNote> &notes)
{
    QStringList texts;
    for (const PlannedNote &note : notes) {
        const bool isPlaced = note.state != PlannedNote::State::Unreadable;
        QString text = isPlaced ? u"%1+%2"_s.arg(note.in).arg(note.duration) : u"%1"_s.arg(note.line);
        if (note.state != PlannedNote::State::Add)
            text += u' ' + nameOf(note.state);
        texts.append(text);
    }
    return texts.join(u", "_s);
}

} // namespace

class NotePlanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void places_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<NoteSequence>("sequence");
        QTest::addColumn<NoteSettings>("settings");
        QTest::addColumn<QString>("places");

        const NoteSettings guessed;
        const auto meaning = [](NoteMeaning meant, const char *timecode = "",
                                std::optional<NoteRate> rate = std::nullopt) {
            return NoteSettings{meant, QString::fromLatin1(timecode), rate, {}};
        };
        const QByteArray record("Timecode,Comment,Duration\n01:00:10:00,a,00:00:02:00\n01:10:00:00,b,\n"
                                "01:00:00:25,c,\n");
        QTest::newRow("record at the sequence's rate")
            << record << sequenceAt(pal) << guessed << u"250+50, 15000+0 outside, 4 unreadable"_s;
        // 10 s and 2 s are 239.76 and 47.95 frames, 600 s is 14385.6 of 14400.
        QTest::newRow("25 onto 23.976")
            << record << sequenceAt(ntscFilm) << meaning(NoteMeaning::Record, "", pal)
            << u"240+48, 14386+0, 4 unreadable"_s;
        // 240 frames of 23.976 are 10.01 s.
        QTest::newRow("23.976 onto 25") << QByteArray("Timecode,Comment\n01:00:10:00,a\n") << sequenceAt(pal)
                                        << meaning(NoteMeaning::Record, "", ntscFilm) << u"250+0"_s;
        QTest::newRow("a line with an end")
            << QByteArray("00:10 - 00:20 Fix\n") << sequenceAt(pal) << guessed << u"250+250"_s;
        QTest::newRow("24 onto 23.976, elapsed")
            << QByteArray("Timecode,Comment\n00:09:00:00,a\n") << sequenceAt(ntscFilm)
            << meaning(NoteMeaning::Guessed, "", film) << u"12947+0"_s; // 540 s
        // 01:01:00;02 is the 1800th frame after 01:00:00;00, whichever way the sequence counts.
        QTest::newRow("drop frame onto non-drop")
            << QByteArray("Timecode,Comment\n01:01:00;02,a\n") << sequenceAt(ntsc) << guessed << u"1800+0"_s;
        QTest::newRow("drop frame onto drop frame")
            << QByteArray("Timecode,Comment\n01:01:00;02,a\n01:01:59;29,b\n") << sequenceAt(dropFrame)
            << guessed << u"1800+0, 3597+0"_s;
        QTest::newRow("seconds count from the first frame")
            << QByteArray("00:00 Intro\n1:30 Title\n") << sequenceAt(pal) << guessed << u"0+0, 2250+0"_s;
        QTest::newRow("frames") << QByteArray("Frame,Comment\n48,a\n0,b\n") << sequenceAt(film) << guessed
                                << u"48+0, 0+0"_s;
        QTest::newRow("frames with thousands") << QByteArray("Frame,Comment\n\"1,250\",a\n250,b\n\"0,5\",c\n")
                                               << sequenceAt(film) << guessed << u"1250+0, 250+0, 1+0"_s;
        QTest::newRow("seconds with a comma")
            << QByteArray("Zeit (s);Kommentar\n1,250;a\n") << sequenceAt(film) << guessed << u"30+0"_s;
        // 10.5 s behind 00:59:50:00 are 12.5 frames behind the sequence's first; the bar stands at 11 s.
        QTest::newRow("seconds from the session's start")
            << QByteArray("SESSION NAME:\tMix\nSAMPLE RATE:\t48000.000000\n"
                          "SESSION START TIMECODE:\t00:59:50:00\nTIMECODE FORMAT:\t25 Frame\n\n"
                          "M A R K E R S  L I S T I N G\n"
                          "#   \tLOCATION     \tTIME REFERENCE    \tUNITS    \tNAME     \tCOMMENTS\n"
                          "1   \t0:10.500     \t504000            \tSamples  \tA        \t\n"
                          "2   \t6|1|000      \t528000            \tSamples  \tB        \t\n"
                          "3   \t01:00:02:00  \t576000            \tSamples  \tC        \t\n")
            << sequenceAt(pal) << guessed << u"13+0, 25+0, 50+0"_s;
        QTest::newRow("an offset") << QByteArray("Timecode,Comment\n00:00:10:00,a\n01:00:00:00,b\n")
                                   << sequenceAt(pal) << meaning(NoteMeaning::Offset, "1...")
                                   << u"250+0, 90000+0 outside"_s;
        QTest::newRow("a negative offset")
            << QByteArray("Timecode,Comment\n10:00:10:00,a\n") << sequenceAt(pal)
            << meaning(NoteMeaning::Offset, "-9...") << u"250+0"_s;
        // Only the last would lie inside as elapsed time.
        QTest::newRow("timecodes of sources")
            << QByteArray("Tape,Start\nA,18:51:50:23\nB,18:02:36:04\nC,00:00:39:03\n") << sequenceAt(pal)
            << guessed << u"1607773+0 outside, 1533904+0 outside, -89022+0 outside"_s;
        QTest::newRow("the first note")
            << QByteArray("Timecode,Comment\n18:51:50:23,a\n18:51:51:23,b\n") << sequenceAt(pal)
            << meaning(NoteMeaning::First, "5.") << u"125+0, 150+0"_s;
        QTest::newRow("an end, twice the same")
            << QByteArray("In,Out,Comment\n01:00:01:00,01:00:01:10,a\n01:00:01:00,01:00:02:00,a\n")
            << sequenceAt(pal) << guessed << u"25+10, 25+25 there"_s;
        // 50 frames of 59.94 are 25 of 29.97.
        QTest::newRow("a rate that the list says")
            << QByteArray("Name\tStart\tDuration\tTime Format\tType\tDescription\n"
                          "a\t00:00:01;00\t00:00:00;50\t59.94 fps drop\tCue\t\n")
            << sequenceAt(ntsc) << guessed << u"30+25"_s;
    }
    void places()
    {
        QFETCH(QByteArray, list);
        QFETCH(NoteSequence, sequence);
        QFETCH(NoteSettings, settings);
        NoteMatches matches;
        const auto notes = planNotes(NoteReader::read(list), sequence, settings, matches);
        QVERIFY(notes);
        QTEST(placesOf(*notes), "places");
    }

    void chapterTypes()
    {
        const QByteArray list("Markername\tBeschreibung\tIn\tOut\tDauer\tMarkertyp\n"
                              "A\t\t00:00:01:00\t00:00:01:00\t00:00:00:00\tKapitel\n"
                              "B\t\t00:00:02:00\t00:00:02:00\t00:00:00:00\tKommentar\n");
        NoteMatches matches;
        const auto notes = planNotes(NoteReader::read(list), sequenceAt(pal), {}, matches);
        QVERIFY(notes && notes->size() == 2);
        QVERIFY(notes->at(0).isChapter && !notes->at(1).isChapter);
    }

    void wrongTimecode()
    {
        NoteMatches matches;
        const NoteSettings settings{NoteMeaning::Offset, u"soon"_s, std::nullopt, {}};
        QVERIFY(!planNotes(NoteReader::read("00:00 a\n"), sequenceAt(pal), settings, matches));
    }

    /// Each format is read back to the same notes, as far as it holds them.
    void writtenLists_data()
    {
        QTest::addColumn<QString>("rows"); ///< name|comment|in|duration|color of the two notes
        QTest::addColumn<QStringList>("changes");
        const QString first = u"A \"1\", <b>|two words|250|10|5"_s;
        const QString orange = u"The colour of 1 marker is replaced by the nearest."_s;
        const QString joined = u"Tabs and line breaks are blanks in 1 text."_s;
        QTest::newRow("avid6") << u"|two words|250|10|5\n|x  y|2250|1|2"_s << QStringList{orange, joined};
        QTest::newRow("avid8") << first + u"\nB|x  y|2250|1|1"_s << QStringList{joined};
        QTest::newRow("resolve-edl") << first + u"\nB|x  y|2250|1|1"_s << QStringList{orange, joined};
        QTest::newRow("edl") << u"A \"1\", <b>||250|0|5\nB||2250|0|2"_s
                             << QStringList{orange, u"The comment of 2 markers is left out."_s,
                                            u"The duration of 1 marker is left out."_s};
        for (const char *format : {"csv", "tsv"})
            QTest::newRow(format) << first + u"\nB|x\t\ny|2250|0|1"_s << QStringList();
        QTest::newRow("markdown") << first + u"\nB|x \ny|2250|0|1"_s << QStringList();
        QTest::newRow("chapters") << u"A \"1\", <b>||250|0|0\nB||2250|0|0"_s
                                  << QStringList{u"The comment of 2 markers is left out."_s,
                                                 u"The duration of 1 marker is left out."_s,
                                                 u"Colours are left out."_s};
        QTest::newRow("webvtt") << u"A \"1\", <b>|two words|250|10|0\nB|x\t\ny|2250|1|0"_s
                                << QStringList{u"Colours are left out."_s};
    }
    void writtenLists()
    {
        WrittenNote a;
        a.name = u"A \"1\", <b>"_s;
        a.comment = u"two words"_s;
        a.time = u"01:00:10:00"_s;
        a.endTime = u"01:00:10:10"_s;
        a.duration = u"00:00:00:10"_s;
        a.in = 250;
        a.length = 10;
        a.color = 5;
        WrittenNote b;
        b.name = u"B"_s;
        b.comment = u"x\t\ny"_s;
        b.time = u"01:01:30:00"_s;
        b.endTime = u"01:01:30:01"_s;
        b.duration = u"00:00:00:00"_s;
        b.in = 2250;
        b.color = 1;
        a.rate = b.rate = pal;
        a.sequence = b.sequence = u"Edit"_s;
        const NoteWriter::Written written =
            NoteWriter::write(QString::fromLatin1(QTest::currentDataTag()), {a, b});
        NoteMatches matches;
        const auto notes = planNotes(NoteReader::read(written.text.toUtf8()), sequenceAt(pal), {}, matches);
        QVERIFY(notes);
        QStringList rows;
        for (const PlannedNote &note : *notes)
            rows.append(u"%1|%2|%3|%4|%5"_s.arg(note.name, note.comment)
                            .arg(note.in)
                            .arg(note.duration)
                            .arg(note.color));
        QTEST(rows.join(u'\n'), "rows");
        QTEST(written.changes, "changes");
    }

    void listsOfSeveralSequences()
    {
        WrittenNote note;
        note.time = note.endTime = u"01:00:00:00"_s;
        note.rate = pal;
        std::vector<WrittenNote> notes(3, note);
        notes[0].sequence = u"Reel 1"_s;
        notes[1].clip = notes[2].clip = u"Wide"_s;
        const QString told = u"Markers of 2 sequences and clips stand in one list."_s;
        for (const QString &format : NoteWriter::formats()) {
            const bool isTold = format.contains(u"edl"_s) || format == u"chapters"_s || format == u"webvtt"_s;
            QCOMPARE(NoteWriter::write(format, notes).changes.contains(told), isTold);
        }
    }
};

QTEST_GUILESS_MAIN(NotePlanTest)
#include "tst_noteplan.moc"
